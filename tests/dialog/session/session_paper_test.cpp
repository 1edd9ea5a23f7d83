#include <QSignalSpy>
#include <QTest>

#include "dialog/session/PpdSession.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Origin = PpdSession::Origin;

namespace {

QString paperName(const PpdSession &session)
{
    PMPaper paper = nullptr;
    QString name;
    if (PMGetPageFormatPaper(&session.pageFormat(), &paper) != kPMNoError ||
        PMPaperGetName(paper, &name) != kPMNoError)
        return {};
    return name;
}

} // namespace

/// The page format follows from the paper size that is marked.
class SessionPaperTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PpdSession> m_session;

private Q_SLOTS:
    void init() { m_session = sampleSession(); }
    void cleanup() { m_session.reset(); }

    void aPaperOfThePpdHasItsKeywordForAName_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<double>("width");
        QTest::addColumn<double>("height");
        QTest::newRow("the default") << u"A4"_s << 595.0 << 842.0;
        QTest::newRow("Letter") << u"Letter"_s << 612.0 << 792.0;
        QTest::newRow("a postcard") << u"Postcard"_s << 284.0 << 419.0;
        QTest::newRow("an envelope") << u"EnvDL"_s << 312.0 << 624.0;
    }
    void aPaperOfThePpdHasItsKeywordForAName()
    {
        QFETCH(QString, keyword);
        QFETCH(double, width);
        QFETCH(double, height);
        QVERIFY(m_session->change(u"PageSize"_s, keyword, Origin::Dialog).accepted());
        PMPaper paper = nullptr;
        QCOMPARE(PMGetPageFormatPaper(&m_session->pageFormat(), &paper), kPMNoError);
        QCOMPARE(paperName(*m_session), keyword);
        QString ppdName;
        QCOMPARE(PMPaperGetPPDPaperName(paper, &ppdName), kPMNoError);
        QCOMPARE(ppdName, keyword);
        QCOMPARE(paper->width, width);
        QCOMPARE(paper->height, height);
    }

    void aCustomPaperHasNoNameInThePpd()
    {
        QVERIFY(m_session->change(u"PageSize"_s, u"Custom.300x400"_s, Origin::Dialog).accepted());
        PMPaper paper = nullptr;
        QCOMPARE(PMGetPageFormatPaper(&m_session->pageFormat(), &paper), kPMNoError);
        QVERIFY(paperName(*m_session).contains(u"Custom"_s));
        QString ppdName;
        QCOMPARE(PMPaperGetPPDPaperName(paper, &ppdName), kPMValueUnavailable);
        QCOMPARE(paper->width, 300.0);
        QCOMPARE(paper->height, 400.0);
    }

    void panelsSeeACustomPaperAsTheChoiceCustom()
    {
        const QSignalSpy changed(m_session.get(), &PpdSession::changed);
        m_session->change(u"PageSize"_s, u"Custom.300x400"_s, Origin::Dialog);
        QCOMPARE(m_session->markedChoice(u"PageSize"_s), u"Custom"_s);
        QCOMPARE(m_session->printSettings().value(u"PageSize"_s).toString(), u"Custom"_s);
        QCOMPARE(changed.at(0).at(1).toString(), u"Custom"_s);
        QCOMPARE(m_session->customValue(u"PageSize"_s), u"Custom.300x400"_s);
    }

    void anotherCustomSizeIsAnotherPaper()
    {
        m_session->change(u"PageSize"_s, u"Custom.300x400"_s, Origin::Dialog);
        const QSignalSpy paperChanged(m_session.get(), &PpdSession::paperChanged);
        m_session->change(u"PageSize"_s, u"Custom.400x500"_s, Origin::Dialog);
        QCOMPARE(paperChanged.size(), 1);
        QCOMPARE(m_session->pageFormat().paper.width, 400.0);
        m_session->change(u"PageSize"_s, u"Custom.400x500"_s, Origin::Dialog);
        QCOMPARE(paperChanged.size(), 1);
    }

    void aPanelThatRepeatsCustomKeepsItsValue()
    {
        m_session->change(u"PageSize"_s, u"Custom.300x400"_s, Origin::Dialog);
        QVERIFY(m_session->change(u"PageSize"_s, u"Custom"_s, Origin::Panel).accepted());
        QCOMPARE(m_session->customValue(u"PageSize"_s), u"Custom.300x400"_s);
        QCOMPARE(m_session->pageFormat().paper.width, 300.0);
    }

    void aPaperOfThePpdDropsTheCustomValue()
    {
        m_session->change(u"PageSize"_s, u"Custom.300x400"_s, Origin::Dialog);
        m_session->change(u"PageSize"_s, u"A4"_s, Origin::Panel);
        QVERIFY(m_session->customValue(u"PageSize"_s).isNull());
        QCOMPARE(paperName(*m_session), u"A4"_s);
    }

    void thePageFormatIsCompleteBeforeAnybodyHearsOfIt()
    {
        QString atChange;
        QString atPaper;
        connect(m_session.get(), &PpdSession::changed, this,
                [&] { atChange = paperName(*m_session); });
        connect(m_session.get(), &PpdSession::paperChanged, this, [&] {
            atPaper =
                paperName(*m_session) + m_session->printSettings().value(u"PageSize"_s).toString();
        });
        m_session->change(u"PageSize"_s, u"EnvC5"_s, Origin::Dialog);
        QCOMPARE(atChange, u"EnvC5"_s);
        QCOMPARE(atPaper, u"EnvC5EnvC5"_s);
    }

    void otherOptionsLeaveThePaperAlone()
    {
        const QSignalSpy paperChanged(m_session.get(), &PpdSession::paperChanged);
        m_session->change(u"QXMediaType"_s, u"Thick"_s, Origin::Dialog);
        m_session->change(u"PageSize"_s, u"A4"_s, Origin::Dialog);
        QCOMPARE(paperChanged.size(), 0);
    }

    void aSetPostsThePaperOnce()
    {
        const QSignalSpy paperChanged(m_session.get(), &PpdSession::paperChanged);
        QVERIFY(
            m_session->changeTogether({{u"QXMediaType"_s, u"Env"_s}, {u"PageSize"_s, u"EnvDL"_s}})
                .isEmpty());
        QCOMPARE(paperChanged.size(), 1);
    }

    void theBorrowedPageFormatStaysTheSameObject()
    {
        const PMPageFormat borrowed = &m_session->pageFormat();
        m_session->change(u"PageSize"_s, u"EnvC5"_s, Origin::Dialog);
        QCOMPARE(&m_session->pageFormat(), borrowed);
        QCOMPARE(borrowed->paper.name, u"EnvC5"_s);
    }
};

QTEST_GUILESS_MAIN(SessionPaperTest)

#include "session_paper_test.moc"
