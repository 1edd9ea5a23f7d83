#include <QElapsedTimer>
#include <QTest>

#include "dialog/printers/OwnInstances.h"
#include "dialog/printers/UserQueuesLine.h"
#include "dialog/task/InstanceDraft.h"
#include "dialog/task/PresetInstances.h"
#include "tests/dialog/task/StartValuesScene.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

/// What a person calls settings, and what other programs do.
struct Named
{
    const char *name;
    const char *plain;
};

const QList<Named> kNamed{
    {"Reports", "reports"},
    {"Monthly Reports, A4", "monthly-reports-a4"},
    {"  (draft)  ", "draft"},
    {"Übergröße", "ubergrosse"},
    {"Łódź café", "lodz-cafe"},
    {"Ｗｉｄｅ２", "wide2"},
    {"報告 A4", "a4"},
    {"報告書", ""},
    {"a/b#c d", "a-b-c-d"},
    {"--help", "help"},
    {"under_score", "under_score"},
    {"0123456789012345678901234567890123456789tail", "0123456789012345678901234567890123456789"},
};

/// What is set, beside what the queue and the user's line for it would add, and what the instance
/// says of it: "NAME=VALUE", or "NAME" for one that it does not name.
struct Drafted
{
    const char *name;
    QString options;
    QString queueDefault{};
    QString userOptions{};
    QStringList expected{};
    /// What has to be said.
    QStringList said{};
};

const QList<Drafted> kDrafted{
    {"choices of the printer, set or not",
     u"Media=Card"_s,
     {},
     {},
     {u"Media=Card"_s, u"Tray=Upper"_s, u"Duplex=None"_s}},
    {"no pages and no copies",
     u"page-ranges=1-2 page-set=even copies=3"_s,
     {},
     {},
     {u"page-ranges"_s, u"page-set"_s, u"copies"_s}},
    {"a layout", u"number-up=2"_s, {}, {}, {u"number-up=2"_s}},
    {"nothing of a booklet, which is said",
     u"booklet=left"_s,
     {},
     {},
     {u"booklet"_s, u"number-up"_s},
     {u"Booklet"_s}},
    {"pages of the user's line are answered",
     {},
     {},
     u"page-ranges=1 page-set=odd"_s,
     {u"page-ranges=1-"_s, u"page-set=all"_s}},
    {"pages of the queue's default are answered", {}, u"page-set=odd"_s, {}, {u"page-set=all"_s}},
    {"copies of the user's line are answered", {}, {}, u"copies=7"_s, {u"copies=1"_s}},
    {"what a choice says is said by the name of the user's line",
     u"Duplex=DuplexTumble"_s,
     {},
     u"sides=one-sided"_s,
     {u"sides=two-sided-short-edge"_s}},
    {"what a choice says is said by the name of the queue's default",
     u"Duplex=None"_s,
     u"sides=two-sided-long-edge"_s,
     {},
     {u"sides=one-sided"_s}},
    {"what the job has no answer to is left to the programs, and said",
     {},
     {},
     u"zz=1"_s,
     {u"zz"_s},
     {u"“zz=1”"_s}},
};

QString valueOf(const QList<JobOption> &options, const QString &name)
{
    for (const JobOption &option : options) {
        if (option.name == name)
            return option.value;
    }
    return {};
}

/// What stands in lpoptions after "Duplex=None number-up=2" was written, where the user's line for
/// the queue says "Boost=ON".
struct Found
{
    const char *name;
    const char *options;
    bool isOurs;
};
constexpr Found kFound[] = {
    {"what was written", "Duplex=None number-up=2", true},
    {"in another order", "number-up=2 Duplex=None", true},
    {"without what the queue has as a default, as libcups leaves it", "Duplex=None", true},
    {"with what the user has set for the queue, as libcups leaves it",
     "Boost=ON Duplex=None number-up=2", true},
    {"another value", "Duplex=None number-up=4", false},
    {"another choice", "Duplex=DuplexTumble number-up=2", false},
    {"without a choice, which no server has a default of", "number-up=2", false},
    {"one more", "Duplex=None number-up=2 Media=Film", false},
    {"one more that the queue has with another value", "Boost=OFF Duplex=None number-up=2", false},
    {"nothing", "", false},
};

QList<JobOption> options(const char *text)
{
    return parseOptions({QString::fromUtf8(text)});
}

} // namespace

/// What an instance for other programs is made of.
class InstanceDraftTest : public StartValuesScene
{
    Q_OBJECT

private:
    InstanceDraft draft(const QString &name = u"Reports"_s)
    {
        return draftInstance(name, *m_printer, m_settings, KnownInstances::read(), true);
    }
    InstanceDraft nameOf(const QString &name, const QString &preset)
    {
        return nameInstance(name, *m_printer, m_settings, KnownInstances::read(), preset);
    }
    static QMap<QString, QString> write(const InstanceDraft &draft, const QString &settings,
                                        const std::optional<QString> &model = {})
    {
        return changeInstances({{draft.name, draft.options}}, {settings, model});
    }
    QByteArray contentOfLpoptions() const
    {
        QFile file(lpoptions());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QString lpoptions() const { return m_home->filePath(u".cups/lpoptions"_s); }

private Q_SLOTS:
    void namesAreMadeOfLettersThatEverybodyTypes_data() { addRows(kNamed); }
    void namesAreMadeOfLettersThatEverybodyTypes()
    {
        const Named &row = currentRow(kNamed);
        QCOMPARE(instanceNameOf(QString::fromUtf8(row.name)), QString::fromUtf8(row.plain));
    }

    void anInstanceSaysWhatTheJobSays_data() { addRows(kDrafted); }
    void anInstanceSaysWhatTheJobSays()
    {
        const Drafted &row = currentRow(kDrafted);
        if (!row.queueDefault.isEmpty())
            say(By::Queue, row.queueDefault);
        if (!row.userOptions.isEmpty())
            setUserOptions(row.userOptions);
        say(By::Options, row.options);
        start();
        const InstanceDraft made = draft();
        QCOMPARE(made.problem, QString());
        QCOMPARE(made.name, u"office/reports"_s);
        for (const QString &expected : row.expected) {
            const QString name = expected.section(u'=', 0, 0);
            const QString value = expected.section(u'=', 1);
            const QString found = valueOf(made.options, name);
            QVERIFY2(found == value && found.isNull() == !expected.contains(u'='),
                     lineOf(false, made.name, made.options).constData());
        }
        QCOMPARE(made.leftOut.size(), row.said.size());
        for (qsizetype i = 0; i < row.said.size(); ++i)
            QVERIFY2(made.leftOut.at(i).contains(row.said.at(i)), qPrintable(made.leftOut.at(i)));
    }

    void secretsAreLeftOutAndNamed()
    {
        const QString path = writeFile(m_home->filePath(u"b.ppd"_s), officePrinter().text());
        m_fetched.ppd = ppdOfFile(path);
        say(By::Options, u"Pin=Custom.4711"_s);
        start();
        const InstanceDraft made = draft();
        QCOMPARE(made.problem, QString());
        QVERIFY(valueOf(made.options, u"Pin"_s).isNull());
        for (const JobOption &option : made.options)
            QVERIFY(!option.value.contains(u"4711"_s));
        QCOMPARE(made.leftOut.size(), 1);
    }

    void namesThatCannotBeAreSaid()
    {
        setUserOptions({});
        start();
        const InstanceDraft nameless = draft(u"報告書"_s);
        QVERIFY(nameless.name.isEmpty());
        QVERIFY2(nameless.problem.contains(u"“preset1”"_s), qPrintable(nameless.problem));
        writeFile(lpoptions(), "Dest office/Reports x=1\nDest office/preset1\n");
        QVERIFY2(draft().problem.contains(u"“office/reports” is there already"_s),
                 qPrintable(draft().problem));
        QVERIFY(draft(u"報告書"_s).problem.contains(u"“preset2”"_s));
        QVERIFY(draft(u"Other"_s).problem.isEmpty());
    }

    void whatWasWrittenHereIsKnown()
    {
        start();
        QVERIFY(write(draft(), u"Reports"_s, u"A Model"_s).isEmpty());
        const KnownInstances known = KnownInstances::read();
        QCOMPARE(known.own.keys(), QStringList{u"office/reports"_s});
        QCOMPARE(known.ofPreset(u"Reports"_s, u"OFFICE"_s), u"office/reports"_s);
        QVERIFY(known.ofPreset(u"Reports"_s, u"lab"_s).isNull());
        QVERIFY(known.ofPreset(u"Other"_s, u"office"_s).isNull());
        QCOMPARE(nameOf(u"Reports"_s, u"Reports"_s).problem, QString());
        QCOMPARE(OwnInstances().forget({u"office/reports"_s}), QString());
        QVERIFY(!draft().problem.isEmpty());
    }

    // Else the settings of the first name would be gone without a word.
    void twoNamesThatAreOneForOtherProgramsAreNotTheSameSettings()
    {
        start();
        QVERIFY(write(draft(u"Ä Ö"_s), u"Ä Ö"_s).isEmpty());
        QCOMPARE(draft(u"Ä Ö"_s).problem, QString());
        QCOMPARE(draft(u"ä ö"_s).problem, QString());
        QVERIFY2(draft(u"A O"_s).problem.contains(u"“office/a-o” is there already"_s),
                 qPrintable(draft(u"A O"_s).problem));
        QVERIFY(write(draft(u"É"_s), u"É"_s, u"A Model"_s).isEmpty());
        // Under a name of its own for other programs.
        QCOMPARE(nameOf(u"e"_s, u"É"_s).problem, QString());
        QVERIFY(!nameOf(u"e"_s, {}).problem.isEmpty());
    }

    void whatLibcupsDoesToAnInstanceIsNoChange_data() { addRows(kFound); }
    void whatLibcupsDoesToAnInstanceIsNoChange()
    {
        const Found &row = currentRow(kFound);
        OwnInstance own;
        own.written = {options("Duplex=None number-up=2")};
        QCOMPARE(own.isAsWritten(options(row.options), options("Boost=ON")), row.isOurs);
    }

    void whatDidNotGetIntoTheFileLeavesTheFormerOneOurs()
    {
        OwnInstance own;
        own.written = {options("Duplex=DuplexTumble"), options("Duplex=None")};
        QVERIFY(own.isAsWritten(options("Duplex=None"), {}));
        QVERIFY(!own.isAsWritten(options("Duplex=DuplexNoTumble"), {}));
    }

    void whatIsKeptByItselfIsNoPresets()
    {
        start();
        QVERIFY(write(draft(), u"Reports"_s).isEmpty());
        QCOMPARE(draft().problem, QString());
        QVERIFY2(nameOf(u"Reports"_s, u"Reports"_s).problem.contains(u"is there already"_s),
                 qPrintable(nameOf(u"Reports"_s, u"Reports"_s).problem));
        QVERIFY(KnownInstances::read().ofPreset(u"Reports"_s, u"office"_s).isNull());
        QVERIFY(write(draft(u"Other"_s), u"Other"_s, u"A Model"_s).isEmpty());
        QVERIFY2(draft(u"Other"_s).problem.contains(u"is there already"_s),
                 qPrintable(draft(u"Other"_s).problem));
    }

    // One wait for other programs, however many there are.
    // One wait for other programs, however many there are.
    void manyAreWrittenInOneChange()
    {
        const QByteArray others = "# by hand\nDest lab x=1\n";
        setUserOptions({});
        writeFile(lpoptions(), others);
        QList<InstanceLine> lines;
        QByteArray expected = others;
        for (int number = 0; number < 40; ++number) {
            const QString name = u"office/many%1"_s.arg(number);
            lines += {name, QList<JobOption>{{u"Media"_s, u"Film"_s}}};
            expected += "Dest " + name.toUtf8() + " Media=Film\n";
        }
        lines.insert(20, {u"office/no name"_s, QList<JobOption>()});
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(changeInstances(lines, {u"Many"_s}).keys(), QStringList{u"office/no name"_s});
        QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(contentOfLpoptions(), expected);
        for (InstanceLine &line : lines)
            line.options.reset();
        QCOMPARE(changeInstances(lines, {}).keys(), QStringList());
        QCOMPARE(contentOfLpoptions(), others);
        QVERIFY(OwnInstances().names().isEmpty());
    }

    void aListOfOwnInstancesKeepsWhatItDoesNotKnow()
    {
        const QString path = m_home->filePath(u"instances.json"_s);
        const OwnInstances own(path);
        writeFile(path, R"({"version":1,"more":[1],"instances":{"a/b":{"settings":"B","x":1}}})");
        QCOMPARE(own.note({{u"a/c"_s, {}}}, {u"C"_s}), QString());
        QCOMPARE(own.names(), QStringList({u"a/b"_s, u"a/c"_s}));
        QCOMPARE(own.read().value(u"a/b"_s).settings, u"B"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray content = file.readAll();
        for (const char *kept : {"\"more\"", "\"x\"", "\"version\": 1"})
            QVERIFY2(content.contains(kept), content.constData());
    }

    void aDamagedListKnowsNone()
    {
        const QString path = m_home->filePath(u"instances.json"_s);
        for (const QByteArray &content :
             {QByteArray("{"), QByteArray("[]"), QByteArray("\0\xff", 2),
              QByteArray(R"({"instances":[1]})"), QByteArray(R"({"version":"1"})"),
              QByteArray(R"({"instances":{"a/b":"B"}})")}) {
            writeFile(path, content);
            QVERIFY(OwnInstances(path).names().isEmpty());
            QVERIFY2(!OwnInstances(path).damage().isEmpty(), content.constData());
        }
    }

    void aDamagedListIsKeptBesideTheNewOne()
    {
        const QString path = m_home->filePath(u"instances.json"_s);
        const QByteArray damaged = R"({"instances":{"a/b":{"settings":"B"})";
        writeFile(path, damaged);
        const OwnInstances own(path);
        QCOMPARE(own.note({{u"a/c"_s, {}}}, {u"C"_s}), QString());
        QCOMPARE(own.names(), QStringList{u"a/c"_s});
        QFile kept(path + u".damaged"_s);
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), damaged);
    }

    // Whoever cannot keep what it was must not begin anew.
    void aDamagedListThatCannotBeKeptIsLeftAsItIs()
    {
        const QString path = m_home->filePath(u"instances.json"_s);
        writeFile(path, "{");
        // Where files would have to be: so many are kept.
        QVERIFY(QDir().mkpath(path + u".damaged"_s));
        for (int number = 2; number <= 100; ++number)
            QVERIFY(QDir().mkpath(path + u".damaged.%1"_s.arg(number)));
        const OwnInstances own(path);
        const QString problem = own.note({{u"a/c"_s, {}}}, {u"C"_s});
        QVERIFY2(problem.contains(u"It was not changed"_s), qPrintable(problem));
        QVERIFY(!own.damage().isEmpty());
    }

    // What stands in the file and what may have got there, too, are known however often writing
    // fails.
    void whatMayStandThereIsKnown()
    {
        const OwnInstances own(m_home->filePath(u"instances.json"_s));
        const auto written = [](int number) {
            return QList<JobOption>{{u"Number"_s, QString::number(number)}};
        };
        for (int number = 0; number < 5; ++number) {
            QCOMPARE(own.note({{u"a/c"_s, written(number)}}, {u"C"_s}), QString());
            if (number > 0)
                QCOMPARE(own.noteFailure({u"a/c"_s}), QString());
        }
        QCOMPARE(own.note({{u"a/c"_s, written(5)}}, {u"C"_s}), QString());
        const OwnInstance instance = own.read().value(u"a/c"_s);
        for (const int number : {0, 4, 5})
            QVERIFY2(instance.isAsWritten(written(number), {}),
                     qPrintable(QString::number(number)));
        QVERIFY(!instance.isAsWritten(written(1), {}));
    }

    void whatOnlyTheSystemsFileHasIsNotOurs()
    {
        start();
        QVERIFY(write(draft(), u"Reports"_s).isEmpty());
        QVERIFY(QDir().mkpath(m_home->filePath(u"system"_s)));
        QVERIFY(QFile::rename(lpoptions(), m_home->filePath(u"system/lpoptions"_s)));
        const Variable root("CUPS_SERVERROOT", m_home->filePath(u"system"_s).toUtf8());
        const KnownInstances known = KnownInstances::read();
        QVERIFY(known.queues.hasInstance(u"office/reports"_s));
        QCOMPARE(known.own.keys(), QStringList());
    }

    void eachDamagedListIsKept()
    {
        const QString path = m_home->filePath(u"instances.json"_s);
        const QByteArrayList damaged{
            R"({"version":1,"instances":[{"name":"lobby/old","settings":"Mine"}]})", "{ broken",
            "{ broken"};
        for (const QByteArray &content : damaged) {
            writeFile(path, content);
            QCOMPARE(OwnInstances(path).note({{u"a/c"_s, {}}}, {u"C"_s}), QString());
        }
        const auto read = [](const QString &name) {
            QFile file(name);
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        QCOMPARE(read(path + u".damaged"_s), damaged.at(0));
        QCOMPARE(read(path + u".damaged.2"_s), damaged.at(1));
        QVERIFY(!QFile::exists(path + u".damaged.3"_s));
    }

    void aListOfALaterVersionStaysAsItIs()
    {
        const QString path = m_home->filePath(u"instances.json"_s);
        const QByteArray later = R"({"version":2,"instances":{"a/b":{"settings":"B"}}})";
        writeFile(path, later);
        const OwnInstances own(path);
        QVERIFY(own.names().isEmpty());
        QCOMPARE(own.damage(), QString());
        for (const QString &problem : {own.note({{u"a/c"_s, {}}}, {u"C"_s}),
                                       own.rename({u"a/b"_s}, u"D"_s), own.forget({u"a/b"_s})})
            QVERIFY2(problem.contains(path) && problem.contains(u"later version"_s),
                     qPrintable(problem));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), later);
        QVERIFY(!QFile::exists(path + u".damaged"_s));
    }

    void onlyQueuesHaveInstances()
    {
        m_fetched.printer.origin = PrinterOrigin::Device;
        start();
        QVERIFY2(draft().problem.contains(u"queues only"_s), qPrintable(draft().problem));
    }

    void whatCannotBeWrittenIsRefusedByName()
    {
        start();
        m_settings.addAttributes({{u"job-billing"_s, u"two\nlines"_s}});
        QVERIFY2(draft().problem.contains(u"job-billing"_s), qPrintable(draft().problem));
    }
};

QTEST_MAIN(InstanceDraftTest)
#include "instance_draft_test.moc"
