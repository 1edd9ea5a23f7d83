#pragma once

#include <span>

namespace corvana {

/// What a text of CapabilityTexts.cpp is in another language, by its key there. Each language has a
/// file of its own, with all keys in the same order.
struct CapabilityTranslation
{
    const char *key; ///< the attribute and its value
    const char *text;
};

std::span<const CapabilityTranslation> germanTexts();
std::span<const CapabilityTranslation> frenchTexts();
std::span<const CapabilityTranslation> spanishTexts();
std::span<const CapabilityTranslation> italianTexts();
std::span<const CapabilityTranslation> portugueseTexts(); ///< as in Brazil
std::span<const CapabilityTranslation> koreanTexts();
std::span<const CapabilityTranslation> traditionalChineseTexts();

} // namespace corvana
