#include "dialog/window/pages/OptionsView.h"

#include <algorithm>

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include "dialog/window/pages/ChoiceEditor.h"
#include "dialog/window/pages/OptionsModel.h"

namespace corvana {

OptionsView::OptionsView(QWidget *parent) : QTreeView(parent)
{
    header()->hide();
    header()->setStretchLastSection(true);
    header()->setMinimumSectionSize(1);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);
    setUniformRowHeights(true); // with thousands of rows, too, only those are measured that show
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setEditTriggers(NoEditTriggers); // decided here
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    setVerticalScrollMode(ScrollPerPixel); // a row counts as seen when all of it is
    setIndentation(fontMetrics().height());
}

void OptionsView::setModel(QAbstractItemModel *model)
{
    QTreeView::setModel(model);
    m_widestTitle = -1;
    showAllRows();
    goToFirstOption();
}

void OptionsView::showAllRows()
{
    expandAll();
}

void OptionsView::goToFirstOption()
{
    setCurrentIndex(model()->index(0, OptionsModel::Choice, model()->index(0, 0)));
    scrollToTop();
}

bool OptionsView::openEditor(const QModelIndex &row)
{
    const QModelIndex choice = row.siblingAtColumn(OptionsModel::Choice);
    if (!choice.flags().testFlag(Qt::ItemIsEditable))
        return false;
    scrollTo(choice); // somebody may have scrolled away from it
    edit(choice);
    return state() == EditingState;
}

void OptionsView::keyPressEvent(QKeyEvent *event)
{
    const QString text = event->text();
    const bool types = !text.isEmpty() && text.at(0).isPrint() && !text.at(0).isSpace() &&
                       !event->modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier);
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
    case Qt::Key_Space:
        if (openEditor(currentIndex()))
            Q_EMIT choosing();
        event->accept(); // it is no press of the dialog's default button
        return;
    case Qt::Key_Left:
    case Qt::Key_Right:
        event->accept(); // headings are not gone to
        return;
    default:
        break;
    }
    if (!types)
        return QTreeView::keyPressEvent(event);
    if (openEditor(currentIndex()))
        QCoreApplication::sendEvent(focusWidget() ? focusWidget() : this, event);
}

void OptionsView::mousePressEvent(QMouseEvent *event)
{
    QTreeView::mousePressEvent(event);
    const bool left = event->button() == Qt::LeftButton;
    m_pressed = left ? indexAt(event->position().toPoint()) : QModelIndex();
}

void OptionsView::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeView::mouseReleaseEvent(event);
    const QModelIndex released = indexAt(event->position().toPoint());
    const bool clicked = released.isValid() && m_pressed == released;
    m_pressed = QPersistentModelIndex();
    if (clicked && released.column() == OptionsModel::Choice && openEditor(released))
        Q_EMIT choosing();
}

void OptionsView::mouseDoubleClickEvent(QMouseEvent *event)
{
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && openEditor(indexAt(event->position().toPoint())))
        Q_EMIT choosing();
}

void OptionsView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTreeView::currentChanged(current, previous);
    // The heading of a group is seen with its first option.
    if (current.isValid() && current.row() == 0) {
        scrollTo(current.parent());
        scrollTo(current);
    }
    Q_EMIT currentMoved();
}

// The focus leaves the editor when the view has given it up already.
void OptionsView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (auto *choices = qobject_cast<ChoiceEditor *>(editor))
        choices->setDone();
    QTreeView::closeEditor(editor, hint);
}

void OptionsView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    shareWidth();
}

int OptionsView::widestTitle() const
{
    if (m_widestTitle >= 0)
        return m_widestTitle;
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    m_widestTitle = 0;
    for (int g = 0; g < model()->rowCount(); ++g) {
        const QModelIndex group = model()->index(g, 0);
        for (int o = 0; o < model()->rowCount(group); ++o) {
            const QString title = model()->index(o, OptionsModel::Title, group).data().toString();
            m_widestTitle = std::max(m_widestTitle, metrics.horizontalAdvance(title));
        }
    }
    return m_widestTitle;
}

// The titles get what they need, as far as enough is left for the choices.
void OptionsView::shareWidth()
{
    const int width = viewport()->width();
    const int wanted = widestTitle() + indentation() + 2 * fontMetrics().height();
    setColumnWidth(OptionsModel::Title, std::clamp(wanted, width * 2 / 5, width * 11 / 20));
}

void OptionsView::drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    if (index.parent().isValid()) {
        QStyleOptionViewItem row = option;
        // Every group begins alike.
        row.features.setFlag(QStyleOptionViewItem::Alternate, index.row() % 2 == 0);
        return QTreeView::drawRow(painter, row, index);
    }
    painter->save();
    QFont bold = option.font;
    bold.setBold(true);
    painter->setFont(bold);
    painter->fillRect(option.rect, option.palette.base());
    painter->setPen(option.palette.color(QPalette::Active, QPalette::Text));
    const int margin = fontMetrics().height() / 4;
    const QRect room = option.rect.adjusted(margin, 0, -margin, -margin);
    painter->drawText(
        room, Qt::AlignBottom | Qt::AlignLeading,
        QFontMetrics(bold).elidedText(index.data().toString(), Qt::ElideRight, room.width()));
    painter->restore();
}

} // namespace corvana
