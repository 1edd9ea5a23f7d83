#include "tests/support/cups/PrivateCups.h"

#include <algorithm>
#include <stdexcept>

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QUrl>

namespace corvana::test {

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

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("cannot write " + path.toStdString());
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
    return !systemProgram(QStringLiteral("cupsd")).isEmpty() &&
           !systemProgram(QStringLiteral("lpadmin")).isEmpty();
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
        QFile::setPermissions(m_folder.filePath(QStringLiteral("spool/tmp")),
                              everybodyReads | Permission::WriteGroup | Permission::WriteOther);
}

void PrivateCups::installPrograms() const
{
    const QString original = QStringLiteral(CORVANA_TEST_CUPS_SERVERBIN);
    const QString own = m_folder.filePath(QStringLiteral("bin"));
    makeFolder(own);
    for (const QString &name : QDir(original).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (name != u"backend" && name != u"filter")
            QFile::link(original + u'/' + name, own + u'/' + name);
    }
    makeFolderOfLinks(own + QStringLiteral("/backend"), original + QStringLiteral("/backend"));
    makeFolderOfLinks(own + QStringLiteral("/filter"), original + QStringLiteral("/filter"));

    // A copy belongs to whoever runs the test, as the server wants it. What nobody else may run, it
    // starts as root instead of as its user for filters, so that the test's folders are open to it.
    const QString backend = own + QStringLiteral("/backend/capture");
    if (!QFile::copy(QStringLiteral(CORVANA_TEST_CAPTURE), backend) ||
        !QFile::setPermissions(backend, onlyOwner))
        fail(QStringLiteral("cannot install the capturing backend"));
    const QString filter = own + QStringLiteral("/filter/") + QString::fromLatin1(failingFilter);
    write(filter, "#!/bin/sh\n"
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
    write(m_folder.filePath(QStringLiteral("etc/cups-files.conf")), files);

    const QByteArray everybody = "Order allow,deny\nAllow all\n";
    write(
        m_folder.filePath(QStringLiteral("etc/cupsd.conf")),
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
    m_process.start(QStringLiteral("cupsd"),
                    {QStringLiteral("-f"), QStringLiteral("-c"),
                     m_folder.filePath(QStringLiteral("etc/cupsd.conf")), QStringLiteral("-s"),
                     m_folder.filePath(QStringLiteral("etc/cups-files.conf"))},
                    m_folder.filePath(QStringLiteral("log/output")));
    if (!m_process.waitUntil([this] { return m_port.answers(); }))
        fail(QStringLiteral("cupsd does not start"));
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
    return QStringLiteral("%1://%2/%3/%4")
        .arg(m_settings.encryption == CupsSettings::Encryption::Always ? QStringLiteral("ipps")
                                                                       : QStringLiteral("ipp"),
             server(),
             m_classes.contains(name) ? QStringLiteral("classes") : QStringLiteral("printers"),
             QString::fromLatin1(QUrl::toPercentEncoding(name)));
}

void PrivateCups::lpadmin(const QStringList &arguments) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Neither the configuration nor the certificates of the machine or its user are touched.
    environment.insert(QStringLiteral("CUPS_SERVERROOT"), m_folder.filePath(QStringLiteral("etc")));
    environment.insert(QStringLiteral("HOME"), m_folder.filePath(QStringLiteral("home")));
    if (m_settings.encryption == CupsSettings::Encryption::Always)
        environment.insert(QStringLiteral("CUPS_ENCRYPTION"), QStringLiteral("Always"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(systemProgram(QStringLiteral("lpadmin")),
                  QStringList{QStringLiteral("-h"), server()} + arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        fail(QStringLiteral("lpadmin ") + arguments.join(u' ') + QStringLiteral(": ") +
             QString::fromUtf8(process.readAll().trimmed()));
}

void PrivateCups::addQueue(const QString &name, const QString &ppdPath,
                           const QueueSettings &settings)
{
    setUpQueue(name, {QStringLiteral("-P"), ppdPath}, settings);
}

void PrivateCups::addRawQueue(const QString &name, const QueueSettings &settings)
{
    setUpQueue(name, {QStringLiteral("-m"), QStringLiteral("raw")}, settings);
}

void PrivateCups::addEverywhereQueue(const QString &name, const QString &deviceUri)
{
    QueueSettings settings;
    settings.deviceUri = deviceUri;
    setUpQueue(name, {QStringLiteral("-m"), QStringLiteral("everywhere")}, settings);
}

void PrivateCups::setUpQueue(const QString &name, const QStringList &driver,
                             const QueueSettings &settings) const
{
    QStringList arguments{QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
                          settings.deviceUri.isEmpty() ? capture(name).uri() : settings.deviceUri};
    arguments += driver;
    arguments +=
        {QStringLiteral("-D"), settings.description, QStringLiteral("-L"), settings.location};
    if (!settings.users.isEmpty())
        arguments += {QStringLiteral("-u"), settings.users};
    for (const QString &option : settings.options)
        arguments += {QStringLiteral("-o"), option};
    lpadmin(arguments);
}

void PrivateCups::addClass(const QString &name, const QStringList &members)
{
    for (const QString &member : members)
        lpadmin({QStringLiteral("-p"), member, QStringLiteral("-c"), name});
    m_classes.append(name);
    startQueue(name);
    acceptJobs(name);
}

void PrivateCups::removeQueue(const QString &name)
{
    lpadmin({QStringLiteral("-x"), name});
    m_classes.removeAll(name);
}

void PrivateCups::setPpd(const QString &name, const QString &ppdPath)
{
    lpadmin({QStringLiteral("-p"), name, QStringLiteral("-P"), ppdPath});
}

void PrivateCups::setDefault(const QString &name)
{
    lpadmin({QStringLiteral("-d"), name});
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
    ipp_t *request = newRequest(IPP_OP_CANCEL_JOB, "job-uri",
                                QStringLiteral("ipp://%1/jobs/%2").arg(server()).arg(id));
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
        fail(QStringLiteral("the test's own request failed: ") +
             QString::fromUtf8(connection ? cupsLastErrorString() : "no connection"));
    return answer;
}

QList<KnownJob> PrivateCups::jobs(const QString &name) const
{
    static const char *const wanted[] = {"job-id",          "job-state",
                                         "job-name",        "job-originating-user-name",
                                         "job-printer-uri", "job-state-reasons"};
    const QString everyQueue = QStringLiteral("ipp://%1/").arg(server());
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
    const QString path = m_folder.filePath(QStringLiteral("capture/") + name);
    makeFolder(path);
    return CaptureDevice(path);
}

QString PrivateCups::errorLog() const
{
    return QString::fromUtf8(content(m_folder.filePath(QStringLiteral("log/error_log"))));
}

QString PrivateCups::accessLog() const
{
    return QString::fromUtf8(content(m_folder.filePath(QStringLiteral("log/access_log"))));
}

void PrivateCups::fail(const QString &what) const
{
    constexpr int tail = 2000; // bytes that tell enough
    throw std::runtime_error(
        (what.toUtf8() + '\n' +
         content(m_folder.filePath(QStringLiteral("log/output"))).right(tail) +
         content(m_folder.filePath(QStringLiteral("log/error_log"))).right(tail))
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
