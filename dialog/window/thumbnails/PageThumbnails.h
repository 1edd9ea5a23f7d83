#pragma once

#include <QListView>
#include <QPersistentModelIndex>
#include <QTimer>

namespace corvana {

class PageDelegate;
class PageModel;
class PagePictures;

/// The pages of a PageModel beside and below each other, to be ticked: by a click, with Shift for
/// a run from the last one that was ticked; with Space where the keys of a list have gone, and
/// Shift for a run as well. Pictures are asked for as far as they are seen, and a view's height
/// around that.
///
/// Ownership: borrows the model and the pictures.
class PageThumbnails : public QListView
{
    Q_OBJECT

public:
    PageThumbnails(PageModel &model, PagePictures &pictures, QWidget *parent = nullptr);

    /// The rows that can be seen, first and last; (0, -1) for none.
    std::pair<int, int> seenRows() const;

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    void setWidths();
    void tick(const QModelIndex &index, Qt::KeyboardModifiers modifiers);
    QModelIndex enabledFrom(int row, int step) const;
    int firstRowAt(int height) const;
    void askForPictures();
    void pictureDrawn(const QString &file, int page);

    PageModel &m_model;
    PagePictures &m_pictures;
    PageDelegate *m_delegate;
    QPersistentModelIndex m_anchor; // of a run
    bool m_anchorTicks = true;      // what became of it
    QTimer m_asking;
};

} // namespace corvana
