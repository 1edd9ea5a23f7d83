#include "tests/resources/Conditions.h"

#include <algorithm>
#include <array>
#include <utility>

namespace corvana::test {

namespace {

using Printer = const SamplePrinter &;

constexpr std::array kEffects{"QXBrightness", "QXContrast", "QXRed",
                              "QXGreen",      "QXBlue",     "QXSaturation"};
constexpr std::array kImprovements{"QXImproveOutput", "QXReduceGhost", "QXFixIntensity",
                                   "QXLessPaperCurl"};

template <int number> bool isModel(Printer printer)
{
    return printer.english.modelNumber() == number;
}

bool startsWithHagaki(const SamplePpd &ppd)
{
    return ppd.text("QXMediaType", "HagakiUra").startsWith(QLatin1StringView("Hagaki"));
}

const char *resolutionKeyword(Printer printer)
{
    return printer.english.has("QXResolution") ? "QXResolution" : "Resolution";
}

bool forbidsTonerSave(const QString &resolution)
{
    return resolution == QLatin1StringView("1200dpi") ||
           resolution == QLatin1StringView("2400x600dpi");
}

bool anyResolutionForbidsTonerSave(Printer printer)
{
    const QStringList offered = printer.english.choices(resolutionKeyword(printer));
    return std::any_of(offered.begin(), offered.end(), forbidsTonerSave);
}

template <size_t size>
qsizetype countOf(Printer printer, const std::array<const char *, size> &keywords)
{
    return std::count_if(keywords.begin(), keywords.end(),
                         [&](const char *keyword) { return printer.english.has(keyword); });
}

// The improvement that the panels come to first; they look for them in this order.
bool isFirstImprovement(Printer printer, const char *keyword)
{
    const auto first = std::find_if(kImprovements.begin(), kImprovements.end(),
                                    [&](const char *k) { return printer.english.has(k); });
    return first != kImprovements.end() && qstrcmp(*first, keyword) == 0;
}

bool hasBounds(const ppd_cparam_t *number, int minimum, int maximum)
{
    return number && number->minimum.custom_int == minimum && number->maximum.custom_int == maximum;
}

const ppd_cparam_t *density(Printer printer)
{
    return printer.english.number("QXDensityAdjustment", "Density");
}

const ppd_cparam_t *sleepTime(Printer printer)
{
    return printer.english.number("QXSleepTime", "Time");
}

bool usualSleepTimeIsOutOfBounds(Printer printer)
{
    const ppd_cparam_t *time = sleepTime(printer);
    const int usual = printer.english.modelNumber() < 4 ? 5 : 3;
    return time && (usual < time->minimum.custom_int || usual > time->maximum.custom_int);
}

// Letter is 612 by 792 points, Legal 612 by 1008.
bool customSizesInclude(Printer printer, float height)
{
    const ppd_file_t *ppd = printer.english.ppd();
    return ppd->variable_sizes && ppd->custom_min[0] <= 612.0F && ppd->custom_max[0] >= 612.0F &&
           ppd->custom_min[1] <= height && ppd->custom_max[1] >= height;
}

bool hasUnusualColorMatching(Printer printer)
{
    const QStringList known{QStringLiteral("Normal"), QStringLiteral("Vivid"),
                            QStringLiteral("None")};
    const QStringList offered = printer.english.choices("QXColorMatching");
    return std::any_of(offered.begin(), offered.end(),
                       [&](const QString &choice) { return !known.contains(choice); });
}

Condition has(const char *keyword)
{
    return {QLatin1StringView(keyword), [=](Printer p) { return p.english.has(keyword); }};
}

Condition offers(const char *keyword, const char *choice)
{
    return {QStringLiteral("%1=%2").arg(QLatin1StringView(keyword), QLatin1StringView(choice)),
            [=](Printer p) { return p.english.offers(keyword, choice); }};
}

Condition hasChoices(const char *keyword, int count)
{
    return {QStringLiteral("%1 has %2 choices").arg(QLatin1StringView(keyword)).arg(count),
            [=](Printer p) { return p.english.choices(keyword).size() == count; }};
}

QList<Condition> conditionTable()
{
    return {
        {QStringLiteral("model 2"), isModel<2>},
        {QStringLiteral("model 3"), isModel<3>},
        {QStringLiteral("model 4"), isModel<4>},
        {QStringLiteral("model 5"), isModel<5>},

        // Binding of options to controls
        offers("QXOutput", "FAX"),
        offers("QXOutput", "None"),
        {QStringLiteral("the driver matches colors"),
         [](Printer p) { return p.english.hasAttribute("APSupportsCustomColorMatching"); }},
        offers("AP_ColorMatchingMode", "AP_ApplicationColorMatching"),
        has("MirrorPrint"),
        has("QXBiDir"),
        offers("QXMediaType", "PlainDuplex"),
        {QStringLiteral("HagakiUra with Glossy in its place"),
         [](Printer p) {
             return p.english.offers("QXMediaType", "HagakiUra") &&
                    p.english.offers("QXMediaType", "Glossy");
         }},
        {QStringLiteral("HagakiUra without Glossy"),
         [](Printer p) {
             return p.english.offers("QXMediaType", "HagakiUra") &&
                    !p.english.offers("QXMediaType", "Glossy");
         }},
        {QStringLiteral("HagakiUra is listed in Japanese only"),
         [](Printer p) {
             return startsWithHagaki(p.english) && startsWithHagaki(p.chinese) &&
                    p.japanese.offers("QXMediaType", "HagakiUra") && !startsWithHagaki(p.japanese);
         }},
        hasChoices("QXColorMatching", 2),
        hasChoices("QXColorMatching", 3),
        hasChoices("QXColorMatching", 4),
        hasChoices("QXQuietMode", 2),
        hasChoices("QXQuietMode", 3),

        // The roster of the Print Setting panel
        has("QXMonoColor"),
        has("QXInputSlot"),
        has("QXResolution"),
        has("Resolution"),
        {QStringLiteral("no resolution"),
         [](Printer p) { return !p.english.has(resolutionKeyword(p)); }},
        has("TonerSaveMode"),
        {QStringLiteral("a resolution forbids toner save"), anyResolutionForbidsTonerSave},
        {QStringLiteral("the default resolution forbids toner save"),
         [](Printer p) { return forbidsTonerSave(p.english.defaultChoice(resolutionKeyword(p))); }},
        {QStringLiteral("a resolution forbids the toner save that is not there"),
         [](Printer p) {
             return anyResolutionForbidsTonerSave(p) && !p.english.has("TonerSaveMode");
         }},
        has("QXImproveOutput"),
        {QStringLiteral("QXFixIntensity and QXLessPaperCurl apart"),
         [](Printer p) {
             return p.english.has("QXFixIntensity") && p.english.has("QXLessPaperCurl");
         }},
        {QStringLiteral("QXReduceGhost is the first improvement"),
         [](Printer p) { return isFirstImprovement(p, "QXReduceGhost"); }},
        {QStringLiteral("QXFixIntensity is the first improvement"),
         [](Printer p) { return isFirstImprovement(p, "QXFixIntensity"); }},
        {QStringLiteral("QXLessPaperCurl is the only improvement"),
         [](Printer p) { return isFirstImprovement(p, "QXLessPaperCurl"); }},
        {QStringLiteral("no improvement"),
         [](Printer p) { return countOf(p, kImprovements) == 0; }},
        has("QXReduceGhost"),
        has("QXQuietMode"),
        has("QXSkipBlank"),

        // Density and sleep time
        {QStringLiteral("density -6 to 6"), [](Printer p) { return hasBounds(density(p), -6, 6); }},
        {QStringLiteral("density with bounds of its own"),
         [](Printer p) { return density(p) && !hasBounds(density(p), -6, 6); }},
        {QStringLiteral("density cannot be lowered"),
         [](Printer p) { return density(p) && density(p)->minimum.custom_int == 0; }},
        {QStringLiteral("density has a choice for each step"),
         [](Printer p) {
             return !p.english.takesNumbers("QXDensityAdjustment") &&
                    p.english.choices("QXDensityAdjustment").size() > 1;
         }},
        {QStringLiteral("no density"),
         [](Printer p) { return !p.english.has("QXDensityAdjustment"); }},
        {QStringLiteral("sleep time 1 to 99"),
         [](Printer p) { return hasBounds(sleepTime(p), 1, 99); }},
        {QStringLiteral("sleep time with bounds of its own"),
         [](Printer p) { return sleepTime(p) && !hasBounds(sleepTime(p), 1, 99); }},
        {QStringLiteral("sleep time of a model before 4"),
         [](Printer p) { return sleepTime(p) && p.english.modelNumber() < 4; }},
        {QStringLiteral("the usual sleep time is out of bounds"), usualSleepTimeIsOutOfBounds},
        {QStringLiteral("sleep time is a number that is not called Time"),
         [](Printer p) { return p.english.takesNumbers("QXSleepTime") && !sleepTime(p); }},
        {QStringLiteral("sleep time is True or False"),
         [](Printer p) {
             return p.english.offers("QXSleepTime", "True") &&
                    p.english.offers("QXSleepTime", "False");
         }},
        {QStringLiteral("no sleep time"), [](Printer p) { return !p.english.has("QXSleepTime"); }},

        // Media, paper, two-sided printing
        offers("QXMediaType", "BOND"),
        offers("QXMediaType", "PostCard"),
        offers("QXMediaType", "Thicker"),
        offers("QXMediaType", "Glossy"),
        offers("QXMediaType", "Label"),
        offers("QXMediaType", "EnvThin"),
        offers("QXMediaType", "EnvThick"),
        has("Duplex"),
        {QStringLiteral("envelopes conflict with two-sided printing"),
         [](Printer p) {
             return p.english.conflict("QXMediaType", {QStringLiteral("Env")}, "Duplex");
         }},
        {QStringLiteral("no conflicts"),
         [](Printer p) { return p.english.ppd()->num_consts == 0; }},
        offers("PageSize", "Postcard"),
        offers("PageSize", "Letter"),
        {QStringLiteral("the default paper is Letter"),
         [](Printer p) {
             return p.english.defaultChoice("PageSize") == QLatin1StringView("Letter");
         }},
        {QStringLiteral("Letter is a custom size only"),
         [](Printer p) {
             return !p.english.offers("PageSize", "Letter") && customSizesInclude(p, 792);
         }},
        {QStringLiteral("Letter is no size at all"),
         [](Printer p) {
             return !p.english.offers("PageSize", "Letter") && !customSizesInclude(p, 792);
         }},
        {QStringLiteral("custom sizes"),
         [](Printer p) { return p.english.ppd()->variable_sizes != 0; }},
        {QStringLiteral("Legal is too long for a custom size"),
         [](Printer p) { return p.english.ppd()->variable_sizes && !customSizesInclude(p, 1008); }},

        // The Color Setting panel
        {QStringLiteral("monochrome"),
         [](Printer p) { return p.english.ppd()->color_device == 0; }},
        has("QXColorMatching"),
        offers("QXColorMatching", "Vivid"),
        offers("QXColorMatching", "None"),
        {QStringLiteral("QXColorMatching beyond Normal, Vivid and None"), hasUnusualColorMatching},
        has("QXEnhanceBlkPrt"),
        has("QXGray"),
        has("QXSlowDrying"),
        {QStringLiteral("all effects"), [](Printer p) { return countOf(p, kEffects) == 6; }},
        {QStringLiteral("some effects"),
         [](Printer p) { return countOf(p, kEffects) > 0 && countOf(p, kEffects) < 6; }},
        {QStringLiteral("no effects"), [](Printer p) { return countOf(p, kEffects) == 0; }},
    };
}

} // namespace

const QList<Condition> &conditions()
{
    static const QList<Condition> table = conditionTable();
    return table;
}

} // namespace corvana::test
