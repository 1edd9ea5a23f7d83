#include "dialog/task/InstanceDraft.h"

#include <algorithm>
#include <iterator>

#include <QCoreApplication>

#include "dialog/job/PageChoice.h"
#include "dialog/presets/PresetContent.h"
#include "dialog/printers/PrinterId.h"
#include "dialog/session/CustomValue.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/OutputOrder.h"
#include "dialog/session/Summary.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/PassedOn.h"
#include "dialog/task/StartValues.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(InstanceDraft)
};

constexpr qsizetype kLongestName = 40;

// Latin letters that are not written as another one with a mark.
QString plainLetters(char32_t letter)
{
    struct Letter
    {
        char32_t letter;
        const char *plain;
    };
    static constexpr Letter kLetters[] = {
        {U'ß', "ss"}, {U'æ', "ae"}, {U'œ', "oe"}, {U'ø', "o"}, {U'đ', "d"},
        {U'ð', "d"},  {U'ł', "l"},  {U'þ', "th"}, {U'ħ', "h"}, {U'ı', "i"},
    };
    const auto found = std::find_if(std::begin(kLetters), std::end(kLetters),
                                    [&](const Letter &one) { return one.letter == letter; });
    return found == std::end(kLetters) ? QString() : QString::fromLatin1(found->plain);
}

bool isNamed(const QList<JobOption> &options, const QString &name)
{
    return std::any_of(options.cbegin(), options.cend(), [&](const JobOption &option) {
        return option.name.compare(name, Qt::CaseInsensitive) == 0;
    });
}

// What a job is asked for apart from its pages and their order.
QList<JobOption> withoutPages(QList<JobOption> attributes)
{
    attributes.removeIf([](const JobOption &one) { return isOfPageChoice(one); });
    return attributes;
}

QString sidesOf(const PpdSession &session)
{
    const QString marked = session.markedChoice(kDuplexOption);
    if (marked == kDuplexLongEdge)
        return u"two-sided-long-edge"_s;
    return marked == kDuplexShortEdge ? u"two-sided-short-edge"_s : u"one-sided"_s;
}

// Answers to the user's line for the queue without an instance. lp does not add that to instances,
// so what has no answer is better not said at all than said as it is there.
QList<JobOption> withAnswersToLine(const QList<JobOption> &ofUser,
                                   const QList<JobOption> &attributes, const OpenedPrinter &printer)
{
    QList<JobOption> answered = withAnswersTo(ofUser, attributes, printer);
    answered.removeIf([&](const JobOption &option) {
        return ofUser.contains(option) && !attributes.contains(option);
    });
    return answered;
}

QStringList addedByOthers(const QList<JobOption> &ofUser, const QList<JobOption> &options,
                          const QString &queue)
{
    QStringList added;
    for (const JobOption &option : ofUser) {
        if (!isNamed(options, option.name))
            added += Texts::tr("Some programs add “%1=%2” to it, which you have set for “%3”.")
                         .arg(option.name, option.value, queue);
    }
    return added;
}

// What the job says by a choice of the PPD, or by its number of copies, under the name under which
// the instance would be given something else.
QList<JobOption> choicesByOtherNames(const QList<JobOption> &given, const QList<JobOption> &said,
                                     const PpdSession &session)
{
    const QString custom = session.customValue(kPageSizeOption);
    const JobOption answers[] = {
        {u"copies"_s, u"1"_s},
        {u"media"_s, custom.isNull() ? session.markedChoice(kPageSizeOption) : custom},
        {u"sides"_s, sidesOf(session)},
    };
    QList<JobOption> needed;
    for (const JobOption &answer : answers) {
        if (isNamed(given, answer.name) && !isNamed(said, answer.name) && !answer.value.isEmpty())
            needed += answer;
    }
    return needed;
}

// libcups takes names that differ in their letters' size only for one.
QList<JobOption> eachNameOnce(const QList<JobOption> &options)
{
    QList<JobOption> once;
    for (const JobOption &option : options) {
        if (!isNamed(once, option.name))
            once += option;
    }
    return once;
}

bool isSecretOption(const JobOption &option, ppd_file_t *ppd)
{
    if (!ppdOption(ppd, option.name))
        return false;
    return option.value.startsWith(kCustomPrefix) ? isSecret(ppd, option.name)
                                                  : isSecretChoice(ppd, option.name, option.value);
}

// Takes out what nobody else may read.
QStringList takeSecrets(QList<JobOption> *options, const PpdSession &session)
{
    QStringList leftOut;
    options->removeIf([&](const JobOption &option) {
        const bool isTaken = isSecretOption(option, session.ppd());
        if (isTaken)
            leftOut += Texts::tr("“%1” is left out: it is a secret.")
                           .arg(optionLine(session, option.name).title);
        return isTaken;
    });
    return leftOut;
}

QStringList lostOrders(const QList<JobOption> &attributes)
{
    QStringList lost;
    for (const JobOption &one : attributes) {
        const bool isOrder = one.name == kBookletAttribute || one.name == kRepeatAttribute;
        if (isOrder && !asksForNothing(one))
            lost += Texts::tr("“%1” is left out: other programs cannot print it.")
                        .arg(textOfJobAttribute(one).title);
    }
    return lost;
}

QString problemOfSettings(const OpenedPrinter &printer, const JobSettings &settings)
{
    const Printer &chosen = printer.fetched.printer;
    if (passesFilesOn(printer, settings.attributes()))
        return Texts::tr("“%1” gets files as they are, so that no setting has an effect.")
            .arg(chosen.name);
    return jobProblems(*printer.session, printer.jobValues).join(u' ');
}

QString problemOfPrinter(const OpenedPrinter &printer, const JobSettings &settings)
{
    const Printer &chosen = printer.fetched.printer;
    return chosen.origin == PrinterOrigin::Queue
               ? problemOfSettings(printer, settings)
               : Texts::tr("Other programs know settings of queues only, and “%1” is none.")
                     .arg(chosen.name);
}

// `former`: what stands in the instance that is replaced. Whatever of that the settings do not name
// is answered as a default is: it may have been the answer to one that its queue has.
void fill(InstanceDraft *draft, const OpenedPrinter &printer, const JobSettings &settings,
          const KnownInstances &known, bool withDevice, const QList<JobOption> &former)
{
    const PpdSession &session = *printer.session;
    const QString queue = queueOfInstance(draft->name);
    const QList<JobOption> ofUser = known.queues.optionsOf(queue);
    const QList<JobOption> asked = settings.attributes();
    const QList<JobOption> attributes = withAnswersToLine(
        former,
        withAnswersToLine(ofUser, withAnswersToDefaults(withoutPages(asked), printer), printer),
        printer);
    QList<JobOption> options = jobOptions(session, printer.jobValues, attributes);
    if (!withDevice && printer.jobValues) {
        const QStringList device = printer.jobValues->deviceOptions();
        options.removeIf([&](const JobOption &option) { return device.contains(option.name); });
    }
    draft->leftOut = lostOrders(asked) + takeSecrets(&options, session);
    options += choicesByOtherNames(printer.fetched.defaults + ofUser + former, attributes, session);
    // lp tells the filters what stands there, and nothing else.
    draft->options = eachNameOnce(withOrderForFilters(options, session.ppd()));
    draft->leftOut += addedByOthers(ofUser, draft->options, queue);
    draft->problem = problemOfInstance(draft->name, draft->options);
}

// An order of sheets stands there as filters have to be told, and is said again wherever that
// differs.
QList<JobOption> withoutOrder(QList<JobOption> options)
{
    options.removeIf([](const JobOption &one) { return one.name == kOutputOrderAttribute; });
    return options;
}

// A name that nothing has yet.
QString freeName(const QString &queue, const UserQueues &queues)
{
    const QString base = queue + u"/preset"_s;
    for (int number = 1;; ++number) {
        const QString name = base + QString::number(number);
        if (!queues.hasInstance(name))
            return name;
    }
}

// One of ours is replaced by settings of the same name only. Two names for people may be one for
// other programs: "A O" and "Ä Ö". A preset is not what was kept by itself under its name.
bool mayBeReplaced(const QString &instance, const QString &settings, bool areOfPreset,
                   const KnownInstances &known)
{
    return std::any_of(known.own.keyValueBegin(), known.own.keyValueEnd(), [&](const auto &one) {
        const OwnInstance &own = one.second;
        return isSameQueue(one.first, instance) &&
               own.settings.compare(settings, Qt::CaseInsensitive) == 0 &&
               (areOfPreset ? !own.isByItself() : !own.model);
    });
}

QString problemOfName(const QString &typed, const QString &preset, const QString &queue,
                      const InstanceDraft &draft, const KnownInstances &known)
{
    const QString settings = preset.isNull() ? typed : preset;
    if (draft.name.isEmpty())
        return Texts::tr("“%1” has no letters that other programs can print to. Give it a name of "
                         "letters from a to z, such as “%2”.")
            .arg(typed, freeName(queue, known.queues).section(u'/', 1));
    if (known.queues.hasInstance(draft.name) &&
        !mayBeReplaced(draft.name, settings, !preset.isNull(), known))
        return Texts::tr("“%1” is there already, with settings of its own. Choose another name, or "
                         "remove it with “lpoptions -x %1”.")
            .arg(draft.name);
    return {};
}

} // namespace

QString instanceNameOf(const QString &name)
{
    QString plain;
    const auto letters = name.toLower().normalized(QString::NormalizationForm_KD).toUcs4();
    for (const char32_t letter : letters) {
        const bool isPlain = letter < 0x80 && (QChar::isLetterOrNumber(letter) || letter == U'_');
        if (isPlain)
            plain += QChar(char16_t(letter));
        else if (const QString others = plainLetters(letter); !others.isEmpty())
            plain += others;
        else if (!QChar::isMark(letter) && !plain.isEmpty() && !plain.endsWith(u'-'))
            plain += u'-';
    }
    plain.truncate(kLongestName);
    while (plain.endsWith(u'-'))
        plain.chop(1);
    return plain;
}

InstanceDraft nameInstance(const QString &name, const OpenedPrinter &printer,
                           const JobSettings &settings, const KnownInstances &known,
                           const QString &preset)
{
    if (const QString problem = problemOfPrinter(printer, settings); !problem.isEmpty())
        return {{}, {}, {}, problem};
    return nameInstanceOn(queueOfInstance(printer.fetched.printer.name), name, known, preset);
}

InstanceDraft nameInstanceOn(const QString &queue, const QString &name, const KnownInstances &known,
                             const QString &preset)
{
    InstanceDraft draft;
    if (const QString plain = instanceNameOf(name); !plain.isEmpty())
        draft.name = queue + u'/' + plain;
    draft.problem = problemOfName(name, preset, queue, draft, known);
    return draft;
}

InstanceDraft draftInstance(const QString &name, const OpenedPrinter &printer,
                            const JobSettings &settings, const KnownInstances &known,
                            bool withDevice, const QString &preset)
{
    InstanceDraft draft = nameInstance(name, printer, settings, known, preset);
    if (!draft.problem.isEmpty())
        return draft;
    // What the system's file says of that name is added to what is written here.
    fill(&draft, printer, settings, known, withDevice,
         withoutOrder(known.ofSystem.optionsOf(draft.name)));
    return draft;
}

InstanceDraft draftForOther(const QString &instance, const OpenedPrinter &printer,
                            const JobSettings &settings, const KnownInstances &known,
                            bool withDevice)
{
    InstanceDraft draft;
    draft.name = instance;
    draft.problem = problemOfSettings(printer, settings);
    const QList<JobOption> former = withoutOrder(known.queues.optionsOf(instance));
    if (!draft.problem.isEmpty())
        return draft;
    fill(&draft, printer, settings, known, withDevice, former);
    // What is built into one printer of a model says nothing of the next one.
    const QSet<QString> &never = neverKept(*printer.session);
    draft.options.removeIf([&](const JobOption &option) { return never.contains(option.name); });
    return draft;
}

QList<JobOption> asInstanceMeansIt(const QList<JobOption> &options, const OwnInstance &own,
                                   ppd_file_t *ppd)
{
    // Earlier versions have noted nothing of what they wrote, and wrote what was meant. What is
    // turned round twice is as it was.
    return own.written.isEmpty() || !isNamed(options, kOutputOrderAttribute)
               ? options
               : withOrderForFilters(options, ppd);
}

} // namespace corvana
