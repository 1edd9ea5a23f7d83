#include "dialog/session/PanelHost-call.h"

#include <algorithm>
#include <utility>

#include <QLoggingCategory>
#include <QScopeGuard>
#include <QTimer>
#include <QWidget>

#include "dialog/session/OptionNames.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/pde/PDEJobValues.h"
#include "platform/pde/PDEPanel.h"
#include "platform/pde/PDEPlugIn.h"
#include "platform/printcore/PageFormat.h"
#include "platform/toolkit/Alert.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcPanels, "corvana.dialog.panels", QtWarningMsg)

namespace {

// After a change of these the panels restore: their rules read them from the PPD and the settings.
constexpr QLatin1StringView kRestoreAfter[] = {kOutputOption, kColorMatchingModeOption};

bool panelsMustRestore(const QString &keyword)
{
    return std::any_of(std::begin(kRestoreAfter), std::end(kRestoreAfter),
                       [&](QLatin1StringView key) { return key == keyword; });
}

// From one custom value to another the choice stays the same, and the printer does not.
QMap<QString, QString> marksWithValues(const PpdSession &session)
{
    const SessionSnapshot now = session.snapshot();
    QMap<QString, QString> marks = now.marks;
    for (auto custom = now.customValues.cbegin(); custom != now.customValues.cend(); ++custom)
        marks.insert(custom.key(), custom.value());
    return marks;
}

} // namespace

// While an alert runs, a panel is in the midst of its work, though it may be the user and not this
// host who called it: through the action of a control.
class PanelHost::HeldAlerts : public AlertPresenter
{
public:
    HeldAlerts(PanelHost &host, AlertPresenter &presenter) : m_host(host), m_presenter(presenter) {}

    AlertAnswer runModal(const Alert &alert, QWidget *parent) override
    {
        if (m_host.m_isRestoring)
            return {};
        ++m_host.m_uninterruptible;
        const auto done = qScopeGuard([this] { --m_host.m_uninterruptible; });
        const AlertAnswer answer = m_presenter.runModal(alert, parent);
        if (m_host.hasNews())
            m_host.scheduleDelivery();
        return answer;
    }

private:
    PanelHost &m_host;
    AlertPresenter &m_presenter;
};

PanelHost::PanelHost(PpdSession &session, PDEPlugIn *plugIn, AlertPresenter &presenter)
    : m_session(session), m_alerts(std::make_unique<HeldAlerts>(*this, presenter)),
      m_callback(std::make_shared<HostCallback>(
          session, *m_alerts, [this] { Q_EMIT viewResized(); },
          [this] { Q_EMIT shownValuesChanged(); }))
{
    followSession();
    m_told = marksWithValues(session);
    if (!plugIn)
        return;
    m_jobValues = plugIn->jobValues();
    m_panels = plugIn->PDEPanelsForType_withHostInfo(QLatin1StringView(kPrintDialogExtensionType),
                                                     m_callback);
}

// Panels own their views, and may outlive this host.
PanelHost::~PanelHost()
{
    for (const QPointer<QWidget> &view : std::as_const(m_views)) {
        if (view && m_room && view->parentWidget() == m_room)
            view->setParent(nullptr);
    }
    delete m_room;
}

void PanelHost::bringUp()
{
    if (std::exchange(m_broughtUp, true))
        return;
    for (const auto &panel : std::as_const(m_panels)) {
        const Call call(*this, *panel);
        m_views += panel->panelView();
        if (m_views.constLast())
            takeIn(m_views.constLast());
        else
            qCWarning(lcPanels) << "the panel" << panel->panelKind() << "has no view";
        panel->willShow();
        panel->shouldHide();
    }
    deliverPending();
}

// A view that is still without a parent would let its panel take any window that happens to be
// active, such as help or a file dialog, for its own.
void PanelHost::takeIn(QWidget *view)
{
    if (view->parentWidget())
        return;
    if (!m_room)
        setWindow(nullptr);
    view->setParent(m_room);
}

void PanelHost::setWindow(QWidget *window)
{
    delete m_room;
    m_room = new QWidget(window);
    m_room->hide();
}

bool PanelHost::visit(int panel)
{
    bringUp();
    PDEPanel *entered = panel >= 0 && panel < m_panels.size() ? m_panels.at(panel).get() : nullptr;
    if (entered == m_visible)
        return true;
    if (!leaveVisible()) {
        deliverPending();
        return false;
    }
    if (entered) {
        restoreHidden();
        m_visible = entered;
        const Call call(*this, *entered);
        entered->willShow();
    }
    deliverPending();
    return true;
}

int PanelHost::visiblePanel() const
{
    for (int i = 0; i < m_panels.size(); ++i) {
        if (m_panels.at(i).get() == m_visible)
            return i;
    }
    return -1;
}

// Saves and hides the visible panel, if there is one. False when it refuses to be left.
bool PanelHost::leaveVisible()
{
    if (!m_visible)
        return true;
    saveVisible();
    const Call call(*this, *m_visible);
    if (!m_visible->shouldHide())
        return false;
    m_visible = nullptr;
    return true;
}

bool PanelHost::pick(const QString &keyword, const QString &choice)
{
    for (const auto &panel : std::as_const(m_panels)) {
        const Call call(*this, *panel);
        if (panel->chooseAsUser(keyword, choice))
            return true;
    }
    return false;
}

QVariantMap PanelHost::shownEntries() const
{
    const PrintSettings &saved = m_session.printSettings();
    if (!m_visible || isBusy())
        return saved.entries();
    PrintSettings shown;
    shown.setEntries(saved.entries());
    m_visible->writeShownValues(shown);
    return shown.entries();
}

void PanelHost::restoreAll()
{
    m_pending.clear();
    m_told = marksWithValues(m_session); // all of them is what the panels read now
    for (const auto &panel : std::as_const(m_panels)) {
        const Call call(*this, *panel);
        panel->restoreValuesAndReturnError(nullptr);
    }
    deliverPending();
}

QVariantMap PanelHost::summaryOf(PDEPanel &panel)
{
    const Call call(*this, panel);
    return panel.summaryInfo();
}

QList<SummaryLine> PanelHost::summary()
{
    bringUp();
    deliverPending();
    saveVisible();
    QList<SummaryLine> lines;
    for (int panel = 0; panel < m_panels.size(); ++panel) {
        const QVariantMap summary = summaryOf(*m_panels.at(panel));
        const QStringList order =
            summary.value(QLatin1StringView(kSummaryDisplayOrder)).toStringList();
        for (const QString &title : order)
            lines += SummaryLine{title, summary.value(title).toString(), keywordOf(panel, title)};
    }
    deliverPending();
    return lines;
}

bool PanelHost::shouldPrint()
{
    bringUp();
    deliverPending();
    saveVisible();
    restoreHidden();
    bool allowed = true;
    for (const auto &panel : std::as_const(m_panels)) {
        const Call call(*this, *panel);
        allowed = panel->shouldPrint();
        if (!allowed)
            break;
    }
    deliverPending();
    return allowed;
}

void PanelHost::noteChange(const QString &keyword, const QString &choice, PpdSession::Origin origin)
{
    PDEPanel *source = nullptr;
    // A panel proposes changes while it is called, or because the user acts on its controls, which
    // only the visible one has; or as an observer, and then nobody knows which one it is.
    if (origin == PpdSession::Origin::Panel && m_uninterruptible == 0)
        source = m_callStack.isEmpty() ? m_visible : m_callStack.last();
    m_pending.insert(keyword, {choice, source});
    scheduleDelivery();
}

void PanelHost::scheduleDelivery()
{
    if (std::exchange(m_news.scheduled, true))
        return;
    QTimer::singleShot(0, this, [this] {
        m_news.scheduled = false;
        deliverPending();
    });
}

void PanelHost::deliverPending()
{
    if (isBusy())
        return; // when it has returned, delivery is scheduled again
    if (!m_broughtUp)
        return; // nobody is told anything before it was shown; bringUp() delivers
    if (std::exchange(m_news.entries, false))
        Q_EMIT shownValuesChanged();
    bool anything = std::exchange(m_news.refusal, false);
    announcePaper();
    // Telling a panel may change something that another one has to know. Rules that never come to
    // rest would be a fault of a plug-in, and must not hang the dialog.
    constexpr int kMostRounds = 10;
    for (int round = 0; !m_pending.isEmpty() && round < kMostRounds; ++round)
        anything = deliverOnce() || anything;
    if (!m_pending.isEmpty()) {
        qCWarning(lcPanels) << "the panels keep changing" << m_pending.firstKey();
        m_pending.clear();
    }
    if (anything)
        Q_EMIT settled();
}

// Panels judge a new paper at once, and may propose another medium for it or run an alert.
void PanelHost::announcePaper()
{
    if (!std::exchange(m_news.paper, false))
        return;
    ++m_uninterruptible;
    const auto done = qScopeGuard([this] { --m_uninterruptible; });
    NotificationCenter::defaultCenter().post(
        QLatin1StringView(kPrintDestinationPaperDidChangeNotification), m_callback.get());
}

void PanelHost::tellPaper(const QList<OptionChoice> &asked)
{
    if (isBusy() || !m_broughtUp)
        return;
    m_callback->holdTo(asked);
    const auto done = qScopeGuard([this] { m_callback->holdTo({}); });
    announcePaper();
}

bool PanelHost::deliverOnce()
{
    bool anything = false;
    const QMap<QString, Change> changes = std::exchange(m_pending, {});
    bool restore = false;
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        // A box that is ticked but disabled goes on and off again at every save; what counts is
        // whether something is different now.
        const QString custom = m_session.customValue(change.key());
        const QString now =
            change->choice == kCustomChoice && !custom.isNull() ? custom : change->choice;
        if (m_told.value(change.key()) == now)
            continue;
        m_told.insert(change.key(), now);
        anything = true;
        markCompanions(change.key(), change->choice);
        restore = restore || panelsMustRestore(change.key());
        for (const auto &panel : std::as_const(m_panels)) {
            if (panel.get() == change->source)
                continue;
            const Call call(*this, *panel);
            panel->PPDOptionKeyValueDidChange_ppdChoice(change.key(), change->choice);
        }
    }
    if (restore)
        saveVisible(); // what was entered but not saved yet would be restored away
    for (const auto &panel : std::as_const(m_panels)) {
        if (!restore)
            break;
        const Call call(*this, *panel);
        panel->restoreValuesAndReturnError(nullptr);
    }
    return anything;
}

// Other forms of the same choice follow it. They are told to the panels like any other change.
void PanelHost::markCompanions(const QString &keyword, const QString &choice)
{
    if (!m_jobValues)
        return;
    PrintSettings &settings = m_session.printSettings();
    const QList<JobOption> companions =
        m_jobValues->companions({keyword, choice}, settings, m_session.ppd());
    for (const JobOption &companion : companions) {
        if (ppdOption(m_session.ppd(), companion.name)) {
            const ChangeResult result =
                m_session.change(companion.name, companion.value, PpdSession::Origin::Dialog);
            if (!result.accepted())
                qCWarning(lcPanels) << keyword << choice << "and" << companion.name
                                    << "say different things:" << companion.value << "is refused";
        } else if (settings.contains(companion.name)) {
            settings.setValue(companion.name, companion.value);
        }
    }
}

void PanelHost::saveVisible()
{
    if (!m_visible)
        return;
    const Call call(*this, *m_visible);
    m_visible->saveValuesAndReturnError(nullptr);
}

void PanelHost::restoreHidden()
{
    for (const auto &panel : std::as_const(m_panels)) {
        if (panel.get() == m_visible)
            continue;
        const Call call(*this, *panel);
        panel->restoreValuesAndReturnError(nullptr);
    }
}

} // namespace corvana
