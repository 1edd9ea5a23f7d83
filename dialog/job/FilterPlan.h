#pragma once

#include <chrono>
#include <optional>

#include <QList>
#include <QString>
#include <QStringList>

#include "dialog/job/Document.h"
#include "dialog/job/PageChoice.h"
#include "dialog/session/JobTicket.h"

namespace corvana {

/// Documents, and what is to become of them.
struct ConversionRequest
{
    enum class Result {
        PrinterData, ///< what the printer would have got, through the filters of its PPD
        Pdf,         ///< one PDF on the printer's paper, for a queue that does the rest itself
        /// The pages of one document that the ticket asks for, as a PDF, for a queue that does the
        /// rest itself; an empty file for a document that has none of them.
        ChosenPages,
    };

    QList<Document> documents; ///< one or more; choices of pages count in each
    JobTicket ticket;
    QString ppdPath;      ///< of the printer; never empty
    QString outputPath{}; ///< is written over
    QString outputName{}; ///< what messages call it
    Result result = Result::PrinterData;
    /// The options that are applied to a PDF all the same: which pages, how many on a sheet, in
    /// which order.
    QList<JobOption> layout{};
    /// The document is one of several of its job, whose pages are picked before the chain.
    bool picksPages = false;
    /// For each page of a result that is a PDF, by how much a reader turns it, beside what it says
    /// itself. Units: degrees clockwise. Range: 0, 90, 180, 270. Empty: nothing is turned.
    QList<int> turns{};
};

/// Pages that are picked once it is known how many there are.
struct PagePick
{
    PageChoice choice;
    QString document; ///< a PDF
    QString counted;  ///< path of the file with the number of its pages
    QString blank{};  ///< path of a PDF of an empty page

    bool operator==(const PagePick &) const = default;
};

/// One program of a plan.
struct FilterStep
{
    enum class Writes { StandardOutput, FileOfItsOwn };
    enum class Yields { Something, PerhapsNothing };

    QString program;
    QStringList arguments;
    QString output;     ///< path of the file that holds what it yields
    QString outputName; ///< what messages call that
    Writes writes = Writes::StandardOutput;
    Yields yields = Yields::Something;
    /// What it reads of what former steps have yielded. Those that turned out to be empty are left
    /// out of the arguments; a step that has nothing left yields nothing.
    QStringList parts{};
    /// The pages that stand in the arguments in the place of kPickedPages.
    std::optional<PagePick> pick{};
    /// How long it may take; 0: as long as it wants.
    std::chrono::seconds patience{0};

    bool operator==(const FilterStep &) const = default;
};

/// Stands for the pages of a PagePick among the arguments of a step. No program has such an option.
inline constexpr QLatin1StringView kPickedPages{"--picked-pages--"};

/// The programs that make one result of documents, each after the other. A value: nothing was
/// looked for and nothing runs.
using FilterPlan = QList<FilterStep>;

/// What a plan takes from the machine.
struct FilterPlaces
{
    QString cupsFilter; ///< path of the program
    QString ppd;        ///< of the chain's own; the one of the request is not read
    /// The same, but it has the last sheet of a two-sided document filled with a blank side.
    QString fillingPpd;
    QString folder; ///< for what stands between the documents and the result
    /// Whether what becomes of two documents can stand one after the other in a file.
    bool resultsCanFollow = true;
    /// A PDF of one empty page, for booklets. It is smaller than any page, since the chain looks at
    /// all of them before it scales any.
    QString blankPage{};
};

FilterPlan planConversion(const ConversionRequest &request, const FilterPlaces &places);

/// One option as cupsParseOptions() reads it back: a value with blanks or quotes stays one value.
QString optionArgument(const JobOption &option);

/// The options of a job whose pages were laid out already: each that would change them again has
/// its usual value, so that nobody's default takes its place.
QList<JobOption> optionsAfterLayout(const QList<JobOption> &options);

/// Whether a picture or PostScript has to become a PDF before the filter chain sees it, so that one
/// filter lays out whatever is printed. What the chain makes of a picture at once has neither
/// several pages on a side nor borders nor chosen pages, or has them from a filter behind it, where
/// the printer takes PostScript, which also mirrors what is mirrored already. PostScript for such a
/// printer is laid out by that filter, which scales, turns and fills up in ways of its own.
bool mustBecomePdf(const Document &document, const QList<JobOption> &options);

/// Whether a document is a picture.
bool isPicture(const Document &document);

/// Whether any of the options shapes the pages of a text or a picture, so that it has to be applied
/// when a PDF is made of those.
bool shapesDocuments(const QList<JobOption> &options);

} // namespace corvana
