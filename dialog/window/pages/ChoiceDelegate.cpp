#include "dialog/window/pages/ChoiceDelegate.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionComboBox>

#include "dialog/session/PpdSession.h"
#include "dialog/window/pages/ChoiceEditor.h"
#include "dialog/window/pages/OptionsModel.h"

namespace corvana {

ChoiceDelegate::ChoiceDelegate(OptionsModel &model, QObject *parent)
    : QStyledItemDelegate(parent), m_model(model)
{
}

QWidget *ChoiceDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                      const QModelIndex &index) const
{
    PpdSession &session = m_model.session();
    const QString keyword = index.data(OptionsModel::KeywordRole).toString();
    auto *editor =
        new ChoiceEditor(session, m_model.values(), ppdOption(session.ppd(), keyword), parent);
    m_editor = editor;
    if (const auto draft = m_drafts.constFind(keyword); draft != m_drafts.cend())
        editor->showDraft(*draft);
    connect(editor, &ChoiceEditor::hintChanged, this,
            [this, editor] { Q_EMIT hinted(editor->hint()); });
    auto *self = const_cast<ChoiceDelegate *>(this); // editors are made in a const function
    connect(editor, &ChoiceEditor::committed, self,
            [self, editor] { Q_EMIT self->commitData(editor); });
    connect(editor, &ChoiceEditor::finished, self, [self, editor] {
        self->m_drafts.remove(editor->keyword());
        const bool focusIsElsewhere = editor->lostFocus();
        Q_EMIT self->closeEditor(editor, NoHint);
        // A list that was just closed may not have given the focus back yet.
        if (auto *view = qobject_cast<QAbstractItemView *>(editor->parentWidget()->parentWidget());
            view && !focusIsElsewhere)
            view->setFocus();
    });
    Q_EMIT hinted(editor->hint());
    return editor;
}

void ChoiceDelegate::dismissEditor()
{
    if (m_editor)
        Q_EMIT closeEditor(m_editor, NoHint);
}

void ChoiceDelegate::destroyEditor(QWidget *editor, const QModelIndex &index) const
{
    const auto *choices = static_cast<ChoiceEditor *>(editor);
    m_editor = nullptr; // though it lives until the event is over
    if (!m_drafts.contains(choices->keyword()))
        Q_EMIT hinted(QString());
    QStyledItemDelegate::destroyEditor(editor, index);
}

void ChoiceDelegate::setEditorData(QWidget *editor, const QModelIndex &) const
{
    auto *choices = static_cast<ChoiceEditor *>(editor);
    if (!choices->isChanged())
        choices->showMark();
}

void ChoiceDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                  const QModelIndex &index) const
{
    auto *choices = static_cast<ChoiceEditor *>(editor);
    if (!choices->isChanged())
        return;
    const std::optional<QString> choice = choices->choice();
    if (!choice) {
        m_drafts.insert(choices->keyword(), choices->typedText());
        Q_EMIT rejected(choices->problem());
        return;
    }
    m_drafts.remove(choices->keyword());
    const QPointer<ChoiceEditor> guard(choices); // whoever is asked may close it
    model->setData(index, *choice, Qt::EditRole);
    if (guard)
        choices->showMark(); // taken or refused
}

void ChoiceDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                          const QModelIndex &) const
{
    editor->setGeometry(option.rect);
}

// The editor decides itself when it is done: what cannot be taken keeps it open.
bool ChoiceDelegate::eventFilter(QObject *, QEvent *)
{
    return false;
}

QSize ChoiceDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    const QStyleOptionComboBox popUp;
    const QStyle *style = option.widget->style();
    const QSize control =
        style->sizeFromContents(QStyle::CT_ComboBox, &popUp,
                                QSize(size.width(), option.fontMetrics.height()), option.widget);
    // Some air keeps rows apart, and headings from the rows above them.
    size.setHeight(qMax(size.height(), control.height()) + option.fontMetrics.height() / 4);
    return size;
}

void ChoiceDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    if (index.column() != OptionsModel::Choice)
        return QStyledItemDelegate::paint(painter, option, index);
    QStyledItemDelegate::paint(painter, option, index);
    // An arrow says that there is something to choose.
    const int arrow = option.fontMetrics.height() / 2;
    const bool mirrored = option.direction == Qt::RightToLeft;
    QStyleOption mark;
    mark.state = option.state;
    mark.palette = option.palette;
    mark.rect = QRect(mirrored ? option.rect.left() + arrow : option.rect.right() - 2 * arrow,
                      option.rect.center().y() - arrow / 2, arrow, arrow);
    option.widget->style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &mark, painter,
                                          option.widget);
}

} // namespace corvana
