#!/usr/bin/env bash
# Proves that the bundle has a reference picture for each way of matching colours that a sample
# printer offers, and that the pictures show what the ways do.
#
#   reference_pictures_test.sh BUNDLE
#
# BUNDLE is the folder of the built bundle. Needs rsvg-convert and ImageMagick's convert, compare
# and identify.

# shellcheck source=tests/resources/support.bash
. "$(dirname -- "${BASH_SOURCE[0]}")/support.bash"

if [ $# -ne 1 ]; then
    echo "usage: ${0##*/} BUNDLE" >&2
    exit 2
fi
bundle=$1
maker=$root/resources/pictures/make-reference-pictures
pictures=$root/resources/bundle/pictures
needs rsvg-convert convert compare identify

# The choices of all sample printers, and what is shown where the printer does not match colours.
names() {
    local printer
    {
        echo None
        for printer in "${printers[@]}"; do
            sed -En 's|^\*QXColorMatching ([^/:]+)[/:].*|\1|p' "$(ppd_of "$printer")"
        done
    } | sort -u
}

# is_so CONDITION [NAME=NUMBER]...: whether the condition, in terms of awk, holds
is_so() {
    local condition=$1 variable variables=()
    shift
    for variable in "$@"; do variables+=(-v "$variable"); done
    awk "${variables[@]}" "BEGIN { exit !($condition) }"
}

# difference PICTURE PICTURE: of 255, root mean square over all pixels and components
difference() {
    compare -metric RMSE "$1" "$2" null: 2>&1 | sed -En 's/.*\(([0-9.e-]+)\)$/\1/p' |
        awk '{ print $1 * 255 }'
}

# mean NAME OPERATION...: of what the operations leave of the picture; 0 to 1
mean() {
    local name=$1
    shift
    convert "$pictures/$name.tiff" "$@" -format '%[fx:mean]' info:
}

# stones NAME PICTURE: draws the middles of the neutral stones side by side, brightest first
stones() {
    local x y middles=()
    # Some pixels right of and below the middle, where neither light nor shade lies on a stone.
    while read -r x y; do
        middles+=("(" "$pictures/$1.tiff" -crop "8x4+$x+$y" +repage -scale '1x1!' ")")
    done <<'POSITIONS'
62 576
113 580
164 574
215 581
266 576
317 582
368 575
419 580
470 577
POSITIONS
    convert "${middles[@]}" +append "$2"
}

everyChoiceHasAPictureAndEveryPictureAChoice() {
    local made
    made=$("$maker" --list | sort)
    [ "$made" = "$(names)" ] || fail "pictures: ${made//$'\n'/ }; choices: $(names | paste -s -d ' ')"
}

theBuiltBundleHasThem() {
    local name
    while read -r name; do
        cmp "$pictures/$name.tiff" "$bundle/pictures/$name.tiff" || fail "$name"
    done < <(names)
}

theyAreOfTheScene() {
    "$maker" --check || fail 'not what the scene gives'
}

aPictureInOtherColoursIsFound() {
    # The program looks for the pictures beside its own folder.
    mkdir -p "$work/copy/bundle"
    cp -R "$root/resources/pictures" "$work/copy/"
    cp -R "$pictures" "$work/copy/bundle/"
    cp "$pictures/Photo.tiff" "$work/copy/bundle/pictures/Normal.tiff"
    "$work/copy/pictures/make-reference-pictures" --check 2>"$work/said" && fail 'was not found'
    grep -q '^Normal.tiff ' "$work/said" || fail "said: $(cat "$work/said")"
    [ "$(wc -l <"$work/said")" -eq 1 ] || fail "said more: $(cat "$work/said")"
}

# Less, and a user sees no change; more, and it is another picture.
anyTwoCanBeToldApartAndAreStillTheSameScene() {
    local list one other apart i j
    mapfile -t list < <(names)
    [ "${#list[@]}" -ge 2 ] || fail 'nothing to compare'
    for ((i = 0; i < ${#list[@]}; i++)); do
        for ((j = i + 1; j < ${#list[@]}; j++)); do
            one=${list[i]} other=${list[j]}
            apart=$(difference "$pictures/$one.tiff" "$pictures/$other.tiff")
            is_so 'd + 0 >= 4 && d + 0 <= 60' d="$apart" || fail "$one and $other: ${apart:-unknown}"
        done
    done
}

vividHasStrongerColoursAndNoneWeakerOnes() {
    local operations=(-colorspace HCL -channel G -separate) none normal vivid
    none=$(mean None "${operations[@]}")
    normal=$(mean Normal "${operations[@]}")
    vivid=$(mean Vivid "${operations[@]}")
    is_so 'none + 0.04 < normal && normal + 0.04 < vivid' \
        none="$none" normal="$normal" vivid="$vivid" || fail "$none, $normal, $vivid"
}

photoOpensTheShadowsAndVividDeepensThem() {
    # The brown vessel, its dark side.
    local operations=(-crop 24x80+500+370 +repage -colorspace Gray) normal photo vivid
    normal=$(mean Normal "${operations[@]}")
    photo=$(mean Photo "${operations[@]}")
    vivid=$(mean Vivid "${operations[@]}")
    is_so 'vivid + 0.01 < normal && normal + 0.02 < photo' \
        normal="$normal" photo="$photo" vivid="$vivid" || fail "$vivid, $normal, $photo"
}

greysAreNeutralWhereColoursAreMatched() {
    local name tint
    while read -r name; do
        stones "$name" "$work/stones.png"
        # Of 255, the most that a stone's components differ by.
        tint=$(convert "$work/stones.png" -fx 'max(r,max(g,b))-min(r,min(g,b))' \
            -format '%[fx:maxima*255]' info:)
        case $name in
        None) is_so 't > 2' t="$tint" || fail "$name: $tint" ;;
        *) is_so 't <= 1.5' t="$tint" || fail "$name: $tint" ;;
        esac
    done < <(names)
}

theStonesGoFromNearlyWhiteToNearlyBlackInSteps() {
    local name
    while read -r name; do
        stones "$name" "$work/stones.png"
        convert "$work/stones.png" -colorspace Gray -depth 8 gray:- | od -An -v -tu1 -w1 |
            awk 'NR > 1 && before - $1 < 8 { bad = 1 }
                NR == 1 && $1 < 215 { bad = 1 }
                { before = $1; all = all " " $1 }
                END { if (NR != 9 || before > 40) bad = 1; print all > "/dev/stderr"; exit bad }' \
                2>"$work/said" || fail "$name:$(cat "$work/said")"
    done < <(names)
}

# What lies there cannot show what a slider adds.
littleIsAtTheEndsOfTheRange() {
    local name white black
    while read -r name; do
        white=$(mean "$name" -channel RGB -threshold 99.9%)
        black=$(mean "$name" -negate -channel RGB -threshold 99.9%)
        is_so 'w + b <= 0.03' w="$white" b="$black" || fail "$name: $white and $black"
    done < <(names)
}

run_test everyChoiceHasAPictureAndEveryPictureAChoice
run_test theBuiltBundleHasThem
run_test theyAreOfTheScene
run_test aPictureInOtherColoursIsFound
run_test anyTwoCanBeToldApartAndAreStillTheSameScene
run_test vividHasStrongerColoursAndNoneWeakerOnes
run_test photoOpensTheShadowsAndVividDeepensThem
run_test greysAreNeutralWhereColoursAreMatched
run_test theStonesGoFromNearlyWhiteToNearlyBlackInSteps
run_test littleIsAtTheEndsOfTheRange

[ "$failures" = 0 ]
