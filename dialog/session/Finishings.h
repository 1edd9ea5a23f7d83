#pragma once

#include "dialog/session/JobAttributes.h"

namespace corvana {

/// What is done to printed sheets: a number of IPP or its keyword, or several, apart by commas.
inline constexpr QLatin1StringView kFinishingsAttribute{"finishings"};

/// The finishings that people choose, each on one place or as the printer does it.
inline constexpr AllowedValues::Word kFinishingWords[] = {
    {QLatin1StringView("3"), QLatin1StringView("none"), QT_TRANSLATE_NOOP("Finishings", "None"),
     "Finishings"},
    {QLatin1StringView("4"), QLatin1StringView("staple"), QT_TRANSLATE_NOOP("Finishings", "Staple"),
     "Finishings"},
    {QLatin1StringView("5"), QLatin1StringView("punch"), QT_TRANSLATE_NOOP("Finishings", "Punch"),
     "Finishings"},
    {QLatin1StringView("6"), QLatin1StringView("cover"),
     QT_TRANSLATE_NOOP("Finishings", "Add Cover"), "Finishings"},
    {QLatin1StringView("7"), QLatin1StringView("bind"), QT_TRANSLATE_NOOP("Finishings", "Bind"),
     "Finishings"},
    {QLatin1StringView("8"), QLatin1StringView("saddle stitch"),
     QT_TRANSLATE_NOOP("Finishings", "Saddle Stitch"), "Finishings"},
    {QLatin1StringView("9"), QLatin1StringView("edge stitch"),
     QT_TRANSLATE_NOOP("Finishings", "Edge Stitch"), "Finishings"},
    {QLatin1StringView("10"), QLatin1StringView("fold"), QT_TRANSLATE_NOOP("Finishings", "Fold"),
     "Finishings"},
    {QLatin1StringView("11"), QLatin1StringView("trim"), QT_TRANSLATE_NOOP("Finishings", "Trim"),
     "Finishings"},
    {QLatin1StringView("12"), QLatin1StringView("bale"), QT_TRANSLATE_NOOP("Finishings", "Bundle"),
     "Finishings"},
    {QLatin1StringView("13"), QLatin1StringView("booklet maker"),
     QT_TRANSLATE_NOOP("Finishings", "Make Booklet"), "Finishings"},
    {QLatin1StringView("14"), QLatin1StringView("jog offset"),
     QT_TRANSLATE_NOOP("Finishings", "Offset Sets"), "Finishings"},
    {QLatin1StringView("15"), QLatin1StringView("coat"), QT_TRANSLATE_NOOP("Finishings", "Coat"),
     "Finishings"},
    {QLatin1StringView("16"), QLatin1StringView("laminate"),
     QT_TRANSLATE_NOOP("Finishings", "Laminate"), "Finishings"},
};

/// Finishings for people: "Staple (Top Left), Punch". Errors: what nobody knows is left as it is.
QString finishingText(const QString &finishings);

} // namespace corvana
