#include "dialog/window/pages/MessageBar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent), m_icon(new QLabel(this)), m_text(plainLabel({}, this)),
      m_action(new QPushButton(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    m_text->setObjectName(QStringLiteral("messageText"));
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_action->setObjectName(QStringLiteral("messageAction"));
    auto *close = new QToolButton(this);
    close->setAutoRaise(true);
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setToolTip(plainToolTip(tr("Dismiss this message")));
    close->setAccessibleName(tr("Dismiss this message"));

    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_icon, 0, Qt::AlignTop);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_action, 0, Qt::AlignVCenter);
    layout->addWidget(close, 0, Qt::AlignTop);

    connect(close, &QToolButton::clicked, this, &MessageBar::dismiss);
    connect(m_action, &QPushButton::clicked, this, [this] {
        const std::function<void()> action = m_do;
        dismiss();
        if (action)
            action();
    });
    hide();
}

void MessageBar::showMessage(Kind kind, const QString &text)
{
    showMessage(kind, text, QString(), nullptr);
}

void MessageBar::showMessage(Kind kind, const QString &text, const QString &actionText,
                             const std::function<void()> &action)
{
    const auto icon =
        kind == Kind::Problem ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_icon->setPixmap(style()->standardIcon(icon).pixmap(size, size));
    m_text->setText(text);
    // Names of printers and choices may hold "&", which a button takes for an accelerator.
    m_action->setText(withoutMnemonic(actionText));
    m_action->setVisible(!actionText.isEmpty());
    m_do = action;
    show();
    // A screen reader says it, although the focus stays where the user works.
    setAccessibleName(text);
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void MessageBar::dismiss()
{
    m_do = nullptr;
    hide();
}

QString MessageBar::text() const
{
    return isHidden() ? QString() : m_text->text();
}

} // namespace corvana
