#pragma once

#include <memory>

#include <QDateTime>
#include <QHash>
#include <QObject>

#include "dialog/documents/DocumentState.h"
#include "dialog/documents/DocumentWatch.h"
#include "dialog/documents/DocumentWorker.h"
#include "dialog/job/Document.h"

namespace corvana {

/// Looks into documents before anything else does: whether they are protected, forbid printing, or
/// are damaged, and whether a camera notes that a picture is to be turned, which no filter of CUPS
/// follows. Where a document is printed with a password, not whole, or turned, a copy is made of
/// what is printed, which lasts as long as somebody holds the document that printed() answers.
///
/// What cannot be found out is nothing that stands in the way of printing: the filter chain looks
/// once more.
///
/// Thread: GUI thread; documents are read by a process of its own.
class DocumentChecks : public QObject
{
    Q_OBJECT

public:
    explicit DocumentChecks(RendererSettings settings = RendererSettings::shipped(),
                            QObject *parent = nullptr);
    ~DocumentChecks() override;

    /// From here on documents are looked into only once begin() was called. The process that looks
    /// takes as long to start as a window does, and would take processors and memory from it.
    void hold() { m_isHeld = true; }
    void begin();

    /// Tried with each document that asks for one, without anybody being asked.
    void addPassword(const QString &password);
    /// Looks at those that nobody has looked at, or that are others by now; the rest is forgotten.
    /// changed() follows where there are any.
    void check(const QList<Document> &documents);
    /// For somebody who sees for long what was found: outdated() follows when a document of the
    /// last check() has become another one.
    void follow();
    /// Whether all documents of the last check() were looked at.
    bool isDone() const;
    /// Kind::Unknown while nobody has looked.
    DocumentState stateOf(const Document &document) const;
    /// Looks at a document once more, with a password. changed() follows.
    void unlock(const Document &document, const QString &password);
    /// What is printed of a document: itself, or the copy.
    Document printed(const Document &document) const;

Q_SIGNALS:
    /// All documents of the last check() were looked at.
    void changed();
    /// Nobody has looked yet at what a document is now: check() does.
    void outdated();

private:
    struct Known
    {
        qint64 size = 0;
        QDateTime time;
        int work = 0; // its number while somebody looks
        DocumentState state;
        std::shared_ptr<QTemporaryDir> copy;
    };

    void look(const Document &document, const QStringList &passwords);
    void hand(const DocumentWorker::Work &work);
    void take(const DocumentWorker::Found &found);

    RendererSettings m_settings;
    QHash<QString, Known> m_known; // by path
    QStringList m_files;           // of the last check(), whatever is in them
    std::unique_ptr<DocumentWatch> m_watch;
    QStringList m_passwords;
    int m_lastWork = 0;
    bool m_isHeld = false;
    QList<DocumentWorker::Work> m_held;       // until begin()
    std::unique_ptr<DocumentWorker> m_worker; // once there is a document to be looked at
};

} // namespace corvana
