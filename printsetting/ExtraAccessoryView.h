#pragma once

#include <QImage>
#include <QList>
#include <QPointF>
#include <QWidget>

class QPainter;

namespace corvana {

/// The illustration of an alert: one image, scaled to the view. Callers size the view to the image
/// before it is shown, so that the image is normally drawn at its own size.
class ExtraAccessoryView : public QWidget
{
    Q_OBJECT

public:
    explicit ExtraAccessoryView(QWidget *parent = nullptr);

    /// Run when the interface file has created the view; it needs no set-up.
    void awakeFromNib() {}
    /// Every image that the view was given lives as long as the view.
    void setImage(const QImage &image);
    QImage alertImage() const { return m_alertImage; }

    /// Moves the view's own coordinates: its upper left corner is `origin` in them. Units: pixels.
    void setBoundsOrigin(const QPointF &origin);

    /// Draws the whole image in the view's own coordinates: its upper left corner is the origin of
    /// the bounds, its size that of the view. The image replaces what was drawn there before.
    void drawRect(QPainter &painter, const QRectF &rectangle) const;

    /// The size that was asked for by setViewFrame().
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_alertImage;
    QList<QImage> m_given;
    QPointF m_boundsOrigin;
};

} // namespace corvana
