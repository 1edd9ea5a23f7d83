#pragma once

#include <sys/types.h>

#include <QByteArray>
#include <QFile>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTimer>

#include "dialog/job/FilterLog.h"
#include "dialog/job/FilterPlan.h"
#include "dialog/job/FiltersFiles.h"

namespace corvana {

/// Runs the programs of a plan, each after the other. A program and all that it starts are one
/// process group, which is stopped as a whole, and which ends with this object. What filters that
/// are stopped would leave in `/tmp` is removed.
///
/// Filters do not notice a full disk, so that what they write to their standard output is put into
/// the file here.
///
/// One object runs one plan. Thread: GUI thread.
class FilterChain : public QObject
{
    Q_OBJECT

public:
    explicit FilterChain(QObject *parent = nullptr);
    ~FilterChain() override;

    /// Starts. `finished` follows in every case, never before this returns. `secrets` are what no
    /// log and no message may hold.
    void start(const FilterPlan &plan, const QStringList &secrets);

    /// Stops the chain, by force when it does not stop by itself; `finished` follows with a
    /// failure. Does nothing when no program runs.
    void cancel();
    /// Whether cancel() was in time.
    bool isCanceled() const { return m_canceled; }
    /// Whether the last step yielded nothing, without any program calling that a failure.
    bool cameOutEmpty() const { return m_cameOutEmpty; }

Q_SIGNALS:
    /// A filter has come to this page. Range: 1 and more.
    void pageReached(int page);
    /// `problem` is empty when every program has done its work.
    void finished(const QString &problem);

private:
    const FilterStep &step() const { return m_plan.constFirst(); }
    void startNextStep();
    QStringList argumentsOfStep(QString *problem) const;
    void skipStep();
    void goOn();
    void stepFinished(int exitCode, QProcess::ExitStatus status);
    QString problemOfStep(int exitCode, QProcess::ExitStatus status) const;
    QString problemOfWriting() const;
    void stop();
    void signalGroup(int signal);
    void kill();
    void holdStill();
    void readLog();
    void readOutput();
    void closeOutput();
    void finish(const QString &problem);

    FilterPlan m_plan; // the current step first
    QStringList m_secrets;
    QProcess m_process;
    pid_t m_group = 0;        // of the program that was started last
    QFile m_output;           // of the current step; closed where it writes a file of its own
    QString m_writeError;     // why that could not be written
    FilterLog m_log;          // of the current step
    QTimer m_patience;        // with the current step
    QList<FilterFile> m_left; // of filters that were told to end
    bool m_tookTooLong = false;
    bool m_canceled = false;
    bool m_cameOutEmpty = false;
};

} // namespace corvana
