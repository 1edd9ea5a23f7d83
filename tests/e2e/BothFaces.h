#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace corvana::test {

/// What became of one request in one face.
struct FaceEnd
{
    QString said{};       ///< instead of printing, without what only one of the faces has around it
    QByteArray printed{}; ///< the result, without the line that says when it was made
    bool isPrinted = false;
};

/// A result without the line that says when it was made; the file is gone afterwards.
/// Errors: empty.
QByteArray takeResult(const QString &path);

/// Prints with a command line into the file `output`, which is named in it, without a window.
FaceEnd printInTerminal(const QStringList &arguments, const QString &output);

/// The same in a window of this process: Print is pressed as soon as it can be. Alerts are answered
/// with OK.
FaceEnd printInWindow(const QStringList &arguments, const QString &output);

} // namespace corvana::test
