#pragma once

#include <memory>
#include <optional>

#include <QList>
#include <QSizeF>
#include <QString>

#include "dialog/job/PageChoice.h"

namespace corvana {

class LaidOutDocument;

/// How large the pages of one size are printed.
struct PageScale
{
    QSizeF size;        ///< as a reader sees the page; Units: points
    double scale = 1.0; ///< 1 is the actual size

    bool operator==(const PageScale &) const = default;
};

/// What comes out of one document, for one copy.
struct DocumentSheets
{
    QString title{};
    /// Of the document itself; nothing where nobody could count them.
    std::optional<int> pages{};
    /// The printed sides of sheets, blank ones among them that the chain adds; nothing where nobody
    /// could count them.
    std::optional<int> sides{};
    /// For each size of page that is printed, where it was found out.
    QList<PageScale> scales{};
    /// For each page of the document, by how much its side is turned to read that page upright,
    /// where it was found out. Units: degrees clockwise.
    QList<int> turns{};
    /// By how much the order of its pages on a side is turned for their reader, see turnOfOrder();
    /// what the layout step was told made up for that.
    int orderTurn = 0;
    /// The sides themselves; null where there are none, or where they cannot be shown.
    std::shared_ptr<const LaidOutDocument> laidOut{};
    /// Why the sides cannot be shown. Of those that are too large their number is known all the
    /// same.
    enum class Trouble { None, Failed, TookTooLong, TooLarge };
    Trouble trouble = Trouble::None;
    /// Whether it is PostScript that draws no page, as far as Ghostscript tells. A printer may do
    /// something else with it.
    bool drawsNoPage = false;

    bool operator==(const DocumentSheets &) const = default;
};

/// What comes out of a job.
struct JobSheets
{
    QList<DocumentSheets> documents{};
    bool isTwoSided = false; ///< was asked for
    bool isByHand = false;   ///< is two-sided because somebody turns the sheets over

    bool operator==(const JobSheets &) const = default;
};

/// For each page of a document of so many, whether it is printed.
QList<bool> printedPages(int pages, const PageChoice &choice);
/// How many pages of a document of so many are printed.
int chosenPages(int pages, const PageChoice &choice);

/// Sheets of paper for one copy. Each document begins on a sheet of its own.
/// Errors: nothing where a document could not be counted.
std::optional<int> sheetsOfOneCopy(const JobSheets &sheets);
/// Whether nobody could count the sides of some document.
bool isUncounted(const JobSheets &sheets);
/// By how much the order of pages on a side is turned in a job of these documents. Nothing where
/// they would need different orders: a job has one. Those of which nothing is known, or comes out,
/// need none.
std::optional<int> commonOrderTurn(const JobSheets &sheets);
/// Whether all documents are PostScript that draws no page.
bool drawsNoPage(const JobSheets &sheets);
/// Whether a filter that sends the pages of a document as they are would not send what was laid
/// out: where any of them is not as large as the paper (Units: points), or is scaled or turned, or
/// where nobody knows that of sides which are known.
bool isLaidOutOtherwise(const DocumentSheets &document, QSizeF paper);
/// Whether the backs of a document stay empty in a two-sided job. Its stream may be one-sided then,
/// or two-sided with blank backs: that depends on the printer, and on how the copies are made.
bool hasEmptyBacks(const DocumentSheets &document);

} // namespace corvana
