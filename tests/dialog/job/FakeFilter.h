#pragma once

#include <memory>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "dialog/job/FileJob.h"
#include "tests/dialog/job/Variable.h"

namespace corvana::test {

/// Stands in for the program that runs the filter chain: a shell script of the test's own, named by
/// the environment for as long as this object lives. Beside it lies a document, a PPD and the place
/// for the output.
class FakeFilter
{
public:
    /// `script` follows the first line of a shell script; "$DIR" in it is the folder.
    explicit FakeFilter(const QByteArray &script);

    Document document() const;
    /// Prints the document to the output.
    FileJobRequest request(const JobTicket &ticket = {}) const
    {
        return {{document()}, ticket, ppdPath(), output()};
    }
    QString ppdPath() const { return path(QStringLiteral("printer.ppd")); }
    QString output() const { return path(QStringLiteral("out.ps")); }
    QString path(const QString &name) const { return m_folder.filePath(name); }
    /// What a file in the folder holds; null when there is none.
    QByteArray content(const QString &name) const;
    bool hasOutput() const { return !content(QStringLiteral("out.ps")).isNull(); }
    /// Unfinished files beside the output.
    QStringList leftOvers() const;
    /// Waits until the script has made a file. Errors: false after ten seconds.
    bool waitForFile(const QString &name) const;
    /// Waits until the process, whose number the script wrote into a file, is gone.
    /// Errors: false after ten seconds.
    bool waitForEndOf(const QString &pidFile) const;

private:
    QTemporaryDir m_folder;
    std::unique_ptr<Variable> m_named;
};

} // namespace corvana::test
