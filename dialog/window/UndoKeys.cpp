#include "dialog/window/UndoKeys.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>

#include "dialog/task/TaskHistory.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

namespace {

enum class Way { None, Back, Forward };

Way wayOf(const QKeyEvent &event)
{
    const QKeyCombination keys = event.keyCombination();
    if (keys == (Qt::CTRL | Qt::Key_Z))
        return Way::Back;
    const bool isForward =
        keys == (Qt::CTRL | Qt::SHIFT | Qt::Key_Z) || keys == (Qt::CTRL | Qt::Key_Y);
    return isForward ? Way::Forward : Way::None;
}

// The field in which is typed; a number field has one inside.
const QLineEdit *fieldOf(const QObject *widget)
{
    if (const auto *field = qobject_cast<const QLineEdit *>(widget))
        return field;
    const auto *number = qobject_cast<const QAbstractSpinBox *>(widget);
    return number ? number->findChild<QLineEdit *>() : nullptr;
}

} // namespace

UndoKeys::UndoKeys(TaskHistory &history, QWidget *window)
    : QObject(window), m_history(history), m_window(window)
{
    // What is taken back may be on a page that nobody looks at: which step it was is said, whether
    // a key or a button did it.
    connect(&history, &TaskHistory::stepped, this,
            [this](const QString &text) { announce(m_window, text); });
    connect(new QShortcut(Qt::CTRL | Qt::Key_Z, window), &QShortcut::activated, &history,
            &TaskHistory::undo);
    for (const QKeyCombination keys : {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y})
        connect(new QShortcut(keys, window), &QShortcut::activated, &history, &TaskHistory::redo);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *former, QWidget *) {
        if (former && m_window->isAncestorOf(former))
            m_history.endStep();
    });
    qApp->installEventFilter(this);
}

bool UndoKeys::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        if (!isForUs(watched, static_cast<QKeyEvent *>(event)))
            break;
        event->ignore();
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        if (auto *slider = qobject_cast<QAbstractSlider *>(watched);
            slider && m_window->isAncestorOf(slider))
            QMetaObject::invokeMethod(&m_history, &TaskHistory::endStep, Qt::QueuedConnection);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

// Whether a field would swallow the key although it has nothing to take back.
bool UndoKeys::isForUs(const QObject *watched, const QKeyEvent *event) const
{
    const Way way = wayOf(*event);
    const auto *widget = qobject_cast<const QWidget *>(watched);
    if (way == Way::None || !widget || !m_window->isAncestorOf(widget))
        return false;
    const QLineEdit *field = fieldOf(widget);
    if (!field)
        return false;
    // What was taken back last is done again first, and a field has its turn before the task has.
    return way == Way::Back ? !field->isUndoAvailable()
                            : m_history.canRedo() || !field->isRedoAvailable();
}

} // namespace corvana
