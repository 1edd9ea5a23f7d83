#include "dialog/job/ProgramRun.h"

#include <csignal>
#include <utility>

#include <sys/prctl.h>
#include <sys/resource.h>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr rlim_t kMostMemory = rlim_t(2) << 30; // bytes of address space
constexpr int kPatienceAtEnd = 1000;            // milliseconds until a killed program is gone

// Called in the process of the program, before that begins.
void limit(int resource, rlim_t most)
{
    const rlimit limits{most, most};
    ::setrlimit(resource, &limits);
}

} // namespace

ProgramRun::ProgramRun(const QString &program, const QStringList &arguments, const Limits &limits,
                       QObject *parent)
    : QObject(parent), m_limits(limits)
{
    m_process.setProgram(program);
    m_process.setArguments(arguments);
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_process.setStandardErrorFile(QProcess::nullDevice());
    const auto seconds = static_cast<rlim_t>(limits.milliseconds / 1000 + 1);
    m_process.setChildProcessModifier([seconds] {
        limit(RLIMIT_AS, kMostMemory);
        limit(RLIMIT_CPU, seconds);
        limit(RLIMIT_CORE, 0);
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    });
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this,
            [this] { stop(u"took longer than %1 ms"_s.arg(m_limits.milliseconds)); });
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &ProgramRun::read);
    connect(&m_process, &QProcess::finished, this, &ProgramRun::ended);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            finish(u"cannot be started: "_s + m_process.errorString());
    });
}

ProgramRun::~ProgramRun()
{
    m_process.disconnect(this);
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.kill();
    m_process.waitForFinished(kPatienceAtEnd);
}

void ProgramRun::start()
{
    m_patience.start(m_limits.milliseconds);
    m_process.start();
}

void ProgramRun::read()
{
    const QByteArray data = m_process.readAllStandardOutput();
    if (!m_stopped.isEmpty())
        return;
    m_output += data;
    if (m_output.size() > m_limits.outputBytes)
        stop(u"said more than %1 bytes"_s.arg(m_limits.outputBytes));
}

void ProgramRun::stop(const QString &why)
{
    m_stopped = why;
    m_output.clear();
    m_process.kill();
}

void ProgramRun::ended(int exitCode, QProcess::ExitStatus status)
{
    read();
    if (!m_stopped.isEmpty())
        return finish(m_stopped);
    if (status != QProcess::NormalExit)
        return finish(u"crashed"_s);
    m_exitStatus = exitCode;
    finish(exitCode == 0 ? QString() : u"ended with status %1"_s.arg(exitCode));
}

// Never before start() returns.
void ProgramRun::finish(const QString &problem)
{
    m_patience.stop();
    if (std::exchange(m_told, true))
        return;
    const QString named =
        problem.isEmpty() ? QString() : u"%1 %2"_s.arg(m_process.program(), problem);
    QTimer::singleShot(0, this, [this, named] { Q_EMIT finished(m_output, named); });
}

} // namespace corvana
