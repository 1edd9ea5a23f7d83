#include "tests/dialog/support/UserHands.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace corvana::test {

namespace {

constexpr int kListPatience = 5000; // milliseconds until a list has opened
constexpr int kMostTabs = 80;       // there are fewer controls

// A pop-up takes the release of the mouse button that has opened it for nothing but that, until a
// timer of its own has been delivered: on a busy machine that is when one that is due later has.
void waitForNextClick()
{
    bool isOver = false;
    QTimer later;
    later.setTimerType(Qt::PreciseTimer);
    later.callOnTimeout([&] { isOver = true; });
    later.start(QApplication::doubleClickInterval() + 50);
    (void)QTest::qWaitFor([&] { return isOver; }, kListPatience);
}

} // namespace

bool UserHands::bringIntoSight(QWidget *widget)
{
    if (!widget || !widget->isVisible() || !widget->isEnabled())
        return false;
    for (QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        auto *area = qobject_cast<QScrollArea *>(parent);
        const QRect whole(QPoint(), widget->size());
        if (!area || widget->visibleRegion().contains(whole))
            continue;
        area->ensureWidgetVisible(widget);
        ++m_clicks;
        QCoreApplication::processEvents();
    }
    return !widget->visibleRegion().isEmpty();
}

bool UserHands::click(QWidget *widget, QPoint place)
{
    if (!bringIntoSight(widget))
        return false;
    ++m_clicks;
    QTest::mouseClick(widget, Qt::LeftButton, {}, place);
    QCoreApplication::processEvents();
    return true;
}

bool UserHands::click(const QString &name)
{
    auto *widget = m_window.findChild<QWidget *>(name);
    return widget && click(widget, widget->rect().center());
}

bool UserHands::choose(const QString &name, const QString &item)
{
    auto *popUp = m_window.findChild<QComboBox *>(name);
    const int row = popUp ? popUp->findText(item) : -1;
    if (row < 0 || !click(name))
        return false;
    QAbstractItemView *list = popUp->view();
    if (!QTest::qWaitFor([list] { return list->isVisible(); }, kListPatience))
        return false;
    waitForNextClick();
    const QModelIndex index =
        popUp->model()->index(row, popUp->modelColumn(), popUp->rootModelIndex());
    list->scrollTo(index);
    if (!click(list->viewport(), list->visualRect(index).center()))
        return false;
    return QTest::qWaitFor([&] { return popUp->currentText() == item; }, kListPatience);
}

bool UserHands::pick(const QString &button, const QString &action)
{
    bool isPicked = false;
    QTimer opened; // a menu waits for its answer within the click that opens it
    QObject::connect(&opened, &QTimer::timeout, [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        auto *wanted = menu ? menu->findChild<QAction *>(action) : nullptr;
        if (!menu)
            return;
        opened.stop();
        isPicked =
            wanted && wanted->isEnabled() && click(menu, menu->actionGeometry(wanted).center());
        menu->close();
    });
    opened.start(QApplication::doubleClickInterval() + 50);
    return click(button) && isPicked;
}

bool UserHands::choosePrinter(const QString &printer)
{
    if (!click(u"printers"_s))
        return false;
    QAbstractItemView *list = nullptr;
    const auto isOpen = [&] {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (auto *found = widget->findChild<QAbstractItemView *>(u"printerList"_s))
                list = found->isVisible() ? found : list;
        }
        return list != nullptr;
    };
    if (!QTest::qWaitFor(isOpen, kListPatience))
        return false;
    waitForNextClick();
    for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row) {
        const QModelIndex index = list->model()->index(row, 0, list->rootIndex());
        if (!index.data().toString().contains(printer))
            continue;
        list->scrollTo(index);
        return click(list->viewport(), list->visualRect(index).center());
    }
    return false;
}

bool UserHands::turnTo(int page)
{
    auto *pages = m_window.findChild<QTabWidget *>(u"pages"_s);
    QTabBar *bar = pages->tabBar();
    return click(bar, bar->tabRect(page).center()) && pages->currentIndex() == page;
}

bool UserHands::key(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWidget *target = QApplication::focusWidget();
    if (!target)
        target = &m_window;
    ++m_keys;
    QTest::keyClick(target, key, modifiers);
    QCoreApplication::processEvents();
    return true;
}

bool UserHands::type(const QString &text)
{
    QWidget *target = QApplication::focusWidget();
    if (!target)
        return false;
    m_keys += static_cast<int>(text.size());
    QTest::keyClicks(target, text);
    QCoreApplication::processEvents();
    return true;
}

bool UserHands::tabTo(const QString &name)
{
    for (int i = 0; i < kMostTabs; ++i) {
        const QWidget *focus = QApplication::focusWidget();
        if (focus && focus->objectName() == name)
            return true;
        key(Qt::Key_Tab);
    }
    return false;
}

} // namespace corvana::test
