#include <atomic>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QTest>

#include "dialog/printers/UserQueuesFile.h"
#include "tests/dialog/printers/UserQueuesFolder.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/OrdinaryUser.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

mode_t modeOf(const QString &path)
{
    struct stat state = {};
    return ::stat(path.toUtf8().constData(), &state) == 0 ? state.st_mode & 07777 : 0;
}

} // namespace

/// How the user's lpoptions are written: with their mode and owner, never by halves, and beside
/// other programs that write them.
class UserQueuesFileTest : public QObject
{
    Q_OBJECT

private:
    UserQueuesFolder m_folder;

    static QString set(const QString &path)
    {
        return UserQueuesFile(path).change({{kInstance, kOptions}}).value(kInstance);
    }

private Q_SLOTS:
    void theUsersDefaultIsNotRemoved()
    {
        const QByteArray content = "Default lobby/reports a=1\n";
        const QString path = m_folder.newFile(content);
        const QString problem = UserQueuesFile(path).change({{kInstance, {}}}).value(kInstance);
        QVERIFY2(problem.contains(kInstance), qPrintable(problem));
        QCOMPARE(readFile(path), content);
    }

    void modeAndOwnerStay_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("for everybody") << 0644;
        QTest::newRow("for nobody else") << 0600;
        QTest::newRow("for the group") << 0660;
    }
    void modeAndOwnerStay()
    {
        QFETCH(int, mode);
        const QString path = m_folder.newFile("Dest lab\n");
        QCOMPARE(::chmod(path.toUtf8().constData(), mode_t(mode)), 0);
        // Root may change the file of somebody else, whose it stays.
        const uid_t owner = ::geteuid() == 0 ? 65534 : ::geteuid();
        QCOMPARE(::chown(path.toUtf8().constData(), owner, gid_t(-1)), 0);
        QCOMPARE(set(path), QString());
        QCOMPARE(int(modeOf(path)), mode);
        struct stat state = {};
        QCOMPARE(::stat(path.toUtf8().constData(), &state), 0);
        QCOMPARE(state.st_uid, owner);
        QCOMPARE(readFile(path), "Dest lab\n" + kLine + '\n');
    }

    void aNewFileIsAsLibcupsMakesOne()
    {
        const QString path = m_folder.filePath(u"new/lpoptions"_s);
        QCOMPARE(set(path), QString());
        QCOMPARE(readFile(path), kLine + '\n');
        QCOMPARE(int(modeOf(m_folder.filePath(u"new"_s))), 0700);
        QCOMPARE(int(modeOf(path)), 0644);
        QCOMPARE(QDir(m_folder.filePath(u"new"_s))
                     .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
                 QStringList{u"lpoptions"_s});
    }

    void nothingIsMadeToRemoveWhatIsNotThere()
    {
        const QString path = m_folder.newPath();
        QCOMPARE(UserQueuesFile(path).change({{kInstance, {}}}).value(kInstance), QString());
        QVERIFY(!QFile::exists(path));
    }

    void aLinkStaysOne()
    {
        const QString target = m_folder.newFile("Dest lab\n");
        const QString path = m_folder.newPath();
        QVERIFY(QFile::link(target, path));
        QCOMPARE(set(path), QString());
        QVERIFY(QFileInfo(path).isSymLink());
        QCOMPARE(readFile(target), "Dest lab\n" + kLine + '\n');
    }

    void whatCannotBeWrittenIsSaid_data()
    {
        QTest::addColumn<QString>("what");
        for (const auto &what :
             {u"a link that leads nowhere"_s, u"a link of somebody else's"_s, u"a folder"_s,
              u"a file in place of its folder"_s, u"a read-only folder"_s, u"a named pipe"_s,
              u"a full disk"_s, u"a packed file"_s, u"a file of somebody else's"_s})
            QTest::newRow(qPrintable(what)) << what;
    }
    void whatCannotBeWrittenIsSaid()
    {
        QFETCH(QString, what);
        const QByteArray before = "Dest lab\n# kept\n";
        QString path = m_folder.newFile(what == u"a packed file"_s ? "\x1f\x8b" + before : before);
        const QByteArray was = readFile(path);
        const QString kept = path;
        const bool isRoot = ::geteuid() == 0;
        std::unique_ptr<OrdinaryUser> nobody;
        std::unique_ptr<FileSizeLimit> limit;
        if (what == u"a link that leads nowhere"_s) {
            path = m_folder.newPath();
            QVERIFY(QFile::link(u"/nonexistent/lpoptions"_s, path));
        } else if (what == u"a link of somebody else's"_s) {
            if (!isRoot)
                QSKIP("needs root");
            path = m_folder.newPath();
            QVERIFY(QFile::link(kept, path));
            QCOMPARE(::lchown(path.toUtf8().constData(), 65534, 65534), 0);
        } else if (what == u"a folder"_s) {
            path = m_folder.newPath();
            QVERIFY(QDir().mkpath(path));
        } else if (what == u"a file in place of its folder"_s) {
            path += u"/lpoptions"_s;
        } else if (what == u"a read-only folder"_s) {
            const QByteArray folder = QFileInfo(path).path().toUtf8();
            QCOMPARE(::chmod(m_folder.path().toUtf8().constData(), 0755), 0);
            if (isRoot) {
                QCOMPARE(::chown(path.toUtf8().constData(), 65534, 65534), 0);
                QCOMPARE(::chown(folder.constData(), 65534, 65534), 0);
            }
            QCOMPARE(::chmod(folder.constData(), 0555), 0);
            nobody = std::make_unique<OrdinaryUser>();
        } else if (what == u"a named pipe"_s) {
            path = m_folder.newPath();
            QCOMPARE(::mkfifo(path.toUtf8().constData(), 0600), 0);
        } else if (what == u"a full disk"_s) {
            writeFile(path, before + QByteArray(3000, '#'));
            limit = std::make_unique<FileSizeLimit>(2000);
        } else if (what == u"a file of somebody else's"_s) {
            if (!isRoot)
                QSKIP("needs root");
            QCOMPARE(::chmod(m_folder.path().toUtf8().constData(), 0755), 0);
            QCOMPARE(::chmod(QFileInfo(path).path().toUtf8().constData(), 0777), 0);
            nobody = std::make_unique<OrdinaryUser>();
        }
        const QString problem = set(path);
        limit.reset();
        nobody.reset();
        QVERIFY2(problem.endsWith(u'.') && problem.size() > 20, qPrintable(problem));
        if (what == u"a full disk"_s)
            QCOMPARE(readFile(kept), before + QByteArray(3000, '#'));
        else
            QCOMPARE(readFile(kept), was);
        // No half of a file stays behind.
        QCOMPARE(QDir(QFileInfo(kept).path())
                     .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
                 QStringList{u"lpoptions"_s});
    }

    // As libcups writes it: emptied first, then written in place, without a lock.
    void aFileThatIsBeingWrittenIsWaitedFor()
    {
        const QString path = m_folder.newFile("Dest lab x=1\nDest office y=1\n");
        const int descriptor = ::open(path.toUtf8().constData(), O_WRONLY | O_TRUNC);
        QVERIFY(descriptor >= 0);
        std::thread writer([descriptor] {
            const QByteArray content = "Dest lab x=1\nDest office y=1\nDest third z=1\n";
            for (const char c : content) {
                std::this_thread::sleep_for(std::chrono::milliseconds(4));
                QCOMPARE(::write(descriptor, &c, 1), 1);
            }
            ::close(descriptor);
        });
        const QString problem = set(path);
        writer.join();
        QCOMPARE(problem, QString());
        QCOMPARE(readFile(path), "Dest lab x=1\nDest office y=1\nDest third z=1\n" + kLine + '\n');
    }

    void whatIsWrittenMeanwhileIsKept_data()
    {
        QTest::addColumn<bool>("inPlace");
        QTest::newRow("in place") << true;
        QTest::newRow("by another file of that name") << false;
    }
    void whatIsWrittenMeanwhileIsKept()
    {
        QFETCH(bool, inPlace);
        const QString path = m_folder.newFile("Dest lab x=1\n");
        int calls = 0;
        const QString problem = SharedFile(path).change(
            {[&](const QByteArray &content) {
                 // The file was read; now somebody else is faster.
                 if (++calls == 1) {
                     if (inPlace) {
                         writeFile(path, "Dest office y=1\n");
                     } else {
                         writeFile(path + u".new"_s, "Dest office y=1\n");
                         std::rename((path + u".new"_s).toUtf8().constData(),
                                     path.toUtf8().constData());
                     }
                 }
                 return withInstance(content, kInstance, kOptions);
             },
             [](const QByteArray &) { return true; }});
        QCOMPARE(problem, QString());
        QCOMPARE(readFile(path), "Dest office y=1\n" + kLine + '\n');
    }

    void whatAnotherProgramUndoesIsDoneAgain()
    {
        const QByteArray stale = "Dest lab x=1\n";
        const QString path = m_folder.newFile(stale);
        // It has read the file already, and writes it a while after ours was changed.
        std::thread writer([&] {
            while (!readFile(path).contains(kLine))
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            writeFile(path, stale + "Dest office y=1\n");
        });
        const QString problem = set(path);
        writer.join();
        QCOMPARE(problem, QString());
        QCOMPARE(readFile(path), stale + "Dest office y=1\n" + kLine + '\n');
    }

    void severalOfUsWaitForEachOther()
    {
        const QString path = m_folder.newFile("# kept\nDest lab x=1\n");
        std::atomic<int> problems = 0;
        std::vector<std::thread> windows;
        for (int window = 0; window < 4; ++window) {
            windows.emplace_back([&, window] {
                const QString name = u"lobby/window%1"_s.arg(window);
                for (int round = 0; round < 2; ++round) {
                    const QList<JobOption> options{{u"round"_s, QString::number(round)}};
                    if (!UserQueuesFile(path).change({{name, options}}).isEmpty())
                        ++problems;
                }
            });
        }
        for (std::thread &window : windows)
            window.join();
        QCOMPARE(problems.load(), 0);
        const QByteArray content = readFile(path);
        QVERIFY(content.startsWith("# kept\nDest lab x=1\n"));
        for (int window = 0; window < 4; ++window) {
            const QByteArray line = "Dest lobby/window" + QByteArray::number(window) + " round=1\n";
            QCOMPARE(content.count(line), 1);
        }
        QCOMPARE(content.count('\n'), 6);
    }
};

QTEST_GUILESS_MAIN(UserQueuesFileTest)
#include "user_queues_file_test.moc"
