#!/usr/bin/env bash
# The dialog's texts, the panels' and those of the PPD come by different ways; whatever the user
# asks for, they speak one language.
# shellcheck disable=SC2034 # lines of a summary are used by their names

# shellcheck source=tests/e2e/support.bash
. "$(dirname "${BASH_SOURCE[0]}")/support.bash"

# Lines of a summary: one of the dialog, one of a PPD's option, one of a panel.
english=('Copies: 1' 'Paper Source: Auto Select' 'Toner Save: Off')
japanese=('部数: 1' '給紙方法: 自動選択' 'トナー節約: しない')
chinese=('份数：1' '纸张来源：自动选择' '节省墨粉：关')
german=('Exemplare: 1' 'Papierquelle: Automatische Auswahl' 'Toner sparen: Aus')
portuguese=('Cópias: 1' 'Origem do papel: Seleção automática' 'Economia de toner: Desativado')
traditional=('份數：1' '紙張來源：自動選擇' '節省碳粉：關閉')

# expect_language NAME SETTING...: what is said in an environment with nothing but these settings.
expect_language() {
    local -n lines=$1
    shift
    environment=(--unset=LC_ALL "$@")
    run "${printer[@]}" --summary
    expect_status 0
    expect_equal "$(cat "$work/err")" ''
    grep -qxF -- "${lines[0]}" "$work/out" || printf '    with %s\n' "$*"
    expect_lines "${lines[@]}"
}

theListOfLanguagesCountsForAllTexts() {
    expect_language japanese LANG=en_US.UTF-8 LANGUAGE=ja
    expect_language japanese LC_ALL=zh_CN.UTF-8 LANGUAGE=ja_JP:en
    expect_language chinese LANG=ja_JP.UTF-8 LANGUAGE=zh_CN:ja
    expect_language chinese LC_MESSAGES=en_US.UTF-8 LANG=ja_JP.UTF-8 LANGUAGE=zh_CN
    expect_language english LANG=ja_JP.UTF-8 LANGUAGE=en
    expect_language english LC_ALL=zh_CN.UTF-8 LANGUAGE=en_GB:zh_CN
}

theFirstLanguageWithTextsIsTaken() {
    expect_language japanese LANG=sv_SE.UTF-8 LANGUAGE=sv:nb:ja:zh_CN
    expect_language chinese LANG=sv_SE.UTF-8 LANGUAGE=sv:zh_CN
    expect_language german LANG=ja_JP.UTF-8 LANGUAGE=sv:de:fr
    expect_language english LANG=ja_JP.UTF-8 LANGUAGE=sv
    expect_language english LANG=sv_SE.UTF-8 LANGUAGE=sv:en:ja
}

# LC_ALL overrules LC_MESSAGES and LANG for everybody.
theVariablesOverruleEachOtherForAllTextsAlike() {
    expect_language japanese LC_ALL=ja_JP.UTF-8 LC_MESSAGES=zh_CN.UTF-8 LANG=en_US.UTF-8
    expect_language chinese LC_ALL= LC_MESSAGES=zh_CN.UTF-8 LANG=ja_JP.UTF-8
    expect_language english LC_ALL=en_US.UTF-8 LC_MESSAGES=ja_JP.UTF-8
}

whoWantsNoLanguageGetsEnglish() {
    expect_language english LC_ALL=C LANGUAGE=ja
    expect_language english LANG=C LANGUAGE=ja:zh_CN
    expect_language english LANGUAGE=ja
    expect_language english
}

# C.UTF-8 says how characters are written, and nothing of a language.
aLanguageCountsBesideALocaleThatNamesNone() {
    expect_language japanese LC_ALL=C.UTF-8 LANGUAGE=ja
    expect_language chinese LANG=C.UTF-8 LANGUAGE=zh_CN
    expect_language english LC_ALL=C.UTF-8
}

relatedRegionsReadTheSameLanguage() {
    expect_language chinese LANG=zh_SG.UTF-8
    expect_language japanese LANG=ja.UTF-8
    expect_language traditional LANG=zh_HK.UTF-8
    expect_language traditional LANG=en_US.UTF-8 LANGUAGE=zh_Hant
    expect_language chinese LANG=en_US.UTF-8 LANGUAGE=zh_Hans
    expect_language german LANG=de_AT.UTF-8
    expect_language portuguese LANG=pt_PT.UTF-8
}

# A PPD may know languages that the dialog does not.
aLanguageOfThePpdAloneIsNotMixedIn() {
    changed_ppd '/^\*cupsLanguages:/s/"$/ sv"/; /^\*ja.Translation QXInputSlot/{
        i *sv.Translation QXInputSlot/Papperskälla: ""
        i *sv.QXInputSlot Auto/Automatisk: ""
    }'
    expect_language english LANG=sv_SE.UTF-8
    expect_language japanese LANG=sv_SE.UTF-8 LANGUAGE=sv:ja
}

refusalsSpeakTheLanguageOfTheSummary() {
    environment=(--unset=LC_ALL LANG=en_US.UTF-8 LANGUAGE=ja)
    expect_refusal 'この値は指定できません' '何も印刷されませんでした' -- -o QXMediaType=Silk
    expect_refusal '同時には使用できません' -- -o 'QXMediaType=Glossy Duplex=DuplexTumble'
    expect_refusal '時刻 HH:MM (UTC)' -- -o job-hold-until=never
}

# A command line is read before there is a window, a printer or a display.
whatACommandLineIsAnsweredSpeaksTheLanguage() {
    environment=(--unset=LC_ALL --unset=DISPLAY --unset=WAYLAND_DISPLAY --unset=QT_QPA_PLATFORM LANG=C.UTF-8
        LANGUAGE=ja)
    run --help
    expect_status 0
    expect_lines 'オプション:' '  --demo                           サンプルプリンターを使えるようにします。'
    expect_equal "$(cat "$work/err")" ''
    run --glitter letter.pdf
    expect_status 2
    expect_said '不明なオプションです: "glitter"。' 'corvana-print --help'
    run
    expect_status 2
    expect_said '文書の名前がありません。'
    environment[4]=LANG=C
    run --glitter letter.pdf
    expect_status 2
    expect_said "Unknown option 'glitter'."
    expect_equal "$(wc -l <"$work/err")" 2
}

run_tests
