#include "dialog/driverless/PrinterCapabilities.h"

#include <algorithm>
#include <iterator>

#include "dialog/driverless/AttributeReading.h"
#include "dialog/driverless/CapabilityPapers.h"
#include "dialog/driverless/QueueDefaults.h"

namespace corvana {

using namespace Qt::StringLiterals;

using namespace attribute;

const char *const kCapabilityAttributes[] = {
    "printer-info",
    "printer-make-and-model",
    "printer-type",
    "job-creation-attributes-supported",
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
    nullptr,
};

int capabilityAttributeCount()
{
    return static_cast<int>(std::size(kCapabilityAttributes)) - 1;
}

namespace {

void readMediaDetails(ipp_t *attributes, PrinterCapabilities &printer)
{
    // A print server hands job attributes to filters and devices as texts, and leaves out those
    // that consist of others: what a paper's details say would not arrive.
    if (find(attributes, "printer-type"))
        return;
    const QStringList members = keywordsOf(attributes, "media-col-supported");
    printer.mediaDetails = members.contains("media-size"_L1);
    if (!printer.mediaDetails)
        return;
    ipp_t *usual = collectionAt(find(attributes, "media-col-default"), 0);
    if (members.contains("media-type"_L1)) {
        printer.mediaTypes = keywordsOf(attributes, "media-type-supported");
        printer.defaultMediaType = listed(printer.mediaTypes, keywordsOf(usual, "media-type"));
    }
    if (members.contains("media-source"_L1)) {
        printer.mediaSources = keywordsOf(attributes, "media-source-supported");
        printer.defaultMediaSource =
            listed(printer.mediaSources, keywordsOf(usual, "media-source"));
    }
}

int maximumCopies(ipp_t *attributes)
{
    constexpr const char *kName = "copies-supported";
    const bool isRange = ippGetValueTag(find(attributes, kName)) == IPP_TAG_RANGE;
    return isRange ? std::max(rangeOf(attributes, kName).second, 0) : 0;
}

} // namespace

PrinterCapabilities capabilitiesOf(ipp_t *attributes)
{
    PrinterCapabilities printer;
    printer.info = textOf(attributes, "printer-info");
    printer.makeAndModel = textOf(attributes, "printer-make-and-model");
    printer.passesFilesOn = isRawQueue(attributes);
    if (printer.passesFilesOn)
        return printer;
    readPapers(attributes, printer);
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
    printer.jobAttributes = keywordsOf(attributes, "job-creation-attributes-supported");
    if (printer.jobAttributes.isEmpty() || printer.jobAttributes.contains("job-sheets"_L1))
        printer.jobSheets = keywordsOf(attributes, "job-sheets-supported");
    return printer;
}

} // namespace corvana
