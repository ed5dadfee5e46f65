# Completion of norvane-transcript for fish.

complete -c norvane-transcript -f
complete -c norvane-transcript -l form -x -d 'Layout of the captions' -a '
    timecode\t"Start times, empty lines between"
    line\t"One entry a line"
    paragraph\t"All on one line"'
complete -c norvane-transcript -l clock -x -d 'Start times' -a '
    unbuffered\t"Corrected for the buffer"
    scc\t"As the file has them"'
complete -c norvane-transcript -l output-dir -x -a '(__fish_complete_directories)' \
    -d 'Write a text file for each into a folder'
complete -c norvane-transcript -l force -d 'Replace transcripts that exist already'
complete -c norvane-transcript -l help -d 'Print the usage'
complete -c norvane-transcript -l version -d 'Print the version'
complete -c norvane-transcript -a '(__fish_complete_suffix .scc)'
