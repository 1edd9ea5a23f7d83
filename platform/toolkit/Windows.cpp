#include "platform/toolkit/Windows.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include "platform/foundation/NotificationCenter.h"

namespace corvana {

namespace {

// A close event may still be refused by the window; it was accepted when the window hides.
class ClosingWatcher : public QObject
{
public:
    explicit ClosingWatcher(QWidget *window) : QObject(window) { window->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::Close:
            m_closing = true;
            // A window that refused to close is still there when the event is over.
            QTimer::singleShot(0, this, [this] { m_closing = false; });
            break;
        case QEvent::Show:
            m_closing = false;
            break;
        case QEvent::Hide:
            if (m_closing && !event->spontaneous()) { // minimising is no closing
                m_closing = false;
                NotificationCenter::defaultCenter().post(
                    QLatin1StringView(kWindowWillCloseNotification), watched);
            }
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool m_closing = false;
};

} // namespace

QWidget *keyWindow(const QWidget *panelView)
{
    if (panelView && panelView->window()->isVisible())
        return panelView->window();
    return QApplication::activeWindow();
}

void postNotificationWhenClosing(QWidget *window)
{
    constexpr char watched[] = "corvanaClosingWatched";
    if (window->property(watched).toBool())
        return;
    window->setProperty(watched, true);
    new ClosingWatcher(window);
}

void postNotificationWhenLaidOut(QWidget *view)
{
    // Layouts do their work when the event loop turns; this comes behind them.
    QTimer::singleShot(0, view, [view] {
        NotificationCenter::defaultCenter().post(
            QLatin1StringView(kViewDidUpdateTrackingAreasNotification), view);
    });
}

} // namespace corvana
