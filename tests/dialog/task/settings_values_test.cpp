#include <QTest>

#include "dialog/task/SettingsValues.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

using Marks = QMap<QString, QString>;

/// Two states of one printer: what is marked, and what stands beside the marks.
struct StatePair
{
    const char *name;
    Marks marks;
    Marks beside;
    Marks otherMarks;
    Marks otherBeside;
    QStringList different;
};

const QList<StatePair> kPairs{
    {"the same", {{u"A"_s, u"1"_s}}, {}, {{u"A"_s, u"1"_s}}, {}, {}},
    {"another mark",
     {{u"A"_s, u"1"_s}, {u"B"_s, u"1"_s}},
     {},
     {{u"A"_s, u"2"_s}, {u"B"_s, u"1"_s}},
     {},
     {u"A"_s}},
    {"marks that only one has",
     {{u"A"_s, u"1"_s}, {u"B"_s, u"1"_s}},
     {},
     {{u"B"_s, u"1"_s}, {u"C"_s, u"1"_s}},
     {},
     {u"A"_s, u"C"_s}},
    {"what stands beside marks is in front of them",
     {{u"A"_s, u"1"_s}},
     {{u"A"_s, u"3"_s}},
     {{u"A"_s, u"2"_s}},
     {{u"A"_s, u"3"_s}},
     {}},
    {"a mark that says what stands beside the other's",
     {{u"A"_s, u"1"_s}},
     {{u"A"_s, u"2"_s}},
     {{u"A"_s, u"2"_s}},
     {},
     {}},
    {"a mark that says something else",
     {{u"A"_s, u"2"_s}},
     {},
     {{u"A"_s, u"2"_s}},
     {{u"A"_s, u"3"_s}},
     {u"A"_s}},
    {"what is beside the marks of one only",
     {},
     {},
     {},
     {{u"Z"_s, u"1"_s}, {u"A"_s, u"1"_s}},
     {u"A"_s, u"Z"_s}},
};

TaskSettings stateOf(TaskSettings state, const Marks &marks, const Marks &beside)
{
    state.session.marks = marks;
    state.session.customValues = beside;
    return state;
}

} // namespace

class SettingsValuesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatDiffersIsNamed_data() { addRows(kPairs); }
    void whatDiffersIsNamed()
    {
        const auto &row = currentRow(kPairs);
        TaskScene scene;
        const PrintTask &task = scene.open(scene.request(officePrinter()));
        const TaskSettings now = task.settingsNow();
        const TaskSettings one = stateOf(now, row.marks, row.beside);
        const TaskSettings other = stateOf(now, row.otherMarks, row.otherBeside);
        QCOMPARE(differences(one, other, *task.opened()), row.different);
        QCOMPARE(differences(other, one, *task.opened()), row.different);
    }
};

QTEST_MAIN(SettingsValuesTest)
#include "settings_values_test.moc"
