#include "dialog/task/StartValues.h"

#include <algorithm>
#include <iterator>

#include <QCoreApplication>

#include "dialog/job/FormerDefaults.h"
#include "dialog/job/PageChoice.h"
#include "dialog/policy/Policy.h"
#include "dialog/printers/UserQueues.h"
#include "dialog/session/AttributeChoices.h"
#include "dialog/session/CustomValue.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/MarksByCups.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/RequestedOptions.h"
#include "dialog/session/TwoSided.h"
#include "dialog/task/AttributeEffects.h"
#include "dialog/task/ByHand.h"
#include "dialog/task/Collation.h"
#include "dialog/task/InstanceDraft.h"
#include "dialog/task/OfferedAttributes.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/PassedOn.h"
#include "dialog/task/PrintRequest.h"
#include "dialog/task/SavedAsPdf.h"
#include "dialog/task/StartPresets.h"
#include "dialog/task/WhatFits.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

using By = JobSettings::By;
using Taking = StartLayer::Taking;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(StartValues)
};

// What an administrator has set in the PPD, and at the server.
QList<JobOption> defaultsOfQueue(const OpenedPrinter &printer, const PrintRequest &)
{
    return customDefaults(printer.session->ppd()) + printer.fetched.defaults;
}

QList<JobOption> usersOptions(const OpenedPrinter &printer, const PrintRequest &)
{
    if (printer.fetched.printer.origin != PrinterOrigin::Queue)
        return {};
    const QString &name = printer.fetched.printer.name;
    const KnownInstances known = KnownInstances::read();
    return asInstanceMeansIt(known.queues.optionsOf(name), known.own.value(name),
                             printer.session->ppd());
}

QList<JobOption> policysDefaults(const OpenedPrinter &printer, const PrintRequest &request)
{
    QList<JobOption> options;
    const QList<PolicyEntry> defaults = policyOf(request).defaultsOf(printer.fetched.printer);
    for (const PolicyEntry &entry : defaults)
        options += JobOption{entry.keyword, entry.value};
    return options;
}

QList<JobOption> requestedOptions(const OpenedPrinter &, const PrintRequest &request)
{
    return request.options;
}

constexpr StartLayer kLayers[] = {
    {By::Queue, Taking::AsFarAsItGoes, defaultsOfQueue},
    {By::UserQueues, Taking::AsFarAsItGoes, usersOptions},
    {By::Policy, Taking::AsFarAsItGoes, policysDefaults},
    {By::LastUsed, Taking::AsFarAsItGoes, nullptr},
    {By::Preset, Taking::AsFarAsItGoes, nullptr},
    {By::Options, Taking::AsAWhole, requestedOptions},
};

bool isNamed(const QList<JobOption> &options, const QString &name)
{
    return std::any_of(options.cbegin(), options.cend(),
                       [&](const JobOption &option) { return option.name == name; });
}

QString named(const JobOption &option)
{
    return u"%1=%2"_s.arg(option.name, option.value);
}

// Whether the job says what the option asks for in another way, which counts more than what the
// server adds: by choices of the PPD, or by its number of copies.
bool isSaidByTheJob(const JobOption &option, const OpenedPrinter &printer)
{
    static constexpr QLatin1StringView kNames[] = {"copies"_L1, "media"_L1, "sides"_L1};
    return ppdOption(printer.session->ppd(), option.name) ||
           std::any_of(std::begin(kNames), std::end(kNames),
                       [&](QLatin1StringView name) { return option.name == name; });
}

QString ofQueue(const QString &problem, const OpenedPrinter &printer)
{
    return Texts::tr("Default of the queue “%1”: %2").arg(printer.fetched.printer.name, problem);
}

// A problem begins with the name of its option. Where somebody has to look for it is said as well.
QString ofPolicy(const QString &problem, const OpenedPrinter &printer, const PrintRequest &request)
{
    const QList<PolicyEntry> defaults = policyOf(request).defaultsOf(printer.fetched.printer);
    for (const PolicyEntry &entry : defaults) {
        const QString known = nameInOneCase(entry.keyword, printer.session->ppd());
        if (problem.startsWith(known + u'=') || problem.startsWith(entry.keyword + u'='))
            return PolicyProblem{entry.origin, problem}.text();
    }
    return Texts::tr("Default of your administrator: %1").arg(problem);
}

// The server adds these to the job, understood or not. What nobody here understands, or takes, is
// kept as it is, so that it is seen.
OptionOutcome applyDefaultsOfQueue(const QList<JobOption> &options, OpenedPrinter &printer)
{
    const QString queue = printer.fetched.printer.name;
    OptionOutcome outcome;
    QStringList kept;
    for (const JobOption &option : options) {
        const bool isKnown = isKnownOption(option.name, *printer.session);
        const OptionOutcome one = isKnown ? applyWhatFits({option}, printer) : OptionOutcome();
        outcome.attributes += one.attributes;
        if (one.copies)
            outcome.copies = one.copies;
        if (isKnown && one.ok())
            continue;
        if (isSaidByTheJob(option, printer) ||
            printer.session->locks().contains(inOneSpelling(option).name)) {
            for (const QString &problem : one.problems)
                outcome.problems += ofQueue(problem, printer);
        } else {
            outcome.attributes += option;
            kept += named(option);
        }
    }
    if (!kept.isEmpty())
        outcome.problems +=
            Texts::tr("The queue “%1” adds this to each job; what it does is not known here: %2.")
                .arg(queue, kept.join(u", "_s));
    return outcome;
}

OptionOutcome applyLayer(const StartLayer &layer, const QList<JobOption> &options,
                         OpenedPrinter &printer)
{
    switch (layer.by) {
    case By::Queue:
        return applyDefaultsOfQueue(options, printer);
    case By::UserQueues:
        return applyUsersOptions(options, printer);
    case By::Policy:
        return applyWhatFits(options, printer);
    default:
        return applyOptions(options, *printer.session, printer.jobValues, *printer.panels);
    }
}

// What asks for nothing, where a queue's default asks for something.
QString usualValue(const QString &name, const OpenedPrinter &printer)
{
    if (const QString nothing = valueThatAsksForNothing(name); !nothing.isNull())
        return nothing;
    return usualValueOf(name, {}, printer);
}

// The choices that a default of the queue stands for.
QList<JobOption> choicesOf(const JobOption &option, const OpenedPrinter &printer)
{
    if (!AttributeReader::isFor(option.name))
        return {};
    return AttributeReader(printer.session->ppd(), printer.jobValues).read(option).choices;
}

bool areMarked(const QList<JobOption> &choices, const PpdSession &session)
{
    return !choices.isEmpty() &&
           std::all_of(choices.cbegin(), choices.cend(), [&](const JobOption &choice) {
               return session.markedChoice(choice.name) == choice.value;
           });
}

// Whether the server adds a default to every job that does not name it, and no value takes it back.
bool isInevitable(const JobOption &option, const OpenedPrinter &printer)
{
    return inOneSpelling(option).name == option.name &&
           usualValue(option.name, printer).isEmpty() && choicesOf(option, printer).isEmpty() &&
           !isSaidByTheJob(option, printer);
}

// What a job says to a default of its queue that it does not name. Nothing where it says it by
// choices alone.
QList<JobOption> answerTo(const JobOption &option, const QList<JobOption> &attributes,
                          const OpenedPrinter &printer)
{
    if (isNameOfCollation(option.name))
        return {collationUnderNameOf(option, attributes, *printer.session)};
    // CUPS' filters take names in other letters for the same, and servers do not: the job says the
    // same under both names.
    if (const QString name = nameInOneCase(option.name, printer.session->ppd());
        name != option.name) {
        const auto said = std::find_if(attributes.cbegin(), attributes.cend(),
                                       [&](const JobOption &one) { return one.name == name; });
        const QString value = said == attributes.cend() ? usualValue(name, printer) : said->value;
        return value.isEmpty() ? QList<JobOption>() : QList{JobOption{option.name, value}};
    }
    const JobOption inOne = inOneSpelling(option);
    // The job says the same in the other spelling, or says otherwise. Such an option is on or off.
    if (inOne.name != option.name)
        return attributes.contains(inOne) ? QList<JobOption>()
                                          : QList{JobOption{option.name, u"false"_s}};
    if (isInevitable(option, printer))
        return {option};
    const QString usual = usualValue(option.name, printer);
    const QList<JobOption> choices = choicesOf(option, printer);
    if (usual.isEmpty())
        return {};
    return {areMarked(choices, *printer.session) ? option : JobOption{option.name, usual}};
}

// The filters of CUPS fill up copies to whole sheets where either says that a job has two sides.
bool isAddedToOneSide(const JobOption &option, const OpenedPrinter &printer)
{
    static const QList<JobOption> kTwoSides{{u"sides"_s, u"two-sided-long-edge"_s},
                                            {u"sides"_s, u"two-sided-short-edge"_s}};
    if (!kTwoSides.contains(option))
        return false;
    const PpdSession &session = *printer.session;
    const QList<JobOption> chosen = jobOptions(session, printer.jobValues, {});
    return std::none_of(chosen.cbegin(), chosen.cend(), isTwoSidedChoice) &&
           std::none_of(kTwoSides.cbegin(), kTwoSides.cend(), [&](const JobOption &sides) {
               return areMarked(choicesByCups(session.ppd(), {sides}), session);
           });
}

// A booklet is printed on both sides, which are turned over at the short edge, unless its options
// say how themselves.
QList<JobOption> foldingOf(const QList<JobOption> &options, const OpenedPrinter &printer)
{
    const bool isSaid = isNamed(options, u"sides"_s) || isNamed(options, kDuplexOption) ||
                        isNamed(options, kSidesByHandAttribute);
    if (isSaid || pageChoiceOf(options).booklet == PageChoice::Booklet::No)
        return {};
    if (canTurnByHand(printer))
        return {{kSidesByHandAttribute, kByHandShortEdge}};
    const std::optional<OptionChoice> folding = choiceForBooklet(printer);
    return folding ? QList{JobOption{folding->keyword, folding->choice}} : QList<JobOption>();
}

} // namespace

// Options that no printer, panel or attribute has the name of: whoever has set them for another
// program knows them.
OptionOutcome applyUsersOptions(QList<JobOption> options, OpenedPrinter &printer)
{
    QStringList unknown;
    options.removeIf([&](const JobOption &option) {
        const bool isUnknown = !isKnownOption(option.name, *printer.session);
        if (isUnknown)
            unknown += named(option);
        return isUnknown;
    });
    OptionOutcome outcome = applyWhatFits(options, printer);
    if (!unknown.isEmpty())
        outcome.problems.prepend(
            Texts::tr("This printer has no option of this name: %1.").arg(unknown.join(u", "_s)));
    return outcome;
}

std::span<const StartLayer> startLayers()
{
    return kLayers;
}

StartOutcome applyStartValues(const PrintRequest &request, OpenedPrinter &printer,
                              JobSettings &settings)
{
    StartOutcome outcome;
    QList<QList<JobOption>> options;
    for (const StartLayer &layer : startLayers())
        options += layer.options ? layer.options(printer, request) : QList<JobOption>();
    const bool passesOn = takeRaw(options, printer);
    if (passesOn && !passesFilesOn(printer))
        settings.addAttributes({kRaw});
    for (qsizetype i = 0; i < options.size(); ++i) {
        const StartLayer &layer = startLayers()[static_cast<std::size_t>(i)];
        if (!layer.options) {
            applyKeptSettings(layer.by, request, printer, settings, &outcome);
            continue;
        }
        if (layer.by == By::Options && !options.at(i).isEmpty()) {
            printer.panels->deliverPending();
            outcome.before = printer.session->snapshot();
            outcome.settingsBefore = settings;
        }
        QStringList problems;
        if (passesOn)
            problems = takeWhatCannotBeDone(options[i], printer);
        else {
            if (savesPdf(printer))
                problems = takeWhatPdfLacks(options[i]);
            problems += takeWhatHasNoEffect(options[i], request.documents, printer);
        }
        problems += takeLockedRaw(options[i], printer);
        options[i] += foldingOf(options.at(i), printer);
        if (layer.by == By::Queue) {
            // What such a queue's own defaults ask for is done by nobody.
            if (passesOn)
                problems.clear();
            for (QString &problem : problems)
                problem = ofQueue(problem, printer);
        }
        const bool isRefused = layer.taking == Taking::AsAWhole && !problems.isEmpty();
        const OptionOutcome taken =
            isRefused ? OptionOutcome() : applyLayer(layer, options.at(i), printer);
        problems += taken.problems;
        if (layer.by == By::UserQueues) {
            for (QString &problem : problems)
                problem.prepend("lpoptions: "_L1);
        } else if (layer.by == By::Policy) {
            for (QString &problem : problems)
                problem = ofPolicy(problem, printer, request);
        }
        settings.addAttributes(taken.attributes);
        if (taken.copies)
            settings.askForCopies(*taken.copies, layer.by);
        (layer.taking == Taking::AsAWhole ? outcome.unset : outcome.ignored) += problems;
    }
    return outcome;
}

QList<JobOption> withAnswersToDefaults(const QList<JobOption> &attributes,
                                       const OpenedPrinter &printer)
{
    return withAnswersTo(printer.fetched.defaults, attributes, printer);
}

QList<JobOption> withAnswersTo(const QList<JobOption> &defaults, const QList<JobOption> &attributes,
                               const OpenedPrinter &printer)
{
    QList<JobOption> all = attributes;
    if (passesFilesOn(printer))
        return all;
    for (const JobOption &option : defaults) {
        if (isNamed(attributes, option.name))
            continue;
        if (!isSaidByTheJob(option, printer))
            all += answerTo(option, attributes, printer);
        else if (isAddedToOneSide(option, printer))
            all += JobOption{option.name, u"one-sided"_s};
    }
    return all;
}

QList<JobOption> inevitableDefaults(const OpenedPrinter &printer)
{
    QList<JobOption> defaults;
    if (passesFilesOn(printer))
        return defaults;
    for (const JobOption &option : printer.fetched.defaults) {
        if (isInevitable(option, printer))
            defaults += option;
    }
    return defaults;
}

bool canBeNone(const QString &name, const OpenedPrinter &printer)
{
    return !isNamed(inevitableDefaults(printer), name);
}

} // namespace corvana
