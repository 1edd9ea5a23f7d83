#include <algorithm>
#include <optional>
#include <random>

#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include "dialog/session/CustomValue.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/Summary.h"
#include "dialog/task/SettingsValues.h"
#include "dialog/task/TaskHistory.h"
#include "platform/pde/PDEPanel.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/KeptStates.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

// A user who does anything in any order: proposals, picks on panels, sliders, attributes, copies,
// pages, undo, redo and resets, on printers with and without panels. After each step the task is
// compared with a history that the test keeps itself, and now and then a job that would be printed
// with one of a task that was set up afresh.
//
// A short walk is made in each run. CORVANA_WALK=10000 makes one of so many steps for each printer,
// CORVANA_WALK_SEED chooses another one.

namespace {

constexpr int kUsualSteps = 250;
constexpr unsigned kSeed = 15;

struct WalkCase
{
    const char *name;
    QString sample; // in resources/ppd; null for the other ones
    PpdBuilder (*ppd)();
};

const QList<WalkCase> kWalks{
    {"CL5", u"corvana-cl5.ppd"_s, nullptr},   {"CL4", u"corvana-cl4.ppd"_s, nullptr},
    {"CL3", u"corvana-cl3.ppd"_s, nullptr},   {"CL2", u"corvana-cl2.ppd"_s, nullptr},
    {"ML3", u"corvana-ml3.ppd"_s, nullptr},   {"MF4", u"corvana-mf4.ppd"_s, nullptr},
    {"an office printer", {}, officePrinter}, {"a small printer", {}, smallPrinter},
};

} // namespace

class HistoryWalkTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TaskScene> m_scene;
    std::mt19937 m_random;
    std::optional<KeptStates> m_states;
    int m_undone = 0;
    int m_compared = 0; // jobs, with those of a command line
    QString m_last;     // what was done last, for a message

    PrintTask &task() { return *m_scene->task; }
    OpenedPrinter &printer() { return *task().opened(); }

    int below(qsizetype end)
    {
        return std::uniform_int_distribution<int>(0, static_cast<int>(end) - 1)(m_random);
    }
    template <class List> auto any(const List &list) { return list.at(below(list.size())); }

    void settle()
    {
        // Panels tell each other in turns of the event loop.
        for (int round = 0; round < 4; ++round)
            QCoreApplication::processEvents();
        printer().panels->deliverPending();
        QCoreApplication::processEvents();
    }

    void propose()
    {
        QList<ppd_option_t *> options = choosableOptionsOf(*printer().session);
        ppd_option_t *option = any(options);
        const QString keyword = ppdKeyword(option->keyword);
        const QString choice = ppdKeyword(option->choices[below(option->num_choices)].choice);
        m_last = u"propose %1=%2"_s.arg(keyword, choice);
        if (choice != kCustomChoice)
            return task().propose(keyword, choice);
        const auto limits = customLimits(printer().session->ppd(), keyword);
        const QString custom = kCustomPrefix + QString::number(1 + below(20));
        if (limits && checkCustomValue(printer().session->ppd(), keyword, custom).value)
            task().propose(keyword, custom);
    }
    static QList<ppd_option_t *> choosableOptionsOf(const PpdSession &session)
    {
        QList<ppd_option_t *> options = session.options();
        options.removeIf([](const ppd_option_t *option) { return option->num_choices == 0; });
        return options;
    }

    void pick()
    {
        QStringList keywords;
        for (const auto &panel : printer().panels->panels())
            keywords += panel->supportedPPDOptionKeys().value_or(QStringList());
        if (keywords.isEmpty())
            return propose();
        ppd_option_t *option = ppdOption(printer().session->ppd(), any(keywords));
        if (!option || option->num_choices == 0)
            return;
        const QString choice = ppdKeyword(option->choices[below(option->num_choices)].choice);
        m_last = u"pick %1=%2"_s.arg(ppdKeyword(option->keyword), choice);
        printer().panels->pick(ppdKeyword(option->keyword), choice);
    }

    // A user reaches only what is enabled, on the panel that is seen.
    void move()
    {
        const int panel = printer().panels->visiblePanel();
        const QPointer<QWidget> view = printer().panels->views().value(panel);
        QList<QSlider *> sliders = view ? view->findChildren<QSlider *>() : QList<QSlider *>();
        sliders.removeIf([](const QSlider *slider) { return !slider->isEnabled(); });
        if (sliders.isEmpty())
            return visit();
        QSlider *slider = any(sliders);
        m_last = u"move "_s + slider->objectName();
        const int span = slider->maximum() - slider->minimum() + 1;
        slider->setValue(slider->minimum() + below(span));
    }

    void visit()
    {
        const int panel = below(printer().panels->panels().size() + 1) - 1;
        m_last = u"visit %1"_s.arg(panel);
        printer().panels->visit(panel);
        task().showSettings();
    }

    void setAttribute()
    {
        const QList<OfferedAttribute> offered = task().attributes();
        const OfferedAttribute one = any(offered);
        const AllowedValues &allowed = jobAttribute(one.name)->allowed;
        QString value; // none
        if (!allowed.words.empty())
            value = allowed
                        .words[static_cast<std::size_t>(
                            below(static_cast<qsizetype>(allowed.words.size())))]
                        .value;
        else if (allowed.range)
            value = QString::number(static_cast<int>(allowed.range->least) + below(50));
        if (below(4) == 0)
            value = QString();
        m_last = u"attribute %1=%2"_s.arg(one.name, value);
        task().setAttribute(one.name, value);
    }

    void reset()
    {
        const QStringList changed = task().history().changedSettings();
        m_last = u"reset"_s;
        if (changed.isEmpty() || below(4) == 0)
            return task().history().resetAll();
        m_last += u' ' + changed.constFirst();
        task().history().resetSettings({any(changed)});
    }

    void act()
    {
        switch (below(10)) {
        case 0:
        case 1:
            return propose();
        case 2:
        case 3:
            return pick();
        case 4:
        case 5:
            return move();
        case 6:
            return visit();
        case 7:
            return setAttribute();
        case 8:
            m_last = u"copies"_s;
            if (below(2) == 0)
                return task().setCopies(1 + below(5));
            return task().setPageRanges(any(QStringList{{}, u"1"_s, u"2-3"_s, u"1,3-"_s}));
        default:
            return reset();
        }
    }

    // What the user did is a step when it means something else for a job.
    void noteState()
    {
        const TaskSettings now = task().settingsNow();
        if (differences(m_states->present(), now, printer()).isEmpty()) {
            m_states->replace(now);
            return;
        }
        m_states->add(now);
    }

    void goBackOrForward(int step)
    {
        const bool back =
            task().history().canUndo() && (below(2) == 0 || !task().history().canRedo());
        if (!back && !task().history().canRedo())
            return;
        const qsizetype alerts = m_scene->face.presenter.shown().size();
        back ? m_states->goBack() : m_states->goForward();
        if (back)
            task().history().undo();
        else
            task().history().redo();
        ++m_undone;
        for (const char *when : {"at once", "later"}) {
            const TaskSettings now = task().settingsNow();
            QVERIFY2(now == m_states->present(),
                     qPrintable(u"step %1, %2, %3, after “%4”:\n%5"_s.arg(step).arg(
                         back ? u"undo"_s : u"redo"_s, QLatin1StringView(when), m_last,
                         differenceOf(now, m_states->present()))));
            settle();
        }
        QCOMPARE(m_scene->face.presenter.shown().size(), alerts);
    }

    static JobTicket ticketOf(PrintTask &of)
    {
        return makeTicket(*of.opened(), of.settings().attributes(), {}, of.settings().copies());
    }

    bool isUnknownToThePrinter(const QString &name)
    {
        return !ppdOption(printer().session->ppd(), name) && !jobAttribute(name);
    }

    // The same job, asked for on a command line: nothing of how it came about is in it.
    void compareWithACommandLine(PrintRequest request)
    {
        QVERIFY(printer().panels->visit(-1)); // a panel that is left saves
        settle();
        noteState();
        // Nothing would be printed of a choice without its number.
        if (!jobProblems(*printer().session, printer().jobValues).isEmpty())
            return;
        ++m_compared;
        JobTicket ours = ticketOf(task());
        request.options = ours.options;
        // Said by "collate"; and values of panels that only a filter of the server may know.
        request.options.removeIf([&](const JobOption &option) {
            return option.name == kHandlingAttribute || isUnknownToThePrinter(option.name);
        });
        request.copies = ours.copies;
        request.copiesWereNamed = true;
        TaskScene fresh;
        for (int i = 0; i < 5; ++i)
            fresh.face.presenter.expect();
        fresh.open(request);
        QVERIFY2(fresh.face.messages.isEmpty(), qPrintable(fresh.face.message()));
        JobTicket theirs = ticketOf(*fresh.task);
        for (JobTicket *ticket : {&ours, &theirs})
            ticket->options.removeIf(
                [&](const JobOption &option) { return isUnknownToThePrinter(option.name); });
        compareTickets(ours, theirs);
    }

    static void compareTickets(const JobTicket &ours, const JobTicket &theirs)
    {
        QCOMPARE(ours.copies, theirs.copies);
        for (const JobOption &option : ours.options)
            QVERIFY2(theirs.options.contains(option),
                     qPrintable(option.name + u'=' + option.value));
        for (const JobOption &option : theirs.options)
            QVERIFY2(ours.options.contains(option),
                     qPrintable(u"only afresh: "_s + option.name + u'=' + option.value));
    }

    void compareWithAFreshOne(const PrintRequest &request)
    {
        const TaskSettings state = task().settingsNow();
        TaskScene fresh;
        fresh.open(request);
        fresh.task->restoreSettings(state);
        for (const PrintTask *one : {&task(), fresh.task.get()})
            QVERIFY(one->opened()->panels->visit(-1)); // a panel that is left saves
        compareTickets(ticketOf(task()), ticketOf(*fresh.task));
        QCOMPARE(summaryText(task().summary()), summaryText(fresh.task->summary()));
    }

private Q_SLOTS:
    void everyStateComesBackAsItWas_data() { addRows(kWalks); }
    void everyStateComesBackAsItWas()
    {
        const WalkCase &row = currentRow(kWalks);
        const int steps = numberOf("CORVANA_WALK", kUsualSteps);
        m_random.seed(static_cast<unsigned>(numberOf("CORVANA_WALK_SEED", kSeed)));
        m_scene = std::make_unique<TaskScene>();
        PrintRequest request =
            row.ppd ? m_scene->request(row.ppd())
                    : m_scene->request({Printer{u"sample"_s, u"Sample"_s,
                                                sourceFile(u"resources/ppd/"_s + row.sample), 5}});
        m_scene->open(request);
        settle();
        m_states.emplace(task().settingsNow());
        m_undone = m_compared = 0;
        for (int step = 0; step < steps; ++step) {
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
            QCOMPARE(task().history().canUndo(), m_states->canGoBack());
            QCOMPARE(task().history().canRedo(), m_states->canGoForward());
            if (step % 100 == 50)
                compareWithACommandLine(request);
            if (QTest::currentTestFailed()) {
                qWarning().noquote() << "after" << m_last << "at step" << step;
                return;
            }
        }
        QVERIFY(m_undone > steps / 5);
        QVERIFY(m_compared > steps / 100 / 3);
        compareWithAFreshOne(request);
        m_scene.reset();
    }
};

QTEST_MAIN(HistoryWalkTest)
#include "history_walk_test.moc"
