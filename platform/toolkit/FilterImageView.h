#pragma once

#include <QImage>
#include <QWidget>

#include "platform/PlatformExport.h"
#include "platform/imaging/FilterImage.h"
#include "platform/imaging/ScaledRenderer.h"

namespace corvana {

/// Shows a filter image as large as fits, in its own proportions.
///
/// Only as many pixels are filtered as the view has, so that a slider that changes the filters
/// costs the same whatever the size of the picture.
class CORVANA_PLATFORM_EXPORT FilterImageView : public QWidget
{
    Q_OBJECT

public:
    explicit FilterImageView(QWidget *parent = nullptr);

    /// Replaces the image; none shows nothing.
    void setImage(const FilterImage &image);
    const FilterImage &image() const { return m_image; }
    /// The image in its full size, with its filters: what the view is a smaller picture of.
    QImage pixels() const { return m_image.rendered(); }
    /// Paints at once what was changed since the view was painted last.
    void displayIfNeeded();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The view took another size.
    void resized();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    FilterImage m_image;
    ScaledRenderer m_renderer;
    bool m_changed = false; // since it was painted last
};

} // namespace corvana
