#include "dialog/chooser/ElidedLabel.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include "dialog/chooser/PrinterTexts.h"

namespace corvana {

QString elidedLine(const QFontMetrics &metrics, const QString &text, const QString &head, int width)
{
    QString line = text;
    if (!head.isEmpty() && text.startsWith(head) && metrics.horizontalAdvance(text) > width) {
        const QString tail = text.mid(head.size());
        const int room = qMax(width - metrics.horizontalAdvance(tail), width / 3);
        line = metrics.elidedText(head, Qt::ElideRight, room) + tail;
    }
    return metrics.elidedText(line, Qt::ElideRight, width);
}

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ElidedLabel::setLine(const QString &text, const QString &head)
{
    m_head = head;
    setText(text);
    update(); // the same text may be cut elsewhere
}

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + 1, fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

QString ElidedLabel::shownText() const
{
    return elidedLine(fontMetrics(), text(), m_head, contentsRect().width());
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    QToolTip::showText(help->globalPos(), shownText() == text() ? QString() : plainToolTip(text()),
                       this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(),
                          int(QStyle::visualAlignment(layoutDirection(), alignment())), palette(),
                          isEnabled(), shownText(), foregroundRole());
}

} // namespace corvana
