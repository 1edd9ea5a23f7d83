#include <QCoreApplication>
#include <QTest>

#include "dialog/session/PanelHost.h"
#include "tests/dialog/support/FakePlugIn.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/ScriptedAlertPresenter.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Origin = PpdSession::Origin;

namespace {

// Whatever the test says about one option.
class Companions : public PDEJobValues
{
public:
    QMap<QString, QList<JobOption>> of; // by "keyword=choice"
    mutable QStringList asked;

    QList<JobOption> jobOptions(const PrintSettings &, ppd_file_t *) const override { return {}; }
    JobValueClaim takeJobOption(const JobOption &, PrintSettings &, ppd_file_t *) const override
    {
        return {};
    }
    QList<JobOption> impliedMarks(const PrintSettings &, ppd_file_t *) const override { return {}; }
    QList<JobOption> companions(const JobOption &marked, const PrintSettings &,
                                ppd_file_t *) const override
    {
        asked += marked.name + u'=' + marked.value;
        return of.value(asked.constLast());
    }
};

class PlugInWithCompanions : public FakePlugIn
{
public:
    using FakePlugIn::FakePlugIn;

    Companions values;

    PDEJobValues *jobValues() override { return &values; }
};

} // namespace

/// Options that say the same in several forms.
class PanelHostCompanionsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PpdSession> m_session;
    std::unique_ptr<PlugInWithCompanions> m_plugIn;
    ScriptedAlertPresenter m_presenter;
    std::unique_ptr<PanelHost> m_host;

    FakePanel &a() { return *m_plugIn->panels.at(0); }
    Companions &companions() { return m_plugIn->values; }
    CallLog taken() { return std::exchange(m_plugIn->log, {}); }
    void turn() { QCoreApplication::processEvents(); }

private Q_SLOTS:
    void init()
    {
        m_session = sessionFor(smallPrinter());
        m_plugIn = std::make_unique<PlugInWithCompanions>(QStringList{u"A"_s, u"B"_s});
        m_host = std::make_unique<PanelHost>(*m_session, m_plugIn.get(), m_presenter);
        m_host->visit(0);
        turn();
        taken();
        companions().asked.clear();
    }
    void cleanup()
    {
        m_host.reset();
        m_plugIn.reset();
        m_session.reset();
    }

    void aCompanionIsMarkedAndToldToEveryPanel()
    {
        companions().of.insert(u"Tray=Lower"_s, {{u"Boost"_s, u"ON"_s}});
        QVERIFY(a().propose(u"Tray"_s, u"Lower"_s));
        turn();
        QCOMPARE(m_session->markedChoice(u"Boost"_s), u"ON"_s);
        QCOMPARE(m_session->printSettings().value(u"Boost"_s), QVariant(u"ON"_s));
        QCOMPARE(taken(), CallLog({u"B.changed Tray=Lower"_s, u"A.changed Boost=ON"_s,
                                   u"B.changed Boost=ON"_s}));
    }

    void aCompanionThatIsMarkedAlreadyIsToldToNobody()
    {
        companions().of.insert(u"Tray=Lower"_s, {{u"Boost"_s, u"OFF"_s}});
        QVERIFY(a().propose(u"Tray"_s, u"Lower"_s));
        turn();
        QCOMPARE(taken(), CallLog{u"B.changed Tray=Lower"_s});
    }

    void companionsOfEachOtherComeToRest()
    {
        companions().of.insert(u"Tray=Lower"_s, {{u"Boost"_s, u"ON"_s}});
        companions().of.insert(u"Boost=ON"_s, {{u"Tray"_s, u"Lower"_s}});
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        turn();
        QCOMPARE(companions().asked, (QStringList{u"Tray=Lower"_s, u"Boost=ON"_s}));
        QCOMPARE(m_session->markedChoice(u"Tray"_s), u"Lower"_s);
    }

    void companionsThatNeverAgreeDoNotHangTheDialog()
    {
        companions().of.insert(u"Boost=ON"_s, {{u"Boost"_s, u"OFF"_s}});
        companions().of.insert(u"Boost=OFF"_s, {{u"Boost"_s, u"ON"_s}});
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(u"the panels keep changing \"Boost\""_s));
        m_session->change(u"Boost"_s, u"ON"_s, Origin::Dialog);
        turn();
    }

    void aFormThatThePrinterLacksIsCorrectedWhereTheJobHasIt_data()
    {
        QTest::addColumn<QVariant>("before");
        QTest::addColumn<QVariant>("after");
        QTest::newRow("an entry") << QVariant(u"OFF"_s) << QVariant(u"ON"_s);
        QTest::newRow("no entry") << QVariant() << QVariant();
    }
    void aFormThatThePrinterLacksIsCorrectedWhereTheJobHasIt()
    {
        QFETCH(QVariant, before);
        QFETCH(QVariant, after);
        companions().of.insert(u"Boost=ON"_s, {{u"OtherBoost"_s, u"ON"_s}});
        if (before.isValid())
            m_session->printSettings().setValue(u"OtherBoost"_s, before);
        QVERIFY(a().propose(u"Boost"_s, u"ON"_s));
        turn();
        QCOMPARE(m_session->printSettings().value(u"OtherBoost"_s), after);
        QCOMPARE(m_session->printSettings().contains(u"OtherBoost"_s), after.isValid());
        QCOMPARE(taken(), CallLog{u"B.changed Boost=ON"_s});
    }

    void aCompanionThatCollidesIsNotMarked()
    {
        companions().of.insert(u"Boost=ON"_s, {{u"Media"_s, u"Film"_s}});
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        m_session->change(u"Boost"_s, u"ON"_s, Origin::Dialog);
        turn();
        QCOMPARE(m_session->markedChoice(u"Media"_s), u"Plain"_s);
        QCOMPARE(m_session->markedChoice(u"Tray"_s), u"Lower"_s);
        QVERIFY2(m_session->takeRefusals().isEmpty(), "it was nobody's proposal");
    }
};

QTEST_MAIN(PanelHostCompanionsTest)
#include "panel_host_companions_test.moc"
