#include "dialog/task/LeftSession.h"

#include <QCoreApplication>

#include "dialog/session/CustomValue.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(LeftSession)
};

// The marks that the user had changed, with custom values in their whole form.
QList<OptionChoice> changedMarks(const LeftSession &session)
{
    const auto whole = [](const SessionSnapshot &snapshot, const QString &keyword) {
        return snapshot.customValues.value(keyword, snapshot.marks.value(keyword));
    };
    QList<OptionChoice> changed;
    for (auto mark = session.left.marks.cbegin(); mark != session.left.marks.cend(); ++mark) {
        const QString choice = whole(session.left, mark.key());
        if (choice != whole(session.opened, mark.key()))
            changed += OptionChoice{mark.key(), choice};
    }
    return changed;
}

// Why a printer does not take a choice any more; empty when it does.
QString problemOf(const OptionChoice &choice, const PpdSession &session)
{
    ppd_option_t *option = ppdOption(session.ppd(), choice.keyword);
    if (!option)
        return Texts::tr("This printer has no option of the name %1 any more.").arg(choice.keyword);
    const bool has =
        choice.choice.startsWith(kCustomPrefix)
            ? checkCustomValue(session.ppd(), choice.keyword, choice.choice).value.has_value()
            : ppdChoice(option, choice.choice) != nullptr;
    return has ? QString()
               : Texts::tr("The option %1 has no choice %2 any more.")
                     .arg(choice.keyword, choice.choice);
}

QStringList restoreChanges(const LeftSession &left, PpdSession &session)
{
    QStringList problems;
    QList<OptionChoice> choices;
    const QList<OptionChoice> changed = changedMarks(left);
    for (const OptionChoice &choice : changed) {
        if (const QString problem = problemOf(choice, session); !problem.isEmpty())
            problems += problem;
        else
            choices += choice;
    }
    // Together they may be possible where one after the other they are not.
    if (!session.changeTogether(choices).isEmpty()) {
        for (const OptionChoice &choice : std::as_const(choices)) {
            const QList<Refusal> refusals = session.changeTogether({choice});
            for (const Refusal &refusal : refusals)
                problems += conflictMessage(refusal, session);
        }
    }
    for (auto entry = left.left.entries.cbegin(); entry != left.left.entries.cend(); ++entry) {
        const bool isMark = left.left.marks.contains(entry.key());
        if (!isMark && left.opened.entries.value(entry.key()) != entry.value())
            session.printSettings().setValue(entry.key(), entry.value());
    }
    return problems;
}

} // namespace

QStringList restoreLeft(const LeftSession &left, const QByteArray &ppdHash, PpdSession &session)
{
    if (left.ppdHash != ppdHash)
        return restoreChanges(left, session);
    session.restore(left.left);
    return {};
}

} // namespace corvana
