#pragma once

#include <memory>

#include <QTemporaryDir>

#include "dialog/job/FilterChain.h"
#include "dialog/job/ServerJob.h"
#include "dialog/sheets/PassPdf.h"

namespace corvana {

/// Prints one pass of a job whose sheets go through the printer twice: makes a PDF of its sides and
/// hands that to the print server as a job of its own.
class PassJob : public Job
{
    Q_OBJECT

public:
    /// `request` is that of the whole job; its documents are not looked at. `sides` is what a
    /// progress says of the pass.
    PassJob(const ServerJobRequest &request, const PassSource &source, JobProgress::Sides sides,
            QObject *parent = nullptr);
    ~PassJob() override;

    void start() override;
    void cancel() override;
    bool isCanceled() const override { return m_canceled || (m_job && m_job->isCanceled()); }
    void letGo() override;
    bool isHandedOver() const override { return m_job && m_job->isHandedOver(); }

private:
    QString writeBlanks(const QList<BlankPage> &blanks) const;
    void made(const QString &problem);
    void tell(JobProgress progress);

    ServerJobRequest m_request;
    PassSource m_source;
    JobProgress::Sides m_sides;
    QTemporaryDir m_folder;
    FilterChain m_chain;
    std::unique_ptr<ServerJob> m_job; // once there is a PDF
    bool m_canceled = false;
};

/// The options of a job whose sides were laid out already and are printed as they are.
QList<JobOption> optionsOfPass(const QList<JobOption> &options);

} // namespace corvana
