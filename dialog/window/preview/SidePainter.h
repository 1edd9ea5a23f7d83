#pragma once

#include <optional>

#include <QImage>
#include <QPalette>
#include <QRect>
#include <QString>

#include "dialog/window/preview/SideTexts.h"
#include "platform/imaging/ColorTransform.h"

class QPainter;

namespace corvana {

/// What is painted of one side.
struct PaintedSide
{
    QRect paper{};     ///< where it lies
    QRect label{};     ///< the line below it
    QString text{};    ///< in that line
    QImage picture{};  ///< as it was laid out; null while there is none
    int turn = 0;      ///< of the picture; Units: degrees clockwise
    QString problem{}; ///< stands on the paper instead of a picture
    std::optional<Qt::Edge> bound{};
    bool isCurrent = false; ///< and has the focus
    QRect mark{};           ///< where it is marked; null where it is not
};

/// Paints sides of sheets: the paper with its shadow, the picture of what is printed on it in the
/// colors that a printer's settings give it, and the edge at which it is bound.
///
/// Colors are worked out for what is painted and nothing else, into a buffer that is used again, so
/// that a slider of the settings moves them at once.
class SidePainter
{
public:
    static constexpr int kFocusWidth = 2; ///< of the line around what has the focus. Units: pixels

    void setColors(const ColorTransform &colors) { m_colors = colors; }
    const ColorTransform &colors() const { return m_colors; }

    /// The color around the paper: one that white paper is seen on in a light and a dark desktop.
    static QColor background(const QPalette &palette);

    /// `exposed` is what has to be painted anew.
    void paint(QPainter &painter, const PaintedSide &side, const QPalette &palette,
               const QRect &exposed);

private:
    void paintPicture(QPainter &painter, const PaintedSide &side, const QRect &exposed);
    QImage colored(const QImage &picture, const QRect &part);

    ColorTransform m_colors;
    QImage m_buffer;
};

} // namespace corvana
