#pragma once

#include <functional>

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QTimer>

#include "dialog/printers/Printer.h"
#include "dialog/printers/UserQueues.h"
#include "dialog/server/ServerWork.h"

namespace corvana {

/// The queues of a print server, found in the background and kept up to date: a queue that is
/// added, renamed, stopped or deleted shows within seconds, a server that comes back as well.
///
/// Thread: GUI thread; the server is asked on another one.
class QueueList : public QObject
{
    Q_OBJECT

public:
    enum class State {
        Looking, ///< nothing is known yet
        Slow,    ///< the same, for longer than a server usually takes
        Known,   ///< the list is complete
        Failed,  ///< problem() says why; the printers are the ones known before
    };

    /// `isOffered` keeps queues out of the list, as if the server had none of that name.
    QueueList(ServerContext context, UserQueues userQueues,
              std::function<bool(const Printer &)> isOffered = {}, QObject *parent = nullptr);

    /// Looks now, and from then on every few seconds.
    void start();
    /// No one sees the list: nothing is asked any more until start(). A look that has begun, which
    /// the user may have been asked a password for, is taken.
    void pause();
    /// The user wants another try, and may be asked for a password. Not while a question stands:
    /// its answer is the other try.
    void retry();

    /// A question for a user and a password is put, and is answered: in between it is the server
    /// that waits, whatever time passes. Calls pair up.
    void questionPut();
    void questionAnswered();

    /// In the order in which people look for them: by what they are called.
    const QList<Printer> &printers() const { return m_printers; }
    State state() const { return m_state; }
    const ServerProblem &problem() const { return m_problem; }
    const ServerContext &context() const { return m_context; }
    /// The user's default, else the server's; "NAME" or "NAME/INSTANCE"; empty when there is none.
    QString defaultName() const;

Q_SIGNALS:
    void changed();

private:
    void look(bool mayAsk);
    void take(const QList<Printer> &printers, const QString &serverDefault, bool complete);
    void finished(const ServerProblem &problem);
    void enter(State state);

    ServerContext m_context;
    UserQueues m_userQueues;
    std::function<bool(const Printer &)> m_isOffered; // empty: all are
    ServerWork m_work;
    QTimer m_next; // the next look
    QTimer m_slow; // when an answer is late
    QElapsedTimer m_started;
    QElapsedTimer m_questioned;
    qint64 m_waitedForUser = 0; // of the time since m_started; milliseconds
    int m_questions = 0;        // that stand
    QList<Printer> m_printers;
    QString m_serverDefault;
    ServerProblem m_problem;
    State m_state = State::Looking;
    bool m_everComplete = false;
    bool m_active = false;
    bool m_looking = false; // a server is being asked
};

} // namespace corvana
