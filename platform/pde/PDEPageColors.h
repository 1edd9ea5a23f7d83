#pragma once

#include <QStringList>

#include "platform/imaging/ColorTransform.h"
#include "platform/printcore/Ppd.h"
#include "platform/printcore/PrintSettings.h"

namespace corvana {

/// How the colours of a document come out, as far as anybody can show it on a screen.
struct PageColors
{
    enum class Ink {
        Color,
        Black, ///< greys only; `transform` makes them
    };

    /// From the colours of the document to those that are shown. Colours are encoded as they are in
    /// a picture of the page: there is no colour management.
    ColorTransform transform{};
    Ink ink = Ink::Color;
    /// Options of the PPD whose choice changes colours in ways that the transform does not hold,
    /// such as a printer's own colour matching: by keyword.
    QStringList unknown{};

    bool operator==(const PageColors &) const = default;
};

/// The optional part of the contract: what the panels' settings do to the colours of a page. With
/// it a host shows the user's own pages as a panel shows its reference picture, without knowing a
/// single key.
///
/// Ownership: part of the principal object. Thread: GUI thread only.
class PDEPageColors
{
public:
    PDEPageColors() = default;
    PDEPageColors(const PDEPageColors &) = delete;
    PDEPageColors &operator=(const PDEPageColors &) = delete;
    virtual ~PDEPageColors() = default;

    /// The colours of a page of the job that has these settings. What is not in force changes
    /// nothing. Called at each step of a slider that moves: it has to be quick, and changes neither
    /// the settings nor the PPD.
    virtual PageColors pageColors(const PrintSettings &settings, ppd_file_t *ppd) const = 0;
};

} // namespace corvana
