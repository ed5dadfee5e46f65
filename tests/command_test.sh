#!/usr/bin/env bash
# norvane-transcript as a shell sees it. Each text of expected/ is a session in a copy of samples/: its
# lines that begin with "$ " are run, and all that they print, and each exit status but 0, must be what
# follows them. Takes the program's path; with "write" behind it, writes the sessions anew, to be read.
set -u
program=$(realpath "$1")
here=$(cd "$(dirname "$0")" && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failed=0
norvane-transcript() { timeout 20 "$program" "$@"; }

for expected in "$here"/expected/*.txt; do
    cp -r "$here/samples" "$folder/work"
    cd "$folder/work" || exit 1
    while IFS= read -r line; do
        [[ $line == '$ '* ]] || continue
        printf '%s\n' "$line"
        (eval "${line:2}") 2>&1 </dev/null
        status=$?
        [ $status -eq 0 ] || echo "[status $status]"
    done <"$expected" >../got
    [ "${2:-}" = write ] && cp ../got "$expected"
    diff -u "$expected" ../got || failed=1
    rm -rf "$folder/work"
done
exit $failed
