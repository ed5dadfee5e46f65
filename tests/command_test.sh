#!/usr/bin/env bash
# norvane-transcript as a shell sees it. Each text of expected/ is a session in a copy of samples/: its
# lines that begin with "$ " are run, and all that they print, and each exit status but 0, must be what
# follows them. Takes the program's path and the names of sessions; with "write" in their place, writes
# all of them anew, to be read.
set -u
program=$(realpath "$1")
shift
here=$(cd "$(dirname "$0")" && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failed=0
norvane-transcript() { timeout 20 "$program" "$@"; }

sessions=("$@")
[ "$*" = write ] && mapfile -t sessions < <(basename -s .txt "$here"/expected/*)
for session in "${sessions[@]}"; do
    expected=$here/expected/$session.txt
    cp -r "$here/samples" "$folder/work"
    cd "$folder/work" || exit 1
    while IFS= read -r line; do
        [[ $line == '$ '* ]] || continue
        printf '%s\n' "$line"
        (eval "${line:2}") 2>&1 </dev/null
        status=$?
        [ $status -eq 0 ] || echo "[status $status]"
    done <"$expected" >../got
    [ "$*" = write ] && cp ../got "$expected"
    diff -u "$expected" ../got || failed=1
    rm -rf "$folder/work"
done
exit $failed
