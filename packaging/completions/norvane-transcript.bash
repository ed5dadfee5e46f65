# Completion of norvane-transcript for bash.

_norvane_transcript() {
    local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} i
    COMPREPLY=()
    for ((i = 1; i < COMP_CWORD; i++)); do
        if [[ ${COMP_WORDS[i]} == -- ]]; then
            _norvane_transcript_files "$word"
            return
        fi
    done
    # Bash takes the equals sign of --form=line for a word of its own.
    if [[ $previous == = ]]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    elif [[ $word == = ]]; then
        word=
    fi
    case $previous in
    --form) mapfile -t COMPREPLY < <(compgen -W 'timecode line paragraph' -- "$word") ;;
    --clock) mapfile -t COMPREPLY < <(compgen -W 'unbuffered scc' -- "$word") ;;
    -o) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
    --stdin-name) _norvane_transcript_files "$word" ;;
    --output-dir)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
        ;;
    --without)
        compopt -o nospace # another kind may follow
        mapfile -t COMPREPLY < <(
            compgen -P "${word%"${word##*,}"}" -W 'header bom tab timecode timecode-form hours frame
                dropped-frame separator order overlap twice word parity single channel field text-mode code
                empty never-shown never-erased columns rows reading-rate shortest longest gap row-length
                upper-rows digits altered' -- "${word##*,}"
        )
        ;;
    --limit)
        compopt -o nospace
        mapfile -t COMPREPLY < <(
            compgen -W 'reading-rate= shortest= longest= gap= row-length= rows= upper-rows' -- "$word"
        )
        ;;
    *)
        if [[ $word == -* ]]; then
            mapfile -t COMPREPLY < <(
                compgen -W '--form --clock --no-heading -o --output-dir --force --stdin-name --explain --find --at
                    --advised --screen --check --each --summary --limit --without --page --open --json --help --version' -- "$word"
            )
        else
            _norvane_transcript_files "$word"
        fi
        ;;
    esac
}

# Folders, and files that end in .scc in either case.
_norvane_transcript_files() {
    compopt -o filenames
    mapfile -t COMPREPLY < <(
        compgen -d -- "$1"
        compgen -f -X '!*.[sS][cC][cC]' -- "$1"
    )
}

complete -F _norvane_transcript norvane-transcript
