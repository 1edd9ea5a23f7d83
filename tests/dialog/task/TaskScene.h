#pragma once

#include <memory>

#include "dialog/task/PrintTask.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/support/ScriptedFace.h"
#include "tests/support/PpdBuilder.h"

namespace corvana::test {

/// A task with a face that nobody looks at. Its files are made by a filter that notes its
/// arguments, one a line, and prints "printed".
class TaskScene
{
public:
    TaskScene();
    ~TaskScene();

    /// A document for printers of the test's own.
    PrintRequest request(const QList<Printer> &printers) const;
    /// The same for one printer, whose PPD is this one.
    PrintRequest request(const PpdBuilder &ppd) const;
    /// A printer of a PPD that is written into a file.
    Printer printer(const QString &name, const QByteArray &ppd) const;

    /// A task that was not started.
    PrintTask &make(const PrintRequest &request);
    /// As a window starts: what is known at once is shown.
    PrintTask &open(const PrintRequest &request);

    PpdSession &session() const { return *task->opened()->session; }
    /// What the filter was called with. Empty when it was not.
    QByteArrayList arguments() const;
    /// Waits for a phase. Errors: false when it does not come.
    bool reaches(PrintTask::Phase phase) const;

    FakeFilter filter;
    ScriptedFace face;
    std::unique_ptr<PrintTask> task;
};

} // namespace corvana::test
