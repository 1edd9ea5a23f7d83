#pragma once

#include <functional>

#include <QByteArray>
#include <QComboBox>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QWidget>

#include "tests/dialog/support/WindowDriver.h"

class QMessageBox;

namespace corvana::test {

/// An alert as it stood in its window.
struct SeenAlert
{
    QString title;
    QString text;
    QStringList buttons;
    bool canBeSilenced = false;
    QSize picture; ///< of the illustration as it is shown; empty without one. Units: pixels
};

/// Answers every alert that comes up, and remembers it. Works for as long as it lives.
class AlertAnswerer : public QObject
{
public:
    AlertAnswerer();

    /// What to do in the window of an alert; the first button is pressed where nothing else is
    /// said.
    std::function<void(QMessageBox &)> answer;
    QList<SeenAlert> seen;
    /// Alerts that did not take their answer. They are closed all the same, so that nothing hangs.
    int unanswered = 0;

    bool eventFilter(QObject *watched, QEvent *event) override;
};

/// A queue of a print server, "HOST:PORT".
struct QueueAt
{
    QString server;
    QString name;
    QString document{}; ///< what is printed; empty for two pages with hardly anything on them
};

/// The dialog for a sample printer or for a queue, shown, with its panels up, worked through its
/// own controls and printing through the filter chain of CUPS or to the queue. Alerts are answered
/// with OK.
///
/// Settings that outlive a dialog are its caller's affair (XDG_CONFIG_HOME).
class DialogDriver : public WindowDriver
{
public:
    /// Opens the dialog on the page "Print Setting", with its advanced options disclosed. With
    /// `options` it starts as from the command line. Errors: throws std::runtime_error.
    explicit DialogDriver(const QString &printer, const QStringList &options = {});
    /// The same for a queue, whose PPD is asked for first.
    explicit DialogDriver(const QueueAt &queue, const QStringList &options = {});
    ~DialogDriver() override;

    AlertAnswerer &alerts() { return m_alerts; }
    /// The view of the Print Setting panel.
    QWidget *panel() const { return m_panel; }
    /// A control of that panel; null when there is none of that name and kind.
    template <typename Control> Control *control(const QString &name) const
    {
        return m_panel->findChild<Control *>(name);
    }

    /// Selects the row of the advanced options that shows the control. False when none does, and it
    /// does not stand on the main part either: no user can get at it.
    bool reach(QWidget *control);

    /// The choices that a control offers, in its order: a check box both its states, a slider each
    /// of its steps.
    static QStringList offered(const QWidget *control);
    /// The choice that a control stands at; null when at none.
    static QString chosen(const QWidget *control);
    /// Chooses as a user does. False when the control does not offer the choice or is disabled.
    static bool choose(QWidget *control, const QString &choice);

    /// The lines of the page "Summary", value by title. It stays the current page.
    QMap<QString, QString> summary();
    /// Whether there is anything where the job is printed to.
    bool somethingWasWritten() const;
    /// Presses Print and answers the data that the printer would get; null when nothing was
    /// printed.
    QByteArray print();
    /// Waits until the dialog has closed over a job that its queue has printed, and answers what it
    /// says of it; null when it does not close.
    QString waitForReport();

private:
    void openAndDisclose(const CommandLine &line);

    QTemporaryDir m_folder;
    AlertAnswerer m_alerts;
    QPointer<QWidget> m_panel;
};

} // namespace corvana::test
