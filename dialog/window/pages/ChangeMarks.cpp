#include "dialog/window/pages/ChangeMarks.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QStyle>

#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Between a dot and its title. Units: pixels.
constexpr int kGap = 3;

// These have a menu of their own.
bool isField(const QWidget *widget)
{
    return qobject_cast<const QLineEdit *>(widget) ||
           qobject_cast<const QAbstractSpinBox *>(widget);
}

// Where the text of a title begins and ends. Units: pixels of an ancestor of its.
std::pair<int, int> textOf(const QWidget &title, const QWidget &ancestor)
{
    const QRect whole(title.mapTo(&ancestor, QPoint()), title.size());
    const auto *label = qobject_cast<const QLabel *>(&title);
    if (!label || label->wordWrap())
        return {whole.left(), whole.right() + 1};
    const int width = qMin(label->sizeHint().width(), whole.width());
    const Qt::Alignment alignment =
        QStyle::visualAlignment(title.layoutDirection(), label->alignment());
    const int left = alignment & Qt::AlignRight     ? whole.right() + 1 - width
                     : alignment & Qt::AlignHCenter ? whole.center().x() - width / 2
                                                    : whole.left();
    return {left, left + width};
}

// Whether a page ends with this widget: what is beyond is clipped or belongs to others.
bool isWholePage(const QWidget &widget)
{
    const QWidget *parent = widget.parentWidget();
    return !parent || widget.isWindow() ||
           qobject_cast<const QAbstractScrollArea *>(parent->parentWidget());
}

} // namespace

// Lies over the page, in front of the title: in the group of the title, or else in whatever is
// around that group and has the room. Where nothing has, it lies behind the title.
class ChangeMarks::Dot : public QWidget
{
public:
    explicit Dot(QWidget &title) : QWidget(title.parentWidget()), m_title(&title)
    {
        setObjectName(u"changed"_s);
        setAccessibleRole(this, QAccessible::Graphic);
        setFocusPolicy(Qt::NoFocus);
    }

    void follow()
    {
        if (!m_title)
            return; // it is going, and this goes after it
        m_side = qMax(6, fontMetrics().height() / 2);
        QWidget *group = m_title->parentWidget();
        QWidget *host = group;
        while (!hasRoomIn(*host) && !isWholePage(*host))
            host = host->parentWidget();
        const bool fits = hasRoomIn(*host);
        moveTo(fits ? host : group);
        const int most = qMax(0, parentWidget()->width() - m_side);
        const int middle = m_title->mapTo(parentWidget(), m_title->rect().center()).y();
        setGeometry(qBound(0, placeIn(*parentWidget(), fits), most), middle - m_side / 2, m_side,
                    m_side);
        setVisible(m_title->isVisibleTo(parentWidget()));
        raise();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Highlight));
        const qreal side = width();
        painter.drawEllipse(QRectF(side * 0.15, side * 0.15, side * 0.7, side * 0.7));
    }

    // A group between the page and the title was moved.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isMoved = event->type() == QEvent::Move || event->type() == QEvent::Resize ||
                             event->type() == QEvent::ShowToParent ||
                             event->type() == QEvent::HideToParent;
        if (isMoved && m_title)
            follow();
        return QWidget::eventFilter(watched, event);
    }

private:
    int placeIn(const QWidget &host, bool isBefore) const
    {
        const auto [left, right] = textOf(*m_title, host);
        const bool isMirrored = m_title->layoutDirection() == Qt::RightToLeft;
        return isBefore == isMirrored ? right + kGap : left - m_side - kGap;
    }

    // The gap may be narrower where a title begins close to the edge.
    bool hasRoomIn(const QWidget &host) const
    {
        const int place = placeIn(host, true);
        return place >= -kGap && place + m_side <= host.width() + kGap;
    }

    void moveTo(QWidget *host)
    {
        if (parentWidget() == host)
            return;
        for (const QPointer<QWidget> &group : std::exchange(m_groups, {})) {
            if (group)
                group->removeEventFilter(this);
        }
        setParent(host);
        for (QWidget *group = m_title->parentWidget(); group != host;
             group = group->parentWidget()) {
            group->installEventFilter(this);
            m_groups += group;
        }
    }

    QPointer<QWidget> m_title;
    QList<QPointer<QWidget>> m_groups; // around the title, within the parent
    int m_side = 0;
};

ChangeMarks::ChangeMarks(QObject *parent) : QObject(parent) {}

// The controls may outlive the marks, with what was said of them.
ChangeMarks::~ChangeMarks()
{
    for (Mark &mark : m_marks)
        unmark(mark);
}

void ChangeMarks::show(const QList<MarkedControl> &controls, const ShownChanges &changes)
{
    m_back = changes.back;
    QHash<QString, Mark> former = std::exchange(m_marks, {});
    for (const MarkedControl &control : controls) {
        const auto change = changes.settings.constFind(control.name);
        if (change == changes.settings.cend() || !control.control || m_marks.contains(control.name))
            continue;
        if (former.contains(control.name)) {
            Mark shown = former.take(control.name);
            if (shown.dot && shown.of.control == control.control && shown.of.label == control.label)
                m_marks.insert(control.name, shown);
            else
                unmark(shown); // before the same control is marked anew
        }
        mark(control, *change);
    }
    for (Mark &gone : former)
        unmark(gone);
}

void ChangeMarks::mark(const MarkedControl &control, const QString &text)
{
    QWidget *title = control.label ? control.label : control.control;
    Mark &mark = m_marks[control.name];
    const QString said = tr("Changed. %1").arg(text);
    if (!mark.dot) {
        mark.of = control;
        mark.dot = new Dot(*title);
        coverDescription(control.control);
        // A title that goes takes its dot along.
        connect(title, &QObject::destroyed, mark.dot, &QObject::deleteLater);
        for (QWidget *watched : {title, control.control.data(), static_cast<QWidget *>(mark.dot)})
            watched->installEventFilter(this);
    }
    setPlainToolTip(mark.dot, said);
    mark.dot->setAccessibleName(said);
    const QString own = coveredDescription(control.control);
    control.control->setAccessibleDescription(own.isEmpty() ? said : tr("%1 %2").arg(said, own));
    mark.dot->follow();
}

void ChangeMarks::unmark(Mark &mark)
{
    if (mark.of.control) {
        uncoverDescription(mark.of.control);
        mark.of.control->removeEventFilter(this);
    }
    if (mark.of.label)
        mark.of.label->removeEventFilter(this);
    delete mark.dot;
}

bool ChangeMarks::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ContextMenu:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        break;
    default:
        return QObject::eventFilter(watched, event);
    }
    for (auto mark = m_marks.cbegin(); mark != m_marks.cend(); ++mark) {
        const bool isTitle =
            watched == mark->of.label || (!mark->of.label && watched == mark->of.control);
        if (event->type() != QEvent::ContextMenu) {
            if (isTitle && mark->dot && !mark->of.control.isNull())
                mark->dot->follow();
            continue;
        }
        const bool isMine = isTitle || watched == mark->dot || watched == mark->of.control;
        if (!isMine || isField(qobject_cast<QWidget *>(watched)))
            continue;
        openMenu(mark.key(), static_cast<QContextMenuEvent *>(event)->globalPos());
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void ChangeMarks::openMenu(const QString &name, const QPoint &place)
{
    auto *menu = new QMenu(m_marks.value(name).of.control->window());
    menu->setObjectName(u"changedMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QString text = m_back; // may be a preset's name, in which no letter is a key
    QAction *back = menu->addAction(text.replace(u'&', "&&"_L1));
    // Later: the menu is in the midst of closing, and the setting may have its own to say.
    connect(
        back, &QAction::triggered, this, [this, name] { Q_EMIT resetWanted(name); },
        Qt::QueuedConnection);
    menu->popup(place);
}

} // namespace corvana
