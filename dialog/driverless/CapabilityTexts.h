#pragma once

#include <array>

#include <QString>

namespace corvana {

/// The languages besides English, by the names that libcups asks a PPD for. Portuguese is that of
/// Brazil: a region would hide it from all others.
inline constexpr std::array kCapabilityLanguages{"ja", "zh_CN", "de", "fr",   "es",
                                                 "it", "pt",    "ko", "zh_TW"};

/// A text in the languages that the dialog speaks.
struct CapabilityText
{
    QString english;
    std::array<QString, kCapabilityLanguages.size()> translated;

    bool operator==(const CapabilityText &) const = default;
};

/// A text that reads alike in every language, such as a number or a name.
CapabilityText everywhere(const QString &text);

/// What a printer's keyword means in an attribute ("media-type", "media-source", "output-bin",
/// "print-color-mode", "sides", "print-quality", "finishings", "job-sheets", "media"). A keyword
/// that no standard knows is a name already, or becomes one: "letter-head" is "Letter Head" in all
/// languages.
CapabilityText capabilityText(QLatin1StringView attribute, const QString &keyword);

/// The title of an option of the PPD.
CapabilityText optionTitle(QLatin1StringView option);

/// A text in which "%1" stands for something.
CapabilityText withArgument(const CapabilityText &form, const CapabilityText &argument);

/// A paper that is printed up to its edges.
CapabilityText borderless(const CapabilityText &paper);

} // namespace corvana
