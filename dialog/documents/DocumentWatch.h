#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QTimer>

namespace corvana {

/// Says when files have become others: written to, replaced by another one of that name, or gone.
///
/// Use it for what is shown of a file for long. It is no proof that a file is still the same: on
/// network file systems nobody may tell.
///
/// Thread: that of its owner.
class DocumentWatch : public QObject
{
    Q_OBJECT

public:
    explicit DocumentWatch(QObject *parent = nullptr);

    /// Watches these files, as they are now, and no others.
    void watch(const QStringList &paths);

Q_SIGNALS:
    /// Once nobody has written for a moment. Until the next watch() each further state is said.
    void changed();

private:
    struct State
    {
        qint64 size = -1; ///< of a file that is not there
        QDateTime time{};

        bool operator==(const State &) const = default;
    };

    static State stateOf(const QString &path);
    void follow();
    void look();

    QFileSystemWatcher m_files;
    QTimer m_quiet; // since the last event
    QHash<QString, State> m_states;
};

} // namespace corvana
