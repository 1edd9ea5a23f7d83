#include <QTemporaryDir>
#include <QTest>

#include "dialog/printers/PrinterFetching.h"
#include "dialog/task/OpenedPrinter.h"
#include "platform/pde/PDEPanel.h"
#include "tests/dialog/support/LoadedBundle.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/ScriptedAlertPresenter.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

class OpenedPrinterTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    ScriptedAlertPresenter m_presenter;

    Printer printerOf(const QByteArray &ppd)
    {
        Printer printer;
        printer.name = u"test"_s;
        printer.ppdPath = writeFile(m_folder.filePath(u"test.ppd"_s), ppd);
        return printer;
    }
    std::unique_ptr<OpenedPrinter> opened(const Printer &printer, const QStringList &roots)
    {
        QString error;
        auto result = openPrinter(printerWithItsFile(printer), roots, m_presenter, &error);
        if (!result)
            qWarning().noquote() << error;
        return result;
    }

private Q_SLOTS:
    void aPrinterThatNamesTheBundleHasItsPanels()
    {
        const auto printer = opened({u"cl5"_s, u"CL"_s, samplePpdPath(), 5}, builtBundleRoots());
        QVERIFY(printer);
        QCOMPARE(printer->panels->panels().size(), 2);
        QVERIFY(printer->jobValues);
        QVERIFY(printer->panelProblem.isEmpty());
        QCOMPARE(printer->fetched.printer.name, u"cl5"_s);
    }

    void anotherPrinterHasNoPanelsAndThatIsNoProblem()
    {
        const auto printer = opened(printerOf(PpdBuilder().text()), builtBundleRoots());
        QVERIFY(printer);
        QVERIFY(printer->panels->panels().isEmpty());
        QVERIFY(!printer->jobValues);
        QVERIFY(printer->panelProblem.isEmpty());
    }

    // CUPS gives queues of some PPDs a default that nobody has asked for.
    void aMadeUpDefaultMakesNoPrinterGray()
    {
        struct Row
        {
            const char *model;
            bool isMadeUp;
        };
        for (const Row &row : {Row{"RGB", false}, Row{"CMYK", false}, Row{"color", true}}) {
            FetchedPrinter fetched = printerWithItsFile(
                printerOf(PpdBuilder()
                              .option("ColorModel", "Color Model", row.model,
                                      {{row.model, row.model}, {"grayscale", "Gray"}})
                              .text()));
            const QList<JobOption> said{{u"print-color-mode"_s, u"monochrome"_s},
                                        {u"number-up"_s, u"2"_s}};
            fetched.defaults = said;
            QString error;
            const auto printer = openPrinter(fetched, {}, m_presenter, &error);
            QVERIFY2(printer, qPrintable(error));
            QCOMPARE(printer->fetched.defaults, row.isMadeUp ? said.mid(1) : said);
        }
    }

    void aMissingBundleIsTheProblemOfAPrinterThatWantsIt()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"none of the trusted folders"_s));
        const auto printer = opened({u"cl5"_s, u"CL"_s, samplePpdPath(), 5}, {m_folder.path()});
        QVERIFY(printer);
        QVERIFY(printer->panels->panels().isEmpty());
        QVERIFY2(printer->panelProblem.contains(u"QXCLQuality13PDE.bundle"_s),
                 qPrintable(printer->panelProblem));
    }

    void aPpdThatCannotBeReadIsTheError()
    {
        QString error;
        QVERIFY(!openPrinter(printerWithItsFile({u"x"_s, u"x"_s, u"/nowhere/x.ppd"_s, 0}),
                             builtBundleRoots(), m_presenter, &error));
        QVERIFY2(error.startsWith(u"/nowhere/x.ppd: "_s), qPrintable(error));
    }

    void eachPrinterHasASessionAndPanelsOfItsOwn()
    {
        const Printer sample{u"cl5"_s, u"CL"_s, samplePpdPath(), 5};
        const auto one = opened(sample, builtBundleRoots());
        const auto other = opened(sample, builtBundleRoots());
        QVERIFY(one && other);
        QVERIFY(one->session->ppd() != other->session->ppd());
        QVERIFY(one->panels->panels().at(0) != other->panels->panels().at(0));
        one->session->change(u"QXMediaType"_s, u"Thick"_s, PpdSession::Origin::Dialog);
        QCOMPARE(other->session->markedChoice(u"QXMediaType"_s), u"Plain"_s);
    }
};

QTEST_MAIN(OpenedPrinterTest)

#include "opened_printer_test.moc"
