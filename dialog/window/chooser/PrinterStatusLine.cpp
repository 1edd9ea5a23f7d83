#include "dialog/window/chooser/PrinterStatusLine.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include "dialog/window/chooser/ElidedLabel.h"
#include "dialog/window/chooser/PrinterIcon.h"

namespace corvana {

using namespace Qt::StringLiterals;

PrinterStatusLine::PrinterStatusLine(QWidget *parent)
    : QWidget(parent), m_icon(new QLabel(this)), m_text(new ElidedLabel(this)),
      m_retryButton(new QPushButton(tr("Try Again"), this))
{
    m_text->setObjectName(u"printerStatusText"_s);
    m_text->setTwoLines();
    m_retryButton->setObjectName(u"printerStatusRetry"_s);
    m_retryButton->setAutoDefault(false);
    m_retryButton->hide();
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    // A problem that comes and goes must not move what is below the line.
    layout->addStrut(m_retryButton->sizeHint().height());
    layout->addWidget(m_icon);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_retryButton);
    connect(m_retryButton, &QPushButton::clicked, this, [this] {
        const std::function<void()> retry = m_retry; // it may show something else
        if (retry)
            retry();
    });
}

void PrinterStatusLine::setPrinter(const Printer &printer, Presence presence)
{
    const QString text = statusText(printer, presence);
    showLine(text.isEmpty() ? QIcon() : printerIcon(lookOf(printer, presence)), text,
             plainLine(printer.location), {});
}

void PrinterStatusLine::setProblem(const QString &text, const std::function<void()> &retry,
                                   const QString &buttonText)
{
    m_retryButton->setText(buttonText.isEmpty() ? tr("Try Again") : buttonText);
    showLine(style()->standardIcon(QStyle::SP_MessageBoxWarning), plainLine(text), QString(),
             retry);
    QAccessibleEvent event(m_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void PrinterStatusLine::clear()
{
    showLine(QIcon(), QString(), QString(), {});
}

QString PrinterStatusLine::text() const
{
    return m_text->text();
}

void PrinterStatusLine::showLine(const QIcon &icon, const QString &text, const QString &head,
                                 const std::function<void()> &retry)
{
    m_shownIcon = icon;
    m_retry = retry;
    m_text->setLine(text, head);
    m_retryButton->setVisible(retry != nullptr);
    updateIcon();
}

void PrinterStatusLine::updateIcon()
{
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_icon->setPixmap(m_shownIcon.pixmap(QSize(side, side), devicePixelRatioF()));
    m_icon->setVisible(!m_shownIcon.isNull());
}

void PrinterStatusLine::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        updateIcon();
}

} // namespace corvana
