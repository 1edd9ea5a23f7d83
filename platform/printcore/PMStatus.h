#pragma once

namespace corvana {

/// Result of the print settings, page format and paper functions. Zero is success, as the panels
/// test it.
enum PMStatus : int {
    kPMNoError = 0,
    kPMKeyNotFound = 1,      ///< the print settings hold no entry under the key
    kPMInvalidObject = 2,    ///< a null settings, page format or paper was handed in
    kPMValueUnavailable = 3, ///< the object exists but has no such value
};

} // namespace corvana
