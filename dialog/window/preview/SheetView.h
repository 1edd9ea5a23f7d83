#pragma once

#include <optional>

#include <QAbstractScrollArea>
#include <QTimer>

#include "dialog/sheets/SheetMarks.h"
#include "dialog/window/preview/SheetLayout.h"
#include "dialog/window/preview/SidePainter.h"

namespace corvana {

class SidePictures;

/// The sheets that come out of a job, as they are seen by their view.
struct ShownSheets
{
    SheetPlan plan{};
    QStringList files{};  ///< of each document, the one that was laid out
    QStringList titles{}; ///< of each document
    QList<SheetMark> marks{};
    bool areAll = true; ///< else nobody knows how many more there are

    bool operator==(const ShownSheets &) const = default;
};

/// Shows the sides of the sheets that come out of a job, fronts and backs beside each other, and
/// scrolls and zooms them. Pictures are asked for as far as they are seen, the visible ones first
/// and at the pixels of the screen; until one is there a coarser one is shown, or blank paper.
///
/// It takes part in the order of Tab as one control, in which the keys of a list move a current
/// side; assistive technology is told what that side is.
///
/// Ownership: borrows the pictures. While it cannot be seen it asks for nothing.
class SheetView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit SheetView(QWidget *parent = nullptr);
    ~SheetView() override;

    void setPictures(SidePictures *pictures);
    /// Shows these sheets instead of those before, at the place that was looked at.
    void setSheets(const ShownSheets &sheets);
    const ShownSheets &sheets() const { return m_sheets; }
    /// Whether what is shown is about to be replaced: it is dimmed when that takes long.
    void setUpdating(bool updating);
    bool isDimmed() const { return m_isDimmed; }
    /// What the printer's settings do to the colors of a page. Only what is seen is worked out.
    void setColors(const ColorTransform &colors);

    const Zoom &zoom() const { return m_zoom; }
    void setZoom(const Zoom &zoom);
    /// To the next step of the scale, larger (1) or smaller (-1). What lies at `fixed`, a place in
    /// the viewport, stays there; without one the current side stays in sight, where it is.
    void zoomBy(int direction, std::optional<QPoint> fixed = {});
    /// The scale that is shown, whatever it fits. Units: percent.
    int percent() const { return qRound(m_layout.scale() * 100); }

    /// The side that the keys move; none while there are no sheets.
    SideIndex current() const { return m_current; }
    void setCurrent(SideIndex side);
    /// The sheet that is looked at: the current one where it can be seen, else the first that can.
    int lookedAt() const;
    const SheetLayout &sheetLayout() const { return m_layout; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void zoomChanged();
    /// Another sheet is looked at, or there is another number of them.
    void lookedAtChanged();
    /// A mark was clicked, or Space pressed on a marked side: its user wants to read what it is
    /// about.
    void markPressed(const QString &text);

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    // A place on a sheet, and where it is seen.
    struct Anchor
    {
        int sheet = -1;
        QPointF part{}; // of its width and height
        QPoint seen{};
    };

    // What is where (SheetView.cpp)

    void layOut(std::optional<QPoint> fixed = {});
    SheetLayout layoutFor(QSize room) const;
    void setRanges(QSize room);
    Anchor anchorAt(QPoint place) const;
    void moveTo(const Anchor &anchor);
    QPoint nearCurrent(QPoint place) const;
    QPoint offset() const;
    QRect seenPart() const;
    void tellLookedAt();
    QString toolTipAt(QPoint place) const;
    QString markOf(SideIndex side) const;
    QRect markPlace(SideIndex side) const;

    // Pictures (SheetView-pictures.cpp)

    void askForPictures();
    QSize pictureSize(SideIndex side) const;
    PaintedSide painted(SideIndex side) const;
    void pictureDrawn(const QString &file, int page);
    void paintUpdating(QPainter &painter);

    // Keys (SheetView-keys.cpp)

    bool moveByKey(int key);
    bool scrollsWithinSide(int direction);
    void step(int sides);
    void turnPage(int direction);
    void showCurrent();
    void describeCurrent();
    void updateCurrent();
    bool isFocusOutOfSight() const;

    SidePictures *m_pictures = nullptr;
    ShownSheets m_sheets;
    SheetLayout m_layout;
    Zoom m_zoom;
    SidePainter m_painter;
    SideIndex m_current;
    int m_lookedAt = -1;
    int m_wheel = 0; // what of a step of the wheel has been turned
    bool m_isDimmed = false;
    bool m_isOutlined = false;
    bool m_isSeen = false;
    QTimer m_asking;
    QTimer m_dimming;
};

} // namespace corvana
