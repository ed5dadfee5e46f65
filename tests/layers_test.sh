#!/usr/bin/env bash
# Holds the sources to the way in which folders build on each other: prints each include that goes
# the wrong way and fails. Takes the root of the sources.
set -u
cd "$1" || exit 1
status=0

# may FILES RULE: every #include "..." in FILES must begin with one of the paths of RULE.
may() {
    local files=$1 rule=$2 wrong
    [ -n "$files" ] || return
    wrong=$(grep -nE '^#include "' $files | grep -vE "#include \"($rule)")
    if [ -n "$wrong" ]; then
        printf 'may include only %s:\n%s\n' "$rule" "$wrong"
        status=1
    fi
}

# Window code is what knows the window.
text_code() { grep -LE '#include "(shell|framework/windows)/' $1; }
window_code() { grep -lE '#include "(shell|framework/windows)/' $1; }

may 'framework/text/*.h framework/text/*.cpp' 'framework/text/'
may 'framework/files/*.h framework/files/*.cpp' 'framework/(text|files)/'
may 'framework/windows/*.h framework/windows/*.cpp' 'framework/(text|files|windows)/'
may 'framework/headless/*.h framework/headless/*.cpp' 'framework/(text|files|windows|headless)/'
may 'framework/qt/*.h framework/qt/*.cpp' 'framework/(text|files|windows|qt)/'
may "$(ls shell/*.h shell/*.cpp)" 'framework/|shell/'
may "$(text_code 'decode/*')" 'framework/text/|decode/'
may "$(text_code 'transcript/*')" 'framework/text/|decode/|transcript/'
explain='framework/text/|decode/|transcript/'
for room in standard walk captions checks reports; do # each builds on those before it
    explain="$explain|explain/$room/"
    may "$(ls explain/$room/*.h explain/$room/*.cpp 2>/dev/null)" "$explain"
done
may "$(window_code 'decode/*')" 'framework/(text|files|windows)/|shell/(window1|app|file_types)\.h|decode/'
may "$(window_code 'transcript/*')" 'framework/(text|files|windows)/|shell/(window1|app)\.h|decode/|transcript/'
may "$(ls folders/*.cpp)" 'framework/(text|files|windows)/|shell/(window1|app)\.h|folders/'

qt=$(grep -lE '#include <Q' -r --include='*.h' --include='*.cpp' framework shell decode transcript explain folders command bench fuzz |
    grep -vE '^framework/qt/|^shell/(main|start).cpp')
if [ -n "$qt" ]; then
    printf 'Qt outside its place:\n%s\n' "$qt"
    status=1
fi
exit $status
