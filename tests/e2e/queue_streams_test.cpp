#include <algorithm>

#include <QFile>
#include <QTest>

#include "tests/e2e/DialogDriver.h"
#include "tests/e2e/ProgramRunner.h"
#include "tests/e2e/SampleQueues.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kSample = corvana::test::sourceFile(u"resources/sample/welcome.pdf"_s);

/// Without the lines that are different in every job: its date and its number.
QByteArray comparable(const QByteArray &data)
{
    QByteArrayList lines = data.split('\n');
    lines.removeIf([](const QByteArray &line) { return line.startsWith("%%CreationDate: "); });
    return lines.join('\n');
}

/// Where two streams part, for a test that fails.
QByteArray firstDifference(const QByteArray &data, const QByteArray &other)
{
    const QByteArrayList lines = data.split('\n');
    const QByteArrayList otherLines = other.split('\n');
    for (qsizetype i = 0; i < std::max(lines.size(), otherLines.size()); ++i) {
        if (lines.value(i) != otherLines.value(i))
            return "line " + QByteArray::number(i + 1) + ": " + lines.value(i).left(200) + " / " +
                   otherLines.value(i).left(200);
    }
    return {};
}

} // namespace

/// A window, a run without one and a run into a file send the printer the same, whether the
/// server's filters have made it or those that the program itself has started.
class QueueStreamsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<SampleQueues> m_queues;

private Q_SLOTS:
    void initTestCase()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        m_queues = std::make_unique<SampleQueues>();
    }
    void cleanupTestCase() { m_queues.reset(); }

    void theWindowTheRunWithoutOneAndTheFilePrintTheSame_data()
    {
        QTest::addColumn<QString>("printer");
        QTest::addColumn<QStringList>("options");
        for (const QString &printer : SampleQueues::printers())
            QTest::addRow("%s, defaults", qPrintable(printer)) << printer << QStringList();
        QTest::newRow("corvana-cl5, both panels")
            << u"corvana-cl5"_s
            << QStringList{u"QXMediaType=Thick QXInputSlot=Tray1 QXResolution=1200dpi"_s,
                           u"Duplex=DuplexTumble QXColorMatching=Vivid QXRed=-5 QXBrightness=7"_s,
                           u"QXDensityAdjustment=-6 QXSleepTime=Custom.12"_s};
        QTest::newRow("corvana-cl5, monochrome on a paper of any size")
            << u"corvana-cl5"_s
            << QStringList{u"QXMonoColor=Mono QXContrast=4 PageSize=Custom.100x200mm"_s};
        QTest::newRow("corvana-cl5, two pages on a sheet")
            << u"corvana-cl5"_s << QStringList{u"number-up=2 sides=two-sided-short-edge"_s};
        QTest::newRow("corvana-ml3, a density")
            << u"corvana-ml3"_s << QStringList{u"QXDensityAdjustment=2"_s};
    }
    void theWindowTheRunWithoutOneAndTheFilePrintTheSame()
    {
        QFETCH(QString, printer);
        QFETCH(QStringList, options);
        const auto driver = m_queues->open(printer, options, kSample);
        driver->summary(); // every page has been seen
        driver->pressPrint();
        const QByteArray window = comparable(m_queues->printedBy(*driver, printer));
        QVERIFY2(!window.isEmpty(), qUtf8Printable(driver->message()));

        const ProgramRunner runner(m_queues->cups().server());
        QStringList arguments;
        for (const QString &option : options)
            arguments += {u"-o"_s, option};
        const RunEnd queued =
            runner.run(QStringList{u"-d"_s, printer} + arguments + QStringList{kSample});
        QVERIFY2(queued.status == 0, qUtf8Printable(queued.err));
        const QByteArray unattended =
            comparable(m_queues->cups().capture(printer).jobs().last().data);
        QVERIFY2(unattended == window, firstDifference(window, unattended).constData());

        const QString output = runner.filePath(u"job.ps"_s);
        const RunEnd filed = runner.run(
            QStringList{u"--ppd"_s, SampleQueues::ppdOf(printer), u"--output"_s, output} +
            arguments + QStringList{kSample});
        QVERIFY2(filed.status == 0, qUtf8Printable(filed.err));
        QFile file(output);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray written = comparable(file.readAll());
        QVERIFY2(written == window, firstDifference(window, written).constData());
    }
};

QTEST_MAIN(QueueStreamsTest)

#include "queue_streams_test.moc"
