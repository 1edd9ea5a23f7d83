#include "platform/toolkit/Windows.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include "platform/foundation/NotificationCenter.h"

namespace corvana {

namespace {

// A close event may still be refused by the window; it was accepted when the window hides before
// the event has been dealt with. The handler of the event may ask the user first, so what marks
// that time is an object deleted later: it outlives event loops that run inside the handler, and no
// more.
class ClosingWatcher : public QObject
{
public:
    explicit ClosingWatcher(QWidget *window) : QObject(window) { window->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::Close:
            delete m_closing;
            m_closing = new QObject(this);
            m_closing->deleteLater();
            break;
        case QEvent::Hide:
            if (m_closing && !event->spontaneous()) { // minimising is no closing
                delete m_closing;
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
    QPointer<QObject> m_closing;
};

} // namespace

QWidget *keyWindow(const QWidget *panelView)
{
    if (panelView && (panelView->parentWidget() || panelView->isVisible()))
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
