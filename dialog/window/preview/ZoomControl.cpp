#include "dialog/window/preview/ZoomControl.h"

#include <QAction>
#include <QActionGroup>
#include <QHBoxLayout>
#include <QMenu>
#include <QShortcut>
#include <QToolButton>

#include "dialog/window/preview/SheetView.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr int kChoices[] = {25, 50, 75, 100, 150, 200, 400};

} // namespace

ZoomControl::ZoomControl(SheetView &view, QWidget *parent)
    : QWidget(parent), m_view(view), m_out(button(u"zoomOut"_s, u"−"_s, tr("Smaller"))),
      m_size(button(u"zoom"_s, QString(), tr("Size of the sheets"))),
      m_in(button(u"zoomIn"_s, u"+"_s, tr("Larger")))
{
    m_size->setPopupMode(QToolButton::InstantPopup);
    m_size->setFocusPolicy(Qt::StrongFocus);
    buildMenu();
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_out);
    layout->addWidget(m_size);
    layout->addWidget(m_in);
    // As wide as its longest text, so that nothing moves when another one is shown.
    int widest = fontMetrics().horizontalAdvance(tr("%L1 %").arg(Zoom::kMost));
    for (const QAction *choice : m_size->menu()->actions())
        widest = qMax(widest, fontMetrics().horizontalAdvance(choice->text()));
    m_size->setText(tr("%L1 %").arg(Zoom::kMost));
    const int around =
        m_size->sizeHint().width() - fontMetrics().horizontalAdvance(m_size->text());
    m_size->setMinimumWidth(widest + around);
    connect(m_out, &QToolButton::clicked, this, [this] { m_view.zoomBy(-1); });
    connect(m_in, &QToolButton::clicked, this, [this] { m_view.zoomBy(1); });
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
    made->setToolTip(plainToolTip(what));
    made->setAccessibleName(what);
    made->setFocusPolicy(Qt::NoFocus);
    return made;
}

void ZoomControl::buildMenu()
{
    auto *menu = new QMenu(m_size);
    m_size->setMenu(menu);
    new QActionGroup(menu);
    addChoice(tr("Fit Page"), {Zoom::Fit::Page});
    addChoice(tr("Fit Width"), {Zoom::Fit::Width});
    menu->addSeparator();
    for (const int percent : kChoices)
        addChoice(tr("%L1 %").arg(percent), {Zoom::Fit::Percent, percent});
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        for (QAction *choice : menu->actions())
            choice->setChecked(choice->data().value<Zoom>() == m_view.zoom());
    });
}

void ZoomControl::addChoice(const QString &text, const Zoom &zoom)
{
    QAction *choice = m_size->menu()->addAction(text);
    choice->setCheckable(true);
    choice->setData(QVariant::fromValue(zoom));
    m_size->menu()->findChild<QActionGroup *>()->addAction(choice);
    connect(choice, &QAction::triggered, this, [this, zoom] { m_view.setZoom(zoom); });
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
    return {m_size};
}

void ZoomControl::refresh()
{
    const Zoom &zoom = m_view.zoom();
    QString text = tr("%L1 %").arg(zoom.percent);
    if (zoom.fit == Zoom::Fit::Page)
        text = tr("Fit Page");
    else if (zoom.fit == Zoom::Fit::Width)
        text = tr("Fit Width");
    m_size->setText(text);
    m_size->setAccessibleName(tr("Size of the sheets: %1").arg(text));
    m_out->setEnabled(m_view.percent() > Zoom::kLeast || zoom.fit != Zoom::Fit::Percent);
    m_in->setEnabled(m_view.percent() < Zoom::kMost);
}

} // namespace corvana
