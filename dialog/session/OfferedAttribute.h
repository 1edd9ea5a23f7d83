#pragma once

#include <QString>

namespace corvana {

/// A job attribute as a face offers it: what is in force, and how prominent it is.
struct OfferedAttribute
{
    enum class Place {
        BesideCopies, ///< on or off, and about the copies
        Front,        ///< changed often
        More,         ///< rarely changed, or in force by somebody's default
    };

    QString name;  ///< that jobAttribute() knows
    QString value; ///< what is in force; null where nobody asks for anything
    Place place = Place::More;
    bool hasEffect = true; ///< with what else is set now
    bool isUsual = true;   ///< whether nothing is done that is not done anyway
    QString lockedBy{};    ///< who keeps it at that, in a sentence; null where nobody does

    bool operator==(const OfferedAttribute &) const = default;
};

} // namespace corvana
