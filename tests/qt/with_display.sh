#!/usr/bin/env bash
# with_display.sh COMMAND...: runs the command on a virtual display with OpenGL and a window manager of its own.
set -euo pipefail

work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$work"' EXIT

: >"$work/number"
Xvfb -displayfd 3 -screen 0 1280x800x24 +extension GLX -nolisten tcp 3>"$work/number" 2>"$work/server.log" &
for _ in $(seq 200); do
    [ -s "$work/number" ] && break
    sleep 0.05
done
[ -s "$work/number" ] || { echo "The virtual display did not start:" >&2; cat "$work/server.log" >&2; exit 1; }
export DISPLAY=":$(cat "$work/number")"

# Without a window manager no window becomes active.
openbox --sm-disable >/dev/null 2>&1 &

export XDG_RUNTIME_DIR="$work"
unset WAYLAND_DISPLAY
# Strings of the X protocol end by their length alone, and the OpenGL driver is unloaded before leaks are sought, so that
# its own cannot be told from ours; the tests without a display look for those.
export ASAN_OPTIONS="${ASAN_OPTIONS:-}:strict_string_checks=0:detect_leaks=0"
QT_QPA_PLATFORM=xcb "$@"
