#include "dialog/window/chooser/PrinterStatusLine.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include "dialog/window/chooser/ElidedLabel.h"
#include "platform/toolkit/ScreenReader.h"

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
    m_look = lookOf(printer, presence);
    showLine(text.isEmpty() ? QIcon() : printerIcon(*m_look, m_source), text,
             plainLine(printer.location), {});
}

void PrinterStatusLine::setProblem(const QString &text, const std::function<void()> &retry,
                                   const QString &buttonText)
{
    m_look.reset();
    const bool isNews = plainLine(text) != m_text->text();
    m_retryButton->setText(buttonText.isEmpty() ? tr("Try Again") : buttonText);
    showLine(style()->standardIcon(QStyle::SP_MessageBoxWarning), plainLine(text), QString(),
             retry);
    if (isNews)
        announce(this, plainLine(text));
}

void PrinterStatusLine::clear()
{
    m_look.reset();
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

void PrinterStatusLine::takeIconFromTheme()
{
    m_source = IconSource::Theme;
    if (m_look && !m_shownIcon.isNull())
        m_shownIcon = printerIcon(*m_look, m_source);
    updateIcon();
}

void PrinterStatusLine::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        updateIcon();
}

} // namespace corvana
