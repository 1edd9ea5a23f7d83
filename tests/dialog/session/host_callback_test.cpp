#include <stdexcept>

#include <QTest>

#include "dialog/session/HostCallback.h"
#include "dialog/session/PpdSession.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/ScriptedAlertPresenter.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

class HostCallbackTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PpdSession> m_session;
    ScriptedAlertPresenter m_presenter;
    std::unique_ptr<HostCallback> m_callback;

    bool propose(const QString &keyword, const QString &choice)
    {
        return m_callback->willChangePPDOptionKeyValue_ppdChoice(keyword, choice);
    }

private Q_SLOTS:
    void init()
    {
        m_session = sessionFor(smallPrinter());
        m_callback = std::make_unique<HostCallback>(*m_session, m_presenter);
    }
    void cleanup()
    {
        m_callback.reset();
        m_session.reset();
    }

    void panelsWorkOnTheSessionItself()
    {
        QCOMPARE(m_callback->ppdFile(), m_session->ppd());
        QCOMPARE(m_callback->printSettings(), &m_session->printSettings());
        QCOMPARE(m_callback->pageFormat(), &m_session->pageFormat());
        QCOMPARE(m_callback->alertPresenter(), &m_presenter);
    }

    void itAnswersWhatPanelsCannotDoWithout_data()
    {
        QTest::addColumn<PDECallbackOperation>("operation");
        QTest::newRow("print settings") << PDECallbackOperation::printSettings;
        QTest::newRow("page format") << PDECallbackOperation::pageFormat;
        QTest::newRow("changes") << PDECallbackOperation::willChangePPDOptionKeyValue_ppdChoice;
        QTest::newRow("alerts") << PDECallbackOperation::alertPresenter;
    }
    void itAnswersWhatPanelsCannotDoWithout()
    {
        QFETCH(PDECallbackOperation, operation);
        QVERIFY(m_callback->respondsTo(operation));
    }

    void anAcceptedChangeIsMarkedAndRecordedBeforeTheAnswer()
    {
        QVERIFY(propose(u"Tray"_s, u"Lower"_s));
        QVERIFY(ppdIsMarked(m_callback->ppdFile(), "Tray", "Lower"));
        QVariant recorded;
        QCOMPARE(PMPrintSettingsGetValue(m_callback->printSettings(), u"Tray"_s, &recorded),
                 kPMNoError);
        QCOMPARE(recorded.toString(), u"Lower"_s);
    }

    void aRefusedChangeLeavesEverythingAsItWas_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("choice");
        QTest::addColumn<int>("remembered"); // refusals that a user can do something about
        QTest::newRow("unknown option") << u"Stapler"_s << u"ON"_s << 0;
        QTest::newRow("unknown choice") << u"Tray"_s << u"Cellar"_s << 0;
        QTest::newRow("conflict") << u"Media"_s << u"Film"_s << 1;
    }
    void aRefusedChangeLeavesEverythingAsItWas()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, choice);
        QFETCH(int, remembered);
        QVERIFY(propose(u"Tray"_s, u"Lower"_s));
        const SessionSnapshot before = m_session->snapshot();
        if (remembered == 0)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^refused: "_s));
        QVERIFY(!propose(keyword, choice));
        QCOMPARE(m_session->snapshot(), before);
        QCOMPARE(m_session->takeRefusals().size(), remembered);
    }

    void nothingThrownReachesThePanel()
    {
        connect(m_session.get(), &PpdSession::changed, this,
                [] { throw std::runtime_error("an observer's fault"); });
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(u"an observer's fault"_s));
        bool answer = true;
        try {
            answer = propose(u"Tray"_s, u"Lower"_s);
        } catch (...) {
            QFAIL("the callback threw");
        }
        QVERIFY(!answer);
    }

    void nothingOfAnUnknownKindThrownReachesThePanel()
    {
        connect(m_session.get(), &PpdSession::changed, this, [] { throw 42; });
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(u"^refused: "_s));
        bool answer = true;
        try {
            answer = propose(u"Tray"_s, u"Lower"_s);
        } catch (...) {
            QFAIL("the callback threw");
        }
        QVERIFY(!answer);
    }

    void whatTheBordersOfTheContractAllowIsHarmless()
    {
        m_callback->panelViewDidResize();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^refused: "_s));
        QVERIFY(!propose(QString(), QString()));
    }
};

QTEST_GUILESS_MAIN(HostCallbackTest)

#include "host_callback_test.moc"
