#!/usr/bin/env bash
# Prints the tables of README.md, measured here and now, on input of its own making. Takes a build folder of
# the release preset; wants about 500 MB of room for temporary files.
set -eu
build=$(cd "${1:-build/release}" && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
transcript=$build/command/norvane-transcript
big=$folder/big.scc
film=$folder/film.scc
random=$folder/random.scc
"$build/bench/make_scc" film 100000000 >"$big"
"$build/bench/make_scc" film 170000 >"$film"
"$build/bench/make_scc" random 100000000 >"$random"

# row NAME RUNS COMMAND BASE: the name, the ratios and the peak memory as a row.
row() {
    local wall processor peak
    read -r wall processor peak <<<"$("$build/bench/compare" "$2" "$folder/out" "$3" "$4")"
    printf '| %s | %s | %s | %s |\n' "$1" "$wall" "$processor" "$peak"
}

copy="$build/bench/getline_copy $big"
printf '| 100 MB, whole process, to a file | time (line by line copy = 1) | processor time | peak MiB |\n|---|---|---|---|\n'
row 'block copy' 21 "cat $big" "$copy"
row 'timecode form, unbuffered' 21 "$transcript $big" "$copy"
row 'line form, unbuffered' 21 "$transcript --form line $big" "$copy"
row 'paragraph form, unbuffered' 21 "$transcript --form paragraph $big" "$copy"
row "timecode form, file's own clock" 21 "$transcript --clock scc $big" "$copy"
row 'random words, timecode form, unbuffered' 21 "$transcript $random" "$build/bench/getline_copy $random"

printf '\n| 170 KB, whole process | time (cat = 1) | processor time | peak MiB |\n|---|---|---|---|\n'
row 'timecode form, unbuffered' 200 "$transcript $film" "cat $film"

printf '\n| In process | MB of SCC a second | times the plain walk |\n|---|---|---|\n'
"$build/bench/norvane_bench" --benchmark_format=csv --benchmark_filter='captions|file' 2>/dev/null |
    awk -F, '$1 ~ /^"/ { gsub(/"/, "", $1); mb = $6 / 1e6; if (!plain) plain = mb
             printf "| %s | %.1f | %.0f |\n", $1, mb, mb / plain }'

# oneLine PIECES: a file of one line of as many pieces of 25 bytes.
oneLine() {
    printf 'Scenarist_SCC V1.0\n\n00:00:01:00\t'
    yes '9420 9470 c8e5 ecec ef80' | head -n "$1" | tr '\n' ' '
}
oneLine 400000 >"$folder/10.scc"
oneLine 1600000 >"$folder/40.scc"
read -r wall _ <<<"$("$build/bench/compare" 15 "$folder/out" "$transcript $folder/40.scc" "$transcript $folder/10.scc")"

printf '\n| A line of bytes | time for four times the bytes |\n|---|---|\n'
printf '| ordinaryWords, 10000000 and 40000000, whole process | %s |\n' "$wall"
"$build/bench/norvane_bench" --benchmark_format=csv --benchmark_filter='oneLine' 2>/dev/null |
    awk -F, '$1 ~ /^"/ { gsub(/"/, "", $1); split($1, part, "/")
             if (part[2] == last) printf "| %s, %s and %s | %.1f |\n", last, size, part[3], $4 / time
             last = part[2]; size = part[3]; time = $4 }'
