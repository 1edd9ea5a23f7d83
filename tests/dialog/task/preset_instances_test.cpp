#include <csignal>

#include <fcntl.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

#include "dialog/session/OptionRequest.h"
#include "dialog/task/TaskPresets.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/support/OwnHome.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/PresetActs.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/cups/PrivateCups.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Phase = PrintTask::Phase;

namespace {

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
    std::unique_ptr<OwnHome> m_home;
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
        lookAgain(presets());
    }
    QString done(const std::function<void()> &act) { return endOf(presets(), act); }
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
        m_home = std::make_unique<OwnHome>();
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
        m_home.reset();
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
        QCOMPARE(KnownInstances::read().ofPreset(u"Accounts"_s, u"lab"_s), u"lab/reports"_s);
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

    // Such as with --save-instance, where no preset was kept.
    void whatWasKeptByItselfStaysWhateverBecomesOfAPresetOfItsName()
    {
        setUserOptions({});
        QVERIFY(changeInstances({{u"office/reports"_s, options("Media=Card number-up=4")}},
                                {u"Reports"_s})
                    .isEmpty());
        const QByteArray before = userOptions();
        QVERIFY(!before.isEmpty());
        open(u"office"_s);
        propose(u"Media"_s, u"Film"_s);
        save(u"Reports"_s);
        QCOMPARE(userOptions(), before);
        QCOMPARE(said(), QString());
        QVERIFY(presets().selectedElsewhere().isEmpty());
        save(u"Reports"_s, true);
        QCOMPARE(userOptions(), before);
        QVERIFY2(said().contains(u"“office/reports” is there already"_s), qPrintable(said()));
        QCOMPARE(done([&] { presets().rename(u"Accounts"_s); }), QString());
        QCOMPARE(done([&] { presets().rename(u"Reports"_s); }), QString());
        QCOMPARE(done([&] { presets().remove(); }), QString());
        QCOMPARE(userOptions(), before);
        QVERIFY(KnownInstances::read().own.contains(u"office/reports"_s));
    }

    // Whoever reads it may wait for as long as a file server does not answer.
    void savingWaitsForNothing()
    {
        open(u"office"_s);
        save(u"Reports"_s, true);
        propose(u"Media"_s, u"Film"_s);
        const QByteArray path = QFile::encodeName(m_home->filePath(u".cups/lpoptions"_s));
        const int held = ::open(path.constData(), O_RDWR | O_CLOEXEC);
        QVERIFY(held >= 0);
        auto release = qScopeGuard([&] { ::close(held); });
        // Nobody can open it as long as somebody has this lease, for 45 seconds at most.
        ::fcntl(held, F_SETSIG, SIGURG);
        if (::fcntl(held, F_SETLEASE, F_WRLCK) != 0)
            QSKIP("no leases on this file system");
        QSignalSpy ended(&presets(), &TaskPresets::ended);
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(presets().instanceOf(u"Reports"_s), u"office/reports"_s);
        QCOMPARE(presets().elsewhere(u"Other"_s).problem, QString());
        QCOMPARE(presets().instancesOfOthers(), QStringList());
        presets().update();
        QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
        QTest::qWait(200);
        QVERIFY(ended.isEmpty());
        release.dismiss();
        ::close(held);
        QVERIFY(ended.wait(20000));
        QVERIFY2(lineOf("office/reports").contains(" Media=Film "), userOptions().constData());
    }

    // Of what lpoptions says by then, not of what it said when it was looked at.
    void whatOthersHaveMadeMeanwhileIsTakenIn()
    {
        open(u"lab"_s);
        save(u"Reports"_s, true);
        open(u"office"_s);
        presets().use(u"Reports"_s);
        propose(u"Media"_s, u"Film"_s);
        // In another window; nobody has looked since.
        QVERIFY(changeInstances({{u"office/reports"_s, options("Media=Plain")}},
                                OwnInstances().read().value(u"lab/reports"_s))
                    .isEmpty());
        QCOMPARE(presets().instanceOf(u"Reports"_s), QString());
        QSignalSpy ended(&presets(), &TaskPresets::ended);
        presets().update();
        QVERIFY(ended.wait(20000));
        QVERIFY(lineOf("lab/reports").contains(" Media=Film "));
        QVERIFY2(lineOf("office/reports").contains(" Media=Film "), userOptions().constData());
        QCOMPARE(ended.size(), 1);
    }

    void whereSettingsAreChangedMeanwhileInstancesStayAndThatIsSaid()
    {
        open(u"office"_s);
        save(u"Reports"_s, true);
        const QByteArray before = lineOf("office/reports");
        propose(u"Boost"_s, u"ON"_s);
        setUserOptions(userOptions() + "Dest lab x=1\n");
        QSignalSpy ended(&presets(), &TaskPresets::ended);
        presets().update();
        propose(u"Media"_s, u"Film"_s);
        QVERIFY(ended.wait(20000));
        QCOMPARE(lineOf("office/reports"), before);
        QVERIFY2(said().contains(u"Settings were changed while “Reports” was saved"_s),
                 qPrintable(said()));
    }

    // libcups adds it to the instance, whenever it writes the user's file.
    void whatTheSystemsFileSaysOfTheQueueIsNobodysChange()
    {
        const Variable etc("CUPS_SERVERROOT", m_home->filePath(u"etc"_s).toUtf8());
        QVERIFY(QDir(m_home->path()).mkpath(u"etc"_s));
        writeFile(m_home->filePath(u"etc/lpoptions"_s), "Dest office unheard=of\n");
        open(u"office"_s);
        save(u"Reports"_s, true);
        setUserOptions(userOptions().replace("\n", " unheard=of\n"));
        QVERIFY(lineOf("office/reports").contains(" unheard=of "));
        propose(u"Media"_s, u"Film"_s);
        save(u"Reports"_s);
        QVERIFY2(lineOf("office/reports").contains(" Media=Film "), userOptions().constData());
    }

    // Of what an administrator has made under its name since, each option counts that the user's
    // line does not name.
    void whatTheSystemsFileSaysOfTheInstanceIsAnswered()
    {
        open(u"office"_s);
        save(u"Reports"_s, true);
        QVERIFY(!lineOf("office/reports").contains(" number-up="));
        const Variable etc("CUPS_SERVERROOT", m_home->filePath(u"etc"_s).toUtf8());
        QVERIFY(QDir(m_home->path()).mkpath(u"etc"_s));
        writeFile(m_home->filePath(u"etc/lpoptions"_s), "Dest office/reports number-up=4\n");
        save(u"Reports"_s);
        QVERIFY2(lineOf("office/reports").contains(" number-up=1 "), userOptions().constData());
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
        const OwnInstance own = KnownInstances::read().changedByOthers.value(draft.name);
        QVERIFY(changeInstances({{draft.name, draft.options}}, own).contains(draft.name));
        QCOMPARE(userOptions(), changed);
        QVERIFY(changeInstances({{draft.name, {}}}, own).isEmpty());
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
