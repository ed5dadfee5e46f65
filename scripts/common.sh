# What the scripts share. $root is the root of the sources.

build_packages='g++ cmake ninja-build'
desktop_packages='qt6-base-dev qt6-base-dev-tools libgl1-mesa-dev libqt6svg6'
test_packages='libgtest-dev libbenchmark-dev python3'
check_packages='git clang clang-format clang-tidy libclang-rt-14-dev xvfb openbox xdotool imagemagick fonts-dejavu-core python3 dbus at-spi2-core libglib2.0-bin'

# need PACKAGE...: installs those that are missing.
need() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    echo "Installing ${missing[*]}" >&2
    local admin=()
    [ "$(id -u)" -eq 0 ] || admin=(sudo)
    "${admin[@]}" apt-get update -qq >&2
    "${admin[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

# quietly COMMAND...: runs it, and shows what it printed only when it fails.
quietly() {
    local log
    log=$(mktemp)
    if "$@" >"$log" 2>&1; then
        rm -f "$log"
    else
        cat "$log" >&2
        rm -f "$log"
        return 1
    fi
}

configure() { (cd "$root" && quietly cmake --preset "$1" "${@:2}"); }

# build PRESET [TARGET...]
build() {
    local targets=("${@:2}")
    quietly cmake --build "$root/build/$1" ${targets[@]+--target "${targets[@]}"}
}

# The companion by itself needs no Qt.
build_command() {
    need $build_packages
    quietly cmake -S "$root" -B "$root/build/command" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DNORVANE_DESKTOP=OFF -DNORVANE_TESTS=OFF
    build command norvane-transcript
}
