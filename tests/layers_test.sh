#!/usr/bin/env bash
# Holds the sources to the way in which folders build on each other: prints each include that goes the wrong
# way and fails. Then plants one of each kind in a copy and fails unless it finds them. Takes the root of the sources.
set -u
cd "$1" || exit 1

# Rooms, or single files; what they may include of the sources, besides their own room; of other headers: of
# the standard library what touches no file (text), anything but Qt (system), or anything (qt).
table='
framework/text                                          -                                                       text
framework/text/c_locale_numbers.cpp                     -                                                       system
framework/files                                         framework/text                                          system
framework/windows                                       framework/(text|files)                                  text
framework/headless                                      framework/(text|files|windows)                          text
framework/qt                                            framework/(text|files|windows)                          qt
decode                                                  framework/text                                          text
transcript                                              framework/text|decode                                   text
explain/standard                                        framework/text|decode                                   text
explain/walk                                            framework/text|decode|transcript|explain/standard       text
explain/captions                                        framework/text|decode|explain/standard                  text
explain/checks                   framework/text|decode|transcript|explain/(standard|walk|captions)              text
explain/reports                  framework/text|decode|transcript|explain/(standard|walk|captions|checks)       text
shell                                                   framework/(text|files|windows)                          text
shell/start.h                                           framework/qt                                            text
shell/start.cpp shell/main.cpp                          framework/.*                                            qt
web                                                     framework/text|decode|transcript|explain/.*             text
command bench fuzz tests tests/kill tests/page tests/support .*                                                   system
tests/qt                                                .*                                                      qt
'
# Window code, as its target names it, stands in the room of its subject.
window='framework/(text|files|windows)|shell/(window1|app|file_types)\.h|decode|transcript'

window_code() {
    WINDOW=$window awk 'FNR == 1 { folder = FILENAME; sub("[^/]*$", "", folder); inside = 0 }
        /target_sources\(norvane_window/ { inside = 1 }
        inside { for (i = 1; i <= NF; ++i) if (sub(/\.cpp\)?$/, ".cpp", $i)) print folder $i, ENVIRON["WINDOW"], "text" }
        /\)/ { inside = 0 }' ./*/CMakeLists.txt | sed 's|^\./||'
}

# Prints FILE: LINE for the wrong includes below the folder it runs in, and the rooms that have no rule.
wrong_includes() {
    find . -path ./build -prune -o -regex '.*\.\(cpp\|h\)' -printf '%P\0' |
        TABLE="$table$(window_code)" xargs -0 awk '
        BEGIN {
            for (n = split(ENVIRON["TABLE"], lines, "\n"); n > 0; --n)
                for (i = (last = split(lines[n], field, " ")) - 2; i > 0; --i) {
                    sources[field[i]] = field[last - 1]
                    others[field[i]] = field[last]
                }
        }
        FNR == 1 {
            room = FILENAME
            sub("/[^/]*$", "", room)
            rule = FILENAME in sources ? FILENAME : room
            if (!(rule in sources))
                print FILENAME ": has no rule"
        }
        match($0, /^[ \t]*#[ \t]*include[ \t]*["<]/) {
            quoted = substr($0, RLENGTH, 1) == "\""
            name = substr($0, RLENGTH + 1)
            sub("[\">].*", "", name)
            kind = others[rule]
            ours = name ~ "^(" room "|" sources[rule] ")(/[^/]*)?$"
            foreign = kind == "text" && (name !~ /^[a-z_]+$/ || name ~ /^(fstream|filesystem|iostream|cstdio)$/)
            if (quoted ? !ours : foreign || (kind != "qt" && name ~ /^Q/))
                print FILENAME ": " $0
        }' | sort
}

wrong=$(wrong_includes)
[ -z "$wrong" ] || { printf 'May not include:\n%s\n' "$wrong"; exit 1; }

planted='framework/text/text.cpp: #include "decode/caption.h"
framework/files/disk.h: #include "framework/windows/timer.h"
framework/windows/window.h: #include "framework/qt/widgets.h"
framework/headless/look.cpp: #include <QWidget>
framework/qt/arrow.cpp: #include "shell/window1.h"
decode/words.cpp: #include <unistd.h>
decode/letters.cpp: #include <fstream>
decode/caption.cpp: #include "shell/window1.h"
decode/timecode.h: 	#  include "framework/windows/guard.h"
decode/caption.h: #include <framework/files/disk.h>
decode/data_line.cpp: # include "framework/files/disk.h"
decode/data_line.h: #include "../shell/app.h"
decode/import_scc.cpp: #include "shell/menu_bar1.h"
transcript/layout.cpp: #include "explain/standard/codes.h"
transcript/writers.cpp: #include "framework/qt/dialogs.h"
explain/standard/a.cpp: #include "explain/walk/a.h"
explain/captions/a.cpp: #include <QString>
folders/batch_run.cpp: #include "command/options.h"
shell/window1.cpp: #include "decode/words.h"
command/main.cpp: #include <QString>
decode/below/a.cpp: has no rule'
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
find . -path ./build -prune -o -regex '.*\(\.cpp\|\.h\|/CMakeLists.txt\)' -print0 | xargs -0 cp --parents -t "$copy"
cd "$copy" || exit 1
while IFS= read -r line; do
    mkdir -p "$(dirname "${line%%: *}")"
    printf '%s\n' "${line#*: }" >>"${line%%: *}"
done <<<"$planted"
diff <(sort <<<"$planted") <(wrong_includes) && exit
echo '(<: planted and not found)'
exit 1
