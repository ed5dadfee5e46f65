#!/usr/bin/env bash
# norvane-transcript as a shell sees it: bytes, messages and exit statuses. Takes the program's path.
set -u
program=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 1
failed=0

# expect STATUS OUT ERR ARGUMENT...: runs the program and compares all three.
expect() {
    local status=$1 out=$2 err=$3
    shift 3
    timeout 20 "$program" "$@" >out.txt 2>err.txt
    local got=$?
    if [ $got -ne "$status" ] || [ "$(cat out.txt; echo .)" != "$(printf '%b.' "$out")" ] ||
        [ "$(cat err.txt; echo .)" != "$(printf '%b.' "$err")" ]; then
        printf 'wrong: %s\nstatus %s\n%s\n%s\n' "$*" $got "$(cat out.txt)" "$(cat err.txt)"
        failed=1
    fi
}

hi='9420 9420 94ae 94ae 9470 9470 c8e9 a180 942f 942f'
printf 'Scenarist_SCC V1.0\n\n00:00:01;00\t%s\n' "$hi" >show.scc
printf 'header\n01:00:00\t9420\n' >three.scc
printf 'header\n00:00:01:00 9420\n' >blank.scc
printf 'header\n00:00:01:00\tc1\0c2\n' >nul.scc
: >empty.scc
mkdir folder.scc full
mkfifo fifo.scc

timecodes='Transcripts of show\n\n[00:00:01.33]\t Hi! \n\n\n'
expect 0 "$timecodes" '' show.scc
expect 0 'Transcripts of show\n\n[00:00:01;00]\t Hi! \n\n\n' '' --clock scc --form=timecode ./show.scc
expect 0 'Transcripts of show\n\n Hi! \n\nTranscripts of empty\n\n\n' '' --form line show.scc empty.scc
expect 0 'Transcripts of show\n\n Hi! \n' '' --form paragraph -- show.scc
expect 0 'Transcripts of empty\n\n\n' '' empty.scc
expect 1 "$timecodes" "three.scc: This could not be finished: data line 1 of “three.scc”: the timecode “01:00:00” has fewer than four fields.
blank.scc: This SCC file does not appear to be formatted correctly. It needs to have a tab between the timecode and the hexidecimal caption code.
gone.scc: This could not be finished: “$folder/gone.scc” cannot be opened: No such file or directory.
folder.scc: This could not be finished: “$folder/folder.scc” is a folder.
fifo.scc: This could not be finished: “$folder/fifo.scc” is not a regular file.
out.txt: This file does not have the .scc extension.\n" three.scc blank.scc gone.scc folder.scc fifo.scc out.txt show.scc
timeout 20 "$program" nul.scc >out.txt || failed=1
long=$(printf '%300s' | tr ' ' '1')
printf 'header\n00:\0\033[2J:%s\t9420\n' "$long" >odd.scc
expect 1 '' "odd.scc: This could not be finished: data line 1 of “odd.scc”: the timecode “00:??[2J:${long:0:31}…” has fewer than four fields.\n" odd.scc
expect 1 '' ': This could not be finished: “” cannot be found.\n' ''
"$program" --help >/dev/full && failed=1

expect 0 '' '' --output-dir made/here show.scc
[ "$(cat made/here/show.txt; echo .)" = "$(printf '%b.' "$timecodes")" ] || failed=1
refused="show.scc: This could not be finished: “$folder/made/here/show.txt” exists already; --force replaces it.\n"
expect 1 '' "$refused" --output-dir made/here show.scc
expect 0 '' '' --force --form line --output-dir made/here/ show.scc
expect 1 '' "show.scc: This could not be finished: “$folder/twice/show.txt” exists already; --force replaces it.\n" \
    --output-dir twice show.scc show.scc
expect 1 '' 'empty.scc/x: cannot be made: Not a directory.\n' --output-dir empty.scc/x show.scc
[ "$(ls made/here twice | tr '\n' ' ')" = 'made/here: show.txt  twice: show.txt ' ] || failed=1

"$program" show.scc >/dev/full 2>err.txt && failed=1
grep -q 'show.scc: .*standard output.* cannot be written' err.txt || failed=1
# A disk that fills up: nothing is left behind, and the old transcript stands.
printf 'header\n' >big.scc
for _ in $(seq 3000); do printf '00:00:01:00\t%s\n' "$hi"; done >>big.scc
echo old >full/big.txt
(ulimit -f 8; "$program" --force --output-dir full big.scc 2>err.txt) && failed=1
grep -q 'big.scc: .*full/big.txt.* cannot be written: File too large' err.txt || failed=1
[ "$(ls -A full) $(cat full/big.txt)" = 'big.txt old' ] || failed=1

"$program" --help | grep -q 'norvane-transcript \[OPTION\]' || failed=1
"$program" --version | grep -qE '^norvane-transcript [0-9.]+$' || failed=1
for wrong in '' '--form verse show.scc' '--clock=sun show.scc' '--bogus show.scc' 'show.scc --form'; do
    # shellcheck disable=SC2086
    "$program" $wrong >out.txt 2>err.txt
    [ $? -eq 2 ] && [ ! -s out.txt ] && [ -s err.txt ] || { echo "no usage error: $wrong"; failed=1; }
done
exit $failed
