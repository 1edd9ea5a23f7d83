#include "dialog/window/pages/MessageBar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QToolButton>

#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostLines = 5;     // what a message may take from the pages; the rest scrolls
constexpr int kLongestWord = 30;  // letters in a row; a longer word is broken anywhere
constexpr int kWidestAction = 24; // heights of the font
constexpr char16_t kMayBreak = 0x200b;
constexpr char16_t kBreaksAnywhere = 0x2e80; // East Asian scripts begin here

// Long names, of files above all, have nowhere to be broken, and would widen the window.
QString breakable(const QString &text)
{
    QString broken;
    int run = 0;
    for (const QChar c : text) {
        const bool breaks = c.isSpace() || c == u'/' || c == u'-' || c.unicode() >= kBreaksAnywhere;
        run = breaks ? 0 : run + 1;
        broken += c;
        if (run == kLongestWord) {
            broken += QChar(kMayBreak);
            run = 0;
        }
    }
    return broken;
}

// As high as the text is at the width that there is, up to a limit.
class MessageText : public QScrollArea
{
public:
    MessageText(QLabel *label, QWidget *parent) : QScrollArea(parent), m_label(label)
    {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setWidget(label);
        viewport()->setAutoFillBackground(false);
        label->setAutoFillBackground(false);
        QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
    }

    int heightForWidth(int width) const override
    {
        return qMin(m_label->heightForWidth(width), kMostLines * fontMetrics().lineSpacing());
    }
    QSize sizeHint() const override
    {
        const int width = m_label->sizeHint().width();
        return {width, heightForWidth(width)};
    }
    QSize minimumSizeHint() const override
    {
        const int line = fontMetrics().lineSpacing();
        return {4 * line, line};
    }

private:
    QLabel *m_label;
};

} // namespace

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent), m_icon(new QLabel(this)), m_text(plainLabel({}, this)),
      m_action(new QPushButton(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    m_text->setObjectName(u"messageText"_s);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_action->setObjectName(u"messageAction"_s);
    auto *close = new QToolButton(this);
    close->setAutoRaise(true);
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    close->setToolTip(plainToolTip(tr("Dismiss this message")));
    close->setAccessibleName(tr("Dismiss this message"));

    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_icon, 0, Qt::AlignTop);
    layout->addWidget(new MessageText(m_text, this), 1);
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
    m_text->setText(breakable(text));
    m_text->parentWidget()->parentWidget()->updateGeometry();
    // Names of printers and choices may hold "&", which a button takes for an accelerator.
    const QString shown = fontMetrics().elidedText(actionText, Qt::ElideMiddle,
                                                   kWidestAction * fontMetrics().height());
    m_action->setText(withoutMnemonic(shown));
    m_action->setToolTip(shown == actionText ? QString() : plainToolTip(actionText));
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

void MessageBar::withdrawOffer()
{
    if (m_do)
        dismiss();
}

QString MessageBar::text() const
{
    return isHidden() ? QString() : m_text->text();
}

} // namespace corvana
