# What the scripts share. $root is the root of the sources.

build_packages='g++ cmake ninja-build'
desktop_packages='qt6-base-dev qt6-base-dev-tools libgl1-mesa-dev'
test_packages='libgtest-dev libbenchmark-dev python3'
check_packages='git clang clang-format clang-tidy libclang-rt-14-dev xvfb openbox xdotool imagemagick fonts-dejavu-core python3 dbus at-spi2-core libglib2.0-bin'

# need PACKAGE...: installs those that are missing (Debian 12), or names them and the command for it.
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
        "${admin[@]}" apt-get update -qq >&2 &&
            "${admin[@]}" env DEBIAN_FRONTEND=noninteractive "${install[@]}" -qq >&2 && return
    fi
    printf '%s\n' "These packages are missing and could not be installed: ${missing[*]}" \
        "The command for it: ${admin[*]} ${install[*]}" >&2
    return 1
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

# configure PRESET [PACKAGE...]: asks for packages only when the build misses something, since compiler,
# CMake and Qt may have come another way.
configure() {
    local complaint
    complaint=$(cmake -S "$root" --preset "$1" 2>&1) && return
    need "${@:2}" || { printf 'The build itself said:\n%s\n' "$complaint" >&2; return 1; }
    quietly cmake -S "$root" --fresh --preset "$1"
}

# build PRESET [TARGET...]
build() {
    local command=(cmake --build "$root/build/$1" ${2+--target "${@:2}"})
    "${command[@]}" -- -n | grep -q 'no work to do' || echo 'Compiling Norvane; the first time takes some minutes.' >&2
    quietly "${command[@]}"
}

# package BUILD FOLDER: in a locale that knows whatever letters the path of the sources holds.
package() { (cd "$1" && LC_ALL=C.UTF-8 quietly cpack -G DEB -B "$2"); }
