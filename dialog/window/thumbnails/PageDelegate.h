#pragma once

#include <QAbstractItemDelegate>

#include "dialog/preview/PageDrawer.h"

namespace corvana {

class PagePictures;

/// Paints the rows of a PageModel: a page small on its paper, faded while it is not chosen, and
/// below it a box with a tick, its number, and what its document calls it.
///
/// Ownership: borrows the pictures.
class PageDelegate : public QAbstractItemDelegate
{
    Q_OBJECT

public:
    explicit PageDelegate(const PagePictures &pictures, QObject *parent = nullptr);

    /// How wide a row that names a document is, and a page. Units: pixels of the view.
    void setWidths(int heading, int page);
    /// The narrowest that a page can be.
    static int leastWidth(const QFontMetrics &metrics);
    /// What is drawn of a page, and how large; an empty file where nothing is.
    static PageToDraw pictureOf(const QModelIndex &index, const QFontMetrics &metrics,
                                double pixelRatio);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

private:
    void paintHeading(QPainter *painter, const QStyleOptionViewItem &option,
                      const QModelIndex &index) const;
    void paintPaper(QPainter *painter, const QStyleOptionViewItem &option,
                    const QModelIndex &index) const;
    void paintLine(QPainter *painter, const QStyleOptionViewItem &option,
                   const QModelIndex &index) const;

    const PagePictures &m_pictures;
    int m_headingWidth = 0;
    int m_pageWidth = 0;
};

} // namespace corvana
