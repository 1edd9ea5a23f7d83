#pragma once

#include <functional>
#include <optional>

#include <QObject>

#include "dialog/printers/PrinterFetching.h"
#include "dialog/printers/QueueList.h"
#include "dialog/session/PpdAhead.h"

namespace corvana {

/// Which printers somebody asked for, and what decides about them.
struct PrinterWish
{
    /// Those that no server is needed for: PPD files and samples.
    QList<Printer> files{};
    /// A printer by its name, a queue or a URI; empty for the usual one.
    QString name{};
    /// Where plug-in bundles are trusted.
    QStringList bundleRoots{};
    /// Why a printer is not offered to anybody, such as by an administrator's policy; empty where
    /// it is. Without it every printer is.
    std::function<QString(const Printer &)> refusal{};
};

/// Where the dialog's printers come from: the list of all of them, and the one that is to be
/// opened, from the cache at once where it was used before, and from its server. Knows no widget.
///
/// Thread: GUI thread; servers are asked on others.
class PrinterSource : public QObject
{
    Q_OBJECT

public:
    PrinterSource(const PrinterWish &wish, ServerContext server, QObject *parent = nullptr);

    /// Looks for queues now and from now on. Not before: the window comes first.
    void start();
    /// Nobody sees the window: nothing new is looked for until start().
    void pause() { m_queues.pause(); }
    /// See QueueList.
    void questionPut() { m_queues.questionPut(); }
    void questionAnswered() { m_queues.questionAnswered(); }

    /// Those of PPD files, then the queues; behind them the one that saves documents as PDF.
    QList<Printer> printers() const;
    const QueueList &queues() const { return m_queues; }
    /// The printer of the list that a user would expect to be chosen; nothing while none is known.
    std::optional<Printer> expected() const;

    /// What to open first, of what is known without asking anybody: the printer that was named, the
    /// user's default, the one used last, else the one that saves documents as PDF.
    Printer first();
    /// Begins to read the PPD of first(), where it lies here, beside whatever its user does until
    /// the printer is opened.
    void readAhead();
    /// Opens the PPD of a printer, read ahead or not.
    PpdAhead &ppds() { return m_ahead.ppd; }
    /// Whether first() is only there because nobody has been asked yet.
    bool firstIsProvisional() const { return m_provisional; }

    /// Opens a printer: ready() follows, at once where nobody has to be asked, and once more when
    /// the server says otherwise; or failed().
    void open(const Printer &printer);
    /// Opens the printer for somebody who cannot choose another one: the one that was named, the
    /// user's default, else the server's. ready() follows once, with what the server says of it
    /// now, or failed(). A password may be asked for.
    void openWanted();
    /// Asks again for the printer that is open; a password may be asked for.
    void retry();
    /// The user has seen that there is something to do about the list.
    void retryList() { m_queues.retry(); }

    /// The printer that is open, or is being asked for, or could not be asked for. Without a name
    /// while it is not known which one that is.
    const Printer &asked() const { return m_open.printer; }

    const ServerContext &serverOf(const Printer &printer) const;

    /// The printer is now the one to open first next time.
    void rememberUse(const Printer &printer) const;

Q_SIGNALS:
    /// printers() or the state of the list.
    void listChanged();
    /// The printer can be opened, or has to be opened anew because its options are others now, or
    /// its queue's own defaults.
    void ready(const corvana::FetchedPrinter &printer);
    /// What its server says of the printer that is open, whose options are as they were: its PPD
    /// lies where it lay.
    void checked(const corvana::FetchedPrinter &printer);
    /// The printer that is to be opened, or is open, could not be asked for; `brief` says the same
    /// in few words.
    void failed(const QString &problem, const QString &brief);
    /// The printer that is open has no PPD, but another queue leads to the same device and has one
    /// with pages of its own.
    void betterQueueFound(const corvana::Printer &printer);

private:
    struct Ahead
    {
        std::optional<Printer> first{};
        PpdAhead ppd{};
    };

    std::optional<FetchedPrinter> kept(const Printer &printer);
    void inspect(bool mayAsk);
    void openFresh(const QString &name);
    void reset(const Printer &printer);
    bool isOffered(const Printer &printer) const;
    bool isRefused();
    QString usersDefault();
    bool lacksInstance();
    void openFile(const Printer &printer);
    bool meansPdfPrinter(const ServerProblem &problem) const;
    bool isOpenQueue(const Printer &printer) const;
    void lookForBetterQueue();
    void compareWith(const QueueDetails &details);
    void inspected(const QueueDetails &details);
    void follow();

    PrinterWish m_wish;
    /// Nothing where nobody may have it. Its PPD is written when it is opened first.
    std::optional<FetchedPrinter> m_pdfPrinter;
    UserQueues m_userQueues;
    PpdCache m_cache;
    QueueList m_queues;
    ServerContext m_deviceServer; // of an IPP printer without a queue
    ServerWork m_inspection;
    ServerWork m_comparison;
    FetchedPrinter m_open;                 // with a PPD once it is ready
    std::optional<FetchedPrinter> m_first; // as first() has found it, until it is opened
    Ahead m_ahead;
    bool m_inspecting = false;
    bool m_inspectionFailed = false; // the server has to be asked again when it is back
    bool m_provisional = false;
    bool m_lacksPpd = false;
    int m_configured = 0; // when the open queue was changed last, by its server's count
};

} // namespace corvana
