#pragma once

#include <QSize>

#include "platform/PlatformExport.h"

class QWidget;

namespace corvana {

/// Where a view lies in its parent, as the panels speak of it.
/// Units: points, with the y axis upwards and the origin at the lower left corner. A point is a
/// pixel at a font of 12 pixels, and grows with the view's font, so that distances suit the texts.
struct ViewFrame
{
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    bool operator==(const ViewFrame &) const = default;
};

/// Pixels in a point for this view.
CORVANA_PLATFORM_EXPORT double pixelsPerPoint(const QWidget *view);

/// The frame of a view; all zero for null. The size is the one that setViewFrame() last asked for:
/// a host may give a panel more room than that, and panels add to and take from what they asked.
CORVANA_PLATFORM_EXPORT ViewFrame viewFrame(const QWidget *view);

/// Asks for another frame. A null view is ignored. A view that is shown posts
/// kViewDidUpdateTrackingAreasNotification (see Windows.h) when it has been laid out again.
CORVANA_PLATFORM_EXPORT void setViewFrame(QWidget *view, const ViewFrame &frame);

/// The size that setViewFrame() asked for last. Units: pixels; empty when none was ever asked for.
CORVANA_PLATFORM_EXPORT QSize requestedPixelSize(const QWidget *view);

} // namespace corvana
