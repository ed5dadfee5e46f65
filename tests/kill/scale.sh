#!/bin/bash
# Runs one watch cycle over 1,000 and one over 10,000 files of 10 KB, and prints files per second,
# their ratio and the memory used. The folders are made where TMPDIR says.
#
# usage: scale.sh BUILD_DIR
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/common.sh"
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
for count in 1000 10000; do
    rm -rf "$root/day"
    prepare "$root/day"
    sccFile 100 | awk -v count="$count" -v folder="$watch" '
        { text = text $0 "\n" }
        END { for (i = 0; i < count; i++) { file = folder "/f" i ".scc"; printf "%s", text >file; close(file) } }'
    "$1/tests/kill/norvane_start" >"$root/out"
    find "$dest" -maxdepth 1 -name '*.txt' | wc -l | grep -qx $count
    echo "$count $(cat "$root/out")"
done | awk '{ rate[NR] = $1 / $2; print $0 ", " int(rate[NR]) " files per second" }
    END { printf "ratio %.2f\n", rate[2] / rate[1] }'
