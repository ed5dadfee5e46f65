# What the scripts share. $root is the root of the sources.

build_packages='g++ cmake ninja-build'
desktop_packages='qt6-base-dev qt6-base-dev-tools libgl-dev'
page_packages='emscripten cmake ninja-build python3'
test_packages='libgtest-dev libbenchmark-dev python3'
deb_packages="build-essential $build_packages $desktop_packages debhelper dpkg-dev"
deb_check_packages='lintian desktop-file-utils appstream man-db shared-mime-info libglib2.0-bin fish zsh'
check_packages='git clang clang-format clang-tidy libclang-rt-14-dev xvfb openbox xdotool imagemagick fonts-dejavu-core python3 dbus at-spi2-core chromium chromium-driver python3-selenium'

# need PACKAGE...: installs those that are missing (Debian), or names them and the command for it.
need() {
    local missing=() admin=() package
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    [ "$(id -u)" -eq 0 ] || admin=(sudo)
    local install=(apt-get install -y --no-install-recommends "${missing[@]}")
    if type -P apt-get "${admin[@]}" >/dev/null; then
        echo "Installing ${missing[*]}" >&2
        quietly "${admin[@]}" apt-get update &&
            quietly "${admin[@]}" env DEBIAN_FRONTEND=noninteractive "${install[@]}" && return
    fi
    printf '%s\n' "These packages are missing and could not be installed: ${missing[*]}" \
        "The command for it: ${admin[*]} ${install[*]}" >&2
    return 1
}

# quietly COMMAND...: runs it, and shows what it printed only when it fails.
quietly() {
    local said
    said=$("$@" 2>&1) || { printf '%s\n' "$said" >&2; return 1; }
}

# can_build PRESET: whether this user may write where that stands.
can_build() {
    local folder=$root/build/$1
    while [ ! -e "$folder" ]; do folder=$(dirname "$folder"); done
    [ -w "$folder" ] && return
    echo "Norvane cannot be built here, since $(id -un) may not write to $folder: build a copy of the sources." >&2
    return 1
}

# configure PRESET [PACKAGE...]: asks for packages only when the build misses something, since compiler,
# CMake and Qt may have come another way.
configure() {
    local complaint
    complaint=$(cmake -S "$root" --preset "$1" 2>&1) && return
    need "${@:2}" || { printf 'The build reported:\n%s\n' "$complaint" >&2; return 1; }
    quietly cmake -S "$root" --fresh --preset "$1"
}

# build PRESET [TARGET...]
build() {
    local command=(cmake --build "$root/build/$1" ${2+--target "${@:2}"})
    "${command[@]}" -- -n | grep -q 'no work to do' || echo 'Compiling Norvane; the first build takes a few minutes.' >&2
    quietly "${command[@]}"
}
