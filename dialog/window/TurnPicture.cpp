#include "dialog/window/TurnPicture.h"
#include "platform/toolkit/ScreenReader.h"

#include <QPainter>
#include <QPainterPath>

namespace corvana {

namespace {

// All drawings are made on a field of so many units.
constexpr QSizeF kField(300, 120);
constexpr QSizeF kPaper(62, 84);
constexpr qreal kMark = 5;
constexpr QColor kOutline(0x8c, 0x8c, 0x8c);
constexpr QColor kLines(0xa8, 0xa8, 0xa8);

QRectF around(QPointF middle, QSizeF size)
{
    return {middle.x() - size.width() / 2, middle.y() - size.height() / 2, size.width(),
            size.height()};
}

void drawPaper(QPainter &painter, const QRectF &paper)
{
    painter.setPen(QPen(kOutline, 1));
    painter.setBrush(Qt::white); // on dark desktops as well
    painter.drawRect(paper);
}

// A heading and lines of a text: so much that anybody sees what is its top.
void drawText(QPainter &painter, const QRectF &paper)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(kLines);
    const qreal left = paper.left() + 10;
    const qreal width = paper.width() - 20;
    painter.drawRect(QRectF(left, paper.top() + 11, width * 0.55, 6));
    for (qreal y = paper.top() + 25; y < paper.bottom() - 14; y += 8)
        painter.drawRect(QRectF(left, y, y + 8 < paper.bottom() - 14 ? width : width * 0.6, 2.5));
}

void drawMark(QPainter &painter, const QRectF &paper, Qt::Edge edge, const QColor &color)
{
    QRectF mark = paper;
    switch (edge) {
    case Qt::TopEdge:
        mark.setHeight(kMark);
        break;
    case Qt::BottomEdge:
        mark.setTop(paper.bottom() - kMark);
        break;
    case Qt::LeftEdge:
        mark.setWidth(kMark);
        break;
    case Qt::RightEdge:
        mark.setLeft(paper.right() - kMark);
        break;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRect(mark);
}

void drawArrow(QPainter &painter, QPointF from, QPointF to, const QColor &color)
{
    const QLineF line(from, to);
    const QPointF along = (to - from) / line.length();
    const QPointF across(-along.y(), along.x());
    painter.setPen(QPen(color, 3, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(from, to - along * 10); // up to the head, which would be darker else
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(QPolygonF{to, to - along * 10 + across * 6, to - along * 10 - across * 6});
}

// By how much a page is turned so that an edge of it is the upper one. Units: degrees clockwise.
int turnToTop(Qt::Edge edge)
{
    switch (edge) {
    case Qt::LeftEdge:
        return 90;
    case Qt::BottomEdge:
        return 180;
    case Qt::RightEdge:
        return 270;
    case Qt::TopEdge:
        break;
    }
    return 0;
}

// A corner that is bent up shows that there is print below.
void drawBentCorner(QPainter &painter, const QRectF &paper, const QColor &behind)
{
    constexpr qreal kBent = 26;
    const QPointF corner = paper.bottomRight();
    const QPointF above = corner - QPointF(0, kBent);
    const QPointF beside = corner - QPointF(kBent, 0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(behind);
    painter.drawPolygon(
        QPolygonF{corner + QPointF(1, 1), above + QPointF(1, 0), beside + QPointF(0, 1)});
    const QPointF tip = corner - QPointF(kBent, kBent);
    QPainterPath bent;
    bent.addPolygon(QPolygonF{tip, above, beside, tip});
    painter.setPen(QPen(kOutline, 1));
    painter.setBrush(Qt::white);
    painter.drawPath(bent);
    painter.save();
    painter.setClipPath(bent);
    painter.setPen(QPen(kLines, 2.5));
    for (qreal step = 9; step < kBent; step += 7)
        painter.drawLine(tip + QPointF(3, step), tip + QPointF(kBent - step - 1, step));
    painter.restore();
}

} // namespace

TurnPicture::TurnPicture(const TurnQuestion &question, QWidget *parent)
    : QWidget(parent), m_inTray(question.inTray), m_leadingEdge(question.leadingEdge),
      m_isWide(question.isWide)
{
    setAccessibleRole(this, QAccessible::Graphic);
}

QSize TurnPicture::sizeHint() const
{
    const qreal scale = fontMetrics().height() / 14.0;
    return (kField * scale).toSize();
}

void TurnPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal scale = qMin(width() / kField.width(), height() / kField.height());
    painter.translate((width() - scale * kField.width()) / 2,
                      (height() - scale * kField.height()) / 2);
    painter.scale(scale, scale);
    const QColor ink = palette().color(QPalette::WindowText);
    const QColor mark = palette().color(QPalette::Highlight);

    // The page as it is read.
    const QRectF page = around({58, 60}, m_isWide ? kPaper.transposed() : kPaper);
    drawPaper(painter, page);
    drawText(painter, page);
    drawMark(painter, page, m_leadingEdge, mark);
    QColor faint = ink;
    faint.setAlphaF(0.6f);
    drawArrow(painter, {118, 60}, {158, 60}, faint);

    // The stack, seen from above, on its way into the printer.
    const QRectF top = around({224, 70}, kPaper);
    for (const qreal below : {6.0, 3.0})
        drawPaper(painter, top.translated(below, below));
    drawPaper(painter, top);
    if (m_inTray == HandFeed::Printed::Up) {
        painter.save();
        painter.translate(top.center());
        painter.rotate(turnToTop(m_leadingEdge));
        drawText(painter, around({0, 0}, m_isWide ? kPaper.transposed() : kPaper));
        painter.restore();
    } else {
        drawBentCorner(painter, top, Qt::white);
    }
    drawMark(painter, top, Qt::TopEdge, mark);
    const QRectF printer(164, 4, 120, 24);
    QColor body = ink;
    body.setAlphaF(0.75f);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawRoundedRect(printer, 5, 5); // whatever is behind does not shine through
    painter.setBrush(body);
    painter.drawRoundedRect(printer, 5, 5);
    drawArrow(painter, {224, 92}, {224, 52}, mark);
}

} // namespace corvana
