#include "dialog/session/Summary.h"

#include <algorithm>

#include <QCoreApplication>
#include <QLocale>

#include "dialog/session/CustomValue.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/JobTicket.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/PaperSize.h"
#include "dialog/session/TwoSided.h"
#include "platform/foundation/ForeignText.h"
#include "platform/pde/PDEPanel.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// What a panel tells of itself, or leaves out beside others of its settings.
QStringList keywordsOfPanels(PanelHost &panels)
{
    QStringList keywords;
    for (const auto &panel : panels.panels())
        keywords += panel->supportedPPDOptionKeys().value_or(QStringList());
    return keywords;
}

QString copiesText(int copies, bool collated)
{
    if (copies < 2)
        return QString::number(copies);
    return collated ? QCoreApplication::translate("Summary", "%1, collated").arg(copies)
                    : QCoreApplication::translate("Summary", "%1, not collated").arg(copies);
}

QString withRemark(const QString &value, const QString &remark)
{
    return remark.isEmpty() ? value
                            : QCoreApplication::translate("Summary", "%1 (%2)").arg(value, remark);
}

// The order of several copies stands beside their number. Of a single one it is said once: by the
// printer's own option, where it has one, else by the attribute.
bool isCollationSaidElsewhere(const JobOption &attribute, int copies, const PpdSession &session)
{
    if (attribute.name == kCollateAttribute)
        return copies > 1 || ppdOption(session.ppd(), kCollateOption);
    return attribute.name == kHandlingAttribute &&
           (attribute.value == kCollated || attribute.value == kUncollated);
}

QList<ppd_option_t *> optionsBesideGeneral(const PpdSession &session)
{
    QList<ppd_option_t *> options = session.options();
    const QStringList general = generalOptionKeywords();
    options.removeIf([&](const ppd_option_t *option) {
        return option->num_choices == 0 || general.contains(ppdKeyword(option->keyword));
    });
    return options;
}

// A line of a panel may tell of several options at once, under the title of one.
bool isTold(const ppd_option_t *option, const QList<SummaryLine> &panelLines)
{
    const QString keyword = ppdKeyword(option->keyword);
    const QString title = ppdText(option->text).value_or(keyword);
    return std::any_of(panelLines.cbegin(), panelLines.cend(), [&](const SummaryLine &line) {
        return line.keyword.isEmpty() ? line.title == title : line.keyword == keyword;
    });
}

// As a job has it, which need not be what is marked.
SummaryLine lineOf(const PpdSession &session, const JobOption &option)
{
    ppd_option_t *known = ppdOption(session.ppd(), option.name);
    const QString title = ppdText(known->text).value_or(option.name);
    const ppd_choice_t *choice = ppdChoice(known, option.value);
    if (!choice && option.value.startsWith(kCustomPrefix))
        return {title, customText(session, option.name, option.value), option.name};
    if (isSecretChoice(session.ppd(), option.name, option.value) ||
        (!choice && isSecret(session.ppd(), option.name)))
        return {title, QString(kHiddenLength, u'•'), option.name};
    return {title, choice ? ppdText(choice->text).value_or(option.value) : option.value,
            option.name};
}

// A panel has no line for what does not count beside others of its settings, such as the color
// matching in black and white. The printer is told of it all the same, and what it makes of that is
// its own affair; so whoever reads the summary is told as well: what the job carries, where
// somebody has chosen it.
QList<SummaryLine> leftOutByPanels(const PpdSession &session, const PanelHost &panels,
                                   const QStringList &ofPanels,
                                   const QList<SummaryLine> &panelLines)
{
    QList<SummaryLine> lines;
    const QList<JobOption> job = jobOptions(session, panels.jobValues(), {});
    for (const JobOption &option : job) {
        const ppd_option_t *known = ppdOption(session.ppd(), option.name);
        if (known && ofPanels.contains(option.name) &&
            !generalOptionKeywords().contains(option.name) &&
            option.value != ppdKeyword(known->defchoice) && !isTold(known, panelLines))
            lines += lineOf(session, option);
    }
    if (!lines.isEmpty())
        lines.prepend({QCoreApplication::translate("Summary", "Also in the job"), {}, {}, true});
    return lines;
}

// What is built into a printer is no choice of who prints: an administrator says it once, for
// everybody.
QList<const ppd_option_t *> installedParts(ppd_file_t *ppd)
{
    QList<const ppd_option_t *> options;
    for (int i = 0; i < ppd->num_groups; ++i) {
        const ppd_group_t &group = ppd->groups[i];
        const bool isOfParts = QLatin1StringView(group.name) == "InstallableOptions"_L1 ||
                               QLatin1StringView(group.name) == "InstallableOption"_L1;
        for (int j = 0; isOfParts && j < group.num_options; ++j)
            options += &group.options[j];
    }
    return options;
}

} // namespace

QStringList generalOptionKeywords()
{
    return {kDuplexOption, kPageSizeOption, kOutputOption, kColorMatchingModeOption};
}

QString colorOptionOf(const PpdSession &session, const PDEJobValues *jobValues)
{
    const QString keyword = jobValues ? jobValues->colorOption(session.ppd()) : QString();
    const ppd_option_t *option = ppdOption(session.ppd(), keyword);
    return option && option->num_choices > 1 ? keyword : QString();
}

QStringList generalOptionsOf(const PpdSession &session, const PDEJobValues *jobValues)
{
    QStringList keywords = generalOptionKeywords();
    const QString color = colorOptionOf(session, jobValues);
    if (!color.isNull() && !keywords.contains(color))
        keywords.prepend(color);
    keywords.removeIf([&](const QString &keyword) { return !ppdOption(session.ppd(), keyword); });
    return keywords;
}

QList<ppd_option_t *> choosableOptions(const PpdSession &session)
{
    QList<ppd_option_t *> options = session.options();
    const QList<const ppd_option_t *> installed = installedParts(session.ppd());
    options.removeIf([&](const ppd_option_t *option) {
        return option->num_choices == 0 || installed.contains(option);
    });
    return options;
}

QList<ppd_option_t *> furtherOptions(const PpdSession &session)
{
    QList<ppd_option_t *> options = choosableOptions(session);
    const QStringList general = generalOptionKeywords();
    options.removeIf(
        [&](const ppd_option_t *option) { return general.contains(ppdKeyword(option->keyword)); });
    return options;
}

QStringList installedPartKeywords(const PpdSession &session)
{
    QStringList keywords;
    const QList<const ppd_option_t *> installed = installedParts(session.ppd());
    for (const ppd_option_t *option : installed)
        keywords += ppdKeyword(option->keyword);
    return keywords;
}

QString customText(const PpdSession &session, const QString &keyword, const QString &custom)
{
    if (isSecret(session.ppd(), keyword))
        return QString(kHiddenLength, u'•');
    const QString value = checkCustomValue(session.ppd(), keyword, custom).value.value_or(custom);
    const std::optional<QSizeF> size =
        keyword == kPageSizeOption ? customPageSize(value) : std::nullopt;
    if (!size)
        return value.mid(kCustomPrefix.size());
    const bool inches = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    const auto length = [inches](double points) {
        return inches ? QString::number(points / kPointsPerInch, 'f', 2)
                      : QString::number(qRound(points / kPointsPerMillimetre));
    };
    const QString form = inches ? QCoreApplication::translate("Summary", "%1 × %2 inches")
                                : QCoreApplication::translate("Summary", "%1 × %2 mm");
    return form.arg(length(size->width()), length(size->height()));
}

SummaryLine optionLine(const PpdSession &session, const QString &keyword)
{
    ppd_option_t *option = ppdOption(session.ppd(), keyword);
    const ppd_choice_t *choice = ppdChoice(option, session.markedChoice(keyword));
    if (!choice)
        return {};
    const QString custom = session.customValue(keyword);
    const QString title = ppdText(option->text).value_or(keyword);
    if (isSecretChoice(session.ppd(), keyword, ppdKeyword(choice->choice)))
        return {title, QString(kHiddenLength, u'•'), keyword};
    const QString value = custom.isNull()
                              ? ppdText(choice->text).value_or(ppdKeyword(choice->choice))
                              : customText(session, keyword, custom);
    return {title, value, keyword};
}

QList<SummaryLine> sessionSummary(const PpdSession &session, PanelHost &panels, int copies,
                                  const QList<JobOption> &attributes,
                                  const QHash<QString, QString> &remarks)
{
    // The panels first: they restore and save on the way, which may change a mark.
    const QList<SummaryLine> panelLines = panels.summary();
    const QString order = copies > 1 ? remarks.value(kCollateAttribute) : QString();
    QList<SummaryLine> lines{
        {QCoreApplication::translate("Summary", "Copies"),
         withRemark(copiesText(copies, isCollated(session, attributes)), order), u"copies"_s}};
    const QStringList told = keywordsOfPanels(panels);
    const QStringList general = generalOptionsOf(session, panels.jobValues());
    const QString color = colorOptionOf(session, panels.jobValues());
    for (const QString &keyword : general) {
        // Two sides by hand stand among the attributes, and color where its panel tells of it.
        if ((keyword == kDuplexOption && isTwoSidedByHand(attributes)) ||
            (keyword == color && told.contains(keyword)))
            continue;
        const SummaryLine line = optionLine(session, keyword);
        if (!line.title.isEmpty())
            lines += line;
    }
    for (const JobOption &attribute : attributes) {
        if (isCollationSaidElsewhere(attribute, copies, session))
            continue;
        const JobAttributeText text = textOfJobAttribute(attribute);
        lines += SummaryLine{text.title, withRemark(text.value, remarks.value(attribute.name)),
                             attribute.name};
    }
    lines += panelLines;
    // Hundreds of options that nobody touched would hide the few that somebody did.
    for (const ppd_option_t *option : optionsBesideGeneral(session)) {
        const QString keyword = ppdKeyword(option->keyword);
        if (copies > 1 && keyword == kCollateOption)
            continue;
        if (told.contains(keyword) || general.contains(keyword) ||
            !session.differsFromDefault(keyword))
            continue;
        // One that has no choice at all, since another option says it, would be a line of nothing.
        if (const SummaryLine line = optionLine(session, keyword); !line.title.isEmpty())
            lines += line;
    }
    return lines + leftOutByPanels(session, panels, told, panelLines);
}

QString summaryText(const QList<SummaryLine> &lines)
{
    QString text;
    for (const SummaryLine &line : lines) {
        const QString title = terminalLine(line.title);
        text += line.isHeading ? QCoreApplication::translate("Summary", "%1:").arg(title)
                               : QCoreApplication::translate("Summary", "%1: %2")
                                     .arg(title, terminalLine(line.value));
        text += u'\n';
    }
    return text;
}

} // namespace corvana
