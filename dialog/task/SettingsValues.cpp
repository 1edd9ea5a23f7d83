#include "dialog/task/SettingsValues.h"

#include <QCoreApplication>

#include "dialog/session/JobAttributes.h"
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
    if (const QString title = optionLine(*printer.session, name).title; !title.isEmpty())
        return title;
    return jobAttribute(name) ? textOfJobAttribute({name, {}}).title : QString();
}

} // namespace corvana
