#include "tests/resources/Conditions.h"

#include <algorithm>
#include <array>
#include <utility>

namespace corvana::test {

using namespace Qt::StringLiterals;

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
    return ppd.text("QXMediaType", "HagakiUra").startsWith("Hagaki"_L1);
}

const char *resolutionKeyword(Printer printer)
{
    return printer.english.has("QXResolution") ? "QXResolution" : "Resolution";
}

bool forbidsTonerSave(const QString &resolution)
{
    return resolution == "1200dpi"_L1 || resolution == "2400x600dpi"_L1;
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
    const QStringList known{u"Normal"_s, u"Vivid"_s, u"None"_s};
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
    return {u"%1=%2"_s.arg(QLatin1StringView(keyword), QLatin1StringView(choice)),
            [=](Printer p) { return p.english.offers(keyword, choice); }};
}

Condition hasChoices(const char *keyword, int count)
{
    return {u"%1 has %2 choices"_s.arg(QLatin1StringView(keyword)).arg(count),
            [=](Printer p) { return p.english.choices(keyword).size() == count; }};
}

QList<Condition> conditionTable()
{
    return {
        {u"model 2"_s, isModel<2>},
        {u"model 3"_s, isModel<3>},
        {u"model 4"_s, isModel<4>},
        {u"model 5"_s, isModel<5>},

        // Binding of options to controls
        offers("QXOutput", "FAX"),
        offers("QXOutput", "None"),
        {u"the driver matches colors"_s,
         [](Printer p) { return p.english.hasAttribute("APSupportsCustomColorMatching"); }},
        offers("AP_ColorMatchingMode", "AP_ApplicationColorMatching"),
        has("MirrorPrint"),
        has("QXBiDir"),
        offers("QXMediaType", "PlainDuplex"),
        {u"HagakiUra with Glossy in its place"_s,
         [](Printer p) {
             return p.english.offers("QXMediaType", "HagakiUra") &&
                    p.english.offers("QXMediaType", "Glossy");
         }},
        {u"HagakiUra without Glossy"_s,
         [](Printer p) {
             return p.english.offers("QXMediaType", "HagakiUra") &&
                    !p.english.offers("QXMediaType", "Glossy");
         }},
        {u"HagakiUra is listed in Japanese only"_s,
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
        {u"no resolution"_s, [](Printer p) { return !p.english.has(resolutionKeyword(p)); }},
        has("TonerSaveMode"),
        {u"a resolution forbids toner save"_s, anyResolutionForbidsTonerSave},
        {u"the default resolution forbids toner save"_s,
         [](Printer p) { return forbidsTonerSave(p.english.defaultChoice(resolutionKeyword(p))); }},
        {u"a resolution forbids the toner save that is not there"_s,
         [](Printer p) {
             return anyResolutionForbidsTonerSave(p) && !p.english.has("TonerSaveMode");
         }},
        has("QXImproveOutput"),
        {u"QXFixIntensity and QXLessPaperCurl apart"_s,
         [](Printer p) {
             return p.english.has("QXFixIntensity") && p.english.has("QXLessPaperCurl");
         }},
        {u"QXReduceGhost is the first improvement"_s,
         [](Printer p) { return isFirstImprovement(p, "QXReduceGhost"); }},
        {u"QXFixIntensity is the first improvement"_s,
         [](Printer p) { return isFirstImprovement(p, "QXFixIntensity"); }},
        {u"QXLessPaperCurl is the only improvement"_s,
         [](Printer p) { return isFirstImprovement(p, "QXLessPaperCurl"); }},
        {u"no improvement"_s, [](Printer p) { return countOf(p, kImprovements) == 0; }},
        has("QXReduceGhost"),
        has("QXQuietMode"),
        has("QXSkipBlank"),

        // Density and sleep time
        {u"density -6 to 6"_s, [](Printer p) { return hasBounds(density(p), -6, 6); }},
        {u"density with bounds of its own"_s,
         [](Printer p) { return density(p) && !hasBounds(density(p), -6, 6); }},
        {u"density cannot be lowered"_s,
         [](Printer p) { return density(p) && density(p)->minimum.custom_int == 0; }},
        {u"density has a choice for each step"_s,
         [](Printer p) {
             return !p.english.takesNumbers("QXDensityAdjustment") &&
                    p.english.choices("QXDensityAdjustment").size() > 1;
         }},
        {u"no density"_s, [](Printer p) { return !p.english.has("QXDensityAdjustment"); }},
        {u"sleep time 1 to 99"_s, [](Printer p) { return hasBounds(sleepTime(p), 1, 99); }},
        {u"sleep time with bounds of its own"_s,
         [](Printer p) { return sleepTime(p) && !hasBounds(sleepTime(p), 1, 99); }},
        {u"sleep time of a model before 4"_s,
         [](Printer p) { return sleepTime(p) && p.english.modelNumber() < 4; }},
        {u"the usual sleep time is out of bounds"_s, usualSleepTimeIsOutOfBounds},
        {u"sleep time is a number that is not called Time"_s,
         [](Printer p) { return p.english.takesNumbers("QXSleepTime") && !sleepTime(p); }},
        {u"sleep time is True or False"_s,
         [](Printer p) {
             return p.english.offers("QXSleepTime", "True") &&
                    p.english.offers("QXSleepTime", "False");
         }},
        {u"no sleep time"_s, [](Printer p) { return !p.english.has("QXSleepTime"); }},

        // Media, paper, two-sided printing
        offers("QXMediaType", "BOND"),
        offers("QXMediaType", "PostCard"),
        offers("QXMediaType", "Thicker"),
        offers("QXMediaType", "Glossy"),
        offers("QXMediaType", "Label"),
        offers("QXMediaType", "EnvThin"),
        offers("QXMediaType", "EnvThick"),
        has("Duplex"),
        {u"envelopes conflict with two-sided printing"_s,
         [](Printer p) { return p.english.conflict("QXMediaType", {u"Env"_s}, "Duplex"); }},
        {u"no conflicts"_s, [](Printer p) { return p.english.ppd()->num_consts == 0; }},
        offers("PageSize", "Postcard"),
        offers("PageSize", "Letter"),
        {u"the default paper is Letter"_s,
         [](Printer p) { return p.english.defaultChoice("PageSize") == "Letter"_L1; }},
        {u"Letter is a custom size only"_s,
         [](Printer p) {
             return !p.english.offers("PageSize", "Letter") && customSizesInclude(p, 792);
         }},
        {u"Letter is no size at all"_s,
         [](Printer p) {
             return !p.english.offers("PageSize", "Letter") && !customSizesInclude(p, 792);
         }},
        {u"custom sizes"_s, [](Printer p) { return p.english.ppd()->variable_sizes != 0; }},
        {u"Legal is too long for a custom size"_s,
         [](Printer p) { return p.english.ppd()->variable_sizes && !customSizesInclude(p, 1008); }},

        // The Color Setting panel
        {u"monochrome"_s, [](Printer p) { return p.english.ppd()->color_device == 0; }},
        has("QXColorMatching"),
        offers("QXColorMatching", "Vivid"),
        offers("QXColorMatching", "None"),
        {u"QXColorMatching beyond Normal, Vivid and None"_s, hasUnusualColorMatching},
        has("QXEnhanceBlkPrt"),
        has("QXGray"),
        has("QXSlowDrying"),
        {u"all effects"_s, [](Printer p) { return countOf(p, kEffects) == 6; }},
        {u"some effects"_s,
         [](Printer p) { return countOf(p, kEffects) > 0 && countOf(p, kEffects) < 6; }},
        {u"no effects"_s, [](Printer p) { return countOf(p, kEffects) == 0; }},
    };
}

} // namespace

const QList<Condition> &conditions()
{
    static const QList<Condition> table = conditionTable();
    return table;
}

} // namespace corvana::test
