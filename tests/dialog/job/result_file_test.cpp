#include <atomic>
#include <cerrno>
#include <optional>

#include <sys/syscall.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include "dialog/job/ResultFile.h"
#include "platform/foundation/WholeFile.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

struct Place
{
    const char *name;
    bool isThere; ///< at the beginning
    bool comes;   ///< meanwhile
    bool isLink;  ///< the name is one, to another file
    bool isTaken; ///< by the result, in the end
};
constexpr Place kPlaces[] = {
    {"nothing there", false, false, false, true},
    {"a file there", true, false, false, true},
    {"a file that has come meanwhile", false, true, false, false},
    {"a link to a file", true, false, true, true},
    {"a link that leads nowhere yet", false, false, true, true},
    {"a link that leads to a file that has come", false, true, true, false},
};

// What the disk answers, and which file it was asked for last.
std::atomic<int> s_flushError{0};
QString s_flushed;
std::atomic<bool> s_isStuck{false};
std::atomic<bool> s_waits{false};

} // namespace

// In place of that of the C library.
extern "C" int fsync(int file)
{
    for (s_waits = s_isStuck.load(); s_isStuck;)
        QThread::msleep(10);
    s_waits = false;
    s_flushed = QFileInfo(u"/proc/self/fd/%1"_s.arg(file)).canonicalFilePath();
    if (s_flushError == 0)
        return static_cast<int>(::syscall(SYS_fsync, file));
    errno = s_flushError;
    return -1;
}

/// A file that takes its name when it is complete.
class ResultFileTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    QByteArray content(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList files() const
    {
        return QDir(m_folder->path()).entryList(QDir::Files | QDir::System | QDir::Hidden);
    }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void aNameIsTakenWhenTheResultIsComplete_data() { addRows(kPlaces); }
    void aNameIsTakenWhenTheResultIsComplete()
    {
        const Place &place = currentRow(kPlaces);
        const QString target = place.isLink ? u"target"_s : u"out"_s;
        if (place.isThere)
            writeFile(path(target), "former");
        if (place.isLink)
            QVERIFY(QFile::link(path(target), path(u"out"_s)));
        QString problem;
        const auto result = ResultFile::create(path(u"out"_s), &problem);
        QVERIFY2(result, qPrintable(problem));
        QCOMPARE(result->name(), path(u"out"_s));
        writeFile(result->path(), "new");
        if (place.comes)
            writeFile(path(target), "theirs");
        QCOMPARE(content(target), QByteArray(place.comes     ? "theirs"
                                             : place.isThere ? "former"
                                                             : ""));
        const QString why = result->publish();
        QCOMPARE(why.isEmpty(), place.isTaken);
        QCOMPARE(content(target), QByteArray(place.isTaken ? "new" : "theirs"));
        QCOMPARE(QFileInfo(path(u"out"_s)).isSymLink(), place.isLink);
        if (!place.isTaken)
            QVERIFY2(why.contains(u"was written by another program"_s), qPrintable(why));
    }

    // Two runs for the same document began when its name was free for both.
    void aNameThatNobodyHasChosenIsAnotherWhereItIsTaken_data()
    {
        QTest::addColumn<bool>("comesBefore");
        QTest::newRow("before the result is made") << true;
        QTest::newRow("meanwhile") << false;
    }
    void aNameThatNobodyHasChosenIsAnotherWhereItIsTaken()
    {
        QFETCH(bool, comesBefore);
        if (comesBefore)
            writeFile(path(u"out.pdf"_s), "theirs");
        QString problem;
        const auto result =
            ResultFile::create(path(u"out.pdf"_s), &problem, ResultFile::NamedBy::Nobody);
        QVERIFY2(result, qPrintable(problem));
        writeFile(result->path(), "new");
        if (!comesBefore)
            writeFile(path(u"out.pdf"_s), "theirs");
        QCOMPARE(result->publish(), QString());
        QCOMPARE(result->name(), path(u"out-2.pdf"_s));
        QCOMPARE(content(u"out.pdf"_s), QByteArray("theirs"));
        QCOMPARE(content(u"out-2.pdf"_s), QByteArray("new"));
        QCOMPARE(files(), (QStringList{u"out-2.pdf"_s, u"out.pdf"_s}));
    }

    void aNameMayBeAsLongAsThatOfAnyFile()
    {
        const QString name = QString(u"頁"_s).repeated(84) + u".ps"_s; // 255 bytes
        QString problem;
        const auto result = ResultFile::create(path(name), &problem);
        QVERIFY2(result, qPrintable(problem));
        writeFile(result->path(), "new");
        QCOMPARE(result->publish(), QString());
        QCOMPARE(content(name), QByteArray("new"));
    }

    void whatIsNotPublishedIsRemoved()
    {
        QString problem;
        writeFile(path(u"out"_s), "former");
        ResultFile::create(path(u"out"_s), &problem);
        QCOMPARE(files(), QStringList{u"out"_s});
        QCOMPARE(content(u"out"_s), QByteArray("former"));
    }

    void whatIsPublishedStays()
    {
        QString problem;
        {
            const auto result = ResultFile::create(path(u"out"_s), &problem);
            writeFile(result->path(), "new");
            QCOMPARE(result->publish(), QString());
        }
        QCOMPARE(files(), QStringList{u"out"_s});
        QCOMPARE(content(u"out"_s), QByteArray("new"));
    }

    // A server says only then that it has no room.
    void whatItsDiskHasNotTakenIsSaid()
    {
        QString problem;
        const auto result = ResultFile::create(path(u"out"_s), &problem);
        writeFile(result->path(), "new");
        const std::function<QString()> flush = result->flushing();
        s_flushed.clear();
        QCOMPARE(flush(), QString());
        QCOMPARE(s_flushed, QFileInfo(result->path()).canonicalFilePath());
        s_flushError = EDQUOT;
        QCOMPARE(flush(), path(u"out"_s) + u" cannot be written: "_s + qt_error_string(EDQUOT));
        s_flushError = EROFS; // of a disk that has failed and can only be read from now on
        QCOMPARE(flush(), path(u"out"_s) + u" cannot be written: "_s + qt_error_string(EROFS));
        s_flushError = EINVAL; // of a file system that cannot be asked
        QCOMPARE(flush(), QString());
        s_flushError = 0;
        QVERIFY(QFile::remove(result->path()));
        QVERIFY2(flush().contains(u" cannot be written: "_s), qPrintable(flush()));
    }

    // The same of files of the program's own.
    void whatItsDiskHasTakenHasItsName_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<bool>("isTaken");
        QTest::newRow("taken") << 0 << true;
        QTest::newRow("it cannot be asked") << EINVAL << true;
        QTest::newRow("full") << ENOSPC << false;
    }
    void whatItsDiskHasTakenHasItsName()
    {
        QFETCH(int, error);
        QFETCH(bool, isTaken);
        writeFile(path(u"kept"_s), "former");
        QSaveFile file(path(u"kept"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("new");
        s_flushError = error;
        const bool isCommitted = commitWhole(file);
        const int why = errno;
        s_flushError = 0;
        QCOMPARE(isCommitted, isTaken);
        QCOMPARE(content(u"kept"_s), QByteArray(isTaken ? "new" : "former"));
        if (!isTaken)
            QCOMPARE(why, error);
        QCOMPARE(files(), QStringList{u"kept"_s});
    }

    void aJobWhoseResultTheDiskHasNotTakenHasFailed()
    {
        const FakeFilter filter("echo printed\n");
        s_flushError = ENOSPC;
        FileJob job(filter.request());
        job.start();
        const JobOutcome outcome = job.wait();
        s_flushError = 0;
        QCOMPARE(outcome.kind, JobOutcome::Kind::Failed);
        QVERIFY2(outcome.text.contains(qt_error_string(ENOSPC)), qPrintable(outcome.text));
        QVERIFY(!filter.hasOutput());
        QVERIFY(filter.leftOvers().isEmpty());
    }

    // The GUI thread goes on, and the user need not wait.
    void aDiskThatDoesNotAnswerHoldsNobodyUp()
    {
        const FakeFilter filter("echo printed\n");
        s_isStuck = true;
        FileJob job(filter.request());
        std::optional<JobOutcome> ended;
        connect(&job, &Job::finished, this, [&](const JobOutcome &outcome) { ended = outcome; });
        job.start();
        QTRY_VERIFY_WITH_TIMEOUT(s_waits, 10000);
        QVERIFY(!ended);
        job.cancel();
        QTRY_VERIFY(ended);
        QCOMPARE(ended->kind, JobOutcome::Kind::Canceled);
        QVERIFY(!filter.hasOutput());
        QVERIFY(filter.leftOvers().isEmpty());
        s_isStuck = false;
        QTRY_VERIFY(!s_waits);
    }

    void aPlaceThatTakesNoTemporaryFilesIsNamed()
    {
        const FakeFilter filter("echo printed\n");
        const QString place = writeFile(path(u"file"_s), "no folder");
        const Variable temporary("TMPDIR", place.toUtf8());
        FileJob job(filter.request());
        job.start();
        const QString text = job.wait().text;
        QVERIFY2(text.contains(u"No temporary files can be kept in "_s + place), qPrintable(text));
    }

    void aFolderThatVanishesMeanwhileIsTold()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(u"sub"_s));
        QString problem;
        const auto result = ResultFile::create(path(u"sub/out"_s), &problem);
        QVERIFY(QDir(path(u"sub"_s)).removeRecursively());
        const QString why = result->publish();
        QVERIFY2(why.startsWith(path(u"sub/out"_s) + u" cannot be written: "_s), qPrintable(why));
    }

    void twoResultsOfOneNameDoNotMix()
    {
        QString problem;
        const auto one = ResultFile::create(path(u"out"_s), &problem);
        const auto other = ResultFile::create(path(u"out"_s), &problem);
        QVERIFY(one->path() != other->path());
        writeFile(one->path(), "one");
        writeFile(other->path(), "other");
        QCOMPARE(one->publish(), QString());
        QVERIFY(!other->publish().isEmpty());
        QCOMPARE(content(u"out"_s), QByteArray("one"));
    }
};

QTEST_GUILESS_MAIN(ResultFileTest)

#include "result_file_test.moc"
