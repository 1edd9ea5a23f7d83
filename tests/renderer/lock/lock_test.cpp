#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "tests/support/Rows.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// As in HostileAttempts.h, which is of a program without Qt.
constexpr int kRefused = 0;
constexpr int kSucceeded = 10;
constexpr int kKilled = -1;
constexpr int kNotLocked = 12;

struct Row
{
    const char *name;
    int locked; ///< what is to come of it
    int free;   ///< and without a lock, so that the attempt itself is known to work
};
const Row kRows[] = {
    {"internet socket", kKilled, kSucceeded},
    {"unix socket", kKilled, kSucceeded},
    {"pair of sockets", kRefused, kSucceeded},
    {"program", kKilled, 0}, // the other program's status
    {"spawned program", kRefused, kSucceeded},
    {"process", kRefused, kSucceeded},
    {"thread", kRefused, kSucceeded},
    {"reading /etc/passwd", kRefused, kSucceeded},
    {"reading /proc/self/environ", kRefused, kSucceeded},
    {"reading its own program", kRefused, kSucceeded},
    {"reading the user's file", kRefused, kSucceeded},
    {"listing /", kRefused, kSucceeded},
    {"listing /etc", kRefused, kSucceeded},
    {"listing /proc", kRefused, kSucceeded},
    {"new file", kRefused, kSucceeded},
    {"new file, creat", kRefused, kSucceeded},
    {"new file without a name", kRefused, kSucceeded},
    {"appending", kRefused, kSucceeded},
    {"truncating while reading", kRefused, kSucceeded},
    {"truncating by name", kRefused, kSucceeded},
    {"deleting", kRefused, kSucceeded},
    {"renaming", kRefused, kSucceeded},
    {"linking", kRefused, kSucceeded},
    {"new folder", kRefused, kSucceeded},
    {"other rights", kRefused, kSucceeded},
    {"memory file", kRefused, kSucceeded},
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // see Lock.cpp
    {"two gigabytes", kRefused, kSucceeded},
    {"300 megabytes, bit by bit", kRefused, kSucceeded},
    {"memory that was read-only", kRefused, kSucceeded},
#endif
    {"shared memory", kRefused, kSucceeded},
    {"code", kRefused, kSucceeded},
    {"code, later", kRefused, kSucceeded},
    {"tracing", kKilled, kSucceeded},
    {"signal", kRefused, kSucceeded},
    {"signal to a thread", kRefused, kSucceeded},
    {"signals by way of a descriptor", kRefused, kSucceeded},
    {"being looked into", kRefused, kSucceeded},
    {"other limits", kRefused, kSucceeded},
    {"limits of others", kRefused, kSucceeded},
};

/// What came of it; kKilled when a signal ended the program.
int tried(const QString &how, const QString &what)
{
    const QTemporaryDir folder;
    QFile present(folder.filePath(u"present"_s));
    if (!present.open(QIODevice::WriteOnly) || present.write("secret") != 6)
        return -2;
    present.close();
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedChannels);
    program.start(QCoreApplication::applicationDirPath() + u"/hostile_renderer"_s,
                  {how, what, folder.path()});
    if (!program.waitForFinished(30000))
        return -2;
    return program.exitStatus() == QProcess::CrashExit ? kKilled : program.exitCode();
}

} // namespace

class LockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (tried(u"locked"_s, u"nothing"_s) == kNotLocked)
            QSKIP("This system lacks Landlock or seccomp.");
    }

    void whoIsLockedInStaysIn_data() { addRows(kRows); }
    void whoIsLockedInStaysIn()
    {
        const Row &row = currentRow(kRows);
        const QString what = QString::fromLatin1(row.name);
        QCOMPARE(tried(u"free"_s, what), row.free);
        QCOMPARE(tried(u"locked"_s, what), row.locked);
    }
};

QTEST_GUILESS_MAIN(LockTest)
#include "lock_test.moc"
