#include <unistd.h>

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/printers/PpdCache.h"
#include "tests/support/PpdBuilder.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kServer = u"print:631"_s;
const QByteArray kPpd = PpdBuilder().text();
const QByteArray kOtherPpd = PpdBuilder().modelNumber(6).text();

Printer queueOf(const QString &name)
{
    Printer printer;
    printer.origin = PrinterOrigin::Queue;
    printer.name = name;
    printer.description = u"Büro, 2. Stock"_s;
    printer.location = u"会議室"_s;
    printer.makeAndModel = u"Corvana Test"_s;
    printer.uri = u"ipp://localhost/printers/x"_s;
    printer.deviceUri = u"socket://printer"_s;
    printer.isClass = true;
    return printer;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList filesIn(const QString &folder)
{
    QStringList files;
    for (QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
         it.hasNext();)
        files += it.next();
    return files;
}

QByteArray ppdOf(const QString &name)
{
    return PpdBuilder().line("*% " + name.toUtf8()).text();
}

void writeOver(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

void makeOld(const QString &path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(-31),
                             QFileDevice::FileModificationTime));
}

} // namespace

class PpdCacheTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_cache = PpdCache(m_folder->filePath(u"a/queues"_s));
        m_defaults = {};
    }

    void whatWasKeptComesBackButForTheState()
    {
        Printer printer = queueOf(u"office"_s);
        printer.state = PrinterState::Stopped;
        printer.stateMessage = u"No paper"_s;
        printer.accepting = false;
        const QString path = keep(printer, kPpd)->path;
        QCOMPARE(contentOf(path), kPpd);
        const auto entry = m_cache.find(kServer, u"office"_s);
        QVERIFY(entry);
        Printer expected = queueOf(u"office"_s);
        QCOMPARE(entry->ppd->path, path);
        QCOMPARE(entry->printer, expected);
        QCOMPARE(entry->ppd->hash, hashOfPpd(kPpd));
    }

    void theDefaultsOfAQueueAreKeptInTheirOrderAndReplaced()
    {
        m_defaults = {{u"number-up"_s, u"2"_s}, {u"job-sheets"_s, u"standard,none"_s}};
        keep(queueOf(u"office"_s), kPpd);
        QCOMPARE(m_cache.find(kServer, u"office"_s)->defaults, m_defaults);
        m_defaults = {};
        keep(queueOf(u"office"_s), kPpd);
        QCOMPARE(m_cache.find(kServer, u"office"_s)->defaults, m_defaults);
    }

    void namesOfAnyKindStayWithinTheFolder_data()
    {
        QTest::addColumn<QString>("server");
        QTest::addColumn<QString>("queue");
        QTest::newRow("plain") << kServer << u"office"_s;
        QTest::newRow("above") << kServer << u"../../x"_s;
        QTest::newRow("two dots") << kServer << u".."_s;
        QTest::newRow("one dot") << kServer << u"."_s;
        QTest::newRow("escaped slash") << kServer << u"a%2Fb"_s;
        QTest::newRow("escaped dots") << kServer << u"%2E%2E%2Fx"_s;
        QTest::newRow("umlaut") << kServer << u"Büro"_s;
        QTest::newRow("Japanese") << kServer << u"会議室"_s;
        QTest::newRow("hidden") << kServer << u".hidden"_s;
        QTest::newRow("socket") << u"/run/cups/cups.sock"_s << u"office"_s;
        QTest::newRow("server above") << u"../../.."_s << u"office"_s;
        QTest::newRow("IPv6") << u"[2001:db8::7]:631"_s << u"office"_s;
    }
    void namesOfAnyKindStayWithinTheFolder()
    {
        QFETCH(QString, server);
        QFETCH(QString, queue);
        const QString path = keep(queueOf(queue), kPpd, server)->path;
        QVERIFY(!path.isEmpty());
        const QStringList files = filesIn(m_folder->path());
        QCOMPARE(files.size(), 2);
        for (const QString &file : files) {
            const QString inside =
                QDir(m_folder->filePath(u"a/queues"_s)).relativeFilePath(QDir::cleanPath(file));
            QVERIFY2(!inside.startsWith(u".."_s), qPrintable(file));
            QCOMPARE(inside.count(u'/'), 1);
        }
        QVERIFY(m_cache.find(server, queue));
        makeOld(path);
        m_cache.remove(server, queue);
        QVERIFY(!m_cache.find(server, queue));
        QVERIFY(filesIn(m_folder->path()).isEmpty());
    }

    void namesThatLookAlikeAreDifferent()
    {
        const QStringList names{u"a%2Fb"_s, u"a%252Fb"_s, u"a.b"_s, u"a%2Eb"_s, u"Ü.b"_s, u"ü.b"_s};
        for (const QString &name : names)
            QVERIFY(keep(queueOf(name), ppdOf(name)));
        for (const QString &name : names)
            QCOMPARE(contentOf(m_cache.find(kServer, name)->ppd->path), ppdOf(name));
        QVERIFY(!m_cache.find(u"other:631"_s, u"a.b"_s));
    }

    void aQueueIsFoundInAnySpelling()
    {
        keep(queueOf(u"Office"_s), kPpd);
        Printer moved = queueOf(u"oFFICE"_s);
        moved.location = u"Hall"_s;
        keep(moved, kPpd);
        QCOMPARE(filesIn(m_folder->path()).size(), 2);
        QCOMPARE(m_cache.find(kServer, u"office"_s)->printer.location, u"Hall"_s);
    }

    void aPpdThatIsNotTheStoredOneDropsItsEntry_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("another PPD") << kOtherPpd;
        QByteArray changed = kPpd;
        changed[changed.size() - 2] = '#';
        QTest::newRow("of the same length") << changed;
        QTest::newRow("cut") << kPpd.chopped(1);
        QTest::newRow("nothing") << QByteArray();
    }
    void aPpdThatIsNotTheStoredOneDropsItsEntry()
    {
        QFETCH(QByteArray, content);
        const QString path = keep(queueOf(u"office"_s), kPpd)->path;
        QCOMPARE(m_cache.find(kServer, u"office"_s)->ppd->hash, hashOfPpd(kPpd));
        writeOver(path, content);
        QVERIFY(!m_cache.find(kServer, u"office"_s));
        // Not even when the file is right again: nobody knows who has had it meanwhile.
        writeOver(path, kPpd);
        QVERIFY(!m_cache.find(kServer, u"office"_s));
        writeOver(path, content);
        QCOMPARE(keep(queueOf(u"office"_s), kPpd)->path, path);
        QCOMPARE(contentOf(path), kPpd);
        QVERIFY(m_cache.find(kServer, u"office"_s));
    }

    void whatIsNoPpdIsNotKept_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("a page of a login") << QByteArray("<html><body>Log in</body></html>");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("a PPD with a fault in it")
            << kPpd + "*CloseGroup: Never\n*OpenGroup: A\n*OpenGroup: B\n";
        QTest::newRow("too long") << kPpd + QByteArray(33 * 1024 * 1024, '\n');
    }
    void whatIsNoPpdIsNotKept()
    {
        QFETCH(QByteArray, content);
        const QString path = keep(queueOf(u"office"_s), kPpd)->path;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"is no PPD and is not kept"_s));
        QVERIFY(!keep(queueOf(u"office"_s), content));
        QCOMPARE(keep(queueOf(u"office"_s), kPpd)->path, path);
        QCOMPARE(filesIn(m_folder->path()).size(), 2);
    }

    // Nobody had opened its PPD before it was stored.
    void anEntryOfFormerTimesIsNone()
    {
        const QString path = keep(queueOf(u"office"_s), kPpd)->path;
        const QString entry = QFileInfo(path).dir().filePath(u"office.json"_s);
        writeOver(entry, contentOf(entry).replace("\"sha256\"", "\"hash\""));
        QVERIFY(!m_cache.find(kServer, u"office"_s));
    }

    void anInstanceHasThePpdOfItsQueueAndItsOwnName()
    {
        keep(queueOf(u"office"_s), kPpd);
        const auto entry = m_cache.find(kServer, u"office/draft"_s);
        QVERIFY(entry);
        QCOMPARE(entry->printer.name, u"office/draft"_s);
        QCOMPARE(entry->ppd->path, m_cache.find(kServer, u"office"_s)->ppd->path);
    }

    void aDamagedEntryIsNone_data()
    {
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QByteArray>("content"); // null: missing
        const QString json = u"json"_s;
        QTest::newRow("no PPD") << u"ppd"_s << QByteArray();
        QTest::newRow("no description") << json << QByteArray();
        QTest::newRow("empty") << json << QByteArray("");
        QTest::newRow("cut") << json << QByteArray("{\"uri\": \"ipp://loc");
        QTest::newRow("list") << json << QByteArray("[1, 2]");
        QTest::newRow("binary") << json << QByteArray("\x00\xff\xfe", 3);
        QTest::newRow("without its PPD's hash")
            << json << QByteArray("{\"uri\": \"ipp://localhost/printers/office\"}");
        QTest::newRow("a hash that leads out of the folder")
            << json
            << QByteArray("{\"uri\": \"ipp://localhost/printers/office\", \"sha256\": "
                          "\"/../../../../../../etc/passwd\"}");
        QTest::newRow("without URI") << json << QByteArray("{\"description\": \"Hall\"}");
    }
    void aDamagedEntryIsNone()
    {
        QFETCH(QString, suffix);
        QFETCH(QByteArray, content);
        const QString ppd = keep(queueOf(u"office"_s), kPpd)->path;
        const QString path =
            suffix == u"ppd"_s ? ppd : QFileInfo(ppd).dir().filePath(u"office.json"_s);
        QVERIFY(QFile::remove(path));
        if (!content.isNull()) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        }
        QVERIFY(!m_cache.find(kServer, u"office"_s));
        // The next look at the server mends it.
        QVERIFY(keep(queueOf(u"office"_s), kPpd));
        QVERIFY(m_cache.find(kServer, u"office"_s));
    }

    void aNewPpdLeavesTheOldOneToWhoeverHasOpenedIt()
    {
        const QString first = keep(queueOf(u"office"_s), kPpd)->path;
        const QString second = keep(queueOf(u"office"_s), kOtherPpd)->path;
        QCOMPARE(contentOf(first), kPpd);
        QCOMPARE(contentOf(second), kOtherPpd);
        QCOMPARE(m_cache.find(kServer, u"office"_s)->ppd->path, second);
        m_cache.remove(kServer, u"office"_s);
        QCOMPARE(contentOf(second), kOtherPpd);
    }

    void aPpdThatIsLookedAtIsInUse()
    {
        const QString first = keep(queueOf(u"office"_s), kPpd)->path;
        makeOld(first);
        QVERIFY(m_cache.find(kServer, u"office"_s));
        keep(queueOf(u"office"_s), kOtherPpd);
        QCOMPARE(contentOf(first), kPpd);
    }

    void aPpdThatNobodyHasUsedForLongGoesWhenThereIsANewOne()
    {
        const QString others = keep(queueOf(u"office-2"_s), kPpd)->path;
        const QString first = keep(queueOf(u"office"_s), kPpd)->path;
        makeOld(others);
        makeOld(first);
        QCOMPARE(keep(queueOf(u"office"_s), kPpd)->path, first);
        QCOMPARE(contentOf(first), kPpd); // it is the new one
        makeOld(first);
        const QString second = keep(queueOf(u"office"_s), kOtherPpd)->path;
        QVERIFY(!QFile::exists(first));
        QVERIFY(QFile::exists(second));
        QVERIFY(QFile::exists(others));
    }

    void aFolderThatCannotBeMadeOnlyCostsTheCache()
    {
        // A file stands where the folder would be; that stops root as well.
        QFile file(m_folder->filePath(u"a"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(!keep(queueOf(u"office"_s), kPpd));
        QVERIFY(!m_cache.find(kServer, u"office"_s));
    }

    void aFileThatCannotBeWrittenIsSaidAndCostsTheEntry()
    {
        const QString path = keep(queueOf(u"office"_s), kPpd)->path;
        m_cache.remove(kServer, u"office"_s);
        QVERIFY(QFile::remove(path));
        QVERIFY(QDir().mkpath(path)); // a folder of its name
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(u"office-[0-9a-f]{16}.ppd cannot be written"_s));
        QVERIFY(!keep(queueOf(u"office"_s), kPpd));
        QVERIFY(!m_cache.find(kServer, u"office"_s));
    }

    void nobodyElseMayLookIntoIt()
    {
        keep(queueOf(u"office"_s), kPpd);
        const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                            QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        QVERIFY(!(QFile::permissions(m_folder->filePath(u"a/queues"_s)) & others));
    }

private:
    SharedPpd keep(const Printer &printer, const QByteArray &ppd, const QString &server = kServer)
    {
        QueueDetails details{printer, QueueDetails::Ppd::Read, ppd, hashOfPpd(ppd)};
        details.defaults = m_defaults;
        return m_cache.store(server, details);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QList<JobOption> m_defaults;
    PpdCache m_cache{QString()};
};

QTEST_GUILESS_MAIN(PpdCacheTest)
#include "ppd_cache_test.moc"
