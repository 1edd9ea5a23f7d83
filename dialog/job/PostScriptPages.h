#pragma once

#include <QString>

namespace corvana {

/// Whether a document in PostScript is a picture for other documents (EPSF), which need not end its
/// page itself. Errors: no, where it cannot be read.
bool isEncapsulated(const QString &path);

/// Whether a document in PostScript says where each of its pages begins, as who turns them round or
/// puts something between them has to know. A document in it that says so as well makes that
/// unknown. Errors: no, where it cannot be read, or is longer than 128 MiB.
bool marksPages(const QString &path, int pages);

} // namespace corvana
