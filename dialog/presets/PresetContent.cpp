#include "dialog/presets/PresetContent.h"

#include <algorithm>
#include <iterator>
#include <span>

#include "dialog/session/CustomValue.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/JobTicket.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/PpdSession.h"
#include "dialog/session/Summary.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Pages belong to a document. One that is printed without every second page, because some former
// job was, would be lost.
constexpr QLatin1StringView kOfDocuments[] = {kPageRangesAttribute, "page-set"_L1};

// Wishes for the job at hand.
constexpr QLatin1StringView kForOneJob[] = {"mirror"_L1, kJobHoldUntilAttribute, "job-priority"_L1,
                                            "job-sheets"_L1};

// The most characters of a model's name.
constexpr qsizetype kLongestModel = 200;

bool isAmong(const QString &name, std::span<const QLatin1StringView> names)
{
    return std::any_of(names.begin(), names.end(),
                       [&](QLatin1StringView one) { return one == name; });
}

bool hasDigit(const ppd_choice_t &choice)
{
    const QLatin1StringView keyword(choice.choice);
    return std::any_of(keyword.begin(), keyword.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// Whether an option holds a password or a PIN, or a part of one.
bool holdsSecret(ppd_file_t *ppd, const QString &keyword)
{
    const ppd_option_t *option = ppdOption(ppd, keyword);
    if (!option)
        return false;
    ppd_choice_t *const end = option->choices + option->num_choices;
    const ppd_choice_t *digit = std::find_if(option->choices, end, hasDigit);
    const bool hasCustom = ppdHasCustomOption(ppd, keyword);
    if (digit == end && !hasCustom)
        return false;
    return (hasCustom && isSecret(ppd, keyword)) ||
           (digit != end && isSecretChoice(ppd, keyword, ppdKeyword(digit->choice)));
}

bool setsUpDevice(const QStringList &options, const QStringList &device)
{
    return std::any_of(options.cbegin(), options.cend(),
                       [&](const QString &option) { return device.contains(option); });
}

// See withoutRequest().
template <class Map> void takeBack(Map *now, const Map &before, const Map &started)
{
    for (auto one = started.cbegin(); one != started.cend(); ++one) {
        const auto former = before.constFind(one.key());
        const bool isRequested = former == before.cend() || *former != *one;
        if (!isRequested || !now->contains(one.key()) || now->value(one.key()) != *one)
            continue;
        if (former == before.cend())
            now->remove(one.key());
        else
            now->insert(one.key(), *former);
    }
    for (auto one = before.cbegin(); one != before.cend(); ++one) {
        if (!started.contains(one.key()) && !now->contains(one.key()))
            now->insert(one.key(), *one);
    }
}

} // namespace

// To find them means to look into all words of all options, and their printer is asked again and
// again.
const QSet<QString> &neverKept(const PpdSession &session)
{
    struct Known
    {
        const ppd_file_t *ppd = nullptr;
        QStringList options{};
        QSet<QString> never{};
    };
    thread_local Known known;
    QStringList options;
    for (const ppd_option_t *option : session.options())
        options += ppdKeyword(option->keyword) + u' ' + QString::fromUtf8(option->text) + u' ' +
                   QString::number(option->num_choices);
    // Another PPD may lie where a former one was.
    if (known.ppd == session.ppd() && known.options == options)
        return known.never;
    known = {session.ppd(), options, {}};
    for (const QString &keyword : installedPartKeywords(session))
        known.never += keyword;
    for (const ppd_option_t *option : session.options()) {
        if (const QString keyword = ppdKeyword(option->keyword);
            holdsSecret(session.ppd(), keyword))
            known.never += keyword;
    }
    return known.never;
}

QList<JobOption> PresetContent::jobOptions() const
{
    QList<JobOption> all;
    for (auto option = options.cbegin(); option != options.cend(); ++option)
        all += JobOption{option.key(), option.value()};
    return all;
}

PresetContent contentOf(const PpdSession &session, const PDEJobValues *jobValues,
                        const QList<JobOption> &attributes, bool withDevice)
{
    PresetContent content;
    const QSet<QString> &never = neverKept(session);
    const QList<JobOption> options = jobOptions(session, jobValues, {});
    for (const JobOption &option : options) {
        // What the plug-in names although the PPD does not is said by its entries.
        if (ppdOption(session.ppd(), option.name) && !never.contains(option.name))
            content.options.insert(option.name, option.value);
    }
    const QList<PanelEntry> entries = panelEntries(session, jobValues);
    for (const PanelEntry &entry : entries)
        content.entries.insert(entry.key, entry.value);
    for (const JobOption &attribute : attributes) {
        if (isKept(attribute.name) && !attribute.value.isNull())
            content.attributes.insert(attribute.name, attribute.value);
    }
    return withDevice ? content : withoutDevice(content, session, jobValues);
}

PresetContent withoutDevice(PresetContent content, const PpdSession &session,
                            const PDEJobValues *jobValues)
{
    const QStringList device = jobValues ? jobValues->deviceOptions() : QStringList();
    const QList<PanelEntry> entries = panelEntries(session, jobValues);
    for (const PanelEntry &entry : entries) {
        if (setsUpDevice(entry.options, device))
            content.entries.remove(entry.key);
    }
    for (const QString &option : device)
        content.options.remove(option);
    return content;
}

QList<PanelEntry> panelEntries(const PpdSession &session, const PDEJobValues *jobValues)
{
    return jobValues ? jobValues->entries(session.printSettings(), session.ppd())
                     : QList<PanelEntry>();
}

PresetContent changesIn(const PresetContent &now, const PresetContent &before)
{
    PresetContent changes = now;
    for (auto option = before.options.cbegin(); option != before.options.cend(); ++option) {
        if (changes.options.value(option.key()) == option.value())
            changes.options.remove(option.key());
    }
    for (auto entry = before.entries.cbegin(); entry != before.entries.cend(); ++entry) {
        if (changes.entries.value(entry.key()) == entry.value())
            changes.entries.remove(entry.key());
    }
    for (auto one = before.attributes.cbegin(); one != before.attributes.cend(); ++one) {
        if (!now.attributes.contains(one.key()))
            changes.attributes.insert(one.key(), QString());
        else if (now.attributes.value(one.key()) == one.value())
            changes.attributes.remove(one.key());
    }
    return changes;
}

PresetContent withChanges(PresetContent content, const PresetContent &changes)
{
    content.options.insert(changes.options);
    content.entries.insert(changes.entries);
    content.attributes.insert(changes.attributes);
    return content;
}

PresetContent withoutRequest(PresetContent now, const PresetContent &before,
                             const PresetContent &started)
{
    takeBack(&now.options, before.options, started.options);
    takeBack(&now.entries, before.entries, started.entries);
    takeBack(&now.attributes, before.attributes, started.attributes);
    return now;
}

PresetContent withoutWishesForOneJob(PresetContent content)
{
    content.attributes.removeIf(
        [](const QMap<QString, QString>::iterator &one) { return isAmong(one.key(), kForOneJob); });
    return content;
}

QStringList namesIn(const PresetContent &content, const QList<PanelEntry> &entries)
{
    QStringList names = content.options.keys() + content.attributes.keys();
    for (const PanelEntry &entry : entries) {
        // An entry may hold the values of several options. Where one of them is there by itself, it
        // alone is what the entry was changed for.
        const bool isSaid =
            std::any_of(entry.options.cbegin(), entry.options.cend(),
                        [&](const QString &option) { return content.options.contains(option); });
        if (content.entries.contains(entry.key) && !isSaid)
            names += entry.options;
    }
    names.removeDuplicates();
    return names;
}

bool isKept(const QString &attribute)
{
    return jobAttribute(attribute) && !isAmong(attribute, kOfDocuments);
}

QString modelOf(ppd_file_t *ppd)
{
    for (const char *name : {ppd->modelname, ppd->nickname, ppd->product}) {
        QString text = name ? ppdText(name).value_or(QString::fromLatin1(name)) : QString();
        text.removeIf([](QChar c) { return !c.isSurrogate() && !showsItself(c.unicode()); });
        text = text.simplified().left(kLongestModel);
        if (!text.isEmpty())
            return text;
    }
    return u"?"_s;
}

} // namespace corvana
