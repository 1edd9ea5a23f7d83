#pragma once

#include <QByteArray>
#include <QList>
#include <QRectF>
#include <QSizeF>

namespace corvana::test {

// Papers. Units: points.
inline constexpr QSizeF kA3{842, 1191};
inline constexpr QSizeF kA4{595, 842};
inline constexpr QSizeF kA5{420, 595};
inline constexpr QSizeF kLetter{612, 792};

/// One page of such a document. Units: points.
struct NumberedPage
{
    QSizeF size = kA4;
    int rotation = 0; ///< clockwise, as a reader turns it
    QRectF crop{};    ///< what a reader shows of it; empty: all of it
};

/// A PDF whose pages say which ones they are: "letter 1", "letter 2" and so on. Whatever was done
/// to them on the way, their texts tell what came out. Each has a frame, a red mark at its top left
/// and a blue one at its top right, by which a picture of it tells how it was turned or mirrored.
/// Range of `name`: ASCII letters.
QByteArray numberedPdf(const QByteArray &name, const QList<NumberedPage> &pages,
                       const QByteArray &title = {});
/// One page for each of the sizes.
QByteArray numberedPdf(const QByteArray &name, const QList<QSizeF> &sizes,
                       const QByteArray &title = {});
/// The same of A4 pages.
QByteArray numberedPdf(const QByteArray &name, int pages);

} // namespace corvana::test
