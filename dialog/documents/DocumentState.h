#pragma once

#include <QString>

namespace corvana {

/// What is known of a document before it is printed.
struct DocumentState
{
    enum class Kind {
        Unknown,    ///< nobody has looked, or could look: the filter chain will find out
        Fine,       ///< it is printed as it is, or a copy of it without its password
        Locked,     ///< it opens with a password only
        Forbidden,  ///< it opens, and does not allow printing
        Unreadable, ///< none of its pages can be read
        NotCopied,  ///< the password is right, but the copy cannot be made
    };

    Kind kind = Kind::Unknown;
    bool isUnlocked = false;      ///< what is printed is a copy without the password
    bool isPasswordWrong = false; ///< one was given, and it opens nothing
    bool isDamaged = false;
    int pages = 0;         ///< that can be read
    int lostPages = 0;     ///< that cannot, and are not printed
    quint64 damagedAt = 0; ///< byte; 0: nobody knows
    QString details{};     ///< for whoever looks into it: programs' words

    bool operator==(const DocumentState &) const = default;
};

} // namespace corvana
