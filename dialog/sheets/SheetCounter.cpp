#include "dialog/sheets/SheetCounter.h"

#include <utility>

#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include "dialog/job/TemporaryFolder.h"
#include "dialog/sheets/DocumentCount.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcSheets, "corvana.dialog.sheets", QtWarningMsg)

namespace {

// Until nobody types or clicks any more, and for a job as a whole. Units: milliseconds.
constexpr int kDelay = 200;
constexpr int kPatience = 60000;

} // namespace

SheetCounter::SheetCounter(QObject *parent) : QObject(parent)
{
    m_delay.setSingleShot(true);
    m_patience.setSingleShot(true);
    connect(&m_delay, &QTimer::timeout, this, &SheetCounter::begin);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        qCInfo(lcSheets) << "the sheets were not counted in" << kPatience << "ms";
        end(DocumentSheets::Trouble::TookTooLong);
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

const JobSheets *SheetCounter::begun(const SheetRequest &request) const
{
    return m_begun && isFor(request) ? &*m_begun : nullptr;
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
    // The first change is shown at once; others that follow it closely are shown together.
    const bool isOneOfMany = m_sinceAsked.isValid() && m_sinceAsked.elapsed() < kDelay;
    m_sinceAsked.start();
    m_delay.start(when == When::Soon && isOneOfMany ? kDelay : 0);
}

void SheetCounter::cancel()
{
    m_delay.stop();
    m_patience.stop();
    m_document.reset();
    m_folder.reset();
    m_sheets.reset();
    m_begun.reset();
    m_sofar = {};
    m_request.reset();
}

void SheetCounter::begin()
{
    m_turnsOrder = m_request->turnsOrder;
    m_sofar = {{}, m_request->traits.isTwoSided, m_request->traits.isByHand};
    m_folder = std::make_unique<QTemporaryDir>();
    if (const QString problem = problemOf(*m_folder); !problem.isEmpty()) {
        qCInfo(lcSheets).noquote() << "the sheets are not counted:" << problem;
        return end(DocumentSheets::Trouble::Failed);
    }
    QFile ppd(m_folder->filePath(u"layout.ppd"_s));
    const QByteArray content = layoutPpd(m_request->traits);
    const bool isReady =
        ppd.open(QIODevice::WriteOnly) && ppd.write(content) == content.size() && ppd.flush();
    if (!isReady) {
        qCInfo(lcSheets) << "the sheets are not counted:" << ppd.errorString();
        return end(DocumentSheets::Trouble::Failed);
    }
    m_patience.start(kPatience);
    countNext();
}

void SheetCounter::countNext()
{
    const qsizetype next = m_sofar.documents.size();
    if (next == m_request->documents.size()) {
        if (commonOrderTurn(m_sofar))
            return end(DocumentSheets::Trouble::None);
        // All of them once more, in the one order that they can have in common.
        m_turnsOrder = false;
        m_begun.reset();
        m_sofar.documents.clear();
        return countNext();
    }
    SheetRequest request = *m_request;
    request.turnsOrder = m_turnsOrder;
    m_document =
        std::make_unique<DocumentCount>(request, m_request->documents.at(next),
                                        m_folder->filePath(u"layout.ppd"_s), m_folder->path());
    connect(m_document.get(), &DocumentCount::finished, this, [this](const QString &problem) {
        if (!problem.isEmpty())
            qCInfo(lcSheets).noquote() << m_request->documents.at(m_sofar.documents.size()).title
                                       << "was not counted:" << problem;
        documentCounted();
    });
    // Nobody sees the begin of a later document before all those before it.
    if (next == 0) {
        connect(m_document.get(), &DocumentCount::begun, this, [this](const DocumentSheets &first) {
            m_begun = JobSheets{{first}, m_sofar.isTwoSided};
            Q_EMIT firstKnown();
        });
    }
    m_document->start();
}

void SheetCounter::documentCounted()
{
    m_sofar.documents += m_document->takeSheets();
    m_document.release()->deleteLater();
    countNext();
}

// What there was no time for is not counted.
void SheetCounter::end(DocumentSheets::Trouble trouble)
{
    m_patience.stop();
    m_document.reset();
    m_folder.reset();
    for (qsizetype i = m_sofar.documents.size(); i < m_request->documents.size(); ++i) {
        m_sofar.documents += DocumentSheets{m_request->documents.at(i).title};
        m_sofar.documents.last().trouble = trouble;
    }
    m_begun.reset();
    m_sheets = std::exchange(m_sofar, {});
    Q_EMIT finished();
}

} // namespace corvana
