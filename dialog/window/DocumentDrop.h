#pragma once

#include <QObject>
#include <QStringList>

class QDropEvent;
class QMimeData;
class QWidget;

namespace corvana {

class PreviewPane;
class PrintTask;

/// What is dropped on a window to be printed.
struct DroppedDocuments
{
    QStringList files;     ///< paths on this computer
    QStringList elsewhere; ///< addresses of what is not on it
};

/// Reads "file://localhost/PATH" and this computer's own name as what they are, too.
DroppedDocuments droppedDocuments(const QMimeData &data);

/// Takes documents that are dropped anywhere on a window, on its fields as well: a field would take
/// their address for a text. They are never moved: whoever gives them would delete the files.
///
/// Ownership: the window's; borrows task and pane.
class DocumentDrop : public QObject
{
    Q_OBJECT

public:
    DocumentDrop(PrintTask &task, PreviewPane &pane, QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isOverPart(const QObject *watched, const QDropEvent &event) const;
    void hover(QDropEvent &event);
    void take(QDropEvent &event);

    PrintTask &m_task;
    PreviewPane &m_pane;
    QWidget *m_window;
};

} // namespace corvana
