#include "dialog/session/Summary.h"

#include <QCoreApplication>
#include <QLocale>

#include "dialog/session/OptionNames.h"

namespace corvana {

QStringList generalOptionKeywords()
{
    return {kDuplexOption, kPageSizeOption, kOutputOption, kColorMatchingModeOption};
}

SummaryLine optionLine(const PpdSession &session, const QString &keyword)
{
    ppd_option_t *option = ppdOption(session.ppd(), keyword);
    const ppd_choice_t *choice = ppdChoice(option, session.markedChoice(keyword));
    if (!choice)
        return {};
    QString value = ppdText(choice->text).value_or(ppdKeyword(choice->choice));
    if (const QString custom = session.customValue(keyword); !custom.isNull()) {
        const Paper &paper = session.pageFormat().paper;
        const bool inches = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
        const auto length = [inches](double points) {
            return inches ? QString::number(points / 72.0, 'f', 2)
                          : QString::number(qRound(points / 72.0 * 25.4));
        };
        const QString form = inches ? QCoreApplication::translate("Summary", "%1 × %2 inches")
                                    : QCoreApplication::translate("Summary", "%1 × %2 mm");
        value = keyword == kPageSizeOption ? form.arg(length(paper.width), length(paper.height))
                                           : custom.mid(kCustomPrefix.size());
    }
    return {ppdText(option->text).value_or(keyword), value};
}

QList<SummaryLine> sessionSummary(const PpdSession &session, PanelHost &panels, int copies)
{
    // The panels first: they restore and save on the way, which may change a mark.
    const QList<SummaryLine> panelLines = panels.summary();
    QList<SummaryLine> lines{
        {QCoreApplication::translate("Summary", "Copies"), QString::number(copies)}};
    for (const QString &keyword : generalOptionKeywords()) {
        const SummaryLine line = optionLine(session, keyword);
        if (!line.title.isEmpty())
            lines += line;
    }
    return lines + panelLines;
}

QString summaryText(const QList<SummaryLine> &lines)
{
    QString text;
    for (const SummaryLine &line : lines)
        text += QStringLiteral("%1: %2\n").arg(line.title, line.value);
    return text;
}

} // namespace corvana
