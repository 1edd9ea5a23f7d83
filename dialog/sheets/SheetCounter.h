#pragma once

#include <deque>
#include <memory>
#include <optional>

#include <QDateTime>
#include <QElapsedTimer>
#include <QObject>
#include <QTemporaryDir>
#include <QTimer>

#include "dialog/job/Document.h"
#include "dialog/sheets/LayoutTraits.h"
#include "dialog/sheets/SheetCount.h"

namespace corvana {

class DocumentCount;

/// Of which job the sheets are counted.
struct SheetRequest
{
    QList<Document> documents;
    /// The options of the job, in the words of its printer's PPD.
    QList<JobOption> options;
    LayoutTraits traits;
    /// Whether the job picks pages before the filter chain even where the chain could do it.
    bool picksPages = false;
    /// Whether the job makes PDFs of pictures before anything is laid out, rather than have the
    /// chain's filter for pictures lay them out.
    bool makesPdfs = false;
    /// Whether the order of pages on a side is turned for their reader.
    bool turnsOrder = true;

    bool operator==(const SheetRequest &) const = default;
};

/// Counts the sheets of a job: what the layout step of the filter chain makes of its documents, one
/// copy of them. What was counted last is kept, and a newer request ends an older one.
///
/// A document that cannot be counted (it is damaged, takes too long, or makes a program crash) is
/// none that cannot be printed: the log says why it was not counted.
///
/// Thread: GUI thread; whatever takes time is a process of its own.
class SheetCounter : public QObject
{
    Q_OBJECT

public:
    enum class When { Now, Soon };

    explicit SheetCounter(QObject *parent = nullptr);
    ~SheetCounter() override;

    /// Counts, unless that was done or is being done. `finished` follows in every case, never
    /// before this returns, unless a newer request comes or cancel() is called. `Soon` waits for
    /// further changes where one has just been made.
    void count(const SheetRequest &request, When when);
    /// What was counted for this request; null while it was not.
    const JobSheets *counted(const SheetRequest &request) const;
    /// The first sheets of the job of this request, as those of a job that has no others; null
    /// while they are not known, and from when all are.
    const JobSheets *begun(const SheetRequest &request) const;
    /// Ends what is going on.
    void cancel();

Q_SIGNALS:
    /// The first sheets of a long document are known; `finished` follows with all of them.
    void firstKnown();
    void finished();

private:
    // Other contents under the same name are another document.
    struct Content
    {
        QString path;
        qint64 size = 0;
        QDateTime changed;

        bool operator==(const Content &) const = default;
    };
    static QList<Content> contentsOf(const SheetRequest &request);

    void begin();
    void countNext();
    void documentCounted();
    void end(DocumentSheets::Trouble trouble);
    bool isFor(const SheetRequest &request) const;

    std::optional<SheetRequest> m_request;
    QList<Content> m_contents;
    std::optional<JobSheets> m_sheets; // once they are counted
    std::optional<JobSheets> m_begun;  // until then, where they are known before
    JobSheets m_sofar;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<DocumentCount> m_document; // that is being counted
    bool m_turnsOrder = true;                  // as far as is known yet
    QElapsedTimer m_sinceAsked;
    QTimer m_delay;
    QTimer m_patience;
};

} // namespace corvana
