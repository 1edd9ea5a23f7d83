#include "dialog/task/OfferedAttributes.h"

#include <algorithm>
#include <iterator>

#include "dialog/job/PageChoice.h"
#include "dialog/session/AttributeChoices.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/Summary.h"
#include "dialog/session/TwoSided.h"
#include "dialog/task/AttributeEffects.h"
#include "dialog/task/ByHand.h"
#include "dialog/task/Collation.h"
#include "dialog/task/JobSettings.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/PassedOn.h"
#include "dialog/task/SavedAsPdf.h"

namespace corvana {

using namespace Qt::StringLiterals;
using Place = OfferedAttribute::Place;

namespace {

constexpr QLatin1StringView kNumberUp{"number-up"};
constexpr QLatin1StringView kNumberUpLayout{"number-up-layout"};
constexpr QLatin1StringView kPrintColorMode{"print-color-mode"};

struct Offer
{
    QLatin1StringView name;
    Place place;
};

// What is offered although nobody has asked for it yet. Every other attribute is behind "More" as
// soon as it is in force.
constexpr Offer kOffers[] = {
    {kCollateAttribute, Place::BesideCopies},
    {kSidesByHandAttribute, Place::Front},
    {kPrintColorMode, Place::Front},
    {"orientation-requested"_L1, Place::Front},
    {kNumberUp, Place::Front},
    {"print-scaling"_L1, Place::Front},
    {"scaling"_L1, Place::More},
    {"page-set"_L1, Place::More},
    {"outputorder"_L1, Place::More},
    {kNumberUpLayout, Place::More},
    {"page-border"_L1, Place::More},
    {kBookletAttribute, Place::More},
    {kRepeatAttribute, Place::More},
    {kPutBackAttribute, Place::More},
    {"mirror"_L1, Place::More},
    {"job-sheets"_L1, Place::More},
    {"job-hold-until"_L1, Place::More},
    {"job-priority"_L1, Place::More},
};

bool isOffered(const QString &name)
{
    return std::any_of(std::begin(kOffers), std::end(kOffers),
                       [&](const Offer &offer) { return offer.name == name; });
}

// An option of the PPD whose name is the attribute's: CUPS takes them for one, whatever the case of
// their letters.
ppd_option_t *ownOption(const QString &name, const PpdSession &session)
{
    for (ppd_option_t *option : session.options()) {
        if (QLatin1StringView(option->keyword).compare(name, Qt::CaseInsensitive) == 0)
            return option;
    }
    return nullptr;
}

// Of some PPDs "Collate" is an option of their own.
PrinterChoices collation(const QString &value, const PpdSession &session)
{
    const ppd_option_t *option = ownOption(kCollateAttribute, session);
    for (int i = 0; option && i < option->num_choices; ++i) {
        const QString choice = ppdKeyword(option->choices[i].choice);
        if (choice.compare(value, Qt::CaseInsensitive) == 0)
            return {{OptionChoice{ppdKeyword(option->keyword), choice}}};
    }
    return {};
}

// Whether a value is done although no option of the printer's stands for it.
bool isAttributeAlone(const QString &name, const QString &value, const OpenedPrinter &printer)
{
    const PrinterChoices own = choicesOfPrinter(name, value, printer);
    return own.choices.isEmpty() && !own.isRefused;
}

// "none,none" is two of them: before the job and behind it.
bool isUsual(const QString &value, const QString &usual)
{
    const QStringList values = value.split(u',');
    return value.isNull() || std::all_of(values.cbegin(), values.cend(), [&](const QString &one) {
               return !usual.isEmpty() && one == usual;
           });
}

// Who keeps an attribute at its value, itself or by an option of the printer's of that name.
QString lockOf(const QString &name, const JobSettings &settings, const OpenedPrinter &printer)
{
    const ppd_option_t *own = ownOption(name, *printer.session);
    return own ? printer.session->lockedBy(ppdKeyword(own->keyword)) : settings.lockedBy(name);
}

OfferedAttribute offered(const Offer &offer, const JobSettings &settings,
                         const OpenedPrinter &printer, PrintsTo to)
{
    const QString usual = usualValueOf(offer.name, settings.attributes(), printer);
    OfferedAttribute one{offer.name, settings.attribute(offer.name), offer.place};
    if (const ppd_option_t *own = ownOption(offer.name, *printer.session))
        one.value = printer.session->markedChoice(ppdKeyword(own->keyword)).toLower();
    one.isUsual = isUsual(one.value, usual);
    // Not what is usual with other printers.
    if (one.value.isNull() && usual != jobAttribute(offer.name)->usual)
        one.value = usual;
    // The page has one row for color, which is that of the option.
    if (offer.name == kPrintColorMode &&
        !colorOptionOf(*printer.session, printer.jobValues).isNull())
        one.place = Place::More;
    if (const QString by = lockOf(offer.name, settings, printer); !by.isNull())
        one.lockedBy = lockedText(by);
    if (offer.name == kCollateAttribute) {
        const bool isGiven = areCopiesAlwaysCollated(printer, to);
        one.hasEffect = settings.copies() > 1 && !isGiven;
        if (isGiven)
            one.value = u"true"_s;
    }
    if (offer.name == kNumberUpLayout)
        one.hasEffect = !isUsual(settings.attribute(kNumberUp), jobAttribute(kNumberUp)->usual);
    // A booklet has as many pages on a side as it has, and so has each page several times.
    const QList<JobOption> &all = settings.attributes();
    if (const PageChoice order = pageChoiceOf(all);
        offer.name == kNumberUp && order.isOrdered() && problemsOfOrder(all).isEmpty()) {
        one.hasEffect = false;
        one.value = withPagesOfOrder(all).constLast().value;
    }
    // It has an order of its own, too.
    if (pageChoiceOf(all).booklet != PageChoice::Booklet::No && isUsual(one.value, usual) &&
        (offer.name == kNumberUpLayout || offer.name == kRepeatAttribute))
        one.hasEffect = false;
    if (offer.name == kPutBackAttribute)
        one.hasEffect = isTwoSidedByHand(settings.attributes());
    return one;
}

} // namespace

bool offersAttribute(const QString &name, const OpenedPrinter &printer)
{
    if (passesFilesOn(printer))
        return isDoneWhenPassedOn(name, printer);
    if (savesPdf(printer) && !isDoneInPdf(name))
        return false;
    const PpdSession &session = *printer.session;
    if (name == kSidesByHandAttribute || name == kPutBackAttribute)
        return canTurnByHand(printer);
    if (name == kBookletAttribute)
        return savesPdf(printer) || canTurnByHand(printer) || choiceForBooklet(printer);
    if (name == kPrintColorMode)
        return session.ppd()->color_device && colorOptionOf(session, printer.jobValues).isNull() &&
               isAttributeAlone(name, u"monochrome"_s, printer);
    return !ownOption(name, session) ||
           !choicesOfPrinter(name, u"true"_s, printer).choices.isEmpty();
}

QList<OfferedAttribute> offeredAttributes(const JobSettings &settings, const OpenedPrinter &printer,
                                          PrintsTo to)
{
    // What is in force, and what the user has just taken out of force.
    QStringList asked;
    for (const JobOption &option : settings.attributes() + settings.chosenAttributes()) {
        if (jobAttribute(option.name) && !asked.contains(option.name))
            asked += option.name;
    }
    asked.removeAll(kPageRangesAttribute);

    QList<OfferedAttribute> all;
    for (const Offer &offer : kOffers) {
        if (jobAttribute(offer.name) &&
            (asked.contains(offer.name) || offersAttribute(offer.name, printer)))
            all += offered(offer, settings, printer, to);
    }
    for (const QString &name : std::as_const(asked)) {
        if (!isOffered(name))
            all += offered({jobAttribute(name)->name, Place::More}, settings, printer, to);
    }
    return all;
}

PrinterChoices choicesOfPrinter(const QString &name, const QString &value,
                                const OpenedPrinter &printer)
{
    if (value.isNull())
        return {};
    if (name == kCollateAttribute)
        return collation(value, *printer.session);
    if (!AttributeReader::isFor(name))
        return {};
    const AttributeChoices read =
        AttributeReader(printer.session->ppd(), printer.jobValues).read({name, value});
    PrinterChoices own;
    own.isRefused = read.outcome == AttributeChoices::Outcome::Refused;
    own.allowed = read.allowed;
    for (const JobOption &choice : read.choices)
        own.choices += OptionChoice{choice.name, choice.value};
    return own;
}

std::optional<OptionChoice> choiceForBooklet(const OpenedPrinter &printer)
{
    ppd_option_t *option = ppdOption(printer.session->ppd(), kDuplexOption);
    if (!ppdChoice(option, kDuplexShortEdge))
        return std::nullopt;
    return OptionChoice{kDuplexOption, kDuplexShortEdge};
}

} // namespace corvana
