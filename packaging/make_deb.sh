#!/usr/bin/env bash
# make_deb.sh [FOLDER]: makes the Debian package and its source package from a copy of the sources, in FOLDER or
# in build/. Installs what that needs where it is missing (Debian). The package is tested by ./test.
# DEB_BUILD_PROFILES=pkg.norvane.nopage leaves norvane.html out, and emscripten with it.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
. "$root/scripts/common.sh"
need $deb_packages
[[ " ${DEB_BUILD_PROFILES:-} " = *" pkg.norvane.nopage "* ]] || need $page_packages
mkdir -p "${1:-$root/build}"
out=$(cd "${1:-$root/build}" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
trap 'exit 1' INT TERM HUP

in_git() { git -C "$root" -c safe.directory='*' "$@" 2>/dev/null; } # whoever owns the folder
field() { dpkg-parsechangelog -l "$root/debian/changelog" -S "$1"; }

# Between releases each state replaces the one before it, and is older than the release to come.
version=$(field Version)
date=$(field Date)
if [ "$(field Distribution)" = UNRELEASED ]; then
    commit=$(TZ=UTC0 in_git log -1 --date=format-local:%Y%m%d%H%M%S --format='~git%cd+g%h' --abbrev=7) || commit='~local'
    [ -z "$(in_git status --porcelain)" ] || commit+=+changed
    version+=$commit
    date=$(in_git log -1 --format=%cD) || true
fi
upstream=${version%-*}
sources=$work/norvane-$upstream

# Files that are no part of the sources stay out where git knows which are.
mkdir "$sources"
{ in_git ls-files -z --cached --others --exclude-standard || true; } >"$work/list"
[ -s "$work/list" ] || (cd "$root" && find . -path ./build -prune -o -path ./.git -prune -o -type f -print0) >"$work/list"
tar -C "$root" --null -T "$work/list" -c | tar -C "$sources" -x --no-same-permissions
chmod -R u=rwX,go=rX "$sources" # whatever the umask, which also went into the copy
rm "$work/list"
sed -i "1s/(.*) UNRELEASED/($version) unstable/; 0,/^ -- /s/^\( -- .*>  \).*/\1${date:-$(field Date)}/" "$sources/debian/changelog"

tar -C "$work" --exclude=debian --sort=name --mtime="${date:-$(field Date)}" --owner=0 --group=0 --numeric-owner \
    --mode=u=rwX,go=rX -c "norvane-$upstream" | gzip -9n >"$work/norvane_$upstream.orig.tar.gz"
(cd "$sources" && LC_ALL=C.UTF-8 DEB_BUILD_OPTIONS="nocheck ${DEB_BUILD_OPTIONS:-}" DEB_BUILD_PROFILES="nocheck ${DEB_BUILD_PROFILES:-}" \
    quietly dpkg-buildpackage --no-sign --jobs=auto)
rm -r "$sources"
[ $# -gt 0 ] || rm -f "$out"/norvane{,-dbgsym}_* # so that there is one to install
mv "$work"/* "$out"
ls "$out/norvane_${version}"_*.deb
