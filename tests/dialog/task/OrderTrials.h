#pragma once

#include <QByteArray>
#include <QList>

#include "platform/pde/PDEJobValues.h"
#include "tests/dialog/task/TruthSamples.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

/// Jobs whose sheets come in an order of their own, on printers that stack them in one way or the
/// other.

// What PPDs say of the order in which sheets are to leave the printer.
struct Stacking
{
    const char *name;
    QByteArray lines;
    const char *stream; // what the printer takes, where that is not PostScript
};
inline constexpr auto kPdfStream = "application/vnd.cups-pdf application/pdf 0 -";
inline constexpr auto kRasterStream =
    "application/vnd.cups-raster application/postscript 0 rastertops";
inline const QByteArray kBins =
    "*OpenUI *OutputBin: PickOne\n*OrderDependency: 30 AnySetup *OutputBin\n"
    "*DefaultOutputBin: Top\n*OutputBin Top: \"\"\n*OutputBin Rear: \"\"\n"
    "*CloseUI: *OutputBin\n*PageStackOrder Top: Normal\n"
    "*PageStackOrder Rear: Reverse\n";
inline const Stacking kStackings[] = {
    {"face down", "*DefaultOutputOrder: Normal\n", nullptr},
    {"face up", "*DefaultOutputOrder: Reverse\n", nullptr},
    {"face up, PDF", "*DefaultOutputOrder: Reverse\n", kPdfStream},
    {"face up, raster", "*DefaultOutputOrder: Reverse\n", kRasterStream},
    {"of a bin", kBins, nullptr},
};
inline const Stacking &faceUp = kStackings[1];
inline const Stacking &ofABin = kStackings[4];

// Jobs whose sheets come in an order of their own.
struct OrderedJob
{
    Kind kind;
    QList<JobOption> options;
    bool isForAll = false; // else for the printer that turns the order round twice
};
inline const JobOption kFirstPageFirst{u"outputorder"_s, u"normal"_s};
inline const JobOption kLastPageFirst{u"outputorder"_s, u"reverse"_s};
inline const JobOption kBothSides{u"Duplex"_s, u"DuplexNoTumble"_s};
inline const OrderedJob kOrderedJobs[] = {
    {Kind::A4, {}, true},
    {Kind::A4, {kBothSides, kFirstPageFirst}, true},
    {Kind::A4, {kLastPageFirst}, true},
    {Kind::A4, {kFirstPageFirst}},
    {Kind::A4, {kBothSides}},
    {Kind::A4, {kBothSides, kLastPageFirst}},
    {Kind::Single, {kBothSides}},
    {Kind::Single, {kBothSides, kFirstPageFirst}},
    {Kind::Mixed, {{u"number-up"_s, u"2"_s}}},
    {Kind::Mixed, {{u"number-up"_s, u"2"_s}, kBothSides, kFirstPageFirst}},
    {Kind::A4, {{u"booklet"_s, u"left"_s}}},
    {Kind::Mixed, {{u"booklet"_s, u"right"_s}, kFirstPageFirst}},
    {Kind::A4, {{u"repeat"_s, u"2"_s}}},
    {Kind::Mixed, {{u"page-set"_s, u"even"_s}}},
    {Kind::Mixed, {{u"page-set"_s, u"odd"_s}, kBothSides, kLastPageFirst}},
    {Kind::Mixed, {{u"page-ranges"_s, u"2-4"_s}, kFirstPageFirst}},
    {Kind::Several, {kBothSides}},
    {Kind::Several, {kFirstPageFirst}},
    {Kind::PostScript, {}},
    {Kind::PostScript, {kFirstPageFirst}},
    {Kind::Text, {}},
    {Kind::Portrait, {kBothSides}},
    {Kind::Long, {}},
    {Kind::Long, {kBothSides, kFirstPageFirst}},
};

} // namespace corvana::test
