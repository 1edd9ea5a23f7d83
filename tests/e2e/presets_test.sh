#!/usr/bin/env bash
# Settings that are kept under a name in one run and printed with in another one.

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"

settings=(-o QXMediaType=Thick -o QXColorMatching=Vivid -o QXRed=3 -o QXDensityAdjustment=-2
    -o sides=two-sided-long-edge -o number-up=2)

save() {
    export XDG_DATA_HOME=$work/data
    run "${printer[@]}" --save-preset "$1" "${@:2}"
}

theSameIsPrintedByNameAsByOptions() {
    save Reports "${settings[@]}"
    expect_status 0
    expect_lines 'The preset “Reports” is kept.'
    print "${settings[@]}"
    expect_printed
    mv "$output" "$work/by-options.ps"
    cp "$work/out" "$work/summary"
    print --preset Reports
    expect_printed
    # But for the moment at which it was made.
    cmp -s <(grep -av '^%%CreationDate' "$output") \
        <(grep -av '^%%CreationDate' "$work/by-options.ps") || fail 'another result'
    expect_equal "$(sed '/^Printed/d' "$work/out")" "$(sed '/^Printed/d' "$work/summary")"
}

theNameThatIsSaidIsTheOneThatIsKept() {
    save '  Monthly   letters '
    expect_lines 'The preset “Monthly letters” is kept.'
    run --list-presets
    expect_equal "$(cut -f 1 "$work/out")" 'Monthly letters'
}

anOptionCountsMore() {
    save Reports "${settings[@]}"
    print --preset Reports -o QXMediaType=Thin
    expect_printed
    expect_code QXMediaType=Thin QXColorMatching=Vivid
}

aNameThatThereIsNotIsRefusedWithThoseThatThereAre() {
    save Reports
    save 'Monthly letters'
    expect_refusal '“Drafts”' Reports 'Monthly letters' -- --preset Drafts
}

whatSetsUpTheDeviceAndCopiesAreNotKept() {
    save Reports -o QXSleepTime=Custom.12 -n 3
    print --preset Reports
    expect_printed
    expect_equal "$(printed_values QXSleepTime "$output")" ''
    expect_lines 'Copies: 1'
}

theyAreListedWithTheirModel() {
    save Reports
    run --list-presets
    expect_status 0
    expect_equal "$(cat "$work/out")" "Reports"$'\t'"$(sed -n 's/^\*ModelName: "\(.*\)"/\1/p' "$ppd")"
}

whatCannotBeSetIsNotKept() {
    save Reports -o QXMediaType=Parchment
    expect_status 1
    expect_said QXMediaType=Parchment 'No preset was kept.'
    run --list-presets
    expect_equal "$(cat "$work/out")" ''
}

aDamagedFileIsNamedAndStaysAsItIs() {
    local file
    save Reports
    file=$(find "$XDG_DATA_HOME" -name '*.json')
    echo '{' >"$file"
    expect_refusal "$file" -- --preset Reports
    save Reports
    expect_status 1
    expect_said "$file"
    expect_equal "$(cat "$file")" '{'
    run --list-presets
    expect_status 1
}

# A file by hand: of what it has and the printer has not each is named, and the rest applies.
whatThePrinterHasNotIsNamed() {
    local file
    save Reports -o QXMediaType=Thick
    file=$(find "$XDG_DATA_HOME" -name '*.json')
    sed -i 's|"QXInputSlot": "[^"]*"|"QXInputSlot": "Cellar"|; s|"options": {|&"Stapler": "Left",|' "$file"
    print --preset Reports
    expect_printed
    expect_said Cellar Stapler
    expect_code QXMediaType=Thick
}

presetsForEverybodyAreUsedOnlyWhereNobodyElseMayWriteThem() {
    local shared=$work/data/corvana-print/presets policy=$work/policy
    save House -o QXMediaType=Thick
    mkdir -p "$policy"
    printf '[all]\npresets = %s\n' "$shared" >"$policy/10.conf"
    chmod 755 "$policy"
    environment=("CORVANA_PRINT_POLICY=$policy" "XDG_DATA_HOME=$work/own")
    print --preset House
    expect_printed
    expect_code QXMediaType=Thick
    run --check-policy
    expect_status 0
    chmod 775 "$shared"
    rm "$output"
    expect_refusal 'House' "$shared" 'others than its owner may write to it' -- --preset House
    run --check-policy
    expect_status 1
    grep -qF "$policy/10.conf:2: $shared: " "$work/out" || fail 'not named by the check'
}

aPresetForEverybodyThatIsNotUsedIsNamedByTheCheck() {
    local shared=$work/data/corvana-print/presets policy=$work/policy file
    save House -o QXMediaType=Thick
    file=$(find "$shared" -name '*.json')
    mkdir -p "$policy"
    printf '[all]\npresets = %s\n' "$shared" >"$policy/10.conf"
    chmod 755 "$policy"
    environment=("CORVANA_PRINT_POLICY=$policy" "XDG_DATA_HOME=$work/own")
    chmod 666 "$file"
    run --check-policy
    expect_status 1
    grep -qF "$policy/10.conf:2: $file: " "$work/out" || fail 'a file that others may write is not named'
    chmod 644 "$file"
    echo '{' >"$file"
    run --check-policy
    expect_status 1
    grep -F "$policy/10.conf:2: " "$work/out" | grep -qF "$file" || fail 'a damaged file is not named'
}

theCheckSaysWhatAppliesAtAPrinterAndFromWhichLine() {
    local policy=$work/policy
    mkdir -p "$policy"
    chmod 755 "$policy"
    printf '[all]\ndefault.Duplex = DuplexNoTumble\nlock.copies = 2\n' >"$policy/10.conf"
    printf '[printer corvana*]\nlock.copies = 3\nlock.QXRed = 99\n[printer other]\nhide = yes\n' \
        >"$policy/20.conf"
    environment=("CORVANA_PRINT_POLICY=$policy")
    run --check-policy
    expect_status 0
    expect_equal "$(tail -n +2 "$work/out")" "[all]
  default.Duplex = DuplexNoTumble  $policy/10.conf:2
  lock.copies = 2  $policy/10.conf:3
[printer corvana*]
  lock.copies = 3  $policy/20.conf:2
  lock.QXRed = 99  $policy/20.conf:3
[printer other]
  hide = yes  $policy/20.conf:5"
    run "${printer[@]}" --check-policy
    expect_status 1
    expect_equal "$(sed -n '3,5p' "$work/out")" "  default.Duplex = DuplexNoTumble  $policy/10.conf:2
  lock.QXRed = 99  $policy/20.conf:3
  lock.copies = 3  $policy/20.conf:2"
    grep -q "^  $policy/20.conf:3: QXRed=99: " "$work/out" || fail 'what is void is not named'
}

aHomeThatCannotBeWrittenIsSaid() {
    : >"$work/data"
    save Reports
    expect_status 1
    expect_said "$work/data" 'No preset was kept.'
}

run_tests
