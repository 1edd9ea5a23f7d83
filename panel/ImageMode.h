#pragma once

#include <cstdint>

namespace corvana {

/// The bits of a panel's `imageModeFlag`, as masks of its 16-bit word. All others stay 0.
enum ImageMode : std::int16_t {
    kModeColorSync = 0x0001,   ///< the driver's own colour matching is in force
    kModeMono = 0x0002,        ///< monochrome printing is selected
    kModePlainDuplex = 0x0004, ///< plain paper is recorded as duplex plain paper; never set here
    kModeManualSleep = 0x0008, ///< the sleep time is set manually
    kModeThinPaperDefault = 0x0010, ///< the default medium is "Thin" instead of "Plain"
    kModeJapanese = 0x0020,         ///< the Japanese localisation is in use
    kModeEnvelopePaper = 0x0040,    ///< the paper is an envelope
    kModeNoTonerSave = 0x0080,      ///< the resolution does not allow toner save
    kModeFaxOutput = 0x0200,        ///< the output goes to fax
    kModeHelpRegistered = 0x0800,   ///< the panel's help book was registered
    kModePanelShown = 0x2000,       ///< the panel is on screen
};

} // namespace corvana
