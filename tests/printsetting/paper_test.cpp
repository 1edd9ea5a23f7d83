#include <QTest>

#include "panel/OptionKeywords.h"
#include "tests/printsetting/PaperFixture.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

Paper unlisted(const QString &name, double width, double height)
{
    return {name, std::nullopt, width, height};
}

} // namespace

/// How the panel judges the page's paper, and which medium it brings.
class PaperTest : public PaperFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { openForPaper(); }
    void cleanup() { closeAll(); }

    // The name

    void thePageNamesThePaper()
    {
        makePanel(printerOfMedia());
        m_host->page().paper = listed(u"A5"_s);
        QVERIFY(m_panel->readPageSetup());
        QCOMPARE(m_panel->paperName, u"A5"_s);
        QVERIFY2(!m_panel->readPageSetup(), "it is no new one any more");
    }

    void thePaperThatPagesAreScaledToComesFirst_data()
    {
        QTest::addColumn<QVariant>("mapped");
        QTest::addColumn<QString>("name");
        QTest::newRow("a name") << QVariant(u"Postcard"_s) << u"Postcard"_s;
        QTest::newRow("no entry") << QVariant() << u"A5"_s;
    }
    void thePaperThatPagesAreScaledToComesFirst()
    {
        QFETCH(QVariant, mapped);
        QFETCH(QString, name);
        makePanel(printerOfMedia());
        m_host->page().paper = listed(u"A5"_s);
        m_host->settings().setValue(kPageToPaperMappingEntry, mapped);
        QVERIFY(m_panel->readPageSetup());
        QCOMPARE(m_panel->paperName, name);
    }

    void aMappedPaperNeedsNoPage()
    {
        makePanel(printerOfMedia());
        m_host->answerNoPageFormat();
        m_host->settings().setValue(kPageToPaperMappingEntry, u"Custom.A"_s);
        QVERIFY(m_panel->readPageSetup()); // and nothing says that it would not fit
        QCOMPARE(m_panel->paperName, u"Custom.A"_s);
    }

    void aPaperThatCannotBeReadChangesNothing_data()
    {
        QTest::addColumn<QString>("lack");
        for (const char *lack : {"no operation for print settings", "no print settings",
                                 "no operation for the page", "no page", "no name"})
            QTest::newRow(lack) << QString::fromLatin1(lack);
    }
    void aPaperThatCannotBeReadChangesNothing()
    {
        QFETCH(QString, lack);
        makePanel(printerOfMedia());
        m_panel->setMode(kModeEnvelopePaper, true);
        m_host->page().paper = listed(u"A5"_s);
        if (lack == u"no operation for print settings")
            m_host->lack(PDECallbackOperation::printSettings);
        else if (lack == u"no print settings")
            m_host->answerNoPrintSettings();
        else if (lack == u"no operation for the page")
            m_host->lack(PDECallbackOperation::pageFormat);
        else if (lack == u"no page")
            m_host->answerNoPageFormat();
        else
            m_host->page().paper = listed(QString());
        QVERIFY(!m_panel->readPageSetup());
        QCOMPARE(m_panel->paperName, u"A4"_s);
        QVERIFY(m_panel->hasMode(kModeEnvelopePaper));
        QVERIFY(m_host->asked().isEmpty());
        // Only a job that is gone is not followed any more.
        m_host->answerNoPrintSettings(false);
        postPaperChange();
        const bool followed = lack != u"no print settings";
        if (followed && lack == u"no name")
            m_host->page().paper = listed(u"A5"_s);
        m_panel->paperName = u"B5"_s;
        m_panel->tracing = true;
        m_host->forgetCalls();
        postPaperChange();
        QCOMPARE(m_host->calls().contains(HostCall{u"readPageSetup"_s, {u"B5"_s}}), followed);
    }

    // The size

    void customSizesHaveToFit_data()
    {
        QTest::addColumn<Paper>("paper");
        QTest::addColumn<QString>("name");
        const QString unsupported = kUnsupportedPaper;
        const QString custom = u"Custom"_s;
        QTest::newRow("at the upper limits") << unlisted(custom, 612, 792) << custom;
        QTest::newRow("at the lower limits") << unlisted(custom, 200, 300) << custom;
        QTest::newRow("a width that rounds down to its limit")
            << unlisted(custom, 612.4, 792) << custom;
        QTest::newRow("a width that rounds up beyond its limit")
            << unlisted(custom, 612.5, 792) << unsupported;
        QTest::newRow("a height that rounds down to its limit")
            << unlisted(custom, 612, 792.49) << custom;
        QTest::newRow("a height that rounds up beyond its limit")
            << unlisted(custom, 612, 792.5) << unsupported;
        QTest::newRow("a width that rounds up to the lower limit")
            << unlisted(custom, 199.5, 300) << custom;
        QTest::newRow("a width below") << unlisted(custom, 199.4, 300) << unsupported;
        QTest::newRow("a height below") << unlisted(custom, 200, 299) << unsupported;
        QTest::newRow("no size at all") << unlisted(custom, 0, 0) << unsupported;
        QTest::newRow("an absurd size") << unlisted(custom, 1e30, -1e30) << unsupported;
        QTest::newRow("no number") << unlisted(custom, qQNaN(), 500) << unsupported;
        QTest::newRow("the name contains Custom")
            << unlisted(u"MyCustom.1"_s, 900, 900) << unsupported;
        QTest::newRow("Letter") << unlisted(u"Letter"_s, 900, 900) << unsupported;
        QTest::newRow("Letter that fits") << unlisted(u"Letter"_s, 612, 792) << u"Letter"_s;
        QTest::newRow("other letter case") << unlisted(u"custom"_s, 900, 900) << u"custom"_s;
        QTest::newRow("another paper") << unlisted(u"A3"_s, 900, 900) << u"A3"_s;
        QTest::newRow("a longer name") << unlisted(u"LetterSmall"_s, 900, 900) << u"LetterSmall"_s;
        QTest::newRow("a size that the printer lists")
            << Paper{u"Letter"_s, u"Letter"_s, 900, 900} << u"Letter"_s;
    }
    void customSizesHaveToFit()
    {
        QFETCH(Paper, paper);
        QFETCH(QString, name);
        makePanel(printerOfMedia().customPageSize(200, 300, 612, 792));
        m_host->page().paper = paper;
        QVERIFY(m_panel->readPageSetup());
        QCOMPARE(m_panel->paperName, name);
    }

    void aPrinterWithoutCustomSizesTakesNone()
    {
        makePanel(printerOfMedia());
        m_host->page().paper = unlisted(u"Letter"_s, 612, 792);
        postPaperChange();
        QCOMPARE(m_panel->paperName, QString(kUnsupportedPaper));
        m_host->alerts().expect();
        QVERIFY(!m_panel->shouldPrint());
        m_host->page().paper = listed(u"A4"_s);
        postPaperChange();
        QVERIFY(m_panel->shouldPrint());
    }

    void aMappedPaperIsMeasuredByThePage()
    {
        makePanel(printerOfMedia().customPageSize(200, 300, 612, 792));
        m_host->settings().setValue(kPageToPaperMappingEntry, u"Letter"_s);
        m_host->page().paper = unlisted(u"A4"_s, 900, 900);
        QVERIFY(m_panel->readPageSetup());
        QCOMPARE(m_panel->paperName, QString(kUnsupportedPaper));
    }

    // The medium

    void theFirstPaperKeepsAMediumThatWasChosen_data()
    {
        QTest::addColumn<QVariant>("medium");
        QTest::addColumn<bool>("kept");
        QTest::newRow("Glossy") << QVariant(u"Glossy"_s) << true;
        QTest::newRow("Plain") << QVariant(u"Plain"_s) << false;
        QTest::newRow("nothing") << QVariant() << false;
    }
    void theFirstPaperKeepsAMediumThatWasChosen()
    {
        QFETCH(QVariant, medium);
        QFETCH(bool, kept);
        makePanel(printerOfMedia());
        m_panel->paperName = QString();
        if (medium.isValid())
            m_panel->m_outputBin.insert(u"QXMediaType"_s, medium);
        else
            m_panel->m_outputBin.remove(u"QXMediaType"_s);
        m_host->page().paper = listed(u"EnvDL"_s);
        QCOMPARE(m_panel->readPageSetup(), !kept);
        QCOMPARE(m_panel->paperName, u"EnvDL"_s);
        QCOMPARE(m_panel->hasMode(kModeEnvelopePaper), !kept);
        QCOMPARE(m_host->asked(), kept ? QStringList() : QStringList{u"QXMediaType=Env"_s});
        QCOMPARE(m_panel->stored(u"QXMediaType"_s), kept ? u"Glossy"_s : u"Env"_s);
        // A later paper decides whatever was chosen.
        m_host->page().paper = listed(u"A5"_s);
        QVERIFY(m_panel->readPageSetup());
        QCOMPARE(m_panel->stored(u"QXMediaType"_s), u"Plain"_s);
    }

    void aNewPaperBringsItsMedium_data()
    {
        QTest::addColumn<QString>("paper");
        QTest::addColumn<QString>("medium");
        QTest::addColumn<bool>("envelope");
        QTest::newRow("an envelope") << u"EnvDL"_s << u"Env"_s << true;
        QTest::newRow("Env alone") << u"Env"_s << u"Env"_s << true;
        QTest::newRow("Env further on") << u"DLEnv"_s << u"Plain"_s << false;
        QTest::newRow("other letter case") << u"envDL"_s << u"Plain"_s << false;
        QTest::newRow("a post card") << u"Postcard"_s << u"Thick"_s << false;
        QTest::newRow("any other") << u"A5"_s << u"Plain"_s << false;
    }
    void aNewPaperBringsItsMedium()
    {
        QFETCH(QString, paper);
        QFETCH(QString, medium);
        QFETCH(bool, envelope);
        for (const bool before : {false, true}) {
            makePanel(printerOfMedia());
            m_panel->m_outputBin.insert(u"QXMediaType"_s, u"Glossy"_s);
            m_panel->setMode(kModeEnvelopePaper, before);
            m_host->page().paper = listed(paper);
            QVERIFY(m_panel->readPageSetup());
            QCOMPARE(m_panel->hasMode(kModeEnvelopePaper), envelope);
            QCOMPARE(m_host->asked(), QStringList{u"QXMediaType="_s + medium});
            QCOMPARE(m_panel->stored(u"QXMediaType"_s), medium);
            QCOMPARE(m_host->marked(u"QXMediaType"_s), medium);
        }
    }

    void aRefusedMediumLeavesThePaperJudged()
    {
        makePanel(printerOfMedia());
        m_host->refuseEverything();
        m_host->page().paper = listed(u"EnvDL"_s);
        QVERIFY(m_panel->readPageSetup());
        QCOMPARE(m_panel->paperName, u"EnvDL"_s);
        QVERIFY(m_panel->hasMode(kModeEnvelopePaper));
        QCOMPARE(m_panel->stored(u"QXMediaType"_s), u"Plain"_s);
    }
};

QTEST_MAIN(PaperTest)
#include "paper_test.moc"
