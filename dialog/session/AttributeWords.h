#pragma once

#include <QtGlobal>

#include "dialog/session/JobAttributes.h"

/// The words that job attributes take, with what people call them.
namespace corvana::attributewords {

using namespace Qt::StringLiterals;
using Word = AllowedValues::Word;

inline constexpr Word kTrueOrFalse[] = {
    {"true"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "On")},
    {"false"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Off")},
};
inline constexpr Word kPagesOnASheet[] = {{"1"_L1}, {"2"_L1}, {"4"_L1},
                                          {"6"_L1}, {"9"_L1}, {"16"_L1}};
inline constexpr Word kBooklets[] = {
    {"no"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Off")},
    {"left"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Bound at the Left")},
    {"right"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Bound at the Right")},
};
inline constexpr Word kSidesByHand[] = {
    {"no"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "One-Sided")},
    {"long-edge"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Long Edge (by Hand)")},
    {"short-edge"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Short Edge (by Hand)")},
};
inline constexpr Word kPutBack[] = {
    {"face-down"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Printed Side Down")},
    {"face-up"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Printed Side Up")},
};
inline constexpr Word kOrdersOnASheet[] = {
    {"btlr"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Up, Then to the Right")},
    {"btrl"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Up, Then to the Left")},
    {"lrbt"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "To the Right, Then Up")},
    {"lrtb"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "To the Right, Then Down")},
    {"rlbt"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "To the Left, Then Up")},
    {"rltb"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "To the Left, Then Down")},
    {"tblr"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Down, Then to the Right")},
    {"tbrl"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Down, Then to the Left")},
};
inline constexpr Word kBorders[] = {
    {"none"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "None")},
    {"single"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Thin Line")},
    {"single-thick"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Thick Line")},
    {"double"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Two Thin Lines")},
    {"double-thick"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Two Thick Lines")},
};
inline constexpr Word kPageSets[] = {
    {"all"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "All")},
    {"even"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Even Pages Only")},
    {"odd"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Odd Pages Only")},
};
inline constexpr Word kOrientations[] = {
    {"3"_L1, "portrait"_L1, QT_TRANSLATE_NOOP("JobAttributes", "Portrait")},
    {"4"_L1, "landscape"_L1, QT_TRANSLATE_NOOP("JobAttributes", "Landscape")},
    {"5"_L1, "reverse landscape"_L1, QT_TRANSLATE_NOOP("JobAttributes", "Reverse Landscape")},
    {"6"_L1, "reverse portrait"_L1, QT_TRANSLATE_NOOP("JobAttributes", "Reverse Portrait")},
};
inline constexpr Word kScalings[] = {
    {"auto"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Automatic")},
    // As soon as one page of a document is larger than the paper, all of its pages fill the
    // printable area, so that smaller ones are enlarged. "auto" does the same, and crops on
    // borderless paper.
    {"auto-fit"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Fit All Pages If One Is Too Large")},
    {"fill"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Fill Paper")},
    {"fit"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Fit to Paper")},
    {"none"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Actual Size")},
};
inline constexpr Word kPositions[] = {
    {"center"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Center")},
    {"top"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Top")},
    {"left"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Left")},
    {"right"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Right")},
    {"top-left"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Top Left")},
    {"top-right"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Top Right")},
    {"bottom"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Bottom")},
    {"bottom-left"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Bottom Left")},
    {"bottom-right"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Bottom Right")},
};
inline constexpr Word kOutputOrders[] = {
    {"normal"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "First Page First")},
    {"reverse"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Last Page First")},
};
inline constexpr Word kHolds[] = {
    {"no-hold"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Print at Once")},
    {"indefinite"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Until It Is Released")},
    {"day-time"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Daytime")},
    {"evening"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Evening")},
    {"night"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Night")},
    {"second-shift"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Second Shift")},
    {"third-shift"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Third Shift")},
    {"weekend"_L1, {}, QT_TRANSLATE_NOOP("JobAttributes", "Weekend")},
};

} // namespace corvana::attributewords
