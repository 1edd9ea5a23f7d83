#include <algorithm>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFocusFrame>
#include <QKeySequence>
#include <QLabel>
#include <QMultiMap>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include "dialog/job/JobProgress.h"
#include "dialog/window/JobFooter.h"
#include "dialog/window/preview/SheetView.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/support/UserHands.h"
#include "tests/dialog/support/WindowDriver.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int kMostStops = 100;

/// Where Tab leads, from where the focus is until it is there again, or until a place comes twice.
QList<QWidget *> stopsOfTab(UserHands &hands, Qt::KeyboardModifiers modifiers = {})
{
    QList<QWidget *> stops{QApplication::focusWidget()};
    for (int i = 0; i < kMostStops; ++i) {
        hands.key(modifiers ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
        QWidget *now = QApplication::focusWidget();
        const bool isAgain = stops.contains(now);
        stops += now;
        if (isAgain)
            break;
    }
    return stops;
}

/// The keys that lead somewhere on what is shown, each with what says so.
QMultiMap<QKeySequence, QString> mnemonicsOf(const QWidget &window)
{
    QMultiMap<QKeySequence, QString> keys;
    const auto add = [&](const QString &text) {
        if (const QKeySequence key = QKeySequence::mnemonic(text); !key.isEmpty())
            keys.insert(key, text);
    };
    for (const QLabel *label : window.findChildren<QLabel *>()) {
        if (label->isVisible() && label->buddy())
            add(label->text());
    }
    for (const QAbstractButton *button : window.findChildren<QAbstractButton *>()) {
        if (button->isVisible())
            add(button->text());
    }
    for (const QTabBar *bar : window.findChildren<QTabBar *>()) {
        for (int tab = 0; tab < bar->count(); ++tab)
            add(bar->tabText(tab));
    }
    return keys;
}

QStringList namesOf(const QList<QWidget *> &widgets)
{
    QStringList names;
    for (const QWidget *widget : widgets)
        names += widget ? widget->objectName() : u"nothing"_s;
    return names;
}

} // namespace

/// Where the focus goes by keys alone.
class FocusOrderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tabGoesRoundThroughEverything_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("disclosure");
        QTest::addRow("general") << 0 << QString();
        QTest::addRow("general, more") << 0 << u"more"_s;
        QTest::addRow("print setting, advanced") << 1 << u"optionButton"_s;
        QTest::addRow("color setting, adjustment") << 2 << u"optionButton"_s;
    }

    void tabGoesRoundThroughEverything()
    {
        QFETCH(int, page);
        QFETCH(QString, disclosure);
        CommandLine line = sampleDocument();
        line.ppd = sourceFile(u"resources/ppd/corvana-cl5.ppd"_s);
        WindowDriver window(requestFor(line), WindowDriver::Activation::Yes);
        QTRY_COMPARE_WITH_TIMEOUT(window.dialog().task().phase(), PrintTask::Phase::Ready,
                                  kWindowPatience);
        window.showPage(page);
        if (page > 0)
            QVERIFY(window.waitForPanel(page));
        const auto *sheets = window.child<SheetView>(u"sheets"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!sheets->sheets().plan.sheets.isEmpty(), kWindowPatience);
        if (!disclosure.isEmpty()) {
            auto *button = window.pages()->currentWidget()->findChild<QPushButton *>(disclosure);
            QVERIFY(button);
            if (!button->isChecked())
                button->click();
        }
        QTest::qWait(50);
        UserHands hands(window.dialog());
        window.child<QPushButton>(u"print"_s)->setFocus();
        const QStringList stops = namesOf(stopsOfTab(hands));
        QCOMPARE(stops.first(), u"print"_s);
        // It comes back to where it began, and so it has been everywhere.
        QVERIFY2(stops.last() == u"print"_s, qPrintable(stops.join(u' ')));
        for (const char *name :
             {"printers", "preset", "qt_tabwidget_tabbar", "sheets", "findField"})
            QVERIFY2(stops.contains(QLatin1StringView(name)),
                     qPrintable(QLatin1StringView(name) + u" not in "_s + stops.join(u' ')));
        QStringList back = namesOf(stopsOfTab(hands, Qt::ShiftModifier));
        std::reverse(back.begin(), back.end());
        QCOMPARE(back, stops);
    }

    void theFocusIsSeenWhole_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("framed");
        QTest::addRow("general") << 0 << u"more"_s;
        QTest::addRow("print setting") << 1 << u"optionButton"_s;
        QTest::addRow("all options") << 3 << u"options"_s;
    }
    void theFocusIsSeenWhole()
    {
        QFETCH(int, page);
        QFETCH(QString, framed);
        CommandLine line = sampleDocument();
        line.ppd = sourceFile(u"resources/ppd/corvana-cl5.ppd"_s);
        WindowDriver window(requestFor(line), WindowDriver::Activation::Yes);
        QVERIFY(window.waitForPanel(1));
        window.showPage(page);
        UserHands hands(window.dialog());
        window.child<QPushButton>(u"print"_s)->setFocus();
        QStringList seen;
        for (int i = 0; i < kMostStops && !seen.contains(u"print"_s); ++i) {
            hands.key(Qt::Key_Tab);
            const auto *frame = window.dialog().findChild<QFocusFrame *>();
            if (!frame || !frame->isVisible())
                continue;
            const QString name = frame->widget()->objectName();
            QVERIFY2(frame->parentWidget()->rect().contains(frame->geometry()), qPrintable(name));
            seen += name;
        }
        QVERIFY2(seen.contains(framed) && seen.contains(u"print"_s), qPrintable(seen.join(u' ')));
    }

    // A key that leads to two places leads to the wrong one every second time.
    void noKeyLeadsToTwoPlaces_data() { tabGoesRoundThroughEverything_data(); }
    void noKeyLeadsToTwoPlaces()
    {
        QFETCH(int, page);
        QFETCH(QString, disclosure);
        CommandLine line = sampleDocument();
        line.ppd = sourceFile(u"resources/ppd/corvana-cl5.ppd"_s);
        WindowDriver window(requestFor(line));
        QTRY_COMPARE_WITH_TIMEOUT(window.dialog().task().phase(), PrintTask::Phase::Ready,
                                  kWindowPatience);
        window.showPage(page);
        if (page > 0)
            QVERIFY(window.waitForPanel(page));
        if (!disclosure.isEmpty())
            window.pages()->currentWidget()->findChild<QPushButton *>(disclosure)->setChecked(true);
        const auto keys = mnemonicsOf(window.dialog());
        QVERIFY(keys.size() >= 4);
        for (const QKeySequence &key : keys.uniqueKeys())
            QVERIFY2(keys.count(key) == 1,
                     qPrintable(key.toString() + u": "_s + keys.values(key).join(u", "_s)));
    }

    // Undoing the pages on a side takes the effect of their order away, in which the focus is.
    void aRowThatIsDisabledHandsTheFocusOn()
    {
        CommandLine line = sampleDocument();
        line.ppd = sourceFile(u"resources/ppd/corvana-cl5.ppd"_s);
        WindowDriver window(requestFor(line), WindowDriver::Activation::Yes);
        QTRY_COMPARE_WITH_TIMEOUT(window.dialog().task().phase(), PrintTask::Phase::Ready,
                                  kWindowPatience);
        QVERIFY(window.waitForPanel(1));
        window.child<QPushButton>(u"more"_s)->setChecked(true);
        window.dialog().task().setAttribute(u"number-up"_s, u"4"_s);
        auto *order = window.child<QWidget>(u"number-up-layout"_s);
        QTRY_VERIFY(order->isEnabled());
        // The row is the last one of which something is seen.
        QTest::qWait(100); // until the window has grown with what was disclosed
        window.dialog().resize(window.dialog().width(), 1);
        auto *area = window.pages()->currentWidget()->findChild<QScrollArea *>();
        if (!area)
            area = qobject_cast<QScrollArea *>(window.pages()->currentWidget());
        QVERIFY(area);
        QTRY_VERIFY(area->verticalScrollBar()->maximum() > 0);
        area->verticalScrollBar()->setValue(0);
        area->ensureWidgetVisible(order, 0, 0);
        QTRY_VERIFY(window.child<QToolButton>(u"undo"_s)->isEnabled());
        order->setFocus();
        UserHands hands(window.dialog());
        hands.key(Qt::Key_Z, Qt::ControlModifier);
        QTRY_VERIFY(!order->isEnabled());
        QTRY_VERIFY(QApplication::focusWidget());
        QVERIFY(QApplication::focusWidget()->isEnabled());
        QVERIFY(window.pages()->isAncestorOf(QApplication::focusWidget()));
        const QWidget *now = QApplication::focusWidget();
        QTRY_COMPARE(now->visibleRegion().boundingRect().height(), now->height());
    }

    void aPageThatComesBackHasTheFocusOnWhatIsSeen()
    {
        CommandLine line = sampleDocument();
        line.ppd = sourceFile(u"resources/ppd/corvana-cl5.ppd"_s);
        WindowDriver window(requestFor(line), WindowDriver::Activation::Yes);
        QTRY_COMPARE_WITH_TIMEOUT(window.dialog().task().phase(), PrintTask::Phase::Ready,
                                  kWindowPatience);
        QVERIFY(window.waitForPanel(1));
        auto *more = window.child<QPushButton>(u"more"_s);
        more->setChecked(true);
        auto *field = window.child<QComboBox>(u"page-border"_s);
        field->setFocus();
        QCOMPARE(QApplication::focusWidget(), field);
        UserHands hands(window.dialog());
        hands.key(Qt::Key_PageDown, Qt::ControlModifier);
        QVERIFY(window.pages()->currentIndex() == 1 && QApplication::focusWidget() != field);
        QVERIFY(window.pages()->currentWidget()->isAncestorOf(QApplication::focusWidget()));
        more->setChecked(false); // as taking back what was disclosed may do
        hands.key(Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(window.pages()->currentIndex(), 0);
        QVERIFY(!field->isVisible());
        QTRY_VERIFY(QApplication::focusWidget() && QApplication::focusWidget()->isVisible());
        QVERIFY(window.dialog().isAncestorOf(QApplication::focusWidget()));
    }

    void whatIsClickedAtItsEdgeComesIntoSight()
    {
        CommandLine line = sampleDocument();
        line.ppd = sourceFile(u"resources/ppd/corvana-cl5.ppd"_s);
        WindowDriver window(requestFor(line), WindowDriver::Activation::Yes);
        QTRY_COMPARE_WITH_TIMEOUT(window.dialog().task().phase(), PrintTask::Phase::Ready,
                                  kWindowPatience);
        QVERIFY(window.waitForPanel(1));
        window.child<QPushButton>(u"more"_s)->setChecked(true);
        QTest::qWait(100); // until the window has grown with what was disclosed
        window.dialog().resize(window.dialog().width(), 1);
        auto *field = window.child<QComboBox>(u"print-scaling"_s);
        auto *area = window.pages()->currentWidget()->findChild<QScrollArea *>();
        QVERIFY(field && area);
        QTRY_VERIFY(area->verticalScrollBar()->maximum() > 0);
        constexpr int kSeen = 6;
        const int top = field->mapTo(area->widget(), QPoint()).y();
        area->verticalScrollBar()->setValue(top + kSeen - area->viewport()->height());
        QTRY_COMPARE(field->visibleRegion().boundingRect().height(), kSeen);
        QTest::mouseClick(field, Qt::RightButton, {}, {field->width() / 2, kSeen / 2}); // no list
        QCOMPARE(QApplication::focusWidget(), field);
        QTRY_COMPARE(field->visibleRegion().boundingRect().height(), field->height());
    }

    // The focus is on the progress then, which is no stop of Tab: what is next to it is.
    void theButtonsAreNextWhileAJobRuns()
    {
        CommandLine line = sampleDocument();
        line.ppd = sourceFile(u"resources/ppd/corvana-cl5.ppd"_s);
        WindowDriver window(requestFor(line), WindowDriver::Activation::Yes);
        QTRY_COMPARE_WITH_TIMEOUT(window.dialog().task().phase(), PrintTask::Phase::Ready,
                                  kWindowPatience);
        QVERIFY(window.waitForPanel(1));
        auto *footer = window.dialog().findChild<JobFooter *>();
        const auto begin = [footer] {
            footer->setCanPrint(true);
            footer->showRunning(false);
            footer->focusPrint();
            footer->showRunning(true);
            footer->setCanPrint(false);
            footer->showProgress({}, true);
        };
        UserHands hands(window.dialog());
        begin();
        QCOMPARE(QApplication::focusWidget()->objectName(), u"progress"_s);
        QStringList reached;
        for (int i = 0; i < 3; ++i) {
            hands.key(Qt::Key_Tab);
            reached += QApplication::focusWidget()->objectName();
        }
        QCOMPARE(reached, (QStringList{u"helpButton"_s, u"leave"_s, u"cancel"_s}));
        begin();
        hands.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(!footer->isAncestorOf(QApplication::focusWidget()));
        hands.key(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), u"helpButton"_s);
    }
};

QTEST_MAIN(FocusOrderTest)

#include "focus_order_test.moc"
