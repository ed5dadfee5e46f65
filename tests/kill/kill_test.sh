#!/bin/bash
# Kills the program with SIGKILL at random moments of watch cycles and checks after each kill that
# every input is whole in the watch folder, or its transcript and its copy are whole in the
# destination; that no other file is there under a final name; that the preferences are whole; and
# that the next start goes on. A second program is at the same folder each time. Some inputs are
# links; run by root, links of another user lie in wait, and what they lead to must stay.
#
# usage: kill_test.sh BUILD_DIR [KILLS [SEED]]
set -euo pipefail
shopt -s nullglob dotglob
here=$(cd "$(dirname "$0")" && pwd)
start=$1/tests/kill/norvane_start
kills=${2:-500}
RANDOM=${3:-$$}
echo "seed ${3:-$$}"
. "$here/common.sh"

root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
prepare "$root"
copies="$dest/scc files"
wanted=$root/wanted # the transcripts to come
kept=$root/kept     # the inputs as they were
mkdir "$wanted" "$kept"
filesAtOnce=24
secret=$root/secret
echo "not for others" >"$secret"

fail() {
    echo "FAILED after $landed kills: $1" >&2
    exit 1
}

# Short, middling and long inputs, and the bodies of their transcripts from a run in peace.
landed=0
for size in 3 100 3000; do
    sccFile $size >"$root/scc.$size"
    cp "$root/scc.$size" "$watch/s$size.scc"
done
"$start" >"$root/out" || fail "a run in peace"
for size in 3 100 3000; do
    [[ $(head -n 1 "$dest/s$size.txt") == "Transcripts of s$size.scc" ]] || fail "a heading"
    tail -n +2 "$dest/s$size.txt" >"$root/body.$size"
    [[ $(grep -c 'Hi!' "$root/body.$size") == "$size" ]] || fail "a transcript in peace"
done
rm "$dest"/*.txt "$copies"/*
echo "not an input" >"$watch/notes.txt"
if ((EUID == 0)); then
    ln -s "$secret" "$watch/loot"
    chown -h nobody "$watch/loot"
fi

next=0
fill() {
    local files=("$watch"/*.scc) size
    for ((i = ${#files[@]}; i < filesAtOnce; i++)); do
        next=$((next + 1))
        case $((next % 8)) in 0) size=3000 ;; 1 | 2 | 3) size=100 ;; *) size=3 ;; esac
        cp "$root/scc.$size" "$kept/f$next.scc"
        { echo "Transcripts of f$next.scc"; cat "$root/body.$size"; } >"$wanted/f$next.txt"
        if ((next % 5 == 0)); then
            ln -s "$kept/f$next.scc" "$watch/"
        else
            cp "$kept/f$next.scc" "$watch/"
        fi
        if ((EUID == 0 && next % 3 == 0)); then
            ln -s "$secret" "$copies/f$next.scc"
            chown -h nobody "$copies/f$next.scc"
        fi
    done
}

whole() { # WANTED FILE WHAT
    cmp -s "$1" "$2" || fail "$3 $2 is not whole"
}

leftovers=0
check() {
    local file base
    for file in "$watch"/*; do
        [[ $file == */notes.txt || $file == */loot ]] || whole "$kept/${file##*/}" "$file" input
    done
    [[ $(cat "$secret") == "not for others" ]] || fail "written through a link"
    for file in "$copies"/*; do
        [[ -L $file ]] && continue
        case ${file##*/} in
        .norvane-*.part) leftovers=$((leftovers + 1)) ;;
        notes.txt) whole "$watch/notes.txt" "$file" copy ;;
        *) whole "$kept/${file##*/}" "$file" copy ;;
        esac
    done
    for file in "$dest"/*; do
        base=${file##*/}
        base=${base%.txt}
        case $base in
        "scc files") ;;
        .norvane-*.part) leftovers=$((leftovers + 1)) ;;
        *) whole "$wanted/${base%_1}.txt" "$file" transcript ;;
        esac
    done
    for file in "$kept"/*; do
        base=${file##*/}
        base=${base%.scc}
        [[ -e $watch/$base.scc || (-e $dest/$base.txt && -e $copies/$base.scc && ! -L $copies/$base.scc) ]] || fail "$base is lost"
    done
    [[ $(wc -l <"$preferences") == 9 && $(tail -n 1 "$preferences") == true ]] || fail "preferences"
}

forgetDone() { # so that a round costs the same however many went before
    local file base
    for file in "$kept"/*; do
        base=${file##*/}
        base=${base%.scc}
        [[ -e $watch/$base.scc ]] ||
            rm -f "$file" "$wanted/$base.txt" "$dest/$base.txt" "${dest}/${base}_1.txt" "$copies/$base.scc"
    done
}

fill
"$start" >"$root/out" || fail "a run in peace"
microseconds=$(awk '{ print int($1 * 1000000) }' "$root/out")
check
forgetDone

missed=0 decoded=$next
while ((landed < kills)); do
    fill
    "$start" >"$root/out" 2>&1 &
    process=$!
    "$start" >"$root/other" 2>&1 &
    other=$!
    ((RANDOM % 2)) || read -r process other <<<"$other $process"
    sleep "$(awk -v r=$((RANDOM * 32768 + RANDOM)) -v m="$microseconds" \
        'BEGIN { printf "%.6f", 0.001 + r / 1073741824 * m / 1000000 }')"
    kill -9 $process 2>/dev/null || true
    status=0
    wait $other 2>/dev/null || fail "the program that was left alone said: $(cat "$root/out" "$root/other")"
    wait $process 2>/dev/null || status=$?
    case $status in
    137) landed=$((landed + 1)) ;;
    0) missed=$((missed + 1)) ;;
    *) fail "the program ended with $status: $(cat "$root/out" "$root/other")" ;;
    esac
    check
    forgetDone
done

"$start" >"$root/out" 2>&1 || fail "the last start: $(cat "$root/out")"
before=$leftovers
check
((leftovers == before)) || fail "temporary files outlive the next start"
files=("$watch"/*)
[[ ${#files[@]} == $((EUID == 0 ? 2 : 1)) ]] || fail "the last start left inputs"
echo "$landed kills in cycles of $filesAtOnce files, $missed cycles ended before theirs;" \
    "$next inputs, none lost; $leftovers temporary files found, none after the next start"
