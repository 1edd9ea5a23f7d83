#include "dialog/task/PrintTask.h"

#include <utility>

#include "dialog/task/LeftSession.h"
#include "dialog/task/RefusalText.h"
#include "dialog/task/SettingsValues.h"
#include "dialog/task/TaskHistory.h"
#include "dialog/task/TaskPresets.h"

namespace corvana {

namespace {

// A printer whose options are others by now takes what it has still. `then` and `opened`: what was
// marked when it was opened with those, and with these.
SessionSnapshot withOptionsOfNow(const TaskSettings &settings, const SessionSnapshot &then,
                                 const SessionSnapshot &opened, const QByteArray &hash,
                                 PpdSession &session, QStringList *lost)
{
    if (settings.ppdHash == hash)
        return settings.session;
    session.restore(opened);
    *lost = restoreLeft(
        {.opened = then, .left = settings.session, .ppdHash = settings.ppdHash, .attributes = {}},
        hash, session);
    return session.snapshot();
}

} // namespace

TaskSettings PrintTask::settingsNow() const
{
    TaskSettings now{m_chosen.printer, m_opened->fetched.ppd->hash, m_opened->session->snapshot(),
                     m_settings, m_request.documents};
    const QVariantMap entries = m_opened->panels->shownEntries();
    if (entries == now.session.entries)
        return now;
    // A panel that is seen shows all of its values, also those that nobody has moved or that stand
    // for nothing in a job. Only what says something else in the job is a setting of the user's.
    TaskSettings shown = now;
    shown.session.entries = entries;
    const bool isOfAPlugInWithoutValues = !m_opened->jobValues;
    return isOfAPlugInWithoutValues || !differences(now, shown, *m_opened).isEmpty() ? shown : now;
}

void PrintTask::restoreSettings(const TaskSettings &settings)
{
    if (m_phase != Phase::Ready)
        return;
    m_baseline.coming = settings;
    if (idOf(settings.printer) != idOf(m_chosen.printer))
        return choosePrinter(settings.printer);
    takeComingSettings();
    showSettings();
    if (const QStringList lost = std::exchange(m_baseline.lost, {}); !lost.isEmpty())
        say(TaskMessage::Kind::Problem, lostText(lost));
}

// The settings that were asked for, when the printer that they are for is open.
void PrintTask::takeComingSettings()
{
    const std::optional<TaskSettings> settings = std::exchange(m_baseline.coming, std::nullopt);
    if (!settings || idOf(settings->printer) != idOf(m_chosen.printer))
        return;
    const QHash<QByteArray, SessionSnapshot> opened =
        m_memory.value(idOf(settings->printer)).opened;
    const bool isKnown = opened.contains(settings->ppdHash);
    if (isKnown || settings->ppdHash == m_opened->fetched.ppd->hash) {
        m_opened->panels->restoreTo(withOptionsOfNow(*settings, opened.value(settings->ppdHash),
                                                     m_baseline.opened, m_opened->fetched.ppd->hash,
                                                     *m_opened->session, &m_baseline.lost));
        m_settings = settings->job;
        m_settings.setLocks(m_opened->session->locks());
        m_settings.setMostCopies(mostCopiesOf(*m_opened));
    }
    if (settings->documents != m_request.documents)
        setDocuments(settings->documents); // a password may be asked for
}

// A printer has come up: the first one, another one, or the same with other options.
void PrintTask::beginHistory()
{
    const Memory memory = m_memory.value(idOf(m_chosen.printer));
    SettingsBase base = memory.session && memory.base ? *memory.base : presets().baseNow();
    // What was asked for with this job belongs to no preset, nor to where the printer starts.
    if (const auto asked = std::exchange(m_baseline.asked, std::nullopt)) {
        base.settings.session = *asked;
        base.settings.job.takeAttributesOf(m_baseline.jobAsked);
    }
    takeComingSettings();
    m_history->begin(base);
}

} // namespace corvana
