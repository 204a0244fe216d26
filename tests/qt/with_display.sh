#!/usr/bin/env bash
# with_display.sh COMMAND...: runs the command on a virtual display with OpenGL and a window manager of its own.
set -euo pipefail

work=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$work"' EXIT

# wait_for FILE: until something stands in the file, for ten seconds at most.
wait_for() {
    for _ in $(seq 200); do
        [ -s "$1" ] && return 0
        sleep 0.05
    done
    return 1
}

Xvfb -displayfd 3 -screen 0 1280x800x24 +extension GLX -nolisten tcp 3>"$work/number" 2>"$work/server.log" &
wait_for "$work/number" || { echo "The virtual display did not start:" >&2; cat "$work/server.log" >&2; exit 1; }
export DISPLAY=":$(cat "$work/number")"

# Without a window manager no window becomes active, and one that comes while it starts is never shown.
openbox --sm-disable --startup "sh -c 'echo ready >$work/managed'" >"$work/manager.log" 2>&1 &
wait_for "$work/managed" || { echo "The window manager did not start:" >&2; cat "$work/manager.log" >&2; exit 1; }

export XDG_RUNTIME_DIR="$work"
unset WAYLAND_DISPLAY
# Strings of the X protocol end by their length alone, and the OpenGL driver is unloaded before leaks are sought, so that
# its own cannot be told from ours; the tests without a display look for those.
export ASAN_OPTIONS="${ASAN_OPTIONS:-}:strict_string_checks=0:detect_leaks=0"
QT_QPA_PLATFORM=xcb "$@"
