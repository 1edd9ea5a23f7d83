#include <QRegularExpression>
#include <QTest>

#include "tests/support/RecordingHost.h"
#include "tests/support/TestBundle.h"
#include "tests/support/TestPanel.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

class PrintingPermissionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bundle = std::make_unique<TestBundle>();
        m_host = RecordingHost::forSamplePrinter();
        m_panel = std::make_unique<TestPanel>();
        QVERIFY(m_panel->initWithHost(m_host));
        m_panel->trace();
    }
    void cleanup()
    {
        QCOMPARE(m_host->alerts().outstanding(), 0);
        m_panel.reset();
        m_host.reset();
        m_bundle.reset();
    }

    void printingSavesFirst()
    {
        QVERIFY(m_panel->shouldPrint());
        const QList<HostCall> expected{{u"checkFax"_s, {}}, {u"saveValuesAndReturnError"_s, {}}};
        QCOMPARE(m_host->calls(), expected);
    }

    void aFaxPassesUncheckedAndUnsaved()
    {
        m_host->mark(u"QXOutput"_s, u"FAX"_s); // after the last restore: the output is asked anew
        m_panel->paperName = u"UnsupportedPaper"_s;
        QVERIFY(m_panel->shouldPrint());
        QCOMPARE(m_host->calls(), (QList<HostCall>{{u"checkFax"_s, {}}}));
        QVERIFY(m_host->alerts().shown().isEmpty());
    }

    void anUnsupportedPaperHoldsTheJobBackWithAnAlert()
    {
        m_panel->paperName = u"UnsupportedPaper"_s;
        m_panel->makeView();
        m_host->alerts().expect();
        QVERIFY(!m_panel->shouldPrint());
        QCOMPARE(m_host->calls(), (QList<HostCall>{{u"checkFax"_s, {}}}));

        const auto text = [this](const QString &key) {
            return m_bundle->bundle()->localizedString(key);
        };
        const Alert alert = m_host->alerts().shown().first().alert;
        QVERIFY(!text(u"Unsupported Paper Title"_s).isEmpty());
        QCOMPARE(alert.messageText, text(u"Unsupported Paper Title"_s));
        QCOMPARE(alert.informativeText, text(u"Unsupported Paper MSG1"_s) + u"\n\n"_s +
                                            text(u"Unsupported Paper MSG2"_s) + u'\n' +
                                            text(u"Unsupported Paper MSG3"_s) + u'\n' +
                                            text(u"Unsupported Paper MSG4"_s));
        QCOMPARE(alert.buttons, QStringList{text(u"OK"_s)});
        QVERIFY(!alert.showsSuppressionButton);
        QVERIFY(!alert.accessoryView);
        QCOMPARE(m_host->alerts().shown().first().parent.data(), m_panel->m_panelView.data());
    }

    void missingTextsShowTheirKeysAndPerCentSignsAreDirectives()
    {
        m_bundle->setTexts({{u"Unsupported Paper MSG1"_s, u"100%% %@sure %2d"_s}});
        m_panel->paperName = u"UnsupportedPaper"_s;
        m_host->alerts().expect();
        QVERIFY(!m_panel->shouldPrint());
        const Alert alert = m_host->alerts().shown().first().alert;
        QCOMPARE(alert.messageText, u"Unsupported Paper Title"_s);
        const QStringList lines = alert.informativeText.split(u'\n');
        QCOMPARE(lines.size(), 5);
        QCOMPARE(lines.at(0), u"100% sure "_s);
        QCOMPARE(lines.at(2), u"Unsupported Paper MSG2"_s);
        QCOMPARE(lines.at(4), u"Unsupported Paper MSG4"_s);
    }

    void withoutAlertsTheJobIsHeldBackAllTheSame()
    {
        m_host->lack(PDECallbackOperation::alertPresenter);
        m_panel->paperName = u"UnsupportedPaper"_s;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"can show no alert"_s));
        QVERIFY(!m_panel->shouldPrint());
        QVERIFY(m_host->alerts().shown().isEmpty());
    }

    void onlyThatPaperNameHoldsTheJobBack_data()
    {
        QTest::addColumn<QString>("paper");
        QTest::newRow("not judged") << QString();
        QTest::newRow("ordinary") << u"A4"_s;
        QTest::newRow("other letter case") << u"unsupportedpaper"_s;
    }
    void onlyThatPaperNameHoldsTheJobBack()
    {
        QFETCH(QString, paper);
        m_panel->paperName = paper;
        QVERIFY(m_panel->shouldPrint());
    }

private:
    std::unique_ptr<TestBundle> m_bundle;
    std::shared_ptr<RecordingHost> m_host;
    std::unique_ptr<TestPanel> m_panel;
};

QTEST_MAIN(PrintingPermissionTest)
#include "printing_permission_test.moc"
