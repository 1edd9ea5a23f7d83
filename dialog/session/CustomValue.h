#pragma once

#include <optional>

#include <QList>
#include <QString>

#include "platform/pde/PDEJobValues.h"
#include "platform/printcore/Ppd.h"

namespace corvana {

/// A custom value checked against what the PPD declares. libcups checks nothing: it would store
/// "Custom.999" for a range of 1 to 99, and read "Custom.x" as 0.
struct CustomValueCheck
{
    /// The value as CUPS takes it ("Custom.283.5x419.5"); nothing when it cannot be taken.
    std::optional<QString> value;
    /// What would be taken ("Custom.1 … Custom.99"), for the message of a refusal.
    QString allowed;
};

/// Checks `Custom.…` for an option with exactly one custom parameter, or for the page size
/// (`Custom.WIDTHxHEIGHT` with an optional unit: pt, in, ft, cm, mm, m; points without one).
CustomValueCheck checkCustomValue(ppd_file_t *ppd, const QString &keyword, const QString &value);

/// A number as the option of a PPD has it: a choice that is called so ("+2" for 2), else the custom
/// value ("Custom.2"). Panels take numbers for such options, and what was written for them, such as
/// an administrator's lock, means the same where there are none. Whether it is allowed says
/// checkCustomValue(). Errors: null, for what is no number and for an option that takes none.
QString choiceOfNumber(ppd_file_t *ppd, const QString &keyword, const QString &text);

/// What a person can enter as the custom value of an option.
struct CustomLimits
{
    enum class Kind { Number, Points, Text, HiddenText };

    Kind kind = Kind::Number;
    QString least; ///< of a text: how many bytes of UTF-8 it has at least
    QString most;

    bool isText() const { return kind == Kind::Text || kind == Kind::HiddenText; }
};

/// The limits of an option with exactly one custom parameter; nothing for any other.
std::optional<CustomLimits> customLimits(ppd_file_t *ppd, const QString &keyword);

/// Whether the custom value of an option is a password or a PIN, by its type or by what its keyword
/// and its texts say. Such a value is neither shown nor logged.
bool isSecret(ppd_file_t *ppd, const QString &keyword);
/// Whether a choice of an option tells a secret: a number among the choices of "AccessCode".
/// Whether there is one ("None", "On") is no secret.
bool isSecretChoice(ppd_file_t *ppd, const QString &keyword, const QString &choice);
/// How many dots stand for a password, whatever its length: that is a part of it.
inline constexpr int kHiddenLength = 6;

/// What the PPD takes as custom values of an option; empty when it takes none.
QString allowedCustomValues(ppd_file_t *ppd, const QString &keyword);

/// The default choices of a PPD that are values of their own, as an administrator sets them
/// ("lpadmin -o PageSize=Custom.300x400"). libcups marks such an option as "Custom" and does not
/// say of what. A value that the PPD does not take is left out.
QList<JobOption> customDefaults(ppd_file_t *ppd);

/// Whether the PPD takes papers of sizes that it does not list, and says up to which size.
bool takesCustomPageSizes(const ppd_file_t *ppd);

} // namespace corvana
