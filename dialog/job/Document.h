#pragma once

#include <memory>
#include <stop_token>

#include <QString>
#include <QStringList>

class QTemporaryDir;

namespace corvana {

/// A document that can be printed.
struct Document
{
    QString path;   ///< absolute
    QString format; ///< MIME type, as the filter chain names it
    QString title;  ///< the file's name
    /// Holds a file of our own while it is needed; null where the document is the user's file.
    std::shared_ptr<QTemporaryDir> copy{};
    /// The file as it was given, where `path` is a copy that was made of it to be printed:
    /// unlocked, repaired, turned, or without the commands to a printer around it. Else empty.
    QString original{};
    QStringList settings{}; ///< of the printer that such commands set, by their names

    bool operator==(const Document &) const = default;
};

/// The format of a document that is of no kind known here. Only its printer may know what it is.
inline constexpr QLatin1StringView kUnknownFormat{"application/octet-stream"};

/// Which documents are taken.
enum class DocumentKinds {
    Known, ///< those that can be laid out
    Any,   ///< whatever a printer may take as it is
};

/// The path of the document that comes on standard input. A file of that name is "./-".
inline constexpr QLatin1StringView kStandardInput("-");

/// Looks at a document: PDF, PostScript, plain text, PNG, JPEG; with `Any` anything that is not
/// empty. PostScript between commands to a printer is taken out of them, but with `Any`.
///
/// The content decides, since the filter chain would send what it does not know to the printer as
/// it is; a file whose name promises something else is refused, because it is more often a web
/// server's error page than a picture in disguise.
///
/// `path` may have bytes that are no characters, as nameOfBytes() has them. Such a file, a named
/// pipe and standard input are read to their ends into a file of the user's own; devices are
/// refused.
///
/// Errors: an empty path; `error` then says which file and what is wrong with it.
/// `stop` ends the reading early.
Document inspectDocument(const QString &path, QString *error,
                         DocumentKinds kinds = DocumentKinds::Known,
                         const std::stop_token &stop = {});

/// Whether such a document is read to its end before it is known what it is: that takes as long as
/// somebody writes into it, or types it.
bool isReadToItsEnd(const QString &path);

/// What such a format is called, for people: "PDF document". Empty for one that is not printed.
QString nameOfFormat(const QString &format);

/// Whether standard input is what somebody gave this program to read: a pipe or a file. A terminal
/// is where its user types, and whatever starts programs in the background gives them /dev/null.
bool isStandardInputGiven();

} // namespace corvana
