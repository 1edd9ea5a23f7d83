#pragma once

#include <QAbstractItemDelegate>
#include <QTreeView>

namespace corvana {

/// A list of options under headings. The choice of a row opens with one click, or with Enter, F2,
/// Space or the first letters of a choice.
class OptionsView : public QTreeView
{
    Q_OBJECT

public:
    explicit OptionsView(QWidget *parent = nullptr);

    void setModel(QAbstractItemModel *model) override;
    /// Makes the first option the current one; none when there is none.
    void goToFirstOption();
    /// After other rows are there.
    void showAllRows();

Q_SIGNALS:
    /// The user wants to choose; the editor of the row is open.
    void choosing();
    void currentMoved();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;
    void drawBranches(QPainter *, const QRect &, const QModelIndex &) const override {}

private:
    bool openEditor(const QModelIndex &row);
    int widestTitle() const;
    void shareWidth();

    QPersistentModelIndex m_pressed; // the choice that the button went down on
    mutable int m_widestTitle = -1;
};

} // namespace corvana
