#include <QSignalSpy>
#include <QTest>

#include "dialog/printers/PrinterFetching.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/task/TaskHistory.h"
#include "tests/dialog/policy/TestPolicy.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Phase = PrintTask::Phase;

namespace {

PrintRequest with(PrintRequest request, const QString &options)
{
    request.options = parseOptions({options});
    return request;
}

// What only a printer that knows its options takes.
PpdBuilder plainPrinter()
{
    return PpdBuilder().option("Ink", "Ink", "Black", {{"Black", "Black"}, {"Blue", "Blue"}});
}

} // namespace

/// Printers that come, change and go while a task is open: what goes along with the user, what
/// stays with its printer, and what the task says of it.
class TaskPrintersTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TaskScene> m_scene;

    PrintRequest two(const QByteArray &first, const QByteArray &second)
    {
        return m_scene->request(
            {m_scene->printer(u"first"_s, first), m_scene->printer(u"second"_s, second)});
    }
    PrintTask &task() { return *m_scene->task; }
    FetchedPrinter fetched(const QByteArray &ppd)
    {
        QString error;
        return {task().printer(), temporaryPpd(ppd, &error)};
    }
    // As the source of printers tells it.
    void becomes(const QByteArray &ppd) { Q_EMIT task().printers().ready(fetched(ppd)); }

private Q_SLOTS:
    void init() { m_scene = std::make_unique<TaskScene>(); }
    void cleanup() { m_scene.reset(); }

    // Copies beyond what a printer makes

    void moreCopiesThanThePrinterMakes_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<bool>("byCommandLine"); // -n
        QTest::addColumn<bool>("isRefused");     // where nobody has seen the number
        QTest::newRow("of an option") << u"copies=9"_s << false << true;
        QTest::newRow("of -n") << QString() << true << true;
        QTest::newRow("of a program") << QString() << false << false;
    }
    void moreCopiesThanThePrinterMakes()
    {
        QFETCH(QString, option);
        QFETCH(bool, byCommandLine);
        QFETCH(bool, isRefused);
        PrintRequest request = with(m_scene->request(officePrinter()), option);
        request.copies = option.isEmpty() ? 9 : 1;
        request.copiesWereNamed = byCommandLine;
        m_scene->make(request).startUnattended();
        FetchedPrinter five = fetched(officePrinter().text());
        PrinterCapabilities capabilities;
        capabilities.maximumCopies = 5;
        five.capabilities = std::make_shared<const PrinterCapabilities>(capabilities);
        Q_EMIT task().printers().ready(five);
        // A face shows it before the panels are up, and before the number of the options is known.
        QCOMPARE(task().phase(), Phase::Opened);
        QCOMPARE(task().settings().copies(), option.isEmpty() ? 5 : 1);
        task().print();
        const QString problem = u"The printer prints at most 5 copies at once, not 9."_s;
        QCOMPARE(m_scene->face.problems(), isRefused ? QStringList(problem) : QStringList());
        QVERIFY2(m_scene->face.message().contains(problem), qPrintable(m_scene->face.message()));
        if (isRefused)
            task().print(); // it was seen
        QVERIFY(m_scene->reaches(Phase::Ended));
        QVERIFY(m_scene->arguments().contains("5"));
        QVERIFY(!m_scene->arguments().contains("9"));
    }

    // What goes along

    // The first printer may take none of the options, and with them not the pages.
    void pagesThatOnlyTheSecondPrinterTakesAreItsPages()
    {
        const PrintRequest request = with(two(plainPrinter().text(), officePrinter().text()),
                                          u"Tray=Lower page-ranges=1-2"_s);
        m_scene->open(request);
        QVERIFY(!m_scene->face.messages.isEmpty());
        QCOMPARE(task().settings().pageRanges(), QString());
        task().choosePrinter(request.printers.at(1));
        task().bringUp();
        QCOMPARE(task().settings().pageRanges(), u"1-2"_s);
    }

    void pagesOfTheRequestOutlastAPrinterThatNeverCameUp()
    {
        const PrintRequest request =
            with(two(officePrinter().text(), officePrinter().text()), u"page-ranges=1-2"_s);
        m_scene->make(request).start();
        task().choosePrinter(request.printers.at(1));
        task().bringUp();
        QCOMPARE(task().settings().pageRanges(), u"1-2"_s);
    }

    void pagesThatTheUserHasClearedStayCleared()
    {
        const PrintRequest request =
            with(two(officePrinter().text(), officePrinter().text()), u"page-ranges=1-2"_s);
        m_scene->open(request);
        task().settings().setPageRanges({});
        task().choosePrinter(request.printers.at(1));
        task().bringUp();
        QCOMPARE(task().settings().pageRanges(), QString());
    }

    void aPrinterThatComesWhileTheUserIsAskedIsTakenAfterwards()
    {
        writeFile(m_scene->filter.output(), "former");
        m_scene->open(m_scene->request(officePrinter()));
        m_scene->face.overwrites = false;
        m_scene->face.meanwhile = [this] {
            becomes(plainPrinter().text());
            QTest::qWait(500); // longer than the task looks whether the user is done
        };
        task().print();
        QCOMPARE(m_scene->face.refusals.size(), 1);
        QVERIFY(ppdOption(m_scene->session().ppd(), u"Tray"_s)); // the question was about this one
        QVERIFY(m_scene->reaches(Phase::Opened));
        QVERIFY(ppdOption(m_scene->session().ppd(), u"Ink"_s));
    }

    void aPrinterThatComesWhileAnAlertIsOpenIsTakenAfterwards()
    {
        m_scene->open(m_scene->request(officePrinter()));
        m_scene->face.busy = true;
        becomes(plainPrinter().text());
        QTest::qWait(500);
        QCOMPARE(task().phase(), Phase::Ready);
        m_scene->face.busy = false;
        QVERIFY(m_scene->reaches(Phase::Opened));
        QVERIFY(ppdOption(m_scene->session().ppd(), u"Ink"_s));
    }

    void settingsOutlastAChangeOfThePrintersOptions()
    {
        m_scene->open(m_scene->request(officePrinter()));
        task().propose(u"Tray"_s, u"Lower"_s);
        task().propose(u"Staple"_s, u"Left"_s);
        becomes(officePrinter().option("Ink", "Ink", "Black", {{"Black", "Black"}}).text());
        task().bringUp();
        QCOMPARE(m_scene->session().markedChoice(u"Tray"_s), u"Lower"_s);
        QCOMPARE(m_scene->session().markedChoice(u"Staple"_s), u"Left"_s);
        QCOMPARE(m_scene->face.messages.size(), 1);
        QVERIFY2(m_scene->face.message().contains(u"yours were kept"_s),
                 qPrintable(m_scene->face.message()));
    }

    // A server that was away may come back with other options.
    void stepsOutlastAChangeOfThePrintersOptions()
    {
        m_scene->open(m_scene->request(officePrinter()));
        task().bringUp();
        task().propose(u"Tray"_s, u"Lower"_s);
        QTest::qWait(1); // the step is recorded
        task().propose(u"Staple"_s, u"Left"_s);
        QTest::qWait(1);
        becomes(officePrinter().option("Ink", "Ink", "Black", {{"Black", "Black"}}).text());
        task().bringUp();
        QVERIFY(task().history().canUndo());
        task().history().undo();
        QCOMPARE(m_scene->session().markedChoice(u"Staple"_s), u"OFF"_s);
        QCOMPARE(m_scene->session().markedChoice(u"Tray"_s), u"Lower"_s);
        QCOMPARE(m_scene->session().markedChoice(u"Ink"_s), u"Black"_s);
        QVERIFY(task().history().canUndo());
        task().history().undo();
        QCOMPARE(m_scene->session().markedChoice(u"Tray"_s), u"Auto"_s);
        QVERIFY(!task().history().canUndo());
        task().history().redo();
        task().history().redo();
        QCOMPARE(m_scene->session().markedChoice(u"Staple"_s), u"Left"_s);
        QCOMPARE(m_scene->session().markedChoice(u"Tray"_s), u"Lower"_s);
    }

    // Which of them was the user's is known by how that printer was opened, not another one of its
    // model.
    void stepsOfAPrinterAreNotComparedWithAnotherOne()
    {
        PrintRequest request = two(officePrinter().text(), officePrinter().text());
        request.policy = policyFrom("[printer second]\nlock.Media=Card\n");
        m_scene->open(request);
        task().bringUp();
        // The same options on both, and others when the first one comes back.
        const QByteArray ppd =
            officePrinter()
                .option("Ink", "Ink", "Black", {{"Black", "Black"}, {"Blue", "Blue"}})
                .text();
        becomes(ppd);
        task().bringUp();
        task().propose(u"Media"_s, u"Card"_s);
        task().propose(u"Ink"_s, u"Blue"_s);
        QTest::qWait(1); // the step is recorded
        task().choosePrinter(request.printers.at(1));
        QVERIFY(m_scene->reaches(Phase::Opened));
        becomes(ppd);
        task().bringUp();
        QTest::qWait(1);
        QCOMPARE(m_scene->session().markedChoice(u"Media"_s), u"Card"_s);
        task().history().undo();
        QVERIFY(m_scene->reaches(Phase::Opened));
        m_scene->face.messages.clear(); // of what the user had left there, which is the same
        task().bringUp();
        QVERIFY2(m_scene->face.message().contains(u"name Ink"_s),
                 qPrintable(m_scene->face.message()));
        QCOMPARE(task().printer().name, u"first"_s);
        QVERIFY(!ppdOption(m_scene->session().ppd(), u"Ink"_s));
        QCOMPARE(m_scene->session().markedChoice(u"Media"_s), u"Card"_s);
    }

    void whatAStepCannotBringBackIsSaid()
    {
        m_scene->open(m_scene->request(officePrinter()));
        task().bringUp();
        task().propose(u"Staple"_s, u"Left"_s);
        QTest::qWait(1); // the step is recorded
        task().propose(u"Staple"_s, u"OFF"_s);
        QTest::qWait(1);
        becomes(plainPrinter().text());
        task().bringUp();
        m_scene->face.messages.clear();
        task().history().undo();
        QVERIFY2(m_scene->face.message().contains(u"could be set as before"_s) &&
                     m_scene->face.message().contains(u"name Staple"_s),
                 qPrintable(m_scene->face.message()));
        // It has come down to what this printer has of it.
        m_scene->face.messages.clear();
        task().history().undo();
        QCOMPARE(m_scene->face.message(), QString());
    }

    // What it took along is an option that the printer has not any more.
    void aBookletIsTakenBackWhereThePrinterNoLongerTurnsSheetsOver()
    {
        m_scene->open(m_scene->request(smallPrinter()));
        task().bringUp();
        QCOMPARE(task().setAttribute(u"booklet"_s, u"left"_s), QString());
        QTest::qWait(1); // the step is recorded
        QCOMPARE(task().setAttribute(u"mirror"_s, u"true"_s), QString());
        QTest::qWait(1);
        becomes(plainPrinter().text());
        task().bringUp();
        QVERIFY(!ppdOption(m_scene->session().ppd(), u"Duplex"_s));
        task().history().undo();
        QCOMPARE(task().settings().attribute(u"booklet"_s), u"left"_s);
        QCOMPARE(task().setAttribute(u"booklet"_s, u"no"_s), QString());
    }

    // What an administrator has set is not what the user has chosen, however often that changes.
    void aDefaultThatChangesTwiceIsTheLastOne()
    {
        const auto withMedium = [](const QByteArray &medium) {
            return officePrinter().text().replace("*DefaultMedia: Plain",
                                                  "*DefaultMedia: " + medium);
        };
        m_scene->open(m_scene->request(officePrinter()));
        task().propose(u"Tray"_s, u"Lower"_s);
        for (const char *medium : {"Card", "Film", "Creme"}) {
            becomes(withMedium(medium));
            task().bringUp();
            QCOMPARE(m_scene->session().markedChoice(u"Media"_s), QString::fromLatin1(medium));
            QCOMPARE(m_scene->session().markedChoice(u"Tray"_s), u"Lower"_s);
            task().propose(u"Punch"_s, QLatin1StringView(medium) == "Card"_L1 ? u"ON"_s : u"OFF"_s);
        }
        task().propose(u"Media"_s, u"Plain"_s);
        becomes(withMedium("Card"));
        task().bringUp();
        QCOMPARE(m_scene->session().markedChoice(u"Media"_s), u"Plain"_s);
        QCOMPARE(m_scene->session().markedChoice(u"Punch"_s), u"OFF"_s);
    }

    // A panel that is new judges the paper for the first time.
    void aMediumThatWasChosenForAnEnvelopeComesBackWithItsPrinter_data()
    {
        QTest::addColumn<QByteArray>("added"); // to the printer's options meanwhile
        QTest::newRow("from another printer") << QByteArray();
        QTest::newRow("with other options") << QByteArray("*% changed\n");
    }
    void aMediumThatWasChosenForAnEnvelopeComesBackWithItsPrinter()
    {
        QFETCH(QByteArray, added);
        QFile ppd(samplePpdPath());
        QVERIFY(ppd.open(QIODevice::ReadOnly));
        const QByteArray options = ppd.readAll();
        m_scene->open(two(options, officePrinter().text()));
        m_scene->face.presenter.expect(); // how envelopes are loaded
        task().propose(u"PageSize"_s, u"EnvDL"_s);
        QCoreApplication::processEvents();
        task().propose(u"QXMediaType"_s, u"Plain"_s);
        QCoreApplication::processEvents();
        const QMap<QString, QString> marks = m_scene->session().snapshot().marks;
        if (added.isEmpty()) {
            const Printer first = task().printer();
            task().choosePrinter(m_scene->task->printers().printers().constLast());
            task().bringUp();
            task().choosePrinter(first);
        } else {
            becomes(options + added);
        }
        task().bringUp();
        QCOMPARE(m_scene->session().markedChoice(u"QXMediaType"_s), u"Plain"_s);
        QCOMPARE(m_scene->session().snapshot().marks, marks);
        QCOMPARE(task().history().changedSettings(), QStringList{u"PageSize"_s});
    }

    void whatAChangedPrinterHasNoMoreIsNamed()
    {
        const PpdBuilder less = PpdBuilder().option(
            "Tray", "Paper Source", "Auto", {{"Auto", "Automatic"}, {"Upper", "Upper Tray"}});
        m_scene->open(m_scene->request(officePrinter()));
        task().propose(u"Tray"_s, u"Lower"_s);
        task().propose(u"Staple"_s, u"Left"_s);
        becomes(less.text());
        task().bringUp();
        QCOMPARE(m_scene->session().markedChoice(u"Tray"_s), u"Auto"_s);
        const QString said = m_scene->face.messages.value(0).text;
        QVERIFY2(said.contains(u"Tray has no choice Lower"_s) && said.contains(u"name Staple"_s),
                 qPrintable(said));
    }

    // That the options are kept would be the wrong thing to say.
    void aChangedPrinterThatCannotBeOpenedIsMissing()
    {
        m_scene->open(m_scene->request(officePrinter()));
        task().propose(u"Tray"_s, u"Lower"_s);
        becomes("no PPD");
        QCOMPARE(task().phase(), Phase::Missing);
        QVERIFY(!task().problem().text.isEmpty());
        QVERIFY2(m_scene->face.messages.isEmpty(), qPrintable(m_scene->face.message()));
        QVERIFY(!task().canPrint());
        becomes(officePrinter().text());
        task().bringUp();
        QCOMPARE(m_scene->session().markedChoice(u"Tray"_s), u"Lower"_s);
    }

    void whatTheListSaysOfAPrinterThatCannotBeOpenedDoesNotHideWhy()
    {
        m_scene->open(m_scene->request(PpdBuilder()));
        becomes("no PPD");
        const QString problem = task().problem().text;
        QVERIFY(!problem.isEmpty());
        const FetchedPrinter same = fetched("no PPD");
        Q_EMIT task().printers().checked(same);
        QCOMPARE(task().problem().text, problem);
        QCOMPARE(task().phase(), Phase::Missing);
        task().retry();
        QCOMPARE(task().phase(), Phase::Fetching);
        Q_EMIT task().printers().checked(same); // the server: nothing has changed
        QCOMPARE(task().phase(), Phase::Missing);
        QVERIFY2(task().problem().text.contains(u"Missing asterisk"_s),
                 qPrintable(task().problem().text));
    }

    void onceMoreThePrinterIsShownWithoutItsProblem()
    {
        m_scene->open(m_scene->request(PpdBuilder()));
        becomes("no PPD");
        QSignalSpy changed(&task(), &PrintTask::printerChanged);
        task().retry();
        QVERIFY(task().problem().text.isEmpty());
        QCOMPARE(changed.size(), 1);
    }

    void newsOfAPrinterAreNoReasonToPrintToOneThatIsGone()
    {
        m_scene->open(m_scene->request(officePrinter()));
        Q_EMIT task().printers().failed(u"The server does not answer."_s, u"No answer."_s);
        QCOMPARE(task().phase(), Phase::Ready); // its options are known; what is printed fails
        QCOMPARE(task().problem().brief, u"No answer."_s);
        Q_EMIT task().printers().checked(FetchedPrinter(task().opened()->fetched));
        QVERIFY(task().problem().text.isEmpty());
    }
};

QTEST_MAIN(TaskPrintersTest)

#include "task_printers_test.moc"
