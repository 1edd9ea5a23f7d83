#include "tests/e2e/ProgramRunner.h"
#include "tests/support/TestPaths.h"

#include <csignal>
#include <stdexcept>

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace corvana::test {

namespace {

constexpr int kPatience = 30000; // milliseconds that a run may take on a busy machine

} // namespace

QByteArray RunEnd::text() const
{
    return u"status %1\n%2%3"_s.arg(status).arg(out, err).toUtf8();
}

ProgramRun::ProgramRun(const QProcessEnvironment &environment, const QStringList &arguments,
                       const QString &standardInput)
{
    m_process.setProcessEnvironment(environment);
    m_process.setWorkingDirectory(environment.value(u"HOME"_s));
    m_process.setStandardInputFile(standardInput.isEmpty() ? QProcess::nullDevice()
                                                           : standardInput);
    // In a session of its own, which no terminal controls, wherever the tests are run from.
    m_process.setChildProcessModifier([] { ::setsid(); });
    m_process.start(QStringLiteral(CORVANA_TEST_PROGRAM),
                    QStringList{u"--no-dialog"_s, u"--bundle-root"_s, corvana::test::bundleRoot()} +
                        arguments);
    if (!m_process.waitForStarted())
        throw std::runtime_error("the program cannot be started");
}

ProgramRun::~ProgramRun()
{
    if (isRunning()) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

bool ProgramRun::isRunning()
{
    return m_process.state() != QProcess::NotRunning;
}

QString ProgramRun::out()
{
    read();
    return QString::fromUtf8(m_out);
}

QString ProgramRun::err()
{
    read();
    return QString::fromUtf8(m_err);
}

void ProgramRun::read()
{
    m_out += m_process.readAllStandardOutput();
    m_err += m_process.readAllStandardError();
}

void ProgramRun::interrupt()
{
    if (isRunning())
        ::kill(static_cast<pid_t>(m_process.processId()), SIGINT);
}

RunEnd ProgramRun::wait()
{
    // The event loop turns, for servers that live in the test's own process.
    const bool ended = QTest::qWaitFor([this] { return !isRunning(); }, kPatience);
    if (!ended) {
        m_process.kill();
        m_process.waitForFinished();
    }
    const bool exited = ended && m_process.exitStatus() == QProcess::NormalExit;
    return {exited ? m_process.exitCode() : -1, out(), err()};
}

ProgramRunner::ProgramRunner(const QString &server)
    : m_environment(QProcessEnvironment::systemEnvironment())
{
    if (!m_home.isValid())
        throw std::runtime_error(m_home.errorString().toStdString());
    for (const char *name : {"LANGUAGE", "LANG", "LC_MESSAGES", "LPDEST", "PRINTER", "DISPLAY",
                             "WAYLAND_DISPLAY", "QT_LOGGING_RULES", "CORVANA_PRINT_PATIENCE",
                             "CORVANA_PRINT_CUPSFILTER", "QT_QPA_PLATFORM"})
        m_environment.remove(QString::fromLatin1(name));
    setVariable(u"LC_ALL"_s, u"C.UTF-8"_s);
    setVariable(u"HOME"_s, m_home.path());
    for (const char *name :
         {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"}) {
        const QString folder = filePath(QString::fromLatin1(name));
        QDir().mkpath(folder);
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        setVariable(QString::fromLatin1(name), folder);
    }
    setVariable(u"CUPS_SERVER"_s, server);
    setVariable(u"CUPS_SERVERROOT"_s, u"/nonexistent"_s);
    // No desktop is there to be asked.
    for (const char *name : {"DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"})
        setVariable(QString::fromLatin1(name), u"disabled:"_s);
}

void ProgramRunner::setVariable(const QString &name, const QString &value)
{
    m_environment.insert(name, value);
}

void ProgramRunner::setUserOptions(const QByteArray &lines)
{
    QDir(m_home.path()).mkpath(u".cups"_s);
    QFile file(filePath(u".cups/lpoptions"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(lines) != lines.size())
        throw std::runtime_error("lpoptions cannot be written");
}

std::unique_ptr<ProgramRun> ProgramRunner::start(const QStringList &arguments,
                                                 const QString &standardInput) const
{
    return std::make_unique<ProgramRun>(m_environment, arguments, standardInput);
}

RunEnd ProgramRunner::run(const QStringList &arguments, const QString &standardInput) const
{
    return start(arguments, standardInput)->wait();
}

int jobNamed(const QString &queue, const QString &text)
{
    const QRegularExpression name(QRegularExpression::escape(queue) + u"-(\\d+)"_s);
    return name.match(text).captured(1).toInt();
}

} // namespace corvana::test
