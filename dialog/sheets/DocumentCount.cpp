#include "dialog/sheets/DocumentCount.h"

#include <algorithm>
#include <utility>

#include <QFile>
#include <QFileInfo>

#include "dialog/job/CupsFilter.h"
#include "dialog/job/FilterPlan.h"
#include "dialog/job/TemporaryFolder.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/sheets/FirstSheets.h"
#include "dialog/sheets/LaidOutDocument.h"
#include "dialog/sheets/OrderOnSheet.h"
#include "dialog/sheets/PictureTurn.h"
#include "dialog/sheets/ScaleProbe.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kPdf = "application/pdf"_L1;
constexpr auto kPostScript = "application/postscript"_L1;
constexpr auto kLaidOutPdf = "application/vnd.cups-pdf"_L1;
// Of how many pages of a document the sizes are looked at.
constexpr int kMostDescribed = 10000;
// The sides are kept as long as they are shown, in a folder that may be in memory.
constexpr qint64 kMostBytesKept = qint64(512) << 20;

// The pages of these have sizes of their own; the others are made for the paper.
bool hasSizes(const Document &document)
{
    return document.format == kPdf || document.format == kPostScript;
}

QList<JobOption> applied(JobAttribute::AppliedTo what, const QList<JobOption> &options)
{
    QList<JobOption> some;
    for (const JobOption &option : options) {
        if (isAppliedTo(what, option))
            some += option;
    }
    return some;
}

bool isOfMirror(const JobOption &option)
{
    return option.name == "mirror"_L1;
}

// The chain mirrors a side from the left to the right before it turns it as its page says. Answers
// by how much what lies that way then is turned.
int mirroredTurn(int turn, int rotation)
{
    return (rotation % 180 == 0 ? 360 - turn : 540 - turn) % 360;
}

// Options, with the only paper of our PPD.
QList<JobOption> onLayoutPaper(QList<JobOption> options)
{
    options.removeIf([](const JobOption &option) { return option.name == kPageSizeOption; });
    return QList{JobOption{kPageSizeOption, QString::fromLatin1(kLayoutPaper)}} + options;
}

// What shapes the pages.
QList<JobOption> documentOptions(const QList<JobOption> &options)
{
    return onLayoutPaper(applied(JobAttribute::AppliedTo::Document, options));
}

// What the layout step does. Never empty: a PDF is laid out in any case.
QList<JobOption> layoutOptions(const QList<JobOption> &options)
{
    QList<JobOption> layout = applied(JobAttribute::AppliedTo::Pages, options);
    const bool hasNumber = std::any_of(layout.cbegin(), layout.cend(), [](const JobOption &option) {
        return option.name == "number-up"_L1;
    });
    if (!hasNumber)
        layout += JobOption{u"number-up"_s, u"1"_s};
    return layout;
}

} // namespace

DocumentCount::DocumentCount(const SheetRequest &request, const Document &document,
                             const QString &ppd, const QString &folder, QObject *parent)
    : QObject(parent), m_request(request), m_document(document), m_ppd(ppd), m_folder(folder)
{
    m_sheets.title = document.title;
}

DocumentCount::~DocumentCount() = default;

void DocumentCount::start()
{
    if (m_document.format == kPdf) {
        m_pdf = m_document.path;
        lookAtPages();
    } else if (isPicture(m_document)) {
        m_isLaidOut = !m_request.makesPdfs && !mustPickPages(m_request.options) &&
                      !mustBecomePdf(m_document, m_request.options);
        convertPicture();
    } else if (isTextToLayOut(m_document, m_request.options)) {
        convertText();
    } else {
        makePdf();
    }
}

// The same pages as a job makes of it.
void DocumentCount::convertText()
{
    m_texts = std::make_unique<TextDocuments>(
        QList{m_document}, JobTicket{{}, 1, onLayoutPaper(m_request.options), {}}, m_ppd);
    connect(m_texts.get(), &TextDocuments::finished, this, [this](const QString &problem) {
        if (!problem.isEmpty())
            return fail(problem);
        m_pdf = m_texts->documents().constFirst().path;
        lookAtPages();
    });
    m_texts->start();
}

void DocumentCount::makePdf()
{
    m_pdf = file(u"document.pdf"_s);
    ConversionRequest request{{m_document}, {}, m_ppd, m_pdf, m_pdf};
    request.ticket.options = documentOptions(m_request.options);
    request.result = ConversionRequest::Result::Pdf;
    convert(request, [this](bool empty) {
        m_sheets.drawsNoPage = empty && m_document.format == kPostScript;
        empty ? fail(u"the document became no PDF"_s) : lookAtPages();
    });
}

// The chain has a filter that lays a picture out at once; only by way of the printer's raster data
// would it become a mere PDF, which takes ten times as long.
void DocumentCount::convertPicture()
{
    QString problem;
    const QString filter = findCupsFilter(&problem);
    if (!problem.isEmpty() || !makeFolder(m_sides, &problem))
        return fail(problem);
    m_pdf = m_isLaidOut ? sidesPath() : file(u"document.pdf"_s);
    QStringList arguments{u"-p"_s, m_ppd, u"-i"_s, m_document.format, u"-m"_s, kLaidOutPdf};
    QList<JobOption> options = documentOptions(m_request.options);
    if (m_isLaidOut)
        options += applied(JobAttribute::AppliedTo::Pages, m_request.options);
    for (const JobOption &option : std::as_const(options))
        arguments << u"-o"_s << optionArgument(option);
    m_chain = std::make_unique<FilterChain>();
    connect(m_chain.get(), &FilterChain::finished, this, [this](const QString &why) {
        m_turning.picture = turnOfPicture(m_pdf);
        why.isEmpty() ? lookAtPages() : fail(why);
    });
    m_chain->start({{filter, arguments << m_document.path, m_pdf, m_pdf}}, {});
}

void DocumentCount::lookAtPages()
{
    run(kPdfInfoProgram, pdfPagesArguments(m_pdf, kMostDescribed), [this](const QByteArray &said) {
        const std::optional<PdfPages> pages = readPdfPages(said);
        if (!pages || pages->count == 0)
            return fail(u"pdfinfo found no pages"_s);
        m_sheets.pages = pages->count;
        m_pages = pages->pages;
        if (m_isLaidOut)
            return keepSides(*pages);
        choosePrinted();
        m_first.pages =
            pagesOfFirstSheets(m_pages, pages->count, m_request.options, m_request.traits);
        m_first.pages > 0 ? layOutFirst() : layOut();
    });
}

// Of pages that were not described nobody knows how they lie.
void DocumentCount::choosePrinted()
{
    const QList<bool> isPrinted =
        printedPages(static_cast<int>(m_pages.size()), pageChoiceOf(m_request.options));
    for (qsizetype page = 0; page < m_pages.size(); ++page) {
        if (isPrinted.at(page))
            m_printed += m_pages.at(page);
    }
    if (m_request.turnsOrder && m_pages.size() == *m_sheets.pages)
        m_sheets.orderTurn =
            turnOfOrder(m_printed, m_turning.picture, m_request.options, m_request.traits);
}

ConversionRequest DocumentCount::layoutOf(const QString &pdf, const QString &result) const
{
    ConversionRequest request{{{pdf, kPdf, m_document.title}}, {}, m_ppd, result, result};
    // What has shaped the pages of a text does not do so a second time.
    request.ticket.options = documentOptions(
        m_texts ? optionsAfterTexts(m_request.options, m_request.documents) : m_request.options);
    request.result = ConversionRequest::Result::Pdf;
    request.layout = withOrderForReader(layoutOptions(m_request.options), m_sheets.orderTurn);
    request.picksPages = m_request.picksPages;
    return request;
}

// They are picked before the layout step, which would read the whole document to find them.
void DocumentCount::layOutFirst()
{
    QString problem;
    if (!makeFolder(m_first.folder, &problem))
        return fail(problem);
    const QString path = m_first.folder->filePath(u"first.pdf"_s);
    ConversionRequest request = layoutOf(m_pdf, path);
    request.layout += JobOption{u"page-ranges"_s, u"1-%1"_s.arg(m_first.pages)};
    request.picksPages = true;
    convert(request, [this, path](bool empty) {
        if (empty)
            return fail(u"no first sheets came out"_s);
        run(kPdfInfoProgram, pdfPagesArguments(path, kMostDescribed),
            [this](const QByteArray &said) {
                const std::optional<PdfPages> sides = readPdfPages(said);
                sides && sides->count > 0 ? keepFirst(*sides)
                                          : fail(u"pdfinfo found no first sheets"_s);
            });
    });
}

void DocumentCount::keepFirst(const PdfPages &sides)
{
    const QString path = m_first.folder->filePath(u"first.pdf"_s);
    m_turning.rotation = sides.pages.constFirst().rotation;
    m_first.sheets.title = m_document.title;
    m_first.sheets.pages = m_first.pages;
    m_first.sheets.sides = sides.count;
    m_first.sheets.laidOut = std::make_shared<LaidOutDocument>(std::move(m_first.folder), path,
                                                               sides.count, sides.pages);
    layOutProbe();
}

void DocumentCount::layOut()
{
    QString problem;
    if (!makeFolder(m_sides, &problem))
        return fail(problem);
    convert(layoutOf(m_pdf, sidesPath()), [this](bool empty) {
        if (!empty)
            return countSides();
        m_sheets.sides = 0;
        Q_EMIT finished({});
    });
}

void DocumentCount::countSides()
{
    run(kPdfInfoProgram, pdfPagesArguments(sidesPath(), kMostDescribed),
        [this](const QByteArray &said) {
            const std::optional<PdfPages> pages = readPdfPages(said);
            if (!pages)
                return fail(u"pdfinfo found no sides"_s);
            keepSides(*pages);
        });
}

void DocumentCount::keepSides(const PdfPages &sides)
{
    m_sheets.sides = sides.count;
    m_turning.rotation = sides.pages.isEmpty() ? 0 : sides.pages.constFirst().rotation;
    const QString path = sidesPath();
    if (QFileInfo(path).size() > kMostBytesKept) {
        m_sheets.trouble = DocumentSheets::Trouble::TooLarge;
        m_sides.reset();
    } else {
        const auto laidOut =
            std::make_shared<LaidOutDocument>(std::move(m_sides), path, sides.count, sides.pages);
        if (m_first.sheets.laidOut)
            laidOut->setBegin(m_first.sheets.laidOut->path());
        m_sheets.laidOut = laidOut;
    }
    // The first sheets have been probed already, and all pages are of their kind.
    if (sides.count > 0 && !m_isLaidOut && m_sheets.turns.isEmpty())
        return layOutProbe();
    if (m_isLaidOut)
        m_sheets.turns = QList<int>(sides.count, m_turning.picture);
    Q_EMIT finished({});
}

bool DocumentCount::makeFolder(std::unique_ptr<QTemporaryDir> &folder, QString *problem)
{
    if (!folder)
        folder = std::make_unique<QTemporaryDir>();
    if (!folder->isValid())
        *problem = problemOf(*folder);
    return problem->isEmpty();
}

// The chain looks at all pages that it is given before it decides whether to scale any, whichever
// of them are printed: one page that is too large shrinks the others. So the probe holds each kind
// of them, and all of what it holds is printed. Where several pages go on a side, the chain is
// given the chosen ones only.
void DocumentCount::layOutProbe()
{
    const QList<PdfPage> kinds =
        kindsOfPages(mustPickPages(m_request.options) ? m_printed : m_pages);
    // Of the pages that were not described nobody knows the kinds.
    if (kinds.isEmpty() || m_pages.size() < *m_sheets.pages)
        return probed();
    const QString probe = file(u"probe.pdf"_s);
    const QByteArray content = probeDocument(kinds);
    QFile output(probe);
    if (!output.open(QIODevice::WriteOnly) || output.write(content) != content.size() ||
        !output.flush())
        return fail(output.errorString());
    output.close();
    ConversionRequest request = layoutOf(probe, file(u"probed.pdf"_s));
    request.layout.removeIf(isOfPageChoice);
    // Nobody can read marks that are mirrored.
    request.layout.removeIf(isOfMirror);
    convert(request, [this, kinds](bool empty) {
        empty ? fail(u"nothing of the probe came out"_s) : readProbe(kinds);
    });
}

void DocumentCount::readProbe(const QList<PdfPage> &kinds)
{
    const QString laidOut = file(u"probed.pdf"_s);
    run(kPdfTextProgram, probeReadingArguments(laidOut), [this, kinds](const QByteArray &said) {
        const QList<int> turns = turnsOfProbe(said, kinds);
        const bool isMirrored = m_request.options.contains(JobOption{u"mirror"_s, u"true"_s});
        for (const PdfPage &page : std::as_const(m_pages)) {
            // A picture may be turned on its page as well.
            const int turn = (turns.value(kinds.indexOf(page)) + m_turning.picture) % 360;
            m_sheets.turns += isMirrored ? mirroredTurn(turn, m_turning.rotation) : turn;
        }
        const QList<double> scales = scalesOfProbe(said, kinds);
        for (qsizetype i = 0; hasSizes(m_document) && i < kinds.size(); ++i) {
            const PageScale scale{sizeOfPage(kinds.at(i)), scales.at(i)};
            if (scale.scale > 0 && m_printed.contains(kinds.at(i)) &&
                !m_sheets.scales.contains(scale))
                m_sheets.scales += scale;
        }
        probed();
    });
}

void DocumentCount::probed()
{
    if (m_first.pages == 0)
        return Q_EMIT finished({});
    m_first.pages = 0;
    m_first.sheets.turns = m_sheets.turns;
    // Another document may need another order yet.
    if (m_sheets.orderTurn == 0 || m_request.documents.size() == 1)
        Q_EMIT begun(m_first.sheets);
    layOut();
}

void DocumentCount::convert(const ConversionRequest &request, const std::function<void(bool)> &then)
{
    m_conversion = std::make_unique<Conversion>(request);
    connect(m_conversion.get(), &Conversion::finished, this, [this, then](const QString &problem) {
        const bool isEmpty = m_conversion->cameOutEmpty();
        m_conversion.release()->deleteLater();
        problem.isEmpty() || isEmpty ? then(isEmpty) : fail(problem);
    });
    m_conversion->start();
}

void DocumentCount::run(const char *program, const QStringList &arguments,
                        const std::function<void(const QByteArray &)> &then)
{
    m_run =
        std::make_unique<ProgramRun>(QString::fromLatin1(program), arguments, ProgramRun::Limits());
    connect(m_run.get(), &ProgramRun::finished, this,
            [this, then](const QByteArray &said, const QString &problem) {
                m_run.release()->deleteLater();
                problem.isEmpty() ? then(said) : fail(problem);
            });
    m_run->start();
}

void DocumentCount::fail(const QString &problem)
{
    // Whatever becomes of the first sheets, all of them may be laid out.
    if (std::exchange(m_first.pages, 0) > 0) {
        m_first = {};
        return layOut();
    }
    // Sides that are known are no trouble, whatever becomes of their scale.
    if (!m_sheets.sides)
        m_sheets.trouble = DocumentSheets::Trouble::Failed;
    QTimer::singleShot(0, this, [this, problem] { Q_EMIT finished(problem); });
}

} // namespace corvana
