#pragma once

#include <memory>
#include <utility>

#include <QObject>
#include <QString>
#include <QTemporaryDir>

#include "dialog/job/Conversion.h"
#include "dialog/job/PdfPages.h"
#include "dialog/job/ProgramRun.h"
#include "dialog/job/TextDocuments.h"
#include "dialog/sheets/SheetCounter.h"

namespace corvana {

/// Counts what comes out of one document: makes a PDF of it, asks how many pages that has, has it
/// laid out as the job wants it, and asks again. A probe, laid out in the same way, tells the
/// scale and which way round the pages lie. Of a long document the first sheets are laid out alone
/// before, where that gives the same.
///
/// Thread: GUI thread; whatever takes time is a process of its own, which ends with this object.
class DocumentCount : public QObject
{
    Q_OBJECT

public:
    /// `folder` is for files that nobody else writes. `ppd` holds the traits of the request.
    DocumentCount(const SheetRequest &request, const Document &document, const QString &ppd,
                  const QString &folder, QObject *parent = nullptr);
    ~DocumentCount() override;

    /// Starts. `finished` follows in every case, never before this returns.
    void start();
    /// What was found out, once it has finished. Given away, since this object may live on for a
    /// moment, and the sides belong to whoever shows them.
    DocumentSheets takeSheets() { return std::move(m_sheets); }

Q_SIGNALS:
    /// The first sheets are known, as those of a document that has no further pages. `finished`
    /// follows with all of them.
    void begun(const corvana::DocumentSheets &first);
    /// `problem` is for a log; empty when everything was counted.
    void finished(const QString &problem);

private:
    QString file(const QString &name) const { return m_folder + u'/' + name; }
    void makePdf();
    void convertPicture();
    void convertText();
    void lookAtPages();
    void choosePrinted();
    void layOutFirst();
    void keepFirst(const PdfPages &sides);
    void layOut();
    void countSides();
    void layOutProbe();
    void readProbe(const QList<PdfPage> &kinds);
    void probed();
    ConversionRequest layoutOf(const QString &pdf, const QString &result) const;
    static bool makeFolder(std::unique_ptr<QTemporaryDir> &folder, QString *problem);
    void keepSides(const PdfPages &sides);
    QString sidesPath() const { return m_sides->filePath(QStringLiteral("sides.pdf")); }
    void fail(const QString &problem);

    // Each calls `then` when it is done, and fail() when it could not be.
    void convert(const ConversionRequest &request, const std::function<void(bool empty)> &then);
    void run(const char *program, const QStringList &arguments,
             const std::function<void(const QByteArray &)> &then);

    // How the sides lie.
    struct Turning
    {
        int rotation = 0; // of the sides, as their pages say
        int picture = 0;  // of what is on the pages of the document
    };
    // The first sheets, while nothing but these is laid out.
    struct First
    {
        int pages = 0;                         // that they are made of; 0: nobody works at them
        std::unique_ptr<QTemporaryDir> folder; // holds their sides until these are known
        DocumentSheets sheets;
    };

    SheetRequest m_request;
    Document m_document;
    QString m_ppd;
    QString m_folder;
    QString m_pdf;                          // of the document
    std::unique_ptr<QTemporaryDir> m_sides; // holds the sides until they are known
    bool m_isLaidOut = false;               // that PDF, at once
    Turning m_turning;
    First m_first;
    DocumentSheets m_sheets;
    QList<PdfPage> m_pages;                 // of the document, as far as they were described
    QList<PdfPage> m_printed;               // among them
    std::unique_ptr<TextDocuments> m_texts; // holds the PDF of a text
    std::unique_ptr<Conversion> m_conversion;
    std::unique_ptr<FilterChain> m_chain;
    std::unique_ptr<ProgramRun> m_run;
};

} // namespace corvana
