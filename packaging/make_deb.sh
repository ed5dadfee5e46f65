#!/usr/bin/env bash
# Makes the Debian package, in build/. Installs what that needs where it is missing (Debian 12).
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
. "$root/scripts/common.sh"

need $build_packages $desktop_packages dpkg-dev file
quietly cmake -S "$root" -B "$root/build/package" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DNORVANE_TESTS=OFF -DNORVANE_BENCH=OFF
build package
cd "$root/build/package"
quietly cpack -G DEB -B "$root/build"
ls "$root"/build/norvane_*.deb
