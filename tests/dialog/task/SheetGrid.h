#pragma once

#include <QByteArray>
#include <QPointF>
#include <QString>
#include <QStringList>

namespace corvana::test {

/// Which pages of a numberedPdf() stand where on a side, as whoever reads the sheet holds it: "1 2
/// / 3 4", row by row. Measured by Poppler's pdftotext, from the words that are on the side.

/// Of each page of a PDF. `rotation` is that of the document's pages (NumberedPage).
/// Errors: nothing where there are no such words.
QStringList gridsAsRead(const QByteArray &pdf, int rotation = 0);

/// What the words of an order ("lrtb") promise for so many pages from `first` on.
QString gridOf(const QString &order, int columns, int rows, int first = 1);

} // namespace corvana::test
