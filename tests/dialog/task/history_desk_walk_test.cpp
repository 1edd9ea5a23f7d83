#include <algorithm>
#include <optional>
#include <random>

#include <QTemporaryDir>
#include <QTest>

#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/task/SettingsValues.h"
#include "dialog/task/TaskHistory.h"
#include "dialog/task/TaskPresets.h"
#include "tests/dialog/policy/TestPolicy.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/KeptStates.h"
#include "tests/dialog/task/PresetActs.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Phase = PrintTask::Phase;
using Kind = SelectedPreset::Kind;

// A user who goes from printer to printer, uses, keeps, updates and removes presets, and adds and
// removes documents, between picks, undo and redo, with and without a policy. After each step the
// task is compared with a history that the test keeps itself.
//
// What is listed by when is the file system's affair, and the walk goes on from it: as one seed
// does not make one walk on every machine, a walk that met too little of something takes further
// steps.
//
// CORVANA_WALK and CORVANA_WALK_SEED as in the other walk; CORVANA_WALK_PPDS names further printers
// by their PPDs, with colons between them.

namespace {

constexpr int kUsualSteps = 250;
constexpr int kMostWalks = 4; // as long as the usual one
constexpr unsigned kSeed = 15;

struct Desk
{
    const char *name;
    QByteArray policy{};
};

const QList<Desk> kDesks{
    {"free"},
    {"under a policy", "[all]\nlock.number-up=2\nlock.copies=1\nlock.Duplex=DuplexNoTumble\n"
                       "lock.media=A4\nlock.QXMonoColor=mono\n[printer small]\nlock.Media=Film\n"},
};

} // namespace

class HistoryDeskWalkTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_home;
    std::unique_ptr<TaskScene> m_scene;
    std::mt19937 m_random;
    QList<Printer> m_printers;
    std::optional<KeptStates> m_states;
    QMap<QString, int> m_done; // how often what was done led to another state
    int m_locks = 0;           // the most that a printer had
    QString m_last;

    PrintTask &task() { return *m_scene->task; }
    TaskPresets &presets() { return task().presets(); }
    int below(qsizetype end)
    {
        return std::uniform_int_distribution<int>(0, static_cast<int>(end) - 1)(m_random);
    }
    template <class List> auto any(const List &list) { return list.at(below(list.size())); }

    void settle()
    {
        task().bringUp();
        for (int round = 0; round < 4; ++round)
            QCoreApplication::processEvents();
        task().opened()->panels->deliverPending();
        QCoreApplication::processEvents();
    }

    void propose()
    {
        QList<ppd_option_t *> options = m_scene->session().options();
        options.removeIf([](const ppd_option_t *option) { return option->num_choices == 0; });
        const ppd_option_t *option = any(options);
        const QString choice = ppdKeyword(option->choices[below(option->num_choices)].choice);
        m_last = u"propose %1=%2"_s.arg(ppdKeyword(option->keyword), choice);
        if (choice != kCustomChoice)
            task().propose(ppdKeyword(option->keyword), choice);
    }
    void pick()
    {
        PanelHost &panels = *task().opened()->panels;
        panels.visit(below(panels.panels().size() + 1) - 1);
        const QList<ppd_option_t *> options = m_scene->session().options();
        const ppd_option_t *option = any(options);
        if (option->num_choices == 0)
            return;
        const QString choice = ppdKeyword(option->choices[below(option->num_choices)].choice);
        m_last = u"pick %1=%2"_s.arg(ppdKeyword(option->keyword), choice);
        panels.pick(ppdKeyword(option->keyword), choice);
    }
    void setAttribute()
    {
        static const QList<JobOption> kSome{{u"number-up"_s, u"4"_s},
                                            {u"number-up"_s, u"2"_s},
                                            {u"mirror"_s, u"true"_s},
                                            {u"booklet"_s, u"left"_s},
                                            {u"number-up"_s, QString()}};
        const JobOption one = any(kSome);
        m_last = u"attribute "_s + one.name;
        task().setAttribute(one.name, one.value);
    }
    void choosePrinter()
    {
        m_last = u"printer"_s;
        task().choosePrinter(any(m_printers));
    }
    void usePreset()
    {
        QStringList names = presets().listing().names();
        m_last = u"defaults"_s;
        if (names.isEmpty() || below(4) == 0)
            return presets().useDefaults();
        const QString name = any(names);
        m_last = u"preset "_s + name;
        presets().use(name);
    }
    void wait(const std::function<void()> &act)
    {
        constexpr int kPatience = 50; // of many acts few change what is listed
        QVERIFY(endOf(presets(), act, kPatience) != u"nothing ended"_s);
    }
    void changePresets()
    {
        // Another printer may have seen it removed.
        const bool isSelected = presets().selected().kind == Kind::Preset &&
                                presets().listing().find(presets().selected().name);
        const QString name = u"P%1"_s.arg(below(4));
        m_last = u"keep "_s + name;
        switch (below(isSelected ? 4 : 2)) {
        case 0:
        case 1:
            return wait([&] { presets().save({name, below(2) == 0, below(2) == 0, true}); });
        case 2:
            m_last = u"update"_s;
            return wait([&] { presets().update(); });
        default:
            m_last = u"remove"_s;
            return wait([&] { presets().remove(); });
        }
    }
    void changeDocuments()
    {
        m_last = u"documents"_s;
        const qsizetype count = task().documents().size();
        if (count > 1 && below(2) == 0)
            return task().removeDocument(below(count));
        if (count < 4)
            task().addDocuments({sourceFile(u"tests/data/page.txt"_s)});
    }
    void reset()
    {
        const QStringList changed = task().history().changedSettings();
        m_last = u"reset"_s;
        if (changed.isEmpty() || below(3) == 0)
            return task().history().resetAll();
        task().history().resetSettings({any(changed)});
    }
    void act()
    {
        switch (below(12)) {
        case 0:
        case 1:
            return propose();
        case 2:
        case 3:
            return pick();
        case 4:
            return setAttribute();
        case 5:
            m_last = u"copies"_s;
            return task().setCopies(1 + below(5));
        case 6:
        case 7:
            return choosePrinter();
        case 8:
            return usePreset();
        case 9:
            return changePresets();
        case 10:
            return changeDocuments();
        default:
            return reset();
        }
    }

    // Of what has to be met in a walk, what was not met often enough in so many steps, or nothing.
    const char *missing(int steps) const
    {
        for (const char *act : {"printer", "preset", "documents", "reset", "back"}) {
            if (m_done.value(QString::fromLatin1(act)) <= steps / 100)
                return act;
        }
        return nullptr;
    }

    void noteState()
    {
        const TaskSettings now = task().settingsNow();
        const TaskSettings &before = m_states->present();
        const bool isSamePrinter = idOf(before.printer) == idOf(now.printer);
        if (isSamePrinter && before.documents == now.documents &&
            differences(before, now, *task().opened()).isEmpty()) {
            m_states->replace(now);
            return;
        }
        ++m_done[m_last.section(u' ', 0, 0)];
        m_states->add(now);
    }

    void goBackOrForward(int step)
    {
        const bool back =
            task().history().canUndo() && (below(2) == 0 || !task().history().canRedo());
        if (!back && !task().history().canRedo())
            return;
        back ? m_states->goBack() : m_states->goForward();
        back ? task().history().undo() : task().history().redo();
        ++m_done[u"back"_s];
        settle();
        const TaskSettings now = task().settingsNow();
        QVERIFY2(now == m_states->present(),
                 qPrintable(u"step %1, %2, after “%3”:\n%4"_s.arg(
                     QString::number(step), back ? u"undo"_s : u"redo"_s, m_last,
                     differenceOf(now, m_states->present()))));
    }

    // Of what the printer that is open takes at all.
    void compareWithLocks()
    {
        const OptionLocks &locks = m_scene->session().locks();
        m_locks = std::max(m_locks, int(locks.size()));
        for (auto lock = locks.cbegin(); lock != locks.cend(); ++lock) {
            QString now = task().settings().attribute(lock.key());
            if (lock.key() == kCopiesAttribute)
                now = QString::number(task().settings().copies());
            else if (lock->kind == OptionLock::Kind::Choice)
                now = m_scene->session().markedChoice(lock.key());
            if (lock->kind != OptionLock::Kind::PanelValue)
                QVERIFY2(now == lock->value, qPrintable(lock.key() + u'=' + now));
        }
    }

    PrintRequest request()
    {
        m_printers.clear();
        for (const char *sample : {"cl5", "ml3"})
            m_printers += Printer{
                QString::fromLatin1(sample), QString::fromLatin1(sample),
                sourceFile(u"resources/ppd/corvana-%1.ppd"_s.arg(QString::fromLatin1(sample))), 5};
        m_printers += m_scene->printer(u"office"_s, officePrinter().text());
        m_printers += m_scene->printer(u"small"_s, smallPrinter().text());
        const QStringList further =
            qEnvironmentVariable("CORVANA_WALK_PPDS").split(u':', Qt::SkipEmptyParts);
        for (const QString &path : further)
            m_printers += Printer{path.section(u'/', -1), path, path, 1};
        PrintRequest request = m_scene->request(m_printers);
        request.presetPlaces = {m_home.filePath(u"presets"_s)};
        return request;
    }

private Q_SLOTS:
    void everyStateComesBackAsItWas_data() { addRows(kDesks); }
    void everyStateComesBackAsItWas()
    {
        const Desk &row = currentRow(kDesks);
        m_done.clear();
        m_locks = 0;
        const int steps = numberOf("CORVANA_WALK", kUsualSteps);
        m_random.seed(static_cast<unsigned>(numberOf("CORVANA_WALK_SEED", kSeed)));
        m_scene = std::make_unique<TaskScene>();
        PrintRequest request = this->request();
        request.policy = policyFrom(row.policy);
        m_scene->open(request);
        settle();
        m_states.emplace(task().settingsNow());
        for (int step = 0; step < steps || (missing(steps) && step < kMostWalks * steps); ++step) {
            while (m_scene->face.presenter.outstanding() < 5)
                m_scene->face.presenter.expect();
            if (below(3) == 0) {
                goBackOrForward(step);
            } else {
                task().history().endStep();
                act();
                settle();
                noteState();
            }
            if (!QTest::currentTestFailed())
                compareWithLocks();
            if (!QTest::currentTestFailed())
                QCOMPARE(task().history().canUndo(), m_states->canGoBack());
            if (!QTest::currentTestFailed())
                QCOMPARE(task().history().canRedo(), m_states->canGoForward());
            if (QTest::currentTestFailed()) {
                qWarning().noquote()
                    << "after" << m_last << "at step" << step << task().history().undoText();
                return;
            }
        }
        QVERIFY2(!missing(steps), missing(steps));
        QCOMPARE(m_locks > 0, !row.policy.isEmpty());
        m_scene.reset();
    }
};

QTEST_MAIN(HistoryDeskWalkTest)
#include "history_desk_walk_test.moc"
