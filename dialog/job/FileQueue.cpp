#include "dialog/job/FileQueue.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTimer>

#include "dialog/job/PpdFilters.h"
#include "dialog/session/JobAttributes.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcJob, "corvana.dialog.job", QtWarningMsg)

namespace {

// The destination "printer/foo" asks for the printer's own data format.
constexpr QLatin1StringView kPrinterFormat{"printer/foo"};
constexpr QLatin1StringView kPdf{"application/pdf"};
// A PDF that the filter for the layout of pages has been at; a mere PDF passes through untouched.
constexpr QLatin1StringView kLaidOutPdf{"application/vnd.cups-pdf"};

// What it is called beside the parts of a job.
constexpr QLatin1StringView kPpdOfChain{"printer.ppd"};

// How long a filter chain may take to clean up after it was told to stop. Units: milliseconds.
constexpr int kPatience = 3000;

// Where cupsfilter looks for filters and conversions. It says so to the filters, too. Whatever set
// these for another program does not decide what runs here.
constexpr const char *kPlacesOfFilters[] = {"CUPS_SERVERBIN", "CUPS_SERVERROOT", "CUPS_DATADIR"};

QProcessEnvironment environmentOfChain()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : kPlacesOfFilters)
        environment.remove(QLatin1StringView(name));
    return environment;
}

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

QString escaped(QString value)
{
    return value.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
}

// One option as cupsParseOptions() reads it back: a value with blanks or quotes stays one value.
QString optionArgument(const JobOption &option)
{
    QString value = option.value;
    const bool plain = std::none_of(value.cbegin(), value.cend(), [](QChar c) {
        return c.isSpace() || c == u'"' || c == u'\'' || c == u'\\' || c == u'{';
    });
    if (!plain)
        value = u'"' + escaped(value) + u'"';
    return QStringLiteral("%1=%2").arg(option.name, value);
}

// `more` are further arguments of the program.
QStringList conversionArguments(const Document &document, const QString &ppdPath,
                                QLatin1StringView format, const QStringList &more,
                                const QList<JobOption> &options)
{
    QStringList arguments{QStringLiteral("-p"), ppdPath, QStringLiteral("-i"), document.format,
                          QStringLiteral("-m"), format};
    arguments += more;
    for (const JobOption &option : options)
        arguments << QStringLiteral("-o") << optionArgument(option);
    return arguments << document.path;
}

// What shapes the pages of a text or a picture; everything else applies to the whole job.
bool isForPages(const JobOption &option)
{
    return isAppliedTo(JobAttribute::AppliedTo::Document, option);
}

QList<JobOption> pageOptions(const QList<JobOption> &options)
{
    QList<JobOption> chosen = options;
    chosen.removeIf([](const JobOption &option) {
        return option.name != QLatin1StringView("PageSize") && !isForPages(option);
    });
    return chosen;
}

// Whether a PDF has its end.
bool isCompletePdf(const QString &path)
{
    constexpr qint64 kTail = 32;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.seek(qMax(qint64(0), file.size() - kTail)) &&
           file.readAll().contains("%%EOF");
}

// Gives a file a name that nothing has yet. Errors: false; errno says why.
bool takeFreeName(const QByteArray &from, const QByteArray &to)
{
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return true;
    // Not every file system can do that.
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    return ::access(to.constData(), F_OK) != 0 ? std::rename(from.constData(), to.constData()) == 0
                                               : (errno = EEXIST, false);
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

// The page that a line of the log speaks of, or 0.
int pageInLine(const QByteArray &line)
{
    static const QRegularExpression page(QStringLiteral("^DEBUG: Copying page ([0-9]{1,9})"));
    const QRegularExpressionMatch match = page.match(QString::fromUtf8(line));
    return match.hasMatch() ? match.captured(1).toInt() : 0;
}

} // namespace

QString findCupsFilter(QString *error)
{
    const QString given = qEnvironmentVariable("CORVANA_PRINT_CUPSFILTER");
    if (!given.isEmpty()) {
        if (QFileInfo(given).isExecutable())
            return given;
        *error =
            QCoreApplication::translate(
                "FileQueue", "The program %1, named by CORVANA_PRINT_CUPSFILTER, cannot be run.")
                .arg(given);
        return {};
    }
    const QString name = QStringLiteral("cupsfilter");
    QString found = QStandardPaths::findExecutable(name);
    if (found.isEmpty())
        found = QStandardPaths::findExecutable(name, {QStringLiteral("/usr/sbin"),
                                                      QStringLiteral("/usr/local/sbin"),
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
    // The chain is a process group, which can be stopped as a whole, and which ends with this
    // program.
    m_process.setChildProcessModifier([] {
        ::setpgid(0, 0);
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    });
    m_process.setProcessEnvironment(environmentOfChain());
    connect(&m_process, &QProcess::finished, this, &FileQueue::stepFinished);
    connect(&m_process, &QProcess::readyReadStandardError, this, &FileQueue::readLog);
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &FileQueue::readOutput);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            finish(
                tr("%1 cannot be started: %2").arg(m_process.program(), m_process.errorString()));
    });
}

FileQueue::~FileQueue()
{
    // A dialog that is closed in the midst of a job takes its filter chain along.
    m_process.disconnect(this);
    signalChain(SIGKILL);
    if (m_process.state() != QProcess::NotRunning)
        m_process.waitForFinished(kPatience);
}

void FileQueue::print(const Document &document, const JobTicket &ticket, const QString &ppdPath,
                      const QString &outputPath)
{
    print(QList<Document>{document}, ticket, ppdPath, outputPath);
}

void FileQueue::print(const QList<Document> &documents, const JobTicket &ticket,
                      const QString &ppdPath, const QString &outputPath)
{
    start(documents, ticket, ppdPath, outputPath, Result::PrinterData);
}

void FileQueue::unite(const QList<Document> &documents, const JobTicket &ticket,
                      const QString &ppdPath, const QString &outputPath,
                      const QList<JobOption> &layout)
{
    m_layout = layout;
    start(documents, ticket, ppdPath, outputPath, Result::Pdf);
}

bool FileQueue::shapesDocuments(const QList<JobOption> &options)
{
    return std::any_of(options.cbegin(), options.cend(), isForPages);
}

void FileQueue::start(const QList<Document> &documents, const JobTicket &ticket,
                      const QString &ppdPath, const QString &outputPath, Result result)
{
    // A link stays a link: the result takes the place of what it leads to.
    const QFileInfo output(outputPath);
    m_outputName = outputPath;
    m_secrets = ticket.secrets;
    for (const QString &secret : ticket.secrets)
        m_secrets += escaped(secret);
    m_replaces = output.exists();
    m_outputPath = output.exists() ? output.canonicalFilePath() : output.absoluteFilePath();
    if (!output.exists() && output.isSymLink())
        m_outputPath = output.symLinkTarget();
    const QString problem = prepare(documents, ticket, ppdPath, result);
    if (problem.isEmpty())
        startNextStep();
    else
        finish(problem);
}

// Lists the steps of the job and makes the files that they write. Answers what stands in the way.
QString FileQueue::prepare(const QList<Document> &documents, const JobTicket &ticket,
                           const QString &ppdPath, Result result)
{
    QString problem;
    const QString filter = findCupsFilter(&problem);
    if (filter.isEmpty())
        return problem;
    problem = takePpd(ppdPath, result);
    if (!problem.isEmpty())
        return problem;
    if (QFileInfo(m_outputPath).isDir())
        return tr("%1 is a folder; the name of a file was expected.").arg(m_outputName);
    if (QFileInfo::exists(m_outputPath) && !QFileInfo(m_outputPath).isFile())
        return tr("%1 is a device or a pipe; the name of a file was expected.").arg(m_outputName);
    for (const Document &document : documents) {
        if (isSameFile(m_outputPath, document.path))
            return tr("%1 is the document itself; name another file.").arg(m_outputName);
    }
    // Beside the result, so that taking its place is one step.
    m_result = std::make_unique<QTemporaryFile>(m_outputPath + QStringLiteral(".XXXXXX.part"));
    if (!m_result->open())
        return tr("%1 cannot be written: %2").arg(m_outputName, m_result->errorString());
    // The file takes its name only when it is asked for it, and does not say when that failed.
    if (m_result->fileName().isEmpty())
        return tr("%1 cannot be written: %2").arg(m_outputName, qt_error_string(errno));
    m_result->close();

    const QString ppd = m_parts->filePath(kPpdOfChain);
    if (result == Result::Pdf && m_layout.isEmpty()) {
        addStepsToUnite(documents, ticket, ppd, filter, m_result->fileName());
        return {};
    }
    if (result == Result::Pdf) {
        const Document whole{m_parts->filePath(QStringLiteral("whole.pdf")), kPdf, ticket.title};
        addStepsToUnite(documents, ticket, ppd, filter, whole.path);
        m_steps.push_back({filter,
                           conversionArguments(whole, ppd, kLaidOutPdf, {},
                                               pageOptions(ticket.options) + m_layout),
                           m_result->fileName()});
        return {};
    }
    Document whole = documents.value(0);
    if (documents.size() > 1) {
        whole = {m_parts->filePath(QStringLiteral("whole.pdf")), kPdf, ticket.title};
        addStepsToUnite(documents, ticket, ppd, filter, whole.path);
    }
    m_steps.push_back(
        {filter,
         // The PPD's own filters are used only on demand; without them everything
         // would become PostScript.
         conversionArguments(whole, ppd, kPrinterFormat,
                             {QStringLiteral("-e"), QStringLiteral("-t"), ticket.title,
                              QStringLiteral("-n"), QString::number(ticket.copies)},
                             ticket.options),
         m_result->fileName()});
    return {};
}

// The chain gets a PPD that is its own: what was looked at is what its filters read, whoever writes
// the other one. Answers what stands in the way.
QString FileQueue::takePpd(const QString &ppdPath, Result result)
{
    // The filter chain would do without a PPD, and print a file without any of the choices.
    if (!QFileInfo(ppdPath).isReadable())
        return tr("%1 cannot be read.").arg(ppdPath);
    m_parts = std::make_unique<QTemporaryDir>();
    if (!m_parts->isValid())
        return m_parts->errorString();
    const QString own = m_parts->filePath(kPpdOfChain);
    QFile ppd(ppdPath);
    if (!ppd.copy(own))
        return tr("%1 cannot be read: %2").arg(ppdPath, ppd.errorString());
    // A PDF is made by filters of the system only.
    return result == Result::PrinterData ? problemOfPpdFilters(own).replace(own, ppdPath)
                                         : QString();
}

void FileQueue::addStepsToUnite(const QList<Document> &documents, const JobTicket &ticket,
                                const QString &ppdPath, const QString &filter,
                                const QString &outputFile)
{
    const auto conversion = [&](const Document &document, const QString &file) {
        m_steps.push_back(
            {filter, conversionArguments(document, ppdPath, kPdf, {}, pageOptions(ticket.options)),
             file});
    };
    if (documents.size() == 1)
        return conversion(documents.constFirst(), outputFile);
    QStringList parts;
    for (const Document &document : documents) {
        parts += m_parts->filePath(QString::number(parts.size()) + QStringLiteral(".pdf"));
        conversion(document, parts.constLast());
    }
    m_steps.push_back(
        {QStringLiteral("pdfunite"), parts << outputFile, outputFile, Writes::FileOfItsOwn});
}

void FileQueue::startNextStep()
{
    const Step &step = m_steps.front();
    m_log.clear();
    m_writeError.clear();
    m_output.setFileName(step.outputFile);
    if (step.writes == Writes::StandardOutput &&
        !m_output.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        m_writeError = m_output.errorString();
        return finish(problemOfWriting());
    }
    m_process.setProgram(step.program);
    m_process.setArguments(step.arguments);
    m_process.setStandardInputFile(QProcess::nullDevice());
    qCInfo(lcJob).noquote() << m_process.program()
                            << withoutSecrets(m_process.arguments().join(u' '), m_secrets);
    m_process.start();
    m_chain = static_cast<pid_t>(m_process.processId());
}

void FileQueue::cancel()
{
    if (m_canceled || m_process.state() == QProcess::NotRunning)
        return;
    m_canceled = true;
    stopChain();
}

void FileQueue::stopChain()
{
    signalChain(SIGTERM);
    QTimer::singleShot(kPatience, this, [this] { signalChain(SIGKILL); });
}

void FileQueue::signalChain(int signal)
{
    const auto program = static_cast<pid_t>(m_process.processId());
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

void FileQueue::readLog()
{
    const QByteArray said = m_process.readAllStandardError();
    // A line at a time: what comes at once may end anywhere in it.
    const qsizetype begun = m_log.lastIndexOf('\n') + 1;
    m_log += said;
    if (const qsizetype end = m_log.lastIndexOf('\n') + 1; end > begun)
        qCDebug(lcJob).noquote() << withoutSecrets(
            QString::fromUtf8(m_log.mid(begun, end - begun - 1)), m_secrets);
    int page = 0;
    const QList<QByteArray> lines = said.split('\n');
    for (const QByteArray &line : lines)
        page = qMax(page, pageInLine(line));
    if (page > 0)
        Q_EMIT pageReached(page);
}

void FileQueue::readOutput()
{
    const QByteArray data = m_process.readAllStandardOutput();
    if (!m_output.isOpen() || !m_writeError.isEmpty())
        return;
    // A disk takes what still fits and says why not more at the next try.
    for (qint64 written = 0; written < data.size();) {
        const qint64 taken = m_output.write(data.constData() + written, data.size() - written);
        if (taken <= 0) {
            m_writeError = m_output.errorString();
            return stopChain();
        }
        written += taken;
    }
}

// Some file systems say only now what they could not write.
void FileQueue::closeOutput()
{
    if (!m_output.isOpen())
        return;
    m_output.close();
    if (m_writeError.isEmpty() && m_output.error() != QFileDevice::NoError)
        m_writeError = m_output.errorString();
}

void FileQueue::stepFinished(int exitCode, QProcess::ExitStatus status)
{
    readLog();
    readOutput();
    closeOutput();
    // A filter of the chain may outlive the program that started it.
    if ((m_canceled || !m_writeError.isEmpty()) && m_chain > 0)
        ::kill(-m_chain, SIGKILL);
    const QString problem = problemOfStep(exitCode, status);
    if (!problem.isEmpty())
        return finish(problem);
    m_steps.erase(m_steps.begin());
    if (m_steps.empty())
        finish(takeResult());
    else
        startNextStep();
}

// Moves the result to its name. Answers why that failed.
QString FileQueue::takeResult()
{
    const QByteArray from = QFile::encodeName(m_result->fileName());
    const QByteArray to = QFile::encodeName(m_outputPath);
    ::chmod(from.constData(), usualPermissions());
    if (m_replaces ? std::rename(from.constData(), to.constData()) != 0 : !takeFreeName(from, to)) {
        if (errno == EEXIST)
            return tr("%1 was written by another program meanwhile, and is left as it is. Print "
                      "again to replace it, or name another file.")
                .arg(m_outputName);
        return tr("%1 cannot be written: %2").arg(m_outputName, qt_error_string(errno));
    }
    m_result->setAutoRemove(false);
    return {};
}

QString FileQueue::problemOfWriting() const
{
    const bool result = m_steps.size() == 1;
    return tr("%1 cannot be written: %2")
        .arg(result ? m_outputName : m_steps.front().outputFile, m_writeError);
}

QString FileQueue::problemOfStep(int exitCode, QProcess::ExitStatus status)
{
    if (m_canceled)
        return tr("Printing was canceled.");
    if (!m_writeError.isEmpty())
        return problemOfWriting();
    if (status != QProcess::NormalExit)
        return tr("The filter chain of CUPS crashed.");
    const QString said = withoutSecrets(lastErrorLine(m_log), m_secrets);
    if (exitCode != 0)
        return tr("The document could not be converted for the printer: %1")
            .arg(said.isEmpty() ? tr("exit status %1").arg(exitCode) : said);
    const Step &step = m_steps.front();
    if (QFileInfo(step.outputFile).size() == 0)
        return tr("The document could not be converted for the printer: nothing came out. %1")
            .arg(said);
    if (step.writes == Writes::FileOfItsOwn && !isCompletePdf(step.outputFile))
        return tr("The documents could not be put together: %1 is incomplete. Is the disk full?")
            .arg(step.outputFile);
    return {};
}

// The one way in which a job ends; an empty problem means that it was printed.
void FileQueue::finish(const QString &problem)
{
    // Whoever printed tells the user; a warning would say the same once more.
    if (!problem.isEmpty())
        qCInfo(lcJob).noquote() << problem;
    m_result.reset();
    m_parts.reset();
    QTimer::singleShot(0, this, [this, problem] {
        m_done = true;
        m_problem = problem;
        Q_EMIT finished(problem);
    });
}

} // namespace corvana
