#include "dialog/queues/PrinterCapabilities.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <iterator>

#include <cups/cups.h>
#include <cups/pwg.h>

#include <QStringDecoder>

namespace corvana {

const char *const kCapabilityAttributes[] = {
    "printer-info",
    "printer-make-and-model",
    "printer-type",
    "media-supported",
    "media-default",
    "media-ready",
    "media-size-supported",
    "media-col-supported",
    "media-col-default",
    "media-col-database",
    "media-left-margin-supported",
    "media-right-margin-supported",
    "media-top-margin-supported",
    "media-bottom-margin-supported",
    "media-type-supported",
    "media-source-supported",
    "sides-supported",
    "sides-default",
    "print-color-mode-supported",
    "print-color-mode-default",
    "print-quality-supported",
    "print-quality-default",
    "printer-resolution-supported",
    "printer-resolution-default",
    "output-bin-supported",
    "output-bin-default",
    "finishings-supported",
    "document-format-supported",
    "pwg-raster-document-type-supported",
    "copies-supported",
    "job-sheets-supported",
    "multiple-document-jobs-supported",
    nullptr,
};

int capabilityAttributeCount()
{
    return static_cast<int>(std::size(kCapabilityAttributes)) - 1;
}

namespace {

// More of them could neither be shown nor be chosen from.
constexpr int kMaximumValues = 1000;
// Units: hundredths of a millimetre.
constexpr int kSmallest = 100;
constexpr int kLargest = 5'000'000;
constexpr int kLargestMargin = 10'000;
// Sizes are stated in millimetres or inches, so that the same one may be off by rounding.
constexpr int kTolerance = 5;

ipp_attribute_t *find(ipp_t *attributes, const char *name)
{
    return ippFindAttribute(attributes, name, IPP_TAG_ZERO);
}

int valueCount(ipp_attribute_t *attribute)
{
    return attribute ? std::min(ippGetCount(attribute), kMaximumValues) : 0;
}

bool hasControlCharacter(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(),
                       [](QChar c) { return c.category() == QChar::Other_Control; });
}

// Null for what is no string, is not UTF-8, or is longer than IPP allows.
QString stringAt(ipp_attribute_t *attribute, int index)
{
    constexpr qsizetype kLongest = 1023;
    const QByteArray bytes = ippGetString(attribute, index, nullptr);
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    return decoder.hasError() || bytes.size() > kLongest ? QString() : text;
}

// A text for people: one line.
QString textOf(ipp_t *attributes, const char *name)
{
    ipp_attribute_t *attribute = find(attributes, name);
    QString text = attribute ? stringAt(attribute, 0) : QString();
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control)
            c = u' ';
    }
    return text.simplified();
}

// A value that comes back as a job option: there, these characters end it or begin something else.
bool isKeyword(const QString &value)
{
    constexpr qsizetype kLongestKeyword = 255;
    constexpr QLatin1StringView kMeaningful{"{}\"'\\,=;"};
    return !value.trimmed().isEmpty() && value == value.simplified() &&
           value.toUtf8().size() <= kLongestKeyword && !hasControlCharacter(value) &&
           std::none_of(value.cbegin(), value.cend(),
                        [&](QChar c) { return kMeaningful.contains(c); });
}

QStringList keywordsOf(ipp_t *attributes, const char *name)
{
    ipp_attribute_t *attribute = find(attributes, name);
    QStringList values;
    for (int i = 0; i < valueCount(attribute); ++i) {
        if (const QString value = stringAt(attribute, i); isKeyword(value))
            values += value;
    }
    values.removeDuplicates();
    return values;
}

// The value of a default attribute where it is one of those that are supported.
template <typename Value> Value listed(const QList<Value> &supported, const QList<Value> &value)
{
    return !value.isEmpty() && supported.contains(value.constFirst()) ? value.constFirst()
                                                                      : Value();
}

bool isNumber(ipp_attribute_t *attribute)
{
    const ipp_tag_t tag = ippGetValueTag(attribute);
    return tag == IPP_TAG_INTEGER || tag == IPP_TAG_ENUM;
}

QList<int> numbersOf(ipp_t *attributes, const char *name)
{
    ipp_attribute_t *attribute = find(attributes, name);
    QList<int> values;
    for (int i = 0; isNumber(attribute) && i < valueCount(attribute); ++i) {
        if (const int value = ippGetInteger(attribute, i); !values.contains(value))
            values += value;
    }
    return values;
}

QList<QSize> resolutionsOf(ipp_t *attributes, const char *name)
{
    constexpr int kHighest = 100'000;
    ipp_attribute_t *attribute = find(attributes, name);
    QList<QSize> values;
    if (ippGetValueTag(attribute) != IPP_TAG_RESOLUTION)
        return values;
    for (int i = 0; i < valueCount(attribute); ++i) {
        ipp_res_t unit = IPP_RES_PER_INCH;
        int y = 0;
        const int x = ippGetResolution(attribute, i, &y, &unit);
        if (x <= 0 || y <= 0 || x > kHighest || y > kHighest)
            continue;
        const auto perInch = [&](int value) {
            return unit == IPP_RES_PER_CM ? qRound(value * 2.54) : value;
        };
        if (const QSize value(perInch(x), perInch(y)); !values.contains(value))
            values += value;
    }
    return values;
}

bool isPaper(QSize size)
{
    const auto sane = [](int length) { return length >= kSmallest && length <= kLargest; };
    return sane(size.width()) && sane(size.height());
}

bool isSame(QSize one, QSize other)
{
    return std::abs(one.width() - other.width()) <= kTolerance &&
           std::abs(one.height() - other.height()) <= kTolerance;
}

ipp_t *collectionAt(ipp_attribute_t *attribute, int index)
{
    return ippGetValueTag(attribute) == IPP_TAG_BEGIN_COLLECTION
               ? ippGetCollection(attribute, index)
               : nullptr;
}

// A length of a collection: one number, or a range for papers of any size.
std::pair<int, int> lengthOf(ipp_t *collection, const char *name)
{
    ipp_attribute_t *attribute = find(collection, name);
    if (ippGetValueTag(attribute) == IPP_TAG_RANGE) {
        int upper = 0;
        const int lower = ippGetRange(attribute, 0, &upper);
        return {lower, upper};
    }
    const int length = isNumber(attribute) ? ippGetInteger(attribute, 0) : 0;
    return {length, length};
}

// A size as "media-size" states it.
MediaSizeRange sizeOf(ipp_t *mediaSize)
{
    const auto [narrowest, widest] = lengthOf(mediaSize, "x-dimension");
    const auto [shortest, longest] = lengthOf(mediaSize, "y-dimension");
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
        const bool smallest = name.startsWith(QLatin1StringView("custom_min_")) ||
                              name.startsWith(QLatin1StringView("roll_min_"));
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
    return name.startsWith(QLatin1StringView("custom_min_")) ||
           name.startsWith(QLatin1StringView("custom_max_")) ||
           name.startsWith(QLatin1StringView("roll_min_")) ||
           name.startsWith(QLatin1StringView("roll_max_"));
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

void readMediaDetails(ipp_t *attributes, PrinterCapabilities &printer)
{
    // A print server hands job attributes to filters and devices as texts, and leaves out those
    // that consist of others: what a paper's details say would not arrive.
    if (find(attributes, "printer-type"))
        return;
    const QStringList members = keywordsOf(attributes, "media-col-supported");
    printer.mediaDetails = members.contains(QLatin1StringView("media-size"));
    if (!printer.mediaDetails)
        return;
    ipp_t *usual = collectionAt(find(attributes, "media-col-default"), 0);
    if (members.contains(QLatin1StringView("media-type"))) {
        printer.mediaTypes = keywordsOf(attributes, "media-type-supported");
        printer.defaultMediaType = listed(printer.mediaTypes, keywordsOf(usual, "media-type"));
    }
    if (members.contains(QLatin1StringView("media-source"))) {
        printer.mediaSources = keywordsOf(attributes, "media-source-supported");
        printer.defaultMediaSource =
            listed(printer.mediaSources, keywordsOf(usual, "media-source"));
    }
}

int maximumCopies(ipp_t *attributes)
{
    ipp_attribute_t *attribute = find(attributes, "copies-supported");
    int upper = 0;
    if (ippGetValueTag(attribute) == IPP_TAG_RANGE)
        ippGetRange(attribute, 0, &upper);
    return std::max(upper, 0);
}

} // namespace

QString customMediaName(QSize dimension)
{
    char name[128];
    pwgFormatSizeName(name, sizeof name, "custom", nullptr, dimension.width(), dimension.height(),
                      "mm");
    return QString::fromLatin1(name);
}

QSize dimensionOfMedia(const QString &name)
{
    const QByteArray latin = name.toLatin1();
    const pwg_media_t *media = pwgMediaForPWG(latin.constData());
    if (!media)
        media = pwgMediaForLegacy(latin.constData());
    const QSize size = media ? QSize(media->width, media->length) : QSize();
    return isPaper(size) ? size : QSize();
}

PrinterCapabilities capabilitiesOf(ipp_t *attributes)
{
    PrinterCapabilities printer;
    printer.info = textOf(attributes, "printer-info");
    printer.makeAndModel = textOf(attributes, "printer-make-and-model");
    readSizes(attributes, printer);
    readDefaultSize(attributes, printer);
    readMediaDetails(attributes, printer);

    printer.sides = keywordsOf(attributes, "sides-supported");
    printer.defaultSides = listed(printer.sides, keywordsOf(attributes, "sides-default"));
    printer.colorModes = keywordsOf(attributes, "print-color-mode-supported");
    printer.defaultColorMode =
        listed(printer.colorModes, keywordsOf(attributes, "print-color-mode-default"));
    printer.qualities = numbersOf(attributes, "print-quality-supported");
    printer.qualities.removeIf(
        [](int quality) { return quality < IPP_QUALITY_DRAFT || quality > IPP_QUALITY_HIGH; });
    printer.defaultQuality =
        listed(printer.qualities, numbersOf(attributes, "print-quality-default"));
    printer.resolutions = resolutionsOf(attributes, "printer-resolution-supported");
    printer.defaultResolution =
        listed(printer.resolutions, resolutionsOf(attributes, "printer-resolution-default"));
    printer.outputBins = keywordsOf(attributes, "output-bin-supported");
    printer.defaultOutputBin =
        listed(printer.outputBins, keywordsOf(attributes, "output-bin-default"));
    printer.finishings = numbersOf(attributes, "finishings-supported");
    printer.finishings.removeIf([](int value) { return value <= IPP_FINISHINGS_NONE; });
    // Qt compares lists of numbers with memcmp, which must not get the null of a list that never
    // had any.
    for (QList<int> *numbers : {&printer.qualities, &printer.finishings}) {
        if (numbers->isEmpty())
            *numbers = {};
    }

    printer.documentFormats = keywordsOf(attributes, "document-format-supported");
    printer.rasterTypes = keywordsOf(attributes, "pwg-raster-document-type-supported");
    printer.maximumCopies = maximumCopies(attributes);
    printer.jobSheets = keywordsOf(attributes, "job-sheets-supported");
    ipp_attribute_t *several = find(attributes, "multiple-document-jobs-supported");
    printer.severalDocuments =
        ippGetValueTag(several) == IPP_TAG_BOOLEAN && ippGetBoolean(several, 0) != 0;
    return printer;
}

} // namespace corvana
