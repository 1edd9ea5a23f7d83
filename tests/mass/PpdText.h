#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
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

/// A choice of an option: keyword and choice.
using PpdTextChoice = QPair<QByteArray, QByteArray>;

/// Choices that a PPD says cannot be combined, two or more. An empty choice stands for every one
/// that switches its option on.
using PpdTextConstraint = QList<PpdTextChoice>;

/// What the lines of any PPD say of its options, read without the functions that the program reads
/// them with: whatever both agree on, two readers have read.
struct PpdText
{
    QList<PpdTextOption> options{}; ///< in the order of the file
    QList<PpdTextConstraint> constraints{};

    /// Null when the PPD has no option of that keyword.
    const PpdTextOption *option(const QByteArray &keyword) const;
    /// Whether a line says that some of these choices cannot be combined.
    bool excludes(const QList<PpdTextChoice> &choices) const;
};

PpdText readPpdText(const QByteArray &ppd);

} // namespace corvana::test
