#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

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

/// A preset of a window on queues that are not open: each is opened by a run of the program, beside
/// the window, and has what it makes of the preset.
class PresetElsewhereTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<OwnHome> m_home;
    std::unique_ptr<PrivateCups> m_cups;
    std::unique_ptr<TaskScene> m_scene;
    QString m_program;

    PrintTask &task() { return *m_scene->task; }
    TaskPresets &presets() { return task().presets(); }
    QByteArray userOptions() const
    {
        QFile file(m_home->filePath(u".cups/lpoptions"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QByteArray lineOf(const QByteArray &instance) const
    {
        for (const QByteArray &line : userOptions().split('\n')) {
            if (line.startsWith("Dest " + instance + ' '))
                return line + ' ';
        }
        return {};
    }
    void addQueue(const QString &name, const PpdBuilder &ppd = smallPrinter(),
                  const QByteArray &model = "Corvana Test", const QueueSettings &settings = {})
    {
        QByteArray text = ppd.text();
        text.replace("Corvana Test", model);
        m_cups->addQueue(name, writeFile(m_home->filePath(name + u".ppd"_s), text), settings);
    }
    // As in a window of its own.
    void open(const QString &queue, const QString &instance = {})
    {
        PrintRequest request = m_scene->request(QList<Printer>());
        request.server = *ServerAddress::parse(m_cups->server());
        request.serverWasNamed = true;
        request.wantedPrinter = queue;
        request.presetPlaces = PresetPlaces::ofUser();
        request.program = m_program;
        request.instance = instance;
        m_scene->face.messages.clear();
        m_scene->make(request).start();
        QVERIFY2(m_scene->reaches(Phase::Opened), qPrintable(task().problem().text));
        task().bringUp();
        QTRY_COMPARE(task().phase(), Phase::Ready);
        lookAgain(presets());
    }
    void save(const QStringList &alsoOn, bool forAll = false, const QStringList &notOn = {})
    {
        QSignalSpy ended(&presets(), &TaskPresets::ended);
        QSignalSpy elsewhere(&presets(), &TaskPresets::endedElsewhere);
        QElapsedTimer timer;
        timer.start();
        presets().save({.name = u"Reports"_s,
                        .forAllPrinters = forAll,
                        .replaces = true,
                        .elsewhere = true,
                        .alsoOn = alsoOn,
                        .notOn = notOn});
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(ended.wait(20000));
        QVERIFY(presets().others().isEmpty() || !elsewhere.isEmpty() || elsewhere.wait(60000));
        lookAgain(presets());
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
        m_program = QStringLiteral(CORVANA_TEST_PROGRAM);
        m_home = std::make_unique<OwnHome>();
        m_cups = std::make_unique<PrivateCups>();
        m_cups->start();
        m_scene = std::make_unique<TaskScene>();
        addQueue(u"office"_s);
        addQueue(u"lab"_s, smallPrinter(), "Corvana Test",
                 {.options = {u"number-up-default=2"_s, u"Tray=Lower"_s}});
        addQueue(u"ink"_s, smallPrinter(), "Corvana Ink");
    }
    void cleanup()
    {
        m_scene.reset();
        m_cups.reset();
        m_home.reset();
    }

    // Each says by what name other programs will have it, and why where they cannot.
    void queuesOfTheModelAreOffered()
    {
        open(u"office"_s);
        task().printers().start(); // as a window does
        QTRY_COMPARE(task().printers().queues().state(), QueueList::State::Known);
        const auto offered = [this](bool forAll) {
            QStringList names;
            const QList<OtherQueue> others = presets().otherQueues(u"Reports"_s, forAll);
            for (const OtherQueue &other : others)
                names += other.instance + (other.isThere ? u" is there"_s : QString());
            names.sort();
            return names;
        };
        QCOMPARE(offered(false), QStringList{u"lab/reports"_s});
        QCOMPARE(offered(true), (QStringList{u"ink/reports"_s, u"lab/reports"_s}));
        save({u"lab/reports"_s});
        QCOMPARE(offered(false), QStringList{u"lab/reports is there"_s});
    }

    void queuesThatAreNamedHaveThePresetAndFollowIt()
    {
        open(u"office"_s);
        save({u"lab/reports"_s});
        QVERIFY2(lineOf("lab/reports").contains(" number-up=2 "), userOptions().constData());
        QVERIFY(!lineOf("office/reports").contains(" number-up="));
        QCOMPARE(said(), QString());

        propose(u"Media"_s, u"Card"_s);
        save({});
        QVERIFY2(lineOf("lab/reports").contains(" Media=Card "), userOptions().constData());
        QVERIFY2(lineOf("lab/reports").contains(" number-up=2 "), userOptions().constData());
        QCOMPARE(endOf(presets(), [&] { presets().rename(u"Accounts"_s); }), QString());
        QCOMPARE(KnownInstances::read().ofPreset(u"Accounts"_s, u"lab"_s), u"lab/reports"_s);
        QCOMPARE(endOf(presets(), [&] { presets().remove(); }), QString());
        QCOMPARE(userOptions(), QByteArray());
    }

    void aQueueIsTakenOutAgain()
    {
        open(u"office"_s);
        save({u"lab/reports"_s});
        QVERIFY(!lineOf("lab/reports").isEmpty());
        save({}, false, {u"lab/reports"_s});
        QVERIFY2(lineOf("lab/reports").isEmpty(), userOptions().constData());
        QVERIFY(!lineOf("office/reports").isEmpty());
    }

    void anotherModelsQueueFollowsAPresetForAllPrinters()
    {
        open(u"office"_s);
        propose(u"Media"_s, u"Card"_s);
        save({u"ink/reports"_s}, true);
        QVERIFY2(lineOf("ink/reports").contains(" Media=Card "), qPrintable(said()));
        propose(u"Media"_s, u"Film"_s);
        save({}, true);
        QVERIFY2(lineOf("ink/reports").contains(" Media=Film "), userOptions().constData());
        QCOMPARE(said(), QString());
    }

    void aPresetOfOneModelIsNoneOnAnotherOne()
    {
        open(u"office"_s);
        save({u"ink/reports"_s});
        QVERIFY(lineOf("ink/reports").isEmpty());
        QVERIFY2(said().contains(u"“ink/reports” in other programs: There is no preset"_s),
                 qPrintable(said()));
    }

    void whatIsNotPossibleThereIsNamedAndTheRestIsWritten()
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
        open(u"office"_s);
        save({u"lab/reports"_s});
        propose(u"Boost"_s, u"ON"_s);
        propose(u"Media"_s, u"Film"_s);
        save({});
        QVERIFY2(lineOf("lab/reports").contains(" Media=Film "), userOptions().constData());
        QVERIFY(!lineOf("lab/reports").contains(" Boost=ON "));
        QVERIFY(lineOf("office/reports").contains(" Boost=ON "));
        QVERIFY2(said().contains(u"“lab/reports” in other programs: "_s) &&
                     said().contains(u"Boost"_s),
                 qPrintable(said()));
    }

    // In the window, on each queue, as on the terminal.
    void whatOtherProgramsCannotHaveIsSaid()
    {
        open(u"office"_s);
        task().setAttribute(u"booklet"_s, u"left"_s);
        save({u"lab/reports"_s});
        for (const QString &instance : {u"office/reports"_s, u"lab/reports"_s}) {
            QVERIFY(!lineOf(instance.toUtf8()).isEmpty());
            QVERIFY2(
                said().contains(u"“%1” in other programs: “Booklet” is left out"_s.arg(instance)),
                qPrintable(said()));
        }
        // One message takes the place of the other.
        const TaskMessage &last = m_scene->face.messages.constLast();
        QVERIFY2(last.text.contains(u"office/reports"_s), qPrintable(last.text));
        QCOMPARE(last.text.count(u"lab/reports"_s), 1);
        QCOMPARE(last.kind, TaskMessage::Kind::Information);
    }

    void whatIsLoggedIsNotSaid()
    {
        open(u"office"_s);
        const Variable rules("QT_LOGGING_RULES", "*.debug=true");
        save({u"lab/reports"_s});
        QVERIFY(!lineOf("lab/reports").isEmpty());
        QCOMPARE(said(), QString());
        save({u"gone/reports"_s});
        QCOMPARE(said().count(u'\n'), 0);
        QVERIFY2(said().startsWith(u"“gone/reports” in other programs: "_s), qPrintable(said()));
    }

    // Whoever asked for encryption, or has a name that looks like an option, gets no other run.
    void theRunIsAskedForTheSame()
    {
        PrintRequest request;
        request.server = *ServerAddress::parse(u"somewhere:6310"_s);
        request.bundleRoots = {u"/panels"_s};
        const OtherInstance instance{u"-lab/reports"_s, u"-Reports"_s, {}};
        const QStringList plain = argumentsForOther(instance, request);
        QVERIFY(!plain.contains(u"-E"_s) && !plain.join(u' ').contains(u"somewhere"_s));
        request.serverWasNamed = true;
        request.server.encryption = HTTP_ENCRYPTION_REQUIRED;
        const QStringList arguments = argumentsForOther(instance, request);
        for (const QString &one :
             {u"--no-dialog"_s, u"--printer=-lab"_s, u"--preset=-Reports"_s,
              u"--save-instance=reports"_s, u"--follow-preset="_s, u"-E"_s,
              u"--server="_s + request.server.argument(), u"--bundle-root=/panels"_s})
            QVERIFY2(arguments.contains(one), qPrintable(arguments.join(u' ')));
    }

    // Two runs that keep the same preset: the instance is of the one that is there.
    void anInstanceOfAPresetThatWasKeptAnewIsNotWritten()
    {
        open(u"office"_s, u"Monthly"_s);
        propose(u"Media"_s, u"Card"_s);
        QCOMPARE(endOf(presets(),
                       [&] {
                           presets().save({u"Reports"_s, false, false, true});
                       }),
                 QString());
        QVERIFY(!presets().saveInstance(u"Reports"_s));
        const QByteArray written = lineOf("office/monthly");
        QVERIFY2(written.contains(" Media=Card "), userOptions().constData());

        Preset anew = presets().listing().find(u"Reports"_s)->preset;
        anew.content.options[u"Media"_s] = u"Film"_s;
        QCOMPARE(PresetStore(PresetPlaces::ofUser()).save(anew, PresetStore::Replacing::Yes),
                 QString());
        propose(u"Tray"_s, u"Lower"_s);
        const std::optional<TaskRefusal> refusal = presets().saveInstance(u"Reports"_s);
        QVERIFY(refusal);
        QVERIFY2(refusal->problems.join(u' ').contains(u"“Reports”"_s),
                 qPrintable(refusal->problems.join(u' ')));
        QCOMPARE(lineOf("office/monthly"), written);
    }

    void aQueueThatCannotBeReadIsNamed()
    {
        open(u"office"_s);
        save({u"gone/reports"_s, u"lab/reports"_s});
        QVERIFY2(said().contains(u"“gone/reports” in other programs: "_s), qPrintable(said()));
        QCOMPARE(said().count(u"gone/reports"_s), 1);
        QCOMPARE(m_scene->face.messages.constLast().kind, TaskMessage::Kind::Problem);
        QVERIFY(lineOf("gone/reports").isEmpty());
        QVERIFY(!lineOf("lab/reports").isEmpty());
    }

    // As when the program was removed while its window is open.
    void whatCannotBeRunIsNamed()
    {
        m_program = m_home->filePath(u"nothing"_s);
        open(u"office"_s);
        save({u"lab/reports"_s});
        QVERIFY2(said().contains(u"“lab/reports” in other programs: "_s), qPrintable(said()));
        QVERIFY(lineOf("lab/reports").isEmpty());
        QVERIFY(!lineOf("office/reports").isEmpty());
    }
};

QTEST_MAIN(PresetElsewhereTest)
#include "preset_elsewhere_test.moc"
