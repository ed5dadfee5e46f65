# What the scripts share: a watch folder, a destination, and preferences that have the watch on.

prepare() { # FOLDER: makes the three, and a program that is started from there finds them
    watch=$1/watch dest=$1/dest
    mkdir -p "$watch" "$dest" "$1/config"
    export XDG_CONFIG_HOME=$1/config
    preferences=$1/config/com.bellwick.norvane.prefs
    printf '%s\n' true true false true false 15 "$watch/" "$dest/" true >"$preferences"
}

sccFile() { # LINES: an SCC file of so many data lines, about 100 bytes each
    awk -v lines="$1" 'BEGIN {
        print "Scenarist_SCC V1.0"
        for (i = 0; i < lines; i++)
            printf "\n%02d:%02d:%02d:%02d\t9420 9420 9470 9470 c8e9 a180 4c61 c8e9 a180 c8e9 a180 " \
                   "4c61 c8e9 a180 942f 942f\n", i / 3600, i / 60 % 60, i % 60, i % 30
    }'
}
