#pragma once

#include <functional>
#include <memory>

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include "dialog/job/Document.h"
#include "dialog/task/TaskMessage.h"

namespace corvana {

class SlowWork;

/// Documents that another program is writing yet (pipes, standard input), and whatever was chosen
/// behind one of them. Each is read to its end, one after the other, while everything can be set;
/// what cannot be read is said.
///
/// Thread: GUI thread; documents are read on another.
class ComingDocuments : public QObject
{
    Q_OBJECT

public:
    /// What a task was started with is nobody's step, and lies before what its user has added.
    enum class AskedBy { Request, User };

    /// `mayTake`: whether documents can be taken now. It is asked again until they can.
    explicit ComingDocuments(std::function<bool()> mayTake, QObject *parent = nullptr);
    ~ComingDocuments() override;

    /// Reads these, too, once proceed() is called.
    void await(const QStringList &paths, AskedBy by);
    /// What else could not be taken: it is said with what could not be read.
    void addProblems(const QStringList &problems) { m_problems += problems; }
    /// Hands over what has come, and reads what is next.
    void proceed();

    bool isReading() const { return bool(m_reading); }
    /// Says again what is being read; nothing while nothing is.
    void sayAgain();

Q_SIGNALS:
    void came(const QList<corvana::Document> &documents, corvana::ComingDocuments::AskedBy by);
    void said(const corvana::TaskMessage &message);
    /// What was said last is settled: its user waits for that document no longer.
    void unsaid();

private:
    struct Awaited
    {
        QString path;
        AskedBy by;
    };

    void handOver(AskedBy by);
    void read(const Awaited &next);
    TaskMessage message(const QString &path);

    std::function<bool()> m_mayTake;
    QList<Awaited> m_awaited;
    QList<Document> m_come; // and were not handed over
    QList<Document> m_comeOfRequest;
    std::unique_ptr<SlowWork> m_reading;
    TaskMessage m_message; // of what is being read
    QStringList m_problems;
};

} // namespace corvana
