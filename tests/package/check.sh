#!/usr/bin/env bash
# Makes the Debian package twice and checks it and what it brings. Installs the tools (Debian).
set -euo pipefail # so no grep -q behind a pipe: it would end what it reads from
root=$(cd "$(dirname "$0")/../.." && pwd)
. "$root/scripts/common.sh"
need $deb_packages $page_packages $deb_check_packages

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# The same bytes from another folder, whatever the umask of the builder.
mkdir "$work/other folder"
tar -C "$root" --exclude=./build -c . | tar -C "$work/other folder" -x
"$root/packaging/make_deb.sh" "$work"
(umask 077 && "$work/other folder/packaging/make_deb.sh" "$work/again")
deb=$(echo "$work"/norvane_*.deb)
for file in "$work"/*.{deb,tar.*}; do
    cmp "$file" "$work/again/$(basename "$file")" || fail 'the second build'
done
odd=$(dpkg-deb -c "$deb" | grep -vE '^(drwxr-xr-x|-rw-r--r--|lrwxrwxrwx) root/root ' |
    grep -vE '^-rwxr-xr-x root/root .* \./usr/bin/') || true
[ -z "$odd" ] || fail "modes and owners: $odd"
dpkg-deb -x "$deb" "$work/root"
usr=$work/root/usr

# All that lintian has to say counts, but for what is overridden with a reason.
said=$(lintian -I "$work"/norvane_*.changes 2>&1 | grep -v 'root privileges') || true
[ -z "$said" ] || fail "lintian: $said"
desktop-file-validate "$usr"/share/applications/*.desktop
quietly appstreamcli validate --no-net "$usr/share/metainfo/com.bellwick.norvane.metainfo.xml"

# Nothing is missing, and nothing came along.
sizes=(16 22 24 32 48 64 128 256 512)
expected() {
    printf '%s\n' bin/norvane bin/norvane-transcript share/applications/norvane{,-page}.desktop \
        share/metainfo/com.bellwick.norvane.metainfo.xml share/mime/packages/norvane.xml \
        share/norvane/{help.html,norvane.html,page.png} share/man/man1/{norvane,norvane-transcript}.1.gz \
        share/doc/norvane/{copyright,changelog.gz,changelog.Debian.gz} share/lintian/overrides/norvane \
        share/bash-completion/completions/norvane-transcript \
        share/fish/vendor_completions.d/norvane-transcript.fish \
        share/zsh/vendor-completions/_norvane-transcript share/icons/hicolor/scalable/apps/norvane.svg
    printf 'share/icons/hicolor/%s/apps/norvane.png\n' "${sizes[@]/%/x}" | sed -E 's/([0-9]+)x/\1x\1/'
}
diff <(expected | sort) <(cd "$usr" && find . -type f -printf '%P\n' | sort) || fail 'the list of files'

for link in $(grep -oP '(href|src)="\K[^"#]+' "$usr/share/norvane/help.html"); do
    [ -s "$usr/share/norvane/$link" ] || fail "$link, which the help article names"
done

# Desktops know a file by its name in either case, and without one by its first words.
quietly update-mime-database "$usr/share/mime"
head -c 100 "$root/resources/samples/night-train.scc" >"$work/a"
echo 'Any text' | tee "$work/a.scc" >"$work/A.SCC"
for file in a.scc A.SCC a; do
    XDG_DATA_HOME=$work XDG_DATA_DIRS=$usr/share gio info -a standard::content-type "$work/$file" |
        grep ': text/x-scc$' >/dev/null || fail "the type of $file"
done

# Every option is told in the page and offered by each shell.
transcript=$usr/bin/norvane-transcript
completed_by_bash() {
    bash -c '. "$1"; COMP_WORDS=(norvane-transcript "${@:2}"); COMP_CWORD=$(($# - 1))
        compopt() { :; }; _norvane_transcript; printf "%s\n" "${COMPREPLY[@]}"' - \
        "$usr/share/bash-completion/completions/norvane-transcript" "$@"
}
completed_by_fish() {
    HOME=$work fish --no-config -c "source $usr/share/fish/vendor_completions.d/norvane-transcript.fish
        complete -C 'norvane-transcript $1'" | cut -f 1
}
zsh -n "$usr/share/zsh/vendor-completions/_norvane-transcript"
"$transcript" --version | grep . >/dev/null || fail 'the companion'
options=$("$transcript" --help | grep -oE '^  -[-a-z]+')
[ -n "$options" ] || fail 'no options'
for option in $options; do
    man -l "$usr/share/man/man1/norvane-transcript.1.gz" 2>/dev/null | col -b | grep -E -- "^ +$option" >/dev/null ||
        fail "the page lacks $option"
    completed_by_bash - | grep -xe "$option" >/dev/null || fail "bash lacks $option"
    completed_by_fish - | grep -xe "$option" >/dev/null || fail "fish lacks $option"
    grep -qe "$option[=+[]" "$usr/share/zsh/vendor-completions/_norvane-transcript" || fail "zsh lacks $option"
done
[ "$(completed_by_bash --form = p)" = paragraph ] || fail 'bash on --form=p'
[ "$(completed_by_fish '--clock s')" = scc ] || fail 'fish on --clock s'
mkdir -p "$work/files/folder"
cd "$work/files"
touch a.scc B.SCC c.txt
[ "$(completed_by_bash '' | LC_ALL=C sort | tr '\n' ' ')" = 'B.SCC a.scc folder ' ] || fail 'bash on files'
[ "$(completed_by_fish '' | LC_ALL=C sort | tr '\n' ' ')" = 'B.SCC a.scc folder/ ' ] || fail 'fish on files'
[ "$(completed_by_bash --without parity,ov)" = parity,overlap ] || fail 'bash on --without'
completed_by_fish '--without parity,ov' | grep -x parity,overlap >/dev/null || fail 'fish on --without'

for page in "$usr"/share/man/man1/*; do
    complaints=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
    [ -z "$complaints" ] || fail "$page: $complaints"
done
echo "The package is in order: $(basename "$deb"), $(stat -c %s "$deb") bytes."
