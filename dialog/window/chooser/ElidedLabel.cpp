#include "dialog/window/chooser/ElidedLabel.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QStyle>
#include <QTextLayout>
#include <QToolTip>

#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

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
    makePlain(this);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ElidedLabel::setLine(const QString &text, const QString &head)
{
    m_head = head;
    setText(text);
    update(); // the same text may be cut elsewhere
}

void ElidedLabel::setTwoLines()
{
    m_lines = 2;
    updateGeometry();
    update();
}

void ElidedLabel::setMiddleCut()
{
    m_cutsMiddle = true;
    update();
}

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + 1, m_lines * fontMetrics().lineSpacing()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, m_lines * fontMetrics().lineSpacing()};
}

QString ElidedLabel::shownText() const
{
    const QFontMetrics metrics = fontMetrics();
    const int width = contentsRect().width();
    if (m_cutsMiddle)
        return metrics.elidedText(text(), Qt::ElideMiddle, width);
    if (m_lines == 1 || metrics.horizontalAdvance(text()) <= width)
        return elidedLine(metrics, text(), m_head, width);
    QStringList lines = broken(text());
    if (metrics.horizontalAdvance(lines.constLast()) > width) {
        // The break leaves some of the first line empty, hardly ever more than a quarter.
        lines = broken(elidedLine(metrics, text(), m_head, width + width * 3 / 4));
        lines.last() = metrics.elidedText(lines.constLast(), Qt::ElideRight, width);
    }
    return lines.join(u'\n');
}

// As much as fits into one line, and the rest.
QStringList ElidedLabel::broken(const QString &text) const
{
    QTextLayout layout(text, font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine first = layout.createLine();
    first.setLineWidth(contentsRect().width());
    layout.endLayout();
    const int end = first.isValid() ? first.textLength() : 0;
    return {text.left(end).trimmed(), text.mid(end).trimmed()};
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    // Where a line was broken there may have been a blank, or not.
    const auto letters = [](QString text) { return text.remove(QRegularExpression(u"\\s"_s)); };
    const bool whole = letters(shownText()) == letters(text());
    QToolTip::showText(help->globalPos(), whole ? QString() : plainToolTip(text()), this);
    return true;
}

// A text has the direction of its own words, also in a window that is mirrored: the parts of a
// path, and of "3 pages = 3 sheets", would change their places.
void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QString text = shownText();
    painter.setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    const Qt::Alignment place = QStyle::visualAlignment(layoutDirection(), alignment());
    style()->drawItemText(&painter, contentsRect(), int(place | Qt::AlignAbsolute), palette(),
                          isEnabled(), text, foregroundRole());
}

} // namespace corvana
