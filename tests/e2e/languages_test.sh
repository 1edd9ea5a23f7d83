#!/usr/bin/env bash
# The summary and the messages in every language, one language throughout.

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"

# Sets of choices that have every choice of the options with words in it at least once.
choice_sets() {
    cat <<'TABLE'
Duplex=DuplexNoTumble QXInputSlot=Tray1 QXMediaType=Thin QXMonoColor=Color TonerSaveMode=ON
Duplex=DuplexTumble QXInputSlot=MPTray QXMediaType=Thick QXMonoColor=Mono QXOutput=FAX QXQuietMode=OFF
QXInputSlot=Tray2 QXMediaType=Thicker QXImproveOutput=QXFixIntensity QXQuietMode=ON QXSkipBlank=ON
QXInputSlot=Manual QXMediaType=Label QXImproveOutput=QXLessPaperCurl QXReduceGhost=ON QXSlowDrying=ON
QXMediaType=Glossy QXColorMatching=Vivid QXEnhanceBlkPrt=ON PageSize=Custom.100x200mm QXSleepTime=Custom.9
QXMediaType=Env QXColorMatching=None QXGray=ON QXDensityAdjustment=3 QXRed=-4 PageSize=EnvDL
QXMediaType=EnvThin AP_ColorMatchingMode=AP_ApplicationColorMatching PageSize=Executive
QXMediaType=EnvThick PageSize=EnvMonarch
TABLE
}

# What stays as it is in every language: names of models, paper sizes and units. Chinese knows the
# American paper by its English names.
without_names() {
    sed -E -e 's/Corvana CL-550 Color//' -e 's/\b(A4|A5|B5|JIS|DL|C5|Monarch|Executive|dpi|mm|x|mmx)\b//g' "$@"
}

# expect_only_its_own_words FILE: no Latin letters but those of names.
expect_only_its_own_words() {
    local foreign
    foreign=$(without_names "$1" | grep -a '[A-Za-z]')
    [ -z "$foreign" ] || fail "in another language: $foreign"
}

summary_in() {
    local set
    while IFS= read -r set; do
        run "${printer[@]}" --summary -o "$set"
        expect_status 0
        expect_only_its_own_words "$work/out"
        [ "$(wc -l <"$work/out")" -ge 18 ] || fail 'the summary is incomplete'
        # An envelope paper comes with the instructions for its medium, whoever names another medium without a word.
        expect_only_its_own_words "$work/err"
        case $set in
        *QXMediaType=Env\ *PageSize=Env*) [ "$(wc -l <"$work/err")" -ge 4 ] || fail 'the instructions are missing' ;;
        *) expect_equal "$(cat "$work/err")" '' ;;
        esac
    done < <(choice_sets; echo "$1")
}

theJapaneseSummaryIsJapaneseThroughout() {
    in_language ja_JP
    summary_in 'QXMediaType=PostCard PageSize=Postcard'
}

theChineseSummaryIsChineseThroughout() {
    in_language zh_CN
    summary_in 'QXMediaType=BOND PageSize=B5'
}

# The same job says the same things in the same order, in words of the language.
theSummaryIsToldInThreeLanguages() {
    local choices=(-n 2 -o 'QXMediaType=Thick QXMonoColor=Color QXGray=ON Duplex=DuplexNoTumble')
    local lines
    print "${choices[@]}"
    expect_printed
    expect_lines 'Copies: 2, collated' 'Two-Sided Printing: Long-Edge Binding' 'Media Type: Thick Paper' \
        'Color Mode: Color' 'Print Gray with Black Toner Only: On' "Printed to $output"
    lines=$(wc -l <"$work/out")
    in_language ja_JP
    print "${choices[@]}"
    expect_printed
    expect_lines '部数: 2（部単位）' '両面印刷: 長辺とじ' '用紙の種類: 厚紙' 'カラーモード: カラー' \
        'グレーを黒トナーのみで印刷: する' "$output に出力しました"
    expect_equal "$(wc -l <"$work/out")" "$lines"
    in_language zh_CN
    print "${choices[@]}"
    expect_printed
    expect_lines '份数：2（逐份打印）' '介质类型：厚纸' '灰色仅用黑色墨粉打印：开' "已打印到 $output"
    expect_equal "$(wc -l <"$work/out")" "$lines"
}

# One line of the dialog, one of a PPD's option and one of a panel in each of the other languages,
# some of them for a region that reads the texts of another one.
expected_lines() {
    cat <<'TABLE'
de_AT|Exemplare: 2, sortiert|Papiertyp: Dickes Papier|Toner sparen: Aus
fr_CA|Exemplaires : 2, assemblés|Type de papier : Papier épais|Économie de toner : Désactivé
es_MX|Copias: 2, intercaladas|Tipo de papel: Papel grueso|Ahorro de tóner: Desactivado
it_CH|Copie: 2, fascicolate|Tipo di carta: Carta spessa|Risparmio toner: Non attivo
pt_BR|Cópias: 2, agrupadas|Tipo de papel: Papel grosso|Economia de toner: Desativado
pt_PT|Cópias: 2, agrupadas|Tipo de papel: Papel grosso|Economia de toner: Desativado
ko_KR|부수: 2(한 부씩)|용지 종류: 두꺼운 용지|토너 절약: 끄기
zh_TW|份數：2（自動分頁）|紙張類型：厚紙|節省碳粉：關閉
zh_HK|份數：2（自動分頁）|紙張類型：厚紙|節省碳粉：關閉
TABLE
}

theSummaryIsToldInTheOtherLanguages() {
    local choices=(-n 2 -o 'QXMediaType=Thick Duplex=DuplexNoTumble') language first second third
    local lines
    run "${printer[@]}" --summary "${choices[@]}"
    lines=$(wc -l <"$work/out")
    # What a summary calls a setting in English, but for words that other languages use, too.
    sed -n 's/: .*//p' "$work/out" | grep ' ' >"$work/english"
    [ "$(wc -l <"$work/english")" -ge 12 ] || fail 'the English summary is incomplete'
    while IFS='|' read -r language first second third; do
        in_language "$language"
        run "${printer[@]}" --summary "${choices[@]}"
        expect_status 0
        expect_lines "$first" "$second" "$third"
        expect_equal "$(wc -l <"$work/out")" "$lines"
        # As the language joins a name and its value.
        ! sed -nE 's/( ?: |：).*//p' "$work/out" | grep -xFf "$work/english" || fail "English in $language"
    done < <(expected_lines)
}

refusalsAreToldInTheUsersLanguage() {
    in_language ja_JP
    expect_refusal QXMediaType=Silk 'この値は指定できません' '何も印刷されませんでした' -- -o QXMediaType=Silk
    expect_refusal QXMediaType=Glossy Duplex=DuplexTumble -- -o 'QXMediaType=Glossy Duplex=DuplexTumble'
    ! grep -q combined "$work/err" || fail 'the conflict is told in English'
    document=$work/missing.pdf
    expect_refusal 'ファイルがありません' --
    in_language zh_CN
    expect_refusal '没有此文件' --
    document=$sample
    expect_refusal '不允许使用此值' '没有打印任何内容' -- -o QXMediaType=Silk
}

# Where there are no texts in the user's language.
otherLanguagesGetEnglish() {
    local language
    for language in sv_SE nb_NO xx_XX; do
        in_language "$language"
        run "${printer[@]}" --summary
        expect_status 0
        expect_lines 'Copies: 1' 'Paper Source: Auto Select' 'Toner Save: Off'
    done
}

# The program's texts come from Qt, those of the PPD from CUPS; both look at these.
theLanguageOfMessagesCountsBeforeTheOthers() {
    environment=(--unset=LC_ALL LANG=zh_CN.UTF-8 LC_MESSAGES=ja_JP.UTF-8)
    run "${printer[@]}" --summary
    expect_lines '部数: 1' '給紙方法: 自動選択' 'トナー節約: しない'
    environment=(LC_ALL=ja_JP.UTF-8 LANG=zh_CN.UTF-8)
    run "${printer[@]}" --summary
    expect_lines '部数: 1' '給紙方法: 自動選択' 'トナー節約: しない'
}

# The data for the printer depend on choices, never on words.
thePrintDataAreTheSameInEveryLanguage() {
    local language
    print -o 'QXMediaType=Thick QXGray=ON QXRed=3'
    expect_printed
    printed_codes "$output" >"$work/codes"
    [ -s "$work/codes" ] || fail 'the printer is told nothing'
    for language in ja_JP zh_CN de_DE fr_FR es_ES it_IT pt_BR ko_KR zh_TW; do
        in_language "$language"
        print -o 'QXMediaType=Thick QXGray=ON QXRed=3'
        expect_printed
        expect_equal "$(printed_codes "$output")" "$(cat "$work/codes")"
    done
}

run_tests
