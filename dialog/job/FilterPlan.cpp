#include "dialog/job/FilterPlan.h"

#include <algorithm>

#include "dialog/session/JobAttributes.h"

namespace corvana {

namespace {

using namespace Qt::StringLiterals;

// The destination "printer/foo" asks for the printer's own data format.
constexpr auto kPrinterFormat = "printer/foo"_L1;
constexpr auto kPdf = "application/pdf"_L1;
// A PDF that the filter for the layout of pages has been at; a mere PDF passes through untouched.
constexpr auto kLaidOutPdf = "application/vnd.cups-pdf"_L1;

// One option as cupsParseOptions() reads it back: a value with blanks or quotes stays one value.
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

// Makes the steps of one request, each behind the other.
class Planner
{
public:
    Planner(const ConversionRequest &request, const FilterPlaces &places)
        : m_request(request), m_places(places)
    {
    }

    FilterPlan plan()
    {
        if (m_request.result == ConversionRequest::Result::PrinterData)
            makePrinterData();
        else if (m_request.layout.isEmpty())
            unite({m_request.outputPath, m_request.outputName});
        else
            makeLaidOutPdf();
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
    FilterPlan m_plan;

    Output result() const { return {m_request.outputPath, m_request.outputName}; }
    Output part(const QString &name) const
    {
        const QString path = m_places.folder + u'/' + name;
        return {path, path};
    }

    // `more` are further arguments of the program.
    void convert(const Document &document, QLatin1StringView format, const QStringList &more,
                 const QList<JobOption> &options, const Output &output)
    {
        QStringList arguments{u"-p"_s, m_places.ppd, u"-i"_s, document.format, u"-m"_s, format};
        arguments += more;
        for (const JobOption &option : options)
            arguments << u"-o"_s << optionArgument(option);
        arguments << document.path;
        m_plan += FilterStep{m_places.cupsFilter, arguments, output.path, output.name};
    }

    // Makes one PDF of all documents.
    void unite(const Output &output)
    {
        const QList<JobOption> options = pageOptions(m_request.ticket.options);
        if (m_request.documents.size() == 1)
            return convert(m_request.documents.constFirst(), kPdf, {}, options, output);
        QStringList parts;
        for (const Document &document : m_request.documents) {
            const Output one = part(u"%1.pdf"_s.arg(parts.size()));
            convert(document, kPdf, {}, options, one);
            parts += one.path;
        }
        m_plan += FilterStep{u"pdfunite"_s, parts << output.path, output.path, output.name,
                             FilterStep::Writes::FileOfItsOwn};
    }

    Document united()
    {
        const Output whole = part(u"whole.pdf"_s);
        unite(whole);
        return {whole.path, kPdf, m_request.ticket.title};
    }

    void makeLaidOutPdf()
    {
        const Document whole = united();
        convert(whole, kLaidOutPdf, {}, pageOptions(m_request.ticket.options) + m_request.layout,
                result());
    }

    void makePrinterData()
    {
        const JobTicket &ticket = m_request.ticket;
        const Document whole =
            m_request.documents.size() == 1 ? m_request.documents.constFirst() : united();
        // The PPD's own filters are used only on demand; without them everything would become
        // PostScript.
        convert(whole, kPrinterFormat,
                {u"-e"_s, u"-t"_s, ticket.title, u"-n"_s, QString::number(ticket.copies)},
                ticket.options, result());
    }
};

} // namespace

FilterPlan planConversion(const ConversionRequest &request, const FilterPlaces &places)
{
    return Planner(request, places).plan();
}

bool shapesDocuments(const QList<JobOption> &options)
{
    return std::any_of(options.cbegin(), options.cend(), isForPages);
}

} // namespace corvana
