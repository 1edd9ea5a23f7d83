# bash completion for corvana-print(1)                             -*- shell-script -*-

# _corvana_print_printers: those that the program would offer with what the line says so far. A server
# that does not answer must not hold up the terminal.
_corvana_print_printers() {
    local word=1 offer=()
    while ((word < COMP_CWORD)); do
        case ${COMP_WORDS[word]} in
        --demo) offer+=(--demo) ;;
        -h | --server | --ppd)
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

# _corvana_print_presets: the names of presets, which may have blanks.
_corvana_print_presets() {
    local preset presets=()
    while IFS=$'\t' read -r preset _; do
        [[ $preset != "$current"* ]] || presets+=("$(printf '%q' "$preset")")
    done < <(timeout 2 "${COMP_WORDS[0]}" --list-presets 2>/dev/null </dev/null)
    COMPREPLY=("${presets[@]}")
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

# _corvana_print_keywords: the job attributes that -o takes. Those of a printer stand in its PPD.
_corvana_print_keywords() {
    local keyword
    compopt -o nospace 2>/dev/null
    for keyword in media sides sides-by-hand put-back copies landscape number-up number-up-layout booklet repeat \
        page-border page-ranges page-set orientation-requested fit-to-page print-scaling scaling natural-scaling ppi \
        position mirror page-left page-right page-top page-bottom cpi lpi columns wrap prettyprint \
        collate multiple-document-handling outputorder job-hold-until job-priority job-sheets \
        job-billing job-cancel-after print-color-mode print-quality printer-resolution output-bin \
        finishings media-source media-type media-col raw; do
        [[ $keyword == "$current"* ]] && COMPREPLY+=("$keyword=")
    done
}

# _corvana_print_values KEYWORD: what such an attribute can be, where that is a matter of words.
_corvana_print_values() {
    case $1 in
    media) _corvana_print_words A4 A5 Letter Legal ;;
    sides) _corvana_print_words one-sided two-sided-long-edge two-sided-short-edge ;;
    sides-by-hand) _corvana_print_words long-edge short-edge no ;;
    put-back) _corvana_print_words face-down face-up ;;
    number-up) _corvana_print_words 1 2 4 6 9 16 ;;
    booklet) _corvana_print_words left right no ;;
    repeat) _corvana_print_words 1 2 4 6 9 16 ;;
    number-up-layout) _corvana_print_words btlr btrl lrbt lrtb rlbt rltb tblr tbrl ;;
    page-border) _corvana_print_words none single single-thick double double-thick ;;
    page-set) _corvana_print_words all even odd ;;
    orientation-requested) _corvana_print_words 3 4 5 6 ;;
    print-scaling) _corvana_print_words auto auto-fit fill fit none ;;
    position)
        _corvana_print_words center top left right top-left top-right bottom bottom-left \
            bottom-right
        ;;
    outputorder) _corvana_print_words normal reverse ;;
    job-hold-until)
        _corvana_print_words no-hold indefinite day-time evening night second-shift third-shift \
            weekend
        ;;
    multiple-document-handling)
        _corvana_print_words separate-documents-collated-copies \
            separate-documents-uncollated-copies
        ;;
    print-color-mode) _corvana_print_words auto color monochrome ;;
    landscape | fit-to-page | mirror | wrap | prettyprint | collate | raw)
        _corvana_print_words true false
        ;;
    esac
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
    # "-o sides=" is a fourth word in front of these.
    local sign=$((COMP_CWORD - 1))
    [[ $2 == = ]] && sign=$COMP_CWORD
    if ((sign >= 3)) && [[ ${COMP_WORDS[sign]} == = && ${COMP_WORDS[sign - 2]} == @(-o|--option) ]]; then
        _corvana_print_values "${COMP_WORDS[sign - 1]}"
        return
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
    --preset | --save-preset)
        _corvana_print_presets
        return
        ;;
    --format)
        _corvana_print_words json text
        return
        ;;
    -H)
        _corvana_print_words hold immediate day-time evening night second-shift third-shift weekend
        return
        ;;
    -o | --option)
        _corvana_print_keywords
        return
        ;;
    -U)
        mapfile -t COMPREPLY < <(compgen -u -- "$current")
        return
        ;;
    --ppd)
        _corvana_print_files ppd
        return
        ;;
    --output | --password-file | --document-password-file)
        _corvana_print_files
        return
        ;;
    --bundle-root)
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -d -- "$current")
        return
        ;;
    -h | --server)
        mapfile -t COMPREPLY < <(compgen -A hostname -- "$current")
        return
        ;;
    # What only the user knows.
    -n | --copies | -t | --title | -P | -q | --wait | --password-fd | --save-instance | \
        --also-on) return ;;
    esac

    if [[ $current == -* ]]; then
        _corvana_print_words -d --printer -h --server -E -U --password-file --password-fd \
            --document-password-file --ppd --demo --list-printers \
            --preset --list-presets --save-preset --save-instance --also-on --check-policy --yes \
            -o --option -n --copies -P -q -H -t --title --output \
            --no-dialog --summary --on-alert --wait --no-wait --format -s -c -m --bundle-root \
            --check-display --help --version
        return
    fi
    _corvana_print_files pdf ps eps txt text png jpg jpeg
}

complete -F _corvana_print corvana-print
