#pragma once

#include <memory>

#include <QList>
#include <QObject>
#include <QString>
#include <QTemporaryDir>

#include "dialog/job/Conversion.h"
#include "dialog/job/Document.h"
#include "dialog/session/JobTicket.h"
#include "dialog/text/TextConversion.h"

namespace corvana {

/// Whether a document is a text of which pages are made here, before anything else happens to it.
/// With the option "raw" everything goes to the printer as it is.
bool isTextToLayOut(const Document &document, const QList<JobOption> &options);

/// Whether there is any such text.
bool hasTextToLayOut(const QList<Document> &documents, const QList<JobOption> &options);

/// Whether pages have to be made of any document before anything else happens: of a text, or of
/// PostScript where the ticket says so.
bool hasDocumentToLayOut(const QList<Document> &documents, const JobTicket &ticket);

/// Makes PDFs of the texts among documents, with the fonts, the paper and the options of a job, and
/// of PostScript where its ticket says so; the other documents stay what they are.
///
/// One object serves one job, and holds the PDFs as long as it lives. Needs a QGuiApplication.
/// Thread: GUI thread; the work has a thread of its own.
class TextDocuments : public QObject
{
    Q_OBJECT

public:
    /// The options of the ticket are in the words of the PPD.
    TextDocuments(const QList<Document> &documents, const JobTicket &ticket, const QString &ppdPath,
                  QObject *parent = nullptr);
    ~TextDocuments() override;

    /// Starts. `finished` follows in every case, never before this returns.
    void start();
    /// Stops it; `finished` follows with a failure. Does nothing when it has finished.
    void cancel();
    /// What is printed from now on; the documents of the beginning until it has finished.
    const QList<Document> &documents() const { return m_documents; }

Q_SIGNALS:
    void pageReached(int page);
    /// `problem` is empty when no text is left.
    void finished(const QString &problem);

private:
    void convertNext();
    void layOutText(const QString &pdf);
    void convertPostScript(const QString &pdf);
    void converted(const QString &pdf, const QString &problem);
    void end(const QString &problem);

    QList<Document> m_documents;
    JobTicket m_ticket;
    QString m_ppdPath;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<TextConversion> m_conversion;
    std::unique_ptr<Conversion> m_chain; // for PostScript
    qsizetype m_next = 0;
    bool m_canceled = false;
};

/// The options of a job whose texts were made into pages: what shaped them is left out, unless
/// there is another document (of these, as they were before) that it shapes, too.
QList<JobOption> optionsAfterTexts(const QList<JobOption> &options,
                                   const QList<Document> &documents);

} // namespace corvana
