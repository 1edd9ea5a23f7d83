#include <functional>
#include <stdexcept>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "tests/e2e/DeskDay.h"
#include "tests/e2e/Holdings.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

// Eight hours at a desk: whatever is done again and again in one process leaves nothing behind and
// takes no longer than at first.
//
// A short run is made each time. CORVANA_ENDURANCE=500 prints 500 jobs, each in a window of its
// own, and switches 2,000 printers there and as many in one window that stays open; only such a run
// looks at how long things take, beside work that is the same each time. CORVANA_ENDURANCE_LOG=FILE
// keeps what was counted after each round.

namespace {

// Qt Test ends a test function after five minutes otherwise.
const bool kMayTakeAnHour = qputenv("QTEST_FUNCTION_TIMEOUT", "3600000");

constexpr int kUsualWindows = 9;
constexpr int kUsualRounds = 12;
constexpr int kSwitches = 4;      // of printers, in each round
constexpr int kEnoughToTime = 60; // rounds
// Of memory that a round may leave behind. Units: bytes
constexpr qint64 kMostBytes = 4096;
// The same of a window that stays open, until it has as many steps as it lets somebody undo, and
// until what only caches keep is spread over enough rounds.
constexpr int kEnoughForSteps = 300;
constexpr qint64 kMostBytesWithSteps = 128 * 1024;
constexpr double kMostSlowdown = 1.1;

int rounds(int usual)
{
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue("CORVANA_ENDURANCE", &isNumber);
    return isNumber ? qMax(usual, value) : usual;
}

void keep(const char *test, const Holdings &now)
{
    const QString path = qEnvironmentVariable("CORVANA_ENDURANCE_LOG");
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::Append))
        return;
    QTextStream(&file) << test << ' ' << now.memory << ' ' << now.descriptors << ' ' << now.threads
                       << ' ' << now.children << ' ' << now.temporaryFiles << ' ' << now.widgets
                       << '\n';
}

} // namespace

class EnduranceTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_home;
    QString m_temporary;
    QString m_jobs;

    static void tell(const QList<Holdings> &rounds, const DeskDay &desk)
    {
        const Holdings &end = rounds.constLast();
        QStringList acts;
        for (int i = 0; i < kDeskActs; ++i) {
            const auto act = static_cast<DeskAct>(i);
            const QList<double> &times = desk.times(act);
            if (times.isEmpty())
                continue;
            QString text = u"%1 %2"_s.arg(times.size()).arg(QLatin1StringView(nameOf(act)));
            if (times.size() >= kEnoughToTime)
                text += u" (x%1)"_s.arg(slowdownIn(times), 0, 'f', 3);
            acts += text;
        }
        qInfo().noquote() << u"%1; %2 bytes a round; %3 descriptors, %4 threads, %5 children, "
                             "%6 temporary files"_s.arg(acts.join(u", "_s))
                                 .arg(memoryPerRound(rounds))
                                 .arg(end.descriptors)
                                 .arg(end.threads)
                                 .arg(end.children)
                                 .arg(end.temporaryFiles);
    }
    static QString slowedDown(const DeskDay &desk)
    {
        QStringList problems;
        for (int i = 0; i < kDeskActs; ++i) {
            const auto act = static_cast<DeskAct>(i);
            const QList<double> &times = desk.times(act);
            if (times.size() >= kEnoughToTime && slowdownIn(times) > kMostSlowdown)
                problems += u"%1 takes %2 times as long"_s.arg(QLatin1StringView(nameOf(act)))
                                .arg(slowdownIn(times));
        }
        return problems.join(u"; "_s);
    }

    // Until something is not done; what is held after each round.
    QList<Holdings> repeat(int rounds, const std::function<void()> &round) const
    {
        QList<Holdings> after;
        try {
            for (int i = 0; i < rounds; ++i) {
                round();
                after += holdingsNow(m_temporary);
                keep(QTest::currentTestFunction(), after.constLast());
            }
        } catch (const std::runtime_error &error) {
            QTest::qFail(error.what(), __FILE__, __LINE__);
        }
        return after;
    }
    static void judge(const QList<Holdings> &after, const DeskDay &desk, qint64 mostBytes)
    {
        if (QTest::currentTestFailed())
            return;
        tell(after, desk);
        QCOMPARE(growthIn(after, mostBytes), QString());
        if (after.size() >= kEnoughToTime)
            QCOMPARE(slowedDown(desk), QString());
    }

private Q_SLOTS:
    void init()
    {
        qunsetenv("TMPDIR"); // it was in the folder of the last test
        m_home = std::make_unique<QTemporaryDir>();
        const QDir home(m_home->path());
        for (const char *folder : {"tmp", "jobs"})
            QVERIFY(home.mkdir(QLatin1StringView(folder)));
        m_temporary = home.filePath(u"tmp"_s);
        m_jobs = home.filePath(u"jobs"_s);
        for (const char *variable : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
            qputenv(variable, QFile::encodeName(m_home->path()));
        qputenv("TMPDIR", QFile::encodeName(m_temporary));
        QDir::setCurrent(m_jobs);
    }
    void cleanup() { QDir::setCurrent(QDir::rootPath()); }

    void windowAfterWindowLeavesNothingBehind()
    {
        DeskDay desk(m_jobs);
        const QList<Holdings> after = repeat(rounds(kUsualWindows), [&desk] {
            desk.open();
            for (int i = 0; i < kSwitches; ++i)
                desk.switchPrinter();
            desk.workThrough();
            desk.print();
        });
        judge(after, desk, kMostBytes);
    }

    void aWindowThatStaysOpenDoesNotGrow()
    {
        DeskDay desk(m_jobs);
        const QList<Holdings> after = repeat(rounds(kUsualRounds), [&desk] {
            if (!desk.isOpen())
                desk.open();
            for (int i = 0; i < kSwitches; ++i)
                desk.switchPrinter();
            desk.workThrough();
        });
        judge(after, desk, after.size() < kEnoughForSteps ? kMostBytesWithSteps : kMostBytes);
    }
};

QTEST_MAIN(EnduranceTest)

#include "endurance_test.moc"
