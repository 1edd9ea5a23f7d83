#include <QTemporaryDir>
#include <QTest>

#include "dialog/session/OptionRequest.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/WhatFits.h"
#include "tests/dialog/support/LoadedBundle.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/ScriptedAlertPresenter.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// Options of which a printer takes a part.
class WhatFitsTest : public QObject
{
    Q_OBJECT

private:
    ScriptedAlertPresenter m_presenter;
    std::unique_ptr<OpenedPrinter> m_printer;

    OptionOutcome apply(const QString &options)
    {
        return applyWhatFits(parseOptions({options}), *m_printer);
    }
    QString marked(const QString &keyword) { return m_printer->session->markedChoice(keyword); }
    void openSample()
    {
        FetchedPrinter fetched;
        fetched.printer.name = u"office"_s;
        fetched.ppd = ppdOfFile(samplePpdPath());
        QString error;
        m_printer =
            openPrinter(fetched, builtBundleRoots(), m_presenter, &error, [](OpenedPrinter &) {});
        QVERIFY2(m_printer, qPrintable(error));
        QVERIFY2(m_printer->panelProblem.isEmpty(), qPrintable(m_printer->panelProblem));
    }

    void openSmall(const PpdBuilder &ppd)
    {
        const QTemporaryDir folder;
        FetchedPrinter fetched;
        fetched.ppd = ppdOfFile(writeFile(folder.filePath(u"a.ppd"_s), ppd.text()));
        QString error;
        m_printer = openPrinter(fetched, {}, m_presenter, &error, [](OpenedPrinter &) {});
        QVERIFY2(m_printer, qPrintable(error));
    }

private Q_SLOTS:
    void cleanup() { m_printer.reset(); }

    // How envelopes are loaded is nobody's question: another medium was named.
    void whatIsLeftBesideAnUnknownOptionIsTakenTogether_data()
    {
        QTest::addColumn<QString>("bad");
        QTest::newRow("an option the printer lacks") << u"Sparkle=ON"_s;
        QTest::newRow("a choice the printer lacks") << u"Duplex=Cellar"_s;
    }
    void whatIsLeftBesideAnUnknownOptionIsTakenTogether()
    {
        QFETCH(QString, bad);
        openSample();
        const OptionOutcome outcome = apply(u"PageSize=EnvDL %1 QXMediaType=Thick"_s.arg(bad));
        QCOMPARE(marked(u"PageSize"_s), u"EnvDL"_s);
        QCOMPARE(marked(u"QXMediaType"_s), u"Thick"_s);
        QCOMPARE(m_presenter.shown().size(), 0);
        QCOMPARE(outcome.problems.size(), 1);
        QVERIFY2(outcome.problems.constFirst().contains(bad.section(u'=', 0, 0)),
                 qPrintable(outcome.problems.constFirst()));
    }

    // Film cannot be printed on from the lower tray.
    void ofTwoThatExcludeEachOtherTheFirstCounts_data()
    {
        QTest::addColumn<bool>("isMediumFirst");
        QTest::newRow("the medium") << true;
        QTest::newRow("the tray") << false;
    }
    void ofTwoThatExcludeEachOtherTheFirstCounts()
    {
        QFETCH(bool, isMediumFirst);
        openSmall(smallPrinter());
        const JobOption medium{u"Media"_s, u"Film"_s};
        const JobOption tray{u"Tray"_s, u"Lower"_s};
        const OptionOutcome outcome = applyWhatFits(
            {isMediumFirst ? medium : tray, {u"Boost"_s, u"ON"_s}, isMediumFirst ? tray : medium},
            *m_printer);
        QCOMPARE(marked(u"Media"_s), isMediumFirst ? u"Film"_s : u"Plain"_s);
        QCOMPARE(marked(u"Tray"_s), isMediumFirst ? u"Upper"_s : u"Lower"_s);
        QCOMPARE(marked(u"Boost"_s), u"ON"_s);
        QCOMPARE(outcome.problems.size(), 1);
    }

    // The medium excludes both, and is the only one of which each conflict is.
    void whatExcludesSeveralCountsBeforeThem()
    {
        openSmall(smallPrinter().constraint("Media", "Film", "Boost", "ON"));
        const OptionOutcome outcome = applyWhatFits(
            {{u"Media"_s, u"Film"_s}, {u"Tray"_s, u"Lower"_s}, {u"Boost"_s, u"ON"_s}}, *m_printer);
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
        QCOMPARE(marked(u"Tray"_s), u"Upper"_s);
        QCOMPARE(marked(u"Boost"_s), u"OFF"_s);
        QCOMPARE(outcome.problems.size(), 2);
    }

    // The tray is not in the list: the medium is refused whatever else goes out.
    void whatCollidesWithSomethingBesideTheListGoesOutByItself()
    {
        openSmall(smallPrinter().constraint("Media", "Film", "Boost", "ON"));
        QVERIFY(apply(u"Tray=Lower"_s).ok());
        const OptionOutcome outcome =
            applyWhatFits({{u"Media"_s, u"Film"_s}, {u"Boost"_s, u"ON"_s}}, *m_printer);
        QCOMPARE(marked(u"Media"_s), u"Plain"_s);
        QCOMPARE(marked(u"Tray"_s), u"Lower"_s);
        QCOMPARE(marked(u"Boost"_s), u"ON"_s);
        QCOMPARE(outcome.problems.size(), 1);
    }

    // libcups calls all custom papers "Custom".
    void ofACustomPaperAndWhatItExcludesTheFirstCounts_data()
    {
        QTest::addColumn<bool>("isPaperFirst");
        QTest::newRow("the paper") << true;
        QTest::newRow("the tray") << false;
    }
    void ofACustomPaperAndWhatItExcludesTheFirstCounts()
    {
        QFETCH(bool, isPaperFirst);
        openSmall(smallPrinter()
                      .customPageSize(72, 72, 720, 1080)
                      .constraint("PageSize", "Custom", "Tray", "Lower"));
        const QString usual = marked(u"PageSize"_s);
        const JobOption paper{u"PageSize"_s, u"Custom.100x200"_s};
        const JobOption tray{u"Tray"_s, u"Lower"_s};
        const OptionOutcome outcome =
            applyWhatFits({isPaperFirst ? paper : tray, isPaperFirst ? tray : paper}, *m_printer);
        QCOMPARE(marked(u"PageSize"_s), isPaperFirst ? u"Custom"_s : usual);
        QCOMPARE(marked(u"Tray"_s), isPaperFirst ? u"Upper"_s : u"Lower"_s);
        QCOMPARE(outcome.problems.size(), 1);
    }

    // Marking one of them takes the mark of the other away, which no constraint says.
    void ofATrayAndTheFeedByHandTheFirstCounts_data()
    {
        QTest::addColumn<bool>("isTrayFirst");
        QTest::newRow("the tray") << true;
        QTest::newRow("by hand") << false;
    }
    void ofATrayAndTheFeedByHandTheFirstCounts()
    {
        QFETCH(bool, isTrayFirst);
        openSmall(
            smallPrinter()
                .option("InputSlot", "Source", "Auto", {{"Auto", "Auto"}, {"Lower", "Lower"}})
                .option("ManualFeed", "By Hand", "False", {{"False", "No"}, {"True", "Yes"}}));
        const JobOption tray{u"InputSlot"_s, u"Lower"_s};
        const JobOption byHand{u"ManualFeed"_s, u"True"_s};
        const OptionOutcome outcome = applyWhatFits({isTrayFirst ? tray : byHand,
                                                     isTrayFirst ? byHand : tray,
                                                     {u"Boost"_s, u"ON"_s},
                                                     {u"mirror"_s, u"true"_s},
                                                     {u"copies"_s, u"3"_s}},
                                                    *m_printer);
        QCOMPARE(marked(u"InputSlot"_s), isTrayFirst ? u"Lower"_s : QString());
        QCOMPARE(marked(u"ManualFeed"_s) == u"True"_s, !isTrayFirst);
        QCOMPARE(marked(u"Boost"_s), u"ON"_s);
        QCOMPARE(outcome.attributes, (QList<JobOption>{{u"mirror"_s, u"true"_s}}));
        QCOMPARE(outcome.copies, 3);
        QCOMPARE(outcome.problems.size(), 1);
        for (const QString &name : {u"InputSlot"_s, u"ManualFeed"_s})
            QVERIFY2(outcome.problems.constFirst().contains(name),
                     qPrintable(outcome.problems.constFirst()));
    }

    // No conflict goes away with one of them.
    void ofThreeThatExcludeEachOtherTheFirstCounts()
    {
        openSmall(smallPrinter()
                      .constraint("Media", "Film", "Boost", "ON")
                      .constraint("Tray", "Lower", "Boost", "ON"));
        const OptionOutcome outcome = applyWhatFits(
            {{u"Media"_s, u"Film"_s}, {u"Tray"_s, u"Lower"_s}, {u"Boost"_s, u"ON"_s}}, *m_printer);
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
        QCOMPARE(marked(u"Tray"_s), u"Upper"_s);
        QCOMPARE(marked(u"Boost"_s), u"OFF"_s);
        QCOMPARE(outcome.problems.size(), 2);
    }
};

QTEST_MAIN(WhatFitsTest)

#include "what_fits_test.moc"
