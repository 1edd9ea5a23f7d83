#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include "dialog/session/JobTicket.h"
#include "dialog/session/PanelHost.h"
#include "fuzz/support/Sessions.h"
#include "fuzz/support/Target.h"
#include "platform/foundation/Bundle.h"
#include "platform/toolkit/Alert.h"
#include "platform/toolkit/InterfaceLoader.h"
#include "plugin/QXCLQuality13PDEPlugIn.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

// Each is a panel's whole work, with its views.
constexpr int kMostPicks = 24;

// Takes the first button of every alert.
class Agreeing : public AlertPresenter
{
public:
    AlertAnswer runModal(const Alert &alert, QWidget *) override
    {
        require(!alert.messageText.isEmpty() || !alert.informativeText.isEmpty(),
                "an alert says something");
        return {};
    }
};

// The panels with the bundle as it lies in the tree; without a table of texts a key is its text.
QXCLQuality13PDEPlugIn &plugIn()
{
    static QXCLQuality13PDEPlugIn plugIn;
    static const std::shared_ptr<Bundle> bundle =
        Bundle::open(QStringLiteral(CORVANA_FUZZ_SOURCE_DIR "/resources/bundle"));
    Bundle::associateModule(QCoreApplication::applicationFilePath(), bundle);
    return plugIn;
}

QList<JobOption> jobOf(const PpdSession &session)
{
    return jobOptions(session, plugIn().jobValues(), {});
}

QString textOf(const QList<JobOption> &job)
{
    QStringList texts;
    for (const JobOption &option : job)
        texts += option.name + u'=' + option.value;
    return texts.join(u' ');
}

void requireSameJob(const PpdSession &session, const QList<JobOption> &before, const char *promise)
{
    const QList<JobOption> now = jobOf(session);
    require(now == before, promise, textOf(before) + u'\n' + textOf(now));
}

// What is looked at stays what it is.
void requireVisitsChangeNothing(PpdSession &session, PanelHost &host)
{
    const QList<JobOption> before = jobOf(session);
    for (int panel = 0; panel < host.panels().size(); ++panel)
        require(host.visit(panel), "a panel can be left");
    require(host.visit(-1), "a panel can be left");
    host.deliverPending();
    requireSameJob(session, before, "a page that was looked at prints the same");
    const QList<SummaryLine> summary = host.summary();
    require(host.summary() == summary, "a summary is the same when it is asked for again");
    requireSameJob(session, before, "a summary changes nothing");
}

// Every choice that a panel has a control for, as if the user had picked it.
void pickAll(PpdSession &session, PanelHost &host)
{
    int left = kMostPicks;
    for (const ppd_option_t *option : session.options()) {
        const QString keyword = ppdKeyword(option->keyword);
        if (host.panelOf(keyword) < 0)
            continue;
        require(host.visit(host.panelOf(keyword)), "a panel with a setting can be shown", keyword);
        for (int i = 0; i < option->num_choices && left > 0; ++i, --left) {
            host.pick(keyword, ppdKeyword(option->choices[i].choice));
            QCoreApplication::processEvents();
            host.deliverPending();
            requireMarksAreEntries(session);
        }
    }
}

/// Input: a PPD. The panels come up on whatever it has; what is only looked at, or summed up,
/// prints what it printed before; every mark stands among the entries, whatever is picked; and a
/// state that was saved is there again when it was restored.
void run(const QByteArray &input)
{
    const std::unique_ptr<PpdSession> session = sessionOf(input);
    if (!session)
        return;
    {
        Agreeing presenter;
        PanelHost host(*session, &plugIn(), presenter);
        host.bringUp();
        const QStringList problems = takeInterfaceProblems();
        require(problems.isEmpty(), "a panel has a view on every printer", problems.join(u'\n'));
        requireMarksAreEntries(*session);
        // As before any print: a panel that nobody has seen is restored, and saves what it shows.
        host.restoreAll();
        requireVisitsChangeNothing(*session, host);
        const SessionSnapshot start = session->snapshot();
        const QList<JobOption> job = jobOf(*session);
        pickAll(*session, host);
        host.shouldPrint();
        requireMarksAreEntries(*session);
        host.restoreTo(start);
        require(session->snapshot() == start, "what is restored is what was saved");
        requireSameJob(*session, job, "a state that is restored prints the same");
        require(host.visit(-1), "a panel can be left");
        requireMarksAreEntries(*session);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

const Target target("panels", run);

} // namespace

} // namespace corvana::fuzz
