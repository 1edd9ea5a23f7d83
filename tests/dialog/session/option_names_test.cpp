#include <QTest>

#include "dialog/session/OptionRequest.h"
#include "dialog/session/PanelHost.h"
#include "tests/dialog/support/FakePlugIn.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/ScriptedAlertPresenter.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// One option as a command line or a script writes it: who takes it, and what a refusal says.
class OptionNamesTest : public QObject
{
    Q_OBJECT

private:
    ScriptedAlertPresenter m_presenter;
    std::unique_ptr<PpdSession> m_session;
    std::unique_ptr<PanelHost> m_panels;

    OptionOutcome apply(const QStringList &options)
    {
        return applyOptions(parseOptions(options), *m_session, nullptr, *m_panels);
    }

private Q_SLOTS:
    void init()
    {
        m_session = sampleSession();
        m_panels = std::make_unique<PanelHost>(*m_session, nullptr, m_presenter);
    }
    void cleanup()
    {
        m_panels.reset();
        m_session.reset();
    }

    void optionsAreReadAsOtherPrintCommandsReadThem_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QStringList>("read");
        const auto row = [](const char *name, const QStringList &arguments,
                            const QStringList &read) { QTest::newRow(name) << arguments << read; };
        row("none", {}, {});
        row("empty", {QString()}, {});
        row("one", {u"Duplex=None"_s}, {u"Duplex=None"_s});
        row("several in one", {u"Duplex=None sides=one-sided"_s},
            {u"Duplex=None"_s, u"sides=one-sided"_s});
        row("several of them", {u"Duplex=None"_s, u"media=A4"_s},
            {u"Duplex=None"_s, u"media=A4"_s});
        row("in quotes", {u"Name='two words' Other=\"three more words\""_s},
            {u"Name=two words"_s, u"Other=three more words"_s});
        row("with a backslash", {u"Name=two\\ words"_s}, {u"Name=two words"_s});
        row("in braces", {u"Sleep={Time=12}"_s}, {u"Sleep={Time=12}"_s});
        row("without a value", {u"collate"_s}, {u"collate=true"_s});
        row("with no before it", {u"nocollate"_s}, {u"collate=false"_s});
        row("the later one counts", {u"Duplex=None"_s, u"Duplex=DuplexTumble"_s},
            {u"Duplex=DuplexTumble"_s});
        row("with an empty value", {u"Duplex="_s}, {u"Duplex="_s});
        row("with more than one equals sign", {u"Name=a=b"_s}, {u"Name=a=b"_s});
        row("in another script", {u"Name=プリンタ"_s}, {u"Name=プリンタ"_s});
    }
    void optionsAreReadAsOtherPrintCommandsReadThem()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QStringList, read);
        QStringList found;
        for (const JobOption &option : parseOptions(arguments))
            found += option.name + u'=' + option.value;
        found.sort();
        read.sort();
        QCOMPARE(found, read);
    }

    void anOptionIsTaken_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("marked");
        QTest::addColumn<QString>("custom");
        const auto row = [](const QString &option, const QString &keyword, const QString &marked,
                            const QString &custom = {}) {
            QTest::newRow(qUtf8Printable(option)) << option << keyword << marked << custom;
        };
        const QString page = u"PageSize"_s;
        row(u"QXMediaType=Thick"_s, u"QXMediaType"_s, u"Thick"_s);
        row(u"PageSize=Letter"_s, page, u"Letter"_s);
        row(u"PageSize=Custom.100x200mm"_s, page, u"Custom"_s, u"Custom.283.46457x566.92913"_s);

        row(u"media=Letter"_s, page, u"Letter"_s);
        row(u"media=na_letter_8.5x11in"_s, page, u"Letter"_s);
        row(u"media=na-letter"_s, page, u"Letter"_s);
        row(u"media=iso_a5_148x210mm"_s, page, u"A5"_s);
        row(u"media=jis_b5_182x257mm"_s, page, u"B5"_s);
        row(u"media=jpn_hagaki_100x148mm"_s, page, u"Postcard"_s);
        row(u"media=iso_dl_110x220mm"_s, page, u"EnvDL"_s);
        row(u"media=na_number-10_4.125x9.5in"_s, page, u"Env10"_s);
        row(u"media=custom_mine_148x210mm"_s, page, u"A5"_s);
        row(u"media=Custom.100x200mm"_s, page, u"Custom"_s, u"Custom.283.46457x566.92913"_s);

        // Names and words are the same to lp in any case.
        row(u"qxmediatype=THICK"_s, u"QXMediaType"_s, u"Thick"_s);
        row(u"pagesize=letter"_s, page, u"Letter"_s);
        row(u"Media=a5"_s, page, u"A5"_s);
        row(u"media=ISO_A5_148x210MM"_s, page, u"A5"_s);
        row(u"PageSize=custom.100x200MM"_s, page, u"Custom"_s, u"Custom.283.46457x566.92913"_s);
        row(u"SIDES=One-Sided"_s, u"Duplex"_s, u"None"_s);

        // Any size, in any unit and spelling.
        row(u"media=custom.100x200mm"_s, page, u"Custom"_s, u"Custom.283.46457x566.92913"_s);
        row(u"media=Custom.4x6in"_s, page, u"Custom"_s, u"Custom.288x432"_s);
        row(u"media=Custom.288x432"_s, page, u"Custom"_s, u"Custom.288x432"_s);
        row(u"media=Custom.10x20CM"_s, page, u"Custom"_s, u"Custom.283.46457x566.92913"_s);
        row(u"media=Custom.0.1x0.2m"_s, page, u"Custom"_s, u"Custom.283.46457x566.92913"_s);
        row(u"media=Custom.0.5x1ft"_s, page, u"Custom"_s, u"Custom.432x864"_s);
        row(u"media=custom_100x200mm_100x200mm"_s, page, u"Custom"_s,
            u"Custom.283.46457x566.92913"_s);
        row(u"media=custom_mine_10x20cm"_s, page, u"Custom"_s, u"Custom.283.46457x566.92913"_s);
        row(u"media=custom_4x6in_4x6in"_s, page, u"Custom"_s, u"Custom.288x432"_s);
        row(u"media=jis_b6_128x182mm"_s, page, u"Custom"_s, u"Custom.362.83465x515.90551"_s);

        row(u"sides=one-sided"_s, u"Duplex"_s, u"None"_s);
        row(u"sides=two-sided-long-edge"_s, u"Duplex"_s, u"DuplexNoTumble"_s);
        row(u"sides=two-sided-short-edge"_s, u"Duplex"_s, u"DuplexTumble"_s);
    }
    void anOptionIsTaken()
    {
        QFETCH(QString, option);
        QFETCH(QString, keyword);
        QFETCH(QString, marked);
        QFETCH(QString, custom);
        const OptionOutcome outcome = apply({option});
        QVERIFY2(outcome.ok(), qPrintable(outcome.problems.join(u'\n')));
        QVERIFY(outcome.attributes.isEmpty());
        QCOMPARE(m_session->markedChoice(keyword), marked);
        QCOMPARE(m_session->customValue(keyword), custom);
        QCOMPARE(m_session->printSettings().value(keyword).toString(), marked);
    }

    void anAttributeGoesIntoTheJobAsItIs()
    {
        const SessionSnapshot before = m_session->snapshot();
        const OptionOutcome outcome = apply({u"number-up=4"_s, u"page-ranges=1-3"_s});
        QVERIFY(outcome.ok());
        QCOMPARE(outcome.attributes,
                 (QList<JobOption>{{u"number-up"_s, u"4"_s}, {u"page-ranges"_s, u"1-3"_s}}));
        QCOMPARE(m_session->snapshot(), before);
    }

    void aRefusalNamesWhatIsAllowed_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QStringList>("named");
        QTest::addColumn<QStringList>("notNamed");
        const auto row = [](const char *name, const QString &option, const QStringList &named,
                            const QStringList &notNamed = {}) {
            QTest::newRow(name) << option << named << notNamed;
        };
        row("unknown option", u"Stapler=ON"_s,
            {u"no such option"_s, u"QXMediaType"_s, u"PageSize"_s, u"number-up"_s},
            {u"PageRegion"_s});
        row("page region, which follows the page size", u"PageRegion=A5"_s,
            {u"no such option"_s, u"PageSize"_s});
        row("unknown choice", u"Duplex=Both"_s,
            {u"not allowed"_s, u"None, DuplexNoTumble, DuplexTumble"_s});
        row("choice with a line break", u"Duplex='None\n'"_s, {u"None, DuplexNoTumble"_s});
        row("empty choice", u"Duplex="_s, {u"None, DuplexNoTumble, DuplexTumble"_s});
        row("custom value of an option without any", u"Duplex=Custom.1"_s,
            {u"None, DuplexNoTumble, DuplexTumble"_s});
        row("the bare word Custom", u"QXSleepTime=Custom"_s, {u"Default, Custom.1 … Custom.99"_s},
            {u"Custom,"_s});
        row("custom value out of range", u"QXSleepTime=Custom.100"_s,
            {u"Default, Custom.1 … Custom.99"_s});
        row("custom page size out of range", u"PageSize=Custom.1x1mm"_s,
            {u"A4"_s, u"Custom.WIDTHxHEIGHTmm, 76.2x127mm … 215.9x355.6mm"_s});
        row("media nobody knows", u"media=Papyrus"_s, {u"A4"_s, u"EnvDL"_s, u"Custom.WIDTH"_s});
        row("media the printer lacks", u"media=iso_a3_297x420mm"_s, {u"A4"_s, u"EnvDL"_s});
        row("media without a size", u"media=Custom"_s, {u"A4"_s, u"Custom.WIDTH"_s});
        row("custom media out of range", u"media=Custom.1x1mm"_s, {u"A4"_s, u"Custom.WIDTH"_s});
        row("the least size that a printer takes", u"media=custom_min_90x140mm"_s, {u"A4"_s});
        row("the largest size that a printer takes", u"media=custom_max_200x300mm"_s, {u"A4"_s});
        row("a size in a unit that nobody knows", u"media=custom_mine_100x200px"_s, {u"A4"_s});
        row("a size without a unit", u"media=custom_mine_300x400"_s, {u"A4"_s});
        row("sides nobody knows", u"sides=three-sided"_s,
            {u"one-sided, two-sided-long-edge, two-sided-short-edge"_s});
        row("attribute", u"number-up=3"_s, {u"1, 2, 4, 6, 9, 16"_s});
    }
    void aRefusalNamesWhatIsAllowed()
    {
        QFETCH(QString, option);
        QFETCH(QStringList, named);
        QFETCH(QStringList, notNamed);
        const SessionSnapshot before = m_session->snapshot();
        const OptionOutcome outcome = apply({option});
        QCOMPARE(outcome.problems.size(), 1);
        const QString problem = outcome.problems.constFirst();
        QVERIFY2(problem.startsWith(option.section(u'=', 0, 0) + u'='), qPrintable(problem));
        for (const QString &text : named)
            QVERIFY2(problem.contains(text), qPrintable(problem));
        for (const QString &text : notNamed)
            QVERIFY2(!problem.contains(text), qPrintable(problem));
        QCOMPARE(m_session->snapshot(), before);
    }

    void aPrinterWithoutTwoSidedPrintingPrintsOneSided()
    {
        m_panels.reset();
        m_session = sessionFor(PpdBuilder());
        m_panels = std::make_unique<PanelHost>(*m_session, nullptr, m_presenter);
        QVERIFY(apply({u"sides=one-sided"_s}).ok());
        const OptionOutcome outcome = apply({u"sides=two-sided-long-edge"_s});
        QCOMPARE(outcome.problems.size(), 1);
        QVERIFY2(outcome.problems.constFirst().contains(u"Allowed: one-sided."_s),
                 qPrintable(outcome.problems.constFirst()));
    }

    void oneSidedIsWhateverThePrinterCallsIt()
    {
        m_panels.reset();
        m_session =
            sessionFor(PpdBuilder().option("Duplex", "Two-Sided", "Simplex",
                                           {{"Simplex", "Off"}, {"DuplexNoTumble", "Long Edge"}}));
        m_panels = std::make_unique<PanelHost>(*m_session, nullptr, m_presenter);
        QVERIFY(apply({u"sides=two-sided-long-edge"_s}).ok());
        QVERIFY(apply({u"sides=one-sided"_s}).ok());
        QCOMPARE(m_session->markedChoice(u"Duplex"_s), u"Simplex"_s);
        QVERIFY2(apply({u"sides=two-sided-short-edge"_s})
                     .problems.value(0)
                     .endsWith(u"Allowed: one-sided, two-sided-long-edge."_s),
                 "the printer has no short-edge binding");
    }

    void aMediaNameOfAnEarlierCustomSizeIsStillThatOfThePrinter()
    {
        // The entry "Custom" of the PPD's own list has the size that was asked for last.
        QVERIFY(apply({u"PageSize=Custom.90x200mm"_s}).ok());
        QVERIFY(apply({u"media=custom_mine_91x200mm"_s}).ok());
        QCOMPARE(m_session->customValue(u"PageSize"_s), u"Custom.257.95276x566.92913"_s);
    }
};

QTEST_MAIN(OptionNamesTest)

#include "option_names_test.moc"
