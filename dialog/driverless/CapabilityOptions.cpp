#include "dialog/driverless/CapabilityOptions.h"

#include <algorithm>
#include <iterator>

#include <cups/cups.h>
#include <cups/pwg.h>

#include <QLocale>
#include <QSet>

#include "dialog/session/PaperSize.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLongestChoice = 40;

// What most printers take, for those that do not say, or only between which limits.
constexpr QLatin1StringView kUsualSizes[] = {
    "iso_a4_210x297mm"_L1,         "na_letter_8.5x11in"_L1,       "na_legal_8.5x14in"_L1,
    "na_executive_7.25x10.5in"_L1, "na_ledger_11x17in"_L1,        "iso_a3_297x420mm"_L1,
    "iso_a5_148x210mm"_L1,         "iso_a6_105x148mm"_L1,         "jis_b4_257x364mm"_L1,
    "jis_b5_182x257mm"_L1,         "jpn_hagaki_100x148mm"_L1,     "na_index-4x6_4x6in"_L1,
    "na_index-3x5_3x5in"_L1,       "na_number-10_4.125x9.5in"_L1, "iso_dl_110x220mm"_L1,
    "iso_c5_162x229mm"_L1,         "na_monarch_3.875x7.5in"_L1,
};

QLatin1StringView usualSizeHere()
{
    return QLocale().measurementSystem() == QLocale::ImperialUSSystem ? "na_letter_8.5x11in"_L1
                                                                      : "iso_a4_210x297mm"_L1;
}

// Keywords of choices: each only once, without regard to case, as libcups looks them up.
class ChoiceKeywords
{
public:
    // "photographic-glossy" becomes "PhotographicGlossy". A name without any letter of ASCII is
    // numbered.
    QByteArray of(const QString &value)
    {
        QByteArray keyword;
        bool upper = true;
        for (const QChar c : value) {
            const bool plain =
                (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9');
            if (plain)
                keyword += static_cast<char>((upper ? c.toUpper() : c).unicode());
            upper = !plain;
        }
        return unique(keyword.isEmpty() ? QByteArray("Choice") : keyword);
    }

    // A variant of a paper's name is set off by a dot.
    QByteArray unique(const QByteArray &wanted, const QByteArray &separator = {})
    {
        QByteArray keyword = wanted.left(kLongestChoice);
        for (int n = 2; m_taken.contains(keyword.toLower()); ++n) {
            const QByteArray number = separator + QByteArray::number(n);
            keyword = wanted.left(kLongestChoice - number.size()) + number;
        }
        m_taken.insert(keyword.toLower());
        return keyword;
    }

private:
    // "Custom" is the choice of custom values, and "Unknown" no choice at all.
    QSet<QByteArray> m_taken{"custom", "unknown"};
};

QByteArray points(int hundredthsOfMillimetre)
{
    return QByteArray::number(pointsOfHundredths(hundredthsOfMillimetre), 'f', 2);
}

QByteArray pageSizeCode(QSize size)
{
    return "<</PageSize[" + points(size.width()) + ' ' + points(size.height()) +
           "]/ImagingBBox null>>setpagedevice";
}

// The name that PPDs give a paper: "A4", "Env10", "210x270mm". A paper that differs from a known
// one by about a point has no right to its name.
QByteArray pageSizeKeyword(QSize size)
{
    constexpr int kSameSize = 30;
    const bool turned = size.width() > size.height();
    const QSize upright = turned ? size.transposed() : size;
    const pwg_media_t *media = pwgMediaForSize(upright.width(), upright.height());
    const bool known = media && media->ppd &&
                       std::abs(media->width - upright.width()) <= kSameSize &&
                       std::abs(media->length - upright.height()) <= kSameSize;
    const auto millimetres = [](int length) { return QByteArray::number(qRound(length / 100.0)); };
    const QByteArray name =
        known ? QByteArray(media->ppd)
              : millimetres(upright.width()) + 'x' + millimetres(upright.height()) + "mm";
    return turned ? name + "Rotated" : name;
}

// The papers that can be chosen by name.
QList<MediaSize> papers(const PrinterCapabilities &printer)
{
    QList<MediaSize> sizes = printer.sizes;
    if (!sizes.isEmpty())
        return sizes;
    const auto &limits = printer.customSizes;
    const auto add = [&](const QString &name) {
        const QSize dimension = dimensionOfMedia(name);
        const bool fits = !limits || limits->contains(dimension);
        const bool known = std::any_of(sizes.cbegin(), sizes.cend(), [&](const MediaSize &size) {
            return size.dimension == dimension;
        });
        if (!dimension.isEmpty() && fits && !known)
            sizes +=
                MediaSize{limits ? customMediaName(dimension) : name, dimension, printer.margins};
    };
    add(printer.defaultSize);
    for (const QString &name : printer.readySizes)
        add(name);
    for (const QLatin1StringView name : kUsualSizes)
        add(name);
    if (sizes.isEmpty())
        add(customMediaName(limits->maximum));
    return sizes;
}

qsizetype usualPaper(const PrinterCapabilities &printer, const QList<CapabilityChoice> &choices)
{
    const auto find = [&](QSize dimension) {
        const auto found =
            std::find_if(choices.cbegin(), choices.cend(), [&](const CapabilityChoice &choice) {
                return choice.dimension == dimension;
            });
        return found == choices.cend() ? -1 : std::distance(choices.cbegin(), found);
    };
    // The size of the same name first: two of them may measure the same.
    for (qsizetype i = 0; i < choices.size(); ++i) {
        if (!printer.defaultSize.isEmpty() && choices.at(i).value == printer.defaultSize)
            return i;
    }
    for (const QString &name : {printer.defaultSize, QString(usualSizeHere())}) {
        const QSize dimension = dimensionOfMedia(name);
        if (const qsizetype index = find(dimension); !dimension.isEmpty() && index >= 0)
            return index;
    }
    return 0;
}

// What a custom size says of itself is its measures, unless these are those of a known paper.
CapabilityText paperText(const MediaSize &size)
{
    const QLatin1StringView attribute{"media"};
    if (size.name.startsWith("custom_"_L1)) {
        for (const QLatin1StringView usual : kUsualSizes) {
            if (dimensionOfMedia(usual) == size.dimension)
                return capabilityText(attribute, usual);
        }
    }
    return capabilityText(attribute, size.name);
}

CapabilityOption pageSize(const PrinterCapabilities &printer)
{
    CapabilityOption option{"PageSize", "media", optionTitle("PageSize"_L1), {}};
    ChoiceKeywords keywords;
    const QList<MediaSize> sizes = papers(printer);
    const auto add = [&](const MediaSize &size, const MediaMargins &margins,
                         const CapabilityText &text) {
        QByteArray keyword = pageSizeKeyword(size.dimension);
        // Where every paper is printed up to its edges, none has to say so.
        if (margins.isBorderless() && !printer.margins.isBorderless())
            keyword += ".Fullbleed";
        option.choices += CapabilityChoice{keywords.unique(keyword, "."), text,           size.name,
                                           pageSizeCode(size.dimension),  size.dimension, margins};
    };
    for (const MediaSize &size : sizes) {
        const CapabilityText text = paperText(size);
        add(size, size.margins, text);
        if (size.alsoBorderless && printer.mediaDetails)
            add(size, {0, 0, 0, 0}, borderless(text));
    }
    option.usual = usualPaper(printer, option.choices);
    return option;
}

// One choice of an option whose choices have names of their own in PPDs.
struct KnownChoice
{
    const char *value;
    const char *keyword;
    const char *code;
};

constexpr KnownChoice kSides[] = {
    {"one-sided", "None", "<</Duplex false>>setpagedevice"},
    {"two-sided-long-edge", "DuplexNoTumble", "<</Duplex true/Tumble false>>setpagedevice"},
    {"two-sided-short-edge", "DuplexTumble", "<</Duplex true/Tumble true>>setpagedevice"},
};

// Of the PWG's colour spaces, 18 is grey and 19 is RGB, 3 is black ink.
constexpr KnownChoice kColorModes[] = {
    {"auto", "Auto", "<</cupsColorSpace 19/cupsBitsPerColor 8>>setpagedevice"},
    {"color", "RGB", "<</cupsColorSpace 19/cupsBitsPerColor 8>>setpagedevice"},
    {"monochrome", "Gray", "<</cupsColorSpace 18/cupsBitsPerColor 8>>setpagedevice"},
    {"bi-level", "Black", "<</cupsColorSpace 3/cupsBitsPerColor 1>>setpagedevice"},
};

CapabilityOption sides(const PrinterCapabilities &printer)
{
    CapabilityOption option{"Duplex", "sides", optionTitle("Duplex"_L1), {}};
    for (const KnownChoice &known : kSides) {
        const QString value = QString::fromLatin1(known.value);
        const bool listed = printer.sides.isEmpty() || printer.sides.contains(value);
        // What is not printed on both sides is printed on one, whether a printer lists that or not.
        if (!listed && !option.choices.isEmpty())
            continue;
        if (value == printer.defaultSides)
            option.usual = option.choices.size();
        option.choices += CapabilityChoice{known.keyword, capabilityText("sides"_L1, value),
                                           listed ? value : QString(), known.code};
    }
    return option;
}

CapabilityOption colorMode(const PrinterCapabilities &printer)
{
    CapabilityOption option{"ColorModel", "print-color-mode", optionTitle("ColorModel"_L1), {}};
    const bool unknown = printer.colorModes.isEmpty();
    for (const KnownChoice &known : kColorModes) {
        const QString value = QString::fromLatin1(known.value);
        const bool usual = value == "color"_L1 || value == "monochrome"_L1;
        if (!printer.colorModes.contains(value) && !(unknown && usual))
            continue;
        if (value == printer.defaultColorMode)
            option.usual = option.choices.size();
        option.choices += CapabilityChoice{
            known.keyword, capabilityText("print-color-mode"_L1, value), value, known.code};
    }
    return option;
}

QByteArray resolutionCode(QSize resolution)
{
    if (resolution.isEmpty())
        return {};
    return "<</HWResolution[" + QByteArray::number(resolution.width()) + ' ' +
           QByteArray::number(resolution.height()) + "]>>setpagedevice";
}

QByteArray resolutionName(QSize resolution)
{
    const QByteArray width = QByteArray::number(resolution.width());
    if (resolution.width() == resolution.height())
        return width + "dpi";
    return width + 'x' + QByteArray::number(resolution.height()) + "dpi";
}

CapabilityOption quality(const PrinterCapabilities &printer)
{
    constexpr const char *kKeywords[] = {"Draft", "Normal", "High"};
    CapabilityOption option{
        "cupsPrintQuality", "print-quality", optionTitle("cupsPrintQuality"_L1), {}};
    QList<QSize> resolutions = printer.resolutions;
    std::sort(resolutions.begin(), resolutions.end(), [](QSize a, QSize b) {
        return std::pair(a.width(), a.height()) < std::pair(b.width(), b.height());
    });
    const QSize lowest = resolutions.value(0);
    const QSize highest = resolutions.isEmpty() ? QSize() : resolutions.constLast();
    const QSize normal = printer.defaultResolution.isEmpty()
                             ? resolutions.value(resolutions.size() / 2)
                             : printer.defaultResolution;
    QList<int> qualities = printer.qualities;
    std::sort(qualities.begin(), qualities.end());
    for (const int value : qualities) {
        if (value == (printer.defaultQuality ? printer.defaultQuality : int(IPP_QUALITY_NORMAL)))
            option.usual = option.choices.size();
        QSize resolution = normal;
        if (value == IPP_QUALITY_DRAFT)
            resolution = lowest;
        else if (value == IPP_QUALITY_HIGH)
            resolution = highest;
        option.choices +=
            CapabilityChoice{kKeywords[value - IPP_QUALITY_DRAFT],
                             capabilityText("print-quality"_L1, QString::number(value)),
                             QString::number(value), resolutionCode(resolution)};
    }
    return option;
}

// For printers whose qualities are not known: what "quality" would set is chosen as such.
CapabilityOption resolution(const PrinterCapabilities &printer)
{
    CapabilityOption option{"Resolution", "printer-resolution", optionTitle("Resolution"_L1), {}};
    ChoiceKeywords keywords;
    for (const QSize value : printer.resolutions) {
        if (value == printer.defaultResolution)
            option.usual = option.choices.size();
        const QString text =
            QString::fromLatin1(resolutionName(value)).replace(u"dpi"_s, u" dpi"_s);
        option.choices += CapabilityChoice{keywords.unique(resolutionName(value)),
                                           {text, text, text},
                                           QString::fromLatin1(resolutionName(value)),
                                           resolutionCode(value)};
    }
    return option;
}

// An option whose choices are named after the printer's keywords. A printer that does not say which
// is its default keeps it, unless the user picks another one.
CapabilityOption named(const char *keyword, QLatin1StringView attribute, const QStringList &values,
                       const QString &usual)
{
    CapabilityOption option{
        keyword, attribute.toString().toLatin1(), optionTitle(QLatin1StringView(keyword)), {}};
    ChoiceKeywords keywords;
    if (usual.isEmpty() && values.size() > 1)
        option.choices += CapabilityChoice{
            keywords.of(u"printer-default"_s), optionTitle("PrinterDefault"_L1), {}};
    for (const QString &value : values) {
        if (value == usual)
            option.usual = option.choices.size();
        option.choices +=
            CapabilityChoice{keywords.of(value), capabilityText(attribute, value), value};
    }
    return option;
}

// Finishings that exclude each other are choices of one option.
CapabilityOption finishing(const char *keyword, QLatin1StringView name,
                           const PrinterCapabilities &printer)
{
    const QLatin1StringView attribute{"finishings"};
    CapabilityOption option{keyword, "finishings", optionTitle(QLatin1StringView(keyword)), {}};
    ChoiceKeywords keywords;
    const QString none = u"none"_s;
    option.choices += CapabilityChoice{keywords.of(none), capabilityText(attribute, none), {}};
    for (const int value : printer.finishings) {
        const QString finishing = QString::fromUtf8(ippEnumString("finishings", value));
        if (finishing != name && !finishing.startsWith(name + "-"_L1))
            continue;
        option.choices += CapabilityChoice{
            keywords.of(finishing), capabilityText(attribute, finishing), QString::number(value)};
    }
    return option;
}

} // namespace

QList<CapabilityOption> capabilityOptions(const PrinterCapabilities &printer)
{
    if (printer.passesFilesOn)
        return {};
    QList<CapabilityOption> options{
        pageSize(printer),
        sides(printer),
        colorMode(printer),
        quality(printer),
        named("MediaType", "media-type"_L1, printer.mediaTypes, printer.defaultMediaType),
        named("InputSlot", "media-source"_L1, printer.mediaSources, printer.defaultMediaSource),
        named("OutputBin", "output-bin"_L1, printer.outputBins, printer.defaultOutputBin),
        finishing("StapleLocation", "staple"_L1, printer),
        finishing("PunchMedia", "punch"_L1, printer),
        finishing("FoldType", "fold"_L1, printer),
        // Its default may be two pages, one in front and one behind: left alone, it stays that.
        named("JobSheets", "job-sheets"_L1, printer.jobSheets, {}),
    };
    const bool choosesQuality = options.at(3).choices.size() > 1;
    if (!choosesQuality)
        options += resolution(printer);
    options.removeIf([](const CapabilityOption &option) {
        // The only colour mode and the only resolution are no choice, but filters have to know
        // them.
        const bool filtersAsk = option.keyword == "ColorModel" || option.keyword == "Resolution";
        return option.keyword != "PageSize" && option.choices.size() < (filtersAsk ? 1 : 2);
    });
    return options;
}

} // namespace corvana
