#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

#include "dialog/policy/FileTrust.h"
#include "dialog/policy/PolicyFile.h"
#include "dialog/policy/PolicyFolder.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

enum class Trick {
    GroupMayWrite,
    OthersMayWrite,
    LinkOut,
    LinkBelow,
    LinkUp,
    DanglingLink,
    LinkLoop,
    Folder,
    Pipe,
    TooLarge,
};

struct Distrusted
{
    const char *name;
    Trick trick;
    const char *says;
};

constexpr Distrusted kDistrusted[] = {
    {"its group may write", Trick::GroupMayWrite, "may write to it"},
    {"anybody may write", Trick::OthersMayWrite, "may write to it"},
    {"a link to another folder", Trick::LinkOut, "link"},
    {"a link to a folder below", Trick::LinkBelow, "link"},
    {"a link by way of the folder above", Trick::LinkUp, "link"},
    {"a link to nothing", Trick::DanglingLink, "not used"},
    {"a link to itself", Trick::LinkLoop, "not used"},
    {"a folder", Trick::Folder, "ordinary"},
    {"a pipe, which nobody writes to", Trick::Pipe, "ordinary"},
    {"a file too large", Trick::TooLarge, "262144"},
};

} // namespace

/// Which files of a folder are read, and in which order.
class PolicyFolderTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_dir;

    QString folder() const { return m_dir->filePath(u"policy.d"_s); }
    QString path(const QString &name) const { return folder() + u'/' + name; }
    PolicyReading read() const { return readPolicyFolder({folder(), true}); }
    void write(const QString &name, const QByteArray &text = "[all]\nhide = yes\n",
               mode_t mode = 0644) const
    {
        QFile file(name.startsWith(u'/') ? name : path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        ::chmod(QFile::encodeName(file.fileName()).constData(), mode);
    }
    void link(const QByteArray &target, const QString &name) const
    {
        QCOMPARE(::symlink(target.constData(), QFile::encodeName(path(name)).constData()), 0);
    }
    void play(Trick trick) const
    {
        const QByteArray bad = QFile::encodeName(path(u"50-bad.conf"_s));
        switch (trick) {
        case Trick::GroupMayWrite:
            return write(u"50-bad.conf"_s, "[all]\nhide = yes\n", 0664);
        case Trick::OthersMayWrite:
            return write(u"50-bad.conf"_s, "[all]\nhide = yes\n", 0646);
        case Trick::LinkOut:
            write(m_dir->filePath(u"outside.conf"_s));
            return link(QFile::encodeName(m_dir->filePath(u"outside.conf"_s)), u"50-bad.conf"_s);
        case Trick::LinkBelow:
            QVERIFY(QDir(folder()).mkdir(u"below"_s));
            write(u"below/x.conf"_s);
            return link("below/x.conf", u"50-bad.conf"_s);
        case Trick::LinkUp:
            write(m_dir->filePath(u"outside.conf"_s));
            return link("../outside.conf", u"50-bad.conf"_s);
        case Trick::DanglingLink:
            return link("nowhere.conf", u"50-bad.conf"_s);
        case Trick::LinkLoop:
            return link("50-bad.conf", u"50-bad.conf"_s);
        case Trick::Folder:
            QVERIFY(QDir(folder()).mkdir(u"50-bad.conf"_s));
            return;
        case Trick::Pipe:
            QCOMPARE(::mkfifo(bad.constData(), 0644), 0);
            return;
        case Trick::TooLarge:
            return write(u"50-bad.conf"_s, QByteArray(kLargestPolicyFile + 1, '#'));
        }
    }

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkdir(folder()));
        ::chmod(QFile::encodeName(folder()).constData(), 0755);
    }

    void aFolderThatIsNotThereSaysNothing()
    {
        const PolicyReading reading = readPolicyFolder({m_dir->filePath(u"none"_s), true});
        QVERIFY(reading.entries.isEmpty());
        QVERIFY(reading.problems.isEmpty());
    }

    void filesAreReadInTheOrderOfTheBytesOfTheirNames()
    {
        for (const char *name : {"9.conf", "10.conf", "a.conf", "B.conf", ".hidden.conf",
                                 "10.conf.dpkg-dist", "readme"})
            write(QString::fromUtf8(name));
        const PolicyReading reading = read();
        QVERIFY(reading.problems.isEmpty());
        QCOMPARE(reading.files, (QStringList{path(u"10.conf"_s), path(u"9.conf"_s),
                                             path(u"B.conf"_s), path(u"a.conf"_s)}));
        QCOMPARE(reading.entries.at(1).file, 1);
    }

    void aLinkToAFileOfTheSameFolderIsFollowed()
    {
        write(u"10-real.conf"_s);
        link("10-real.conf", u"20-relative.conf"_s);
        link(QFile::encodeName(path(u"10-real.conf"_s)), u"30-absolute.conf"_s);
        QCOMPARE(read().problems.size(), 0);
        QCOMPARE(read().entries.size(), 3);
    }

    void aFileThatSomebodyElseMayWriteIsRefusedAndTheOthersAreRead_data() { addRows(kDistrusted); }
    void aFileThatSomebodyElseMayWriteIsRefusedAndTheOthersAreRead()
    {
        const Distrusted &row = currentRow(kDistrusted);
        write(u"10-good.conf"_s, "[all]\njournal = yes\n");
        play(row.trick);
        write(u"90-good.conf"_s, "[all]\nlast-used = no\n");
        const PolicyReading reading = read();
        QCOMPARE(reading.problems.size(), 1);
        QVERIFY2(reading.problems.at(0).text().startsWith(path(u"50-bad.conf"_s)),
                 qPrintable(reading.problems.at(0).text()));
        QVERIFY2(reading.problems.at(0).what.contains(QLatin1StringView(row.says)),
                 qPrintable(reading.problems.at(0).what));
        QCOMPARE(reading.entries.size(), 2);
        QCOMPARE(reading.entries.at(0).key, PolicyKey::Journal);
        QCOMPARE(reading.entries.at(1).key, PolicyKey::LastUsed);
    }

    void aFolderThatSomebodyElseMayWriteIsNotReadAtAll()
    {
        write(u"10-good.conf"_s);
        ::chmod(QFile::encodeName(folder()).constData(), 0775);
        QVERIFY(read().entries.isEmpty());
        QCOMPARE(read().problems.size(), 1);
        QVERIFY(read().problems.at(0).text().contains(u"may write to it"_s));
    }

    void aFolderAboveThatSomebodyElseMayWriteSpoilsIt()
    {
        write(u"10-good.conf"_s);
        ::chmod(QFile::encodeName(m_dir->path()).constData(), 0777);
        QVERIFY(read().entries.isEmpty());
        QCOMPARE(read().problems.size(), 1);
        ::chmod(QFile::encodeName(m_dir->path()).constData(), 01777); // as /tmp is
        QCOMPARE(read().problems.size(), 0);
    }

    void aFileOfAnotherUserIsRefused()
    {
        write(u"10.conf"_s);
        if (::chown(QFile::encodeName(path(u"10.conf"_s)).constData(), 65534, 65534) != 0)
            QSKIP("only root can give a file away");
        QVERIFY(read().entries.isEmpty());
        QVERIFY(read().problems.at(0).what.contains(u"65534"_s));
    }

    void anInstalledPolicyBelongsToRootAndToNobodyElse()
    {
        write(u"10.conf"_s);
        if (::geteuid() == 0) {
            QVERIFY(::chown(QFile::encodeName(folder()).constData(), 65534, 65534) == 0);
            QCOMPARE(::seteuid(65534), 0);
        }
        const PolicyReading system = readPolicyFolder({folder(), false});
        const PolicyReading tests = readPolicyFolder({folder(), true});
        if (::getuid() == 0)
            QCOMPARE(::seteuid(0), 0);
        QVERIFY(system.entries.isEmpty());
        QCOMPARE(system.problems.size(), 1);
        // Whoever tries a policy out has folders of their own above it.
        if (tests.problems.isEmpty())
            QCOMPARE(tests.entries.size(), 1);
    }

    void whatIsNotThereIsNotTrustedAndSaysWhy()
    {
        const QString none = m_dir->filePath(u"none"_s);
        const auto problem = whyNotTrusted(none, TrustedOwners::RootAndUser);
        QVERIFY(problem);
        QCOMPARE(problem->text(), none + u": No such file or directory"_s);
        QVERIFY(!whyNotTrusted(folder(), TrustedOwners::RootAndUser));
    }

    void noMoreFilesAreReadThanAreAllowed()
    {
        for (int i = 0; i < kMostPolicyFiles + 3; ++i)
            write(u"%1.conf"_s.arg(1000 + i));
        QCOMPARE(read().files.size(), kMostPolicyFiles);
        QCOMPARE(read().problems.size(), 1);
    }
};

QTEST_MAIN(PolicyFolderTest)
#include "policy_folder_test.moc"
