#include "printsetting/ExtraAccessoryView.h"

#include <QPaintEvent>
#include <QPainter>

#include "platform/toolkit/ViewFrame.h"

namespace corvana {

ExtraAccessoryView::ExtraAccessoryView(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ExtraAccessoryView::setImage(const QImage &image)
{
    m_given += image;
    m_alertImage = image;
    update();
}

void ExtraAccessoryView::setBoundsOrigin(const QPointF &origin)
{
    m_boundsOrigin = origin;
    update();
}

void ExtraAccessoryView::drawRect(QPainter &painter, const QRectF &) const
{
    if (m_alertImage.isNull())
        return;
    painter.save();
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setOpacity(1.0);
    painter.setRenderHint(QPainter::SmoothPixmapTransform); // a picture for fine screens shrinks
    painter.drawImage(QRectF(m_boundsOrigin, QSizeF(size())), m_alertImage,
                      QRectF(QPointF(0, 0), QSizeF(m_alertImage.size())));
    painter.restore();
}

QSize ExtraAccessoryView::sizeHint() const
{
    return requestedPixelSize(this);
}

void ExtraAccessoryView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.translate(-m_boundsOrigin);
    drawRect(painter, QRectF(event->rect()).translated(m_boundsOrigin));
}

} // namespace corvana
