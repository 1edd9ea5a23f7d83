#include "platform/toolkit/ViewFrame.h"

#include <QFontInfo>
#include <QLayout>
#include <QSizeF>
#include <QVariant>
#include <QWidget>

#include "platform/toolkit/FrameLayout.h"
#include "platform/toolkit/Windows.h"

namespace corvana {

namespace {

constexpr char kRequestedSize[] = "corvanaRequestedSize"; // points
constexpr double kFontPixelsOfOnePixelPoint = 12.0;

QSizeF requestedSize(const QWidget *view)
{
    return view->property(kRequestedSize).toSizeF();
}

// The layout that places a view by its frame; null for one that is placed otherwise.
FrameLayout *frameLayoutAround(const QWidget *view)
{
    const QWidget *parent = view->parentWidget();
    auto *layout = parent ? qobject_cast<FrameLayout *>(parent->layout()) : nullptr;
    return layout && layout->indexOf(view) >= 0 ? layout : nullptr;
}

} // namespace

double pixelsPerPoint(const QWidget *view)
{
    return QFontInfo(view->font()).pixelSize() / kFontPixelsOfOnePixelPoint;
}

ViewFrame viewFrame(const QWidget *view)
{
    if (!view)
        return {};
    if (const FrameLayout *layout = frameLayoutAround(view)) {
        const QRectF frame = layout->frame(view);
        return {frame.x(), viewFrame(view->parentWidget()).height - frame.bottom(), frame.width(),
                frame.height()};
    }
    const double scale = pixelsPerPoint(view);
    const QSizeF size =
        requestedSize(view).isEmpty() ? QSizeF(view->size()) / scale : requestedSize(view);
    const int parentHeight = view->parentWidget() ? view->parentWidget()->height() : view->height();
    const int bottom = view->y() + view->height();
    return {view->x() / scale, (parentHeight - bottom) / scale, size.width(), size.height()};
}

void setViewFrame(QWidget *view, const ViewFrame &frame)
{
    if (!view)
        return;
    if (FrameLayout *layout = frameLayoutAround(view)) {
        const double top = viewFrame(view->parentWidget()).height - frame.y - frame.height;
        layout->setFrame(view, {frame.x, top, frame.width, frame.height});
        postNotificationWhenLaidOut(view);
        return;
    }
    const double scale = pixelsPerPoint(view);
    const QSize size(qRound(frame.width * scale), qRound(frame.height * scale));
    const int parentHeight = view->parentWidget() ? view->parentWidget()->height() : size.height();
    const int top = parentHeight - qRound(frame.y * scale) - size.height();
    view->setProperty(kRequestedSize, QSizeF(frame.width, frame.height));
    view->setGeometry(qRound(frame.x * scale), top, size.width(), size.height());
    postNotificationWhenLaidOut(view);
}

QSize requestedPixelSize(const QWidget *view)
{
    return (requestedSize(view) * pixelsPerPoint(view)).toSize();
}

} // namespace corvana
