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
    /// When it was changed at its server. Units: seconds since 1970; 0 where nobody knows, or where
    /// it comes from no server.
    qint64 lastModified = 0;
    QByteArray hash{}; ///< see hashOfPpd(); empty where nobody has to compare it
    /// Removes the file behind the last one who works with it; null for a file that stays.
    std::shared_ptr<QTemporaryFile> owner{};
};

using SharedPpd = std::shared_ptr<const PpdCopy>;

/// By which a PPD is known again.
QByteArray hashOfPpd(const QByteArray &ppd);

/// A PPD that somebody else keeps in a file.
SharedPpd ppdOfFile(const QString &path);

/// Writes a PPD into a file of its own. Errors: null; `error` says why it cannot be written.
SharedPpd temporaryPpd(const QByteArray &content, qint64 lastModified, QString *error);

/// The same PPD with the date that its server gives it by now.
SharedPpd withDate(const SharedPpd &ppd, qint64 lastModified);

} // namespace corvana
