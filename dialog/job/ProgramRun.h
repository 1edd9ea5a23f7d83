#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTimer>

namespace corvana {

/// Runs one program that looks into a file of a stranger and says what it has found. Its time, its
/// memory and what it says are bounded, so that no file can hold the dialog up. The program ends
/// with this object.
///
/// One object runs one program. Thread: GUI thread; the program is a process of its own.
class ProgramRun : public QObject
{
    Q_OBJECT

public:
    struct Limits
    {
        int milliseconds = 20000;
        qint64 outputBytes = 16LL << 20;
    };

    ProgramRun(const QString &program, const QStringList &arguments, const Limits &limits,
               QObject *parent = nullptr);
    ~ProgramRun() override;

    /// Starts. `finished` follows in every case, never before this returns.
    void start();
    /// The exit status of a program that has ended by itself; -1 before that, and for any other.
    int exitStatus() const { return m_exitStatus; }

Q_SIGNALS:
    /// `problem` is for a log; empty when the program has done its work.
    void finished(const QByteArray &output, const QString &problem);

private:
    void read();
    void ended(int exitCode, QProcess::ExitStatus status);
    void stop(const QString &why);
    void finish(const QString &problem);

    QProcess m_process;
    Limits m_limits;
    QTimer m_patience;
    QByteArray m_output;
    QString m_stopped; // why
    int m_exitStatus = -1;
    bool m_told = false;
};

} // namespace corvana
