#pragma once

#include <optional>

#include <QByteArray>
#include <QString>

#include "dialog/printers/FetchedPrinter.h"
#include "dialog/printers/QueueRequests.h"

namespace corvana {

/// The PPDs of the queues that were used, so that a printer is there at once, even while its server
/// is away. What is kept is for that moment only: nobody spares himself the way to the server
/// because of it. One folder of the user's; entries appear and disappear as a whole.
///
/// A file holds one PPD for as long as it exists: a new one of the same queue gets a file of its
/// own. Whoever has opened the former one, in this process or another, prints with what was opened.
class PpdCache
{
public:
    /// In the user's cache folder.
    PpdCache();
    explicit PpdCache(QString folder) : m_folder(std::move(folder)) {}

    /// A queue as it was kept; its state is not known.
    /// Errors: nothing for a queue that was not used yet, or whose entry is damaged. An entry whose
    /// PPD is not the one that was stored is dropped, so that the server is asked for a whole one.
    std::optional<FetchedPrinter> find(const QString &server, const QString &queue) const;

    /// Keeps a queue whose PPD opens. Errors: null; the queue then works from wherever its PPD is.
    SharedPpd store(const QString &server, const QueueDetails &details) const;
    void remove(const QString &server, const QString &queue) const;

private:
    QString pathOf(const QString &server, const QString &queue, const QString &suffix) const;
    void removeFormerPpds(const QString &server, const QString &queue,
                          const QString &current) const;

    QString m_folder;
};

} // namespace corvana
