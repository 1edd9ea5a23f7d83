#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

#include "dialog/window/HelpWindow.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

class HelpWindowTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::unique_ptr<HelpWindow> m_window;

    HelpPage page(const QString &file, const QString &anchor = {}) const
    {
        return {u"Help on "_s + file, m_folder.filePath(file), anchor};
    }
    QTextBrowser *browser() { return m_window->findChild<QTextBrowser *>(u"help"_s); }
    QPushButton *back() { return m_window->findChild<QPushButton *>(u"back"_s); }
    // Follows the link of that text, as a click on it does.
    bool followLink(const QString &text)
    {
        QTextCursor link = browser()->document()->find(text);
        if (link.isNull())
            return false;
        const QString target = link.charFormat().anchorHref();
        Q_EMIT browser()->anchorClicked(QUrl(target));
        return !target.isEmpty();
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QByteArray lines = QByteArray("<p>line</p>\n").repeated(200);
        writeFile(
            m_folder.filePath(u"long.html"_s),
            "<p>beginning <a href=\"#far\">down</a> <a href=\"other.html\">aside</a> "
            "<a href=\"missing.html\">astray</a> <a href=\"https://example.com/\">away</a></p>" +
                lines + "<h1><a name=\"far\"></a>far</h1>" + lines);
        writeFile(m_folder.filePath(u"other.html"_s), "<p>another page</p>");
    }
    void init() { m_window = std::make_unique<HelpWindow>(); }
    void cleanup() { m_window.reset(); }

    void aPageIsShownUnderItsTitle()
    {
        m_window->open(page(u"other.html"_s));
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QCOMPARE(m_window->windowTitle(), u"Help on other.html"_s);
        QCOMPARE(browser()->toPlainText(), u"another page"_s);
        QVERIFY(!m_window->isModal());
    }

    void backLeadsToWhatWasReadSinceTheWindowWasOpened()
    {
        m_window->open(page(u"long.html"_s));
        m_window->open(page(u"other.html"_s));
        QVERIFY(back()->isEnabled());
        m_window->close();
        m_window->open(page(u"long.html"_s));
        QVERIFY(!back()->isEnabled());
    }

    void thePageIsShownFromItsAnchorOn()
    {
        m_window->open(page(u"long.html"_s, u"far"_s));
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QTRY_VERIFY(browser()->verticalScrollBar()->value() > 0);
        const QTextCursor top = browser()->cursorForPosition(QPoint(4, 12));
        QCOMPARE(top.block().text(), u"far"_s);
    }

    void anAnchorThatThePageLacksShowsItsBeginning_data()
    {
        QTest::addColumn<QString>("anchor");
        QTest::newRow("none") << QString();
        QTest::newRow("unknown") << u"nowhere"_s;
    }
    void anAnchorThatThePageLacksShowsItsBeginning()
    {
        QFETCH(QString, anchor);
        m_window->open(page(u"long.html"_s, anchor));
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QVERIFY(browser()->toPlainText().startsWith(u"beginning"_s));
        QCOMPARE(browser()->verticalScrollBar()->value(), 0);
    }

    void backLeadsToThePageBefore_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("by its button") << false;
        QTest::newRow("by key") << true;
    }
    void backLeadsToThePageBefore()
    {
        QFETCH(bool, byKey);
        m_window->open(page(u"long.html"_s));
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QVERIFY(!back()->isEnabled());
        QVERIFY(followLink(u"aside"_s));
        QCOMPARE(browser()->toPlainText(), u"another page"_s);
        QVERIFY(back()->isEnabled());
        if (byKey)
            QTest::keyClick(browser(), Qt::Key_Left, Qt::AltModifier);
        else
            back()->click();
        QVERIFY(browser()->toPlainText().startsWith(u"beginning"_s));
        QVERIFY(!back()->isEnabled());
    }

    void aLinkInsideThePageScrollsToItsPlace()
    {
        m_window->open(page(u"long.html"_s));
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QVERIFY(followLink(u"down"_s));
        QTRY_VERIFY(browser()->verticalScrollBar()->value() > 0);
        back()->click();
        QTRY_COMPARE(browser()->verticalScrollBar()->value(), 0);
    }

    void aLinkThatLeadsOutOfTheHelpIsNotFollowed_data()
    {
        QTest::addColumn<QString>("link");
        QTest::newRow("to a page that does not exist") << u"astray"_s;
        QTest::newRow("into the net") << u"away"_s;
    }
    void aLinkThatLeadsOutOfTheHelpIsNotFollowed()
    {
        QFETCH(QString, link);
        m_window->open(page(u"long.html"_s));
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QVERIFY(followLink(link));
        QVERIFY(browser()->toPlainText().startsWith(u"beginning"_s));
        QVERIFY(!back()->isEnabled());
    }

    void anotherPageReplacesTheFirst()
    {
        m_window->open(page(u"long.html"_s, u"far"_s));
        m_window->open(page(u"other.html"_s));
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QCOMPARE(m_window->windowTitle(), u"Help on other.html"_s);
        QCOMPARE(browser()->toPlainText(), u"another page"_s);
    }

    void aWindowThatWasClosedOpensAgain()
    {
        m_window->open(page(u"other.html"_s));
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QTest::keyClick(m_window.get(), Qt::Key_Escape);
        QVERIFY(!m_window->isVisible());
        m_window->open(page(u"long.html"_s));
        QVERIFY(m_window->isVisible());
        QVERIFY(browser()->toPlainText().startsWith(u"beginning"_s));
    }
};

QTEST_MAIN(HelpWindowTest)

#include "help_window_test.moc"
