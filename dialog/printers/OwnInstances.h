#pragma once

#include <optional>

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// An instance that this program has written, and of what.
struct OwnInstance
{
    QString settings{}; ///< the name that they have for people, such as a preset's
    /// The model of the printer where the settings are a preset; nothing where they are kept
    /// nowhere else, and for what earlier versions have noted.
    std::optional<QString> model{};
    bool isForAll = false; ///< the preset is one for the printers of all models
    /// What was written, the last first. Several, because one of them may not have got as far as
    /// the file.
    QList<QList<JobOption>> written{};

    bool operator==(const OwnInstance &) const = default;

    /// Whether its settings are no preset's: no preset of that name changes or removes it. What
    /// earlier versions have noted may be either.
    bool isByItself() const { return !model && !written.isEmpty(); }

    /// Whether an instance is still what was written. What libcups does to it when it writes the
    /// file is no change: it leaves out attributes that the queue has as defaults, and adds what
    /// the user has set for the queue (`ofQueue`). Anything else is somebody else's work.
    bool isAsWritten(const QList<JobOption> &found, const QList<JobOption> &ofQueue) const;
};

/// Which instances in lpoptions this program has written, and of what. They can be told from those
/// that somebody else has made by nothing else: a mark among their options would go to printers,
/// and a comment in the file is gone when libcups writes it.
///
/// In $XDG_DATA_HOME/corvana-print/instances.json. A value; what reads or writes the file may be
/// called on any thread.
class OwnInstances
{
public:
    explicit OwnInstances(const QString &path = usualPath()) : m_path(path) {}
    static QString usualPath();

    /// By "NAME/INSTANCE". A file that is damaged, or of a later version, knows none.
    QMap<QString, OwnInstance> read() const;
    QStringList names() const { return read().keys(); }
    /// Why nothing is known although something was noted: a sentence for the user; empty where that
    /// is not so.
    QString damage() const;

    // Errors: these answer a sentence for the user, and nothing has changed. A file that is damaged
    // is kept beside the new one, as "instances.json.damaged" and, of several, with a number; one
    // of a later version of this program is not changed.

    /// Before instances are written: `options` are what will stand there, by their names. Of
    /// `instance`, what was written before is not looked at.
    QString note(const QMap<QString, QList<JobOption>> &options, const OwnInstance &instance) const;
    /// What was noted last has not got into the file, as far as is known: what was noted before it
    /// is forgotten after it.
    QString noteFailure(const QStringList &names) const;
    /// Settings have another name now.
    QString rename(const QStringList &names, const QString &settings) const;
    QString forget(const QStringList &names) const;

private:
    QString m_path;
};

} // namespace corvana
