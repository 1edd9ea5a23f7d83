# bash completion for corvana-print(1)                             -*- shell-script -*-

# _corvana_print_printers: those that the program would offer with what the line says so far. A server
# that does not answer must not hold up the terminal.
_corvana_print_printers() {
    local word=1 offer=()
    while ((word < COMP_CWORD)); do
        case ${COMP_WORDS[word]} in
        --demo) offer+=(--demo) ;;
        --server | --ppd)
            # The shell may have made the sign "=" a word of its own.
            if [[ ${COMP_WORDS[word + 1]-} == = ]]; then
                offer+=("${COMP_WORDS[word]}" "${COMP_WORDS[word + 2]-}")
            else
                offer+=("${COMP_WORDS[word]}" "${COMP_WORDS[word + 1]-}")
            fi
            ;;
        esac
        word=$((word + 1))
    done
    timeout 2 "${COMP_WORDS[0]}" "${offer[@]}" --list-printers 2>/dev/null </dev/null | cut -f 1
}

# _corvana_print_files [ENDING...]: folders, and files with one of the endings or all files.
_corvana_print_files() {
    local file ending files=()
    # File names may have blanks, so that each is a line.
    while IFS= read -r file; do
        if [[ -d $file || $# -eq 0 ]]; then
            files+=("$file")
            continue
        fi
        for ending; do
            [[ ${file,,} == *."$ending" ]] && files+=("$file") && break
        done
    done < <(compgen -f -- "$current")
    compopt -o filenames 2>/dev/null
    COMPREPLY=("${files[@]}")
}

# _corvana_print_words WORD...: those that begin with what was typed. A word can be the name of a
# printer, so none is expanded.
_corvana_print_words() {
    local word
    for word; do
        [[ $word == "$current"* ]] && COMPREPLY+=("$word")
    done
}

_corvana_print() {
    local current=$2 previous=$3 printers
    COMPREPLY=()
    # --option=VALUE is three words to the shell: the option, the sign, the value.
    if [[ $current == = ]]; then
        current=
    elif [[ $previous == = ]]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    fi

    case $previous in
    -d | --printer)
        mapfile -t printers < <(_corvana_print_printers)
        _corvana_print_words "${printers[@]}"
        return
        ;;
    --on-alert)
        _corvana_print_words print hold refuse
        return
        ;;
    --ppd)
        _corvana_print_files ppd
        return
        ;;
    --output)
        _corvana_print_files
        return
        ;;
    --bundle-root)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -d -- "$current")
        return
        ;;
    --server)
        mapfile -t COMPREPLY < <(compgen -A hostname -- "$current")
        return
        ;;
    # What only the user knows.
    -o | --option | -n | --copies | -t | --title) return ;;
    esac

    if [[ $current == -* ]]; then
        _corvana_print_words -d --printer --server --ppd --demo --list-printers -o --option -n \
            --copies -t --title --output --no-dialog --summary --on-alert --no-wait --bundle-root \
            --check-display -h --help --version
        return
    fi
    _corvana_print_files pdf ps eps txt text png jpg jpeg
}

complete -F _corvana_print corvana-print
