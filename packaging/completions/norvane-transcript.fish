# Completion of norvane-transcript for fish.

# Folders, and files that end in .scc in either case.
function __norvane_transcript_files
    __fish_complete_path (commandline -ct) | string match -rei '^[^\t]*(?:\.scc|/)(?:\t|$)'
end

complete -c norvane-transcript -f
complete -c norvane-transcript -l form -x -d 'Layout of the captions' -a '
    timecode\t"Start times, empty lines between"
    line\t"One entry per line"
    paragraph\t"All on one line"'
complete -c norvane-transcript -l clock -x -d 'Start times' -a '
    unbuffered\t"Corrected for the buffer"
    scc\t"As in the file"'
complete -c norvane-transcript -l no-heading -d 'Omit the heading'
complete -c norvane-transcript -s o -r -F -d 'Write to a file'
complete -c norvane-transcript -l stdin-name -x -a '(__norvane_transcript_files)' \
    -d 'Name for standard input'
complete -c norvane-transcript -l output-dir -x -a '(__fish_complete_directories)' \
    -d 'Write a text file for each to a folder'
complete -c norvane-transcript -l force -d 'Replace existing transcripts and pages'
complete -c norvane-transcript -l explain -d 'Print what became of each word'
complete -c norvane-transcript -l find -x -d 'Explain lines with a text'
complete -c norvane-transcript -l at -x -d 'Explain what is sent or seen at a time'
complete -c norvane-transcript -l advised -d 'Explain lines with something to correct'
complete -c norvane-transcript -l screen -d 'Show rows as they appear on the screen'
complete -c norvane-transcript -l check -d 'Print what is wrong with files'
complete -c norvane-transcript -l each -d 'Report every finding'
complete -c norvane-transcript -l summary -d 'Print one line per file'
complete -c norvane-transcript -l limit -x -d 'Require more than the standard does' \
    -a 'reading-rate= shortest= longest= gap= row-length= rows= upper-rows'
complete -c norvane-transcript -l page -d 'Make pages for a browser'
complete -c norvane-transcript -l open -d 'Open the page'
complete -c norvane-transcript -l without -x -d 'Omit kinds of findings' \
    -a '(__fish_append , header bom tab timecode timecode-form hours frame dropped-frame separator order overlap twice word parity single channel field text-mode code empty never-shown never-erased columns rows reading-rate shortest longest gap row-length upper-rows digits altered)'
complete -c norvane-transcript -l json -d 'Print one JSON object per line'
complete -c norvane-transcript -s h -l help -d 'Print the usage'
complete -c norvane-transcript -l version -d 'Print the version'
complete -c norvane-transcript -a '(__norvane_transcript_files)'
