#pragma once

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QAccessibleValueInterface>
#include <QComboBox>
#include <QEventLoop>
#include <QTest>
#include <QTimer>
#include <QWidget>

/// What a person does to a control, by mouse, keyboard or assistive technology. The control's
/// window must be shown.
namespace user {

/// Shows the window and waits until it can have the focus.
inline bool show(QWidget *window)
{
    window->show();
    window->activateWindow();
    return QTest::qWaitForWindowActive(window);
}

/// Opens the list of a pop-up and picks the item at `index`, which may be the current one.
inline void pick(QComboBox *popUp, int index)
{
    popUp->showPopup();
    popUp->view()->setCurrentIndex(popUp->model()->index(index, popUp->modelColumn()));
    QTest::keyClick(popUp->view(), Qt::Key_Return);
}

/// Does what a screen reader offers under `action`; false when the control does not offer it.
inline bool act(QWidget *control, const QString &action)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(control);
    QAccessibleActionInterface *actions = interface ? interface->actionInterface() : nullptr;
    if (!actions || !actions->actionNames().contains(action))
        return false;
    actions->doAction(action);
    return true;
}

/// Sets the value as a screen reader does; false when the control offers none.
inline bool setValue(QWidget *control, const QVariant &value)
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(control);
    QAccessibleValueInterface *values = interface ? interface->valueInterface() : nullptr;
    if (!values)
        return false;
    values->setCurrentValue(value);
    return true;
}

/// Waits as a modal alert does: events and timers are handled meanwhile.
inline void runNestedEventLoop()
{
    QEventLoop loop;
    QTimer::singleShot(30, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace user
