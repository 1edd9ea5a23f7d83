#include "tests/support/cups/PrivateCups.h"

#include <algorithm>
#include <chrono>
#include <stdexcept>

#include <unistd.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QThread>
#include <QUrl>

#include "tests/support/cups/ServerFiles.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

using Permission = QFileDevice::Permission;

constexpr QFileDevice::Permissions onlyOwner =
    Permission::ReadOwner | Permission::WriteOwner | Permission::ExeOwner;
constexpr QFileDevice::Permissions everybodyReads = onlyOwner | Permission::ReadGroup |
                                                    Permission::ExeGroup | Permission::ReadOther |
                                                    Permission::ExeOther;

constexpr int answerTime = 10000; // milliseconds
constexpr auto failingFilter = "corvana-failing-filter";

bool isRoot()
{
    return ::geteuid() == 0;
}

void makeFolder(const QString &path, QFileDevice::Permissions permissions = everybodyReads)
{
    if (!QDir().mkpath(path) || !QFile::setPermissions(path, permissions))
        throw std::runtime_error("cannot make " + path.toStdString());
}

/// A folder with a link to every program of another one.
void makeFolderOfLinks(const QString &path, const QString &original)
{
    makeFolder(path);
    for (const QFileInfo &program : QDir(original).entryInfoList(QDir::Files | QDir::System))
        QFile::link(program.absoluteFilePath(), path + u'/' + program.fileName());
}

QByteArray limit(const QList<ipp_op_t> &operations, const QByteArray &rules)
{
    if (operations.isEmpty())
        return {};
    QByteArray names;
    for (const ipp_op_t operation : operations)
        names += QByteArray(" ") + ippOpString(operation);
    return "<Limit" + names + ">\n" + rules + "</Limit>\n";
}

ipp_t *newRequest(ipp_op_t operation, const char *target, const QString &uri)
{
    ipp_t *request = ippNewRequest(operation);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, target, nullptr,
                 uri.toUtf8().constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    return request;
}

QString textOf(ipp_attribute_t *attribute)
{
    return QString::fromUtf8(ippGetString(attribute, 0, nullptr));
}

KnownJob nextJob(ipp_t *answer, ipp_attribute_t **attribute)
{
    KnownJob job;
    for (; *attribute && ippGetGroupTag(*attribute) == IPP_TAG_JOB;
         *attribute = ippNextAttribute(answer)) {
        const QByteArray name = ippGetName(*attribute);
        if (name == "job-id")
            job.id = ippGetInteger(*attribute, 0);
        else if (name == "job-state")
            job.state = static_cast<ipp_jstate_t>(ippGetInteger(*attribute, 0));
        else if (name == "job-name")
            job.name = textOf(*attribute);
        else if (name == "job-originating-user-name")
            job.user = textOf(*attribute);
        else if (name == "job-printer-uri")
            job.queue = textOf(*attribute).section(u'/', -1);
        else if (name == "job-state-reasons") {
            for (int index = 0; index < ippGetCount(*attribute); ++index)
                job.reasons.append(QString::fromUtf8(ippGetString(*attribute, index, nullptr)));
        }
    }
    return job;
}

QByteArray withFilter(const QByteArray &ppd, const QByteArray &filter)
{
    QByteArray result;
    for (const QByteArray &line : ppd.split('\n')) {
        if (!line.startsWith("*cupsFilter"))
            result += line + '\n';
    }
    // The cheapest conversion counts, so it is the only one that goes to this printer.
    return result + "*cupsFilter2: \"application/vnd.cups-pdf application/vnd.corvana-test 0 " +
           filter + "\"\n";
}

} // namespace

PrivateCups::PrivateCups(const CupsSettings &settings) : m_settings(settings)
{
    makeFolders();
    installPrograms();
    writeConfiguration();
}

PrivateCups::~PrivateCups()
{
    stop();
}

bool PrivateCups::isAvailable()
{
    return !systemProgram(u"cupsd"_s).isEmpty() && !systemProgram(u"lpadmin"_s).isEmpty();
}

void PrivateCups::makeFolders() const
{
    if (!m_folder.isValid())
        throw std::runtime_error("no temporary folder");
    // The server of root runs filters as another user, who must get here.
    makeFolder(folder());
    for (const char *name : {"etc", "etc/ppd", "spool", "spool/tmp", "cache", "state", "log", "ssl",
                             "capture", "home"})
        makeFolder(m_folder.filePath(QString::fromLatin1(name)));
    // What a filter keeps for a moment; the sticky bit is of no use where there is one user.
    if (isRoot())
        QFile::setPermissions(m_folder.filePath(u"spool/tmp"_s),
                              everybodyReads | Permission::WriteGroup | Permission::WriteOther);
}

void PrivateCups::installPrograms() const
{
    const QString original = QStringLiteral(CORVANA_TEST_CUPS_SERVERBIN);
    const QString own = m_folder.filePath(u"bin"_s);
    makeFolder(own);
    for (const QString &name : QDir(original).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (name != u"backend" && name != u"filter")
            QFile::link(original + u'/' + name, own + u'/' + name);
    }
    makeFolderOfLinks(own + u"/backend"_s, original + u"/backend"_s);
    makeFolderOfLinks(own + u"/filter"_s, original + u"/filter"_s);

    // A copy belongs to whoever runs the test, as the server wants it. What nobody else may run, it
    // starts as root instead of as its user for filters, so that the test's folders are open to it.
    const QString backend = own + u"/backend/capture"_s;
    if (!QFile::copy(QStringLiteral(CORVANA_TEST_CAPTURE), backend) ||
        !QFile::setPermissions(backend, onlyOwner))
        fail(u"cannot install the capturing backend"_s);
    const QString filter = own + u"/filter/"_s + QString::fromLatin1(failingFilter);
    writeServerFile(filter, "#!/bin/sh\n"
                            "cat \"${6:--}\" >/dev/null\n"
                            "echo 'ERROR: This filter always fails.' >&2\n"
                            "exit 1\n");
    QFile::setPermissions(filter, everybodyReads);
}

void PrivateCups::writeConfiguration() const
{
    const QByteArray path = QFile::encodeName(folder());
    QByteArray files = "ServerRoot " + path + "/etc\nServerBin " + path + "/bin\nRequestRoot " +
                       path + "/spool\nTempDir " + path + "/spool/tmp\nCacheDir " + path +
                       "/cache\nStateDir " + path + "/state\nServerKeychain " + path +
                       "/ssl\nErrorLog " + path + "/log/error_log\nAccessLog " + path +
                       "/log/access_log\nPageLog " + path + "/log/page_log\nPrintcap " + path +
                       "/state/printcap\nFileDevice Yes\nSyncOnClose No\n";
    if (isRoot())
        files += "User lp\nGroup lp\n";
    writeServerFile(m_folder.filePath(u"etc/cups-files.conf"_s), files);

    const QByteArray everybody = "Order allow,deny\nAllow all\n";
    writeServerFile(
        m_folder.filePath(u"etc/cupsd.conf"_s),
        (m_settings.encryption == CupsSettings::Encryption::Always ? "SSLListen " : "Listen ") +
            server().toLatin1() +
            "\nLogLevel debug\nMaxLogSize 0\nBrowsing No\nWebInterface No\n"
            "DefaultAuthType Basic\nDefaultShared No\nDirtyCleanInterval 0\n"
            "ErrorPolicy abort-job\nServerAlias *\n"
            "<Location />\n" +
            everybody + "</Location>\n<Location /admin>\nAuthType None\n" + everybody +
            "</Location>\n"
            "<Policy default>\nJobPrivateAccess all\nJobPrivateValues none\n"
            "SubscriptionPrivateAccess all\nSubscriptionPrivateValues none\n" +
            limit(m_settings.authenticated, "AuthType Basic\nRequire user @SYSTEM\n" + everybody) +
            "<Limit All>\nAuthType "
            "None\n" +
            everybody + "</Limit>\n</Policy>\n" + m_settings.directives);
}

void PrivateCups::start()
{
    m_process.start(u"cupsd"_s,
                    {u"-f"_s, u"-c"_s, m_folder.filePath(u"etc/cupsd.conf"_s), u"-s"_s,
                     m_folder.filePath(u"etc/cups-files.conf"_s)},
                    m_folder.filePath(u"log/output"_s));
    if (!m_process.waitUntil([this] { return m_port.answers(); }))
        fail(u"cupsd does not start"_s);
}

void PrivateCups::stop()
{
    m_process.stop();
}

void PrivateCups::kill()
{
    m_process.kill();
}

void PrivateCups::restart()
{
    stop();
    start();
}

QString PrivateCups::queueUri(const QString &name) const
{
    return u"%1://%2/%3/%4"_s.arg(
        m_settings.encryption == CupsSettings::Encryption::Always ? u"ipps"_s : u"ipp"_s, server(),
        m_classes.contains(name) ? u"classes"_s : u"printers"_s,
        QString::fromLatin1(QUrl::toPercentEncoding(name)));
}

void PrivateCups::lpadmin(const QStringList &arguments) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Neither the configuration nor the certificates of the machine or its user are touched.
    environment.insert(u"CUPS_SERVERROOT"_s, m_folder.filePath(u"etc"_s));
    environment.insert(u"HOME"_s, m_folder.filePath(u"home"_s));
    if (m_settings.encryption == CupsSettings::Encryption::Always)
        environment.insert(u"CUPS_ENCRYPTION"_s, u"Always"_s);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(systemProgram(u"lpadmin"_s), QStringList{u"-h"_s, server()} + arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        fail(u"lpadmin "_s + arguments.join(u' ') + u": "_s +
             QString::fromUtf8(process.readAll().trimmed()));
}

void PrivateCups::addQueue(const QString &name, const QString &ppdPath,
                           const QueueSettings &settings)
{
    setUpQueue(name, {u"-P"_s, ppdPath}, settings);
}

void PrivateCups::addRawQueue(const QString &name, const QueueSettings &settings)
{
    setUpQueue(name, {u"-m"_s, u"raw"_s}, settings);
}

void PrivateCups::addEverywhereQueue(const QString &name, const QString &deviceUri)
{
    QueueSettings settings;
    settings.deviceUri = deviceUri;
    setUpQueue(name, {u"-m"_s, u"everywhere"_s}, settings);
    // cupsd asks the printer beside other work; until it has, the queue has no PPD.
    const QString ppd = m_folder.filePath(u"etc/ppd/%1.ppd"_s.arg(name));
    constexpr std::chrono::seconds kPatience{20};
    for (QDeadlineTimer end(kPatience); !QFile::exists(ppd);) {
        if (end.hasExpired())
            fail(u"no PPD for "_s + name);
        QThread::msleep(20);
    }
}

void PrivateCups::setUpQueue(const QString &name, const QStringList &driver,
                             const QueueSettings &settings) const
{
    QStringList arguments{u"-p"_s, name, u"-E"_s, u"-v"_s,
                          settings.deviceUri.isEmpty() ? capture(name).uri() : settings.deviceUri};
    arguments += driver;
    arguments += {u"-D"_s, settings.description, u"-L"_s, settings.location};
    if (!settings.users.isEmpty())
        arguments += {u"-u"_s, settings.users};
    for (const QString &option : settings.options)
        arguments += {u"-o"_s, option};
    lpadmin(arguments);
}

void PrivateCups::addClass(const QString &name, const QStringList &members)
{
    for (const QString &member : members)
        lpadmin({u"-p"_s, member, u"-c"_s, name});
    m_classes.append(name);
    startQueue(name);
    acceptJobs(name);
}

void PrivateCups::removeQueue(const QString &name)
{
    lpadmin({u"-x"_s, name});
    m_classes.removeAll(name);
}

void PrivateCups::setPpd(const QString &name, const QString &ppdPath)
{
    lpadmin({u"-p"_s, name, u"-P"_s, ppdPath});
}

void PrivateCups::setDefault(const QString &name)
{
    lpadmin({u"-d"_s, name});
}

void PrivateCups::stopQueue(const QString &name, const QString &reason)
{
    queueOperation(IPP_OP_PAUSE_PRINTER, name, reason);
}

void PrivateCups::startQueue(const QString &name)
{
    queueOperation(IPP_OP_RESUME_PRINTER, name, {});
}

void PrivateCups::rejectJobs(const QString &name, const QString &reason)
{
    queueOperation(IPP_OP_CUPS_REJECT_JOBS, name, reason);
}

void PrivateCups::acceptJobs(const QString &name)
{
    queueOperation(IPP_OP_CUPS_ACCEPT_JOBS, name, {});
}

void PrivateCups::queueOperation(ipp_op_t operation, const QString &name,
                                 const QString &reason) const
{
    ipp_t *request = newRequest(operation, "printer-uri", queueUri(name));
    if (!reason.isEmpty())
        ippAddString(request, IPP_TAG_PRINTER, IPP_TAG_TEXT, "printer-state-message", nullptr,
                     reason.toUtf8().constData());
    ask(request, "/admin/");
}

void PrivateCups::cancelJob(int id)
{
    ipp_t *request =
        newRequest(IPP_OP_CANCEL_JOB, "job-uri", u"ipp://%1/jobs/%2"_s.arg(server()).arg(id));
    ask(request, "/jobs/");
}

PrivateCups::Answer PrivateCups::ask(ipp_t *request, const char *resource) const
{
    const http_encryption_t encryption = m_settings.encryption == CupsSettings::Encryption::Always
                                             ? HTTP_ENCRYPTION_ALWAYS
                                             : HTTP_ENCRYPTION_IF_REQUESTED;
    const std::unique_ptr<http_t, void (*)(http_t *)> connection(
        httpConnect2("127.0.0.1", port(), nullptr, AF_INET, encryption, 1, answerTime, nullptr),
        httpClose);
    Answer answer(connection ? cupsDoRequest(connection.get(), request, resource) : nullptr,
                  ippDelete);
    if (!connection)
        ippDelete(request);
    if (!answer || ippGetStatusCode(answer.get()) > IPP_STATUS_OK_CONFLICTING)
        fail(u"the test's own request failed: "_s +
             QString::fromUtf8(connection ? cupsLastErrorString() : "no connection"));
    return answer;
}

QList<KnownJob> PrivateCups::jobs(const QString &name) const
{
    static const char *const wanted[] = {"job-id",          "job-state",
                                         "job-name",        "job-originating-user-name",
                                         "job-printer-uri", "job-state-reasons"};
    const QString everyQueue = u"ipp://%1/"_s.arg(server());
    ipp_t *request =
        newRequest(IPP_OP_GET_JOBS, "printer-uri", name.isEmpty() ? everyQueue : queueUri(name));
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr, "all");
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  std::size(wanted), nullptr, wanted);
    const Answer answer = ask(request, "/");

    QList<KnownJob> result;
    for (ipp_attribute_t *attribute = ippFirstAttribute(answer.get()); attribute;) {
        if (ippGetGroupTag(attribute) == IPP_TAG_JOB)
            result.append(nextJob(answer.get(), &attribute));
        else
            attribute = ippNextAttribute(answer.get());
    }
    std::sort(result.begin(), result.end(),
              [](const KnownJob &left, const KnownJob &right) { return left.id < right.id; });
    return result;
}

KnownJob PrivateCups::job(int id) const
{
    for (const KnownJob &job : jobs()) {
        if (job.id == id)
            return job;
    }
    return {};
}

CaptureDevice PrivateCups::capture(const QString &name) const
{
    const QString path = m_folder.filePath(u"capture/"_s + name);
    makeFolder(path);
    return CaptureDevice(path);
}

QString PrivateCups::errorLog() const
{
    return QString::fromUtf8(serverFile(m_folder.filePath(u"log/error_log"_s)));
}

QString PrivateCups::accessLog() const
{
    return QString::fromUtf8(serverFile(m_folder.filePath(u"log/access_log"_s)));
}

void PrivateCups::fail(const QString &what) const
{
    constexpr int tail = 2000; // bytes that tell enough
    throw std::runtime_error((what.toUtf8() + '\n' +
                              serverFile(m_folder.filePath(u"log/output"_s)).right(tail) +
                              serverFile(m_folder.filePath(u"log/error_log"_s)).right(tail))
                                 .toStdString());
}

QByteArray withFailingFilter(const QByteArray &ppd)
{
    return withFilter(ppd, failingFilter);
}

QByteArray withMissingFilter(const QByteArray &ppd)
{
    return withFilter(ppd, "corvana-missing-filter");
}

} // namespace corvana::test
