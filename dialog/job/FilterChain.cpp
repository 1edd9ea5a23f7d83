#include "dialog/job/FilterChain.h"

#include <csignal>

#include <sys/prctl.h>
#include <unistd.h>

#include <QFileInfo>
#include <QLoggingCategory>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QTimer>

namespace corvana {

Q_LOGGING_CATEGORY(lcJob, "corvana.dialog.job", QtWarningMsg)

namespace {

using namespace Qt::StringLiterals;

// How long a filter chain may take to clean up after it was told to stop. Units: milliseconds.
constexpr int kPatience = 3000;

// Where cupsfilter looks for filters and conversions. It says so to the filters, too. Whatever set
// these for another program does not decide what runs here.
constexpr QLatin1StringView kPlacesOfFilters[] = {"CUPS_SERVERBIN"_L1, "CUPS_SERVERROOT"_L1,
                                                  "CUPS_DATADIR"_L1};

QProcessEnvironment environmentOfChain()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QLatin1StringView name : kPlacesOfFilters)
        environment.remove(name);
    return environment;
}

// Whether a PDF has its end.
bool isCompletePdf(const QString &path)
{
    constexpr qint64 kTail = 32;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.seek(qMax(qint64(0), file.size() - kTail)) &&
           file.readAll().contains("%%EOF");
}

// Why a program failed, in its own words and without their prefix: what its filters said last, else
// what it said first itself, since the rest only follows from that.
QString errorInLog(const QByteArray &log, const QString &program)
{
    const QByteArray ownPrefix = QFileInfo(program).fileName().toUtf8() + ": ";
    QString ofFilters;
    QString own;
    const QList<QByteArray> lines = log.split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("ERROR:"))
            ofFilters = QString::fromUtf8(line.mid(6)).trimmed();
        else if (own.isEmpty() && line.startsWith(ownPrefix))
            own = QString::fromUtf8(line.mid(ownPrefix.size())).trimmed();
    }
    return ofFilters.isEmpty() ? own : ofFilters;
}

// The page that a line of the log speaks of, or 0.
int pageInLine(const QByteArray &line)
{
    static const QRegularExpression page(u"^DEBUG: Copying page ([0-9]{1,9})"_s);
    const QRegularExpressionMatch match = page.match(QString::fromUtf8(line));
    return match.hasMatch() ? match.captured(1).toInt() : 0;
}

} // namespace

FilterChain::FilterChain(QObject *parent) : QObject(parent)
{
    m_process.setChildProcessModifier([] {
        ::setpgid(0, 0);
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    });
    m_process.setProcessEnvironment(environmentOfChain());
    m_process.setStandardInputFile(QProcess::nullDevice());
    connect(&m_process, &QProcess::finished, this, &FilterChain::stepFinished);
    connect(&m_process, &QProcess::readyReadStandardError, this, &FilterChain::readLog);
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &FilterChain::readOutput);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            finish(
                tr("%1 cannot be started: %2").arg(m_process.program(), m_process.errorString()));
    });
}

FilterChain::~FilterChain()
{
    m_process.disconnect(this);
    signalGroup(SIGKILL);
    if (m_process.state() != QProcess::NotRunning)
        m_process.waitForFinished(kPatience);
}

void FilterChain::start(const FilterPlan &plan, const QStringList &secrets)
{
    m_plan = plan;
    m_secrets = secrets;
    startNextStep();
}

void FilterChain::startNextStep()
{
    m_log.clear();
    m_writeError.clear();
    m_output.setFileName(step().output);
    if (step().writes == FilterStep::Writes::StandardOutput &&
        !m_output.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        m_writeError = m_output.errorString();
        return finish(problemOfWriting());
    }
    m_process.setProgram(step().program);
    m_process.setArguments(step().arguments);
    qCInfo(lcJob).noquote() << step().program
                            << withoutSecrets(step().arguments.join(u' '), m_secrets);
    m_process.start();
    m_group = static_cast<pid_t>(m_process.processId());
}

void FilterChain::cancel()
{
    if (m_canceled || m_process.state() == QProcess::NotRunning)
        return;
    m_canceled = true;
    stop();
}

void FilterChain::stop()
{
    signalGroup(SIGTERM);
    QTimer::singleShot(kPatience, this, [this] { signalGroup(SIGKILL); });
}

void FilterChain::signalGroup(int signal)
{
    const auto program = static_cast<pid_t>(m_process.processId());
    // In its first moment the program is not the leader of its group yet.
    if (program > 0 && ::kill(-program, signal) != 0)
        ::kill(program, signal);
}

void FilterChain::readLog()
{
    const QByteArray said = m_process.readAllStandardError();
    // A line at a time: what comes at once may end anywhere in it.
    const qsizetype begun = m_log.lastIndexOf('\n') + 1;
    m_log += said;
    const qsizetype end = m_log.lastIndexOf('\n') + 1;
    if (end <= begun)
        return;
    const QByteArray whole = m_log.mid(begun, end - begun - 1);
    qCDebug(lcJob).noquote() << withoutSecrets(QString::fromUtf8(whole), m_secrets);
    int page = 0;
    const QList<QByteArray> lines = whole.split('\n');
    for (const QByteArray &line : lines)
        page = qMax(page, pageInLine(line));
    if (page > 0)
        Q_EMIT pageReached(page);
}

void FilterChain::readOutput()
{
    const QByteArray data = m_process.readAllStandardOutput();
    if (!m_output.isOpen() || !m_writeError.isEmpty())
        return;
    // A disk takes what still fits and says why not more at the next try.
    for (qint64 written = 0; written < data.size();) {
        const qint64 taken = m_output.write(data.constData() + written, data.size() - written);
        if (taken <= 0) {
            m_writeError = m_output.errorString();
            return stop();
        }
        written += taken;
    }
}

// Some file systems say only now what they could not write.
void FilterChain::closeOutput()
{
    if (!m_output.isOpen())
        return;
    m_output.close();
    if (m_writeError.isEmpty() && m_output.error() != QFileDevice::NoError)
        m_writeError = m_output.errorString();
}

void FilterChain::stepFinished(int exitCode, QProcess::ExitStatus status)
{
    readLog();
    readOutput();
    closeOutput();
    // A filter of the chain may outlive the program that started it.
    if ((m_canceled || !m_writeError.isEmpty()) && m_group > 0)
        ::kill(-m_group, SIGKILL);
    m_cameOutEmpty = !m_canceled && m_writeError.isEmpty() && status == QProcess::NormalExit &&
                     exitCode == 0 && QFileInfo(step().output).size() == 0;
    const QString problem = problemOfStep(exitCode, status);
    if (!problem.isEmpty())
        return finish(problem);
    m_plan.removeFirst();
    if (m_plan.isEmpty())
        finish({});
    else
        startNextStep();
}

QString FilterChain::problemOfWriting() const
{
    return tr("%1 cannot be written: %2").arg(step().outputName, m_writeError);
}

QString FilterChain::problemOfStep(int exitCode, QProcess::ExitStatus status) const
{
    if (m_canceled)
        return tr("Printing was canceled.");
    if (!m_writeError.isEmpty())
        return problemOfWriting();
    if (status != QProcess::NormalExit)
        return tr("The filter chain of CUPS crashed.");
    const QString said = withoutSecrets(errorInLog(m_log, step().program), m_secrets);
    if (exitCode != 0)
        return tr("The document could not be converted for the printer: %1")
            .arg(said.isEmpty() ? tr("exit status %1").arg(exitCode) : said);
    if (QFileInfo(step().output).size() == 0)
        return tr("The document could not be converted for the printer: nothing came out. %1")
            .arg(said);
    if (step().writes == FilterStep::Writes::FileOfItsOwn && !isCompletePdf(step().output))
        return tr("The documents could not be put together: %1 is incomplete. Is the disk full?")
            .arg(step().outputName);
    return {};
}

// Never before start() returns. A result that is complete is told at once, so that nothing comes
// between that and its publication.
void FilterChain::finish(const QString &problem)
{
    QTimer::singleShot(0, this, [this, problem] { Q_EMIT finished(problem); });
}

} // namespace corvana
