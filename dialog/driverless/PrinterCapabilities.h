#pragma once

#include <optional>

#include <cups/ipp.h>

#include <QList>
#include <QSize>
#include <QString>
#include <QStringList>

namespace corvana {

/// The strips along the edges of a paper that a printer cannot reach.
/// Units: hundredths of a millimetre, as in IPP.
struct MediaMargins
{
    int left = 635; ///< a quarter of an inch, for printers that do not say
    int right = 635;
    int top = 635;
    int bottom = 635;

    bool operator==(const MediaMargins &) const = default;
    bool isBorderless() const { return left == 0 && right == 0 && top == 0 && bottom == 0; }
};

/// A paper that a printer takes.
struct MediaSize
{
    QString name;    ///< as the printer lists it, usually "iso_a4_210x297mm"
    QSize dimension; ///< Units: hundredths of a millimetre. Range: see capabilitiesOf().
    MediaMargins margins{};
    bool alsoBorderless = false; ///< can be printed up to the edges as well

    bool operator==(const MediaSize &) const = default;
};

/// The papers of any size that a printer takes. Units: hundredths of a millimetre.
struct MediaSizeRange
{
    QSize minimum;
    QSize maximum;

    bool operator==(const MediaSizeRange &) const = default;
    bool contains(QSize size) const
    {
        return size.width() >= minimum.width() && size.height() >= minimum.height() &&
               size.width() <= maximum.width() && size.height() <= maximum.height();
    }
};

/// What a printer or a queue says of itself: a value, as far as it makes sense. Keywords are the
/// printer's own, in its order, each once; a default is one of the listed values or empty (0).
/// Nothing listed means that the printer does not say.
struct PrinterCapabilities
{
    /// Documents reach the printer as they are: none of what follows can be asked for.
    bool passesFilesOn = false;

    QString info;         ///< what the administrator calls it
    QString makeAndModel; ///< what the maker calls it

    QList<MediaSize> sizes;
    std::optional<MediaSizeRange> customSizes;
    MediaMargins margins{}; ///< of papers that the printer does not list
    QString defaultSize;    ///< a name; also one within the range of custom sizes
    QStringList readySizes; ///< what is loaded

    QStringList mediaTypes;
    QString defaultMediaType;
    QStringList mediaSources;
    QString defaultMediaSource;
    /// Whether a paper can be described in detail ("media-col"): with its margins, type and source.
    bool mediaDetails = false;

    QStringList sides;
    QString defaultSides;
    QStringList colorModes;
    QString defaultColorMode;
    QList<int> qualities; ///< 3 draft, 4 normal, 5 high
    int defaultQuality = 0;
    QList<QSize> resolutions; ///< Units: dots per inch
    QSize defaultResolution;  ///< empty when unknown
    QStringList outputBins;
    QString defaultOutputBin;
    QList<int> finishings; ///< values of the IPP enumeration, without "none"

    QStringList documentFormats;
    QStringList rasterTypes;   ///< kinds of PWG raster data, such as "srgb_8"
    int maximumCopies = 0;     ///< 0 when unknown
    QStringList jobAttributes; ///< what a job may carry
    QStringList jobSheets;     ///< pages that can be printed in front of a job

    bool operator==(const PrinterCapabilities &) const = default;
};

/// The attributes to ask a printer for, ending with a null pointer. "media-col-database" is not
/// among those that printers send unasked.
extern const char *const kCapabilityAttributes[];
/// How many attributes these are.
int capabilityAttributeCount();

/// Reads the response to Get-Printer-Attributes. Whatever is of a wrong type, is not UTF-8, has
/// control characters or cannot be written as a job option is left out; so are papers smaller than
/// a millimetre or longer than 50 metres, and all but the first thousand values of an attribute.
/// `attributes` may be null, and is only read.
PrinterCapabilities capabilitiesOf(ipp_t *attributes);

} // namespace corvana
