#include "dialog/task/SettingsValues.h"

#include <algorithm>

#include <QCoreApplication>

#include "dialog/session/CustomValue.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/JobTicket.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/Summary.h"
#include "dialog/task/OpenedPrinter.h"

namespace corvana {

namespace {

QList<JobOption> ownValues(const TaskSettings &settings, const OpenedPrinter &printer)
{
    if (!printer.jobValues)
        return {};
    PrintSettings entries;
    entries.setEntries(settings.session.entries);
    return printer.jobValues->jobOptions(entries, printer.session->ppd());
}

} // namespace

QMap<QString, QString> valuesOf(const TaskSettings &settings, const OpenedPrinter &printer)
{
    QMap<QString, QString> values = settings.session.marks;
    values.insert(settings.session.customValues);
    const QList<JobOption> further = ownValues(settings, printer) + settings.job.attributes();
    for (const JobOption &option : further)
        values.insert(option.name, option.value);
    values.insert(kCopiesSetting, QString::number(settings.job.copies()));
    return values;
}

QStringList differences(const TaskSettings &one, const TaskSettings &other,
                        const OpenedPrinter &printer)
{
    const QMap<QString, QString> before = valuesOf(one, printer);
    const QMap<QString, QString> now = valuesOf(other, printer);
    QStringList names;
    for (auto value = now.cbegin(); value != now.cend(); ++value) {
        const auto former = before.constFind(value.key());
        if (former == before.cend() || former.value() != value.value())
            names += value.key();
    }
    for (auto value = before.cbegin(); value != before.cend(); ++value) {
        if (!now.contains(value.key()))
            names += value.key();
    }
    names.sort();
    return names;
}

bool isTypedOrMoved(const QString &name, const TaskSettings &settings, const OpenedPrinter &printer)
{
    if (name == kCopiesSetting || name == kPageRangesAttribute ||
        settings.session.customValues.contains(name))
        return true;
    const QList<JobOption> own = ownValues(settings, printer);
    if (std::any_of(own.cbegin(), own.cend(),
                    [&](const JobOption &option) { return option.name == name; }))
        return true;
    if (ppdOption(printer.session->ppd(), name))
        return false;
    const JobAttribute *attribute = jobAttribute(name);
    return attribute && (attribute->allowed.range || attribute->allowed.form);
}

QString settingTitle(const QString &name, const OpenedPrinter &printer)
{
    if (name == kCopiesSetting)
        return QCoreApplication::translate("Summary", "Copies");
    if (const int panel = printer.panels->panelOf(name); panel >= 0) {
        const QList<PanelControl> controls = printer.panels->controls(panel);
        const auto isIt = [&](const PanelControl &control) { return control.keyword == name; };
        const auto found = std::find_if(controls.cbegin(), controls.cend(), isIt);
        if (found != controls.cend() && !found->text.isEmpty())
            return found->text;
    }
    if (const QString title = optionLine(*printer.session, name).title; !title.isEmpty())
        return title;
    return jobAttribute(name) ? textOfJobAttribute({name, {}}).title : QString();
}

QString valueText(const QString &name, const QString &value, const OpenedPrinter &printer)
{
    ppd_file_t *ppd = printer.session->ppd();
    if (value.isNull() || name == kCopiesSetting)
        return value;
    if (value.startsWith(kCustomPrefix) && ppdOption(ppd, name))
        return customText(*printer.session, name, value);
    if (isSecretChoice(ppd, name, value))
        return QString(kHiddenLength, u'•');
    if (const ppd_choice_t *choice = ppdChoice(ppdOption(ppd, name), value))
        return ppdText(choice->text).value_or(value);
    return jobAttribute(name) ? textOfJobAttribute({name, value}).value : value;
}

} // namespace corvana
