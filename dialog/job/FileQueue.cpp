#include "dialog/job/FileQueue.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>

#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QStandardPaths>
#include <QTimer>

namespace corvana {

Q_LOGGING_CATEGORY(lcJob, "corvana.dialog.job", QtWarningMsg)

namespace {

// The destination "printer/foo" asks for the printer's own data format.
constexpr QLatin1StringView kPrinterFormat{"printer/foo"};

// How long a filter chain may take to clean up after it was told to stop. Units: milliseconds.
constexpr int kPatience = 3000;

// The permissions that the user's other programs give a new file. Temporary files are private.
mode_t usualPermissions()
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

bool isSameFile(const QString &one, const QString &other)
{
    const QString canonical = QFileInfo(one).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(other).canonicalFilePath();
}

// One option as cupsParseOptions() reads it back: a value with blanks or quotes stays one value.
QString optionArgument(const JobOption &option)
{
    QString value = option.value;
    const bool plain = std::none_of(value.cbegin(), value.cend(), [](QChar c) {
        return c.isSpace() || c == u'"' || c == u'\'' || c == u'\\' || c == u'{';
    });
    if (!plain) {
        value.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
        value = u'"' + value + u'"';
    }
    return QStringLiteral("%1=%2").arg(option.name, value);
}

QStringList filterArguments(const Document &document, const JobTicket &ticket,
                            const QString &ppdPath)
{
    QStringList arguments{QStringLiteral("-p"), ppdPath,
                          QStringLiteral("-i"), document.format,
                          QStringLiteral("-m"), kPrinterFormat,
                          QStringLiteral("-t"), ticket.title,
                          QStringLiteral("-n"), QString::number(ticket.copies)};
    for (const JobOption &option : ticket.options)
        arguments << QStringLiteral("-o") << optionArgument(option);
    return arguments << document.path;
}

// What the filter chain said last of its errors, without its prefix.
QString lastErrorLine(const QByteArray &log)
{
    QString last;
    const QList<QByteArray> lines = log.split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("ERROR:"))
            last = QString::fromUtf8(line.mid(6)).trimmed();
    }
    return last;
}

} // namespace

QString findCupsFilter(QString *error)
{
    const QString given = qEnvironmentVariable("CORVANA_PRINT_CUPSFILTER");
    if (!given.isEmpty()) {
        if (QFileInfo(given).isExecutable())
            return given;
        *error = QCoreApplication::translate(
                     "FileQueue", "The program %1, named by CORVANA_PRINT_CUPSFILTER, cannot be run.")
                     .arg(given);
        return {};
    }
    const QString name = QStringLiteral("cupsfilter");
    QString found = QStandardPaths::findExecutable(name);
    if (found.isEmpty())
        found = QStandardPaths::findExecutable(
            name, {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/local/sbin"),
                   QStringLiteral("/sbin")});
    if (found.isEmpty())
        *error = QCoreApplication::translate(
            "FileQueue",
            "The program cupsfilter was found neither on the path nor in /usr/sbin. It comes with "
            "CUPS (on Debian the package \"cups\").");
    return found;
}

FileQueue::FileQueue(QObject *parent) : QObject(parent)
{
    connect(&m_filter, &QProcess::finished, this, &FileQueue::filterFinished);
    connect(&m_filter, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            finish(tr("%1 cannot be started: %2").arg(m_filter.program(), m_filter.errorString()));
    });
}

FileQueue::~FileQueue()
{
    // A dialog that is closed in the midst of a job takes its filter chain along.
    m_filter.disconnect(this);
    signalFilterChain(SIGKILL);
    if (m_filter.state() != QProcess::NotRunning)
        m_filter.waitForFinished(kPatience);
}

void FileQueue::print(const Document &document, const JobTicket &ticket, const QString &ppdPath,
                      const QString &outputPath)
{
    m_ppdPath = ppdPath;
    m_outputPath = QFileInfo(outputPath).absoluteFilePath();
    QString problem;
    const QString program = findCupsFilter(&problem);
    if (program.isEmpty())
        return finish(problem);
    // The filter chain would do without a PPD, and print a file without any of the choices.
    if (!QFileInfo(ppdPath).isReadable())
        return finish(tr("%1 cannot be read.").arg(ppdPath));
    if (QFileInfo(m_outputPath).isDir())
        return finish(tr("%1 is a folder; the name of a file was expected.").arg(outputPath));
    if (QFileInfo::exists(m_outputPath) && !QFileInfo(m_outputPath).isFile())
        return finish(tr("%1 is a device or a pipe; the name of a file was expected.").arg(outputPath));
    if (isSameFile(m_outputPath, document.path))
        return finish(tr("%1 is the document itself; name another file.").arg(outputPath));
    // Beside the result, so that taking its place is one step.
    m_result = std::make_unique<QTemporaryFile>(m_outputPath + QStringLiteral(".XXXXXX.part"));
    if (!m_result->open())
        return finish(tr("%1 cannot be written: %2").arg(outputPath, m_result->errorString()));
    // The file takes its name only when it is asked for it, and does not say when that failed.
    if (m_result->fileName().isEmpty())
        return finish(tr("%1 cannot be written: %2").arg(outputPath, qt_error_string(errno)));
    m_result->close();

    m_filter.setProgram(program);
    m_filter.setArguments(filterArguments(document, ticket, ppdPath));
    m_filter.setStandardOutputFile(m_result->fileName());
    m_filter.setStandardInputFile(QProcess::nullDevice());
    // The chain is a process group, which can be stopped as a whole, and which ends with this program.
    m_filter.setChildProcessModifier([] {
        ::setpgid(0, 0);
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    });
    qCInfo(lcJob) << m_filter.program() << m_filter.arguments();
    m_filter.start();
}

void FileQueue::cancel()
{
    m_canceled = true;
    if (m_filter.state() == QProcess::NotRunning)
        return;
    signalFilterChain(SIGTERM);
    QTimer::singleShot(kPatience, this, [this] { signalFilterChain(SIGKILL); });
}

void FileQueue::signalFilterChain(int signal)
{
    const auto program = static_cast<pid_t>(m_filter.processId());
    // In its first moment the program is not the leader of its group yet.
    if (program > 0 && ::kill(-program, signal) != 0)
        ::kill(program, signal);
}

bool FileQueue::wait()
{
    QEventLoop loop;
    connect(this, &FileQueue::finished, &loop, &QEventLoop::quit);
    if (!m_done)
        loop.exec();
    return m_problem.isEmpty();
}

void FileQueue::filterFinished(int exitCode, QProcess::ExitStatus status)
{
    QString problem = problemOfFilter(exitCode, status);
    if (problem.isEmpty()) {
        m_result->setAutoRemove(false);
        ::chmod(QFile::encodeName(m_result->fileName()).constData(), usualPermissions());
        if (std::rename(QFile::encodeName(m_result->fileName()).constData(),
                        QFile::encodeName(m_outputPath).constData())
            != 0) {
            problem = tr("%1 cannot be written: %2").arg(m_outputPath, qt_error_string(errno));
            m_result->setAutoRemove(true);
        }
    }
    m_result.reset();
    finish(problem);
}

QString FileQueue::problemOfFilter(int exitCode, QProcess::ExitStatus status)
{
    const QByteArray log = m_filter.readAllStandardError();
    qCDebug(lcJob).noquote() << log;
    if (m_canceled)
        return tr("Printing was canceled.");
    if (status != QProcess::NormalExit)
        return tr("The filter chain of CUPS crashed.");
    const QString said = lastErrorLine(log);
    if (exitCode != 0)
        return tr("The document could not be converted for the printer: %1")
            .arg(said.isEmpty() ? tr("exit status %1").arg(exitCode) : said);
    if (QFileInfo(m_result->fileName()).size() == 0)
        return tr("The document could not be converted for the printer: nothing came out. %1").arg(said);
    return {};
}

// The one way in which a job ends; an empty problem means that it was printed.
void FileQueue::finish(const QString &problem)
{
    if (!problem.isEmpty())
        qCWarning(lcJob).noquote() << problem;
    QTimer::singleShot(0, this, [this, problem] {
        m_done = true;
        m_problem = problem;
        Q_EMIT finished(problem);
    });
}

} // namespace corvana
