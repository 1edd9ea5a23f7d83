#include "dialog/driverless/CapabilityPapers.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <optional>
#include <utility>

#include <cups/cups.h>
#include <cups/pwg.h>

#include "dialog/driverless/AttributeReading.h"
#include "dialog/session/PaperSize.h"

namespace corvana {

using namespace Qt::StringLiterals;

using namespace attribute;

namespace {

// Units: hundredths of a millimetre.
constexpr int kLargestMargin = 10'000;
// Sizes are stated in millimetres or inches, so that the same one may be off by rounding.
constexpr int kTolerance = 5;

bool isSame(QSize one, QSize other)
{
    return std::abs(one.width() - other.width()) <= kTolerance &&
           std::abs(one.height() - other.height()) <= kTolerance;
}

// A size as "media-size" states it.
MediaSizeRange sizeOf(ipp_t *mediaSize)
{
    const auto [narrowest, widest] = rangeOf(mediaSize, "x-dimension");
    const auto [shortest, longest] = rangeOf(mediaSize, "y-dimension");
    return {{narrowest, shortest}, {widest, longest}};
}

std::optional<MediaMargins> marginsOf(ipp_t *collection)
{
    const auto margin = [&](const char *name) {
        ipp_attribute_t *attribute = find(collection, name);
        return isNumber(attribute) ? ippGetInteger(attribute, 0) : -1;
    };
    const MediaMargins margins{margin("media-left-margin"), margin("media-right-margin"),
                               margin("media-top-margin"), margin("media-bottom-margin")};
    const auto sane = [](int length) { return length >= 0 && length <= kLargestMargin; };
    if (!sane(margins.left) || !sane(margins.right) || !sane(margins.top) || !sane(margins.bottom))
        return std::nullopt;
    return margins;
}

MediaMargins larger(const MediaMargins &a, const MediaMargins &b)
{
    return {std::max(a.left, b.left), std::max(a.right, b.right), std::max(a.top, b.top),
            std::max(a.bottom, b.bottom)};
}

// One paper of "media-size-supported" or "media-col-database".
struct KnownSize
{
    MediaSizeRange size;
    std::optional<MediaMargins> margins;

    bool isRange() const { return size.minimum != size.maximum; }
};

QList<KnownSize> sizesOf(ipp_t *attributes)
{
    QList<KnownSize> sizes;
    ipp_attribute_t *database = find(attributes, "media-col-database");
    for (int i = 0; i < valueCount(database); ++i) {
        ipp_t *media = collectionAt(database, i);
        ipp_attribute_t *size = find(media, "media-size");
        sizes += KnownSize{sizeOf(collectionAt(size, 0)), marginsOf(media)};
    }
    ipp_attribute_t *supported = find(attributes, "media-size-supported");
    for (int i = 0; i < valueCount(supported); ++i)
        sizes += KnownSize{sizeOf(collectionAt(supported, i)), std::nullopt};
    sizes.removeIf([](const KnownSize &known) {
        return !isPaper(known.size.minimum) || !isPaper(known.size.maximum) ||
               !known.size.contains(known.size.minimum);
    });
    return sizes;
}

// The margins of all papers, and whether they may be nothing.
struct SupportedMargins
{
    MediaMargins usual{};
    bool alsoBorderless = false;
};

SupportedMargins supportedMargins(ipp_t *attributes)
{
    SupportedMargins margins{{}, true};
    const auto read = [&](const char *name, int &usual) {
        QList<int> values = numbersOf(attributes, name);
        values.removeIf([](int value) { return value < 0 || value > kLargestMargin; });
        if (!values.isEmpty())
            usual = *std::max_element(values.cbegin(), values.cend());
        if (!values.contains(0))
            margins.alsoBorderless = false;
    };
    read("media-left-margin-supported", margins.usual.left);
    read("media-right-margin-supported", margins.usual.right);
    read("media-top-margin-supported", margins.usual.top);
    read("media-bottom-margin-supported", margins.usual.bottom);
    if (margins.usual.isBorderless())
        margins.alsoBorderless = false;
    return margins;
}

// Gives a paper its margins. The same paper may have several: one a type or source; the largest
// are right for all of them.
void setMargins(MediaSize &size, const QList<KnownSize> &known, const SupportedMargins &supported)
{
    std::optional<MediaMargins> margins;
    bool borderless = false;
    for (const KnownSize &one : known) {
        if (one.isRange() || !one.margins || !isSame(one.size.minimum, size.dimension))
            continue;
        borderless = borderless || one.margins->isBorderless();
        margins = margins ? larger(*margins, *one.margins) : *one.margins;
    }
    const bool databaseSays = std::any_of(known.cbegin(), known.cend(),
                                          [](const KnownSize &one) { return !!one.margins; });
    size.margins = margins.value_or(supported.usual);
    size.alsoBorderless = databaseSays ? borderless : supported.alsoBorderless;
    // Nothing would be left to print on.
    const int across = size.margins.left + size.margins.right;
    const int along = size.margins.top + size.margins.bottom;
    if (across >= size.dimension.width() || along >= size.dimension.height())
        size.margins = {0, 0, 0, 0};
    if (size.margins.isBorderless())
        size.alsoBorderless = false;
}

// The smallest and the largest paper, both of which there must be.
struct CustomLimits
{
    QSize minimum;
    QSize maximum;

    void read(const QString &name)
    {
        const bool smallest = name.startsWith("custom_min_"_L1) || name.startsWith("roll_min_"_L1);
        (smallest ? minimum : maximum) = dimensionOfMedia(name);
    }
    std::optional<MediaSizeRange> range() const
    {
        const MediaSizeRange limits{minimum, maximum};
        const bool valid = isPaper(minimum) && isPaper(maximum) && limits.contains(minimum);
        return valid ? std::optional(limits) : std::nullopt;
    }
};

bool isLimit(const QString &name)
{
    return name.startsWith("custom_min_"_L1) || name.startsWith("custom_max_"_L1) ||
           name.startsWith("roll_min_"_L1) || name.startsWith("roll_max_"_L1);
}

void readSizes(ipp_t *attributes, PrinterCapabilities &printer)
{
    const QList<KnownSize> known = sizesOf(attributes);
    const SupportedMargins margins = supportedMargins(attributes);
    CustomLimits limits;
    const QStringList names = keywordsOf(attributes, "media-supported");
    for (const QString &name : names) {
        if (isLimit(name)) {
            limits.read(name);
        } else if (const QSize dimension = dimensionOfMedia(name); !dimension.isEmpty()) {
            printer.sizes += MediaSize{name, dimension};
        }
    }
    printer.customSizes = limits.range();
    for (const KnownSize &one : known) {
        if (one.isRange() && !printer.customSizes)
            printer.customSizes = one.size;
    }
    if (printer.sizes.isEmpty()) {
        for (const KnownSize &one : known) {
            const bool listed = std::any_of(
                printer.sizes.cbegin(), printer.sizes.cend(),
                [&](const MediaSize &size) { return isSame(size.dimension, one.size.minimum); });
            if (listed || one.isRange())
                continue;
            const pwg_media_t *media =
                pwgMediaForSize(one.size.minimum.width(), one.size.minimum.height());
            const bool named =
                media && media->ppd && isSame({media->width, media->length}, one.size.minimum);
            printer.sizes +=
                MediaSize{named ? QString::fromUtf8(media->pwg) : customMediaName(one.size.minimum),
                          one.size.minimum};
        }
    }
    for (MediaSize &size : printer.sizes)
        setMargins(size, known, margins);
    printer.margins = margins.usual;
}

void readDefaultSize(ipp_t *attributes, PrinterCapabilities &printer)
{
    const auto isTaken = [&](const QString &name) {
        const QSize dimension = dimensionOfMedia(name);
        return std::any_of(printer.sizes.cbegin(), printer.sizes.cend(),
                           [&](const MediaSize &size) { return size.name == name; }) ||
               (!dimension.isEmpty() && printer.customSizes &&
                printer.customSizes->contains(dimension));
    };
    printer.readySizes = keywordsOf(attributes, "media-ready");
    printer.readySizes.removeIf(std::not_fn(isTaken));

    QStringList wanted = keywordsOf(attributes, "media-default");
    ipp_t *details = collectionAt(find(attributes, "media-col-default"), 0);
    const QSize size = sizeOf(collectionAt(find(details, "media-size"), 0)).minimum;
    for (const MediaSize &one : std::as_const(printer.sizes)) {
        if (isSame(one.dimension, size))
            wanted += one.name;
    }
    wanted += printer.readySizes;
    const auto first = std::find_if(wanted.cbegin(), wanted.cend(), isTaken);
    if (first != wanted.cend())
        printer.defaultSize = *first;
}

} // namespace

void readPapers(ipp_t *attributes, PrinterCapabilities &printer)
{
    readSizes(attributes, printer);
    readDefaultSize(attributes, printer);
}

} // namespace corvana
