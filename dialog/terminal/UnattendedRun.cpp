#include "dialog/terminal/UnattendedRun.h"

#include <algorithm>
#include <csignal>
#include <utility>

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QTextStream>
#include <QTimer>

#include "dialog/presets/Preset.h"
#include "dialog/printers/PrinterId.h"
#include "dialog/printers/UserQueues.h"
#include "dialog/task/OtherQueues.h"
#include "dialog/task/PrintTask.h"
#include "dialog/task/TaskPresets.h"
#include "dialog/terminal/ExitStatus.h"
#include "dialog/terminal/OutcomeLine.h"
#include "dialog/terminal/RunTexts.h"
#include "dialog/terminal/TerminalFace.h"
#include "dialog/terminal/TerminationSignals.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

using Phase = PrintTask::Phase;

// Of a result on its way to standard output. Units: bytes.
constexpr qint64 kBlock = 65536;
// Of bringing a preset to a queue while it is kept anew all the time.
constexpr int kMostAttempts = 10;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(UnattendedRun)
};

void sayProblem(const QString &problem)
{
    QTextStream(stderr) << "corvana-print: " << terminalText(problem) << "\n";
}

// A complete file. Answers why it could not be written; empty when it was.
QString writeToStandardOutput(const QString &path)
{
    QFile file(path);
    QFile out;
    // A reader that is gone is said, and the program lives to remove its files.
    std::signal(SIGPIPE, SIG_IGN);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    if (!out.open(stdout, QIODevice::WriteOnly | QIODevice::Unbuffered))
        return out.errorString();
    while (!file.atEnd()) {
        const QByteArray block = file.read(kBlock);
        if (block.isEmpty())
            return file.errorString();
        if (out.write(block) != block.size())
            return out.errorString();
    }
    return {};
}

// By which name the instance is known that is made of another queue as well.
QString instanceOn(const QString &queue, const PrintRequest &request)
{
    return queueOfInstance(queue) + u'/' + instanceNameOf(request.instance);
}

// Settings that are kept as instances of several queues, and nowhere else.
PrintRequest requestForSame(const QString &queue, PrintRequest request)
{
    request.documents.clear();
    request.alsoOn.clear();
    request.summary = false;
    request.wantedPrinter = queue;
    return request;
}

// One task, followed from its start to its end on standard output and standard error.
class Run
{
public:
    enum class For { Itself, OtherQueue };

    explicit Run(const PrintRequest &request, For whom = For::Itself)
        : m_isForOther(whom == For::OtherQueue || request.followedModel),
          m_face(request.onAlert, m_termination, forPeople(request)), m_task(request, m_face)
    {
        m_face.setTask(&m_task);
        m_patience.setSingleShot(true);
        QObject::connect(&m_patience, &QTimer::timeout, &m_loop, [this] { stopWaiting(); });
        QObject::connect(&m_termination, &TerminationSignals::received, &m_task,
                         [this] { m_task.interrupt(PrintTask::OnInterrupt::CancelJob); });
        QObject::connect(&m_task, &PrintTask::phaseChanged, &m_loop,
                         [this](Phase phase) { phaseChanged(phase); });
        QObject::connect(&m_task, &PrintTask::ignored, &m_loop,
                         [this](const QString &problem) { say(problem); });
        QObject::connect(&m_task, &PrintTask::noted, &m_loop,
                         [this](const QString &what) { note(what); });
        QObject::connect(&m_task, &PrintTask::refused, &m_loop,
                         [this](const TaskRefusal &refusal) { end(refusal.problems); });
        QObject::connect(&m_task, &PrintTask::progressed, &m_loop,
                         [this](const JobProgress &progress) { showProgress(progress); });
        QObject::connect(&m_task.presets(), &TaskPresets::ended, &m_loop,
                         [this](const QString &problem) { presetEnded(problem); });
        QObject::connect(&m_task, &PrintTask::jobEnded, &m_loop,
                         [this](const JobOutcome &outcome) { jobEnded(outcome); });
    }

    /// `mayTryAgain`: what isStale() says is not said to anybody.
    int exec(bool mayTryAgain = false)
    {
        m_mayTryAgain = mayTryAgain;
        if (m_termination.caught())
            end({Texts::tr("Interrupted.")});
        else
            m_task.startUnattended();
        if (m_status < 0)
            m_loop.exec();
        return m_status != 0 && m_termination.caught() ? m_termination.exitStatus() : m_status;
    }

    /// The preset that was read was changed before its instance was written.
    bool isStale() const { return m_task.presets().isStale(); }
    /// What is to be done for other queues, each in a run of its own.
    QList<PrintRequest> others() const
    {
        const PrintRequest &request = m_task.request();
        QList<PrintRequest> others;
        const QList<OtherInstance> &ofPreset = m_task.presets().others();
        for (const OtherInstance &instance : ofPreset)
            others += requestForOther(instance, request);
        if (!request.presetToSave.isEmpty() || m_termination.caught())
            return others;
        for (const QString &queue : request.alsoOn) {
            if (!isSameQueue(queue, queueOfInstance(m_task.printer().name)))
                others += requestForSame(queue, request);
        }
        return others;
    }

private:
    // What is wrong with one of several queues says with which.
    void say(const QString &problem)
    {
        sayProblem(m_isForOther
                       ? problemWithInstance(
                             instanceOn(m_task.request().wantedPrinter, m_task.request()), problem)
                       : problem);
    }

    // Whoever has run the program for other queues reads on standard error what is wrong.
    void note(const QString &what)
    {
        if (!m_task.request().followedModel)
            sayProblem(what);
        else if (!m_task.request().quiet)
            QTextStream(stdout) << terminalText(what) << "\n";
    }

    void phaseChanged(Phase phase)
    {
        if (phase == Phase::Opened) {
            // Not in the midst of what opened it.
            QMetaObject::invokeMethod(
                &m_task, [this] { begin(); }, Qt::QueuedConnection);
        } else if (phase == Phase::Missing) {
            const QString problem = withName(m_task.problem().text, m_task.printer());
            end({withOtherPrinters(problem, m_task.request())});
        } else if (phase == Phase::Ended && m_task.outcome() == JobOutcome()) {
            if (m_termination.caught())
                end({Texts::tr("Interrupted.")});
            else
                end(ExitStatus::Done); // there was no document: only the summary was asked for
        }
    }

    void begin()
    {
        const QString &name = m_task.request().presetToSave;
        if (name.isEmpty())
            m_task.print();
        else
            m_task.presets().save({.name = name, .replaces = true, .alsoOn = namedInstances()});
    }

    QStringList namedInstances() const
    {
        QStringList names;
        // No other queue can have a name that the open one is refused.
        if (instanceNameOf(m_task.request().instance).isEmpty())
            return names;
        for (const QString &queue : m_task.request().alsoOn)
            names += instanceOn(queue, m_task.request());
        return names;
    }

    void presetEnded(const QString &problem)
    {
        if (!problem.isEmpty())
            return end({problem});
        // The preset is kept whatever becomes of its instances.
        QStringList problems = m_task.presets().problemsElsewhere();
        if (const auto refusal = m_task.presets().saveInstance(m_task.request().presetToSave))
            problems += refusal->problems;
        for (const QString &one : std::as_const(problems))
            sayProblem(one);
        if (!m_task.request().quiet)
            QTextStream(stdout) << Texts::tr("The preset “%1” is kept.")
                                       .arg(terminalLine(presetName(m_task.request().presetToSave)))
                                << "\n";
        end(problems.isEmpty() ? ExitStatus::Done : ExitStatus::Failed);
    }

    // Standard output belongs to programs where a result or a line for one goes there.
    static FILE *forPeople(const PrintRequest &request)
    {
        return request.json || request.standardOutput ? stderr : stdout;
    }

    // Whoever waits is told what for.
    void showProgress(const JobProgress &progress)
    {
        if (m_task.isJobHandedOver() && m_task.request().wait && !m_patience.isActive())
            m_patience.start(*m_task.request().wait);
        if (std::exchange(m_stage, progress.stage) != progress.stage &&
            progress.stage == JobProgress::Stage::Stopped)
            QTextStream(stderr) << Texts::tr("Job %1: %2")
                                       .arg(terminalLine(jobName(m_task.printer(), progress.job)),
                                            terminalLine(progress.text()))
                                << "\n";
    }

    // The time of --wait is over.
    void stopWaiting()
    {
        m_waitIsOver = true;
        m_task.leave();
    }

    void jobEnded(JobOutcome outcome)
    {
        if (outcome.queue.isEmpty() && !m_task.printsToFile())
            outcome.queue = queueOfInstance(m_task.printer().name);
        if (outcome.isDone() && m_task.request().standardOutput)
            writeResult(&outcome);
        if (m_task.request().json)
            writeLine(outcomeLine(outcome));
        ExitStatus status = exitStatusOf(outcome);
        if (m_waitIsOver && outcome.kind == JobOutcome::Kind::InQueue)
            status = ExitStatus::StillThere;
        if (!outcome.isDone()) {
            sayProblem(outcome.text);
            // A part of the result may have got to standard output.
            if (m_task.printsToFile() && !m_task.request().standardOutput)
                QTextStream(stderr) << Texts::tr("Nothing was printed.") << "\n";
            return end(status);
        }
        QTextStream out(forPeople(m_task.request()));
        // Where the job is still waiting is nothing that was asked for.
        if (!m_task.request().quiet || status != ExitStatus::Done)
            out << terminalText(outcome.text) << "\n";
        if (m_task.isHeld())
            out << Texts::tr("It waits until the instructions have been followed. Release it with: "
                             "%1")
                       .arg(terminalLine(
                           releaseCommand(m_task.request(), m_task.printer(), outcome.job)))
                << "\n";
        end(status);
    }

    // The result is complete, so it goes where it was meant to.
    void writeResult(JobOutcome *outcome)
    {
        const QString problem = writeToStandardOutput(outcome->file);
        outcome->file.clear();
        outcome->text = Texts::tr("Printed to standard output");
        if (problem.isEmpty())
            return;
        outcome->kind = JobOutcome::Kind::Failed;
        outcome->text =
            Texts::tr("The result could not be written to standard output: %1.").arg(problem);
    }

    void end(const QStringList &problems)
    {
        if (m_isForOther && m_task.presets().isStale() && m_mayTryAgain)
            return end(ExitStatus::Failed);
        for (const QString &problem : problems)
            say(problem);
        if (m_isForOther)
            return end(ExitStatus::Failed);
        QTextStream(stderr) << (m_task.request().presetToSave.isEmpty()
                                    ? Texts::tr("Nothing was printed.")
                                    : Texts::tr("No preset was kept."))
                            << "\n";
        if (m_task.request().json)
            writeLine(refusalLine(m_task.printsToFile() ? QString()
                                                        : queueOfInstance(m_task.printer().name),
                                  problems));
        end(ExitStatus::Failed);
    }

    void end(ExitStatus status)
    {
        if (m_status < 0)
            m_status = int(status);
        m_loop.quit();
    }

    const bool m_isForOther; // a queue that was named beside the printer
    const TerminationSignals m_termination;
    TerminalFace m_face;
    PrintTask m_task;
    QEventLoop m_loop;
    JobProgress::Stage m_stage = JobProgress::Stage::Sending;
    QTimer m_patience; // of --wait, once the queue has the job
    bool m_waitIsOver = false;
    bool m_mayTryAgain = false;
    int m_status = -1; // until it is known
};

// Another program may keep the preset while it is brought to a queue: the last one counts.
int runForOther(const PrintRequest &request)
{
    for (int attempt = 1;; ++attempt) {
        Run run(request, Run::For::OtherQueue);
        const int status = run.exec(attempt < kMostAttempts);
        if (!run.isStale() || attempt == kMostAttempts)
            return status;
    }
}

} // namespace

int runUnattended(const PrintRequest &request)
{
    if (request.followedModel)
        return runForOther(request);
    int status = 0;
    QList<PrintRequest> others;
    {
        Run run(request);
        status = run.exec();
        others = run.others();
    }
    for (const PrintRequest &other : std::as_const(others)) {
        const int ofOther = runForOther(other);
        if (ofOther > int(ExitStatus::Failed))
            return ofOther; // interrupted
        status = std::max(status, ofOther);
    }
    return status;
}

} // namespace corvana
