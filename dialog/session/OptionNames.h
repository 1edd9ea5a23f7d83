#pragma once

#include <QLatin1StringView>

namespace corvana {

// Options and choices of PPDs that the dialog itself knows by name. Those of the panels stand with
// the panels.

inline constexpr QLatin1StringView kPageSizeOption{"PageSize"};
inline constexpr QLatin1StringView kPageRegionOption{"PageRegion"};
inline constexpr QLatin1StringView kDuplexOption{"Duplex"};
inline constexpr QLatin1StringView kDuplexNone{"None"};
inline constexpr QLatin1StringView kDuplexLongEdge{"DuplexNoTumble"};
inline constexpr QLatin1StringView kDuplexShortEdge{"DuplexTumble"};
/// Where the paper comes from, and whether it is fed by hand instead: two forms of one choice to
/// libcups.
inline constexpr QLatin1StringView kInputSlotOption{"InputSlot"};
inline constexpr QLatin1StringView kManualFeedOption{"ManualFeed"};
/// Where the job goes, and who matches its colours: the panels' rules depend on both.
inline constexpr QLatin1StringView kOutputOption{"QXOutput"};
inline constexpr QLatin1StringView kColorMatchingModeOption{"AP_ColorMatchingMode"};
/// All custom values of an option are this one choice, and are written with the prefix.
inline constexpr QLatin1StringView kCustomChoice{"Custom"};
inline constexpr QLatin1StringView kCustomPrefix{"Custom."};
/// The job attribute that the General page offers.
inline constexpr QLatin1StringView kPageRangesAttribute{"page-ranges"};
/// What makes a job wait in its queue until somebody releases it.
inline constexpr QLatin1StringView kJobHoldUntilAttribute{"job-hold-until"};
inline constexpr QLatin1StringView kHeldIndefinitely{"indefinite"};
/// What has documents passed on as they are, past all filters.
inline constexpr QLatin1StringView kRawOption{"raw"};
/// The number of copies, which is no option of any PPD.
inline constexpr QLatin1StringView kCopiesAttribute{"copies"};
/// An orientation as lp names it, which is on or off.
inline constexpr QLatin1StringView kLandscapeOption{"landscape"};
/// Whether several copies of a document come out one after the other, or each page several times:
/// the attribute of CUPS' filters, that of IPP with its values, and the option of some PPDs.
inline constexpr QLatin1StringView kCollateAttribute{"collate"};
inline constexpr QLatin1StringView kHandlingAttribute{"multiple-document-handling"};
inline constexpr QLatin1StringView kCollated{"separate-documents-collated-copies"};
inline constexpr QLatin1StringView kUncollated{"separate-documents-uncollated-copies"};
inline constexpr QLatin1StringView kCollateOption{"Collate"};
/// Which page leaves the printer first.
inline constexpr QLatin1StringView kOutputOrderAttribute{"outputorder"};
/// Two sides, one after the other, on a printer that turns no sheets over; and how the sheets lie
/// when somebody puts them back. Both are ours: no server gets them.
inline constexpr QLatin1StringView kSidesByHandAttribute{"sides-by-hand"};
inline constexpr QLatin1StringView kByHandLongEdge{"long-edge"};
inline constexpr QLatin1StringView kByHandShortEdge{"short-edge"};
inline constexpr QLatin1StringView kPutBackAttribute{"put-back"};
inline constexpr QLatin1StringView kPutBackFaceUp{"face-up"};

} // namespace corvana
