#include "dialog/session/PpdSession.h"

#include <QLoggingCategory>

#include "dialog/session/ChoiceCodes.h"
#include "dialog/session/OptionNames.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcSession, "corvana.dialog.session", QtWarningMsg)

namespace {

// The keyword under which a choice stands in the PPD: all custom values are the one choice
// "Custom".
QString choiceKeyword(const QString &choice)
{
    return choice.startsWith(kCustomPrefix) ? QString(kCustomChoice) : choice;
}

} // namespace

std::unique_ptr<PpdSession> PpdSession::open(const QString &ppdPath, QString *error)
{
    PpdFile ppd = openPpdFile(ppdPath, error);
    return ppd ? std::make_unique<PpdSession>(std::move(ppd)) : nullptr;
}

PpdSession::PpdSession(PpdFile ppd) : m_ppd(std::move(ppd))
{
    m_printSettings.setDuplexHandler([this](PMDuplexMode mode) { setDuplex(mode); });
    m_printSettings.setChangeHandler([this] { Q_EMIT entriesChanged(); });
    recordMarks();
    updatePageFormat();
}

QList<ppd_option_t *> PpdSession::options() const
{
    QList<ppd_option_t *> found;
    for (int g = 0; g < m_ppd->num_groups; ++g) {
        const ppd_group_t &group = m_ppd->groups[g];
        for (int o = 0; o < group.num_options; ++o) {
            if (QLatin1StringView(group.options[o].keyword) != kPageRegionOption &&
                isOption(m_ppd.get(), group.options[o]))
                found += &group.options[o];
        }
    }
    return found;
}

QString PpdSession::markedChoice(const QString &keyword) const
{
    if (m_allMarks) {
        if (const auto known = m_allMarks->constFind(keyword); known != m_allMarks->cend())
            return known.value();
    }
    const ppd_choice_t *marked = ppdMarkedChoice(m_ppd.get(), keyword);
    return marked ? ppdKeyword(marked->choice) : QString();
}

bool PpdSession::differsFromDefault(const QString &keyword) const
{
    ppd_option_t *option = ppdOption(m_ppd.get(), keyword);
    const QString byDefault = option ? ppdKeyword(option->defchoice) : QString();
    if (!ppdChoice(option, choiceKeyword(byDefault)))
        return false;
    const QString custom = customValue(keyword);
    return (custom.isNull() ? markedChoice(keyword) : custom) != byDefault;
}

ChangeResult PpdSession::change(const QString &keyword, const QString &choice, Origin origin)
{
    using Outcome = ChangeResult::Outcome;
    ppd_option_t *option = ppdOption(m_ppd.get(), keyword);
    // The page region follows the page size; marked itself, it would take the mark of the size
    // away.
    if (!option || keyword == kPageRegionOption) {
        qCWarning(lcSession) << "refused: the printer has no option" << keyword << "for" << choice;
        return {Outcome::UnknownOption, {}};
    }
    if (!ppdChoice(option, choiceKeyword(choice))) {
        qCWarning(lcSession) << "refused: the option" << keyword << "has no choice" << choice;
        return {Outcome::UnknownChoice, {}};
    }
    const QString before = markedChoice(keyword);
    const QString handFeedBefore = markedChoice(kManualFeedOption);
    const bool custom = choice.startsWith(kCustomPrefix);
    const bool same =
        before == choiceKeyword(choice) && (!custom || customValue(keyword) == choice);
    if (!same) {
        const OptionChoice proposed{keyword, choice};
        if (const OptionChoice locked = lockInTheWay(proposed); !locked.keyword.isNull())
            return refuse({Outcome::Locked, {}, locked}, proposed, origin);
        const QList<OptionChoice> conflicting = conflictsOf(proposed);
        if (!conflicting.isEmpty())
            return refuse({Outcome::Conflict, conflicting}, proposed, origin);
        const SessionSnapshot former = m_locks.isEmpty() ? SessionSnapshot() : snapshot();
        if (!mark(keyword, choice))
            return refuse({Outcome::NotMarked, {}}, proposed, origin);
        // libcups takes the marks of some options away with those of others.
        if (const OptionChoice moved = movedLock(); !moved.keyword.isNull()) {
            restore(former);
            return refuse({Outcome::Locked, {}, moved}, proposed, origin);
        }
    }
    m_refusals.remove(keyword);
    m_printSettings.setValue(keyword, choiceKeyword(choice));
    if (!same) {
        const bool otherPaper = keyword == kPageSizeOption && updatePageFormat();
        const QList<OptionChoice> followed = followHandFeed(keyword, handFeedBefore);
        Q_EMIT changed(keyword, choiceKeyword(choice), origin);
        for (const OptionChoice &one : followed)
            Q_EMIT changed(one.keyword, one.choice, Origin::Dialog);
        if (otherPaper)
            Q_EMIT paperChanged();
    }
    return {};
}

QList<Refusal> PpdSession::changeTogether(const QList<OptionChoice> &choices)
{
    const SessionSnapshot before = snapshot();
    const QList<Refusal> refusals = markTogether(choices);
    if (!refusals.isEmpty()) {
        restore(before);
        return refusals;
    }
    QList<OptionChoice> changes = inOrder(choices);
    changes += trayBack(changes, before);
    recordMarks();
    const bool otherPaper = updatePageFormat();
    for (const OptionChoice &choice : std::as_const(changes)) {
        if (before.marks.value(choice.keyword) != markedChoice(choice.keyword) ||
            before.customValues.value(choice.keyword) != customValue(choice.keyword))
            Q_EMIT changed(choice.keyword, markedChoice(choice.keyword), Origin::Dialog);
    }
    if (otherPaper)
        Q_EMIT paperChanged();
    return {};
}

SessionSnapshot PpdSession::snapshot() const
{
    SessionSnapshot snapshot;
    snapshot.marks = allMarks();
    snapshot.customValues = m_customValues;
    snapshot.entries = m_printSettings.entries();
    snapshot.pageFormat = m_pageFormat;
    return snapshot;
}

QMap<QString, QString> PpdSession::allMarks() const
{
    if (!m_allMarks) {
        m_allMarks.emplace();
        for (const ppd_option_t *option : options()) {
            const QString keyword = ppdKeyword(option->keyword);
            if (const QString marked = markedChoice(keyword); !marked.isNull())
                m_allMarks->insert(keyword, marked);
        }
    }
    return *m_allMarks;
}

void PpdSession::restore(const SessionSnapshot &snapshot)
{
    for (const ppd_option_t *option : options()) {
        if (const QString keyword = ppdKeyword(option->keyword); !snapshot.marks.contains(keyword))
            unmark(keyword);
    }
    for (auto marked = snapshot.marks.cbegin(); marked != snapshot.marks.cend(); ++marked)
        mark(marked.key(), snapshot.customValues.value(marked.key(), marked.value()));
    m_customValues = snapshot.customValues;
    m_printSettings.setEntries(snapshot.entries);
    bool otherPaper = m_pageFormat != snapshot.pageFormat;
    m_pageFormat = snapshot.pageFormat;
    m_refusals.clear();
    if (!m_locks.isEmpty()) {
        markLocks();
        otherPaper = updatePageFormat() || otherPaper;
    }
    if (otherPaper)
        Q_EMIT paperChanged();
}

void PpdSession::setLocks(const OptionLocks &locks, const Companions &companions)
{
    m_locks = locks;
    m_companions = companions;
    markLocks();
}

// Whatever was restored: it may be the state of a time before the lock.
void PpdSession::markLocks()
{
    for (auto lock = m_locks.cbegin(); lock != m_locks.cend(); ++lock) {
        const QString now = markedChoice(lock.key());
        if (lock->choice.isNull() || (now.isNull() && lock->isKeptBy(lock.key(), now)))
            continue;
        const QString handFeed = markedChoice(kManualFeedOption);
        mark(lock.key(), lock->choice);
        m_printSettings.setValue(lock.key(), choiceKeyword(lock->choice));
        if (lock.key() == kManualFeedOption)
            followHandFeed(lock.key(), handFeed);
    }
}

// The lock that a choice does not keep to, itself or by another form of it.
OptionChoice PpdSession::lockInTheWay(const OptionChoice &proposed) const
{
    if (m_locks.isEmpty())
        return {};
    QList<OptionChoice> all{proposed};
    if (m_companions)
        all += m_companions(proposed);
    for (const OptionChoice &one : std::as_const(all)) {
        if (const auto lock = m_locks.find(one.keyword);
            lock != m_locks.cend() && !lock->allows(one.choice))
            return {one.keyword, lock->choice};
    }
    return {};
}

OptionChoice PpdSession::movedLock() const
{
    for (auto lock = m_locks.cbegin(); lock != m_locks.cend(); ++lock) {
        const QString custom = customValue(lock.key());
        if (!lock->isKeptBy(lock.key(), custom.isNull() ? markedChoice(lock.key()) : custom))
            return {lock.key(), lock->choice};
    }
    return {};
}

// What a panel proposes in vain, somebody has to be told.
ChangeResult PpdSession::refuse(const ChangeResult &result, const OptionChoice &proposed,
                                Origin origin)
{
    qCInfo(lcSession) << "refused:" << proposed.keyword << choiceKeyword(proposed.choice)
                      << "because of"
                      << (result.conflicting.isEmpty() ? result.locked.keyword
                                                       : result.conflicting.first().keyword);
    if (origin == Origin::Panel) {
        m_refusals.insert(proposed.keyword, Refusal{proposed, result.conflicting, result.locked});
        Q_EMIT refused();
    }
    return result;
}

QList<Refusal> PpdSession::takeRefusals()
{
    return std::exchange(m_refusals, {}).values();
}

// Whether libcups marked what was meant. Of a PPD with a broken option it marks nothing, and says
// nothing. A choice of which the printer would never hear is not marked either; what is marked
// already may stay.
bool PpdSession::mark(const QString &keyword, const QString &choice)
{
    if (markedChoice(keyword) != choice && !canBeSent(m_ppd.get(), keyword, choice))
        return false;
    // Of an option that allows several choices at once libcups would keep the former ones, too.
    if (const ppd_option_t *option = ppdOption(m_ppd.get(), keyword);
        option && option->ui == PPD_UI_PICKMANY)
        unmark(keyword);
    m_allMarks.reset(); // libcups takes marks of other options away with some
    ppdMarkOption(m_ppd.get(), keyword.toLatin1().constData(), choice.toLatin1().constData());
    if (markedChoice(keyword) != choiceKeyword(choice))
        return false;
    if (choice.startsWith(kCustomPrefix))
        m_customValues.insert(keyword, choice);
    else if (choice != kCustomChoice)
        m_customValues.remove(keyword);
    return true;
}

void PpdSession::unmark(const QString &keyword)
{
    if (ppd_choice_t *marked = ppdMarkedChoice(m_ppd.get(), keyword)) {
        m_allMarks.reset();
        marked->marked = 0;
        cupsArrayRemove(m_ppd->marked, marked);
    }
}

void PpdSession::recordMarks()
{
    for (const ppd_option_t *option : options()) {
        const QString keyword = ppdKeyword(option->keyword);
        if (const QString marked = markedChoice(keyword); !marked.isNull())
            m_printSettings.setValue(keyword, marked);
    }
}

bool PpdSession::updatePageFormat()
{
    PageFormat format;
    const QString marked = markedChoice(kPageSizeOption);
    const QString size =
        customValue(kPageSizeOption).isNull() ? marked : customValue(kPageSizeOption);
    if (const ppd_size_t *found = ppdPageSize(m_ppd.get(), size.toLatin1().constData())) {
        format.paper.name = marked;
        if (marked != kCustomChoice)
            format.paper.ppdPaperName = marked;
        format.paper.width = static_cast<double>(found->width);
        format.paper.height = static_cast<double>(found->length);
    }
    return std::exchange(m_pageFormat, format) != format;
}

void PpdSession::setDuplex(PMDuplexMode mode)
{
    const ppd_option_t *duplex = ppdOption(m_ppd.get(), kDuplexOption);
    if (!duplex)
        return;
    QString choice = ppdKeyword(duplex->defchoice);
    if (mode == kPMDuplexNoTumble)
        choice = kDuplexLongEdge;
    else if (mode == kPMDuplexTumble)
        choice = kDuplexShortEdge;
    change(kDuplexOption, choice, Origin::Panel);
}

} // namespace corvana
