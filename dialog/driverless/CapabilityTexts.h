#pragma once

#include <QString>

namespace corvana {

/// A text in the languages that the dialog speaks.
struct CapabilityText
{
    QString english;
    QString japanese;
    QString chinese;

    bool operator==(const CapabilityText &) const = default;
};

/// What a printer's keyword means in an attribute ("media-type", "media-source", "output-bin",
/// "print-color-mode", "sides", "print-quality", "finishings", "job-sheets", "media"). A keyword
/// that no standard knows is a name already, or becomes one: "letter-head" is "Letter Head" in all
/// languages.
CapabilityText capabilityText(QLatin1StringView attribute, const QString &keyword);

/// The title of an option of the PPD.
CapabilityText optionTitle(QLatin1StringView option);

/// A text in which "%1" stands for something, such as a number.
CapabilityText withArgument(const CapabilityText &form, const QString &argument);

/// A paper that is printed up to its edges.
CapabilityText borderless(const CapabilityText &paper);

} // namespace corvana
