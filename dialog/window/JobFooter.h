#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace corvana {

class ElidedLabel;
class ElidedToolButton;
class FindField;
struct JobProgress;

/// The lowest part of the print window: how far the job is, and the buttons. It knows no rule: it
/// shows what it is told, and tells what is pressed.
class JobFooter : public QWidget
{
    Q_OBJECT

public:
    explicit JobFooter(QWidget *parent = nullptr);

    void setCanPrint(bool canPrint);
    /// Whether the job is a file that is kept rather than paper.
    void setSaves(bool saves);
    /// A job runs, or none does.
    void showRunning(bool running);
    /// `canLeave`: whether the job needs this window no more.
    void showProgress(const JobProgress &progress, bool canLeave);
    void showCanceling();
    /// One half of the sides is printed; the other half waits for somebody.
    void showTurning();
    /// There is nothing left to cancel: the job is in its queue.
    void showClose();
    /// Whether alerts of the printer's panels were silenced and can be brought back.
    void showSilencedAlerts(bool silenced);
    /// Puts the focus on Print, which takes what is being typed elsewhere.
    void focusPrint();
    /// Where a setting is searched for.
    FindField *finder() const { return m_finder; }
    /// Its field and its buttons in the order in which Tab reaches them.
    QList<QWidget *> buttons() const;

Q_SIGNALS:
    void helpPressed();
    void alertsWanted();
    void printPressed();
    void leavePressed();
    void cancelPressed();

protected:
    bool focusNextPrevChild(bool next) override;

private:
    void buildProgress();
    void buildButtons();
    void showLeaving(bool canLeave);
    void nameLeave();
    void saySoon();

    QPushButton *m_help = nullptr;
    FindField *m_finder = nullptr;
    ElidedToolButton *m_silenced = nullptr;
    QPushButton *m_leave = nullptr; // lets a job go on without the window
    QPushButton *m_print = nullptr;
    QPushButton *m_cancel = nullptr;
    QProgressBar *m_progress = nullptr;
    ElidedLabel *m_progressText = nullptr;
    QString m_said; // of the job, by a screen reader
    bool m_saysSoon = false;
};

} // namespace corvana
