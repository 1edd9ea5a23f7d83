#include "dialog/job/PpdFilters.h"

#include <algorithm>
#include <iterator>

#include <QCoreApplication>
#include <QFile>
#include <QList>
#include <QRegularExpression>

#include "dialog/server/IppMessage.h"
#include "dialog/session/OutputOrder.h"
#include "dialog/session/PpdFile.h"

namespace corvana {

namespace {

using namespace Qt::StringLiterals;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PpdFilters)
};

// No program: the data goes on as it is.
constexpr auto kNoProgram = "-"_L1;

// Filters of CUPS and of cups-filters. They read sizes, colours, and codes for the printer from a
// PPD, but no commands and no names of programs. What they start themselves are fixed programs:
// Ghostscript in its safe mode, pdftops, pdftocairo, mutool, and each other.
//
// Not on the list, although CUPS or cups-filters bring them: foomatic-rip runs command lines of the
// PPD; sys5ippprinter runs a script; the filters for Braille and for vector graphics are scripts
// that take words of the job's options apart.
constexpr QLatin1StringView kPrograms[] = {
    "gstopxl"_L1,      "gstoraster"_L1,    "mupdftoraster"_L1, "pdftopdf"_L1,
    "pdftops"_L1,      "pdftoraster"_L1,   "pstops"_L1,        "rastertoepson"_L1,
    "rastertohp"_L1,   "rastertolabel"_L1, "rastertoescpx"_L1, "rastertopclm"_L1,
    "rastertopclx"_L1, "rastertopdf"_L1,   "rastertops"_L1,    "rastertopwg"_L1,
};

// What CUPS' own conversions make of a document on its way. A program gets it on its standard
// input: the first program of a chain also gets the document's name, which some put into a command
// line.
constexpr QLatin1StringView kIntermediateFormats[] = {
    "application/vnd.cups-pdf"_L1,
    "application/vnd.cups-postscript"_L1,
    "application/vnd.cups-raster"_L1,
    "image/pwg-raster"_L1,
    "image/urf"_L1,
};

// What a printer may take as it is. The kinds of documents, and what leads to no further program:
// another format would let the PPD choose among all conversions that the system has.
constexpr QLatin1StringView kDocumentFormats[] = {
    "*/*"_L1,
    "application/octet-stream"_L1,
    "application/pdf"_L1,
    "application/postscript"_L1,
    "application/vnd.cups-raw"_L1,
    "image/jpeg"_L1,
    "image/png"_L1,
    "text/plain"_L1,
};

// Cleaning commands and self tests. No document becomes one, and a PPD cannot change that, so that
// its program for them never runs here.
constexpr auto kCommandFormat = "application/vnd.cups-command"_L1;

// A filter line as cupsfilter reads it, but stricter: SOURCE [DESTINATION] COST [maxsize(N)]
// PROGRAM. The limits are those of its fields, which it would otherwise cut.
struct FilterLine
{
    QString source; // in small letters
    QString program;
};

// Errors: an empty program.
FilterLine readFilterLine(const QByteArray &line)
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        "([^/\\s]{1,15}/[^/\\s]{1,255})[ \\t]+(?:[^/\\s]{1,15}/[^/\\s]{1,255}[ \\t]+)?"
        "[0-9]{1,9}[ \\t]+(?:maxsize\\([0-9]{1,18}\\)[ \\t]*)?([!-~]{1,255})"_L1));
    const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(line));
    if (!match.hasMatch())
        return {};
    return {match.captured(1).toLower(), match.captured(2)};
}

template <size_t N> bool isOneOf(const QString &text, const QLatin1StringView (&list)[N])
{
    return std::find(std::begin(list), std::end(list), text) != std::end(list);
}

// Programs that end with a file rather than with a stream; what their names end with.
constexpr QLatin1StringView kMakersOfFiles[] = {"topdf"_L1, "topclm"_L1, "topwg"_L1, "tourf"_L1,
                                                "toraster"_L1};

// Formats of files that nothing can be appended to.
bool isFormatOfFiles(const QString &format)
{
    return format.startsWith("image/"_L1) || format.endsWith("pdf"_L1) ||
           format.endsWith("pclm"_L1) || format == "application/vnd.cups-raster"_L1;
}

// Whether a line leads to a file. A filter line without a destination says only by its program what
// comes out; with one it says so itself.
bool leadsToFile(const QByteArray &line)
{
    const QStringList words = QString::fromLatin1(line).simplified().toLower().split(u' ');
    const FilterLine read = readFilterLine(line);
    if (read.source == kCommandFormat || words.size() < 3)
        return false;
    if (words.at(1).contains(u'/'))
        return isFormatOfFiles(words.at(1));
    if (read.program == kNoProgram)
        return isFormatOfFiles(read.source);
    return std::any_of(std::begin(kMakersOfFiles), std::end(kMakersOfFiles),
                       [&](QLatin1StringView end) { return read.program.endsWith(end); });
}

// The lines that libcups goes by. It is asked for them, so that there is one reading of a PPD.
QList<QByteArray> filterLines(ppd_file_t *ppd)
{
    QList<QByteArray> lines;
    const auto add = [&](const char *keyword) {
        for (const ppd_attr_t *attribute = ppdFindAttr(ppd, keyword, nullptr); attribute;
             attribute = ppdFindNextAttr(ppd, keyword, nullptr))
            lines += QByteArray(attribute->value);
    };
    add("cupsFilter2");
    if (lines.isEmpty()) {
        for (int i = 0; i < ppd->num_filters; ++i)
            lines += QByteArray(ppd->filters[i]);
    }
    add("cupsPreFilter");
    return lines;
}

// What a line asks for, for a message: its program, or the whole line where nobody can tell.
QString shownFilter(const QByteArray &line)
{
    const FilterLine read = readFilterLine(line);
    const bool isProgram = !read.program.isEmpty() && read.program != kNoProgram;
    return shownText(isProgram ? read.program.toLatin1().constData() : line.constData());
}

// Profiles of colours, which CUPS' filters open by the name that the PPD has for them: below a
// folder of CUPS, or, with a whole path, anywhere.
constexpr const char *kProfileKeywords[] = {"cupsICCProfile", "APTiogaProfile"};

// Only what the system's packages brought is opened: another name may stand for a device, a pipe,
// or a file of the user's.
bool isSafeProfile(const QByteArray &name)
{
    const bool isInPackages = !name.startsWith('/') || name.startsWith("/usr/share/");
    return isInPackages && !name.contains("..");
}

// The first profile that is not opened here; null for none.
QByteArray unsafeProfile(ppd_file_t *ppd)
{
    for (const char *keyword : kProfileKeywords) {
        for (const ppd_attr_t *attribute = ppdFindAttr(ppd, keyword, nullptr); attribute;
             attribute = ppdFindNextAttr(ppd, keyword, nullptr)) {
            if (const QByteArray name(attribute->value); !isSafeProfile(name))
                return name;
        }
    }
    return {};
}

} // namespace

bool isSafeFilterLine(const QByteArray &line)
{
    const FilterLine read = readFilterLine(line);
    if (read.source == kCommandFormat)
        return true;
    if (read.program == kNoProgram)
        return isOneOf(read.source, kIntermediateFormats) || isOneOf(read.source, kDocumentFormats);
    return isOneOf(read.program, kPrograms) && isOneOf(read.source, kIntermediateFormats);
}

QString problemOfPpdFilters(const QString &ppdPath)
{
    QString problem;
    const PpdFile ppd = openPpdFile(ppdPath, &problem);
    if (!ppd)
        return problem;
    const QList<QByteArray> lines = filterLines(ppd.get());
    const auto unsafe = std::find_if_not(lines.cbegin(), lines.cend(), isSafeFilterLine);
    if (unsafe == lines.cend()) {
        const QByteArray profile = unsafeProfile(ppd.get());
        return profile.isNull()
                   ? QString()
                   : Texts::tr(
                         "The driver of this printer names the file “%1”, which only a print "
                         "server may open. Print on the printer itself instead of into a file.")
                         .arg(shownText(profile.constData()));
    }
    return Texts::tr("The driver of this printer needs the program “%1”, which only a print server "
                     "may run. Print on the printer itself instead of into a file.")
        .arg(shownFilter(*unsafe));
}

PpdStream streamOfPpd(const QString &ppdPath)
{
    QString problem;
    const PpdFile ppd = openPpdFile(ppdPath, &problem);
    return ppd ? streamOfPpd(ppd.get()) : PpdStream();
}

PpdStream streamOfPpd(ppd_file_t *ppd)
{
    const QList<QByteArray> lines = filterLines(ppd);
    const ppd_attr_t *single = ppdFindAttr(ppd, "cupsSingleFile", nullptr);
    return {std::none_of(lines.cbegin(), lines.cend(), leadsToFile),
            single && QByteArray(single->value).toLower() == "true"};
}

QList<JobOption> inOrderForFilters(const QList<JobOption> &options, const QString &ppdPath)
{
    QString problem;
    const PpdFile ppd = openPpdFile(ppdPath, &problem);
    return ppd ? withOrderForFilters(options, ppd.get()) : options;
}

} // namespace corvana
