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
row 'block copy' 7 "cat $big" "$copy"
row 'timecode form, unbuffered' 7 "$transcript $big" "$copy"
row 'line form, unbuffered' 7 "$transcript --form line $big" "$copy"
row 'paragraph form, unbuffered' 7 "$transcript --form paragraph $big" "$copy"
row "timecode form, file's own clock" 7 "$transcript --clock scc $big" "$copy"
row 'random words, timecode form, unbuffered' 7 "$transcript $random" "$build/bench/getline_copy $random"

printf '\n| 170 KB, whole process | time (cat = 1) | processor time | peak MiB |\n|---|---|---|---|\n'
row 'timecode form, unbuffered' 200 "$transcript $film" "cat $film"

printf '\n| In process | MB of SCC a second | times the plain walk |\n|---|---|---|\n'
"$build/bench/norvane_bench" --benchmark_format=csv --benchmark_filter='captions|file' 2>/dev/null |
    awk -F, '$1 ~ /^"/ { gsub(/"/, "", $1); mb = $6 / 1e6; if (!plain) plain = mb
             printf "| %s | %.1f | %.0f |\n", $1, mb, mb / plain }'

printf '\n| A line of bytes | time for four times the bytes |\n|---|---|\n'
"$build/bench/norvane_bench" --benchmark_format=csv --benchmark_filter='oneLine' 2>/dev/null |
    awk -F, '$1 ~ /^"/ { gsub(/"/, "", $1); split($1, part, "/")
             if (part[2] == last) printf "| %s, %s and %s | %.1f |\n", last, size, part[3], $4 / time
             last = part[2]; size = part[3]; time = $4 }'
