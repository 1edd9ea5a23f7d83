#pragma once

#include <QByteArray>
#include <QList>
#include <QSizeF>

namespace corvana::test {

// Papers. Units: points.
inline constexpr QSizeF kA4{595, 842};
inline constexpr QSizeF kA5{420, 595};
inline constexpr QSizeF kLetter{612, 792};

/// A PDF whose pages say which ones they are: "letter 1", "letter 2" and so on, one for each of the
/// sizes. Whatever was done to them on the way, their texts tell what came out.
/// Range of `name`: ASCII letters.
QByteArray numberedPdf(const QByteArray &name, const QList<QSizeF> &pages);
/// The same of A4 pages.
QByteArray numberedPdf(const QByteArray &name, int pages);

} // namespace corvana::test
