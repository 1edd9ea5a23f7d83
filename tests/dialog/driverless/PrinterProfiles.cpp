#include "tests/dialog/driverless/PrinterProfiles.h"

#include <stdexcept>

namespace corvana::test {

namespace {

QList<const char *> pointers(const QList<QByteArray> &values)
{
    QList<const char *> found;
    for (const QByteArray &value : values)
        found += value.constData();
    return found;
}

void addMargins(ipp_t *collection, int margin)
{
    for (const char *name :
         {"media-left-margin", "media-right-margin", "media-top-margin", "media-bottom-margin"})
        ippAddInteger(collection, IPP_TAG_ZERO, IPP_TAG_INTEGER, name, margin);
}

void addSize(ipp_t *collection, ipp_t *size)
{
    ippAddCollection(collection, IPP_TAG_ZERO, "media-size", size);
    ippDelete(size);
}

PrinterAttributes nothing()
{
    return {};
}

// As CUPS 2.4 answers for a queue without a PPD that leads to another server's.
PrinterAttributes remoteQueue()
{
    return PrinterAttributes()
        .enums("printer-type", {4})
        .text("printer-info", "raw1")
        .text("printer-make-and-model", "Remote Printer")
        .keywords("print-color-mode-default", {"monochrome"})
        .enums("print-quality-default", {4})
        .enums("finishings-supported", {3})
        .range("copies-supported", 1, 9999)
        .names("job-sheets-supported", {"none", "classified", "standard"})
        .keywords("media-col-supported",
                  {"media-bottom-margin", "media-left-margin", "media-right-margin", "media-size",
                   "media-source", "media-top-margin", "media-type"})
        .boolean("multiple-document-jobs-supported", true)
        .formats(
            {"application/octet-stream", "application/pdf", "application/postscript", "image/png"});
}

PrinterAttributes officeLaser()
{
    return PrinterAttributes()
        .text("printer-info", "Büro, 2. Stock")
        .text("printer-make-and-model", "Example Laser 2000 (PDF)")
        .keywords("media-supported", {"iso_a4_210x297mm", "na_letter_8.5x11in", "na_legal_8.5x14in",
                                      "iso_a5_148x210mm", "jis_b5_182x257mm", "iso_dl_110x220mm",
                                      "na_number-10_4.125x9.5in", "om_dai-pa-kai_275x395mm",
                                      "custom_min_76x127mm", "custom_max_216x356mm"})
        .keywords("media-default", {"iso_a4_210x297mm"})
        .keywords("media-ready", {"na_letter_8.5x11in"})
        .keywords("media-col-supported", {"media-size", "media-type", "media-source"})
        .collections("media-col-default", {mediaDefault(21000, 29700, "stationery", "tray-1")})
        .integers("media-left-margin-supported", {423})
        .integers("media-right-margin-supported", {423})
        .integers("media-top-margin-supported", {423})
        .integers("media-bottom-margin-supported", {423})
        .keywords("media-type-supported",
                  {"stationery", "stationery-letterhead", "envelope", "labels"})
        .keywords("media-source-supported", {"auto", "tray-1", "tray-2", "by-pass-tray"})
        .keywords("sides-supported", {"one-sided", "two-sided-long-edge", "two-sided-short-edge"})
        .keywords("sides-default", {"two-sided-long-edge"})
        .keywords("print-color-mode-supported", {"auto", "color", "monochrome"})
        .keywords("print-color-mode-default", {"auto"})
        .enums("print-quality-supported", {3, 4, 5})
        .enums("print-quality-default", {4})
        .resolutions("printer-resolution-supported", {300, 600, 1200})
        .resolutions("printer-resolution-default", {600})
        .keywords("output-bin-supported", {"face-down", "face-up", "mailbox-1"})
        .keywords("output-bin-default", {"face-down"})
        .enums("finishings-supported", {3, 4, 5, 20, 22, 28, 74})
        .formats({"application/octet-stream", "application/pdf", "image/pwg-raster"})
        .range("copies-supported", 1, 999)
        .keywords("job-sheets-supported", {"none", "standard"})
        .boolean("multiple-document-jobs-supported", false);
}

PrinterAttributes labelPrinter()
{
    return PrinterAttributes()
        .text("printer-make-and-model", "Example Label 4")
        .keywords("media-supported", {"custom_min_19.05x6.35mm", "custom_max_107.95x991mm"})
        .keywords("media-default", {"oe_shipping-label_100x192mm"})
        .keywords("print-color-mode-supported", {"monochrome"})
        .keywords("sides-supported", {"one-sided"})
        .resolutions("printer-resolution-supported", {203})
        .keywords("pwg-raster-document-type-supported", {"sgray_8", "black_1"})
        .formats({"image/pwg-raster"});
}

PrinterAttributes photoInkjet()
{
    return PrinterAttributes()
        .text("printer-make-and-model", "Example Photo 7")
        .keywords("media-supported", {"iso_a4_210x297mm", "na_index-4x6_4x6in", "na_5x7_5x7in",
                                      "jpn_hagaki_100x148mm", "oe_photo-l_3.5x5in"})
        .keywords("media-default", {"na_index-4x6_4x6in"})
        .keywords("media-col-supported",
                  {"media-bottom-margin", "media-left-margin", "media-right-margin", "media-size",
                   "media-source", "media-top-margin", "media-type"})
        .collections("media-col-database",
                     {media(21000, 29700, 300), media(10160, 15240, 0), media(10160, 15240, 300),
                      media(12700, 17780, 300), media(12700, 17780, 0), media(10000, 14800, 0)})
        .names("media-type-supported",
               {"photographic-glossy", "photographic-matte", "Glossy Deluxe II", "光沢紙"})
        .keywords("media-source-supported", {"main", "photo"})
        .keywords("print-color-mode-supported", {"color", "monochrome"})
        .enums("print-quality-supported", {4, 5})
        .keywords("sides-supported", {"one-sided"})
        .formats({"image/urf", "image/jpeg"});
}

// The same paper under many names, as sellers of paper want them.
PrinterAttributes largeOffice()
{
    QList<QByteArray> media{"iso_a3_297x420mm", "iso_a4_210x297mm"};
    for (int i = 0; i < 498; ++i)
        media += "om_sheet-" + QByteArray::number(i) + '_' + QByteArray::number(100 + i % 250) +
                 'x' + QByteArray::number(200 + i % 300) + "mm";
    return PrinterAttributes()
        .text("printer-make-and-model", "Example Press A3")
        .keywords("media-supported", media)
        .keywords("media-default", {"iso_a3_297x420mm"})
        .keywords("sides-supported", {"one-sided", "two-sided-long-edge"})
        .keywords("print-color-mode-supported", {"color", "monochrome", "bi-level"})
        .resolutions("printer-resolution-supported", {600, 1200})
        .formats({"application/postscript"});
}

} // namespace

PrinterAttributes::PrinterAttributes() : m_ipp(ippNew(), ippDelete) {}

PrinterAttributes &PrinterAttributes::text(const char *name, const QByteArray &value)
{
    ippAddString(ipp(), IPP_TAG_PRINTER, IPP_TAG_TEXT, name, nullptr, value.constData());
    return *this;
}

PrinterAttributes &PrinterAttributes::keywords(const char *name, const QList<QByteArray> &values)
{
    ippAddStrings(ipp(), IPP_TAG_PRINTER, IPP_TAG_KEYWORD, name, int(values.size()), nullptr,
                  pointers(values).constData());
    return *this;
}

PrinterAttributes &PrinterAttributes::names(const char *name, const QList<QByteArray> &values)
{
    ippAddStrings(ipp(), IPP_TAG_PRINTER, IPP_TAG_NAME, name, int(values.size()), nullptr,
                  pointers(values).constData());
    return *this;
}

PrinterAttributes &PrinterAttributes::formats(const QList<QByteArray> &values)
{
    ippAddStrings(ipp(), IPP_TAG_PRINTER, IPP_TAG_MIMETYPE, "document-format-supported",
                  int(values.size()), nullptr, pointers(values).constData());
    return *this;
}

PrinterAttributes &PrinterAttributes::integers(const char *name, const QList<int> &values)
{
    ippAddIntegers(ipp(), IPP_TAG_PRINTER, IPP_TAG_INTEGER, name, int(values.size()),
                   values.constData());
    return *this;
}

PrinterAttributes &PrinterAttributes::enums(const char *name, const QList<int> &values)
{
    ippAddIntegers(ipp(), IPP_TAG_PRINTER, IPP_TAG_ENUM, name, int(values.size()),
                   values.constData());
    return *this;
}

PrinterAttributes &PrinterAttributes::boolean(const char *name, bool value)
{
    ippAddBoolean(ipp(), IPP_TAG_PRINTER, name, value ? 1 : 0);
    return *this;
}

PrinterAttributes &PrinterAttributes::range(const char *name, int lower, int upper)
{
    ippAddRange(ipp(), IPP_TAG_PRINTER, name, lower, upper);
    return *this;
}

PrinterAttributes &PrinterAttributes::resolutions(const char *name, const QList<int> &values)
{
    ippAddResolutions(ipp(), IPP_TAG_PRINTER, name, int(values.size()), IPP_RES_PER_INCH,
                      values.constData(), values.constData());
    return *this;
}

PrinterAttributes &PrinterAttributes::unknown(const char *name)
{
    ippAddOutOfBand(ipp(), IPP_TAG_PRINTER, IPP_TAG_UNKNOWN, name);
    return *this;
}

PrinterAttributes &PrinterAttributes::collections(const char *name, const QList<ipp_t *> &values)
{
    QList<const ipp_t *> borrowed(values.cbegin(), values.cend());
    ippAddCollections(ipp(), IPP_TAG_PRINTER, name, int(values.size()), borrowed.data());
    for (ipp_t *value : values)
        ippDelete(value);
    return *this;
}

ipp_t *mediaSize(int width, int height)
{
    ipp_t *size = ippNew();
    ippAddInteger(size, IPP_TAG_ZERO, IPP_TAG_INTEGER, "x-dimension", width);
    ippAddInteger(size, IPP_TAG_ZERO, IPP_TAG_INTEGER, "y-dimension", height);
    return size;
}

ipp_t *mediaSizeRange(int minWidth, int maxWidth, int minHeight, int maxHeight)
{
    ipp_t *size = ippNew();
    ippAddRange(size, IPP_TAG_ZERO, "x-dimension", minWidth, maxWidth);
    ippAddRange(size, IPP_TAG_ZERO, "y-dimension", minHeight, maxHeight);
    return size;
}

ipp_t *media(int width, int height, int margin)
{
    ipp_t *collection = ippNew();
    addSize(collection, mediaSize(width, height));
    addMargins(collection, margin);
    return collection;
}

ipp_t *mediaDefault(int width, int height, const QByteArray &type, const QByteArray &source)
{
    ipp_t *collection = ippNew();
    addSize(collection, mediaSize(width, height));
    ippAddString(collection, IPP_TAG_ZERO, IPP_TAG_KEYWORD, "media-type", nullptr,
                 type.constData());
    ippAddString(collection, IPP_TAG_ZERO, IPP_TAG_KEYWORD, "media-source", nullptr,
                 source.constData());
    return collection;
}

QList<Profile> printerProfiles()
{
    return {{"nothing known", nothing},    {"queue of another server", remoteQueue},
            {"office laser", officeLaser}, {"label printer", labelPrinter},
            {"photo inkjet", photoInkjet}, {"A3 with 500 media", largeOffice}};
}

PrinterAttributes printerProfile(const char *name)
{
    const QList<Profile> profiles = printerProfiles();
    for (const Profile &profile : profiles) {
        if (qstrcmp(profile.name, name) == 0)
            return profile.attributes();
    }
    throw std::invalid_argument(name);
}

} // namespace corvana::test
