#include "fuzz/support/Target.h"

#include <cstdio>
#include <cstdlib>

#include <QApplication>
#include <QTemporaryDir>

namespace corvana::fuzz {

namespace {

// Targets are made before main() begins, in any order.
const Target *&firstTarget()
{
    static const Target *first = nullptr;
    return first;
}

// What is logged has been put together by then, so that its text was read to the end.
void logNothing(QtMsgType, const QMessageLogContext &, const QString &) {}

void setEnvironment(const QByteArray &home)
{
    qputenv("HOME", home);
    for (const char *folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qputenv(folder, home + '/' + folder);
    qputenv("CUPS_SERVER", "/nonexistent/cups.sock");
    qputenv("CUPS_SERVERROOT", "/nonexistent");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    for (const char *name : {"LANGUAGE", "LPDEST", "PRINTER", "DISPLAY", "WAYLAND_DISPLAY"})
        qunsetenv(name);
}

} // namespace

Target::Target(const char *name, Run function)
    : m_name(name), m_run(function), m_next(firstTarget())
{
    firstTarget() = this;
}

const Target *Target::named(std::string_view name)
{
    const Target *target = firstTarget();
    while (target && target->m_name != name)
        target = target->m_next;
    return target;
}

void require(bool holds, const char *promise, const QString &detail)
{
    if (holds)
        return;
    std::fprintf(stderr, "\nbroken: %s\n%s\n", promise, detail.toUtf8().constData());
    std::fflush(stderr);
    std::abort();
}

void prepareProgram(int &argc, char **argv)
{
    static const QTemporaryDir home;
    setEnvironment(home.path().toUtf8());
    if (!qEnvironmentVariableIsSet("CORVANA_FUZZ_LOG"))
        qInstallMessageHandler(logNothing);
    static QApplication application(argc, argv);
}

} // namespace corvana::fuzz
