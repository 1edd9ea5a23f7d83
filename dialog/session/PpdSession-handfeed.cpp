#include <algorithm>

#include "dialog/session/OptionNames.h"
#include "dialog/session/PpdSession.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kOn = "True"_L1;
constexpr QLatin1StringView kOff = "False"_L1;

// What is to be marked, in this order, after `changed` was. Marking "ManualFeed" as "True" takes
// the mark of "InputSlot" away in libcups (ppdMarkOption), and marking any tray that of
// "ManualFeed"; neither comes back by itself when users change their mind.
QList<OptionChoice> besideHandFeed(const OptionChoice &changed, const QString &handFeedBefore,
                                   const QString &lastTray)
{
    if (handFeedBefore.compare(kOn, Qt::CaseInsensitive) != 0) // as libcups compares it
        return {};
    if (changed.keyword == kInputSlotOption)
        return {{kManualFeedOption, kOff}};
    // The tray takes the mark of the hand feed away, which is why that comes again.
    if (changed.keyword == kManualFeedOption && !lastTray.isEmpty())
        return {{kInputSlotOption, lastTray}, changed};
    return {};
}

} // namespace

// Answers what was marked.
QList<OptionChoice> PpdSession::followHandFeed(const QString &keyword, const QString &handFeed)
{
    QList<OptionChoice> marked = besideHandFeed({keyword, markedChoice(keyword)}, handFeed,
                                                m_printSettings.value(kInputSlotOption).toString());
    marked.removeIf([this](const OptionChoice &one) {
        return !conflictsOf(one).isEmpty() || !mark(one.keyword, one.choice);
    });
    for (const OptionChoice &one : std::as_const(marked))
        m_printSettings.setValue(one.keyword, one.choice);
    return marked;
}

// A set that takes the hand feed away and names no tray brings the last one back, as a single
// choice does.
QList<OptionChoice> PpdSession::trayBack(const QList<OptionChoice> &set,
                                         const SessionSnapshot &before)
{
    const auto isNamed = [&](QLatin1StringView keyword) {
        return std::any_of(set.cbegin(), set.cend(),
                           [&](const OptionChoice &one) { return one.keyword == keyword; });
    };
    return isNamed(kManualFeedOption) && !isNamed(kInputSlotOption)
               ? followHandFeed(kManualFeedOption, before.marks.value(kManualFeedOption))
               : QList<OptionChoice>();
}

} // namespace corvana
