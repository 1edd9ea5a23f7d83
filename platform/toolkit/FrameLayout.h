#pragma once

#include <vector>

#include <QLayout>
#include <QRectF>

#include "platform/PlatformExport.h"

namespace corvana {

/// Lays the children of a view out by frames, as an interface file or a panel gives them, and lets
/// nothing be clipped: a child that needs more height than its frame takes it and moves those below
/// it down, whatever the language and the font. A child that is hidden takes no room.
///
/// In a view that is mirrored the frames count from its right edge.
///
/// Units: points (see ViewFrame.h), here with the y axis downwards from the view's upper edge, to
/// which all children keep their distance when the view takes another height.
class CORVANA_PLATFORM_EXPORT FrameLayout : public QLayout
{
    Q_OBJECT

public:
    /// Replaces nothing: `view` must have no layout yet. Takes every child with the geometry that
    /// it has, at a scale of one pixel a point; one without a size is left alone. A child's dynamic
    /// property `stretch` says what follows the size of the view: "width", "height" or "both".
    explicit FrameLayout(QWidget *view);
    ~FrameLayout() override;

    /// The frame of a child; null for a widget that is none.
    QRectF frame(const QWidget *child) const;
    /// Errors: false for a widget that is no child.
    bool setFrame(const QWidget *child, const QRectF &frame);

    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    struct Placed
    {
        QLayoutItem *item;
        QRectF designed; // the frame in the interface file
        QRectF frame;
        bool stretchesWidth;
        bool stretchesHeight;
    };

    bool isLaidOut(const Placed &placed) const;
    int bottomMargin(const Placed &placed, double scale) const;
    QRect geometryOf(const Placed &placed, const QSize &available, double scale) const;
    std::vector<QRect> geometries(const QSize &available) const;
    double scale() const;

    // From top to bottom.
    std::vector<Placed> m_placed;
    QSizeF m_designed; // the view's size in the interface file
};

} // namespace corvana
