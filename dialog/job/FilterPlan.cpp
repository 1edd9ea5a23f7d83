#include "dialog/job/FilterPlan.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>

#include "dialog/job/DocumentCopies.h"
#include "dialog/session/JobAttributes.h"

namespace corvana {

namespace {

using namespace Qt::StringLiterals;

// The destination "printer/foo" asks for the printer's own data format.
constexpr auto kPrinterFormat = "printer/foo"_L1;
constexpr auto kPdf = "application/pdf"_L1;
// A PDF that the filter for the layout of pages has been at; a mere PDF passes through untouched.
constexpr auto kLaidOutPdf = "application/vnd.cups-pdf"_L1;

// What works on PDFs without a look at their pages takes fractions of a second for each thousand of
// them. A document that was made to keep it busy is given up.
constexpr std::chrono::seconds kPatienceWithPdfs{120};

// Options of a PPD, and of IPP, that make a job two-sided.
constexpr QLatin1StringView kTwoSided[] = {"Duplex"_L1, "JCLDuplex"_L1, "EFDuplex"_L1,
                                           "KD03Duplex"_L1, "sides"_L1};
// Options that turn pages round or over, beside the attributes of a job.
constexpr QLatin1StringView kTurning[] = {"OutputOrder"_L1, "MirrorPrint"_L1};

template <size_t N> bool isOneOf(const QString &name, const QLatin1StringView (&list)[N])
{
    return std::any_of(std::begin(list), std::end(list), [&](QLatin1StringView one) {
        return name.compare(one, Qt::CaseInsensitive) == 0;
    });
}

// What shapes the pages of a text or a picture; everything else applies to the whole job.
bool isForPages(const JobOption &option)
{
    return isAppliedTo(JobAttribute::AppliedTo::Document, option);
}

QList<JobOption> pageOptions(const QList<JobOption> &options)
{
    QList<JobOption> chosen = options;
    chosen.removeIf([](const JobOption &option) {
        return option.name != "PageSize"_L1 && !isForPages(option);
    });
    return chosen;
}

// What is asked for when a document becomes a PDF. A picture becomes a mere PDF only by way of the
// printer's raster data: without its colours, dithered, and without its margins.
QLatin1StringView formatOfPdf(const Document &document)
{
    return isPicture(document) ? kLaidOutPdf : kPdf;
}

// Makes the steps of one request, each behind the other.
class Planner
{
public:
    Planner(const ConversionRequest &request, const FilterPlaces &places)
        : m_request(request), m_places(places), m_choice(pageChoiceOf(chainOptions())),
          m_picks(mustPick()), m_turns(std::any_of(request.turns.cbegin(), request.turns.cend(),
                                                   [](int turn) { return turn != 0; }))
    {
    }

    FilterPlan plan()
    {
        using Result = ConversionRequest::Result;
        const bool several = m_request.documents.size() > 1;
        const Document &first = m_request.documents.constFirst();
        if (m_request.result == Result::ChosenPages)
            pick(asPdf(first), result());
        else if (m_request.result == Result::PrinterData)
            several ? makeDataOfSeveral() : makePrinterData(picked(first), result());
        else if (several)
            putTogether(result());
        else if (m_request.layout.isEmpty())
            convert(first, formatOfPdf(first), {}, pageOptions(m_request.ticket.options), result());
        else
            layOut(m_picks ? picked(first) : asPdf(first), m_places.ppd, result());
        if (m_turns)
            turnPages();
        return m_plan;
    }

private:
    struct Output
    {
        QString path;
        QString name;
    };

    const ConversionRequest &m_request;
    const FilterPlaces &m_places;
    const PageChoice m_choice;
    const bool m_picks; // before the chain, which is told nothing of it then
    const bool m_turns;
    FilterPlan m_plan;
    int m_parts = 0;

    Output result() const
    {
        const QString path = m_places.folder + u"/unturned.pdf"_s;
        return m_turns ? Output{path, path} : Output{m_request.outputPath, m_request.outputName};
    }
    Output newPart(QLatin1StringView suffix)
    {
        const QString path = u"%1/%2.%3"_s.arg(m_places.folder, QString::number(m_parts++), suffix);
        return {path, path};
    }

    // Everything that the filter chain is asked for, as far as it is asked for its layout.
    QList<JobOption> chainOptions() const
    {
        if (m_request.result != ConversionRequest::Result::Pdf)
            return m_request.ticket.options;
        QList<JobOption> options = pageOptions(m_request.ticket.options);
        for (const JobOption &option : m_request.ticket.options) {
            if (isOneOf(option.name, kTwoSided))
                options += option;
        }
        for (const JobOption &option : m_request.layout) {
            if (!options.contains(option))
                options += option;
        }
        return options;
    }

    // Of several documents one may have none of the pages. That is known of what is picked, where
    // a filter that yields nothing could as well have failed.
    bool mustPick() const
    {
        const bool isOneOfSeveral = m_request.picksPages || m_request.documents.size() > 1;
        return mustPickPages(chainOptions()) || (isOneOfSeveral && !m_choice.isAll());
    }

    QList<JobOption> remainingOptions() const
    {
        QList<JobOption> options = chainOptions();
        if (m_picks)
            options.removeIf(isOfPageChoice);
        return withoutPageOrder(options);
    }

    // What a step reads of former ones. A document itself is none of them.
    QStringList partsOf(const Document &document) const
    {
        return document.path.startsWith(m_places.folder + u'/') ? QStringList{document.path}
                                                                : QStringList();
    }

    // `more` are further arguments of the program.
    void convert(const Document &document, QLatin1StringView format, const QStringList &more,
                 const QList<JobOption> &options, const Output &output,
                 const QString &ppd = QString())
    {
        QStringList arguments{
            u"-p"_s, ppd.isEmpty() ? m_places.ppd : ppd, u"-i"_s, document.format, u"-m"_s, format};
        arguments += more;
        for (const JobOption &option : options)
            arguments << u"-o"_s << optionArgument(option);
        arguments << document.path;
        FilterStep step{m_places.cupsFilter, arguments, output.path, output.name};
        step.parts = partsOf(document);
        m_plan += step;
    }

    void runQpdf(const QStringList &arguments, const Output &output, FilterStep step)
    {
        step.program = u"qpdf"_s;
        // What is damaged and could be mended is no failure; its warnings are of no interest.
        step.arguments = QStringList{u"--no-warn"_s, u"--warning-exit-0"_s} + arguments;
        step.output = output.path;
        step.outputName = output.name;
        step.patience = kPatienceWithPdfs;
        m_plan += step;
    }

    // A range for each run of pages: the list of all of them may be longer than an argument.
    void turnPages()
    {
        const Output unturned = result();
        QStringList arguments;
        const qsizetype count = m_request.turns.size();
        for (qsizetype first = 0, behind = 0; first < count; first = behind) {
            const int turn = m_request.turns.at(first);
            while (behind < count && m_request.turns.at(behind) == turn)
                ++behind;
            if (turn != 0)
                arguments += u"--rotate=+%1:%2-%3"_s.arg(
                    QString::number(turn), QString::number(first + 1), QString::number(behind));
        }
        FilterStep step;
        step.parts = {unturned.path};
        runQpdf(arguments + QStringList{unturned.path, u"-"_s},
                {m_request.outputPath, m_request.outputName}, step);
    }

    Document toPdf(const Document &document)
    {
        const Output pdf = newPart("pdf"_L1);
        convert(document, formatOfPdf(document), {}, pageOptions(m_request.ticket.options), pdf);
        return {pdf.path, kPdf, document.title};
    }

    Document asPdf(const Document &document)
    {
        return document.format == kPdf ? document : toPdf(document);
    }

    // The document stays itself: what it says of encryption, layers and forms goes along.
    void pick(const Document &document, const Output &output)
    {
        const Output count = newPart("count"_L1);
        runQpdf({u"--show-npages"_s, document.path}, count, {});
        FilterStep step;
        step.writes = FilterStep::Writes::FileOfItsOwn;
        step.yields = FilterStep::Yields::PerhapsNothing;
        step.pick = PagePick{m_choice, document.path, count.path, m_places.blankPage};
        runQpdf({document.path, u"--pages"_s, kPickedPages, u"--"_s, output.path}, output, step);
    }

    Document picked(const Document &document)
    {
        if (!m_picks && !mustBecomePdf(document, chainOptions()))
            return document;
        const Document pdf = asPdf(document);
        if (!m_picks)
            return pdf;
        const Output some = newPart("pdf"_L1);
        pick(pdf, some);
        return {some.path, kPdf, document.title};
    }

    void layOut(const Document &document, const QString &ppd, const Output &output,
                const QList<JobOption> &more = {})
    {
        convert(document, kLaidOutPdf, {}, remainingOptions() + more, output, ppd);
    }

    // Lays each document out by itself and makes one PDF of them. Each begins on a sheet of its
    // own: all but the last are filled up with a blank side.
    void putTogether(const Output &output)
    {
        QStringList parts;
        for (const Document &document : m_request.documents) {
            const bool isLast = parts.size() == m_request.documents.size() - 1;
            const Document pages = m_picks ? picked(document) : asPdf(document);
            const Output one = newPart("pdf"_L1);
            // The printer's own commands stand before a PDF, so that they belong to the whole.
            layOut(pages, isLast ? m_places.ppd : m_places.fillingPpd, one,
                   {{u"emit-jcl"_s, u"false"_s}});
            parts += one.path;
        }
        FilterStep step;
        step.writes = FilterStep::Writes::FileOfItsOwn;
        step.parts = parts;
        // There may be more documents than files that can be open.
        runQpdf(QStringList{u"--empty"_s, u"--keep-files-open=n"_s, u"--pages"_s} + parts +
                    QStringList{u"--"_s, output.path},
                output, step);
    }

    void makeDataOfSeveral()
    {
        const JobTicket &ticket = m_request.ticket;
        if (!m_places.resultsCanFollow) {
            const QString path = m_places.folder + u"/whole.pdf"_s;
            const Output whole{path, path};
            putTogether(whole);
            return toPrinterData({whole.path, kPdf, ticket.title}, ticket.copies,
                                 optionsAfterLayout(ticket.options), result());
        }
        const int times = repetitionsOf(ticket, int(m_request.documents.size()));
        QStringList parts;
        for (const Document &document : m_request.documents) {
            const Output one = newPart("data"_L1);
            makePrinterData(picked(document), one, times > 1 ? 1 : ticket.copies);
            parts += one.path;
        }
        FilterStep step{u"cat"_s, {}, result().path, result().name};
        step.parts = parts;
        for (int i = 0; i < times; ++i)
            step.arguments += parts;
        m_plan += step;
    }

    void makePrinterData(const Document &document, const Output &output)
    {
        makePrinterData(document, output, m_request.ticket.copies);
    }
    void makePrinterData(const Document &document, const Output &output, int copies)
    {
        toPrinterData(document, copies, remainingOptions(), output);
    }

    void toPrinterData(const Document &document, int copies, const QList<JobOption> &options,
                       const Output &output)
    {
        // The PPD's own filters are used only on demand; without them everything would become
        // PostScript.
        convert(document, kPrinterFormat,
                {u"-e"_s, u"-t"_s, m_request.ticket.title, u"-n"_s, QString::number(copies)},
                options, output);
    }
};

} // namespace

QString optionArgument(const JobOption &option)
{
    QString value = option.value;
    const bool isPlain = std::none_of(value.cbegin(), value.cend(), [](QChar c) {
        return c.isSpace() || c == u'"' || c == u'\'' || c == u'\\' || c == u'{';
    });
    if (!isPlain)
        value = u'"' + value.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s) + u'"';
    return u"%1=%2"_s.arg(option.name, value);
}

FilterPlan planConversion(const ConversionRequest &request, const FilterPlaces &places)
{
    return Planner(request, places).plan();
}

QList<JobOption> optionsAfterLayout(const QList<JobOption> &options)
{
    QList<JobOption> after;
    for (const JobOption &option : options) {
        const JobAttribute *attribute = jobAttribute(option.name);
        const bool shapes = isForPages(option) || isOneOf(option.name, kTurning);
        if (option.name == "orientation-requested"_L1)
            after += {option.name, u"3"_s};
        else if (!shapes && !isAppliedTo(JobAttribute::AppliedTo::Pages, option))
            after += option;
        else if (!shapes && !attribute->usual.isEmpty() && option.name != "print-scaling"_L1)
            after += {option.name, attribute->usual};
    }
    // A page that has the size of the paper already is not made smaller for its margins.
    return after << JobOption{u"print-scaling"_s, u"none"_s}
                 << JobOption{u"outputorder"_s, u"normal"_s};
}

bool isPicture(const Document &document)
{
    return document.format.startsWith("image/"_L1);
}

bool mustBecomePdf(const Document &document, const QList<JobOption> &options)
{
    const bool isPostScript = document.format == "application/postscript"_L1;
    if (!isPicture(document) && !isPostScript)
        return false;
    const auto asksForPages = [&](const JobOption &option) {
        const auto is = [&](QLatin1StringView name,
                            std::initializer_list<QLatin1StringView> usual) {
            return option.name == name &&
                   std::find(usual.begin(), usual.end(), option.value) == usual.end();
        };
        const bool byAny = is("number-up"_L1, {"1"_L1}) || is("page-border"_L1, {"none"_L1});
        // Of PostScript that sets its device up on each page, which undoes it, as well.
        const bool isMirrored = is("mirror"_L1, {"false"_L1});
        const bool byPostScript = is("orientation-requested"_L1, {"3"_L1}) ||
                                  is("print-scaling"_L1, {"auto"_L1, "none"_L1}) ||
                                  is("fit-to-page"_L1, {"false"_L1});
        return byAny || isMirrored || (isPostScript && byPostScript);
    };
    return !pageChoiceOf(options).isAll() ||
           std::any_of(options.cbegin(), options.cend(), asksForPages);
}

bool shapesDocuments(const QList<JobOption> &options)
{
    return std::any_of(options.cbegin(), options.cend(), isForPages);
}

} // namespace corvana
