#pragma once

#include <memory>

#include <QList>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QVariant>

#include "dialog/session/HostCallback.h"
#include "dialog/session/PpdSession.h"
#include "platform/pde/PDEPanel.h"

class QWidget;

namespace corvana {

class PDEJobValues;
class PDEPlugIn;

/// One line of a summary.
struct SummaryLine
{
    QString title;
    QString value;
    /// The option or attribute that it tells of, for whoever looks for its control; null where the
    /// line tells of none, or of more than one.
    QString keyword{};
    /// Whether it is the title of the lines behind it, and says nothing itself.
    bool isHeading = false;

    /// Whether both say the same.
    bool operator==(const SummaryLine &other) const
    {
        return title == other.title && value == other.value;
    }
};

/// Drives the panels of one session through the panel protocol and keeps its promises: a panel is
/// called only after the outermost call of a panel has returned, what is visible is saved, what is
/// hidden is restored, and nobody is asked before willShow() has returned.
///
/// Ownership: shares the panels with the plug-in; borrows the session and the presenter.
/// Thread: GUI thread only.
class PanelHost : public QObject
{
    Q_OBJECT

public:
    /// Builds the panels of `plugIn`; null builds none, for a printer that has no panels.
    PanelHost(PpdSession &session, PDEPlugIn *plugIn, AlertPresenter &presenter);
    ~PanelHost() override;

    const QList<std::shared_ptr<PDEPanel>> &panels() const { return m_panels; }
    /// The values that the panels keep themselves; null for a printer without panels.
    const PDEJobValues *jobValues() const { return m_jobValues; }

    /// The window that will show the panels; to be said before they are brought up. Panels observe
    /// the closing of the window that they come up in, and end their rules with it, so they come up
    /// inside the window that will show them. Without one they get a window that never closes.
    /// Ownership: borrows `window`, which outlives this host.
    void setWindow(QWidget *window);

    /// Brings every panel up once: its view is loaded, it is shown and hidden. Several rules run
    /// only on loaded controls, so a panel that nobody visits must have been up as well.
    void bringUp();
    /// The views of the panels that were brought up, in their order; null for one that has none.
    /// They are hidden inside the window, to be put where they are seen.
    const QList<QPointer<QWidget>> &views() const { return m_views; }

    /// The user goes to a panel (its index) or to a page of the dialog (-1).
    /// Errors: false when the visible panel refuses to be left; it then stays the visible one.
    bool visit(int panel);
    /// The index of the visible panel; -1 while a page of the dialog is.
    int visiblePanel() const;

    /// Lets the panel that has a control for an option act as if the user had picked a choice
    /// there. False when no panel has one.
    bool pick(const QString &keyword, const QString &choice);

    /// The settings that the user finds in a panel (its index), in the order of its view. Empty
    /// until the panels were brought up, in the midst of a panel's work, and for no panel.
    QList<PanelControl> controls(int panel);
    /// The index of the panel that shows a setting; -1 where none does.
    int panelOf(const QString &keyword);
    /// The setting of a panel that the user reads under this title; null for none, and where
    /// several settings have it.
    QString keywordOf(int panel, const QString &title);
    /// Opens what hides the control of a setting in its panel. The panel is the visible one.
    void disclose(const QString &keyword);

    /// The entries of the print settings, with what the visible panel shows and has not saved yet.
    /// Nothing is saved. In the midst of a panel's work they are the entries themselves.
    QVariantMap shownEntries() const;

    /// Restores all panels, hidden or not, in their order.
    void restoreAll();
    /// Brings the session and all panels to a state that they had, exactly. What a panel proposes
    /// on the way is nobody's act and is dropped, and no alert is shown: its user has answered it
    /// when the state came about.
    void restoreTo(const SessionSnapshot &snapshot);
    /// Whether a panel is in the midst of its work, or an alert of one is open.
    bool isBusy() const { return !m_callStack.isEmpty() || m_uninterruptible > 0; }

    /// The panels' summaries, one after the other.
    QList<SummaryLine> summary();

    /// The user pressed Print: asks each panel in order and stops at the first that holds the job
    /// back. False when one did.
    bool shouldPrint();

    /// Tells the panels what changed elsewhere, now instead of at the next turn of the event loop.
    /// Does nothing in the midst of a panel's call, and before the panels were brought up.
    void deliverPending();
    /// The same for a new paper alone, which somebody asked for together with these choices. What
    /// a panel proposes for the paper in their place, such as another medium, is nobody's wish: it
    /// is refused, so that there are no instructions for it either.
    void tellPaper(const QList<OptionChoice> &asked);

Q_SIGNALS:
    /// All panels know of all changes, and what a panel proposed in vain can be told to the user.
    void settled();
    /// A panel's view asks for another size. Receivers must not call a panel.
    void viewResized();
    /// shownEntries() are others, at each step of a slider and when a panel has saved. Receivers
    /// must not call a panel.
    void shownValuesChanged();

private:
    class Call;
    class HeldAlerts;
    struct Change
    {
        QString choice;
        PDEPanel *source; // does not need to be told; null for the dialog's own changes
    };
    // What has happened beside changes of choices.
    struct News
    {
        bool refusal = false;
        bool paper = false;
        bool entries = false;
        bool scheduled = false; // all of it will be delivered
    };

    void followSession();
    void noteChange(const QString &keyword, const QString &choice, PpdSession::Origin origin);
    bool deliverOnce();
    void tellMarks();
    void announcePaper();
    void markCompanions(const QString &keyword, const QString &choice);
    void scheduleDelivery();
    bool hasNews() const
    {
        return !m_pending.isEmpty() || m_news.refusal || m_news.paper || m_news.entries;
    }
    QVariantMap summaryOf(PDEPanel &panel);
    bool leaveVisible();
    void saveVisible();
    void restoreHidden();
    void takeIn(QWidget *view);

    PpdSession &m_session;
    const PDEJobValues *m_jobValues = nullptr; // null for a printer without panels
    std::unique_ptr<HeldAlerts> m_alerts;
    std::shared_ptr<HostCallback> m_callback;
    QList<std::shared_ptr<PDEPanel>> m_panels;
    PDEPanel *m_visible = nullptr;
    QList<PDEPanel *> m_callStack;
    int m_uninterruptible = 0; // alerts and notifications in the midst of which a panel is
    QMap<QString, Change> m_pending;
    QMap<QString, QString> m_told; // the marks, custom ones with their values, that panels know of
    QPointer<QWidget> m_room; // never shown; holds the views that nobody has taken out of it yet
    QList<QPointer<QWidget>> m_views;
    QList<QList<PanelControl>> m_controls; // by panel; empty until they were asked for
    News m_news;
    bool m_broughtUp = false;
    bool m_isRestoring = false; // to a state that was there before
};

} // namespace corvana
