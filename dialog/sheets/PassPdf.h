#pragma once

#include <memory>

#include <QByteArray>
#include <QList>
#include <QString>

#include "dialog/job/FilterPlan.h"
#include "dialog/sheets/HandPasses.h"
#include "dialog/sheets/LaidOutDocument.h"

namespace corvana {

/// The sides of one pass, and where they are taken from.
struct PassSource
{
    QList<PassSide> sides{};
    /// One for each document of the job; null for one of which no side is printed.
    QList<std::shared_ptr<const LaidOutDocument>> documents{};
};

/// A file that a plan reads, and what has to be in it.
struct BlankPage
{
    QString path;
    QByteArray content; ///< a PDF of one empty page

    bool operator==(const BlankPage &) const = default;
};

/// How one PDF is made of the sides of a pass, a page for each: the laid-out pages themselves, so
/// that what is printed is what was shown. A value: nothing was written and nothing runs.
struct PassPdfPlan
{
    QList<BlankPage> blanks{};
    FilterPlan steps{};
};

/// `folder` is for the empty pages; the PDF is written to `output`.
PassPdfPlan planPassPdf(const PassSource &source, const QString &folder, const QString &output);

} // namespace corvana
