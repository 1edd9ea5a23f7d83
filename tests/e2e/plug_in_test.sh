#!/usr/bin/env bash
# Plug-in bundles that are damaged or missing, and printers that are none of the plug-in's: a job is
# printed with the rules of all its panels or not at all.

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"

# A copy of the bundle, to be damaged; $damaged is its folder.
copy_bundle() {
    bundles=$work/plugins
    damaged=$bundles/$bundle
    mkdir -p "$bundles"
    cp -R "$bundle_root/$bundle" "$bundles"
}

aCopiedBundleWorks() {
    copy_bundle
    print -o QXResolution=1200dpi
    expect_printed
    expect_lines 'Media Type: Plain Paper' 'Color Matching: Normal'
}

aMissingBundleIsNamedWithTheFoldersThatWereSearched() {
    bundles=$work/nowhere
    expect_refusal "$bundle" "$work/nowhere" --
}

aMalformedInterfaceFileIsNamed() {
    local file
    for file in QXLaserPrintSetting QXLaserColorSetting; do
        copy_bundle
        head -n 20 "$bundle_root/$bundle/interface/$file.ui" >"$damaged/interface/$file.ui"
        expect_refusal "$damaged/interface/$file.ui" 'Premature end' --
    done
}

aMissingInterfaceFileIsToldOf() {
    copy_bundle
    rm "$damaged/interface/QXLaserColorSetting.ui"
    expect_refusal QXLaserColorSetting --
}

anUnknownControlClassIsNamedWithItsLine() {
    local line
    copy_bundle
    sed -i 's/class="QCheckBox" name="grayCheckBox"/class="GlitterBox" name="grayCheckBox"/' \
        "$damaged/interface/QXLaserColorSetting.ui"
    line=$(grep -n GlitterBox "$damaged/interface/QXLaserColorSetting.ui")
    expect_refusal "QXLaserColorSetting.ui:${line%%:*}:" GlitterBox --
}

anUnknownActionIsNamedWithItsLine() {
    copy_bundle
    sed -i '0,/requestNewOutputBin/s//throwGlitter/' "$damaged/interface/QXLaserPrintSetting.ui"
    expect_refusal 'QXLaserPrintSetting.ui:' throwGlitter --
}

anInformationDictionaryThatIsNotJsonIsToldWithItsLine() {
    copy_bundle
    printf '{\n    "CFBundleName": "x",\n    glitter\n}\n' >"$damaged/info.json"
    expect_refusal "$damaged/info.json:3:" JSON --
    echo '[ "a list" ]' >"$damaged/info.json"
    expect_refusal "$damaged/info.json:" object --
    : >"$damaged/info.json"
    expect_refusal "$damaged/info.json:" --
}

anInformationDictionaryWithoutAnIndispensableKeyIsToldTheKey() {
    local key
    for key in CFBundleName CFBundleIdentifier CFBundleExecutable; do
        copy_bundle
        sed -i "/\"$key\"/d" "$bundles/$bundle/info.json"
        expect_refusal "$damaged/info.json" "$key" --
        sed "s/\"$key\": \"[^\"]*\"/\"$key\": 7/" "$bundle_root/$bundle/info.json" >"$damaged/info.json"
        expect_refusal "$damaged/info.json" "$key" --
    done
}

aMissingInformationDictionaryIsNamed() {
    copy_bundle
    rm "$damaged/info.json"
    expect_refusal "$damaged/info.json" 'No such file' --
}

aModuleThatIsMissingOrNoneIsNamed() {
    copy_bundle
    echo 'no module' >"$damaged/module/libQXCLQuality13PDE.so"
    expect_refusal "$damaged/module/libQXCLQuality13PDE.so" --
    rm "$damaged/module/libQXCLQuality13PDE.so"
    expect_refusal libQXCLQuality13PDE.so missing --
}

# Code of others would run with the user's rights.
aModuleThatEverybodyCanWriteIsNotLoaded() {
    copy_bundle
    chmod o+w "$damaged/module/libQXCLQuality13PDE.so"
    expect_refusal "$damaged/module/libQXCLQuality13PDE.so" everybody --
    chmod o-w "$damaged/module/libQXCLQuality13PDE.so"
    chmod o+w "$damaged/module"
    expect_refusal "$damaged/module" everybody --
}

aModuleOutsideItsBundleIsNotLoaded() {
    copy_bundle
    mv "$damaged/module/libQXCLQuality13PDE.so" "$work/elsewhere.so"
    ln -s "$work/elsewhere.so" "$damaged/module/libQXCLQuality13PDE.so"
    expect_refusal "$work/elsewhere.so" "$damaged" --
}

# Only the texts are missing then; the rules are the same.
aMissingStringTableIsNoReasonNotToPrint() {
    copy_bundle
    rm "$damaged"/strings/*.qm
    print -o QXResolution=1200dpi -o QXGray=ON
    expect_printed
    expect_code QXResolution=1200dpi QXGray=ON
}

# A printer of another kind

aPrinterThatThePlugInDoesNotKnowHasNoPanels() {
    changed_ppd '/QXPrintDialogExtension/d; /QXColorMatching/d; s/^\*CloseUI: \*QXColorMatching//'
    environment+=("QT_LOGGING_RULES=corvana.*=true")
    print -o QXMediaType=Thick
    expect_printed
    expect_code QXMediaType=Thick
    expect_said 'has no panels' "$bundle" QXColorMatching
    sed -i '$d' "$work/out"
    expect_equal "$(sed 's/:.*//' "$work/out" | tr '\n' ';')" \
        'Copies;Sheets;Two-Sided Printing;Paper Size;Output To;Colors Matched By;Media Type;'
    expect_lines 'Media Type: Thick Paper' # of the other options what is not at its default
    # The panels would have refused saving toner at this resolution.
    print -o QXResolution=1200dpi -o TonerSaveMode=ON
    expect_printed
    expect_code QXResolution=1200dpi TonerSaveMode=ON
}

# By its options, though its PPD does not name the bundle.
aPrinterWithTheIdentifyingOptionsHasThePanels() {
    changed_ppd '/QXPrintDialogExtension/d'
    environment+=("QT_LOGGING_RULES=corvana.*=true")
    print
    expect_printed
    expect_said 'has panels' QXColorMatching
    expect_lines 'Media Type: Plain Paper'
}

run_tests
