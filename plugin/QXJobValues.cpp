#include "plugin/QXJobValues.h"

#include <algorithm>
#include <optional>

#include <QRegularExpression>

#include "colorsetting/ColorSettingKeys.h"
#include "colorsetting/EffectSet.h"
#include "panel/OptionKeywords.h"
#include "platform/foundation/Values.h"
#include "printsetting/ImproveOutput.h"
#include "printsetting/PrintSettingKeys.h"
#include "printsetting/ValueBounds.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// A custom value of a PPD option. CUPS also has a form in braces. It is read, but never written,
// because the scheduler drops a value that begins with a brace.
QString customValue(qint64 number)
{
    return u"Custom.%1"_s.arg(number);
}

// The number in "Custom.12", in "{Time=12}" (`parameter` is "Time") and, if `plainNumbers` is true,
// in "12". Any other text has none.
std::optional<qint64> numberIn(const QString &value, QLatin1StringView parameter, bool plainNumbers)
{
    static const QRegularExpression number(u"^[+-]?[0-9]{1,18}$"_s);
    QString text = value;
    const QString brace = u"{%1="_s.arg(parameter);
    if (text.startsWith(u"Custom."_s))
        text = text.mid(7);
    else if (!parameter.isEmpty() && text.startsWith(brace) && text.endsWith(u'}'))
        text = text.mid(brace.size()).chopped(1);
    else if (!plainNumbers)
        return std::nullopt;
    if (!number.match(text).hasMatch())
        return std::nullopt;
    return integerValue(text);
}

// Whether a value was meant as a number. If it is a bad number, the refusal names the range.
bool isCustomForm(const QString &value)
{
    return value.startsWith(u"Custom"_s) || value.startsWith(u'{');
}

JobValueClaim notMine()
{
    return {};
}

JobValueClaim accepted(const JobOption &standsFor)
{
    return {JobValueClaim::Outcome::Accepted, standsFor, {}};
}

JobValueClaim refused(ValueBounds bounds, const QString &form)
{
    return {JobValueClaim::Outcome::Refused,
            {},
            u"%1 … %2"_s.arg(form.arg(bounds.minimum), form.arg(bounds.maximum))};
}

// The choice of an option whose keyword is this number ("0", "-3"), or null.
const ppd_choice_t *choiceOfNumber(ppd_option_t *option, qint64 number)
{
    const ppd_choice_t *choice = ppdChoice(option, QString::number(number));
    return choice ? choice : ppdChoice(option, u"+%1"_s.arg(number));
}

bool isNumber(const ppd_choice_t &choice)
{
    bool valid = false;
    ppdKeyword(choice.choice).toLongLong(&valid);
    return valid;
}

bool manualSleepTime(const PrintSettings &settings)
{
    return settings.value(kSleepModeEntry).toString().startsWith(kCustom);
}

// Sleep time

QList<JobOption> sleepTimeOptions(const PrintSettings &settings, ppd_file_t *ppd)
{
    if (!manualSleepTime(settings) || !ppdCustomParameter(ppd, kQXSleepTime, kTimeParameter))
        return {};
    const qint64 minutes = sleepTimeBounds(ppd).clamped(integerValue(settings.value(kSleepEntry)));
    return {{kQXSleepTime, customValue(minutes)}};
}

JobValueClaim takeSleepTime(const QString &value, PrintSettings &settings, ppd_file_t *ppd)
{
    if (!ppdCustomParameter(ppd, kQXSleepTime, kTimeParameter))
        return notMine();
    if (value == kDefault && ppdChoice(ppdOption(ppd, kQXSleepTime), value)) {
        settings.setValue(kSleepModeEntry, QString(kDefault));
        settings.setValue(kSleepEntry, QString(kDefault));
        return accepted({kQXSleepTime, kDefault});
    }
    if (!isCustomForm(value))
        return notMine();
    const ValueBounds bounds = sleepTimeBounds(ppd);
    const std::optional<qint64> minutes = numberIn(value, kTimeParameter, false);
    if (!minutes || !bounds.contains(*minutes))
        return refused(bounds, u"Custom.%1"_s);
    settings.setValue(kSleepModeEntry, QString(kCustom));
    settings.setValue(kSleepEntry, QString::number(*minutes));
    return accepted({kQXSleepTime, customValue(*minutes)});
}

// Density

JobOption densityOption(qint64 density, ppd_option_t *option, ppd_file_t *ppd)
{
    const QString defaultChoice = ppdKeyword(option->defchoice);
    if (density == integerValue(defaultChoice) && ppdChoice(option, defaultChoice))
        return {kQXDensityAdjustment, defaultChoice}; // the printer's own density
    // Before the custom value: whoever asks for a choice by its name gets that choice's code.
    if (const ppd_choice_t *choice = choiceOfNumber(option, density))
        return {kQXDensityAdjustment, ppdKeyword(choice->choice)};
    if (ppdCustomParameter(ppd, kQXDensityAdjustment, kDensityParameter))
        return {kQXDensityAdjustment, customValue(density)};
    // No choice has this density. If the option's choices are numbers, the number is named all the
    // same, so that the host can refuse it. Otherwise the density goes under its own name.
    const bool numbers = std::any_of(option->choices, option->choices + option->num_choices,
                                     [](const ppd_choice_t &choice) { return isNumber(choice); });
    return {numbers ? QString(kQXDensityAdjustment) : QString(kDensityEntry),
            QString::number(density)};
}

QList<JobOption> densityOptions(const PrintSettings &settings, ppd_file_t *ppd)
{
    ppd_option_t *option = ppdOption(ppd, kQXDensityAdjustment);
    if (!option || !settings.contains(kDensityEntry))
        return {};
    const qint64 density = densityBounds(ppd).clamped(integerValue(settings.value(kDensityEntry)));
    return {densityOption(density, option, ppd)};
}

JobValueClaim takeDensity(const QString &value, PrintSettings &settings, ppd_file_t *ppd)
{
    ppd_option_t *option = ppdOption(ppd, kQXDensityAdjustment);
    if (!option)
        return notMine();
    const ValueBounds bounds = densityBounds(ppd);
    const std::optional<qint64> density = numberIn(value, kDensityParameter, true);
    if (!density || !bounds.contains(*density))
        return refused(bounds, u"%1"_s);
    settings.setValue(kDensityEntry, QString::number(*density));
    return accepted(densityOption(*density, option, ppd));
}

// Colour effects

QList<JobOption> effectOptions(const PrintSettings &settings, ppd_file_t *ppd)
{
    QList<JobOption> options;
    const EffectSet values = effectSetOf(settings);
    for (const EffectInfo &effect : kEffectTable) {
        ppd_option_t *option = ppdOption(ppd, effect.keyword);
        const qint64 value = integerValue(values.at(effect.effect));
        const bool inForce = isInForce(effect, settings, ppd);
        if (!option) {
            // An attribute of the job: a filter of the server may know what this PPD does not.
            if (inForce)
                options += JobOption{effect.keyword, QString::number(value)};
            continue;
        }
        const ppd_choice_t *choice = inForce ? choiceOfNumber(option, value) : nullptr;
        // A value for which there is no choice is named as well, so that the host can refuse it.
        QString shown = ppdKeyword(option->defchoice);
        if (inForce)
            shown = choice ? ppdKeyword(choice->choice) : QString::number(value);
        options += JobOption{effect.keyword, shown};
    }
    return options;
}

JobValueClaim takeEffect(const JobOption &offered, PrintSettings &settings, ppd_file_t *ppd)
{
    const EffectInfo *effect = effectOfKeyword(offered.name);
    if (!effect || !ppdOption(ppd, offered.name))
        return notMine();
    const ValueBounds bounds{kEffectMinimum, kEffectMaximum};
    const std::optional<qint64> value = numberIn(offered.value, {}, true);
    const ppd_choice_t *choice = value && bounds.contains(*value)
                                     ? choiceOfNumber(ppdOption(ppd, offered.name), *value)
                                     : nullptr;
    if (!choice)
        return refused(bounds, u"%1"_s);
    EffectSet values = effectSetOf(settings);
    values[effect->effect] = *value;
    settings.setValue(effectSetKey(settings), storedEffectSet(values));
    return accepted({offered.name, ppdKeyword(choice->choice)});
}

} // namespace

QList<JobOption> QXJobValues::jobOptions(const PrintSettings &settings, ppd_file_t *ppd) const
{
    return sleepTimeOptions(settings, ppd) + densityOptions(settings, ppd) +
           effectOptions(settings, ppd);
}

JobValueClaim QXJobValues::takeJobOption(const JobOption &option, PrintSettings &settings,
                                         ppd_file_t *ppd) const
{
    if (option.name == kQXSleepTime)
        return takeSleepTime(option.value, settings, ppd);
    if (option.name == kQXDensityAdjustment)
        return takeDensity(option.value, settings, ppd);
    return takeEffect(option, settings, ppd);
}

QList<JobOption> QXJobValues::impliedMarks(const PrintSettings &settings, ppd_file_t *ppd) const
{
    const QString mode = settings.value(kSleepModeEntry).toString();
    ppd_option_t *option = ppdOption(ppd, kQXSleepTime);
    const bool manual = mode.startsWith(kCustom);
    const ppd_choice_t *marked = ppdMarkedChoice(ppd, kQXSleepTime);
    // Every choice but "Custom" leaves the sleep time to the printer, as "Default" does.
    if (!manual && marked && ppdKeyword(marked->choice) != kCustom)
        return {};
    const QString implied = manual ? kCustom : kDefault;
    if (mode.isNull() || !ppdChoice(option, implied))
        return {};
    return {{kQXSleepTime, implied}};
}

QList<JobOption> QXJobValues::companions(const JobOption &marked, const PrintSettings &settings,
                                         ppd_file_t *) const
{
    if (marked.name == kQXImproveOutput) {
        for (const ImproveOutputForm &form : kImproveOutputForms) {
            if (marked.value == form.single)
                return {{kQXFixIntensity, form.fixIntensity},
                        {kQXLessPaperCurl, form.lessPaperCurl}};
        }
        return {};
    }
    if (marked.name != kQXFixIntensity && marked.name != kQXLessPaperCurl)
        return {};
    if (marked.value == kChoiceOn)
        return {{kQXImproveOutput, marked.name}};
    // One of the two options is off now. The single option follows only if it stood for that one.
    const bool stoodForIt = settings.value(kQXImproveOutput) == QVariant(marked.name);
    return stoodForIt ? QList<JobOption>{{kQXImproveOutput, kChoiceOff}} : QList<JobOption>();
}

} // namespace corvana
