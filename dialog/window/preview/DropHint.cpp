#include "dialog/window/preview/DropHint.h"

#include <QPainter>

#include "dialog/window/preview/DocumentArea.h"

namespace corvana {

using namespace Qt::StringLiterals;

DropHint::DropHint(QWidget *parent) : QWidget(parent)
{
    setObjectName(u"dropHint"_s);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void DropHint::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int em = fontMetrics().height();
    QColor veil = palette().color(QPalette::Highlight);
    veil.setAlpha(50);
    // As the place looks where the first documents are dropped.
    QPen outline(palette().color(QPalette::Highlight), 2);
    outline.setDashPattern({4, 3});
    painter.setPen(outline);
    painter.setBrush(veil);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), em / 2.0, em / 2.0);
    const QString text = DocumentArea::tr("Print further documents in the same job");
    QRect place(0, 0, qMin(fontMetrics().horizontalAdvance(text) + 2 * em, width()), 2 * em);
    place.moveCenter(rect().center());
    painter.setPen(QPen(palette().color(QPalette::Mid), 1));
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), em / 2.0, em / 2.0);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(place, Qt::AlignCenter,
                     fontMetrics().elidedText(text, Qt::ElideRight, place.width() - em));
}

} // namespace corvana
