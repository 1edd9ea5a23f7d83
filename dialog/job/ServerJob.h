#pragma once

#include <memory>

#include <QTemporaryDir>

#include "dialog/job/Conversion.h"
#include "dialog/job/Document.h"
#include "dialog/job/Handover.h"
#include "dialog/job/Job.h"
#include "dialog/job/TextDocuments.h"

namespace corvana {

/// Hands one job to a print server and follows it: converts what has to be converted, creates the
/// job, sends the documents, and asks for the job again before anything is called printed.
class ServerJob : public Job
{
    Q_OBJECT

public:
    explicit ServerJob(const ServerJobRequest &request, QObject *parent = nullptr);
    ~ServerJob() override;

    void start() override;
    void cancel() override;
    bool isCanceled() const override { return m_canceled; }
    void letGo() override;
    /// Whether the server has all of the job.
    bool isHandedOver() const override { return m_handedOver; }

private:
    QList<JobOption> refusedOptions() const;
    QList<JobOption> layout() const;
    bool isTaken(const JobOption &option) const;
    bool laysOutTexts() const;
    void layOutTexts();
    void convert();
    void convertForQueue();
    void convertForDevice();
    bool needsJobsOfTheirOwn() const;
    void putTogether();
    void pickNext();
    ConversionRequest toPdf(const QList<JobOption> &pages) const;
    ConversionRequest toRaster() const;
    void runConversion(const ConversionRequest &request, QLatin1StringView format);
    void converted(const QString &problem, bool isPicked);
    void send(const QList<Document> &documents, const JobTicket &ticket);
    QString remarkOn(const JobTicket &ticket, int documents) const;
    void followed(const JobProgress &progress);

    ServerJobRequest m_request;
    std::unique_ptr<TextDocuments> m_texts;
    std::unique_ptr<QTemporaryDir> m_parts;
    std::unique_ptr<Conversion> m_conversion;
    Document m_converted;
    QList<Document> m_picked;
    qsizetype m_pickedOf = 0; // documents
    bool m_isPutTogether = false;
    bool m_sendsSeparately = false;
    ServerWork m_work;
    bool m_canceled = false;
    bool m_handedOver = false;
};

} // namespace corvana
