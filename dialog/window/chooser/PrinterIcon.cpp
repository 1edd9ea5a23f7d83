#include "dialog/window/chooser/PrinterIcon.h"

#include <functional>

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// All drawings are made on a square of this many units.
constexpr qreal kGrid = 24;

QColor inkFor(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
    case QIcon::Selected:
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    case QIcon::Disabled:
        return palette.color(QPalette::Disabled, QPalette::WindowText);
    default:
        return palette.color(QPalette::Active, QPalette::WindowText);
    }
}

void drawPrinter(QPainter &painter, QIcon::Mode mode)
{
    const QColor ink = inkFor(mode);
    QColor body = ink;
    body.setAlphaF(0.75f * ink.alphaF());
    painter.setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(6.75, 2.75, 10.5, 6)); // the sheet that goes in
    painter.setPen(Qt::NoPen);
    painter.setBrush(body);
    painter.drawRoundedRect(QRectF(2, 8, 20, 10), 2.2, 2.2);
    // The sheet that comes out covers the body, whatever is behind the picture.
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.drawRect(QRectF(6, 13, 12, 9));
    painter.drawEllipse(QPointF(18.5, 10.7), 1, 1);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(6.75, 13.75, 10.5, 7.5));
    painter.drawLine(QPointF(9.25, 17.5), QPointF(14.75, 17.5));
}

void drawSearch(QPainter &painter, QIcon::Mode mode)
{
    QColor ink = inkFor(mode);
    ink.setAlphaF(0.7f * ink.alphaF());
    painter.setPen(QPen(ink, 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawEllipse(QPointF(10, 10), 6, 6);
    painter.drawLine(QPointF(14.6, 14.6), QPointF(20, 20));
}

// Up, over and down again to where it began.
void drawTurn(QPainter &painter, QIcon::Mode mode)
{
    painter.setPen(QPen(inkFor(mode), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QPainterPath arrow(QPointF(5, 9.5));
    arrow.lineTo(14.5, 9.5);
    arrow.arcTo(QRectF(9.5, 9.5, 10, 9), 90, -180);
    arrow.lineTo(10, 18.5);
    painter.drawPath(arrow);
    painter.drawPolyline(QPolygonF{{8.8, 5.2}, {4.6, 9.5}, {8.8, 13.8}});
}

// A disc in the lower right corner, cut free of what is behind it, with a white sign.
void drawMark(QPainter &painter, PrinterLook look)
{
    const QPointF centre(18, 18);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.drawEllipse(centre, 7.2, 7.2);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    const QColor color = look == PrinterLook::Printing  ? QColor(0x1c, 0x71, 0xd8)
                         : look == PrinterLook::Stopped ? QColor(0xc0, 0x1c, 0x28)
                         : look == PrinterLook::Gone    ? QColor(0x6b, 0x6b, 0x6b)
                                                        : QColor(0xb8, 0x5c, 0x00);
    painter.setBrush(color);
    painter.drawEllipse(centre, 6, 6);
    painter.setBrush(Qt::white);
    switch (look) {
    case PrinterLook::Printing:
        painter.drawPolygon(QPolygonF{{16.2, 14.8}, {16.2, 21.2}, {21.4, 18}});
        break;
    case PrinterLook::Stopped:
        painter.drawRect(QRectF(15.3, 15, 1.9, 6));
        painter.drawRect(QRectF(18.8, 15, 1.9, 6));
        break;
    case PrinterLook::TakesNoJobs:
        painter.drawRect(QRectF(14.4, 17, 7.2, 2));
        break;
    default:
        painter.setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(15.9, 15.9), QPointF(20.1, 20.1));
        painter.drawLine(QPointF(20.1, 15.9), QPointF(15.9, 20.1));
        break;
    }
}

// Draws anew at every size and scale, so that the palette of the moment counts.
class DrawnIcon : public QIconEngine
{
public:
    using Drawing = std::function<void(QPainter &, const QRect &, QIcon::Mode)>;

    explicit DrawnIcon(Drawing drawing) : m_drawing(std::move(drawing)) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const qreal scale = painter->device()->devicePixelRatioF();
        // A layer of its own: parts of the drawing are cut out of it.
        QPixmap layer(rect.size() * scale);
        layer.setDevicePixelRatio(scale);
        layer.fill(Qt::transparent);
        {
            QPainter drawn(&layer);
            drawn.setRenderHint(QPainter::Antialiasing);
            m_drawing(drawn, QRect(QPoint(), rect.size()), mode);
        }
        painter->drawPixmap(rect.topLeft(), layer);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        if (pixmap.isNull())
            return pixmap; // asked for by a list that has no room for it
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new DrawnIcon(m_drawing); }

private:
    Drawing m_drawing;
};

void scaleToGrid(QPainter &painter, const QRect &rect)
{
    const qreal side = qMin(rect.width(), rect.height());
    painter.translate((rect.width() - side) / 2, (rect.height() - side) / 2);
    painter.scale(side / kGrid, side / kGrid);
}

} // namespace

PrinterLook lookOf(const Printer &printer, Presence presence)
{
    if (presence == Presence::Gone)
        return PrinterLook::Gone;
    if (printer.state == PrinterState::Stopped)
        return PrinterLook::Stopped;
    if (!printer.accepting)
        return PrinterLook::TakesNoJobs;
    return printer.state == PrinterState::Processing ? PrinterLook::Printing : PrinterLook::Ready;
}

QIcon printerIcon(PrinterLook look, IconSource source)
{
    const bool asksTheme = source == IconSource::Theme;
    return QIcon(new DrawnIcon([=](QPainter &painter, const QRect &rect, QIcon::Mode mode) {
        const QIcon theme = asksTheme ? QIcon::fromTheme(u"printer"_s) : QIcon();
        if (!theme.isNull())
            theme.paint(&painter, rect, Qt::AlignCenter,
                        mode == QIcon::Disabled ? mode : QIcon::Normal);
        scaleToGrid(painter, rect);
        if (theme.isNull())
            drawPrinter(painter, mode);
        if (mode == QIcon::Disabled)
            painter.setOpacity(0.5);
        if (look != PrinterLook::Ready)
            drawMark(painter, look);
    }));
}

QIcon searchIcon()
{
    const QIcon theme = QIcon::fromTheme(u"edit-find"_s);
    if (!theme.isNull())
        return theme;
    return QIcon(new DrawnIcon([](QPainter &painter, const QRect &rect, QIcon::Mode mode) {
        scaleToGrid(painter, rect);
        drawSearch(painter, mode);
    }));
}

QIcon undoIcon()
{
    return QIcon(new DrawnIcon([](QPainter &painter, const QRect &rect, QIcon::Mode mode) {
        scaleToGrid(painter, rect);
        drawTurn(painter, mode);
    }));
}

QIcon redoIcon()
{
    return QIcon(new DrawnIcon([](QPainter &painter, const QRect &rect, QIcon::Mode mode) {
        scaleToGrid(painter, rect);
        painter.translate(kGrid, 0);
        painter.scale(-1, 1);
        drawTurn(painter, mode);
    }));
}

} // namespace corvana
