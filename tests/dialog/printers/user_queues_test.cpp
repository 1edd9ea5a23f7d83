#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/printers/UserQueues.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

/// "NAME: option=value option=value" of every queue, in the order of the names.
QStringList optionsOf(const UserQueues &queues)
{
    QStringList lines;
    for (auto it = queues.options.cbegin(); it != queues.options.cend(); ++it) {
        QString line = it.key() + u':';
        for (const JobOption &option : it.value())
            line += u' ' + option.name + u'=' + option.value;
        lines += line;
    }
    return lines;
}

} // namespace

class UserQueuesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anInstanceIsWhatSomebodyHasMade()
    {
        UserQueues queues;
        queues.options = {{u"office"_s, {}}, {u"office/draft"_s, {}}};
        QVERIFY(queues.hasInstance(u"office/draft"_s));
        QVERIFY(queues.hasInstance(u"OFFICE/draft"_s));
        QVERIFY(!queues.hasInstance(u"office/drfat"_s));
        QVERIFY(!queues.hasInstance(u"office/"_s));
        QVERIFY(!queues.hasInstance(u"lab/draft"_s));
        // Whether there is such a queue is for its server to say.
        QVERIFY(queues.hasInstance(u"lab"_s));
        QVERIFY(queues.hasInstance(QString()));
    }

    void filesAreRead_data()
    {
        QTest::addColumn<QList<QByteArray>>("files");
        QTest::addColumn<QString>("defaultName");
        QTest::addColumn<QStringList>("options");
        const auto row = [](const char *name, const QList<QByteArray> &files, const char *by,
                            const QStringList &options) {
            QTest::newRow(name) << files << QString::fromUtf8(by) << options;
        };
        row("nothing", {""}, "", {});
        row("default", {"Default office\n"}, "office", {u"office:"_s});
        row("destination", {"Dest office media=A4\n"}, "", {u"office: media=A4"_s});
        row("default with options", {"Default office media=A4 sides=one-sided\n"}, "office",
            {u"office: media=A4 sides=one-sided"_s});
        row("instance", {"Dest office/draft quality=3\n"}, "", {u"office/draft: quality=3"_s});
        row("case of the keyword", {"DEFAULT a\ndest b x=1\n"}, "a", {u"a:"_s, u"b: x=1"_s});
        row("blanks and tabs", {"  Dest \t office \t media=A4   x=1  \n"}, "",
            {u"office: media=A4 x=1"_s});
        row("without its last line break", {"Default office"}, "office", {u"office:"_s});
        row("line breaks of other systems", {"Default office x=1\r\nDest b\r\n"}, "office",
            {u"b:"_s, u"office: x=1"_s});
        row("a value with a blank", {"Dest office job-name='two words' x=1\n"}, "",
            {u"office: job-name=two words x=1"_s});
        row("a value in double quotes", {"Dest office job-name=\"two words\"\n"}, "",
            {u"office: job-name=two words"_s});
        row("an option without a value", {"Dest office landscape nocollate\n"}, "",
            {u"office: landscape=true collate=false"_s});
        row("blanks within a value", {"Dest office x='two  words'\ty=1\n"}, "",
            {u"office: x=two  words y=1"_s});
        row("a comment behind the options", {"Dest office x=1 # y=2\n"}, "", {u"office: x=1"_s});
        row("a number sign in a value", {"Dest office x=a\\#b y=1\n"}, "",
            {u"office: x=a#b y=1"_s});
        row("line breaks of old systems", {"Default office x=1\rDest b\r"}, "office",
            {u"b:"_s, u"office: x=1"_s});
        row("an option given twice", {"Dest office x=1 y=2 x=3\n"}, "", {u"office: x=3 y=2"_s});
        row("umlauts", {"Default Büro Papier=größer\n"}, "Büro", {u"Büro: Papier=größer"_s});
        row("comments and other words", {"# Default a\nServer b\n\nDefaults c\n"}, "", {});
        row("a keyword alone", {"Default\nDest \n"}, "", {});
        row("the last default counts", {"Default a\nDefault b\n"}, "b", {u"a:"_s, u"b:"_s});
        row("the user's in front of the system's",
            {"Default a x=1 y=1\n", "Default b\nDest a x=2\n"}, "b", {u"a: y=1 x=2"_s, u"b:"_s});
        row("two spellings of one queue", {"Dest a x=1 y=1\n", "Dest A x=2\n"}, "",
            {u"a: x=2 y=1"_s});
        row("no text", {QByteArray("\x00\xff\xfe\n", 4)}, "", {});
    }
    void filesAreRead()
    {
        QFETCH(QList<QByteArray>, files);
        QFETCH(QString, defaultName);
        QFETCH(QStringList, options);
        const QTemporaryDir folder;
        QStringList names;
        for (const QByteArray &content : files) {
            names += folder.filePath(QString::number(names.size()));
            QFile file(names.constLast());
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        }
        const UserQueues queues = readUserQueues(names);
        QCOMPARE(queues.defaultName, defaultName);
        // What stands in a value given twice may be in either place.
        QStringList found = optionsOf(queues);
        QCOMPARE(found.size(), options.size());
        for (qsizetype i = 0; i < found.size(); ++i) {
            QStringList got = found[i].split(u' ');
            QStringList expected = options[i].split(u' ');
            got.sort();
            expected.sort();
            QCOMPARE(got, expected);
        }
    }

    void optionsAreFoundInAnySpelling_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("media");
        QTest::newRow("as it stands there") << u"Office"_s << u"A4"_s;
        QTest::newRow("otherwise") << u"oFFice"_s << u"A4"_s;
        QTest::newRow("instance") << u"office/draft"_s << u"A5"_s;
        QTest::newRow("another queue") << u"off"_s << QString();
    }
    void optionsAreFoundInAnySpelling()
    {
        QFETCH(QString, name);
        QFETCH(QString, media);
        UserQueues queues;
        queues.options[u"Office"_s] = {{u"media"_s, u"A4"_s}};
        queues.options[u"Office/Draft"_s] = {{u"media"_s, u"A5"_s}};
        QCOMPARE(queues.optionsOf(name).value(0).value, media);
    }

    void aMissingFileIsNone()
    {
        const UserQueues queues = readUserQueues({u"/nonexistent/lpoptions"_s});
        QVERIFY(queues.defaultName.isEmpty());
        QVERIFY(queues.options.isEmpty());
    }

    void theEnvironmentStandsInFront_data()
    {
        QTest::addColumn<QByteArray>("destination");
        QTest::addColumn<QByteArray>("printer");
        QTest::addColumn<QString>("defaultName");
        QTest::newRow("neither") << QByteArray() << QByteArray() << u"users"_s;
        QTest::newRow("PRINTER") << QByteArray() << QByteArray("p") << u"p"_s;
        QTest::newRow("LPDEST") << QByteArray("d") << QByteArray() << u"d"_s;
        QTest::newRow("both") << QByteArray("d") << QByteArray("p") << u"d"_s;
        QTest::newRow("instance") << QByteArray("d/draft") << QByteArray() << u"d/draft"_s;
        QTest::newRow("nobody chose it") << QByteArray() << QByteArray("lp") << u"users"_s;
        QTest::newRow("somebody did") << QByteArray("lp") << QByteArray() << u"lp"_s;
    }
    void theEnvironmentStandsInFront()
    {
        QFETCH(QByteArray, destination);
        QFETCH(QByteArray, printer);
        QFETCH(QString, defaultName);
        const QTemporaryDir folder;
        const auto write = [&](const QString &name, const QByteArray &content) {
            QVERIFY(QDir().mkpath(QFileInfo(folder.filePath(name)).path()));
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        };
        write(u"system/lpoptions"_s, "Default systems\nDest systems x=1\n");
        write(u"home/.cups/lpoptions"_s, "Default users\n");
        qputenv("CUPS_SERVERROOT", QFile::encodeName(folder.filePath(u"system"_s)));
        qputenv("HOME", QFile::encodeName(folder.filePath(u"home"_s)));
        qputenv("LPDEST", destination);
        qputenv("PRINTER", printer);
        const UserQueues queues = readUserQueues();
        QCOMPARE(queues.defaultName, defaultName);
        QVERIFY(queues.options.contains(u"systems"_s));
    }

    // As many as the file may have: each line is looked at once, or this takes hours.
    void aLongFileIsReadAsAWhole()
    {
        constexpr int kLines = 200000;
        QByteArray content;
        for (int i = 0; i < kLines; ++i)
            content += "Dest queue" + QByteArray::number(i) + " media=A4\n";
        for (int i = 0; i < kLines; ++i)
            content += "Dest one o" + QByteArray::number(i) + "=1\n";
        content += "Dest QUEUE7 media=A5\nDest one o5=2\n";
        const UserQueues queues = userQueuesIn(content);
        QCOMPARE(queues.options.size(), kLines + 1);
        QCOMPARE(queues.optionsOf(u"queue7"_s).value(0).value, u"A5"_s);
        const QList<JobOption> one = queues.options.value(u"one"_s);
        QCOMPARE(one.size(), kLines);
        QCOMPARE(one.constLast(), (JobOption{u"o5"_s, u"2"_s}));
    }

    void instancesAreThoseOfTheQueue()
    {
        UserQueues queues;
        for (const auto &name : {u"a"_s, u"a/one"_s, u"a/two"_s, u"ab/one"_s, u"b/one"_s})
            queues.options[name] = {};
        QCOMPARE(queues.instancesOf(u"a"_s), (QStringList{u"a/one"_s, u"a/two"_s}));
        QVERIFY(queues.instancesOf(u"c"_s).isEmpty());
        QCOMPARE(queues.instancesOf(u"A"_s), queues.instancesOf(u"a"_s));
        QCOMPARE(queueOfInstance(u"a/one"_s), u"a"_s);
        QCOMPARE(queueOfInstance(u"a"_s), u"a"_s);
    }
};

QTEST_GUILESS_MAIN(UserQueuesTest)
#include "user_queues_test.moc"
