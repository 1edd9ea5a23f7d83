#pragma once

#include <QHash>
#include <QPointer>
#include <QString>
#include <QStyledItemDelegate>

namespace corvana {

class ChoiceEditor;
class OptionsModel;

/// Lets the user pick the choice of an option in its row, one row at a time.
///
/// A value that cannot be taken stays in its editor; when the user goes to another row all the
/// same, it is there again when he comes back.
class ChoiceDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Borrows the model that the view shows through a filter.
    explicit ChoiceDelegate(OptionsModel &model, QObject *parent = nullptr);

    /// The open editor, or null.
    ChoiceEditor *editor() const { return m_editor; }
    /// Closes the open editor; what could not be taken is kept for the next time.
    void dismissEditor();

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    void destroyEditor(QWidget *editor, const QModelIndex &index) const override;
    bool eventFilter(QObject *editor, QEvent *event) override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

Q_SIGNALS:
    /// What can be entered in the open editor; empty for nothing to say.
    void hinted(const QString &text) const;
    /// What was typed cannot be taken, and why.
    void rejected(const QString &problem) const;

private:
    OptionsModel &m_model;
    mutable QPointer<ChoiceEditor> m_editor;
    mutable QHash<QString, QString> m_drafts; // option keyword to what was typed last, in vain
};

} // namespace corvana
