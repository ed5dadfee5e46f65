#!/usr/bin/env bash
# try_system.sh SUITE [FOLDER]: tries the sources on a bare Debian (bookworm, trixie, sid), as root. From a copy of
# them runs ./run on a sample and ./test, makes the package, installs it where nothing else is, and tells the
# versions and times. The roots stand in FOLDER, or in a new one that goes away. DEBIAN_MIRROR: where packages come from.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
. "$root/scripts/common.sh"

[ $# -gt 0 ] && [ "$(id -u)" -eq 0 ] || { echo 'Usage, as root: try_system.sh SUITE [FOLDER]' >&2; exit 2; }
suite=$1
need debootstrap
if [ $# -gt 1 ]; then
    mkdir -p "$2"
    roots=$(cd "$2" && pwd)
else
    roots=$(mktemp -d "/var/tmp/norvane-$suite.XXXXXX")
    trap 'rm -rf "$roots"' EXIT
    trap 'exit 1' INT TERM HUP
fi

# inside ROOT COMMAND: in a shell there, with processes and memory of its own, which go with it.
inside() {
    unshare --mount --pid --fork --kill-child bash -c '
        mount -t proc proc "$1/proc"
        mkdir -p "$1/dev/shm"
        mount -t tmpfs tmpfs "$1/dev/shm"
        exec chroot "$1" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 bash -ec "$2"' - "$1" "$2"
}

# step NAME COMMAND...: tells what it took, and of a failure all.
step() {
    local start=$SECONDS said status=0
    said=$("${@:2}" 2>&1) || status=$?
    [ "$status" -eq 0 ] || printf '%s\n' "$said" >&2
    printf '%s: %s, %d s: %s\n' "$suite" "$1" $((SECONDS - start)) "$(tail -n 1 <<<"$said")"
    return "$status"
}

if [ ! -e "$roots/bare/etc/debian_version" ]; then
    rm -rf "$roots/bare"
    quietly debootstrap --variant=minbase "$suite" "$roots/bare" "${DEBIAN_MIRROR:-http://deb.debian.org/debian}"
    # Its lists say that they are valid for a week, and mirrors lag behind.
    [ "$suite" != sid ] || echo 'Acquire::Check-Valid-Until "false";' >"$roots/bare/etc/apt/apt.conf.d/90valid"
fi
rm -rf "$roots/build" "$roots/installed"
cp -a "$roots/bare" "$roots/build"
cp -a "$roots/bare" "$roots/installed"
mkdir "$roots/build/norvane"
tar -C "$root" --exclude=./build --exclude=./.git -c . | tar -C "$roots/build/norvane" -x --no-same-owner

failed=0
step './run FILE' inside "$roots/build" 'cd /norvane && ./run resources/samples/night-train.scc' || failed=1
step './test' inside "$roots/build" 'cd /norvane && ./test' || failed=1
step 'versions' inside "$roots/build" 'echo "g++ $(g++ -dumpfullversion), Qt $(dpkg-query -W -f "\${Version}" qt6-base-dev)"'
step 'package' inside "$roots/build" 'cd /norvane && packaging/make_deb.sh /deb' || exit 1
cp "$roots"/build/deb/norvane_*.deb "$roots/installed/norvane.deb"
cp "$root/resources/samples/night-train.scc" "$roots/installed/"
step 'installation' inside "$roots/installed" 'apt-get update; apt-get install -y --no-install-recommends /norvane.deb
    [ -s /usr/share/norvane/help.html ] && [ -s /usr/share/norvane/norvane.html ]
    [ -n "$(norvane-transcript /night-train.scc)" ]
    status=0
    QT_QPA_PLATFORM=offscreen timeout 5 norvane || status=$?
    [ "$status" -eq 124 ] # open until it was told to end
    norvane-transcript --version' || failed=1
exit $failed
