#include "dialog/window/pages/MessageBar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QToolButton>

#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr int kFewLines = 2;
constexpr int kMostLines = 8;     // what a message may take from the pages; the rest scrolls
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

} // namespace

// As high as the text is at the width that there is, up to two lines, or to some more when the
// whole is wanted.
class MessageText : public QScrollArea
{
public:
    explicit MessageText(QWidget *parent) : QScrollArea(parent), m_label(plainLabel())
    {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        m_label->setObjectName(u"messageText"_s);
        m_label->setWordWrap(true);
        m_label->setAlignment(Qt::AlignLeading | Qt::AlignTop);
        m_label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        setWidget(m_label);
        viewport()->setAutoFillBackground(false);
        m_label->setAutoFillBackground(false);
        QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
        setWhole(false);
    }

    QString text() const { return m_text; }
    void setText(const QString &text, const QString &details)
    {
        m_text = text;
        m_details = details;
        setWhole(false);
    }
    void setWhole(bool whole)
    {
        m_isWhole = whole;
        m_label->setText(whole && !m_details.isEmpty() ? m_text + u'\n' + m_details : m_text);
        setVerticalScrollBarPolicy(whole ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
        verticalScrollBar()->setValue(0);
        updateGeometry();
    }
    bool isWhole() const { return m_isWhole; }
    /// Whether there is more than two lines have room for, or than was meant for everybody.
    bool isLong() const
    {
        return !m_details.isEmpty() || m_label->heightForWidth(width()) > heightOf(kFewLines);
    }

    int heightForWidth(int width) const override
    {
        return qMin(m_label->heightForWidth(width), heightOf(m_isWhole ? kMostLines : kFewLines));
    }
    QSize sizeHint() const override
    {
        const int width = m_label->sizeHint().width();
        return {width, heightForWidth(width)};
    }
    QSize minimumSizeHint() const override { return {4 * heightOf(1), heightOf(1)}; }

private:
    // Scripts that the font lacks come from others, whose lines are higher.
    int heightOf(int lines) const
    {
        const QFontMetrics metrics = m_label->fontMetrics();
        const int own = metrics.size(Qt::TextSingleLine, m_label->text()).height();
        return lines * qMax(metrics.lineSpacing(), own);
    }

    QLabel *m_label;
    QString m_text;
    QString m_details;
    bool m_isWhole = false;
};

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent), m_icon(new QLabel(this)), m_text(new MessageText(this))
{
    setAccessibleRole(this, QAccessible::AlertMessage);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    buildButtons();
    auto *line = new QHBoxLayout;
    line->addWidget(m_icon, 0, Qt::AlignTop);
    line->addWidget(m_text, 1, Qt::AlignTop);
    line->addWidget(m_close, 0, Qt::AlignTop);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_details);
    buttons->addWidget(m_action);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(line);
    layout->addLayout(buttons);
    hide();
}

void MessageBar::buildButtons()
{
    m_action = new QPushButton(this);
    m_action->setObjectName(u"messageAction"_s);
    m_action->setAutoDefault(false);
    m_details = new QToolButton(this);
    m_details->setObjectName(u"messageDetails"_s);
    m_details->setText(tr("Details"));
    setPlainToolTip(m_details, tr("Show all of this message"));
    m_details->setAutoRaise(true);
    m_details->setCheckable(true);
    m_details->hide();
    m_close = new QToolButton(this);
    m_close->setObjectName(u"messageClose"_s);
    m_close->setAutoRaise(true);
    m_close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    setPlainToolTip(m_close, tr("Dismiss this message"));
    m_close->setAccessibleName(tr("Dismiss this message"));
    connect(m_close, &QToolButton::clicked, this, &MessageBar::dismiss);
    connect(m_details, &QToolButton::toggled, this,
            [this](bool whole) { m_text->setWhole(whole); });
    connect(m_action, &QPushButton::clicked, this, [this] {
        const std::function<void()> action = m_do;
        dismiss();
        if (action)
            action();
    });
}

// How many lines a text has is known when it has its width.
void MessageBar::updateDetails()
{
    m_details->setVisible(m_text->isWhole() || m_text->isLong());
}

void MessageBar::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    updateDetails();
}

QList<QWidget *> MessageBar::focusOrder() const
{
    return {m_details, m_action, m_close};
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
    m_text->setText(breakable(text), {});
    m_details->setChecked(false);
    // Names of printers and choices may hold "&", which a button takes for an accelerator.
    const QString shown = fontMetrics().elidedText(actionText, Qt::ElideMiddle,
                                                   kWidestAction * fontMetrics().height());
    m_action->setText(withoutMnemonic(shown));
    setPlainToolTip(m_action, shown == actionText ? QString() : actionText);
    m_action->setVisible(!actionText.isEmpty());
    m_do = action;
    m_keeps = false;
    show();
    updateDetails();
    // A screen reader says it, although the focus stays where the user works.
    setAccessibleName(text);
    announce(this, text);
}

void MessageBar::addDetails(const QString &details)
{
    m_text->setText(m_text->text(), breakable(details));
    updateDetails();
}

void MessageBar::dismiss()
{
    m_do = nullptr;
    hide();
}

void MessageBar::withdrawOffer()
{
    if (m_do && !m_keeps)
        dismiss();
}

QString MessageBar::text() const
{
    return isHidden() ? QString() : m_text->text();
}

} // namespace corvana
