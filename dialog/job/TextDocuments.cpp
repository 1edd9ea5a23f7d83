#include "dialog/job/TextDocuments.h"

#include <algorithm>

#include <QTimer>

#include "dialog/job/TemporaryFolder.h"
#include "dialog/session/JobAttributes.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr auto kText = "text/plain"_L1;
constexpr auto kPdf = "application/pdf"_L1;
constexpr auto kPostScript = "application/postscript"_L1;
constexpr auto kRaw = "raw"_L1;

bool isToLayOut(const Document &document, const JobTicket &ticket)
{
    return isTextToLayOut(document, ticket.options) ||
           (ticket.postScriptAsPdf && document.format == kPostScript);
}

} // namespace

bool isTextToLayOut(const Document &document, const QList<JobOption> &options)
{
    return document.format == kText &&
           std::none_of(options.cbegin(), options.cend(), [](const JobOption &option) {
               return option.name == kRaw && option.value != "false"_L1;
           });
}

bool hasTextToLayOut(const QList<Document> &documents, const QList<JobOption> &options)
{
    return std::any_of(documents.cbegin(), documents.cend(),
                       [&](const Document &document) { return isTextToLayOut(document, options); });
}

bool hasDocumentToLayOut(const QList<Document> &documents, const JobTicket &ticket)
{
    return std::any_of(documents.cbegin(), documents.cend(),
                       [&](const Document &document) { return isToLayOut(document, ticket); });
}

TextDocuments::TextDocuments(const QList<Document> &documents, const JobTicket &ticket,
                             const QString &ppdPath, QObject *parent)
    : QObject(parent), m_documents(documents), m_ticket(ticket), m_ppdPath(ppdPath)
{
}

TextDocuments::~TextDocuments() = default;

void TextDocuments::start()
{
    convertNext();
}

void TextDocuments::cancel()
{
    m_canceled = true;
    if (m_conversion)
        m_conversion->cancel();
    if (m_chain)
        m_chain->cancel();
}

void TextDocuments::convertNext()
{
    while (m_next < m_documents.size() && !isToLayOut(m_documents.at(m_next), m_ticket))
        ++m_next;
    if (m_next == m_documents.size())
        return end({});
    if (!m_folder)
        m_folder = std::make_unique<QTemporaryDir>();
    if (!m_folder->isValid())
        return end(problemOf(*m_folder));
    const QString pdf = m_folder->filePath(u"%1.pdf"_s.arg(m_next));
    if (m_documents.at(m_next).format == kText)
        layOutText(pdf);
    else
        convertPostScript(pdf);
}

void TextDocuments::layOutText(const QString &pdf)
{
    const Document &document = m_documents.at(m_next);
    QString problem;
    const TextFormat format = textFormat(m_ppdPath, m_ticket.options, document.title, &problem);
    if (!problem.isEmpty())
        return end(problem);
    m_conversion = std::make_unique<TextConversion>(document.path, format, pdf);
    connect(m_conversion.get(), &TextConversion::pageReached, this, &TextDocuments::pageReached);
    connect(m_conversion.get(), &TextConversion::finished, this,
            [this, pdf](const QString &failure) {
                m_conversion.release()->deleteLater();
                converted(pdf, failure);
            });
    m_conversion->start();
}

void TextDocuments::convertPostScript(const QString &pdf)
{
    // A document that names no size has that of the paper.
    ConversionRequest request{{m_documents.at(m_next)}, m_ticket, m_ppdPath};
    request.outputPath = pdf;
    request.outputName = pdf;
    request.result = ConversionRequest::Result::Pdf;
    m_chain = std::make_unique<Conversion>(request);
    connect(m_chain.get(), &Conversion::finished, this, [this, pdf](const QString &failure) {
        m_chain.release()->deleteLater();
        converted(pdf, failure);
    });
    m_chain->start();
}

void TextDocuments::converted(const QString &pdf, const QString &problem)
{
    if (!problem.isEmpty())
        return end(problem);
    m_documents[m_next].path = pdf;
    m_documents[m_next].format = kPdf;
    convertNext();
}

void TextDocuments::end(const QString &problem)
{
    QTimer::singleShot(0, this, [this, problem] {
        Q_EMIT finished(m_canceled ? tr("Printing was canceled.") : problem);
    });
}

QList<JobOption> optionsAfterTexts(const QList<JobOption> &options,
                                   const QList<Document> &documents)
{
    QList<JobOption> left = options;
    const bool onlyTexts =
        std::all_of(documents.cbegin(), documents.cend(),
                    [](const Document &document) { return document.format == kText; });
    if (onlyTexts)
        left.removeIf([](const JobOption &option) {
            return isAppliedTo(JobAttribute::AppliedTo::Document, option);
        });
    return left;
}

} // namespace corvana
