#pragma once

#include <optional>

#include <QObject>
#include <QString>
#include <QStringList>

#include "dialog/server/CredentialStore.h"
#include "tests/e2e/DialogDriver.h"
#include "tests/support/Heartbeat.h"

namespace corvana::test {

/// How many times slower than usual the dialog is in this build.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr int kSlowdown = 5;
#else
inline constexpr int kSlowdown = 1;
#endif

/// Answers every question for a user and a password. Works for as long as it lives.
class LoginAnswerer : public QObject
{
public:
    LoginAnswerer();

    /// What is given; nothing cancels the question.
    std::optional<Credentials> answer;
    int asked = 0;
    /// Whether the last question said that others may read along.
    bool warned = false;

    bool eventFilter(QObject *watched, QEvent *event) override;
};

/// The dialog for the queues of a print server, shown, and used through its own controls. Alerts
/// are answered with OK.
///
/// Settings and caches that outlive a dialog are its caller's affair (XDG_CONFIG_HOME,
/// XDG_CACHE_HOME).
class QueueDriver : public WindowDriver
{
public:
    struct Start
    {
        QString server;  ///< "127.0.0.1:PORT"
        QString printer; ///< empty: whatever the dialog opens by itself
        QStringList documents;
        QStringList options{};
        int copies = 1;
    };

    /// Opens the dialog and returns when its window is on the screen. Errors: throws
    /// std::runtime_error.
    explicit QueueDriver(const Start &start);
    ~QueueDriver() override;

    Heartbeat &heart() { return m_heart; }
    LoginAnswerer &logins() { return m_logins; }
    AlertAnswerer &alerts() { return m_alerts; }

    /// Turns the event loop until `isSo`, which must not block. The heart beats meanwhile.
    bool waitUntil(const std::function<bool()> &isSo, int milliseconds = 15000);
    /// Whether the printer's pages are there, with everything that was asked for, and Print can be
    /// pressed.
    bool canPrint();
    bool isPrinting() const;
    /// Waits until what Print began has ended, one way or the other.
    bool waitForTheEnd();
    /// Presses the button of this name as a user does; the heart beats meanwhile.
    bool press(const QString &button);

    /// What a person reads: below the printer, in the place of the pages, and beside the progress
    /// bar. Null when it is not there.
    QString status() const;
    QString waiting() const;
    QString progress() const;
    /// What stands below the list of printers; opens the list. Null when there is nothing.
    QString footer();
    /// What the printers are called in the list, in its order.
    QStringList printers() const;
    /// Name of the chosen printer.
    QString printer() const;
    bool isPrinterGone() const;

    /// Sets copies, pages and two-sided printing to something that no printer comes with.
    void changeSettings(bool twoSided = true);
    /// Everything that the window shows of the job, a line each: what goes where, the summary,
    /// pages. The page stays the current one.
    QStringList settings();

private:
    AlertAnswerer m_alerts;
    LoginAnswerer m_logins;
    Heartbeat m_heart;
};

} // namespace corvana::test
