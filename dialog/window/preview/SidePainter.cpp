#include "dialog/window/preview/SidePainter.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTransform>

#include "platform/imaging/FilterImage.h"

namespace corvana {

namespace {

// Paper is white and what stands on it dark, whatever the desktop looks like.
constexpr QRgb kPaper = 0xffffffff;
constexpr QRgb kTextOnPaper = 0xff505050;

QColor mixed(const QColor &one, const QColor &other, int percentOfOther)
{
    const auto part = [percentOfOther](int a, int b) {
        return (a * (100 - percentOfOther) + b * percentOfOther) / 100;
    };
    return {part(one.red(), other.red()), part(one.green(), other.green()),
            part(one.blue(), other.blue())};
}

void paintShadow(QPainter &painter, const QRect &paper)
{
    // Only around the paper: what lies under it would be painted for nothing.
    constexpr int kStrength[] = {44, 26, 14, 6};
    painter.setBrush(Qt::NoBrush);
    for (int i = 0; i < 4; ++i) {
        painter.setPen(QColor(0, 0, 0, kStrength[i]));
        painter.drawRect(paper.adjusted(-i, 1 - i, i - 1, i));
    }
}

// Stitches beside the bound edge, outside the paper.
void paintBoundEdge(QPainter &painter, const PaintedSide &side, const QColor &color)
{
    if (!side.bound)
        return;
    constexpr int kAway = 4;
    constexpr int kIn = 3;
    const QRect edge = side.paper.adjusted(-kAway, -kAway, kAway - 1, kAway - 1);
    const QRect along = side.paper.adjusted(kIn, kIn, -kIn, -kIn);
    QPen pen(color, 2);
    pen.setDashPattern({3, 2});
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    switch (*side.bound) {
    case Qt::LeftEdge:
        painter.drawLine(edge.left(), along.top(), edge.left(), along.bottom());
        break;
    case Qt::RightEdge:
        painter.drawLine(edge.right() + 1, along.top(), edge.right() + 1, along.bottom());
        break;
    case Qt::TopEdge:
        painter.drawLine(along.left(), edge.top(), along.right(), edge.top());
        break;
    case Qt::BottomEdge:
        painter.drawLine(along.left(), edge.bottom() + 1, along.right(), edge.bottom() + 1);
        break;
    }
}

void paintProblem(QPainter &painter, const PaintedSide &side)
{
    const int margin = qMin(side.paper.width(), side.paper.height()) / 10;
    const QRect place = side.paper.adjusted(margin, margin, -margin, -margin);
    const QRect text = place.adjusted(0, 0, 0, -place.height() / 3);
    painter.setPen(QColor::fromRgb(kTextOnPaper));
    painter.save();
    painter.setClipRect(place, Qt::IntersectClip);
    painter.drawText(text, int(Qt::AlignCenter) | int(Qt::TextWordWrap), side.problem);
    painter.restore();
}

// A sign that is read without its color, on a ground of its own, since it may lie on anything.
void paintMark(QPainter &painter, const QRect &place)
{
    constexpr QRgb kGround = 0xfff9c513;
    constexpr QRgb kSign = 0xff2b2b2b;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box = QRectF(place).adjusted(1, 1, -1, -1);
    painter.setPen(QPen(QColor::fromRgb(kSign), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor::fromRgb(kGround));
    painter.drawPolygon(
        QPolygonF{QPointF(box.center().x(), box.top()), box.bottomRight(), box.bottomLeft()});
    // An exclamation mark: its stroke, and its dot.
    const double width = box.width() * 0.11;
    painter.setPen(QPen(QColor::fromRgb(kSign), width, Qt::SolidLine, Qt::RoundCap));
    const double x = box.center().x();
    painter.drawLine(QPointF(x, box.top() + box.height() * 0.38),
                     QPointF(x, box.top() + box.height() * 0.66));
    painter.drawPoint(QPointF(x, box.top() + box.height() * 0.84));
    painter.restore();
}

} // namespace

QColor SidePainter::background(const QPalette &palette)
{
    const QColor window = palette.color(QPalette::Window);
    return mixed(window, Qt::black, window.lightness() < 128 ? 30 : 11);
}

void SidePainter::paint(QPainter &painter, const PaintedSide &side, const QPalette &palette,
                        const QRect &exposed)
{
    painter.setRenderHint(QPainter::Antialiasing, false);
    if (!side.paper.contains(exposed))
        paintShadow(painter, side.paper);
    const QRect part = side.paper & exposed;
    if (!part.isEmpty()) {
        if (side.picture.isNull())
            painter.fillRect(part, QColor::fromRgb(kPaper));
        else
            paintPicture(painter, side, part);
        if (!side.problem.isEmpty())
            paintProblem(painter, side);
    }
    if (side.mark.intersects(exposed))
        paintMark(painter, side.mark);
    const QColor text = palette.color(QPalette::WindowText);
    const QColor weak = mixed(text, background(palette), 35);
    if (side.isCurrent) {
        painter.setPen(QPen(palette.color(QPalette::Highlight), kFocusWidth));
        painter.setBrush(Qt::NoBrush);
        const int away = kFocusWidth;
        painter.drawRect(side.paper.adjusted(-away, -away, away, away));
    } else {
        paintBoundEdge(painter, side, weak);
    }
    if (!side.label.intersects(exposed))
        return;
    painter.setPen(side.isCurrent ? text : weak);
    painter.drawText(
        side.label, int(Qt::AlignHCenter) | int(Qt::AlignBottom),
        painter.fontMetrics().elidedText(side.text, Qt::ElideRight, side.label.width()));
}

QImage SidePainter::colored(const QImage &picture, const QRect &part)
{
    // The pixels of the part, without a copy of them.
    const QImage seen(picture.constScanLine(part.top()) + qsizetype(part.left()) * 4, part.width(),
                      part.height(), picture.bytesPerLine(), picture.format());
    if (m_colors.isIdentity())
        return seen;
    FilterImage(seen).filtered(m_colors).renderInto(m_buffer);
    return m_buffer;
}

void SidePainter::paintPicture(QPainter &painter, const PaintedSide &side, const QRect &exposed)
{
    QImage picture = side.picture;
    if (picture.format() != QImage::Format_RGB32)
        picture = picture.convertToFormat(QImage::Format_RGB32);
    const double ratio = painter.device()->devicePixelRatioF();
    const bool lies = side.turn % 180 != 0;
    const QSize shown = lies ? picture.size().transposed() : picture.size();
    const QSize exact = (QSizeF(side.paper.size()) * ratio).toSize();

    // From the picture's pixels to where they are seen.
    QTransform place;
    place.translate(side.paper.x() + side.paper.width() / 2.0,
                    side.paper.y() + side.paper.height() / 2.0);
    place.scale(double(side.paper.width()) / shown.width(),
                double(side.paper.height()) / shown.height());
    place.rotate(side.turn);
    place.translate(-picture.width() / 2.0, -picture.height() / 2.0);
    const QRect part = place.inverted().mapRect(QRectF(exposed)).toAlignedRect() & picture.rect();
    if (part.isEmpty())
        return;
    const QImage seen = colored(picture, part);
    painter.save();
    painter.setClipRect(exposed, Qt::IntersectClip);
    if (shown == exact && side.turn % 360 == 0) {
        // In pixels of the screen, because a picture that is given a ratio is copied for it.
        painter.scale(1 / ratio, 1 / ratio);
        painter.drawImage((QPointF(side.paper.topLeft()) * ratio).toPoint() + part.topLeft(), seen);
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform, shown != exact);
        painter.setTransform(place, true);
        painter.drawImage(part.topLeft(), seen);
    }
    painter.restore();
}

} // namespace corvana
