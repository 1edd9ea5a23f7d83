#pragma once

#include <QString>

namespace corvana {

/// A printer that a user can choose: its name and its PPD.
struct Printer
{
    QString name;        ///< what -d takes
    QString description; ///< make and model, for people
    QString ppdPath;
    int modelNumber = 0; ///< as the PPD states it; newer models have higher ones

    bool operator==(const Printer &) const = default;
};

} // namespace corvana
