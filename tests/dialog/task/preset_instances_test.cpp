#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/task/TaskPresets.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/Rows.h"
#include "tests/support/cups/PrivateCups.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Phase = PrintTask::Phase;

namespace {

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

/// A preset that other programs have as well: whichever way it changes, its instances follow, on
/// every queue, and what somebody else has made stays.
class PresetInstancesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_home;
    std::vector<std::unique_ptr<Variable>> m_variables;
    std::unique_ptr<PrivateCups> m_cups;
    std::unique_ptr<TaskScene> m_scene;

    PrintTask &task() { return *m_scene->task; }
    TaskPresets &presets() { return task().presets(); }
    QByteArray userOptions() const
    {
        QFile file(m_home->filePath(u".cups/lpoptions"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void setUserOptions(const QByteArray &content)
    {
        QDir(m_home->path()).mkpath(u".cups"_s);
        writeFile(m_home->filePath(u".cups/lpoptions"_s), content);
    }
    // The line of an instance, without its end.
    QByteArray lineOf(const QByteArray &instance) const
    {
        for (const QByteArray &line : userOptions().split('\n')) {
            if (line.startsWith("Dest " + instance + ' '))
                return line + ' ';
        }
        return {};
    }
    void addQueue(const QString &name, const PpdBuilder &ppd, const QueueSettings &settings = {},
                  const QByteArray &model = "Corvana Test")
    {
        QByteArray text = ppd.text();
        text.replace("*ModelName: \"Corvana Test\"", "*ModelName: \"" + model + '"');
        m_cups->addQueue(name, writeFile(m_home->filePath(name + u".ppd"_s), text), settings);
    }
    // As in a window of its own.
    void open(const QString &queue)
    {
        PrintRequest request = m_scene->request(QList<Printer>());
        request.server = *ServerAddress::parse(m_cups->server());
        request.serverWasNamed = true;
        request.wantedPrinter = queue;
        request.presetPlaces = {m_home->filePath(u"presets"_s)};
        m_scene->face.messages.clear();
        m_scene->make(request).start();
        QVERIFY2(m_scene->reaches(Phase::Opened), qPrintable(task().problem().text));
        task().bringUp();
        QTRY_COMPARE(task().phase(), Phase::Ready);
        look();
    }
    void look()
    {
        QSignalSpy changed(&presets(), &TaskPresets::changed);
        presets().look();
        changed.wait(300);
    }
    QString done(const std::function<void()> &act)
    {
        QSignalSpy ended(&presets(), &TaskPresets::ended);
        act();
        if (ended.isEmpty() && !ended.wait(20000))
            return u"nothing ended"_s;
        look();
        return ended.constFirst().constFirst().toString();
    }
    void save(const QString &name, bool elsewhere = false, bool forAll = false)
    {
        PresetToSave wanted{name, forAll, false, true, elsewhere};
        QCOMPARE(done([&] { presets().save(wanted); }), QString());
    }
    void propose(const QString &keyword, const QString &choice)
    {
        task().propose(keyword, choice);
        QCoreApplication::processEvents();
    }
    QString said() const
    {
        QStringList all;
        for (const TaskMessage &message : m_scene->face.messages)
            all += message.text;
        return all.join(u'\n');
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
    }
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        for (const char *name : {"HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_CONFIG_HOME"})
            m_variables.push_back(std::make_unique<Variable>(name, m_home->path().toUtf8()));
        m_cups = std::make_unique<PrivateCups>();
        m_cups->start();
        m_scene = std::make_unique<TaskScene>();
        addQueue(u"office"_s, smallPrinter());
        addQueue(u"lab"_s, smallPrinter());
    }
    void cleanup()
    {
        m_scene.reset();
        m_cups.reset();
        m_variables.clear();
        m_home.reset();
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

    void savingUnderTheNameOfAnotherPresetBringsItsInstanceAlong()
    {
        open(u"office"_s);
        save(u"Reports"_s, true);
        save(u"Other"_s);
        QCOMPARE(presets().selected().name, u"Other"_s);
        propose(u"Media"_s, u"Film"_s);
        save(u"Reports"_s);
        QVERIFY2(lineOf("office/reports").contains(" Media=Film "), userOptions().constData());
        QVERIFY(lineOf("office/other").isEmpty());
    }

    void instancesOnOtherQueuesOfTheModelFollow()
    {
        setUserOptions("# by hand\nDest lab number-up=4\nDest gone x=1\n");
        open(u"lab"_s);
        save(u"Reports"_s, true);
        QVERIFY(lineOf("lab/reports").contains(" Media=Plain "));
        open(u"office"_s);
        presets().use(u"Reports"_s);
        propose(u"Media"_s, u"Film"_s);
        save(u"Reports"_s);
        QVERIFY2(lineOf("lab/reports").contains(" Media=Film "), userOptions().constData());
        QVERIFY(lineOf("office/reports").isEmpty());
        QVERIFY(userOptions().startsWith("# by hand\nDest lab number-up=4\nDest gone x=1\n"));

        QCOMPARE(done([&] { presets().rename(u"Accounts"_s); }), QString());
        QCOMPARE(KnownInstances::read().ofSettings(u"Accounts"_s, u"lab"_s), u"lab/reports"_s);
        propose(u"Media"_s, u"Plain"_s);
        QCOMPARE(done([&] { presets().update(); }), QString());
        QVERIFY2(lineOf("lab/reports").contains(" Media=Plain "), userOptions().constData());

        QCOMPARE(done([&] { presets().remove(); }), QString());
        QCOMPARE(userOptions(), QByteArray("# by hand\nDest lab number-up=4\nDest gone x=1\n"));
        QVERIFY(OwnInstances().names().isEmpty());
    }

    // The instance there answers a default that the queue here has not.
    void whatAnotherQueueWouldAddIsStillAnswered()
    {
        addQueue(u"lab"_s, smallPrinter(), {.options = {u"number-up-default=4"_s}});
        open(u"lab"_s);
        task().setAttribute(u"number-up"_s, u"2"_s);
        save(u"Reports"_s, true);
        QVERIFY2(lineOf("lab/reports").contains(" number-up=2 "), userOptions().constData());
        open(u"office"_s);
        save(u"Reports"_s);
        QVERIFY2(lineOf("lab/reports").contains(" number-up=1 "), userOptions().constData());
    }

    void whatSomebodyElseHasMadeStays()
    {
        const QByteArray others = "Dest lab/reports Media=Card\n";
        setUserOptions(others);
        open(u"office"_s);
        save(u"Reports"_s, true);
        propose(u"Media"_s, u"Film"_s);
        QCOMPARE(done([&] { presets().update(); }), QString());
        QVERIFY2(userOptions().startsWith(others), userOptions().constData());
        QVERIFY(lineOf("office/reports").contains(" Media=Film "));
        QCOMPARE(done([&] { presets().remove(); }), QString());
        QCOMPARE(userOptions(), others);
    }

    void whatSomebodyHasMadeOfOursStaysAndIsSaidOnce()
    {
        open(u"office"_s);
        save(u"Reports"_s, true);
        const QByteArray changed = "Dest office/reports Media=Card number-up=9\n";
        setUserOptions(changed);
        propose(u"Media"_s, u"Film"_s);
        save(u"Reports"_s);
        QCOMPARE(userOptions(), changed);
        QVERIFY2(said().contains(u"“office/reports” was changed by another program"_s),
                 qPrintable(said()));
        m_scene->face.messages.clear();
        save(u"Reports"_s);
        QCOMPARE(said(), QString());
        QCOMPARE(presets().instancesOfOthers(), QStringList{u"office/reports"_s});
        QCOMPARE(done([&] { presets().remove(); }), QString());
        QCOMPARE(userOptions(), changed);
    }

    // Under the lock: what was looked at before may be another one by then.
    void whatSomebodyMakesJustBeforeStays()
    {
        open(u"office"_s);
        save(u"Reports"_s, true);
        InstanceDraft draft = presets().elsewhere(u"Reports"_s);
        QCOMPARE(draft.problem, QString());
        draft.options = options("Media=Film");
        const QByteArray changed = "Dest office/reports Media=Card number-up=9\n";
        setUserOptions(changed);
        QVERIFY(!writeInstance(draft, {u"Reports"_s}).isEmpty());
        QCOMPARE(userOptions(), changed);
        QCOMPARE(removeInstances({draft.name}), QStringList());
        QCOMPARE(userOptions(), changed);
    }

    void presetsOfOtherModelsWithTheSameNameAreOthers()
    {
        addQueue(u"ink"_s, smallPrinter(), {}, "Corvana Ink");
        open(u"ink"_s);
        save(u"Reports"_s, true);
        const QByteArray before = lineOf("ink/reports");
        QVERIFY(before.contains(" Media=Plain "));
        open(u"office"_s);
        propose(u"Media"_s, u"Film"_s);
        save(u"Reports"_s, true);
        QCOMPARE(done([&] { presets().rename(u"Accounts"_s); }), QString());
        QCOMPARE(done([&] { presets().remove(); }), QString());
        QCOMPARE(lineOf("ink/reports"), before);
        QCOMPARE(OwnInstances().read().value(u"ink/reports"_s).settings, u"Reports"_s);
    }

    // What is kept of it says nothing of what is usual there.
    void ofAPresetForAllPrintersThoseOfOtherModelsStayAndThatIsSaid()
    {
        addQueue(u"ink"_s, smallPrinter(), {}, "Corvana Ink");
        open(u"ink"_s);
        save(u"Reports"_s, true, true);
        const QByteArray before = lineOf("ink/reports");
        open(u"office"_s);
        propose(u"Media"_s, u"Film"_s);
        save(u"Reports"_s, true, true);
        QVERIFY(lineOf("office/reports").contains(" Media=Film "));
        QCOMPARE(lineOf("ink/reports"), before);
        QVERIFY2(said().contains(u"“ink/reports” in other programs: it keeps"_s),
                 qPrintable(said()));
        QCOMPARE(done([&] { presets().remove(); }), QString());
        QVERIFY(lineOf("ink/reports").isEmpty() && lineOf("office/reports").isEmpty());
    }

    void whatSomebodyHasTakenAwayStaysAway()
    {
        addQueue(u"office"_s, smallPrinter());
        addQueue(u"lab"_s, smallPrinter());
        open(u"lab"_s);
        save(u"Reports"_s, true);
        open(u"office"_s);
        save(u"Reports"_s, true);
        setUserOptions("# nothing\n");
        propose(u"Media"_s, u"Film"_s);
        save(u"Reports"_s);
        QCOMPARE(userOptions(), QByteArray("# nothing\n"));
        QCOMPARE(said(), QString());
    }

    void whatIsNotPossibleOnAnotherQueueIsSaidAndNotWritten()
    {
        const auto printer = [](const QByteArray &installed) {
            return smallPrinter()
                .line("*OpenGroup: InstallableOptions/Installed")
                .option("Finisher", "Finisher", installed, {{"None", "None"}, {"Big", "Big"}})
                .line("*CloseGroup: InstallableOptions")
                .constraint("Finisher", "None", "Boost", "ON");
        };
        addQueue(u"office"_s, printer("Big"));
        addQueue(u"lab"_s, printer("None"));
        open(u"lab"_s);
        save(u"Reports"_s, true);
        const QByteArray before = lineOf("lab/reports");
        open(u"office"_s);
        propose(u"Boost"_s, u"ON"_s);
        save(u"Reports"_s);
        QCOMPARE(lineOf("lab/reports"), before);
        QVERIFY2(said().contains(u"“lab/reports” in other programs: it keeps"_s),
                 qPrintable(said()));
    }

    void aDamagedListIsSaidOnceAndNothingIsLost()
    {
        open(u"office"_s);
        save(u"Reports"_s, true);
        const QByteArray before = userOptions();
        writeFile(OwnInstances::usualPath(), "{ broken");
        propose(u"Media"_s, u"Film"_s);
        save(u"Reports"_s);
        QVERIFY2(said().contains(u"instances.json” is damaged"_s), qPrintable(said()));
        QVERIFY(QFile::exists(OwnInstances::usualPath() + u".damaged"_s));
        m_scene->face.messages.clear();
        save(u"Reports"_s);
        QCOMPARE(said(), QString());
        QCOMPARE(userOptions(), before);
    }

    void whereLpoptionsCannotBeWrittenThePresetIsKeptAndThatIsSaid()
    {
        open(u"office"_s);
        save(u"Reports"_s, true);
        const QByteArray before = userOptions();
        // Its lock cannot be had there, whoever the user is.
        QVERIFY(QDir(m_home->filePath(u".cups/lpoptions.lock"_s)).mkpath(u"."_s));
        propose(u"Media"_s, u"Film"_s);
        save(u"Reports"_s);
        QCOMPARE(userOptions(), before);
        QCOMPARE(presets().problemsElsewhere().size(), 1);
        QVERIFY2(said().contains(u"“office/reports” in other programs:"_s), qPrintable(said()));
        // However often that is tried.
        for (const auto &medium : {u"Card"_s, u"Plain"_s, u"Film"_s}) {
            propose(u"Media"_s, medium);
            save(u"Reports"_s);
        }
        QVERIFY2(!said().contains(u"another program, and is left"_s), qPrintable(said()));
        QVERIFY(QDir(m_home->filePath(u".cups/lpoptions.lock"_s)).removeRecursively());
        save(u"Reports"_s);
        QVERIFY2(lineOf("office/reports").contains(" Media=Film "), userOptions().constData());
    }
};

QTEST_MAIN(PresetInstancesTest)
#include "preset_instances_test.moc"
