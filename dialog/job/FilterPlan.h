#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "dialog/job/Document.h"
#include "dialog/session/JobTicket.h"

namespace corvana {

/// Documents, and what is to become of them.
struct ConversionRequest
{
    enum class Result {
        PrinterData, ///< what the printer would have got, through the filters of its PPD
        Pdf,         ///< one PDF on the printer's paper, for a queue that does the rest itself
    };

    QList<Document> documents; ///< one or more; several become one PDF first
    JobTicket ticket;
    QString ppdPath;      ///< of the printer; never empty
    QString outputPath{}; ///< is written over
    QString outputName{}; ///< what messages call it
    Result result = Result::PrinterData;
    /// The options that are applied to a PDF all the same: which pages, how many on a sheet, in
    /// which order.
    QList<JobOption> layout{};
};

/// One program of a plan.
struct FilterStep
{
    enum class Writes { StandardOutput, FileOfItsOwn };

    QString program;
    QStringList arguments;
    QString output;     ///< path of the file that holds what it yields
    QString outputName; ///< what messages call that
    Writes writes = Writes::StandardOutput;

    bool operator==(const FilterStep &) const = default;
};

/// The programs that make one result of documents, each after the other. A value: nothing was
/// looked for and nothing runs.
using FilterPlan = QList<FilterStep>;

/// What a plan takes from the machine.
struct FilterPlaces
{
    QString cupsFilter; ///< path of the program
    QString ppd;        ///< of the chain's own; the one of the request is not read
    QString folder;     ///< for what stands between the documents and the result
};

FilterPlan planConversion(const ConversionRequest &request, const FilterPlaces &places);

/// Whether any of the options shapes the pages of a text or a picture, so that it has to be applied
/// when a PDF is made of those.
bool shapesDocuments(const QList<JobOption> &options);

} // namespace corvana
