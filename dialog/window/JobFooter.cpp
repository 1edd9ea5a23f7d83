#include "dialog/window/JobFooter.h"

#include <chrono>
#include <utility>

#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "dialog/job/JobProgress.h"
#include "dialog/window/ElidedToolButton.h"
#include "dialog/window/chooser/ElidedLabel.h"
#include "dialog/window/find/FindField.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds kSayAfter{1000};

// Its place is kept, so that a window has the same least width with it.
void hideInPlace(QWidget *button)
{
    QSizePolicy policy = button->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    button->setSizePolicy(policy);
    button->hide();
}

} // namespace

JobFooter::JobFooter(QWidget *parent) : QWidget(parent)
{
    buildProgress();
    buildButtons();
    // In a row of its own: beside the buttons the progress would widen the window while it prints.
    auto *progress = new QHBoxLayout;
    progress->addWidget(m_progressText, 1);
    progress->addWidget(m_progress);
    auto *row = new QHBoxLayout;
    row->addWidget(m_help);
    row->addWidget(m_finder);
    row->addWidget(m_silenced);
    row->addStretch();
    row->addWidget(m_leave); // next to the stretch, so that its place is no gap
    row->addWidget(m_cancel);
    row->addWidget(m_print); // last, where the eye ends, and what Enter does
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(progress);
    layout->addLayout(row);
}

void JobFooter::buildProgress()
{
    m_progress = new QProgressBar(this);
    m_progress->setObjectName(u"progress"_s);
    m_progress->setRange(0, 0); // how many pages there will be is known to nobody
    m_progress->setTextVisible(false);
    m_progress->setAccessibleName(tr("Printing"));
    m_progress->setMaximumWidth(8 * fontMetrics().height());
    m_progress->hide();
    m_progressText = new ElidedLabel(this);
    m_progressText->setObjectName(u"progressText"_s);
    m_progressText->hide();
}

void JobFooter::buildButtons()
{
    m_help = new QPushButton(tr("Help"), this);
    m_help->setObjectName(u"helpButton"_s);
    m_help->setAutoDefault(false);
    m_help->setShortcut(QKeySequence::HelpContents);
    m_finder = new FindField(this);
    m_silenced = new ElidedToolButton(this);
    m_silenced->setObjectName(u"silencedAlerts"_s);
    m_silenced->setText(tr("Show Silenced Messages Again"));
    m_silenced->setAutoRaise(true);
    m_silenced->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    hideInPlace(m_silenced);
    showSilencedAlerts(false);
    m_print = new QPushButton(tr("&Print"), this);
    m_print->setObjectName(u"print"_s);
    m_print->setDefault(true);
    m_leave = new QPushButton(this);
    m_leave->setAccessibleName(tr("C&lose (printing continues)").remove(u'&'));
    m_leave->setObjectName(u"leave"_s);
    m_leave->setAutoDefault(false);
    setPlainToolTip(m_leave, tr("The job goes on without this window."));
    m_leave->hide();
    m_cancel = new QPushButton(tr("Cancel"), this);
    m_cancel->setObjectName(u"cancel"_s);
    m_cancel->setAutoDefault(false);
    connect(m_help, &QPushButton::clicked, this, &JobFooter::helpPressed);
    connect(m_silenced, &QToolButton::clicked, this, &JobFooter::alertsWanted);
    connect(m_print, &QPushButton::clicked, this, &JobFooter::printPressed);
    connect(m_leave, &QPushButton::clicked, this, &JobFooter::leavePressed);
    connect(m_cancel, &QPushButton::clicked, this, &JobFooter::cancelPressed);
}

void JobFooter::setSaves(bool saves)
{
    m_print->setText(saves ? tr("Sa&ve…") : tr("&Print"));
}

void JobFooter::setCanPrint(bool canPrint)
{
    // A button that is disabled hands the focus on, to Cancel: a second Space would take back what
    // the first has begun.
    if (!canPrint && m_print->hasFocus())
        m_progress->setFocus(Qt::OtherFocusReason);
    if (canPrint) {
        // It may have made room for Close, beside which it would widen the window: a button that is
        // shown gets its room at once.
        m_leave->hide();
        m_print->show();
    }
    m_print->setEnabled(canPrint);
    if (canPrint && m_progress->hasFocus())
        m_print->setFocus(Qt::OtherFocusReason);
}

void JobFooter::showRunning(bool running)
{
    m_progressText->setText(running ? tr("Printing…") : QString());
    m_progress->setRange(0, 0);
    m_progress->setVisible(running);
    m_progressText->setVisible(running);
    showLeaving(false);
    m_said.clear();
    saySoon();
}

// A job says more than anybody wants to hear: what is true a moment later is said, and only news.
void JobFooter::saySoon()
{
    if (std::exchange(m_saysSoon, true))
        return;
    QTimer::singleShot(kSayAfter, this, [this] {
        m_saysSoon = false;
        const QString text = m_progressText->text();
        if (text.isEmpty() || m_progress->isHidden() || text == m_said)
            return;
        m_said = text;
        announce(this, text);
    });
}

void JobFooter::showProgress(const JobProgress &progress, bool canLeave)
{
    m_progressText->setText(progress.text());
    const bool measured = progress.stage == JobProgress::Stage::Sending && progress.total > 0;
    m_progress->setRange(0, measured ? 100 : 0);
    if (measured)
        m_progress->setValue(static_cast<int>(progress.sent * 100 / progress.total));
    showLeaving(canLeave);
    saySoon();
}

// In the place of what a job that is under way has no use for: its words would widen the window.
void JobFooter::showLeaving(bool canLeave)
{
    // Not to Close: what is pressed twice by accident must not close anything.
    if (canLeave && m_finder->isAncestorOf(window()->focusWidget()))
        m_progress->setFocus(Qt::OtherFocusReason);
    // First what goes, for the same reason as in setCanPrint().
    if (!canLeave) {
        m_leave->hide();
        m_cancel->setText(tr("Cancel"));
    }
    m_finder->setVisible(!canLeave);
    m_print->setVisible(!canLeave);
    if (!canLeave)
        return;
    m_cancel->setText(tr("Cancel Job")); // beside Close, which leaves the job alone
    nameLeave();
}

// As much of it as there is room for, so that the window stays as wide as it is. Looked at before
// it is there: a button that is shown gets its room at once.
void JobFooter::nameLeave()
{
    if (!m_leave->isHidden())
        return;
    m_leave->setText(tr("C&lose (printing continues)"));
    layout()->activate();
    const int gap = layout()->itemAt(layout()->count() - 1)->layout()->spacing();
    if (layout()->minimumSize().width() + gap + m_leave->sizeHint().width() > width())
        m_leave->setText(tr("C&lose"));
    m_leave->show();
}

void JobFooter::showCanceling()
{
    showLeaving(false);
    m_progressText->setText(tr("Canceling…"));
    m_progress->setRange(0, 0);
    saySoon();
}

void JobFooter::showTurning()
{
    showLeaving(false);
    m_progressText->setText(tr("The first sides are printed."));
    m_progress->setRange(0, 2);
    m_progress->setValue(1);
    saySoon();
}

void JobFooter::showClose()
{
    m_cancel->setText(tr("Close"));
}

void JobFooter::showSilencedAlerts(bool silenced)
{
    m_silenced->setVisible(silenced);
    // Its place is kept for the least width of the window, not for its usual one, which others
    // need.
    m_silenced->setMaximumWidth(silenced ? QWIDGETSIZE_MAX : m_silenced->minimumSizeHint().width());
}

void JobFooter::focusPrint()
{
    m_print->setFocus(Qt::OtherFocusReason);
}

// While a job runs the focus is on its progress, which is no stop of Tab and has no place in its
// order: the next one is the first of the row below, not whatever in the window is younger.
bool JobFooter::focusNextPrevChild(bool next)
{
    if (m_progress->hasFocus()) {
        m_help->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        if (next)
            return true;
    }
    return QWidget::focusNextPrevChild(next);
}

QList<QWidget *> JobFooter::buttons() const
{
    return QList<QWidget *>{m_help} + m_finder->focusOrder() +
           QList<QWidget *>{m_silenced, m_leave, m_cancel, m_print};
}

} // namespace corvana
