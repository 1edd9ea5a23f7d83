#pragma once

#include <QList>
#include <QString>

#include "dialog/documents/DocumentTexts.h"
#include "dialog/session/OfferedAttribute.h"
#include "dialog/session/PpdSession.h"

namespace corvana {

class JobSettings;
struct OpenedPrinter;

/// Whether an attribute has an effect on this printer and is nothing that the printer has an option
/// of its own for.
bool offersAttribute(const QString &name, const OpenedPrinter &printer);

/// The attributes that every face offers, in the order in which they are read: those that people
/// look for, and each one that is in force, whoever asked for it. The pages, which have a field of
/// their own, are not among them.
QList<OfferedAttribute> offeredAttributes(const JobSettings &settings, const OpenedPrinter &printer,
                                          PrintsTo to);

/// What a printer's own options make of a value of an attribute.
struct PrinterChoices
{
    /// The choices that it stands for ("Collate" of some PPDs); empty where it is an attribute of
    /// the job, or is refused.
    QList<OptionChoice> choices{};
    bool isRefused = false; ///< nobody would do it
    QString allowed{};      ///< of a refusal: what would be done
};
/// `value` is in the spelling of AllowedValues; null: none, which no option has anything to say to.
PrinterChoices choicesOfPrinter(const QString &name, const QString &value,
                                const OpenedPrinter &printer);

/// The choice by which a printer turns the sheets of a booklet over; nothing where it turns none
/// over.
std::optional<OptionChoice> choiceForBooklet(const OpenedPrinter &printer);

} // namespace corvana
