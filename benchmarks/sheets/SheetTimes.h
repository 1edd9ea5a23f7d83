#pragma once

#include <functional>
#include <optional>
#include <string>

#include <QImage>
#include <QSize>
#include <QTemporaryDir>

#include "benchmarks/support/BestTimes.h"
#include "dialog/preview/PagePictures.h"

// What sheets_benchmark measures, a file for each kind of it, and what these share.

namespace corvana::benchmarks {

constexpr int kRepetitions = 40;    // short, and with other processes in between
constexpr double kMostRatio = 1.5;  ///< of the time that pdftoppm takes
constexpr QSize kUsual(760, 1075);  ///< fills half a screen of 1920 x 1080; Units: pixels
constexpr QSize kLarge(2400, 3394); ///< fills a screen of 3840 x 2160; Units: pixels

/// The sample document again and again. Null where it cannot be made.
QString documentOf(int pages, const QTemporaryDir &folder);

/// Lets events happen until `done`. False when it takes too long.
bool watchUntil(const std::function<bool()> &done);
/// The longest time that the GUI thread worked on one thing. Its own time, because what others do
/// on the machine is not its work. Units: seconds
double longestWork();

/// The time until the picture is there. Units: seconds; nothing when it never is.
std::optional<double> timeOfPicture(PagePictures &pictures, const PageToDraw &page, QImage *drawn);
std::optional<double> timeOfPdftoppm(const PageToDraw &page, const QString &result);

using Measure = std::function<std::optional<double>()>;
/// Registers something that times itself. Units: seconds; nothing is a failure.
void add(const std::string &name, const Measure &measure, int repetitions = kRepetitions);

/// Registers the way from a document to its first sheet, layout and all.
void addFirstSheets(const QTemporaryDir &folder);
/// Prints the ratios; false when one is too high.
bool judgeFirstSheets(const BestTimes &times);

} // namespace corvana::benchmarks
