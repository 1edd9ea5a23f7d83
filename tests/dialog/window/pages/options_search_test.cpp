#include <QLineEdit>
#include <QTest>

#include "tests/dialog/window/pages/OptionsWindow.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// The search among many options.
class OptionsSearchTest : public QObject, private OptionsWindow
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { close(); }

    void aSearchFieldIsThereForManyOptionsOnly()
    {
        open(officePrinter());
        QVERIFY(search()->isVisible());
        open(smallPrinter());
        QVERIFY(!search()->isVisible());
    }

    void searchingLeavesWhatIsFoundUnderItsHeading()
    {
        open(officePrinter());
        search()->setFocus();
        type(u"transp"_s);
        QCOMPARE(m_list->model()->rowCount(), 1);
        const QModelIndex group = m_list->model()->index(0, 0);
        QCOMPARE(group.data().toString(), u"Paper"_s);
        QVERIFY(m_list->isExpanded(group));
        QCOMPARE(current(), u"Media"_s);
        key(Qt::Key_Return); // goes to what was found
        QCOMPARE(m_printed, 0);
        QVERIFY(m_list->hasFocus());
        key(Qt::Key_Return);
        QVERIFY(choices());
    }

    void escapeClearsTheSearchAndThenLeavesTheWindow()
    {
        open(officePrinter());
        search()->setFocus();
        type(u"punch"_s);
        QCOMPARE(m_list->model()->rowCount(), 1);
        key(Qt::Key_Escape);
        QCOMPARE(search()->text(), QString());
        QCOMPARE(m_list->model()->rowCount(), 5);
        QVERIFY(m_list->isExpanded(m_list->model()->index(4, 0)));
        QVERIFY(m_window->isVisible());
        key(Qt::Key_Escape);
        QVERIFY(!m_window->isVisible());
    }

    void aSearchInVainSaysSo()
    {
        open(officePrinter());
        search()->setFocus();
        type(u"glitter"_s);
        QCOMPARE(m_list->model()->rowCount(), 0);
        QCOMPARE(hint(), u"Nothing contains “glitter”."_s);
        key(Qt::Key_Return);
        QVERIFY(search()->hasFocus());
        QCOMPARE(m_printed, 0);
        key(Qt::Key_Escape);
        QCOMPARE(hint(), QString());
        QVERIFY(m_list->currentIndex().isValid());
    }

    void searchingWhileAValueCannotBeTakenKeepsItForLater()
    {
        open(officePrinter());
        openField(u"Sleep"_s);
        type(u"100"_s);
        search()->setFocus();
        type(u"sleep"_s);
        QVERIFY(!editor());
        QVERIFY(m_page->finishEditing());
        go(u"Sleep"_s);
        key(Qt::Key_Return);
        QVERIFY(field());
        QCOMPARE(field()->text(), u"100"_s);
    }
};

QTEST_MAIN(OptionsSearchTest)

#include "options_search_test.moc"
