#include "dialog/job/FilterChain.h"

#include <algorithm>
#include <csignal>
#include <utility>

#include <sys/prctl.h>
#include <sys/resource.h>
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
    // cupsfilter asks the print server for options of its own: it would wait for one that is
    // silent, and take whatever one says. All options of a job are on its command line.
    environment.insert(u"CUPS_SERVER"_s, u"/dev/null"_s);
    // And it looks for ~/.cups/lpoptions, of which it takes nothing that it would use, to the end,
    // which a file of another kind may not have. It gives no filter a home.
    environment.insert(u"HOME"_s, u"/dev/null"_s);
    return environment;
}

// What a program of ours that works on PDFs may use at most: a small hostile one can ask for much.
// Units: bytes.
constexpr rlim_t kMostMemory = rlim_t(4) << 30;
constexpr rlim_t kMostOutput = rlim_t(16) << 30;

// More pages than any document has. Whatever says more is not counting.
constexpr int kMostPages = 10000000;

// Whether a part that a former step has yielded is empty.
bool isEmptyPart(const QString &path)
{
    return QFileInfo(path).size() == 0;
}

// Errors: 0.
int pageCountIn(const QString &path)
{
    QFile file(path);
    constexpr qint64 kLongestNumber = 16;
    if (!file.open(QIODevice::ReadOnly) || file.size() > kLongestNumber)
        return 0;
    const int pages = file.readAll().trimmed().toInt();
    return pages <= kMostPages ? pages : 0;
}

// Whether a PDF has its end.
bool isCompletePdf(const QString &path)
{
    constexpr qint64 kTail = 32;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.seek(qMax(qint64(0), file.size() - kTail)) &&
           file.readAll().contains("%%EOF");
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
    m_process.setChildProcessModifier([this] {
        ::setpgid(0, 0);
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
        if (!m_patience.isActive())
            return;
        const rlimit memory{kMostMemory, kMostMemory};
        const rlimit output{kMostOutput, kMostOutput};
        ::setrlimit(RLIMIT_AS, &memory);
        ::setrlimit(RLIMIT_FSIZE, &output);
    });
    m_process.setProcessEnvironment(environmentOfChain());
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        m_tookTooLong = true;
        stop();
    });
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
    if (m_process.state() == QProcess::NotRunning)
        return;
    kill();
    m_process.waitForFinished(kPatience);
    removeFiles(m_left);
}

void FilterChain::start(const FilterPlan &plan, const QStringList &secrets)
{
    m_plan = plan;
    m_secrets = secrets;
    startNextStep();
}

// The arguments with the pages that are picked and without what turned out to be empty; none when
// nothing is left to work on.
QStringList FilterChain::argumentsOfStep(QString *problem) const
{
    const QStringList &parts = step().parts;
    if (!parts.isEmpty() && std::all_of(parts.cbegin(), parts.cend(), isEmptyPart))
        return {};
    QStringList arguments = step().arguments;
    arguments.removeIf(
        [&](const QString &argument) { return parts.contains(argument) && isEmptyPart(argument); });
    if (!step().pick)
        return arguments;
    const PagePick &pick = *step().pick;
    const int pages = pageCountIn(pick.counted);
    if (pages <= 0)
        *problem = tr("The document could not be converted for the printer: how many pages it has "
                      "could not be found out.");
    const QStringList picked = pickedPages(pick.choice, pages, pick.document, pick.blank);
    if (picked.isEmpty())
        return {};
    const qsizetype place = arguments.indexOf(kPickedPages);
    return arguments.first(place) + picked + arguments.sliced(place + 1);
}

// What has nothing to work on yields nothing.
void FilterChain::skipStep()
{
    m_output.setFileName(step().output);
    if (!m_output.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        m_writeError = m_output.errorString();
        return finish(problemOfWriting());
    }
    m_output.close();
    m_cameOutEmpty = true;
    if (m_plan.size() == 1 && step().yields == FilterStep::Yields::Something)
        return finish(noSuchPages());
    goOn();
}

void FilterChain::goOn()
{
    m_plan.removeFirst();
    if (m_plan.isEmpty())
        finish({});
    else
        startNextStep();
}

void FilterChain::startNextStep()
{
    m_log.begin(step().program);
    m_writeError.clear();
    QString problem;
    const QStringList arguments = argumentsOfStep(&problem);
    if (!problem.isEmpty())
        return finish(problem);
    if (arguments.isEmpty())
        return skipStep();
    m_output.setFileName(step().output);
    if (step().writes == FilterStep::Writes::StandardOutput &&
        !m_output.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        m_writeError = m_output.errorString();
        return finish(problemOfWriting());
    }
    m_process.setProgram(step().program);
    m_process.setArguments(arguments);
    qCInfo(lcJob).noquote() << step().program << withoutSecrets(arguments.join(u' '), m_secrets);
    if (step().patience.count() > 0)
        m_patience.start(step().patience);
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
    holdStill();
    signalGroup(SIGTERM);
    signalGroup(SIGCONT);
    QTimer::singleShot(kPatience, this, &FilterChain::kill);
}

void FilterChain::kill()
{
    holdStill();
    signalGroup(SIGKILL);
}

// What stands still makes no further files.
void FilterChain::holdStill()
{
    signalGroup(SIGSTOP);
    if (const qint64 program = m_process.processId(); program > 0)
        m_left += temporaryFilesOf(static_cast<pid_t>(program));
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
    const QByteArrayList lines = m_log.add(m_process.readAllStandardError());
    int page = 0;
    for (const QByteArray &line : lines) {
        qCDebug(lcJob).noquote() << withoutSecrets(QString::fromUtf8(line), m_secrets);
        page = qMax(page, pageInLine(line));
    }
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
    m_patience.stop();
    readLog();
    readOutput();
    closeOutput();
    // A filter of the chain may outlive the program that started it.
    if ((m_canceled || m_tookTooLong || !m_writeError.isEmpty()) && m_group > 0)
        ::kill(-m_group, SIGKILL);
    removeFiles(std::exchange(m_left, {}));
    m_cameOutEmpty = !m_canceled && !m_tookTooLong && m_writeError.isEmpty() &&
                     status == QProcess::NormalExit && exitCode == 0 && isEmptyPart(step().output);
    const QString problem = problemOfStep(exitCode, status);
    if (!problem.isEmpty())
        return finish(problem);
    goOn();
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
    if (m_tookTooLong)
        return tr("The document could not be converted for the printer: that took too long.");
    if (status != QProcess::NormalExit)
        return tr("The filter chain of CUPS crashed.");
    const QString said = withoutSecrets(m_log.error(), m_secrets);
    if (exitCode != 0)
        return tr("The document could not be converted for the printer: %1")
            .arg(said.isEmpty() ? tr("exit status %1").arg(exitCode) : said);
    const bool isEmpty = isEmptyPart(step().output);
    if (isEmpty && step().yields == FilterStep::Yields::Something)
        return tr("The document could not be converted for the printer: nothing came out. %1")
            .arg(said);
    if (isEmpty)
        return {};
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
