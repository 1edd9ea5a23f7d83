#include <QFile>
#include <QTest>

#include "dialog/session/OptionNames.h"
#include "dialog/task/AttributeEffects.h"
#include "tests/dialog/task/StartValuesScene.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// A colour printer whose jobs no filter of CUPS makes grey.
PpdBuilder passingPdfOn()
{
    return PpdBuilder()
        .line("*ColorDevice: True")
        .line("*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"");
}

} // namespace

/// Where the values of a job start: every place beside every other one.
class StartValuesTest : public StartValuesScene
{
    Q_OBJECT

private:
    static bool keepsCopies(By by) { return by != By::LastUsed && by != By::Preset; }

    // `only`: of the places that it says.
    void addPairs(bool (*only)(By) = [](By) { return true; })
    {
        QTest::addColumn<int>("earlier");
        QTest::addColumn<int>("later");
        QList<StartLayer> layers;
        for (const StartLayer &layer : startLayers()) {
            if (only(layer.by))
                layers += layer;
        }
        for (qsizetype i = 0; i < layers.size(); ++i) {
            for (qsizetype k = i; k < layers.size(); ++k)
                QTest::addRow("%d before %d", int(layers[i].by), int(layers[k].by))
                    << int(layers[i].by) << int(layers[k].by);
        }
    }

private Q_SLOTS:
    // Between the PPD before them, and the copies and the window behind them.
    void theManualHasThePlacesInTheSameOrder()
    {
        const auto wordOf = [](By by) -> QByteArray {
            switch (by) {
            case By::Queue:
                return "queue";
            case By::UserQueues:
                return "lpoptions";
            case By::Policy:
                return "administrator";
            case By::LastUsed:
                return "last job";
            case By::Preset:
                return "preset";
            case By::Options:
                return "\\-o";
            default:
                return "?";
            }
        };
        QFile manual(sourceFile(u"packaging/man/corvana-print.1"_s));
        QVERIFY(manual.open(QIODevice::ReadOnly));
        const QByteArray text = manual.readAll();
        const qsizetype begin = text.indexOf(".SH WHERE SETTINGS START");
        const qsizetype end = text.indexOf("\n.PP", begin);
        QVERIFY(begin >= 0 && end > begin);
        const QStringList places =
            QString::fromUtf8(text.sliced(begin, end - begin)).split(u"\n.IP "_s).mid(1);
        QCOMPARE(places.size(), qsizetype(startLayers().size()) + 3);
        for (qsizetype i = 0; i < qsizetype(startLayers().size()); ++i) {
            const QByteArray word = wordOf(startLayers()[std::size_t(i)].by);
            QVERIFY2(places.at(i + 1).contains(QString::fromUtf8(word)), word.constData());
        }
    }

    void everyPlaceIsReadAndTheOrderIsTheOneOfWhoCountsMore()
    {
        QList<By> order;
        for (const StartLayer &layer : startLayers())
            order += layer.by;
        QCOMPARE(order, (QList<By>{By::Queue, By::UserQueues, By::Policy, By::LastUsed, By::Preset,
                                   By::Options}));
        QVERIFY(std::is_sorted(order.cbegin(), order.cend()));
    }

    void whatThePpdSaysIsWhereASessionBegins()
    {
        start();
        QCOMPARE(m_printer->session->markedChoice(u"Media"_s), u"Plain"_s);
        QVERIFY(m_settings.attributes().isEmpty());
        QCOMPARE(m_settings.copies(), 1);
    }

    void theLaterPlaceCountsForAnAttribute_data() { addPairs(); }
    void theLaterPlaceCountsForAnAttribute()
    {
        QFETCH(int, earlier);
        QFETCH(int, later);
        say(By(earlier), u"number-up=2"_s);
        say(By(later), u"number-up=4"_s);
        const StartOutcome outcome = start();
        QVERIFY(outcome.ignored.isEmpty() && outcome.unset.isEmpty());
        QCOMPARE(attribute(u"number-up"_s), u"4"_s);
        QCOMPARE(m_settings.attributes().size(), 1);
    }

    void theLaterPlaceCountsForAChoice_data() { addPairs(); }
    void theLaterPlaceCountsForAChoice()
    {
        QFETCH(int, earlier);
        QFETCH(int, later);
        say(By(earlier), u"Media=Card"_s);
        say(By(later), u"Media=Film"_s);
        const StartOutcome outcome = start();
        QVERIFY(outcome.ignored.isEmpty() && outcome.unset.isEmpty());
        QCOMPARE(m_printer->session->markedChoice(u"Media"_s), u"Film"_s);
    }

    void theLaterPlaceCountsForCopies_data() { addPairs(keepsCopies); }
    void theLaterPlaceCountsForCopies()
    {
        QFETCH(int, earlier);
        QFETCH(int, later);
        say(By(earlier), u"copies=2"_s);
        say(By(later), u"copies=3"_s);
        m_settings.askForCopies(1, By::Program);
        start();
        QCOMPARE(m_settings.copies(), 3);
        QCOMPARE(m_settings.copiesAskedForBy(), By(later));
        m_settings.askForCopies(4, By::CommandLine);
        QCOMPARE(m_settings.copies(), 4);
        m_settings.askForCopies(5, By::User);
        start();
        QCOMPARE(m_settings.copies(), 5);
    }

    void aDefaultThatNobodyUnderstandsIsKeptAndSaid_data()
    {
        QTest::addColumn<QString>("option");
        QTest::newRow("its name") << u"Sparkle=bright"_s;
        QTest::newRow("its value") << u"number-up=3"_s;
    }
    void aDefaultThatNobodyUnderstandsIsKeptAndSaid()
    {
        QFETCH(QString, option);
        say(By::Queue, option);
        const StartOutcome outcome = start();
        QCOMPARE(outcome.ignored.size(), 1);
        QVERIFY2(outcome.ignored.constFirst().contains(u"“office”"_s) &&
                     outcome.ignored.constFirst().contains(option),
                 qPrintable(outcome.ignored.constFirst()));
        QCOMPARE(m_settings.attributes(), parseOptions({option}));
    }

    // Its jobs name a paper of their own, so the server adds none.
    void aDefaultThatTheJobSaysByAChoiceIsNotKept()
    {
        say(By::Queue, u"media=parchment"_s);
        const StartOutcome outcome = start();
        QCOMPARE(outcome.ignored.size(), 1);
        QVERIFY2(outcome.ignored.constFirst().contains(u"parchment"_s),
                 qPrintable(outcome.ignored.constFirst()));
        QVERIFY(m_settings.attributes().isEmpty());
    }

    void whatIsNotUnderstoodInLpoptionsIsSaidWithItsValue()
    {
        say(By::UserQueues, u"Sparkle=bright number-up=3 Tray=Lower"_s);
        const StartOutcome outcome = start();
        QCOMPARE(outcome.ignored.size(), 2);
        QVERIFY(outcome.ignored.at(0).startsWith(u"lpoptions: "_s));
        QVERIFY(outcome.ignored.at(0).contains(u"Sparkle=bright"_s));
        QVERIFY(outcome.ignored.at(1).contains(u"number-up=3"_s));
        QVERIFY(outcome.ignored.at(1).contains(u"1, 2, 4, 6, 9, 16"_s));
        QVERIFY(m_settings.attributes().isEmpty());
        QCOMPARE(m_printer->session->markedChoice(u"Tray"_s), u"Lower"_s);
    }

    void aDefaultThatTheJobDoesNotNameIsAnswered_data()
    {
        QTest::addColumn<QString>("byQueue");
        QTest::addColumn<QString>("ofJob");
        QTest::addColumn<QString>("sent");
        const auto row = [](const char *name, const QString &byQueue, const QString &ofJob,
                            const QString &sent) {
            QTest::newRow(name) << byQueue << ofJob << sent;
        };
        row("taken back", u"number-up=2"_s, {}, u"number-up=1"_s);
        row("named", u"number-up=2"_s, u"number-up=4"_s, u"number-up=4"_s);
        row("cover sheets", u"job-sheets=standard,none"_s, {}, u"job-sheets=none"_s);
        row("colours", u"print-color-mode=monochrome"_s, {}, u"print-color-mode=color"_s);
        row("pages", u"page-ranges=1-2"_s, {}, u"page-ranges=1-"_s);
        row("another spelling", u"landscape=true"_s, u"orientation-requested=4"_s,
            u"orientation-requested=4"_s);
        row("another spelling of something else", u"landscape=true"_s, u"orientation-requested=3"_s,
            u"orientation-requested=3 landscape=false"_s);
        row("in other letters", u"Collate=False"_s, u"collate=false"_s,
            u"collate=false Collate=false"_s);
        row("something else in other letters", u"Number-Up=2"_s, u"number-up=4"_s,
            u"number-up=4 Number-Up=4"_s);
        row("taken back in other letters", u"Collate=False"_s, {}, u"Collate=true"_s);
        row("in words of IPP", u"multiple-document-handling=separate-documents-uncollated-copies"_s,
            {}, u"multiple-document-handling=separate-documents-collated-copies"_s);
        row("in words of IPP, and meant",
            u"multiple-document-handling=separate-documents-collated-copies"_s, u"collate=false"_s,
            u"collate=false multiple-document-handling=separate-documents-uncollated-copies"_s);
        row("what nothing can be said against", u"Sparkle=bright"_s, {}, u"Sparkle=bright"_s);
        row("a choice of the PPD", u"Media=Card"_s, {}, {});
        row("what is a choice of the PPD", u"media=Postcard"_s, {}, {});
        row("two sides", u"sides=two-sided-long-edge"_s, {}, u"sides=one-sided"_s);
        row("one side", u"sides=one-sided"_s, {}, {});
        row("none", {}, u"number-up=4"_s, u"number-up=4"_s);
    }
    void aDefaultThatTheJobDoesNotNameIsAnswered()
    {
        QFETCH(QString, byQueue);
        QFETCH(QString, ofJob);
        QFETCH(QString, sent);
        start();
        m_printer->fetched.defaults = parseOptions({byQueue});
        QStringList answered;
        for (const JobOption &option : withAnswersToDefaults(parseOptions({ofJob}), *m_printer))
            answered += u"%1=%2"_s.arg(option.name, option.value);
        QCOMPARE(answered.join(u' '), sent);
    }

    void twoSidesThatTheJobHasNeedNoAnswer()
    {
        start();
        m_printer->fetched.defaults = parseOptions({u"sides=two-sided-long-edge"_s});
        for (const char *choice : {"DuplexNoTumble", "DuplexTumble"}) {
            QVERIFY(m_printer->session->changeTogether({{kDuplexOption, QLatin1StringView(choice)}})
                        .isEmpty());
            QCOMPARE(withAnswersToDefaults({}, *m_printer), QList<JobOption>());
        }
    }

    // The printer's own option is what the user changes; no name of it says otherwise.
    void theOrderOfCopiesIsThatOfThePrintersOwnOption()
    {
        m_fetched.ppd = ppdOfFile(
            writeFile(m_home->filePath(u"c.ppd"_s),
                      PpdBuilder()
                          .option("Collate", "Collate", "False", {{"True", "On"}, {"False", "Off"}})
                          .text()));
        start();
        m_printer->fetched.defaults = {{u"collate"_s, u"true"_s},
                                       {u"multiple-document-handling"_s, u"single-document"_s}};
        QCOMPARE(withAnswersToDefaults({}, *m_printer),
                 parseOptions({u"collate=true multiple-document-handling="
                               "separate-documents-collated-copies"_s}));
        m_printer->session->change(u"Collate"_s, u"False"_s, PpdSession::Origin::Dialog);
        QCOMPARE(withAnswersToDefaults({}, *m_printer),
                 parseOptions({u"collate=false multiple-document-handling="
                               "separate-documents-uncollated-copies"_s}));
    }

    // CUPS makes a choice of it, which the user can change; then the attribute must not say
    // otherwise.
    void aColorModeThatAChoiceStandsForFollowsTheChoice()
    {
        m_fetched.ppd = ppdOfFile(
            writeFile(m_home->filePath(u"b.ppd"_s),
                      PpdBuilder()
                          .option("ColorModel", "Color", "RGB", {{"Gray", "Gray"}, {"RGB", "RGB"}})
                          .text()));
        start();
        m_printer->fetched.defaults = {{u"print-color-mode"_s, u"monochrome"_s}};
        QCOMPARE(withAnswersToDefaults({}, *m_printer),
                 parseOptions({u"print-color-mode=color"_s}));
        m_printer->session->change(u"ColorModel"_s, u"Gray"_s, PpdSession::Origin::Dialog);
        QCOMPARE(withAnswersToDefaults({}, *m_printer),
                 parseOptions({u"print-color-mode=monochrome"_s}));
    }

    // The printer's own option and the attribute of IPP are two names of one thing. Whoever counts
    // more decides, and the job says one thing under both names.
    void aColorModeAndAChoiceOfColorsFollowTheOrderOfPlaces_data()
    {
        QTest::addColumn<QString>("byQueue");
        QTest::addColumn<QString>("byUser");
        QTest::addColumn<QString>("onCommandLine");
        QTest::addColumn<QString>("marked");
        QTest::addColumn<QString>("sent");
        const QString grey = u"print-color-mode=monochrome"_s;
        const QString colored = u"print-color-mode=color"_s;
        QTest::newRow("the queue alone")
            << grey << QString() << QString() << u"grayscale"_s << grey;
        QTest::newRow("a choice over the queue")
            << grey << QString() << u"ColorModel=RGB"_s << u"RGB"_s << colored;
        QTest::newRow("an attribute over the queue")
            << grey << QString() << colored << u"RGB"_s << colored;
        QTest::newRow("lpoptions over the queue")
            << grey << u"ColorModel=RGB"_s << QString() << u"RGB"_s << colored;
        QTest::newRow("the command line over lpoptions")
            << grey << u"ColorModel=RGB"_s << grey << u"grayscale"_s << grey;
        QTest::newRow("lpoptions alone")
            << QString() << grey << QString() << u"grayscale"_s << QString();
    }
    void aColorModeAndAChoiceOfColorsFollowTheOrderOfPlaces()
    {
        QFETCH(QString, byQueue);
        QFETCH(QString, byUser);
        QFETCH(QString, onCommandLine);
        QFETCH(QString, marked);
        QFETCH(QString, sent);
        m_fetched.ppd = ppdOfFile(writeFile(
            m_home->filePath(u"d.ppd"_s),
            passingPdfOn()
                .option("ColorModel", "Color", "RGB", {{"RGB", "Color"}, {"grayscale", "Gray"}})
                .text()));
        say(By::Queue, byQueue);
        say(By::UserQueues, byUser);
        say(By::Options, onCommandLine);
        const StartOutcome outcome = start();
        QVERIFY2(outcome.ignored.isEmpty() && outcome.unset.isEmpty(),
                 qPrintable((outcome.ignored + outcome.unset).value(0)));
        QCOMPARE(m_printer->session->markedChoice(u"ColorModel"_s), marked);
        QCOMPARE(withAnswersToDefaults(m_settings.attributes(), *m_printer), parseOptions({sent}));
    }

    // The server adds it all the same, and the printer may know what to do.
    void whatIsRefusedOfAQueueIsSentAndNotCalledDone()
    {
        m_fetched.ppd = ppdOfFile(writeFile(m_home->filePath(u"e.ppd"_s), passingPdfOn().text()));
        say(By::Queue, u"print-color-mode=monochrome number-up=2 Sparkle=bright"_s);
        start();
        const QList<JobOption> all = withAnswersToDefaults(m_settings.attributes(), *m_printer);
        QCOMPARE(all.size(), 3);
        const QHash<QString, QString> remarks = remarksOn(all, *m_printer, {});
        QVERIFY(remarks.value(u"print-color-mode"_s).contains(u"not known"_s));
        QVERIFY(remarks.value(u"Sparkle"_s).contains(u"not known"_s));
        QVERIFY(!remarks.contains(u"number-up"_s));
        // What a user has chosen instead is what nobody doubts.
        QVERIFY(remarksOn(parseOptions({u"print-color-mode=color"_s}), *m_printer, {}).isEmpty());
    }

    // How an administrator forbids colours on many desks, and names a tray.
    void whatLpKnowsIsTakenFromLpoptionsAsChoices()
    {
        m_fetched.ppd = ppdOfFile(writeFile(
            m_home->filePath(u"c.ppd"_s),
            PpdBuilder()
                .option("ColorModel", "Color", "RGB", {{"Gray", "Gray"}, {"RGB", "RGB"}})
                .option("InputSlot", "Tray", "Upper", {{"Upper", "Upper"}, {"Lower", "Lower"}})
                .text()));
        say(By::UserQueues, u"print-color-mode=monochrome media=Postcard,Lower"_s);
        const StartOutcome outcome = start();
        QVERIFY2(outcome.ignored.isEmpty(), qPrintable(outcome.ignored.value(0)));
        QCOMPARE(m_printer->session->markedChoice(u"ColorModel"_s), u"Gray"_s);
        QCOMPARE(m_printer->session->markedChoice(u"InputSlot"_s), u"Lower"_s);
        QCOMPARE(m_printer->session->markedChoice(u"PageSize"_s), u"Postcard"_s);
    }

    void aListOfPapersIsTakenPartByPart_data()
    {
        QTest::addColumn<int>("by");
        QTest::newRow("queue") << int(By::Queue);
        QTest::newRow("lpoptions") << int(By::UserQueues);
    }
    void aListOfPapersIsTakenPartByPart()
    {
        QFETCH(int, by);
        say(By(by), u"media=Postcard,Cellar,Attic"_s);
        const StartOutcome outcome = start();
        QCOMPARE(m_printer->session->markedChoice(u"PageSize"_s), u"Postcard"_s);
        QCOMPARE(outcome.ignored.size(), 2);
        QVERIFY2(outcome.ignored.at(0).contains(u"media=Cellar"_s),
                 qPrintable(outcome.ignored.at(0)));
        QVERIFY2(outcome.ignored.at(1).contains(u"media=Attic"_s),
                 qPrintable(outcome.ignored.at(1)));
    }

    // What was asked for just now is taken as a whole, and every part that is missing is named.
    void eachPartOfAListThatIsNotTakenIsNamed()
    {
        say(By::Options, u"media=Postcard,Cellar,Attic"_s);
        const StartOutcome outcome = start();
        QCOMPARE(outcome.unset.size(), 2);
        QVERIFY(outcome.unset.at(0).contains(u"“Cellar”"_s));
        QVERIFY(outcome.unset.at(1).contains(u"“Attic”"_s));
        QVERIFY(m_printer->session->markedChoice(u"PageSize"_s) != u"Postcard"_s);
    }
};

QTEST_MAIN(StartValuesTest)
#include "start_values_test.moc"
