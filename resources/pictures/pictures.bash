# What the scripts share that render the pictures of the plug-in bundle. To be sourced; sets here,
# pictures, mode (writing, checking or listing) and output.

set -euo pipefail
export LC_ALL=C

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
readonly here
readonly pictures=$here/../bundle/pictures

# Renderers smooth edges differently from release to release: a pixel may differ by a tenth, and
# one in a thousand by more. A line that moved by a pixel changes several in a thousand.
readonly most_difference=10%
readonly differing_pixels_in_a_thousand=1

usage() {
    echo "usage: ${0##*/} [--output DIR | --check | --list]" >&2
    exit 2
}

# read_arguments [ARGUMENT]...
read_arguments() {
    mode=writing
    output=$pictures
    case $#,${1-} in
    0,) ;;
    1,--check) mode=checking ;;
    1,--list) mode=listing ;;
    2,--output) output=$2 ;;
    *) usage ;;
    esac
}

needs() {
    local tool
    for tool in "$@"; do
        if ! command -v "$tool" >/dev/null; then
            echo "${0##*/}: $tool is needed and missing" >&2
            exit 1
        fi
    done
}

# points_of DRAWING: its width and height
points_of() {
    sed -En 's/.*<svg [^>]*width="([0-9]+)" height="([0-9]+)".*/\1 \2/p' "$1"
}

# is_sound PICTURE WIDTH HEIGHT DOTS_AN_INCH MOST_BYTES: says what is wrong with its form, if anything
is_sound() {
    local name=${1##*/} form bytes
    if [ ! -f "$1" ]; then
        echo "$name is missing" >&2
        return 1
    fi
    form=$(identify -units PixelsPerInch -format '%w x %h, %x dpi, %[channels], %z bit, %C' "$1")
    if [ "$form" != "$2 x $3, $4 dpi, srgb, 8 bit, Zip" ]; then
        echo "$name has another form: $form" >&2
        return 1
    fi
    bytes=$(stat -c %s "$1")
    if [ "$bytes" -gt "$5" ]; then
        echo "$name has $bytes bytes, more than $5" >&2
        return 1
    fi
}

# shows_the_same PICTURE RENDERED: says how many pixels differ, if they are too many
shows_the_same() {
    local name=${1##*/} differing pixels
    differing=$(compare -metric AE -fuzz "$most_difference" "$2" "$1" null: 2>&1) || true
    case $differing in
    '' | *[!0-9]*)
        echo "$name cannot be compared: $differing" >&2
        return 1
        ;;
    esac
    pixels=$(identify -format '%[fx:w*h]' "$1")
    if [ $((differing * 1000)) -gt $((pixels * differing_pixels_in_a_thousand)) ]; then
        echo "$name is not what its drawing shows: $differing pixels differ" >&2
        return 1
    fi
}
