#include "dialog/session/RequestedOptions.h"

#include <algorithm>

#include <cups/cups.h>

#include <QCoreApplication>

#include "dialog/session/AttributeChoices.h"
#include "dialog/session/CustomValue.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/MarksByCups.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/OptionTexts.h"
#include "dialog/session/PaperSize.h"
#include "dialog/session/TwoSided.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(OptionRequest)
};

constexpr QLatin1StringView kMediaOption{"media"};
constexpr QLatin1StringView kMediaDetailsOption{"media-col"};
constexpr QLatin1StringView kSidesOption{"sides"};
constexpr QLatin1StringView kCopiesOption = kCopiesAttribute;

bool isInSomeCase(const QString &value, const QString &other)
{
    return value.compare(other, Qt::CaseInsensitive) == 0;
}

// The option of that name in any case.
ppd_option_t *optionInAnyCase(ppd_file_t *ppd, const QString &name)
{
    for (int g = 0; g < ppd->num_groups; ++g) {
        const ppd_group_t &group = ppd->groups[g];
        for (int o = 0; o < group.num_options; ++o) {
            if (isInSomeCase(name, ppdKeyword(group.options[o].keyword)) &&
                isOption(ppd, group.options[o]))
                return &group.options[o];
        }
    }
    return nullptr;
}

// A choice as the PPD writes it; "custom.12" as "Custom.12"; anything else as it is.
QString choiceInOneCase(ppd_option_t *option, const QString &value)
{
    if (ppdChoice(option, value))
        return value;
    if (value.startsWith(kCustomPrefix, Qt::CaseInsensitive)) {
        const QString text = value.mid(kCustomPrefix.size());
        const bool isSize = kPageSizeOption == QLatin1StringView(option->keyword);
        return kCustomPrefix + (isSize ? text.toLower() : text);
    }
    for (int i = 0; i < option->num_choices; ++i) {
        if (const QString choice = ppdKeyword(option->choices[i].choice);
            isInSomeCase(value, choice))
            return choice;
    }
    return value;
}

// What the filters of CUPS know of the ways to handle several copies; IPP has more.
QString handlings()
{
    return QStringList{kCollated, kUncollated}.join(u", "_s);
}

bool isAttributeOfLp(const QString &name)
{
    return RequestedOptions::translatedOptions().contains(name) ||
           jobAttribute(inOneSpelling({name, u"true"_s}).name);
}

} // namespace

QString nameInOneCase(const QString &name, ppd_file_t *ppd)
{
    if (ppdOption(ppd, name) || isAttributeOfLp(name))
        return name;
    if (const ppd_option_t *option = optionInAnyCase(ppd, name))
        return ppdKeyword(option->keyword);
    return isAttributeOfLp(name.toLower()) ? name.toLower() : name;
}

QStringList RequestedOptions::translatedOptions()
{
    return {kMediaOption, kMediaDetailsOption, kSidesOption, kCopiesOption, kHandlingAttribute};
}

RequestedOptions::RequestedOptions(const QList<JobOption> &requested, PpdSession &session,
                                   const PDEJobValues *jobValues)
    : m_session(session), m_jobValues(jobValues)
{
    for (const JobOption &option : requested)
        m_requested += inOneSpelling({nameInOneCase(option.name, session.ppd()), option.value});
    for (const JobOption &option : std::as_const(m_requested))
        add(option);
}

void RequestedOptions::add(const JobOption &option)
{
    if (option.name == kMediaOption)
        addMedia(option);
    else if (option.name == kMediaDetailsOption)
        addMediaDetails(option);
    else if (option.name == kSidesOption)
        addSides(option);
    else if (option.name == kCopiesOption)
        addCopies(option);
    else if (option.name == kHandlingAttribute)
        refuseValue(option, handlings());
    else if (option.name == kLandscapeOption && !ppdOption(m_session.ppd(), option.name))
        refuseValue(option, u"true, false"_s);
    else if (!addPanelValue(option) && !addChoice(option, option.name) &&
             !addChoicesOfAttribute(option) && !addAttribute(option))
        refuse(option,
               Texts::tr("this printer has no such option. Options: %1. Job attributes: %2.")
                   .arg(knownNames(), (translatedOptions() + jobAttributeNames()).join(u", "_s)));
}

void RequestedOptions::refuse(const JobOption &option, const QString &why)
{
    problems += u"%1: %2"_s.arg(optionText(m_session.ppd(), option.name, option.value), why);
}

void RequestedOptions::refuseValue(const JobOption &option, const QString &allowed)
{
    refuse(option, allowed.isEmpty()
                       ? Texts::tr("this printer has nothing to choose from for this.")
                       : Texts::tr("this value is not allowed. Allowed: %1.").arg(allowed));
}

// Whether somebody who counts more keeps an attribute at another value.
bool RequestedOptions::refuseLocked(const JobOption &attribute)
{
    const auto lock = m_session.locks().find(attribute.name);
    if (lock == m_session.locks().cend() || lock->allowsAttribute(attribute))
        return false;
    refuse(attribute, lockedText(attribute.name, m_session));
    return true;
}

QString RequestedOptions::knownNames() const
{
    QStringList names;
    for (const ppd_option_t *option : m_session.options())
        names += ppdKeyword(option->keyword);
    return names.join(u", "_s);
}

// The page size, the source or the type of paper that one word of "media" names. Empty for a word
// that means nothing to this printer.
QList<OptionChoice> RequestedOptions::paperOf(const QString &media) const
{
    ppd_file_t *ppd = m_session.ppd();
    QList<OptionChoice> paper;
    if (const QString size = pageSizeOfMedia(ppd, media); !size.isNull())
        return {{kPageSizeOption, size}};
    if (const QString custom = customChoiceOfMedia(media); !custom.isNull()) {
        const CustomValueCheck check = checkCustomValue(ppd, kPageSizeOption, custom);
        if (check.value)
            paper += OptionChoice{kPageSizeOption, *check.value};
        return paper;
    }
    const AttributeReader reader(ppd, m_jobValues);
    const QList<JobOption> others = reader.sourceOrType(media);
    for (const JobOption &choice : others)
        paper += OptionChoice{choice.name, choice.value};
    return paper;
}

void RequestedOptions::addMedia(const JobOption &option)
{
    ppd_file_t *ppd = m_session.ppd();
    const ppd_option_t *sizes = ppdOption(ppd, kPageSizeOption);
    const QStringList words = option.value.split(u',');
    // Each part that is not taken is named.
    for (const QString &word : words) {
        const QList<OptionChoice> paper = paperOf(word);
        choices += paper;
        if (!paper.isEmpty())
            continue;
        const AttributeReader reader(ppd, m_jobValues);
        QStringList allowed;
        if (sizes)
            allowed += allowedChoices(ppd, sizes);
        for (const auto &part : {u"media-source"_s, u"media-type"_s}) {
            if (const QString more = reader.read({part, QString()}).allowed; !more.isEmpty())
                allowed += more;
        }
        const QString text = allowed.join(u", "_s);
        if (allowed.isEmpty())
            refuse(option, Texts::tr("this printer has no paper sizes to choose from."));
        else if (words.size() == 1)
            refuseValue(option, text);
        else
            refuse(option, Texts::tr("“%1” is not allowed. Allowed: %2.").arg(word, text));
    }
}

// "{media-size={x-dimension=21000 y-dimension=29700} media-source=tray-1}"
void RequestedOptions::addMediaDetails(const JobOption &option)
{
    const bool isCollection = option.value.startsWith(u'{') && option.value.endsWith(u'}');
    const QList<JobOption> members =
        isCollection ? parseOptions({option.value.mid(1).chopped(1)}) : QList<JobOption>();
    if (members.isEmpty())
        return refuseValue(option, u"{media-size-name=… media-source=… media-type=…}"_s);
    for (const JobOption &member : members) {
        QString media;
        if (member.name == "media-size-name"_L1) {
            media = member.value;
        } else if (member.name == "media-size"_L1) {
            const QList<JobOption> lengths = parseOptions({member.value.mid(1).chopped(1)});
            QSize size;
            for (const JobOption &length : lengths) {
                if (length.name == "x-dimension"_L1)
                    size.setWidth(length.value.toInt());
                else if (length.name == "y-dimension"_L1)
                    size.setHeight(length.value.toInt());
            }
            media = isPaper(size) ? customMediaName(size) : member.value;
        }
        if (!media.isNull())
            addMedia({kMediaOption, media});
        else if ((member.name != "media-source"_L1 && member.name != "media-type"_L1) ||
                 !addChoicesOfAttribute(member))
            refuse(member, Texts::tr("this printer has nothing to choose from for this."));
    }
}

void RequestedOptions::addSides(const JobOption &option)
{
    struct Side
    {
        QLatin1StringView sides;
        QLatin1StringView duplex; // empty: the one-sided choice, which is the default
    };
    static constexpr Side kSides[] = {
        {"one-sided"_L1, QLatin1StringView()},
        {"two-sided-long-edge"_L1, kDuplexLongEdge},
        {"two-sided-short-edge"_L1, kDuplexShortEdge},
    };
    ppd_file_t *ppd = m_session.ppd();
    ppd_option_t *duplex = ppdOption(ppd, kDuplexOption);
    QStringList allowed;
    for (const Side &side : kSides) {
        QList<OptionChoice> asked;
        if (duplex) {
            const QString choice =
                side.duplex.isEmpty() ? ppdKeyword(duplex->defchoice) : QString(side.duplex);
            if (ppdChoice(duplex, choice))
                asked += OptionChoice{kDuplexOption, choice};
        } else {
            // Some PPDs have another name for it, which libcups knows.
            for (const JobOption &choice : choicesByCups(ppd, {{kSidesOption, side.sides}}))
                asked += OptionChoice{choice.name, choice.value};
        }
        const bool isOneSided = side.duplex.isEmpty() && !duplex;
        if (asked.isEmpty() && !isOneSided)
            continue;
        allowed += side.sides;
        if (!isInSomeCase(option.value, side.sides))
            continue;
        // One side is what is printed where sheets are not turned over by hand either.
        if (asked.isEmpty() && refuseLocked({kSidesByHandAttribute, u"no"_s}))
            return;
        choices += asked;
        return;
    }
    const QString text = allowed.join(u", "_s);
    if (turnsSheetsOver(ppd))
        return refuseValue(option, text);
    refuse(option, Texts::tr("this printer prints on one side only. Allowed: %1. Two sides by "
                             "hand: %2=%3, %2=%4.")
                       .arg(text, kSidesByHandAttribute, kByHandLongEdge, kByHandShortEdge));
}

void RequestedOptions::addCopies(const JobOption &option)
{
    bool isNumber = false;
    const int number = option.value.toInt(&isNumber);
    if (isNumber && number >= 1 && number <= kMostCopies) {
        if (!refuseLocked({kCopiesAttribute, QString::number(number)}))
            copies = number;
    } else
        refuseValue(option, Texts::tr("1 to %1").arg(kMostCopies));
}

// A trial on a copy of the entries: nothing is written before everything has been checked.
bool RequestedOptions::addPanelValue(const JobOption &option)
{
    if (!m_jobValues)
        return false;
    PrintSettings trial;
    trial.setEntries(m_session.printSettings().entries());
    const JobValueClaim claim = m_jobValues->takeJobOption(option, trial, m_session.ppd());
    if (claim.outcome == JobValueClaim::Outcome::NotMine)
        return false;
    if (claim.outcome == JobValueClaim::Outcome::Refused)
        refuseValue(option, claim.allowed);
    else if (const auto lock = m_session.locks().find(option.name);
             lock != m_session.locks().cend() && lock->kind == OptionLock::Kind::PanelValue &&
             lock->value != claim.standsFor.value)
        refuse(option, lockedText(option.name, m_session));
    else
        panelValues += option;
    return true;
}

bool RequestedOptions::addChoice(const JobOption &option, const QString &keyword)
{
    ppd_option_t *found = ppdOption(m_session.ppd(), keyword);
    if (!m_session.options().contains(found))
        return false;
    const QString value = choiceInOneCase(found, option.value);
    if (value.startsWith(kCustomPrefix)) {
        const CustomValueCheck check = checkCustomValue(m_session.ppd(), keyword, value);
        if (check.value)
            choices += OptionChoice{keyword, *check.value};
        else
            refuseValue(option, allowedChoices(m_session.ppd(), found));
    } else if (ppdChoice(found, value) && value != kCustomChoice) {
        choices += OptionChoice{keyword, value};
    } else if (const QString number = choiceOfNumber(m_session.ppd(), keyword, value);
               !m_jobValues && !number.isNull()) {
        return addChoice({keyword, number}, keyword);
    } else {
        refuseValue(option, allowedChoices(m_session.ppd(), found));
    }
    return true;
}

// An attribute for which the PPD may have an option.
bool RequestedOptions::addChoicesOfAttribute(const JobOption &option)
{
    using Outcome = AttributeChoices::Outcome;
    if (option.name == kCollateAttribute) {
        const std::optional<QString> value =
            jobAttribute(kCollateAttribute)->allowed.inOneSpelling(option.value);
        return value && addChoice({kCollateOption, *value}, kCollateOption);
    }
    if (!AttributeReader::isFor(option.name))
        return false;
    const AttributeReader reader(m_session.ppd(), m_jobValues);
    const AttributeChoices found = reader.read(option, m_requested);
    switch (found.outcome) {
    case Outcome::Choices:
        for (const JobOption &choice : found.choices)
            choices += OptionChoice{choice.name, choice.value};
        return true;
    case Outcome::Attribute:
        return addAttribute(option);
    case Outcome::Refused:
        refuseValue(option, found.allowed);
        return true;
    }
    return false;
}

bool RequestedOptions::addAttribute(const JobOption &option)
{
    const JobAttribute *attribute = jobAttribute(option.name);
    if (!attribute)
        return false;
    const std::optional<QString> value = attribute->allowed.inOneSpelling(option.value);
    if (value && refuseLocked({option.name, *value}))
        return true;
    if (value && isTwoSidedByHand({{option.name, *value}}) && turnsSheetsOver(m_session.ppd()))
        refuse(option, Texts::tr("this printer turns sheets over itself. Allowed: %1=no; for two "
                                 "sides use %2.")
                           .arg(option.name, kSidesOption));
    else if (value)
        attributes += JobOption{option.name, *value};
    else
        refuseValue(option, attribute->allowed.text());
    return true;
}

} // namespace corvana
