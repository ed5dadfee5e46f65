#!/usr/bin/env bash
# Holds the folders to the directions in which they may depend on each other: prints each include that
# goes the wrong way and fails. Takes the root of the sources.
set -u
cd "$1" || exit 1
status=0

# rule FILES ALLOWED: every #include "..." in FILES must match ALLOWED.
rule() {
    local files=$1 allowed=$2 wrong
    wrong=$(grep -nE '^#include "' $files | grep -vE "#include \"($allowed)\"")
    if [ -n "$wrong" ]; then
        printf 'may include only %s:\n%s\n' "$allowed" "$wrong"
        status=1
    fi
}

text='framework/(text|text_array|numbers|failures)\.h'
decode='decode/(accent_pairs|caption|chain_table|letters|crossing_keys|replacement_chain|rows_of_code|table_row|timecode|words)\.h'
rule 'framework/*.h framework/*.cpp' 'framework/[a-z_]+\.h'
rule 'framework/headless/*' 'framework/[a-z_]+\.h|framework/headless/.*'
rule "$(ls decode/*.h decode/*.cpp | grep -vE 'decode_lines|import_scc')" "$text|$decode"
rule 'transcript/clean_up.* transcript/layout.*' "$text|$decode|transcript/(clean_up|layout)\.h"
rule 'folders/*' 'framework/[a-z_]+\.h|shell/(window1|app)\.h|folders/.*'

qt=$(grep -lE '#include <Q' -r --include='*.h' --include='*.cpp' . | grep -vE '^\./(build|framework/qt|tests)/|^\./shell/main.cpp')
if [ -n "$qt" ]; then
    printf 'Qt outside its place:\n%s\n' "$qt"
    status=1
fi
exit $status
