#include "dialog/job/Conversion.h"

#include <utility>

#include <QFile>
#include <QTimer>

#include "dialog/job/CupsFilter.h"
#include "dialog/job/PpdFilters.h"
#include "dialog/job/TemporaryFolder.h"
#include "dialog/text/WholeWrite.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// A PPD that has the filter for the layout of pages fill the last sheet of a two-sided document.
QByteArray fillingSheets(const QByteArray &ppd)
{
    QByteArray filling;
    const QByteArrayList lines = ppd.split('\n');
    for (const QByteArray &line : lines) {
        if (!line.startsWith("*cupsEvenDuplex"))
            filling += line + '\n';
    }
    return filling + "*cupsEvenDuplex: True\n";
}

constexpr char kBlankPage[] = "%PDF-1.4\n"
                              "1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
                              "2 0 obj<</Type/Pages/Kids[3 0 R]/Count 1>>endobj\n"
                              "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 72 102]"
                              "/Resources<<>>>>endobj\n"
                              "xref\n"
                              "0 4\n"
                              "0000000000 65535 f \n"
                              "0000000009 00000 n \n"
                              "0000000052 00000 n \n"
                              "0000000101 00000 n \n"
                              "trailer<</Size 4/Root 1 0 R>>\n"
                              "startxref\n"
                              "177\n"
                              "%%EOF\n";

} // namespace

Conversion::Conversion(const ConversionRequest &request, QObject *parent)
    : QObject(parent), m_request(request)
{
    connect(&m_chain, &FilterChain::pageReached, this, &Conversion::pageReached);
    connect(&m_chain, &FilterChain::finished, this, [this](const QString &problem) {
        m_parts.reset();
        Q_EMIT finished(problem);
    });
}

Conversion::~Conversion() = default;

void Conversion::start()
{
    QString problem;
    const FilterPlan plan = prepare(&problem);
    if (problem.isEmpty())
        return m_chain.start(plan, m_request.ticket.secrets);
    QTimer::singleShot(0, this, [this, problem] {
        m_parts.reset();
        Q_EMIT finished(problem);
    });
}

// Errors: `problem` says what stands in the way.
FilterPlan Conversion::prepare(QString *problem)
{
    const QString filter = findCupsFilter(problem);
    if (filter.isEmpty())
        return {};
    m_parts = std::make_unique<QTemporaryDir>();
    if (!m_parts->isValid()) {
        *problem = problemOf(*m_parts);
        return {};
    }
    const QString own = m_parts->filePath(u"printer.ppd"_s);
    const QString filling = m_parts->filePath(u"filling.ppd"_s);
    const QString blank = m_parts->filePath(u"blank.pdf"_s);
    *problem = takePpd(own, filling, blank);
    if (m_request.result == ConversionRequest::Result::PrinterData)
        m_request.ticket.options = inOrderForFilters(m_request.ticket.options, own);
    return planConversion(
        m_request, {filter, own, filling, m_parts->path(), streamOfPpd(own).continues, blank});
}

// The chain gets a PPD that is its own: what was looked at is what its filters read, whoever writes
// the other one. Answers what stands in the way.
QString Conversion::takePpd(const QString &own, const QString &filling, const QString &blank) const
{
    // The filter chain would do without a PPD, and print a file without any of the choices.
    QFile ppd(m_request.ppdPath);
    if (!ppd.open(QIODevice::ReadOnly))
        return tr("%1 cannot be read: %2").arg(m_request.ppdPath, ppd.errorString());
    const QByteArray content = ppd.readAll();
    const std::pair<QString, QByteArray> copies[] = {
        {own, content}, {filling, fillingSheets(content)}, {blank, kBlankPage}};
    for (const auto &[path, text] : copies) {
        QFile copy(path);
        if (!copy.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !writeWhole(copy, text))
            return tr("%1 cannot be written: %2").arg(path, copy.errorString());
    }
    // A PDF is made by filters of the system only.
    if (m_request.result != ConversionRequest::Result::PrinterData)
        return {};
    return problemOfPpdFilters(own).replace(own, m_request.ppdPath);
}

} // namespace corvana
