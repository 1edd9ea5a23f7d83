#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// Two roots for bundles in a temporary folder, helpers that fill them, and the mark that running
/// code of a test module leaves.
class BundleFolder
{
public:
    BundleFolder();

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString root() const { return path(QStringLiteral("first")); }
    QString otherRoot() const { return path(QStringLiteral("second")); }
    QStringList roots() const { return {root(), otherRoot()}; }

    /// The dictionary of a bundle whose module is `executable`.
    static QByteArray info(const QByteArray &executable);

    /// Makes the bundle folder `bundle` with a copy of the test module `module` in its sub-folder
    /// "module"; without a module the sub-folder stays empty. False when a file cannot be written.
    static bool makeBundle(const QString &bundle, const QString &module, const QByteArray &info);
    static bool write(const QString &file, const QByteArray &contents);
    static bool copyModule(const QString &module, const QString &file);

    /// How often code of a test module started to run since this object was made.
    qint64 marks() const;

private:
    QTemporaryDir m_folder;
};
