# Sourced by ./run and ./test: makes sure that the Debian packages that the project builds with are there.

build_packages="g++ cmake ninja-build ccache pkg-config qt6-base-dev libqt6opengl6-dev qt6-svg-dev
  libgl-dev libegl-dev libopengl-dev libglu1-mesa-dev libgl1-mesa-dri libegl1 libfreetype-dev libfontconfig-dev libpng-dev
  libcli11-dev fonts-liberation cmark-gfm"
test_packages="libgtest-dev libgmock-dev xvfb xauth openbox"
bench_packages="libbenchmark-dev"

say() { printf '%s\n' "== $*"; }

# ensure_packages NAME...: installs those that are missing, with sudo only if something is missing and we are not root.
ensure_packages() {
    missing=""
    for package in "$@"; do
        status=$(dpkg-query -W -f '${Status}' "$package" 2>/dev/null || true)
        [ "$status" = "install ok installed" ] || missing="$missing $package"
    done
    [ -z "$missing" ] && return 0
    say "installing the packages$missing"
    as_root=""
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "These packages are missing, and there is no sudo to install them:$missing" >&2; return 1; }
        as_root=sudo
    fi
    $as_root apt-get update -qq
    # shellcheck disable=SC2086
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

# build PRESET [TARGET...]: configures and builds, and says how long it took.
build() {
    preset=$1
    shift
    say "configuring ($preset)"
    cmake --preset "$preset" >"build-$preset.log" 2>&1 || { cat "build-$preset.log" >&2; rm -f "build-$preset.log"; return 1; }
    rm -f "build-$preset.log"
    say "building"
    started=$(date +%s)
    if [ $# -gt 0 ]; then
        cmake --build --preset "$preset" --target "$@"
    else
        cmake --build --preset "$preset"
    fi
    say "built in $(($(date +%s) - started)) s"
}
