#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace corvana::test {

/// A page as pdftoppm draws it, which knows nothing of this project's own programs. Of the format
/// RGB32. Page from 0. `isTurned` says that the page is turned by a quarter: pdftoppm asks for the
/// size that it has before. Errors: null.
QImage drawnByPdftoppm(const QString &file, int page, QSize size, bool isTurned = false);

/// The largest difference of a component of any two pixels at the same place; 255 for pictures of
/// different sizes.
int largestDifference(const QImage &one, const QImage &other);

/// A file in `folder` with that content.
QString writtenFile(const QString &folder, const QString &name, const QByteArray &content);

} // namespace corvana::test
