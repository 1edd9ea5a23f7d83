#pragma once

namespace corvana {

class PDEJobValues;

/// Which options of a printer are listed, and who keeps values of its own for some of them.
struct ListedOptions
{
    enum class Which {
        BesideGeneral, ///< those that the General page does not offer
        All,           ///< each that somebody can choose, also those that stand on another page
    };

    Which which = Which::BesideGeneral;
    const PDEJobValues *jobValues = nullptr; ///< null for a printer without panels
};

} // namespace corvana
