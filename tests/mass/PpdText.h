#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

namespace corvana::test {

/// An option as a PPD writes it.
struct PpdTextOption
{
    QByteArray keyword;
    QByteArray defaultChoice{};
    QList<QByteArray> choices{};
    bool isInstallable = false; ///< says what the printer has, and is nothing to choose for a job
};

/// Two choices that a PPD says cannot be combined. An empty choice stands for every one that
/// switches its option on.
struct PpdTextConstraint
{
    QByteArray keyword, choice;
    QByteArray otherKeyword, otherChoice;
};

/// What the lines of any PPD say of its options, read without the functions that the program reads
/// them with: whatever both agree on, two readers have read.
struct PpdText
{
    QList<PpdTextOption> options{}; ///< in the order of the file
    QList<PpdTextConstraint> constraints{};

    /// Null when the PPD has no option of that keyword.
    const PpdTextOption *option(const QByteArray &keyword) const;
    /// Whether a line says that these two choices cannot be combined, in either order.
    bool excludes(const QByteArray &keyword, const QByteArray &choice,
                  const QByteArray &otherKeyword, const QByteArray &otherChoice) const;
};

PpdText readPpdText(const QByteArray &ppd);

} // namespace corvana::test
