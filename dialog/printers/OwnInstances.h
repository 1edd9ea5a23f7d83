#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace corvana {

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

    /// "NAME/INSTANCE" to the name that its settings have for people, such as a preset's. A file
    /// that is damaged knows none.
    QMap<QString, QString> read() const;
    QStringList names() const { return read().keys(); }
    /// Errors: both answer a sentence for the user. A file that is damaged is kept beside the new
    /// one, as "instances.json.damaged".
    QString note(const QString &name, const QString &settings) const;
    QString forget(const QString &name) const;

private:
    QString m_path;
};

} // namespace corvana
