#!/usr/bin/env bash
# Makes the Debian package, in build/. Installs what that needs where it is missing (Debian 12).
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
. "$root/scripts/common.sh"

type -P dpkg-shlibdeps file >/dev/null || need dpkg-dev file
configure program $build_packages $desktop_packages
build program
package "$root/build/program" "$root/build"
ls "$root"/build/norvane_*.deb
