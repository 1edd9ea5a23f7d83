#pragma once

#include <memory>

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace corvana::test {

/// How a run of the program ended.
struct RunEnd
{
    int status = -1; ///< the exit status; -1 when it crashed or had to be killed
    QString out{};
    QString err{};

    /// All of it, where a test that fails is to show it.
    QByteArray text() const;
};

/// A run that goes on while the test does something else. Killed with this object.
class ProgramRun
{
public:
    ProgramRun(const QProcessEnvironment &environment, const QStringList &arguments,
               const QString &standardInput);
    ~ProgramRun();
    ProgramRun(const ProgramRun &) = delete;
    ProgramRun &operator=(const ProgramRun &) = delete;

    bool isRunning();
    /// What it has written so far.
    QString out();
    QString err();
    /// As Ctrl+C in a terminal.
    void interrupt();
    /// Waits for its end, which is forced when it does not come in time.
    RunEnd wait();

private:
    void read();

    QProcess m_process;
    QByteArray m_out;
    QByteArray m_err;
};

/// Runs corvana-print without a window and without a terminal, as a user with a home of its own who
/// has set nothing.
class ProgramRunner
{
public:
    /// `server`: the print server of the user's environment, "HOST:PORT".
    /// Errors: throws std::runtime_error when it can have no home.
    explicit ProgramRunner(const QString &server);

    void setVariable(const QString &name, const QString &value);
    /// The user's ~/.cups/lpoptions. Errors: throws std::runtime_error.
    void setUserOptions(const QByteArray &lines);
    /// A name in a folder of the user's own.
    QString filePath(const QString &name) const { return m_home.filePath(name); }

    /// `standardInput`: a file; empty for none.
    std::unique_ptr<ProgramRun> start(const QStringList &arguments,
                                      const QString &standardInput = {}) const;
    RunEnd run(const QStringList &arguments, const QString &standardInput = {}) const;

private:
    QTemporaryDir m_home;
    QProcessEnvironment m_environment;
};

/// The number of the job that a message names as "QUEUE-NUMBER"; 0 when it names none of the queue.
int jobNamed(const QString &queue, const QString &text);

} // namespace corvana::test
