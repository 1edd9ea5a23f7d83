#include "platform/toolkit/ViewFrame.h"

#include <QFontInfo>
#include <QSizeF>
#include <QVariant>
#include <QWidget>

#include "platform/toolkit/Windows.h"

namespace corvana {

namespace {

constexpr char kRequestedSize[] = "corvanaRequestedSize"; // points
constexpr double kFontPixelsOfOnePixelPoint = 12.0;

QSizeF requestedSize(const QWidget *view)
{
    return view->property(kRequestedSize).toSizeF();
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
    const double scale = pixelsPerPoint(view);
    const QSize size(qRound(frame.width * scale), qRound(frame.height * scale));
    const int parentHeight = view->parentWidget() ? view->parentWidget()->height() : size.height();
    const int top = parentHeight - qRound(frame.y * scale) - size.height();
    view->setProperty(kRequestedSize, QSizeF(frame.width, frame.height));
    view->setGeometry(qRound(frame.x * scale), top, size.width(), size.height());
    postNotificationWhenLaidOut(view);
}

int requestedHeight(const QWidget *view)
{
    return qRound(requestedSize(view).height() * pixelsPerPoint(view));
}

} // namespace corvana
