#include "platform/toolkit/FilterImageView.h"
#include "platform/toolkit/ScreenReader.h"

#include <QPainter>

namespace corvana {

namespace {
constexpr QSize kLeastSize{96, 64}; // pixels; smaller than this nothing can be judged
}

FilterImageView::FilterImageView(QWidget *parent) : QWidget(parent)
{
    setAccessibleRole(this, QAccessible::Graphic);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void FilterImageView::setImage(const FilterImage &image)
{
    m_image = image;
    m_changed = true;
    update();
}

void FilterImageView::displayIfNeeded()
{
    if (m_changed && isVisible())
        repaint();
}

QSize FilterImageView::sizeHint() const
{
    return 2 * kLeastSize;
}

QSize FilterImageView::minimumSizeHint() const
{
    return kLeastSize;
}

void FilterImageView::paintEvent(QPaintEvent *)
{
    m_changed = false;
    if (m_image.isNull())
        return;
    const QSize fitting = m_image.extent().scaled(size(), Qt::KeepAspectRatio);
    const QImage &shown =
        m_renderer.render(m_image, fitting.expandedTo(QSize(1, 1)), devicePixelRatioF());
    QPainter(this).drawImage(QPoint((width() - fitting.width()) / 2, 0), shown);
}

void FilterImageView::resizeEvent(QResizeEvent *)
{
    Q_EMIT resized();
}

} // namespace corvana
