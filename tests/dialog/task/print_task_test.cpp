#include <QSlider>
#include <QTest>

#include "dialog/session/OptionRequest.h"
#include "dialog/task/PrintTask.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/support/LoadedBundle.h"
#include "tests/dialog/support/ScriptedFace.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Phase = PrintTask::Phase;
using Place = TaskRefusal::Place;

/// What every face has from its task: the way from documents to an outcome, without any face.
class PrintTaskTest : public QObject
{
    Q_OBJECT

private:
    static constexpr int kPatience = 10000;
    // Notes its arguments, one a line, and prints.
    static constexpr char kPrints[] = "printf '%s\\n' \"$@\" >$DIR/arguments; echo printed\n";
    // The document cannot be counted, and its job hangs.
    static constexpr char kHangs[] = "case \" $* \" in *' -m application/pdf '*) exit 1 ;; esac; "
                                     "touch $DIR/started; sleep 300\n";

    std::unique_ptr<FakeFilter> m_filter;
    std::unique_ptr<ScriptedFace> m_face;
    std::unique_ptr<PrintTask> m_task;

    // One at a time: each takes the environment back to what it found.
    void useFilter(const char *script)
    {
        m_filter.reset();
        m_filter = std::make_unique<FakeFilter>(script);
    }
    PrintRequest request(const PpdBuilder &ppd = officePrinter())
    {
        writeFile(m_filter->ppdPath(), ppd.text());
        PrintRequest request;
        request.documents = {m_filter->document()};
        request.title = u"Job"_s;
        request.output = m_filter->output();
        request.printers = {{u"office"_s, u"Office"_s, m_filter->ppdPath(), 1}};
        return request;
    }
    static PrintRequest with(PrintRequest request, const QStringList &options)
    {
        request.options = parseOptions(options);
        return request;
    }
    // As a window starts: shown first, printed when somebody says so.
    void open(const PrintRequest &request)
    {
        m_task = std::make_unique<PrintTask>(request, *m_face);
        m_face->watch(*m_task);
        m_task->start();
        m_task->bringUp();
    }
    QByteArrayList arguments() { return m_filter->content(u"arguments"_s).split('\n'); }
    bool ends()
    {
        return QTest::qWaitFor([this] { return m_task->phase() == Phase::Ended; }, kPatience);
    }
    // Entries that are not as they were. A panel adds those that it lacks.
    static QString differences(const QVariantMap &now, const QVariantMap &before)
    {
        QString found;
        for (auto entry = before.cbegin(); entry != before.cend(); ++entry) {
            if (now.value(entry.key()) != entry.value())
                found += entry.key() + u' ';
        }
        return found;
    }
    PpdSession &session() { return *m_task->opened()->session; }

    struct Unprintable
    {
        const char *name;
        std::function<void(PrintTask &, ScriptedFace &)> make;
        Place place;
        const char *said; // null where the user has just said so
    };
    static QList<Unprintable> unprintables()
    {
        return {
            {"pages that are none",
             [](PrintTask &task, ScriptedFace &) { task.settings().setPageRanges(u"5-1"_s); },
             Place::Pages, "5-1"},
            {"no file", [](PrintTask &task, ScriptedFace &) { task.setOutput({}); }, Place::Output,
             "file"},
            {"something typed that is no value",
             [](PrintTask &, ScriptedFace &face) { face.takesWhatIsTyped = false; }, Place::Nowhere,
             nullptr},
            {"instructions that nobody follows",
             [](PrintTask &, ScriptedFace &face) {
                 face.instructionsAre = TaskFace::Instructions::Refuse;
             },
             Place::Nowhere, "instructions"},
            {"instructions that a file would have to wait for",
             [](PrintTask &, ScriptedFace &face) {
                 face.instructionsAre = TaskFace::Instructions::Wait;
             },
             Place::Nowhere, "cannot wait"},
        };
    }

private Q_SLOTS:
    void init()
    {
        useFilter(kPrints);
        m_face = std::make_unique<ScriptedFace>();
    }
    void cleanup()
    {
        m_task.reset();
        m_face.reset();
        m_filter.reset();
    }

    void aJobGoesThroughItsPhasesOnce()
    {
        open(request());
        m_task->print();
        QVERIFY(ends());
        QCOMPARE(m_face->phases, (QList{Phase::Fetching, Phase::Opened, Phase::Ready, Phase::Asking,
                                        Phase::Printing, Phase::Ended}));
        QCOMPARE(m_face->outcomes.size(), 1);
        QCOMPARE(m_task->outcome().kind, JobOutcome::Kind::Printed);
        QCOMPARE(m_task->outcome().file, m_filter->output());
        QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("printed\n"));
    }

    void whatIsSetIsWhatIsPrinted()
    {
        open(with(request(), {u"Tray=Lower Sleep=Custom.12 page-border=single"_s}));
        m_task->propose(u"Media"_s, u"Film"_s);
        m_task->settings().askForCopies(3, JobSettings::By::User);
        m_task->settings().setPageRanges(u"1-2, 4"_s);
        m_task->print();
        QVERIFY(ends());
        for (const char *argument : {"Tray=Lower", "Sleep=Custom.12", "Media=Film",
                                     "page-border=single", "page-ranges=1-2,4", "3"})
            QVERIFY2(arguments().contains(argument), argument);
    }

    void anOptionThatCannotBeSetHoldsBackAJobThatNobodyHasSeen()
    {
        m_task = std::make_unique<PrintTask>(with(request(), {u"Tray=Cellar"_s}), *m_face);
        m_face->watch(*m_task);
        m_task->startUnattended();
        m_task->print();
        QCOMPARE(m_face->refusals.size(), 1);
        QVERIFY2(m_face->problems().join(u' ').contains(u"Tray=Cellar"_s),
                 qPrintable(m_face->problems().join(u' ')));
        QCOMPARE(m_task->phase(), Phase::Ready);
        QVERIFY(!m_filter->hasOutput());
    }

    void anOptionThatCannotBeSetIsSaidBeforeAnybodyPrints()
    {
        open(with(request(), {u"Tray=Cellar"_s}));
        QVERIFY2(m_face->message().contains(u"Tray=Cellar"_s), qPrintable(m_face->message()));
        m_task->print(); // it was seen
        QVERIFY(ends());
    }

    void aRefusedChoiceIsSaidWithAWayOut()
    {
        open(with(request(), {u"Staple=Left"_s}));
        m_task->propose(u"Media"_s, u"Film"_s);
        QCOMPARE(m_face->messages.size(), 1);
        const TaskMessage message = m_face->messages.constFirst();
        QVERIFY2(message.text.contains(u"Transparency"_s), qPrintable(message.text));
        QCOMPARE(session().markedChoice(u"Media"_s), u"Plain"_s);
        QVERIFY(!message.offer.isEmpty());
        message.take();
        QCOMPARE(session().markedChoice(u"Media"_s), u"Film"_s);
        QCOMPARE(session().markedChoice(u"Staple"_s), u"OFF"_s);
    }

    void nothingIsPrintedWith_data()
    {
        QTest::addColumn<int>("row");
        const QList<Unprintable> rows = unprintables();
        for (int row = 0; row < rows.size(); ++row)
            QTest::newRow(rows.at(row).name) << row;
    }
    void nothingIsPrintedWith()
    {
        QFETCH(int, row);
        const Unprintable unprintable = unprintables().at(row);
        open(request());
        unprintable.make(*m_task, *m_face);
        m_task->print();
        QCOMPARE(m_face->refusals.size(), 1);
        const TaskRefusal refusal = m_face->refusals.constFirst();
        QCOMPARE(refusal.place, unprintable.place);
        QCOMPARE(refusal.answered, unprintable.said == nullptr);
        if (unprintable.said)
            QVERIFY2(refusal.problems.join(u' ').contains(QLatin1StringView(unprintable.said)),
                     qPrintable(refusal.problems.join(u' ')));
        QCOMPARE(m_task->phase(), Phase::Ready);
        QVERIFY(m_face->outcomes.isEmpty());
        QVERIFY(!m_filter->hasOutput());
    }

    void aFileThatStandsThereIsReplacedOnlyWhenTheUserAgrees()
    {
        writeFile(m_filter->output(), "former");
        open(request());
        m_face->overwrites = false;
        m_task->print();
        QCOMPARE(m_face->asked, QStringList(m_filter->output()));
        QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("former"));
        m_face->overwrites = true;
        m_task->print();
        QVERIFY(ends());
        QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("printed\n"));
    }

    // Such a document comes in with "-o raw"; another printer may have been chosen since.
    void nothingIsMadeOfADocumentThatNobodyKnows()
    {
        PrintRequest unknown = request();
        unknown.documents += {m_filter->path(u"job.pcl"_s), kUnknownFormat, u"job.pcl"_s};
        open(unknown);
        m_task->print();
        QCOMPARE(m_face->problems().size(), 1);
        QVERIFY2(m_face->problems().first().startsWith(u"job.pcl is of a kind"_s),
                 qPrintable(m_face->problems().first()));
        QCOMPARE(m_task->phase(), Phase::Ready);
    }

    void theNameThatIsProposedFitsWhatThePrinterGets()
    {
        const QString ppd = m_filter->path(u"pdf.ppd"_s);
        writeFile(ppd, smallPrinter().text() + "*cupsFilter: \"application/vnd.cups-pdf 0 -\"\n");
        PrintRequest pdf = request();
        pdf.outputWasNamed = false;
        pdf.output = m_filter->path(u"letter.ps"_s);
        pdf.printers = {{u"pdf"_s, u"PDF"_s, ppd, 5}};
        pdf.wantedPrinter.clear();
        open(pdf);
        QCOMPARE(m_task->output(), m_filter->path(u"letter.pdf"_s));
    }

    void aNameThatTheUserGaveStays()
    {
        const QString ppd = m_filter->path(u"pdf.ppd"_s);
        writeFile(ppd, smallPrinter().text() + "*cupsFilter: \"application/vnd.cups-pdf 0 -\"\n");
        PrintRequest pdf = request();
        pdf.outputWasNamed = true;
        pdf.output = m_filter->path(u"letter.ps"_s);
        pdf.printers = {{u"pdf"_s, u"PDF"_s, ppd, 5}};
        pdf.wantedPrinter.clear();
        open(pdf);
        QCOMPARE(m_task->output(), m_filter->path(u"letter.ps"_s));
    }

    void aFileThatWasNamedIsNotAskedFor()
    {
        writeFile(m_filter->output(), "former");
        PrintRequest named = request();
        named.outputWasNamed = true;
        open(named);
        m_task->print();
        QVERIFY(ends());
        QVERIFY(m_face->asked.isEmpty());
    }

    void aFailedJobLeavesEverythingAsItWas()
    {
        useFilter("echo 'ERROR: no paper' >&2; exit 1\n");
        open(with(request(), {u"Tray=Lower"_s}));
        const SessionSnapshot before = session().snapshot();
        m_task->print();
        QTRY_COMPARE_WITH_TIMEOUT(m_face->outcomes.size(), 1, kPatience);
        QCOMPARE(m_task->outcome().kind, JobOutcome::Kind::Failed);
        QVERIFY2(m_task->outcome().text.contains(u"no paper"_s),
                 qPrintable(m_task->outcome().text));
        QCOMPARE(m_task->phase(), Phase::Ready);
        QCOMPARE(session().snapshot(), before);
        QVERIFY(m_task->canPrint());
    }

    void aCanceledJobCanBePrintedAgain()
    {
        useFilter(kHangs);
        open(request());
        m_task->print();
        QVERIFY(m_filter->waitForFile(u"started"_s));
        QVERIFY(!m_task->canPrint());
        m_task->cancel();
        QCOMPARE(m_task->phase(), Phase::Canceling);
        QTRY_COMPARE_WITH_TIMEOUT(m_task->phase(), Phase::Ready, kPatience);
        QCOMPARE(m_task->outcome().kind, JobOutcome::Kind::Canceled);
        QVERIFY(m_task->canPrint());
    }

    void anInterruptionEndsARunningJobAndTheTask()
    {
        useFilter(kHangs);
        open(request());
        m_task->print();
        QVERIFY(m_filter->waitForFile(u"started"_s));
        m_task->interrupt(PrintTask::OnInterrupt::LeaveJob);
        QCOMPARE(m_task->phase(), Phase::Leaving); // a file is no queue that could have it
        QVERIFY(ends());
        QVERIFY(!m_filter->hasOutput());
    }

    void anInterruptionBetweenJobsEndsTheTaskAtOnce()
    {
        open(request());
        m_task->interrupt(PrintTask::OnInterrupt::CancelJob);
        QCOMPARE(m_task->phase(), Phase::Ended);
        m_task->print();
        QVERIFY(m_face->outcomes.isEmpty());
        QCOMPARE(m_task->phase(), Phase::Ended);
    }

    void withoutADocumentOnlyTheSummaryIsWritten()
    {
        PrintRequest summary = request();
        summary.documents.clear();
        summary.summary = true;
        open(summary);
        m_task->print();
        QCOMPARE(m_face->summaries.size(), 1);
        QCOMPARE(m_task->phase(), Phase::Ended);
        QVERIFY(!m_filter->hasOutput());
    }

    void aPpdThatCannotBeReadIsMissing()
    {
        PrintRequest broken = request();
        broken.printers = {{u"office"_s, u"Office"_s, m_filter->path(u"none.ppd"_s), 1}};
        open(broken);
        QCOMPARE(m_task->phase(), Phase::Missing);
        QVERIFY2(m_task->problem().text.contains(u"none.ppd"_s),
                 qPrintable(m_task->problem().text));
        QVERIFY(!m_task->canPrint());
        m_task->print();
        QVERIFY(m_face->outcomes.isEmpty());
    }

    // A medium that is loaded in front comes with a picture of how, whoever picks it.
    void theWayOutOfARefusalShowsWhatThePickWouldHaveShown()
    {
        PrintRequest front = request();
        front.printers = {{u"cl5"_s, u"CL"_s, samplePpdPath(), 5}};
        front.bundleRoots = builtBundleRoots();
        open(with(front, {u"Duplex=DuplexNoTumble"_s}));
        QVERIFY2(m_face->messages.isEmpty(), qPrintable(m_face->message()));
        PanelHost &panels = *m_task->opened()->panels;
        panels.visit(0);
        QVERIFY(!panels.pick(u"QXMediaType"_s, u"no such medium"_s));
        QVERIFY(panels.pick(u"QXMediaType"_s, u"Glossy"_s));
        panels.deliverPending();
        QCOMPARE(session().markedChoice(u"QXMediaType"_s), u"Plain"_s);
        QVERIFY(m_face->presenter.shown().isEmpty());
        QCOMPARE(m_face->messages.size(), 1);
        m_face->presenter.expect();
        m_face->messages.constFirst().take();
        QCOMPARE(session().markedChoice(u"QXMediaType"_s), u"Glossy"_s);
        QCOMPARE(session().markedChoice(u"Duplex"_s), u"None"_s);
        QCOMPARE(m_face->presenter.shown().size(), 1);
    }

    void whatAPanelHasNotSavedComesBackWithItsPrinter()
    {
        PrintRequest two = request();
        two.bundleRoots = builtBundleRoots();
        two.printers = {{u"first"_s, u"First"_s, samplePpdPath(), 5},
                        {u"second"_s, u"Second"_s, samplePpdPath(), 5}};
        open(two);
        m_task->opened()->panels->visit(1);
        auto *red = m_task->opened()->panels->views().at(1)->findChild<QSlider *>(u"redSlider"_s);
        QVERIFY(red);
        red->setValue(7);
        m_task->choosePrinter(two.printers.at(1));
        m_task->bringUp();
        m_task->choosePrinter(two.printers.at(0));
        m_task->bringUp();
        m_task->print();
        QVERIFY(ends());
        QVERIFY(arguments().contains("QXRed=7"));
    }

    // Two printers of one PPD, so that everything of the one could be set on the other.
    void anotherPrinterAndBackIsAsItWasLeft()
    {
        PrintRequest two = request();
        two.bundleRoots = builtBundleRoots();
        two.printers = {{u"first"_s, u"First"_s, samplePpdPath(), 5},
                        {u"second"_s, u"Second"_s, samplePpdPath(), 5}};
        open(with(two, {u"QXRed=5"_s}));
        QVERIFY2(m_face->messages.isEmpty(), qPrintable(m_face->message()));
        // The colours are not in force while the job is black and white.
        m_task->propose(u"QXMonoColor"_s, u"Mono"_s);
        m_task->opened()->panels->deliverPending();
        m_task->settings().askForCopies(4, JobSettings::By::User);
        m_task->opened()->panels->visit(-1);
        const SessionSnapshot left = session().snapshot();
        m_task->choosePrinter(two.printers.at(1));
        m_task->bringUp();
        QCOMPARE(session().markedChoice(u"QXMonoColor"_s),
                 sampleSession()->markedChoice(u"QXMonoColor"_s));
        QCOMPARE(m_task->settings().copies(), 4); // which goes along
        m_task->choosePrinter(two.printers.at(0));
        m_task->bringUp();
        QCOMPARE(session().snapshot().marks, left.marks);
        QCOMPARE(differences(session().snapshot().entries, left.entries), QString());
        QVERIFY2(m_face->messages.isEmpty(), qPrintable(m_face->message()));
        m_task->propose(u"QXMonoColor"_s, u"Color"_s);
        m_task->opened()->panels->deliverPending();
        m_task->print();
        QVERIFY(ends());
        QVERIFY(arguments().contains("QXRed=5"));
    }
};

QTEST_MAIN(PrintTaskTest)

#include "print_task_test.moc"
