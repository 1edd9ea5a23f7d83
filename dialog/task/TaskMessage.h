#pragma once

#include <functional>

#include <QString>

namespace corvana {

/// Something that a task has to say, with at most one thing to do about it.
struct TaskMessage
{
    enum class Kind { Information, Problem };

    Kind kind = Kind::Information;
    QString text{};
    QString offer{};              ///< what the user can do about it ("Change to …"); else empty
    std::function<void()> take{}; ///< does it; for as long as the printer is open
    bool canWait = false;         ///< not worth saying while something else is being said
    QString details{};            ///< names, numbers, programs' words, for who asks; else empty
    bool staysWithoutPrinter = false; ///< `take` needs no printer: it is about the documents
};

/// Why a task does not print, and where a user can mend it.
struct TaskRefusal
{
    enum class Place { Nowhere, Pages, Output };

    QStringList problems{};
    Place place = Place::Nowhere;
    /// The user has just said so, in the alert of a panel, and need not be told.
    bool answered = false;
    QString details{}; ///< as in a TaskMessage
};

} // namespace corvana
