#include "dialog/window/DocumentDrop.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QSysInfo>
#include <QTimer>
#include <QUrl>

#include "dialog/task/PrintTask.h"
#include "dialog/window/preview/PreviewPane.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Some programs name the computer in the address of a file.
bool isHere(const QUrl &url)
{
    const QString host = url.host();
    return url.isLocalFile() &&
           (host.isEmpty() || host == "localhost"_L1 ||
            host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0);
}

// The documents stay where they are: what is agreed to be moved is deleted by whoever gives it.
void acceptToKeep(QDropEvent &event)
{
    const Qt::DropActions possible = event.possibleActions();
    const bool canStay = possible & (Qt::CopyAction | Qt::LinkAction);
    event.setDropAction(possible & Qt::CopyAction ? Qt::CopyAction : Qt::LinkAction);
    event.setAccepted(canStay);
}

} // namespace

DroppedDocuments droppedDocuments(const QMimeData &data)
{
    DroppedDocuments dropped;
    const QList<QUrl> urls = data.urls();
    for (QUrl url : urls) {
        if (isHere(url)) {
            url.setHost({});
            dropped.files += url.toLocalFile();
        } else {
            dropped.elsewhere += url.toDisplayString();
        }
    }
    return dropped;
}

DocumentDrop::DocumentDrop(PrintTask &task, PreviewPane &pane, QWidget *window)
    : QObject(window), m_task(task), m_pane(pane), m_window(window)
{
    window->setAcceptDrops(true);
    qApp->installEventFilter(this);
}

bool DocumentDrop::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
        if (isOverPart(watched, *static_cast<QDropEvent *>(event))) {
            event->ignore(); // and the window is asked
            return true;
        }
        [[fallthrough]];
    case QEvent::DragMove:
        if (watched == m_window)
            hover(*static_cast<QDropEvent *>(event));
        return watched == m_window;
    case QEvent::Drop:
        if (watched == m_window)
            take(*static_cast<QDropEvent *>(event));
        [[fallthrough]];
    case QEvent::DragLeave:
        if (watched == m_window)
            m_pane.setDropHovers(false);
        return watched == m_window;
    default:
        return QObject::eventFilter(watched, event);
    }
}

bool DocumentDrop::isOverPart(const QObject *watched, const QDropEvent &event) const
{
    const auto *widget = qobject_cast<const QWidget *>(watched);
    return widget && widget != m_window && widget->window() == m_window &&
           !droppedDocuments(*event.mimeData()).files.isEmpty();
}

void DocumentDrop::hover(QDropEvent &event)
{
    if (!m_task.canChangeDocuments() || droppedDocuments(*event.mimeData()).files.isEmpty()) {
        m_pane.setDropHovers(false); // documents that would have been taken a moment ago
        return event.ignore();
    }
    // While it hovers as well: some programs go by that alone.
    acceptToKeep(event);
    m_pane.setDropHovers(event.isAccepted());
}

void DocumentDrop::take(QDropEvent &event)
{
    if (!m_task.canChangeDocuments())
        return event.ignore();
    acceptToKeep(event);
    if (!event.isAccepted())
        return;
    // Later: whoever gave the documents waits for this answer, and looking at them takes time.
    QTimer::singleShot(0, &m_task, [this, dropped = droppedDocuments(*event.mimeData())] {
        m_task.addDocuments(dropped.files, dropped.elsewhere);
    });
}

} // namespace corvana
