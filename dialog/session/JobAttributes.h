#pragma once

#include <optional>
#include <span>

#include <QString>
#include <QStringList>

#include "platform/pde/PDEJobValues.h"

namespace corvana {

/// The values that an attribute takes: each that one of its parts takes. The check and what is said
/// of it come from the same list.
struct AllowedValues
{
    struct Word
    {
        QLatin1StringView value;
        /// What it stands for, where the value does not say so.
        QLatin1StringView meaning{};
        /// What the summary calls it; null where that is the value itself.
        const char *shown = nullptr;
        const char *context = "JobAttributes"; ///< in which that is translated
    };
    struct Range
    {
        double least;
        double most;
        bool isWhole = true; ///< else with up to three decimal places
        QLatin1StringView unit{};
    };
    struct Form
    {
        QLatin1StringView text; ///< for a message
        bool (*accepts)(const QString &value);
    };

    std::span<const Word> words{};
    std::optional<Range> range{};
    std::optional<Form> form{};

    bool accepts(const QString &value) const { return inOneSpelling(value).has_value(); }
    /// The value as the job carries it: words in small letters, the number of a word that has one
    /// ("high" is "5"), "true" of "Yes". Errors: nothing for a value that is not taken.
    std::optional<QString> inOneSpelling(const QString &value) const;
    /// For a message: "no-hold, evening, or a time HH:MM".
    QString text() const;
    /// The word of that value, or null.
    const Word *word(const QString &value) const;
};

/// A job attribute that users of `lp` know: it is no option of the PPD and goes to CUPS as it is.
struct JobAttribute
{
    /// Who follows it, where nobody does everything (a queue does).
    enum class AppliedTo {
        Document, ///< the pages of a text or a picture, while they are made
        Pages,    ///< which pages, how many on a sheet, in which order
        Job,      ///< the job as a whole: only its printer, or its queue, can
    };

    /// Which documents are other ones with it.
    enum class Shapes {
        Everything,
        Texts,
        Pictures,
        ScaledPages, ///< texts and pictures; pages that have a size only where they are scaled
    };

    QLatin1StringView name;
    AppliedTo appliedTo;
    /// The value that asks for nothing but what is done anyway; empty where there is none.
    QLatin1StringView usual;
    /// What the summary calls it; to be translated in the context "JobAttributes".
    const char *title;
    AllowedValues allowed;
    Shapes shapes = Shapes::Everything;

    bool accepts(const QString &value) const { return allowed.accepts(value); }
};

/// The most copies that can be asked for.
inline constexpr int kMostCopies = 9999;

/// The attribute of that name, or null.
const JobAttribute *jobAttribute(const QString &name);

/// The names of all attributes, for a message.
QStringList jobAttributeNames();

/// Whether an option is an attribute that is applied there.
bool isAppliedTo(JobAttribute::AppliedTo what, const JobOption &option);

/// Whether an option is an attribute whose value asks for nothing but what is done anyway.
bool asksForNothing(const JobOption &option);

/// The values that an attribute takes, translated, for people who pick them: "1 to 100".
QString allowedText(const AllowedValues &allowed);

/// Title and value of an attribute, translated, for the summary.
struct JobAttributeText
{
    QString title;
    QString value;
};
/// Errors: the name and the value themselves, of what is no attribute.
JobAttributeText textOfJobAttribute(const JobOption &attribute);

/// An option of `lp` that is another spelling of an attribute, as that attribute ("landscape" is
/// "orientation-requested=4"); any other option as it is.
JobOption inOneSpelling(const JobOption &option);

} // namespace corvana
