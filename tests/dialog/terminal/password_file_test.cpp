#include <array>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/terminal/PasswordFile.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

struct Mode
{
    const char *name;
    int mode;
    bool isTaken;
};
constexpr Mode kModes[] = {
    {"its owner", 0600, true},
    {"its owner reads", 0400, true},
    {"its owner does anything", 0700, true},
    {"a group reads", 0640, false},
    {"a group writes", 0620, false},
    {"others read", 0604, false},
    {"others write", 0602, false},
    {"everybody", 0666, false},
};

struct Content
{
    const char *name;
    QByteArray content;
    QString password; ///< null: refused
};
const Content kContents[] = {
    {"a line", "secret\n", u"secret"_s},
    {"without a line break", "secret", u"secret"_s},
    {"of another system", "secret\r\n", u"secret"_s},
    {"blanks are part of it", " a b \n", u" a b "_s},
    {"only the first line", "secret\nother\n", u"secret"_s},
    {"UTF-8", "größe\n", u"größe"_s},
    {"nothing", "", QString()},
    {"an empty line", "\nsecret\n", QString()},
    {"no text", QByteArray("a\0b\n", 4), QString()},
    {"another encoding",
     "gr\xf6\xdf"
     "e\n",
     QString()},
    {"as long as can be", QByteArray(1024, 'x'), QString(1024, u'x')},
    {"a document", QByteArray(100000, 'x'), QString()},
};

} // namespace

/// Passwords for runs that nobody watches.
class PasswordFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nobodyButItsOwnerMayUseTheFile_data() { addRows(kModes); }
    void nobodyButItsOwnerMayUseTheFile()
    {
        const auto &[name, mode, isTaken] = currentRow(kModes);
        const QString file = write("topsecret\n", mode);
        QString error;
        const auto password = passwordInFile(file, &error);
        QCOMPARE(password.has_value(), isTaken);
        QCOMPARE(error.isEmpty(), isTaken);
        if (!isTaken) {
            QVERIFY2(error.contains(file), qPrintable(error));
            QVERIFY2(error.contains(u"mode is "_s + QString::number(mode, 8)), qPrintable(error));
            QVERIFY(!error.contains(u"topsecret"_s));
        }
    }

    // The link itself is open to everybody, as all links are.
    void theFileBehindALinkCounts_data() { addRows(kModes); }
    void theFileBehindALinkCounts()
    {
        const auto &[name, mode, isTaken] = currentRow(kModes);
        const QString link = m_folder.filePath(u"link"_s);
        QFile::remove(link);
        QVERIFY(QFile::link(write("secret\n", mode), link));
        QString error;
        QCOMPARE(passwordInFile(link, &error).has_value(), isTaken);
    }

    void theFirstLineIsThePassword_data() { addRows(kContents); }
    void theFirstLineIsThePassword()
    {
        const auto &[name, content, password] = currentRow(kContents);
        QString error;
        const auto read = passwordInFile(write(content, 0600), &error);
        QCOMPARE(read.has_value(), !password.isNull());
        QCOMPARE(error.isEmpty(), !password.isNull());
        QCOMPARE(read.value_or(QString()), password);
        if (content.size() > 3)
            QVERIFY(!error.contains(QString::fromUtf8(content.left(4))));
    }

    void whatIsNoFileIsRefused()
    {
        QString error;
        QVERIFY(!passwordInFile(m_folder.path(), &error));
        QVERIFY2(error.contains(u"no file"_s), qPrintable(error));
        QVERIFY(!passwordInFile(m_folder.filePath(u"missing"_s), &error));
        QVERIFY2(error.contains(u"missing"_s), qPrintable(error));
        QVERIFY(!passwordInFile(u"/dev/null"_s, &error));
    }

    void aFileOfSomebodyElseIsRefused()
    {
        if (::geteuid() != 0)
            QSKIP("Only root can give a file away.");
        const QString file = write("secret\n", 0600);
        QCOMPARE(::chown(QFile::encodeName(file).constData(), 65534, 65534), 0);
        QString error;
        QVERIFY(!passwordInFile(file, &error));
        QVERIFY2(error.contains(u"somebody else"_s), qPrintable(error));
    }

    void aDescriptorGivesItsFirstLineAndIsClosed()
    {
        std::array<int, 2> pipe{};
        QCOMPARE(::pipe(pipe.data()), 0);
        QCOMPARE(::write(pipe[1], "secret\nrest", 11), ssize_t(11));
        const int other = ::dup(pipe[0]);
        QString error;
        QCOMPARE(passwordFromDescriptor(pipe[0], &error).value_or(QString()), u"secret"_s);
        QCOMPARE(::fcntl(pipe[0], F_GETFD), -1);
        // What stands behind the line is for whoever reads next.
        std::array<char, 8> rest{};
        QCOMPARE(::read(other, rest.data(), rest.size()), ssize_t(4));
        QCOMPARE(QByteArray(rest.data()), QByteArray("rest"));
        ::close(other);
        ::close(pipe[1]);
    }

    void aDescriptorThatIsNotOpenIsSaid()
    {
        QString error;
        QVERIFY(!passwordFromDescriptor(1000, &error));
        QVERIFY2(error.contains(u"1000"_s), qPrintable(error));
    }

private:
    QString write(const QByteArray &content, int mode)
    {
        const QString name = m_folder.filePath(u"password"_s);
        QFile::remove(name);
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
            ::fchmod(file.handle(), static_cast<mode_t>(mode)) != 0)
            QTest::qFail("cannot write", __FILE__, __LINE__);
        return name;
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(PasswordFileTest)

#include "password_file_test.moc"
