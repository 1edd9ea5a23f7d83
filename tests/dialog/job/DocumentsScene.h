#pragma once

#include <memory>

#include <QList>
#include <QStringList>
#include <QTemporaryDir>

#include "dialog/job/FileJob.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/job/Variable.h"

namespace corvana::test {

/// Two documents that are printed into a file, where "yesterday's" stands, through a filter chain
/// of the test's own. Each of its calls is a stage; see the script in DocumentsScene.cpp for what a
/// test can make of it.
class DocumentsScene
{
protected:
    void begin();
    void end();

    QString path(const QString &name) const { return m_filter->path(name); }
    Document document(const QString &name) const;
    QList<Document> documents() const;
    QStringList lines(const QString &name) const;
    QStringList temporaryFiles() const;
    /// Gives an order, such as "fail-one.txt".
    void make(const QString &name);
    FileJobRequest request(const QList<Document> &list, const JobTicket &ticket = {}) const;
    /// What became of a job: empty when it was printed.
    QString printed(const QList<Document> &list, const JobTicket &ticket = {});
    /// After a failure: the former file, nothing beside it, and another job that works.
    void verifyNothingIsLeft();

    std::unique_ptr<FakeFilter> m_filter;
    std::unique_ptr<QTemporaryDir> m_temporary;
    QStringList m_leftAtTheEnd; // beside the output and for the time being, when it was told

private:
    std::unique_ptr<Variable> m_path;
    std::unique_ptr<Variable> m_temporaryPath;
};

} // namespace corvana::test
