#include <QTest>

#include "dialog/terminal/ExitStatus.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Kind = JobOutcome::Kind;

namespace {

// What scripts rely on: numbers that never change.
struct StatusOf
{
    const char *name;
    Kind kind;
    int status;
};
constexpr StatusOf kStatuses[] = {
    {"printed", Kind::Printed, 0},
    {"sent", Kind::Sent, 0},
    {"in its queue", Kind::InQueue, 0},
    {"stopped", Kind::Stopped, 1},
    {"failed", Kind::Failed, 1},
    {"canceled", Kind::Canceled, 1},
    {"already there", Kind::AlreadyThere, 1},
    {"another printer by now", Kind::PrinterChanged, 1},
    {"not known", Kind::Unknown, 3},
};

} // namespace

/// How a run says to a script what became of its job.
class ExitStatusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyOutcomeHasItsStatus_data() { addRows(kStatuses); }
    void everyOutcomeHasItsStatus()
    {
        const auto &[name, kind, status] = currentRow(kStatuses);
        JobOutcome outcome;
        outcome.kind = kind;
        QCOMPARE(int(exitStatusOf(outcome)), status);
        QCOMPARE(outcome.isDone(), status == 0);
    }

    void everyStatusHasAMeaning()
    {
        QList<int> statuses;
        for (const ExitStatusMeaning &one : exitStatusMeanings()) {
            statuses += int(one.status);
            QVERIFY(!one.meaning.isEmpty());
        }
        QCOMPARE(statuses, (QList<int>{0, 1, 2, 3, 4}));
    }
};

QTEST_GUILESS_MAIN(ExitStatusTest)

#include "exit_status_test.moc"
