#include <QRandomGenerator>
#include <QTest>

#include "dialog/policy/Policy.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/task/LeftSession.h"
#include "dialog/task/PresetApplication.h"
#include "dialog/task/TaskHistory.h"
#include "tests/dialog/policy/TestPolicy.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Phase = PrintTask::Phase;

namespace {

constexpr quint32 kSeed = 15;
constexpr int kRounds = 12;
constexpr int kSteps = 120;

// One line of a policy, and what it makes of a job.
struct Lock
{
    const char *line;
    const char *keyword; ///< of the job's option
    const char *value;
};
constexpr Lock kLocks[] = {
    {"lock.Duplex=DuplexNoTumble", "Duplex", "DuplexNoTumble"},
    {"lock.media=A4", "PageSize", "A4"},
    {"lock.QXMonoColor=mono", "QXMonoColor", "Mono"},
    {"lock.TonerSaveMode=ON", "TonerSaveMode", "ON"},
    {"lock.QXDensityAdjustment=2", "QXDensityAdjustment", nullptr},
    {"lock.QXBrightness=1", "QXBrightness", nullptr},
    {"lock.QXSleepTime=Custom.12", "QXSleepTime", "Custom.12"},
    {"lock.QXImproveOutput=FixIntensity", "QXImproveOutput", nullptr},
    {"lock.QXMediaType=Plain", "QXMediaType", nullptr},
    {"lock.number-up=2", "number-up", "2"},
    {"lock.page-border=single", "page-border", "single"},
    {"lock.copies=2", "copies", "2"},
};

} // namespace

/// Whatever is done to a job, in whatever order: a lock never moves.
class TaskPolicyWalkTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TaskScene> m_scene;
    QRandomGenerator m_random{kSeed};
    QList<SessionSnapshot> m_free; // states of a session that nobody has locked
    OptionLocks m_locks;

    PrintTask &task() { return *m_scene->task; }
    PpdSession &session() { return m_scene->session(); }
    int below(qsizetype end) { return int(m_random.bounded(quint32(end))); }

    OptionChoice anyChoice()
    {
        const QList<ppd_option_t *> options = session().options();
        const ppd_option_t *option = options.at(below(options.size()));
        return {ppdKeyword(option->keyword),
                ppdKeyword(option->choices[below(option->num_choices)].choice)};
    }
    JobOption anyAttribute()
    {
        static const QList<JobOption> kSome = {
            {u"number-up"_s, u"4"_s},      {u"number-up"_s, QString()},
            {u"page-border"_s, u"none"_s}, {u"orientation-requested"_s, u"4"_s},
            {u"mirror"_s, u"true"_s},      {u"booklet"_s, u"true"_s},
            {u"raw"_s, u"true"_s},         {u"print-color-mode"_s, u"color"_s},
            {u"collate"_s, u"false"_s},    {u"job-priority"_s, u"70"_s},
            {u"number-up"_s, u"2"_s},      {u"page-set"_s, u"odd"_s},
        };
        return kSome.at(below(kSome.size()));
    }
    // As a panel writes what is its own alone.
    void writeEntries()
    {
        static const QList<JobOption> kSome = {
            {u"QXDensityAdjustment"_s, u"-3"_s}, {u"QXSleepTime"_s, u"Custom.40"_s},
            {u"QXSleepTime"_s, u"Default"_s},    {u"QXBrightness"_s, u"-4"_s},
            {u"QXContrast"_s, u"3"_s},           {u"QXSaturation"_s, u"-2"_s},
        };
        if (const PDEJobValues *values = task().opened()->jobValues)
            values->takeJobOption(kSome.at(below(kSome.size())), session().printSettings(),
                                  session().ppd());
    }
    // As one that was kept where nothing was locked.
    PresetContent anyPreset()
    {
        PresetContent preset;
        for (int i = 0; i < 3; ++i) {
            const OptionChoice choice = anyChoice();
            preset.options.insert(choice.keyword, choice.choice);
            const JobOption attribute = anyAttribute();
            preset.attributes.insert(attribute.name, attribute.value);
        }
        preset.options.insert(u"QXDensityAdjustment"_s, u"-2"_s);
        return preset;
    }
    void step()
    {
        const OptionChoice choice = anyChoice();
        const JobOption attribute = anyAttribute();
        PanelHost &panels = *task().opened()->panels;
        switch (below(16)) {
        case 0:
        case 1:
            return task().propose(choice.keyword, choice.choice);
        case 2:
            panels.pick(choice.keyword, choice.choice);
            return;
        case 3:
            session().change(choice.keyword, choice.choice, PpdSession::Origin::Panel);
            return;
        case 4:
            session().changeTogether({choice, anyChoice()});
            return;
        case 5:
            task().setAttribute(attribute.name, attribute.value);
            return;
        case 6:
            task().settings().addAttributes({attribute});
            task().settings().restoreChosenAttributes({anyAttribute()});
            return;
        case 7:
            task().settings().askForCopies(1 + below(9), JobSettings::By::User);
            task().settings().setPageRanges(u"1-%1"_s.arg(1 + below(9)));
            return;
        case 8:
            return writeEntries();
        case 9:
            panels.visit(below(panels.panels().size() + 1) - 1);
            return;
        case 10:
            // A state of before the lock, by undo, a preset, or a printer that comes back.
            session().restore(m_free.at(below(m_free.size())));
            panels.restoreAll();
            return;
        case 11:
            return task().history().undo();
        case 12:
            return task().history().redo();
        case 13:
            return task().history().resetAll();
        case 14:
            applyPreset(anyPreset(), {}, task().documents(), *task().opened(), task().settings());
            return;
        default:
            applyOptions({{attribute.name, attribute.value.isNull() ? u"1"_s : attribute.value},
                          {choice.keyword, choice.choice}},
                         session(), task().opened()->jobValues, panels);
            return;
        }
    }
    // Marks and attributes hold at every moment.
    void compare()
    {
        for (auto lock = m_locks.cbegin(); lock != m_locks.cend(); ++lock) {
            if (!lock->choice.isNull()) {
                const QString custom = session().customValue(lock.key());
                const QString marked = session().markedChoice(lock.key());
                QVERIFY2(lock->choice == marked || lock->choice == custom,
                         qPrintable(lock.key() + u'=' + marked));
            }
            if (lock->kind != OptionLock::Kind::Attribute)
                continue;
            const QString value = lock.key() == u"copies"_s
                                      ? QString::number(task().settings().copies())
                                      : task().settings().attribute(lock.key());
            QVERIFY2(value == lock->value, qPrintable(lock.key() + u'=' + value));
        }
    }
    PrintRequest request() { return m_scene->request({{u"cl5"_s, u"cl5"_s, samplePpdPath(), 5}}); }
    // What the job says of a value that panels keep, where that is locked; of one that is not in
    // force, its default.
    QByteArray panelOption(const OptionLock &lock)
    {
        const PDEJobValues *values = task().opened()->jobValues;
        PrintSettings trial;
        trial.setEntries(session().printSettings().entries());
        const JobValueClaim claim = values->takeJobOption(lock.asked, trial, session().ppd());
        for (const JobOption &option : values->jobOptions(trial, session().ppd())) {
            if (option.name == claim.standsFor.name)
                return (option.name + u'=' + option.value).toUtf8();
        }
        return {};
    }
    // States in which everything is something else.
    void walkFreely()
    {
        m_scene->open(request());
        m_free = {session().snapshot()};
        for (int i = 0; i < 60; ++i) {
            const OptionChoice choice = anyChoice();
            session().change(choice.keyword, choice.choice, PpdSession::Origin::Dialog);
            writeEntries();
            task().opened()->panels->deliverPending();
            m_free += session().snapshot();
        }
    }

private Q_SLOTS:
    void init()
    {
        m_scene = std::make_unique<TaskScene>();
        // Whatever panels ask on the way, nobody objects.
        constexpr int kAlerts = 100000;
        for (int i = 0; i < kAlerts; ++i)
            m_scene->face.presenter.expect();
    }
    void cleanup() { m_scene.reset(); }

    void aLockNeverMoves()
    {
        walkFreely();
        int printed = 0;
        int moved = 0;
        int inForce = 0; // values of panels that are locked, and not at their defaults
        for (int round = 0; round < kRounds; ++round) {
            QByteArray policy = "[all]\n";
            QList<Lock> chosen;
            for (const Lock &lock : kLocks) {
                if (below(2) == 0)
                    continue;
                chosen += lock;
                policy += lock.line + QByteArray("\n");
            }
            PrintRequest request = this->request();
            request.policy = policyFrom(policy);
            m_scene->open(request);
            m_locks = session().locks();
            for (int i = 0; i < kSteps; ++i) {
                const SessionSnapshot before = session().snapshot();
                step();
                compare();
                if (QTest::currentTestFailed())
                    return;
                QCoreApplication::processEvents();
                moved += before == session().snapshot() ? 0 : 1;
                compare();
                if (QTest::currentTestFailed())
                    return;
            }
            // What was moved among the panels' own values is put back by the first try at the
            // latest; another reason may still hold the job back.
            task().settings().setPageRanges({});
            for (int i = 0; i < 3 && task().phase() == Phase::Ready; ++i) {
                task().print();
                QTRY_VERIFY(task().phase() == Phase::Ready || task().phase() == Phase::Ended);
            }
            if (task().phase() != Phase::Ended)
                continue;
            ++printed;
            const QByteArrayList arguments = m_scene->arguments();
            for (auto lock = m_locks.cbegin(); lock != m_locks.cend(); ++lock) {
                if (lock->kind != OptionLock::Kind::PanelValue)
                    continue;
                const QByteArray option = panelOption(*lock);
                QVERIFY2(arguments.contains(option), option.constData());
                inForce += option.endsWith('=' + lock->asked.value.toUtf8()) ? 1 : 0;
            }
            for (const Lock &lock : std::as_const(chosen)) {
                if (!m_locks.contains(QString::fromUtf8(lock.keyword)) || !lock.value)
                    continue;
                const QByteArray option = QByteArray(lock.keyword) + '=' + lock.value;
                if (qstrcmp(lock.keyword, "copies") != 0)
                    QVERIFY2(arguments.contains(option), arguments.join(' ').constData());
            }
        }
        QVERIFY2(printed >= kRounds / 3, qPrintable(QString::number(printed)));
        QVERIFY2(inForce > kRounds / 4, qPrintable(QString::number(inForce)));
        QVERIFY2(moved > kRounds * kSteps / 4, qPrintable(QString::number(moved)));
    }
};

QTEST_MAIN(TaskPolicyWalkTest)
#include "task_policy_walk_test.moc"
