#include "dialog/sheets/SheetCounter.h"

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include "dialog/sheets/DocumentCount.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcSheets, "corvana.dialog.sheets", QtWarningMsg)

namespace {

// Until nobody types or clicks any more, and for a job as a whole. Units: milliseconds.
constexpr int kDelay = 200;
constexpr int kPatience = 60000;

// What is sent as it is, whatever it holds.
bool isRaw(const SheetRequest &request)
{
    return request.options.contains(JobOption{u"raw"_s, u"true"_s});
}

} // namespace

SheetCounter::SheetCounter(QObject *parent) : QObject(parent)
{
    m_delay.setSingleShot(true);
    m_patience.setSingleShot(true);
    connect(&m_delay, &QTimer::timeout, this, &SheetCounter::begin);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        qCInfo(lcSheets) << "the sheets were not counted in" << kPatience << "ms";
        end();
    });
}

SheetCounter::~SheetCounter() = default;

QList<SheetCounter::Content> SheetCounter::contentsOf(const SheetRequest &request)
{
    QList<Content> contents;
    for (const Document &document : request.documents) {
        const QFileInfo info(document.path);
        contents += Content{document.path, info.size(), info.lastModified()};
    }
    return contents;
}

bool SheetCounter::isFor(const SheetRequest &request) const
{
    return m_request == request && m_contents == contentsOf(request);
}

const JobSheets *SheetCounter::counted(const SheetRequest &request) const
{
    return m_sheets && isFor(request) ? &*m_sheets : nullptr;
}

void SheetCounter::count(const SheetRequest &request, When when)
{
    const bool isWanted = isFor(request);
    if (isWanted && m_sheets) {
        QTimer::singleShot(0, this, [this] {
            if (m_sheets) // else it was canceled meanwhile
                Q_EMIT finished();
        });
        return;
    }
    const bool isWaiting = m_delay.isActive();
    if (isWanted && (m_document || (isWaiting && when == When::Soon)))
        return;
    cancel();
    m_request = request;
    m_contents = contentsOf(request);
    m_delay.start(when == When::Now ? 0 : kDelay);
}

void SheetCounter::cancel()
{
    m_delay.stop();
    m_patience.stop();
    m_document.reset();
    m_folder.reset();
    m_sheets.reset();
    m_request.reset();
}

void SheetCounter::begin()
{
    m_sofar = {{}, m_request->traits.isTwoSided};
    m_folder = std::make_unique<QTemporaryDir>();
    QFile ppd(m_folder->filePath(u"layout.ppd"_s));
    const QByteArray content = layoutPpd(m_request->traits);
    const bool isReady =
        ppd.open(QIODevice::WriteOnly) && ppd.write(content) == content.size() && ppd.flush();
    if (!isReady || isRaw(*m_request)) {
        qCInfo(lcSheets) << "the sheets are not counted:"
                         << (isReady ? u"raw"_s : ppd.errorString());
        return end();
    }
    m_patience.start(kPatience);
    countNext();
}

void SheetCounter::countNext()
{
    const qsizetype next = m_sofar.documents.size();
    if (next == m_request->documents.size())
        return end();
    m_document =
        std::make_unique<DocumentCount>(*m_request, m_request->documents.at(next),
                                        m_folder->filePath(u"layout.ppd"_s), m_folder->path());
    connect(m_document.get(), &DocumentCount::finished, this, [this](const QString &problem) {
        if (!problem.isEmpty())
            qCInfo(lcSheets).noquote()
                << m_document->sheets().title << "was not counted:" << problem;
        documentCounted();
    });
    m_document->start();
}

void SheetCounter::documentCounted()
{
    m_sofar.documents += m_document->sheets();
    m_document.release()->deleteLater();
    countNext();
}

// What there was no time for is not counted.
void SheetCounter::end()
{
    m_patience.stop();
    m_document.reset();
    m_folder.reset();
    for (qsizetype i = m_sofar.documents.size(); i < m_request->documents.size(); ++i)
        m_sofar.documents += DocumentSheets{m_request->documents.at(i).title};
    m_sheets = m_sofar;
    Q_EMIT finished();
}

} // namespace corvana
