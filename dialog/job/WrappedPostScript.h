#pragma once

#include <optional>

#include <QByteArray>
#include <QStringList>

class QIODevice;

namespace corvana {

/// A document in PostScript as drivers and applications write it into a file: behind a Ctrl-D, or
/// between commands to the printer in its job language (PJL).
struct WrappedPostScript
{
    qint64 begin = 0;       ///< of the document itself; in bytes
    qint64 end = 0;         ///< behind it
    QStringList settings{}; ///< of the printer that its commands set, by their names
};

/// Whether a file that begins so could be one.
bool mayBeWrapped(const QByteArray &beginning);

/// Finds the document. Settings have names only: their values may be somebody's PIN.
///
/// Errors: null, where there is none, where what is wrapped is no PostScript, or where another job
/// follows: of the two the filters of CUPS print one.
std::optional<WrappedPostScript> findWrappedPostScript(QIODevice &file);

} // namespace corvana
