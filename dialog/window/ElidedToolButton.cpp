#include "dialog/window/ElidedToolButton.h"

#include <QHelpEvent>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QToolTip>

#include "platform/toolkit/PlainText.h"

namespace corvana {

namespace {
constexpr int kFewestCharacters = 4;
}

QSize ElidedToolButton::minimumSizeHint() const
{
    const QSize whole = sizeHint();
    return {qMin(whole.width(), kFewestCharacters * fontMetrics().averageCharWidth()),
            whole.height()};
}

bool ElidedToolButton::isCut() const
{
    return width() < sizeHint().width();
}

void ElidedToolButton::paintEvent(QPaintEvent *)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    // What the style puts around the text.
    const int frame = sizeHint().width() - fontMetrics().horizontalAdvance(text());
    if (isCut())
        option.text = fontMetrics().elidedText(text(), Qt::ElideRight, qMax(0, width() - frame));
    QStylePainter(this).drawComplexControl(QStyle::CC_ToolButton, option);
}

bool ElidedToolButton::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !isCut())
        return QToolButton::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), plainToolTip(text()), this);
    return true;
}

} // namespace corvana
