#pragma once

#include <optional>

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>

#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// A line of an lpoptions file that says something about a queue, as libcups reads it: "Dest" or
/// "Default", a name, and options. Comments, other words and damage are no such lines.
struct UserQueuesLine
{
    bool isDefault = false;
    QByteArray name;    ///< "NAME" or "NAME/INSTANCE"
    QByteArray options; ///< for cupsParseOptions()

    bool operator==(const UserQueuesLine &) const = default;
};

/// The most bytes of a line that libcups reads as one. What is longer becomes several lines.
inline constexpr qsizetype kMostBytesOfLine = 8191;

/// The lines of a file, each with its end: LF, CR LF or CR. All of them together are the file.
QList<QByteArrayView> linesOfUserQueues(QByteArrayView content);

/// What a line says, with or without its end; nothing where libcups passes over it.
std::optional<UserQueuesLine> userQueuesLine(QByteArrayView line);

/// The options in a line, in the order of libcups, which reads them.
QList<JobOption> optionsOfLine(const UserQueuesLine &line);

/// Why an option cannot stand in such a file, for a person; null where it can.
QString problemOfLine(const JobOption &option);

/// "Dest NAME OPTIONS" or "Default NAME OPTIONS", without an end, from which libcups reads exactly
/// these options. They are ones without a problemOfLine().
QByteArray lineOf(bool isDefault, const QString &name, const QList<JobOption> &options);

} // namespace corvana
