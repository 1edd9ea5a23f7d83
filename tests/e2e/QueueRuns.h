#pragma once

#include <memory>

#include <QObject>

#include "tests/e2e/ProgramRunner.h"
#include "tests/support/cups/PrivateCups.h"

namespace corvana::test {

/// A server of its own for each test, and the program that prints to it without a window.
class QueueRuns : public QObject
{
    Q_OBJECT

protected:
    /// Prints to a queue that has to take it, and answers the only job that its device has got.
    CapturedJob printed(const QString &queue, const QStringList &arguments);
    /// The only job that a queue knows, finished or not.
    KnownJob onlyJob(const QString &queue) const;

    std::unique_ptr<PrivateCups> m_cups;
    std::unique_ptr<ProgramRunner> m_runner;

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
};

/// What the sample printers' PPDs send for a choice ("QXMediaType=Thick").
QByteArray codeOf(const QByteArray &choice);

} // namespace corvana::test
