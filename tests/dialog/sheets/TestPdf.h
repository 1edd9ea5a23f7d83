#pragma once

#include <QByteArray>
#include <QList>
#include <QSizeF>

namespace corvana::test {

inline constexpr QSizeF kA3{842, 1191};
inline constexpr QSizeF kA4{595, 842};
inline constexpr QSizeF kA5{420, 595};
inline constexpr QSizeF kLetter{612, 792};

/// A PDF of one page for each size, with the text "page1", "page2" and so on. Units: points.
QByteArray pdfOfSizes(const QList<QSizeF> &sizes, const QByteArray &title = {});

} // namespace corvana::test
