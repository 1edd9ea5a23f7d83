#pragma once

#include <memory>

#include <QObject>

#include "tests/e2e/ProgramRunner.h"
#include "tests/support/TestPaths.h"
#include "tests/support/cups/PrivateCups.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

// What is printed, and the sample printer that it is printed on.
inline const QString kPpd = sourceFile("resources/ppd/corvana-cl5.ppd"_L1);
inline const QString kThreePages = sourceFile("resources/sample/welcome.pdf"_L1);
inline const QString kPicture = sourceFile("tests/data/page.png"_L1);
inline const QString kText = sourceFile("tests/data/page.txt"_L1);

/// How long a queue may take on a busy machine. Units: milliseconds.
inline constexpr int kQueuePatience = 20000;

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

/// The whole content of a file; empty when it cannot be read.
QByteArray readAll(const QString &path);

/// What the sample printers' PPDs send for a choice ("QXMediaType=Thick").
QByteArray codeOf(const QByteArray &choice);

} // namespace corvana::test
