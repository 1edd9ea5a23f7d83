#include "dialog/window/KeyboardFocus.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFocusFrame>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QTabBar>

#include "platform/toolkit/DisclosureButton.h"

namespace corvana {

namespace {

constexpr int kWidth = 2; // pixels
constexpr int kInsideTab = 3;

// Text that can be read on the window is seen on it as a line as well; the highlight of some themes
// is not.
void paintFrame(QWidget *widget)
{
    QPainter painter(widget);
    painter.setPen(QPen(widget->palette().color(QPalette::Active, QPalette::WindowText), kWidth));
    painter.drawRect(widget->rect().adjusted(1, 1, -1, -1));
}

/// Has a frame lie in the window, or in what scrolls: what directly holds a control may end where
/// that does, and would cut the frame off.
class FrameStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *more) const override
    {
        return hint == SH_FocusFrame_AboveWidget
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, more);
    }
};

class Frame : public QFocusFrame
{
public:
    explicit Frame(QWidget *parent) : QFocusFrame(parent)
    {
        auto *style = new FrameStyle(QApplication::style()->name());
        style->setParent(this);
        setStyle(style);
    }

protected:
    void paintEvent(QPaintEvent *) override { paintFrame(this); }
};

/// Inside the current tab: there is no room around a row of tabs. Tabs that have no room scroll, by
/// buttons that lie over them and over the frame.
class TabFrame : public QWidget
{
public:
    explicit TabFrame(QTabBar *bar) : QWidget(bar), m_bar(bar)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setObjectName(QStringLiteral("tabFrame"));
        connect(bar, &QTabBar::currentChanged, this, &TabFrame::place);
        bar->installEventFilter(this);
        lower();
        place();
        show();
    }

protected:
    void paintEvent(QPaintEvent *) override { paintFrame(this); }

    // Of tabs that have scrolled, or have become longer or shorter, nothing is told but that they
    // are painted anew.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            QMetaObject::invokeMethod(this, &TabFrame::place, Qt::QueuedConnection);
        return QWidget::eventFilter(watched, event);
    }

private:
    void place()
    {
        setGeometry(m_bar->tabRect(m_bar->currentIndex())
                        .adjusted(kInsideTab, kInsideTab, -kInsideTab, -kInsideTab));
    }

    QTabBar *m_bar;
};

bool hardlyShowsFocus(const QWidget *widget)
{
    if (const auto *button = qobject_cast<const QPushButton *>(widget))
        return button->isDefault() || qobject_cast<const DisclosureButton *>(widget);
    return qobject_cast<const QAbstractItemView *>(widget) != nullptr;
}

} // namespace

KeyboardFocus::KeyboardFocus(QObject *parent) : QObject(parent)
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { follow(now); });
}

KeyboardFocus::~KeyboardFocus()
{
    delete m_frame;
    delete m_tabFrame;
}

void KeyboardFocus::follow(QWidget *focus)
{
    // Whoever clicks knows where; and of a list that has popped up, all that is seen has the focus.
    const bool byKey = focus && focus->window()->testAttribute(Qt::WA_KeyboardFocusChange) &&
                       focus->window()->windowType() != Qt::Popup;
    delete m_tabFrame;
    if (auto *bar = qobject_cast<QTabBar *>(focus); bar && byKey)
        m_tabFrame = new TabFrame(bar);
    if (!byKey || !hardlyShowsFocus(focus)) {
        if (m_frame)
            m_frame->setWidget(nullptr);
        return;
    }
    if (!m_frame)
        m_frame = new Frame(focus);
    m_frame->setWidget(focus);
}

} // namespace corvana
