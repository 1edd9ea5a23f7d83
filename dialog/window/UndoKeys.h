#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

namespace corvana {

class TaskHistory;

/// The keys of undo and redo, wherever the focus is in a window, and the ends of steps: a field
/// that is left, a slider that is let go. In a field the keys take back its typing first, as long
/// as it has any.
///
/// Ownership: the window's; borrows the history, which outlives it.
class UndoKeys : public QObject
{
    Q_OBJECT

public:
    UndoKeys(TaskHistory &history, QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isForUs(const QObject *watched, const QKeyEvent *event) const;

    TaskHistory &m_history;
    QWidget *m_window;
};

} // namespace corvana
