#include <cstdio>

#include <unistd.h>

#include <QTemporaryFile>
#include <QTest>

#include "dialog/terminal/TerminalAlertPresenter.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

// Takes standard error while it lives.
class StandardError
{
public:
    StandardError() : m_former(::dup(STDERR_FILENO))
    {
        std::fflush(stderr);
        m_file.open();
        ::dup2(m_file.handle(), STDERR_FILENO);
    }
    ~StandardError()
    {
        std::fflush(stderr);
        ::dup2(m_former, STDERR_FILENO);
        ::close(m_former);
    }
    QString said()
    {
        std::fflush(stderr);
        m_file.seek(0);
        return QString::fromUtf8(m_file.readAll());
    }

private:
    QTemporaryFile m_file;
    int m_former;
};

Alert alertWith(const QStringList &buttons)
{
    Alert alert;
    alert.messageText = u"カバーを開く"_s;
    alert.informativeText = u"Pull both levers."_s;
    alert.buttons = buttons;
    return alert;
}

} // namespace

/// The alerts of panels where nobody watches.
class TerminalAlertsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePolicyAnswers_data()
    {
        QTest::addColumn<AlertPolicy>("policy");
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<int>("button");
        QTest::addColumn<bool>("mustWait");
        const QStringList one{u"OK"_s};
        const QStringList three{u"Continue"_s, u"Wait"_s, u"Stop"_s};
        QTest::newRow("print goes on") << AlertPolicy::Print << three << 0 << false;
        QTest::newRow("hold stops") << AlertPolicy::Hold << three << 2 << true;
        QTest::newRow("refuse stops") << AlertPolicy::Refuse << three << 2 << true;
        QTest::newRow("print, one button") << AlertPolicy::Print << one << 0 << false;
        QTest::newRow("hold, one button") << AlertPolicy::Hold << one << 0 << true;
        QTest::newRow("refuse, one button") << AlertPolicy::Refuse << one << 0 << true;
    }
    void thePolicyAnswers()
    {
        QFETCH(AlertPolicy, policy);
        QFETCH(QStringList, buttons);
        QFETCH(int, button);
        QFETCH(bool, mustWait);
        TerminalAlertPresenter presenter(policy);
        QVERIFY(!presenter.jobMustWait()); // no alert, nothing to wait for
        Alert alert = alertWith(buttons);
        alert.showsSuppressionButton = true;
        StandardError error;
        const AlertAnswer answer = presenter.runModal(alert, nullptr);
        QCOMPARE(answer.button, button);
        QVERIFY(!answer.suppressed); // nobody asked for that
        QCOMPARE(presenter.jobMustWait(), mustWait);
    }

    void theInstructionsAreWrittenUnderEveryPolicy_data()
    {
        QTest::addColumn<AlertPolicy>("policy");
        QTest::newRow("print") << AlertPolicy::Print;
        QTest::newRow("hold") << AlertPolicy::Hold;
        QTest::newRow("refuse") << AlertPolicy::Refuse;
    }
    void theInstructionsAreWrittenUnderEveryPolicy()
    {
        QFETCH(AlertPolicy, policy);
        TerminalAlertPresenter presenter(policy);
        StandardError error;
        presenter.runModal(alertWith({u"OK"_s}), nullptr);
        QCOMPARE(error.said(), u"カバーを開く\n\nPull both levers.\n\n"_s);
    }

    void onePolicyForAllAlertsOfARun()
    {
        TerminalAlertPresenter presenter(AlertPolicy::Refuse);
        StandardError error;
        const Alert alert = alertWith({u"Continue"_s, u"Stop"_s});
        QCOMPARE(presenter.runModal(alert, nullptr).button, 1);
        QCOMPARE(presenter.runModal(alert, nullptr).button, 1);
        QCOMPARE(error.said().count(u"カバーを開く"_s), 2);
        QVERIFY(presenter.jobMustWait());
    }

    void policiesAreKnownByName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<std::optional<AlertPolicy>>("policy");
        const auto row = [](const char *name, std::optional<AlertPolicy> policy) {
            QTest::newRow(name) << QString::fromLatin1(name) << policy;
        };
        row("print", AlertPolicy::Print);
        row("hold", AlertPolicy::Hold);
        row("refuse", AlertPolicy::Refuse);
        row("Print", std::nullopt);
        row("hol", std::nullopt);
        row("", std::nullopt);
    }
    void policiesAreKnownByName()
    {
        QFETCH(QString, name);
        QFETCH(std::optional<AlertPolicy>, policy);
        QVERIFY(alertPolicy(name) == policy);
    }
};

QTEST_GUILESS_MAIN(TerminalAlertsTest)

#include "terminal_alerts_test.moc"
