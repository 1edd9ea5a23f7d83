#pragma once

#include <memory>

#include <QByteArray>
#include <QString>

class QTemporaryFile;

namespace corvana {

/// A PPD that lies in a file here: one value, which everybody shares who works with this PPD. The
/// file holds the same PPD for as long as anybody has this value.
struct PpdCopy
{
    QString path;
    QByteArray hash{}; ///< see hashOfPpd(); empty where nobody has to compare it
    /// It was written here, because its printer has none.
    bool isWritten = false;
    /// Removes the file behind the last one who works with it; null for a file that stays.
    std::shared_ptr<QTemporaryFile> owner{};
};

using SharedPpd = std::shared_ptr<const PpdCopy>;

/// By which a PPD is known again. Its date says nothing: a PPD that is restored from a backup is
/// older than the one in its place, and servers count whole seconds.
QByteArray hashOfPpd(const QByteArray &ppd);

/// A PPD that somebody else keeps in a file.
SharedPpd ppdOfFile(const QString &path);

/// Writes a PPD into a file of its own. Errors: null; `error` says why it cannot be written.
SharedPpd temporaryPpd(const QByteArray &content, QString *error);

/// The same for a printer that has none: what it says of itself, as a PPD.
SharedPpd writtenPpd(const QByteArray &content, QString *error);

} // namespace corvana
