#include "dialog/job/Job.h"

#include <utility>

#include <QEventLoop>
#include <QLoggingCategory>
#include <QTimer>

namespace corvana {

Q_LOGGING_CATEGORY(lcOutcome, "corvana.dialog.job.outcome", QtWarningMsg)

Job::Job(QObject *parent) : QObject(parent) {}

Job::~Job() = default;

JobOutcome Job::wait()
{
    QEventLoop loop;
    connect(this, &Job::finished, &loop, &QEventLoop::quit);
    if (!m_told)
        loop.exec();
    return *m_outcome;
}

void Job::report(const JobProgress &progress)
{
    if (!m_outcome && std::exchange(m_progress, progress) != progress)
        Q_EMIT progressed(progress);
}

void Job::finish(const JobOutcome &outcome)
{
    if (m_outcome)
        return;
    // Whoever printed tells the user; a warning would say the same once more.
    qCInfo(lcOutcome).noquote() << outcome.text;
    m_outcome = outcome;
    QTimer::singleShot(0, this, [this] {
        m_told = true;
        Q_EMIT finished(*m_outcome);
    });
}

} // namespace corvana
