#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QSlider>
#include <QTest>

#include "tests/e2e/DialogDriver.h"
#include "tests/e2e/PanelChoices.h"
#include "tests/e2e/PpdLines.h"
#include "tests/e2e/SampleQueues.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// From the Print Setting panel of the dialog, through a queue of a print server, to the data that
/// its printer gets: what the summary says is what is printed, for each sample printer.
class QueueChoicesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<SampleQueues> m_queues;

    static void addPrinters()
    {
        QTest::addColumn<QString>("printer");
        for (const QString &printer : SampleQueues::printers())
            QTest::addRow("%s", qPrintable(printer)) << printer;
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        m_queues = std::make_unique<SampleQueues>();
    }
    void cleanupTestCase() { m_queues.reset(); }

    void everyChoiceReachesThePrinterAndTheSummary_data() { addPrinters(); }
    void everyChoiceReachesThePrinterAndTheSummary()
    {
        QFETCH(QString, printer);
        const PpdLines ppd(printer, u"en"_s);
        QList<PanelChoice> cases;
        {
            const auto driver = m_queues->open(printer);
            for (const PanelOption &option : panelOptions()) {
                for (const QString &choice : offeredChoices(*driver, ppd, option))
                    cases += {option.keyword, choice};
            }
        }
        QVERIFY2(cases.size() >= 10, qPrintable(QString::number(cases.size())));
        std::vector<SentJob> sent;
        for (const PanelJob &job : jobsFor(ppd, cases)) {
            auto driver = m_queues->open(printer);
            QString problem = chooseAll(*driver, job);
            QVERIFY2(problem.isEmpty(), qUtf8Printable(problem));
            problem = wrongLine(ppd, job, driver->summary());
            QVERIFY2(problem.isEmpty(), qUtf8Printable(problem));
            driver->pressPrint();
            sent.push_back({std::move(driver), job});
        }
        QSet<PanelChoice> printed;
        for (const SentJob &one : sent) {
            const QByteArray data = m_queues->printedBy(*one.driver, printer);
            QVERIFY2(!data.isEmpty(), qUtf8Printable(one.driver->message()));
            const QString problem = wrongCode(ppd, one.choices, data);
            QVERIFY2(problem.isEmpty(), qUtf8Printable(problem));
            for (const PanelChoice &choice : one.choices)
                printed += choice;
        }
        QCOMPARE(printed.size(), cases.size());
    }

    void sleepTimesAndDensitiesReachThePrinterUpToTheirBounds_data() { addPrinters(); }
    void sleepTimesAndDensitiesReachThePrinterUpToTheirBounds()
    {
        QFETCH(QString, printer);
        const PpdLines ppd(printer, u"en"_s);
        const auto minutes = ppd.numbers(u"QXSleepTime"_s, u"Time"_s);
        const auto densities = ppd.numbers(u"QXDensityAdjustment"_s, u"Density"_s);
        QVERIFY(minutes || densities);
        for (const bool most : {false, true}) {
            const auto driver = m_queues->open(printer);
            const auto bound = [most](const PpdLines::Numbers &numbers) {
                return QString::number(most ? numbers.maximum : numbers.minimum);
            };
            QMap<QString, QString> expectedLines;
            QByteArrayList expectedCodes;
            auto *mode = driver->control<QWidget>(u"sleepTimeMatrix"_s);
            if (minutes && driver->reach(mode)) {
                auto *field = driver->control<QLineEdit>(u"sleepTimeField"_s);
                QVERIFY(DialogDriver::choose(mode, u"Custom"_s));
                field->setFocus();
                field->selectAll();
                QApplication::clipboard()->setText(bound(*minutes));
                QTest::keySequence(field, QKeySequence::Paste);
                expectedLines.insert(minutes->text, bound(*minutes));
                expectedCodes +=
                    '\n' + bound(*minutes).toLatin1() + "\n<</CorvanaOption(QXSleepTime=Custom)";
            }
            if (densities) {
                auto *slider = driver->control<QSlider>(u"densitySlider"_s);
                QVERIFY(driver->reach(slider));
                QVERIFY(DialogDriver::choose(slider, bound(*densities)));
                expectedLines.insert(ppd.text(u"QXDensityAdjustment"_s), bound(*densities));
                // The printer's own density is a choice without a number.
                expectedCodes += bound(*densities) == u"0"_s
                                     ? ppd.code(u"QXDensityAdjustment"_s, u"0"_s)
                                     : '\n' + bound(*densities).toLatin1() +
                                           "\n<</CorvanaOption(QXDensityAdjustment=Custom)";
            }
            QVERIFY(!expectedCodes.isEmpty());
            const QMap<QString, QString> summary = driver->summary();
            for (auto line = expectedLines.cbegin(); line != expectedLines.cend(); ++line)
                QCOMPARE(summary.value(line.key()), line.value());
            driver->pressPrint();
            const QByteArray data = m_queues->printedBy(*driver, printer);
            QVERIFY2(!data.isEmpty(), qUtf8Printable(driver->message()));
            for (const QByteArray &code : std::as_const(expectedCodes))
                QVERIFY2(!code.isEmpty() && data.count(code) == 1, code.constData());
        }
    }
};

QTEST_MAIN(QueueChoicesTest)

#include "queue_choices_test.moc"
