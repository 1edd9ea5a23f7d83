#pragma once

#include <memory>

#include <QList>
#include <QString>

#include "dialog/job/Conversion.h"
#include "dialog/job/Document.h"
#include "dialog/job/Job.h"
#include "dialog/job/ResultFile.h"
#include "dialog/job/SlowWork.h"
#include "dialog/job/TextDocuments.h"
#include "dialog/session/JobTicket.h"

namespace corvana {

/// A job whose result is a file.
struct FileJobRequest
{
    QList<Document> documents;
    JobTicket ticket;
    QString ppdPath;    ///< of the printer; never empty
    QString outputPath; ///< as it was named; a relative one is that of the current folder
    ResultFile::NamedBy namedBy = ResultFile::NamedBy::User;
    QList<int> turns{}; ///< as in ConversionRequest
};

/// Prints into a file: the documents go through the filter chain of CUPS with the printer's PPD and
/// become what the printer would have got. Texts are made into pages before that, and several
/// documents are put together into one PDF.
///
/// The result appears under its name when it is complete, see ResultFile.
class FileJob : public Job
{
    Q_OBJECT

public:
    explicit FileJob(const FileJobRequest &request, QObject *parent = nullptr);
    ~FileJob() override;

    void start() override;
    void cancel() override;
    bool isCanceled() const override { return m_canceled; }

private:
    QString prepare();
    void convert(const QString &problem);
    void converted(const QString &problem);
    void flush(const QString &problem);
    void publish(const QString &problem);
    void fail(const QString &problem);

    FileJobRequest m_request;
    std::unique_ptr<ResultFile> m_result;
    std::unique_ptr<TextDocuments> m_texts;
    std::unique_ptr<Conversion> m_conversion;
    std::unique_ptr<SlowWork> m_flush;
    bool m_canceled = false;
};

} // namespace corvana
