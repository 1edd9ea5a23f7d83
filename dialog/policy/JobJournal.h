#pragma once

#include <functional>
#include <optional>

#include <QByteArray>
#include <QString>

namespace corvana {

/// What an administrator may want to know of a job afterwards.
struct JournaledJob
{
    QString user{};
    QString printer{};
    int job = 0;                ///< its number at the server; 0 when it never had one
    std::optional<int> pages{}; ///< of the documents, for one copy; nothing where nobody counted
    std::optional<qint64> sheets{}; ///< of all copies
    bool isColor = false;
    QString outcome{}; ///< a keyword
    QString title{};   ///< null: it is nobody's business
};

/// One line of the form `print user="anna" printer="lobby" job=12 pages=9 sheets=6 color=yes
/// outcome=printed`, whatever the texts say: they are bounded, have no control characters and no
/// quotes. What is not known is left out.
QByteArray journalLine(const JournaledJob &job);

/// Writes a line to the system's journal, by syslog(3).
void writeToJournal(const QByteArray &line);

} // namespace corvana
