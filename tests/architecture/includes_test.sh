#!/usr/bin/env bash
# The direction of the dependencies, read from the include lines of every source file. Each folder
# names what it may include; everything else, relative paths included, is a violation.
#
#   includes_test.sh         checks the project, after the check has proved itself on planted lines
#   includes_test.sh FOLDER  checks the tree below FOLDER

set -u
export LC_ALL=C
project=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)

# Folder, then the path prefixes that its files may include. The longest matching folder counts.
rules='
platform/printcore   platform/printcore/ platform/PlatformExport.h
platform/foundation  platform/foundation/ platform/PlatformExport.h
platform/imaging     platform/imaging/ platform/library/ platform/PlatformExport.h
platform/library     platform/library/
platform/toolkit     platform/toolkit/ platform/imaging/ platform/library/ platform/foundation/ platform/printcore/ platform/PlatformExport.h
platform             platform/
panel                panel/ platform/
printsetting         printsetting/ panel/ platform/
colorsetting         colorsetting/ panel/ platform/
renderer             renderer/
renderer/protocol    renderer/protocol/
plugin               plugin/ printsetting/ colorsetting/ panel/ platform/
dialog               platform/
dialog/session       dialog/session/ platform/
dialog/server        dialog/server/ platform/
dialog/driverless    dialog/driverless/ dialog/session/ platform/
dialog/printers      dialog/printers/ dialog/driverless/ dialog/server/ dialog/session/ platform/
dialog/policy        dialog/policy/ dialog/printers/ dialog/session/ platform/
dialog/presets       dialog/presets/ dialog/policy/ dialog/printers/ dialog/session/ platform/
dialog/text          dialog/text/ dialog/session/ platform/
dialog/job           dialog/job/ dialog/text/ dialog/printers/ dialog/server/ dialog/session/ platform/
dialog/sheets        dialog/sheets/ dialog/job/ dialog/session/ platform/
dialog/preview       dialog/preview/ renderer/protocol/ platform/
dialog/documents     dialog/documents/ dialog/preview/ dialog/job/ renderer/protocol/ platform/
dialog/task          dialog/task/ dialog/policy/ dialog/presets/ dialog/documents/ dialog/sheets/ dialog/job/ dialog/text/ dialog/printers/ dialog/driverless/ dialog/server/ dialog/session/ platform/
dialog/window        dialog/window/ dialog/presets/ dialog/task/ dialog/sheets/ dialog/job/ dialog/printers/ dialog/server/ dialog/session/ platform/
dialog/window/chooser dialog/window/chooser/ dialog/printers/ platform/
dialog/window/find   dialog/window/find/ dialog/window/chooser/ platform/
dialog/window/pages  dialog/window/pages/ dialog/session/ platform/
dialog/window/thumbnails dialog/window/thumbnails/ dialog/preview/ dialog/sheets/ platform/
dialog/window/preview dialog/window/preview/ dialog/window/chooser/ dialog/preview/ dialog/sheets/ platform/
dialog/terminal      dialog/terminal/ dialog/policy/ dialog/presets/ dialog/task/ dialog/job/ dialog/printers/ dialog/server/ dialog/session/ platform/
dialog/app           dialog/ platform/
'

# folders_of_project: the top folders that the rules speak of, as an alternation.
folders_of_project() {
    awk 'NF { sub("/.*", "", $1); print $1 }' <<<"$rules" | sort -u | paste -sd '|'
}

# allowed_for FILE: the prefixes of the rule with the longest folder above FILE.
allowed_for() {
    awk -v file="$1" 'NF && index(file, $1 "/") == 1 && length($1) > best {
        best = length($1); $1 = ""; allowed = $0
    } END { print allowed }' <<<"$rules"
}

# includes_of TREE: "file:line:path" for every include of the project's own headers. Those of the
# system, in angle brackets, count only when they begin with a folder of the project.
includes_of() {
    local own
    own=$(folders_of_project)
    (cd -- "$1" && find $(tr '|' ' ' <<<"$own") -type f \
        \( -name '*.cpp' -o -name '*.h' -o -name '*.cc' -o -name '*.hpp' -o -name '*.inl' \) \
        -exec grep -HnE "^[[:space:]]*#[[:space:]]*include" {} + 2>/dev/null) |
        sed -nE -e 's|^([^:]+:[0-9]+):[^"<]*"([^"]+)".*|\1:\2|p' \
            -e "s#^([^:]+:[0-9]+):[^\"<]*<(($own)/[^>]+)>.*#\\1:\\2#p"
}

# violations TREE: one line each, or nothing.
violations() {
    local file line path allowed prefix fits folder='' rest
    while IFS=: read -r file line path; do
        # What the build generates beside its source.
        case $path in *.moc | moc_*.cpp) continue ;; esac
        if [ "${file%/*}" != "$folder" ]; then
            folder=${file%/*}
            allowed=$(allowed_for "$file")
        fi
        fits=no
        for prefix in $allowed; do
            rest=${path#"$prefix"}
            if [ "$path" = "$prefix" ] || { [ "${prefix%/}" != "$prefix" ] && [ "$rest" != "$path" ]; }; then
                fits=yes
            fi
        done
        case /$path/ in */../*) fits=no ;; esac
        [ "$fits" = yes ] || printf '%s:%s: must not include "%s"\n' "$file" "$line" "$path"
    done < <(includes_of "$1")
}

# expect FILE INCLUDE allowed|refused: plants one include line and checks the verdict.
failures=0
expect() {
    local planted verdict=allowed
    planted=$(mktemp -d)
    mkdir -p "$planted/$(dirname -- "$1")"
    printf '#pragma once\n\n%s\n' "$2" >"$planted/$1"
    [ -z "$(violations "$planted")" ] || verdict=refused
    rm -r -- "$planted"
    if [ "$verdict" != "$3" ]; then
        printf 'self-check: %s in %s was %s\n' "$2" "$1" "$verdict" >&2
        failures=$((failures + 1))
    fi
}

self_check() {
    local file path verdict
    while read -r file path verdict; do
        [ -z "$file" ] || expect "$file" "#include \"$path\"" "$verdict"
    done <<'ROWS'
dialog/app/A.cpp             panel/QXPrintQualityPDE.h          refused
dialog/session/A.h           printsetting/ValueBounds.h         refused
dialog/A.cpp                 colorsetting/EffectSet.h           refused
dialog/A.cpp                 plugin/QXJobValues.h               refused
dialog/app/A.cpp             dialog/session/PpdSession.h        allowed
dialog/app/A.cpp             dialog/job/ServerJob.h             allowed
dialog/new/A.cpp             dialog/session/PpdSession.h        refused
dialog/session/A.cpp         dialog/session/PpdSession.h        allowed
dialog/session/A.cpp         dialog/server/ServerWork.h         refused
dialog/session/A.cpp         dialog/driverless/CapabilityPpd.h  refused
dialog/server/A.cpp          dialog/server/ServerWork.h         allowed
dialog/server/A.cpp          dialog/session/PpdSession.h        refused
dialog/server/A.cpp          dialog/printers/Printer.h          refused
dialog/driverless/A.cpp      dialog/driverless/CapabilityPpd.h  allowed
dialog/driverless/A.cpp      dialog/session/OptionNames.h       allowed
dialog/driverless/A.cpp      dialog/printers/Printer.h          refused
dialog/driverless/A.cpp      dialog/server/IppMessage.h         refused
dialog/printers/A.cpp        dialog/driverless/CapabilityPpd.h  allowed
dialog/printers/A.cpp        dialog/server/ServerWork.h         allowed
dialog/printers/A.cpp        dialog/job/ServerJob.h             refused
dialog/printers/A.cpp        dialog/task/PrintRequest.h         refused
dialog/presets/A.cpp         dialog/printers/PrinterId.h        allowed
dialog/presets/A.cpp         dialog/task/PrintTask.h            refused
dialog/printers/A.cpp        dialog/presets/Preset.h            refused
dialog/session/A.cpp         dialog/presets/Preset.h            refused
dialog/text/A.cpp            dialog/session/PpdFile.h           allowed
dialog/text/A.cpp            dialog/job/Document.h              refused
dialog/job/A.cpp             dialog/text/TextFormat.h           allowed
dialog/job/A.cpp             dialog/printers/Printer.h          allowed
dialog/job/A.cpp             dialog/window/pages/GeneralPage.h  refused
dialog/job/A.cpp             dialog/task/PrintRequest.h         refused
dialog/job/A.cpp             dialog/sheets/SheetCount.h         refused
dialog/sheets/A.cpp          dialog/job/Conversion.h            allowed
dialog/sheets/A.cpp          dialog/session/JobAttributes.h     allowed
dialog/sheets/A.cpp          dialog/printers/Printer.h          refused
dialog/sheets/A.cpp          dialog/task/JobSettings.h          refused
dialog/task/A.cpp            dialog/sheets/SheetCounter.h       allowed
dialog/preview/A.cpp         renderer/protocol/Messages.h       allowed
dialog/preview/A.cpp         renderer/OpenedDocument.h          refused
dialog/preview/A.cpp         dialog/sheets/SheetCounter.h       refused
dialog/sheets/A.cpp          dialog/preview/PagePictures.h      refused
dialog/app/A.cpp             renderer/protocol/Messages.h       refused
renderer/A.cpp               renderer/protocol/Messages.h       allowed
renderer/A.cpp               platform/foundation/Values.h       refused
renderer/A.cpp               dialog/preview/PagePictures.h      refused
renderer/protocol/A.cpp      renderer/Service.h                 refused
dialog/window/pages/A.cpp    dialog/sheets/SheetCounter.h       refused
dialog/window/chooser/A.cpp  dialog/printers/Printer.h          allowed
dialog/window/chooser/A.cpp  dialog/window/pages/GeneralPage.h  refused
dialog/window/chooser/A.cpp  dialog/session/PpdSession.h        refused
dialog/window/find/A.cpp     dialog/window/chooser/PrinterIcon.h allowed
dialog/window/find/A.cpp     dialog/task/SettingsIndex.h        refused
dialog/window/pages/A.cpp    dialog/session/PpdSession.h        allowed
dialog/window/pages/A.cpp    dialog/printers/Printer.h          refused
dialog/window/pages/A.cpp    dialog/window/PrintWindow.h        refused
dialog/window/preview/A.cpp  dialog/sheets/SheetPlan.h          allowed
dialog/window/preview/A.cpp  dialog/preview/PagePictures.h      allowed
dialog/window/preview/A.cpp  dialog/task/PrintTask.h            refused
dialog/task/A.cpp            dialog/job/Job.h                   allowed
dialog/task/A.cpp            dialog/window/PrintWindow.h        refused
dialog/task/A.cpp            dialog/terminal/TerminalFace.h     refused
dialog/window/A.cpp          dialog/task/PrintTask.h            allowed
dialog/window/A.cpp          dialog/terminal/TerminalFace.h     refused
dialog/window/A.cpp          dialog/app/CommandLine.h           refused
dialog/terminal/A.cpp        dialog/task/PrintTask.h            allowed
dialog/terminal/A.cpp        dialog/window/PrintWindow.h        refused
dialog/app/A.cpp             platform/pde/PDEPanel.h            allowed
dialog/app/A.cpp             ../../panel/OptionKeywords.h       refused
dialog/app/A.cpp             dialog/../panel/OptionKeywords.h   refused
dialog/app/A.cpp             OptionKeywords.h                   refused
platform/pde/A.h             panel/OptionKeywords.h             refused
platform/pde/A.h             dialog/window/PrintWindow.h        refused
platform/pde/A.h             platform/toolkit/Alert.h           allowed
platform/printcore/A.cpp     platform/foundation/Values.h       refused
platform/printcore/A.cpp     platform/toolkit/Alert.h           refused
platform/printcore/A.cpp     platform/printcore/Ppd.h           allowed
platform/printcore/A.cpp     platform/PlatformExport.h          allowed
platform/foundation/A.cpp    platform/printcore/Ppd.h           refused
platform/foundation/A.cpp    platform/toolkit/Alert.h           refused
platform/foundation/A.cpp    platform/foundation/Values.h       allowed
platform/foundation/A.cpp    platform/PlatformExport.hpp        refused
platform/imaging/A.cpp       platform/foundation/Values.h       refused
platform/imaging/A.cpp       platform/toolkit/ImageView.h       refused
platform/imaging/A.cpp       platform/imaging/FilterImage.h     allowed
platform/imaging/A.cpp       platform/PlatformExport.h          allowed
platform/imaging/A.cpp       platform/library/OwnLibrary.h      allowed
platform/library/A.cpp       platform/imaging/FilterImage.h     refused
platform/toolkit/A.cpp       platform/imaging/FilterImage.h     allowed
platform/toolkit/A.cpp       platform/pde/PDEPanel.h            refused
platform/toolkit/A.cpp       platform/foundation/Values.h       allowed
panel/A.cpp                  platform/pde/PDEPanel.h            allowed
panel/A.cpp                  printsetting/PrintSettingKeys.h    refused
panel/A.cpp                  plugin/QXJobValues.h               refused
panel/A.cpp                  dialog/window/PrintWindow.h        refused
printsetting/A.cpp           colorsetting/EffectSet.h           refused
printsetting/A.cpp           panel/OptionKeywords.h             allowed
printsetting/A.cpp           dialog/window/PrintWindow.h        refused
colorsetting/A.cpp           printsetting/ValueBounds.h         refused
colorsetting/A.cpp           panel/OptionKeywords.h             allowed
plugin/A.cpp                 dialog/window/PrintWindow.h        refused
plugin/A.cpp                 colorsetting/EffectSet.h           allowed
plugin/A.cpp                 A.moc                              allowed
ROWS
    expect dialog/A.cpp '#include <panel/OptionKeywords.h>' refused
    expect dialog/A.cpp '  #  include "panel/OptionKeywords.h" // why' refused
    expect dialog/A.cpp '#include <QtWidgets/QWidget>' allowed
    expect dialog/A.cpp '// #include "panel/OptionKeywords.h"' allowed
}

if [ $# -eq 1 ]; then
    found=$(violations "$1")
else
    self_check
    found=$(violations "$project")
    # A check that reads nothing would find nothing.
    count=$(includes_of "$project" | wc -l)
    if [ "$count" -lt 100 ]; then
        echo "only $count include lines were found below $project" >&2
        failures=$((failures + 1))
    fi
fi
if [ -n "$found" ]; then
    printf '%s\n' "$found" >&2
    failures=$((failures + 1))
fi
exit $((failures > 0))
