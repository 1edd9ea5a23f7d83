#pragma once

#include <memory>

#include <QStandardPaths>
#include <QTest>

#include "dialog/session/OptionRequest.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/support/OwnHome.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/dialog/task/TruthSamples.h"
#include "tests/support/TestPaths.h"
#include "tests/support/cups/PrivateCups.h"

namespace corvana::test {

inline constexpr int kHandPatience = 60000; // milliseconds that a queue may take on a busy machine

/// Jobs on a queue whose printer turns no sheets over, with a person who does. The base of tests.
class ByHandScene : public QObject
{
    Q_OBJECT

protected:
    using Phase = PrintTask::Phase;

    std::unique_ptr<OwnHome> m_home;
    std::unique_ptr<Variable> m_serverRoot;
    std::unique_ptr<PrivateCups> m_cups;
    std::unique_ptr<TaskScene> m_scene;
    std::unique_ptr<Variable> m_filter; // the real one, in place of the scene's

    PrintTask &task() { return *m_scene->task; }
    ScriptedFace &face() { return m_scene->face; }

    // The sample printer without a duplexer, with further lines.
    void addQueue(const QByteArray &lines = {}, const QueueSettings &settings = {})
    {
        QFile sample(sourceFile(QStringLiteral("resources/ppd/corvana-cl2.ppd")));
        QVERIFY(sample.open(QIODevice::ReadOnly));
        QByteArray ppd = sample.readAll() + lines;
        if (lines.contains("PDF"))
            ppd.replace("application/vnd.cups-postscript application/postscript",
                        "application/vnd.cups-pdf application/pdf");
        m_cups->addQueue(QStringLiteral("office"),
                         writeFile(m_home->filePath(QStringLiteral("office.ppd")), ppd), settings);
    }
    PrintRequest request(Kind kind, const QString &options)
    {
        PrintRequest request = m_scene->request(QList<Printer>());
        request.documents = documentsOf(kind, m_home->path());
        request.server = *ServerAddress::parse(m_cups->server());
        request.serverWasNamed = true;
        request.wantedPrinter = QStringLiteral("office");
        request.options = parseOptions({options});
        return request;
    }
    void open(const PrintRequest &request)
    {
        m_scene->make(request).start();
        QVERIFY2(m_scene->reaches(Phase::Opened), qPrintable(task().problem().text));
        task().bringUp();
        QCOMPARE(task().phase(), Phase::Ready);
    }
    SheetPreview preview()
    {
        task().countSheets();
        // The first sheets of a long document are known before the whole of it.
        const auto isKnown = [&] {
            return task().sheetPreview().state == SheetPreview::State::Known;
        };
        return QTest::qWaitFor(isKnown, kHandPatience) ? task().sheetPreview() : SheetPreview();
    }
    bool waitForTheEnd()
    {
        return QTest::qWaitFor(
            [&] { return !face().outcomes.isEmpty() || !face().refusals.isEmpty(); },
            kHandPatience);
    }
    bool waitForTheQuestion(qsizetype number = 1)
    {
        return QTest::qWaitFor([&] { return face().turns.size() >= number; }, kHandPatience);
    }
    QList<CapturedJob> jobs() const { return m_cups->capture(QStringLiteral("office")).jobs(); }

private Q_SLOTS:
    void initTestCase()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        if (QStandardPaths::findExecutable(QStringLiteral("gs")).isEmpty())
            QSKIP("Ghostscript is not installed");
    }
    void init()
    {
        m_home = std::make_unique<OwnHome>();
        m_serverRoot = std::make_unique<Variable>("CUPS_SERVERROOT", "/nonexistent");
        m_cups = std::make_unique<PrivateCups>();
        m_cups->start();
        m_scene = std::make_unique<TaskScene>();
        m_filter = std::make_unique<Variable>("CORVANA_PRINT_CUPSFILTER", "");
    }
    void cleanup()
    {
        m_filter.reset();
        m_scene.reset();
        m_cups.reset();
        m_serverRoot.reset();
        m_home.reset();
    }
};

} // namespace corvana::test
