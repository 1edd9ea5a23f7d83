#include "platform/toolkit/FrameLayout.h"

#include <algorithm>

#include <QStyle>
#include <QVariant>
#include <QWidget>

#include "platform/toolkit/ViewFrame.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {
constexpr double kLeastDistance = 8.0; // points, unless the frames stand closer
}

FrameLayout::FrameLayout(QWidget *view) : m_designed(view->size())
{
    QList<QWidget *> children;
    for (QObject *child : view->children()) {
        if (auto *widget = qobject_cast<QWidget *>(child);
            widget && !widget->isWindow() && !widget->size().isEmpty())
            children += widget;
    }
    view->setLayout(this);
    setContentsMargins(0, 0, 0, 0);
    for (QWidget *child : std::as_const(children)) {
        const QRectF designed = child->geometry();
        addWidget(child);
        m_placed.back().designed = designed;
        m_placed.back().frame = designed;
        const QString stretch = child->property("stretch").toString();
        const bool both = stretch == "both"_L1;
        m_placed.back().stretchesWidth = both || stretch == "width"_L1;
        m_placed.back().stretchesHeight = both || stretch == "height"_L1;
    }
}

FrameLayout::~FrameLayout()
{
    for (const Placed &placed : m_placed)
        delete placed.item;
}

QRectF FrameLayout::frame(const QWidget *child) const
{
    for (const Placed &placed : m_placed) {
        if (placed.item->widget() == child)
            return placed.frame;
    }
    return {};
}

bool FrameLayout::setFrame(const QWidget *child, const QRectF &frame)
{
    for (Placed &placed : m_placed) {
        if (placed.item->widget() != child)
            continue;
        placed.frame = frame;
        invalidate();
        return true;
    }
    return false;
}

void FrameLayout::addItem(QLayoutItem *item)
{
    m_placed.push_back({item, QRectF(), QRectF(), false, false});
}

int FrameLayout::count() const
{
    return static_cast<int>(m_placed.size());
}

QLayoutItem *FrameLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_placed[static_cast<size_t>(index)].item : nullptr;
}

QLayoutItem *FrameLayout::takeAt(int index)
{
    QLayoutItem *item = itemAt(index);
    if (item)
        m_placed.erase(m_placed.begin() + index);
    return item;
}

double FrameLayout::scale() const
{
    return pixelsPerPoint(parentWidget());
}

bool FrameLayout::isLaidOut(const Placed &placed) const
{
    return !placed.item->isEmpty();
}

// What the view keeps free below a child that follows its height.
int FrameLayout::bottomMargin(const Placed &placed, double scale) const
{
    // Frames are moved towards the upper edge where rows above are missing; the margin stays.
    return qRound(std::max(0.0, m_designed.height() - placed.designed.bottom()) * scale);
}

// Where a child stands by its own frame alone.
QRect FrameLayout::geometryOf(const Placed &placed, const QSize &available, double scale) const
{
    const QSize needed = placed.item->minimumSize();
    const QRectF &frame = placed.frame;
    const int left = qRound(frame.left() * scale);
    const int top = qRound(frame.top() * scale);
    int width = std::max(qRound(frame.width() * scale), needed.width());
    if (placed.stretchesWidth) {
        const int margin = qRound((m_designed.width() - frame.right()) * scale);
        width = std::max(available.width() - left - margin, needed.width());
    }
    return {left, top, width, std::max(qRound(frame.height() * scale), needed.height())};
}

std::vector<QRect> FrameLayout::geometries(const QSize &available) const
{
    const double pixels = scale();
    std::vector<QRect> result(m_placed.size());
    std::vector<size_t> order(m_placed.size());
    for (size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::stable_sort(order.begin(), order.end(), [this](size_t a, size_t b) {
        return m_placed[a].frame.top() < m_placed[b].frame.top();
    });
    for (size_t i = 0; i < order.size(); ++i) {
        const Placed &placed = m_placed[order[i]];
        if (!isLaidOut(placed))
            continue;
        QRect &geometry = result[order[i]];
        geometry = geometryOf(placed, available, pixels);
        for (size_t j = 0; j < i; ++j) {
            const Placed &above = m_placed[order[j]];
            const QRect &upper = result[order[j]];
            const bool stacked = above.frame.bottom() <= placed.frame.top() &&
                                 upper.left() <= geometry.right() &&
                                 geometry.left() <= upper.right();
            if (!isLaidOut(above) || !stacked)
                continue;
            // What stands above has grown, or both are near each other.
            const int distance = qRound(
                std::min(placed.frame.top() - above.frame.bottom(), kLeastDistance) * pixels);
            geometry.moveTop(std::max(geometry.top(), upper.bottom() + 1 + distance));
        }
        if (placed.stretchesHeight)
            geometry.setBottom(
                std::max(geometry.bottom(), available.height() - 1 - bottomMargin(placed, pixels)));
    }
    return result;
}

QSize FrameLayout::sizeHint() const
{
    return minimumSize();
}

QSize FrameLayout::minimumSize() const
{
    QSize size;
    const std::vector<QRect> all = geometries(QSize(0, 0));
    for (size_t i = 0; i < all.size(); ++i) {
        if (!isLaidOut(m_placed[i]))
            continue;
        const double margin = m_placed[i].stretchesWidth
                                  ? (m_designed.width() - m_placed[i].frame.right()) * scale()
                                  : 0.0;
        const int below = m_placed[i].stretchesHeight ? bottomMargin(m_placed[i], scale()) : 0;
        size = size.expandedTo(
            {all[i].right() + 1 + qRound(std::max(0.0, margin)), all[i].bottom() + 1 + below});
    }
    return size;
}

void FrameLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    const std::vector<QRect> all = geometries(rect.size());
    const Qt::LayoutDirection direction = parentWidget()->layoutDirection();
    for (size_t i = 0; i < all.size(); ++i) {
        if (isLaidOut(m_placed[i]))
            m_placed[i].item->setGeometry(
                QStyle::visualRect(direction, rect, all[i].translated(rect.topLeft())));
    }
}

} // namespace corvana
