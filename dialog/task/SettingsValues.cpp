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

// What stands beside the marks of choices, and instead of those of its names.
QMap<QString, QString> valuesBesideMarks(const TaskSettings &settings, const OpenedPrinter &printer)
{
    QMap<QString, QString> values = settings.session.customValues;
    const QList<JobOption> further = ownValues(settings, printer) + settings.job.attributes();
    for (const JobOption &option : further)
        values.insert(option.name, option.value);
    values.insert(kCopiesSetting, QString::number(settings.job.copies()));
    return values;
}

// The names that have another value in one of two maps than in the other, or are in one only.
QStringList differingNames(const QMap<QString, QString> &one, const QMap<QString, QString> &other)
{
    QStringList names;
    auto former = one.cbegin();
    auto now = other.cbegin();
    while (former != one.cend() || now != other.cend()) {
        if (now == other.cend() || (former != one.cend() && former.key() < now.key())) {
            names += (former++).key();
        } else if (former == one.cend() || now.key() < former.key()) {
            names += (now++).key();
        } else {
            if (former.value() != now.value())
                names += now.key();
            ++former;
            ++now;
        }
    }
    return names;
}

// With the marks for what has a value beside the marks in the other state only.
QMap<QString, QString> filledUp(QMap<QString, QString> beside,
                                const QMap<QString, QString> &otherBeside,
                                const QMap<QString, QString> &marks)
{
    for (auto value = otherBeside.cbegin(); value != otherBeside.cend(); ++value) {
        if (!beside.contains(value.key()) && marks.contains(value.key()))
            beside.insert(value.key(), marks.value(value.key()));
    }
    return beside;
}

} // namespace

QMap<QString, QString> valuesOf(const TaskSettings &settings, const OpenedPrinter &printer)
{
    QMap<QString, QString> values = settings.session.marks;
    values.insert(valuesBesideMarks(settings, printer));
    return values;
}

// Asked for many times with each change: where a printer has a thousand options, copies of all
// their marks would be most of the time.
QStringList differences(const TaskSettings &one, const TaskSettings &other,
                        const OpenedPrinter &printer)
{
    const QMap<QString, QString> oneBeside = valuesBesideMarks(one, printer);
    const QMap<QString, QString> otherBeside = valuesBesideMarks(other, printer);
    QStringList names = differingNames(one.session.marks, other.session.marks);
    names.removeIf([&](const QString &name) {
        return oneBeside.contains(name) || otherBeside.contains(name);
    });
    const QMap<QString, QString> before = filledUp(oneBeside, otherBeside, one.session.marks);
    const QMap<QString, QString> now = filledUp(otherBeside, oneBeside, other.session.marks);
    names += differingNames(before, now);
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
