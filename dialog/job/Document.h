#pragma once

#include <memory>

#include <QString>

class QTemporaryFile;

namespace corvana {

/// A document that can be printed.
struct Document
{
    QString path;   ///< absolute
    QString format; ///< MIME type, as the filter chain names it
    QString title;  ///< the file's name

    bool operator==(const Document &) const = default;
};

/// Looks at a document: PDF, PostScript, plain text, PNG, JPEG.
///
/// The content decides, since the filter chain would send what it does not know to the printer as
/// it is; a file whose name promises something else is refused, because it is more often a web
/// server's error page than a picture in disguise.
///
/// Errors: an empty path; `error` then says which file and what is wrong with it.
Document inspectDocument(const QString &path, QString *error);

/// The document that comes on standard input, read to its end into a temporary file of the user's.
/// Ownership: `file` holds the data and removes it at its end.
/// Errors: as inspectDocument().
Document readStandardInput(std::shared_ptr<QTemporaryFile> *file, QString *error);

} // namespace corvana
