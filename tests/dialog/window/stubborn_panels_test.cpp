#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "dialog/window/PrintWindow.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// Panels that do not want to be left, or have something to say before they print, in the window.
class StubbornPanelsTest : public QObject
{
    Q_OBJECT

private:
    enum Page { General, First, Second, Summary };

    QTemporaryDir m_folder;
    std::unique_ptr<FakeFilter> m_filter;
    std::unique_ptr<PrintWindow> m_dialog;

    QTabWidget *pages() { return m_dialog->findChild<QTabWidget *>(u"pages"_s); }
    QCheckBox *staysOn(const QString &panel)
    {
        return m_dialog->findChild<QCheckBox *>(u"stays on "_s + panel);
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QString module = m_folder.filePath(u"Stubborn.bundle/module"_s);
        QVERIFY(QDir().mkpath(module));
        QVERIFY(QFile::copy(QStringLiteral(TEST_STUBBORN_MODULE), module + u"/stubborn.so"_s));
        writeFile(m_folder.filePath(u"Stubborn.bundle/info.json"_s),
                  R"({"CFBundleName": "Stubborn", "CFBundleIdentifier": "com.corvana.stubborn",
                      "PMPPDKeysSupported": [], "CFBundleExecutable": "module/stubborn.so"})");
        writeFile(m_folder.filePath(u"printer.ppd"_s),
                  PpdBuilder().line("*QXPrintDialogExtension: \"Stubborn.bundle\"").text());
    }
    void init()
    {
        m_filter = std::make_unique<FakeFilter>("touch $DIR/ran; echo printed\n");
        PrintRequest request;
        request.documents = {m_filter->document()};
        request.output = m_filter->output();
        request.bundleRoots = {m_folder.path()};
        request.printers = {{u"stubborn"_s, u"Stubborn"_s, m_folder.filePath(u"printer.ppd"_s), 1}};
        m_dialog = std::make_unique<PrintWindow>(request);
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
        QTRY_VERIFY(staysOn(u"First"_s) && staysOn(u"Second"_s));
        pages()->setCurrentIndex(First);
    }
    void cleanup()
    {
        m_dialog.reset();
        m_filter.reset();
    }

    void aPanelThatRefusesKeepsItsPage_data()
    {
        QTest::addColumn<int>("page");
        QTest::newRow("for the page before") << int(General);
        QTest::newRow("for another panel") << int(Second);
        QTest::newRow("for the summary") << int(Summary);
    }
    void aPanelThatRefusesKeepsItsPage()
    {
        QFETCH(int, page);
        staysOn(u"First"_s)->setChecked(true);
        pages()->setCurrentIndex(page);
        QCOMPARE(pages()->currentIndex(), int(First));
        QVERIFY(staysOn(u"First"_s)->isVisible());
        staysOn(u"First"_s)->setChecked(false);
        pages()->setCurrentIndex(page);
        QCOMPARE(pages()->currentIndex(), page);
        QVERIFY(!staysOn(u"First"_s)->isVisible());
    }

    void aPanelThatRefusesKeepsItsPageByKeyboardToo()
    {
        staysOn(u"First"_s)->setChecked(true);
        QTest::keyClick(m_dialog.get(), Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(pages()->currentIndex(), int(First));
        staysOn(u"First"_s)->setChecked(false);
        QTest::keyClick(m_dialog.get(), Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(pages()->currentIndex(), int(Second));
    }

    void onlyTheVisiblePanelIsAsked()
    {
        staysOn(u"Second"_s)->setChecked(true);
        pages()->setCurrentIndex(General);
        QCOMPARE(pages()->currentIndex(), int(General));
    }

    void anAlertThatIsAnsweredLetsTheJobBePrinted()
    {
        QTimer::singleShot(0, this, [] {
            auto *alert = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(alert);
            alert->buttons().constFirst()->click();
        });
        m_dialog->findChild<QPushButton *>(u"print"_s)->click();
        QTRY_VERIFY_WITH_TIMEOUT(!m_dialog->isVisible(), 10000);
        QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("printed\n"));
    }

    // To close an alert is to answer it, but nobody did.
    void anAlertThatAnInterruptionClosesPrintsNothing()
    {
        QTimer::singleShot(0, this, [this] {
            QVERIFY(qobject_cast<QMessageBox *>(QApplication::activeModalWidget()));
            m_dialog->interrupt();
        });
        m_dialog->findChild<QPushButton *>(u"print"_s)->click();
        QVERIFY(!m_dialog->isVisible());
        QVERIFY(m_dialog->printedTo().isEmpty());
        QVERIFY(m_dialog->findChild<QProgressBar *>(u"progress"_s)->isHidden()); // no job runs
        m_dialog.reset();
        QVERIFY(m_filter->content(u"out.ps"_s).isNull());
        QVERIFY(!QFile::exists(m_filter->path(u"ran"_s)));
    }

    // Without its controls a panel would print other choices than with them.
    void aPanelWithoutAnythingToShowPrintsNothing()
    {
        const Variable without("TEST_PANEL_WITHOUT_VIEW", "Second");
        const PrintRequest request = m_dialog->task().request();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"has no view"_s));
        m_dialog = std::make_unique<PrintWindow>(request);
        m_dialog->show();
        QTRY_COMPARE(m_dialog->task().phase(), PrintTask::Phase::Ready);
        const auto *message = m_dialog->findChild<QLabel *>(u"messageText"_s);
        QVERIFY2(message->text().endsWith(u"“Second” has nothing to show."_s),
                 qPrintable(message->text()));
        QVERIFY(!m_dialog->findChild<QPushButton *>(u"print"_s)->isEnabled());
        m_dialog->accept();
        QCOMPARE(m_dialog->task().phase(), PrintTask::Phase::Ready);
    }

    void theDialogCanBeCanceledAllTheSame()
    {
        staysOn(u"First"_s)->setChecked(true);
        m_dialog->findChild<QPushButton *>(u"cancel"_s)->click();
        QVERIFY(!m_dialog->isVisible());
    }
};

QTEST_MAIN(StubbornPanelsTest)

#include "stubborn_panels_test.moc"
