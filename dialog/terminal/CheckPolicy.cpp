#include "dialog/terminal/CheckPolicy.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTextStream>

#include "dialog/policy/FileTrust.h"
#include "dialog/policy/Policy.h"
#include "dialog/policy/PolicyLocks.h"
#include "dialog/presets/PresetStore.h"
#include "dialog/session/OptionNames.h"
#include "dialog/task/PassedOn.h"
#include "dialog/task/PrintTask.h"
#include "dialog/terminal/TerminalFace.h"
#include "dialog/terminal/TerminationSignals.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

using Phase = PrintTask::Phase;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CheckPolicy)
};

// Each entry on a line of its own, whatever it says.
QString lineOf(const PolicyEntry &entry)
{
    return u"  %1 = %2  %3\n"_s.arg(entry.name(), terminalLine(entry.value),
                                    terminalLine(entry.origin.text()));
}

// Presets for everybody are looked for when a printer is open; here an administrator hears of a
// folder, and of files in it, that will not be used then.
QList<PolicyProblem> problemsOf(const Policy &policy)
{
    const PolicyReading &reading = policy.reading();
    QList<PolicyProblem> problems = reading.problems;
    for (const PolicyEntry &entry : reading.entries) {
        if (entry.key != PolicyKey::Presets || entry.value.isEmpty())
            continue;
        if (const auto problem = whyNotTrusted(entry.value, reading.place.owners())) {
            problems += PolicyProblem{entry.origin, problem->text()};
            continue;
        }
        const PresetStore store(PresetPlaces{{}, {entry.value}, reading.place.owners()});
        const PresetListing listing = store.listAll();
        for (const QString &problem : listing.problems)
            problems += PolicyProblem{entry.origin, problem};
    }
    return problems;
}

QString headOf(const Policy &policy)
{
    const PolicyReading &reading = policy.reading();
    const QList<PolicyProblem> problems = problemsOf(policy);
    const QStringList &groups = policy.user().groups;
    QString text = Texts::tr("Policy in %1 for the user %2")
                       .arg(terminalLine(reading.place.folder), terminalLine(policy.user().name));
    if (!groups.isEmpty())
        text += u" ("_s + Texts::tr("groups: %1").arg(terminalLine(groups.join(u", "_s))) + u')';
    text += u'\n';
    if (!problems.isEmpty())
        text += Texts::tr("Not used:") + u'\n';
    for (const PolicyProblem &problem : problems)
        text += u"  "_s + terminalLine(problem.text()) + u'\n';
    if (policy.isEmpty())
        text += Texts::tr("Nothing is decided.") + u'\n';
    return text;
}

// Everything that applies at one printer, in the order of the manual.
QString textOf(const Policy &policy, const Printer &printer)
{
    QString text = Texts::tr("At the printer %1:").arg(terminalLine(printer.name)) + u'\n';
    QList<PolicyEntry> entries = policy.defaultsOf(printer) + policy.locksOf(printer);
    for (const PolicyKeyForm &form : policyKeyForms()) {
        if (form.takesKeyword())
            continue;
        if (const auto entry = policy.entryOf(form.key, printer))
            entries += *entry;
    }
    for (const PolicyEntry &entry : std::as_const(entries))
        text += lineOf(entry);
    if (entries.isEmpty())
        text += u"  "_s + Texts::tr("Nothing is decided.") + u'\n';
    return text;
}

// A printer as a task opens it. Its panels do not come up.
class PrinterCheck
{
public:
    explicit PrinterCheck(const PrintRequest &request)
        : m_policy(*request.policy), m_face(std::nullopt, m_termination, stderr),
          m_task(request, m_face)
    {
        m_face.setTask(&m_task);
        QObject::connect(&m_task, &PrintTask::phaseChanged, &m_loop, [this](Phase phase) {
            if (phase != Phase::Fetching)
                m_loop.quit();
        });
        QObject::connect(&m_termination, &TerminationSignals::received, &m_loop, &QEventLoop::quit);
    }

    // Whether everything is used there.
    bool write(QTextStream &out)
    {
        m_task.startUnattended();
        if (m_task.phase() == Phase::Fetching)
            m_loop.exec();
        out << textOf(m_policy, m_task.printer());
        if (!m_task.opened()) {
            out << u"  "_s << terminalText(m_task.problem().text) << u'\n';
            // One that is hidden on purpose is as it should be.
            return m_policy.whatHides(m_task.printer()).has_value();
        }
        QStringList voids = m_task.opened()->voidLocks;
        QList<PolicyEntry> defaults = m_policy.defaultsOf(m_task.printer());
        QList<PolicyProblem> others = takeWhatCannotBeDone(defaults, *m_task.opened());
        // Which is no option of a printer, and has its effect in front of one.
        if (m_task.printer().origin == PrinterOrigin::Queue)
            defaults.removeIf([](const PolicyEntry &entry) {
                return entry.keyword.compare(kRawOption, Qt::CaseInsensitive) == 0;
            });
        others += voidDefaults(defaults, *m_task.opened()->session, m_task.opened()->jobValues);
        for (const PolicyProblem &problem : std::as_const(others))
            voids += problem.text();
        if (!voids.isEmpty())
            out << Texts::tr("Void, because the printer does not take it:") << u'\n';
        for (const QString &problem : std::as_const(voids))
            out << u"  "_s << terminalLine(problem) << u'\n';
        return voids.isEmpty();
    }

private:
    const Policy &m_policy;
    const TerminationSignals m_termination;
    TerminalFace m_face;
    PrintTask m_task;
    QEventLoop m_loop;
};

int fail(const QString &problem)
{
    QTextStream(stderr) << "corvana-print: " << terminalText(problem) << "\n";
    return 1;
}

} // namespace

QString policyText(const Policy &policy)
{
    QString text = headOf(policy);
    PolicyScope former;
    bool isFirst = true;
    QString others;
    for (const PolicyEntry &entry : policy.reading().entries) {
        const bool applies = policy.appliesToUser(entry.scope);
        QString &part = applies ? text : others;
        if (isFirst || entry.scope != former)
            part += terminalLine(entry.scope.text()) + u'\n';
        part += lineOf(entry);
        former = entry.scope;
        isFirst = false;
    }
    if (!others.isEmpty())
        text += Texts::tr("For others, who are in these groups:") + u'\n' + others;
    return text;
}

int checkPolicy(const PrintRequest &request, const QString &user)
{
    PrintRequest asked = request;
    if (!user.isEmpty() && user != policyOf(request).user().name) {
        if (::geteuid() != 0)
            return fail(Texts::tr("Only root may ask what applies to somebody else."));
        if (!isUser(user))
            return fail(Texts::tr("There is no user of the name “%1”.").arg(user));
    }
    asked.policy =
        std::make_shared<const Policy>(policyOf(request).reading(), userWithGroups(user));
    QTextStream out(stdout);
    bool isWhole = problemsOf(*asked.policy).isEmpty();
    if (asked.wantedPrinter.isEmpty() && asked.printers.isEmpty()) {
        out << policyText(*asked.policy);
    } else {
        out << headOf(*asked.policy);
        out.flush();
        isWhole = PrinterCheck(asked).write(out) && isWhole;
    }
    return isWhole ? 0 : 1;
}

} // namespace corvana
