#include "tests/e2e/BothFaces.h"

#include <QFile>
#include <QLabel>
#include <QTest>

#include "dialog/app/CommandLine.h"
#include "dialog/app/RequestFromCommandLine.h"
#include "tests/e2e/DialogDriver.h"
#include "tests/e2e/ProgramRunner.h"
#include "tests/support/TestPaths.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 30000; // milliseconds that printing may take on a busy machine

QString textOf(const WindowDriver &window, const QString &name)
{
    const auto *label = window.child<QLabel>(name);
    return label && label->isVisible() ? label->text() : QString();
}

// Everything that the window says to whoever wants to print.
QString saidIn(const WindowDriver &window)
{
    QString said = textOf(window, u"messageText"_s) + textOf(window, u"waitingText"_s);
    said.remove(u'\u200B'); // where a long word may be broken
    return said.remove(u"What was asked for cannot be set:\n"_s);
}

} // namespace

QByteArray takeResult(const QString &path)
{
    QFile file(path);
    QByteArrayList lines;
    if (file.open(QIODevice::ReadOnly))
        lines = file.readAll().split('\n');
    lines.removeIf([](const QByteArray &line) { return line.startsWith("%%CreationDate: "); });
    file.remove();
    return lines.join('\n');
}

FaceEnd printInTerminal(const QStringList &arguments, const QString &output)
{
    ProgramRunner runner(u"127.0.0.1:1"_s);
    runner.setVariable(u"LC_ALL"_s, qEnvironmentVariable("LC_ALL"));
    const RunEnd run = runner.run(arguments);
    if (run.status == 0)
        return {{}, takeResult(output), true};
    const QString nothing = u"Nothing was printed.\n"_s;
    if (run.status != 1 || !run.err.endsWith(nothing))
        return {u"status %1: %2"_s.arg(run.status).arg(run.err)};
    QString said = run.err.chopped(nothing.size());
    said.replace(u"\ncorvana-print: "_s, u"\n"_s);
    return {said.remove(u"corvana-print: "_s).trimmed()};
}

FaceEnd printInWindow(const QStringList &arguments, const QString &output)
{
    using Phase = PrintTask::Phase;
    const ParsedCommandLine parsed = parseCommandLine(
        QStringList{u"corvana-print"_s, u"--bundle-root"_s, bundleRoot()} + arguments);
    QString error;
    auto request = preparePrintRequest(parsed.commandLine.value(), &error);
    if (!request)
        return {error};
    request->remembersLastUsed = false; // a run without a window knows nothing of it
    AlertAnswerer alerts;
    WindowDriver window(*request);
    const bool opened = QTest::qWaitFor(
        [&] {
            const Phase phase = window.dialog().task().phase();
            return phase == Phase::Ready || phase == Phase::Missing;
        },
        kPatience);
    if (!opened)
        return {u"the printer does not open"_s};
    if (const QString said = saidIn(window); !said.isEmpty())
        return {said};
    window.pressPrint();
    const bool ended = QTest::qWaitFor(
        [&] { return !window.dialog().isVisible() || !saidIn(window).isEmpty(); }, kPatience);
    if (!ended)
        return {u"the job does not end"_s};
    if (window.dialog().isVisible())
        return {saidIn(window)};
    return {{}, takeResult(output), true};
}

} // namespace corvana::test
