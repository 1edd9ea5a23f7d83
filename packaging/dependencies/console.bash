# shellcheck shell=bash
# What the scripts say to a person. Everything goes to the error stream, so that the output of
# the program that ./run starts can be piped.

# say TEXT...: one line for each argument.
say() {
    printf '%s\n' "$@" >&2
}

# A terminal is needed in both directions: to be seen and to answer.
can_ask() {
    [ -t 0 ] && [ -t 2 ]
}

# ask QUESTION: true for yes, which an empty answer means too; an ended input means no.
ask() {
    local answer
    printf '%s [Y/n] ' "$1" >&2
    if ! read -r answer; then
        printf '\n' >&2
        return 1
    fi
    case $answer in
    '' | [Yy] | [Yy][Ee][Ss]) return 0 ;;
    *) return 1 ;;
    esac
}

# command_line WORD...: the words as one line that can be pasted into a shell.
command_line() {
    local word line=
    for word in "$@"; do
        case $word in
        *[!A-Za-z0-9_./:=+,@%-]* | '') word=$(printf '%q' "$word") ;;
        esac
        line+="${line:+ }$word"
    done
    printf '%s' "$line"
}
