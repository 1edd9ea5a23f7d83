#include "dialog/window/preview/ZoomControl.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QShortcut>
#include <QToolButton>

#include "dialog/window/preview/SheetView.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr int kSizes[] = {25, 50, 75, 100, 150, 200, 400};

} // namespace

ZoomControl::ZoomControl(SheetView &view, QWidget *parent)
    : QWidget(parent), m_view(view), m_out(button(u"zoomOut"_s, u"−"_s, tr("Smaller"))),
      m_sizes(new QComboBox(this)), m_in(button(u"zoomIn"_s, u"+"_s, tr("Larger")))
{
    m_sizes->setObjectName(u"zoom"_s);
    setAccessibleLabel(m_sizes, tr("Size of the sheets"));
    setPlainToolTip(m_sizes, tr("Size of the sheets"));
    ignoreWheelWithoutFocus(m_sizes);
    fillSizes();
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_out);
    layout->addWidget(m_sizes);
    layout->addWidget(m_in);
    connect(m_out, &QToolButton::clicked, this, [this] { m_view.zoomBy(-1); });
    connect(m_in, &QToolButton::clicked, this, [this] { m_view.zoomBy(1); });
    connect(m_sizes, &QComboBox::activated, this,
            [this](int row) { m_view.setZoom(m_sizes->itemData(row).value<Zoom>()); });
    connect(&m_view, &SheetView::zoomChanged, this, &ZoomControl::refresh);
    refresh();
}

// Out of the order of Tab, because each has a key in the whole window.
QToolButton *ZoomControl::button(const QString &name, const QString &text, const QString &what)
{
    auto *made = new QToolButton(this);
    made->setObjectName(name);
    made->setText(text);
    made->setAutoRaise(true);
    setPlainToolTip(made, what);
    made->setAccessibleName(what);
    made->setFocusPolicy(Qt::NoFocus);
    return made;
}

void ZoomControl::fillSizes()
{
    const auto add = [this](const QString &text, const Zoom &zoom) {
        m_sizes->addItem(text, QVariant::fromValue(zoom));
    };
    add(tr("Fit Page"), {Zoom::Fit::Page});
    add(tr("Fit Width"), {Zoom::Fit::Width});
    for (const int percent : kSizes)
        add(tr("%L1 %").arg(percent), {Zoom::Fit::Percent, percent});
}

void ZoomControl::addShortcuts(QWidget *window)
{
    const auto add = [&](const QKeySequence &key, auto act) {
        connect(new QShortcut(key, window), &QShortcut::activated, this, act);
    };
    add(Qt::CTRL | Qt::Key_Plus, [this] { m_view.zoomBy(1); });
    add(Qt::CTRL | Qt::Key_Equal, [this] { m_view.zoomBy(1); }); // "+" without the Shift key
    add(Qt::CTRL | Qt::Key_Minus, [this] { m_view.zoomBy(-1); });
    add(Qt::CTRL | Qt::Key_0, [this] { m_view.setZoom({}); });
}

QList<QWidget *> ZoomControl::focusOrder() const
{
    return {m_sizes};
}

void ZoomControl::refresh()
{
    const Zoom &zoom = m_view.zoom();
    int row = -1;
    for (int i = 0; i < m_sizes->count(); ++i) {
        if (m_sizes->itemData(i).value<Zoom>() == zoom)
            row = i;
    }
    // A step between those of the list.
    m_sizes->setPlaceholderText(row < 0 ? tr("%L1 %").arg(zoom.percent) : QString());
    m_sizes->setCurrentIndex(row);
    m_out->setEnabled(m_view.percent() > Zoom::kLeast);
    m_in->setEnabled(m_view.percent() < Zoom::kMost);
}

} // namespace corvana
