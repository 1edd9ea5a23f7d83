#include "dialog/policy/PolicyLocks.h"

#include <algorithm>

#include <QCoreApplication>

#include "dialog/session/AttributeWords.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/PpdSession.h"
#include "dialog/session/RequestedOptions.h"
#include "dialog/session/SameMeaning.h"
#include "dialog/session/TwoSided.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

using Kind = OptionLock::Kind;

// Takes one entry after the other; each is locked before the next one is looked at.
class Locker
{
public:
    Locker(PpdSession &session, const PDEJobValues *jobValues)
        : m_session(session), m_jobValues(jobValues)
    {
    }

    QList<PolicyProblem> lock(const QList<PolicyEntry> &entries)
    {
        // The paper first: what else is possible may depend on it.
        QList<PolicyEntry> ordered = entries;
        std::stable_partition(ordered.begin(), ordered.end(), [](const PolicyEntry &entry) {
            return entry.keyword.compare(kPageSizeOption, Qt::CaseInsensitive) == 0 ||
                   entry.keyword.compare("media"_L1, Qt::CaseInsensitive) == 0;
        });
        for (const PolicyEntry &entry : std::as_const(ordered))
            take(entry);
        if (!m_locks.isEmpty()) {
            if (!m_locks.contains(kRawOption))
                lockRaw(m_locks.constBegin()->by);
            apply();
        }
        return m_voids;
    }

private:
    // No job that is locked has it at all.
    void lockRaw(const QString &by)
    {
        OptionLock raw;
        raw.kind = Kind::Attribute;
        raw.by = by;
        m_locks.insert(kRawOption, raw);
    }

    // It is no option of a printer: with it none is told of any. So it is locked at one value only.
    QStringList takeRaw(const PolicyEntry &entry)
    {
        const AllowedValues truths{attributewords::kTrueOrFalse};
        if (truths.inOneSpelling(entry.value) != u"false"_s)
            return {QCoreApplication::translate("Policy", "“%1” is not allowed. Allowed: %2.")
                        .arg(entry.value, u"false"_s)};
        lockRaw(entry.origin.text());
        return {};
    }

    void take(const PolicyEntry &entry)
    {
        if (entry.keyword.compare(kRawOption, Qt::CaseInsensitive) == 0) {
            const QStringList problems = takeRaw(entry);
            for (const QString &problem : problems)
                m_voids += PolicyProblem{entry.origin, problem};
            return apply();
        }
        const RequestedOptions asked({{entry.keyword, entry.value}}, m_session, m_jobValues);
        QStringList problems = asked.problems;
        if (problems.isEmpty())
            problems = lockChoices(asked.choices, entry);
        for (const JobOption &value : asked.panelValues)
            problems += lockPanelValue(value, entry);
        if (problems.isEmpty())
            problems = lockOrder(asked, entry);
        if (problems.isEmpty()) {
            for (const JobOption &attribute : asked.attributes)
                lockAttribute(attribute, entry);
            if (isOneSidedByHand(asked, entry))
                lockAttribute({kSidesByHandAttribute, u"no"_s}, entry);
            if (asked.copies) {
                const QString copies = QString::number(*asked.copies);
                add(kCopiesAttribute, {Kind::Attribute, {}, copies, {kCopiesAttribute, copies}},
                    entry);
            }
        }
        for (const QString &problem : std::as_const(problems))
            m_voids += PolicyProblem{entry.origin, problem};
        apply();
    }

    QStringList lockChoices(const QList<OptionChoice> &choices, const PolicyEntry &entry)
    {
        QList<Refusal> refusals = m_session.changeTogether(choices);
        // What nobody has locked makes room, as it would for a user who insists.
        if (!refusals.isEmpty() && choices.size() == 1) {
            QList<OptionChoice> all = m_session.wayOut(choices.constFirst());
            if (!all.isEmpty())
                refusals = m_session.changeTogether(all + choices);
        }
        QStringList problems;
        for (const Refusal &refusal : std::as_const(refusals))
            problems += conflictMessage(refusal, m_session);
        if (!problems.isEmpty())
            return problems;
        for (const OptionChoice &choice : choices)
            add(choice.keyword,
                {Kind::Choice, choice.choice, choice.choice, {choice.keyword, choice.choice}},
                entry);
        return {};
    }

    // What says the same by another name is locked along with it.
    void lockAttribute(const JobOption &attribute, const PolicyEntry &entry)
    {
        // It was taken because it leaves what is locked by another name as it is.
        if (const auto lock = m_locks.constFind(attribute.name);
            lock != m_locks.cend() && lock->value.isNull())
            return;
        add(attribute.name, {Kind::Attribute, {}, attribute.value, attribute}, entry);
        const QStringList others = otherNamesOf(attribute.name);
        for (const QString &other : others)
            add(other, {Kind::Attribute, {}, {}, attribute}, entry);
    }

    // Some PPDs have an option for the order of sheets, which filters take for the attribute.
    QStringList lockOrder(const RequestedOptions &asked, const PolicyEntry &entry)
    {
        ppd_option_t *option = ppdOption(m_session.ppd(), kOutputOrderOption);
        for (const OptionChoice &choice : asked.choices) {
            const QString order = choice.choice.toLower();
            if (choice.keyword == kOutputOrderOption &&
                jobAttribute(kOutputOrderAttribute)->accepts(order))
                lockAttribute({kOutputOrderAttribute, order}, entry);
        }
        for (const JobOption &attribute : asked.attributes) {
            for (int i = 0;
                 option && attribute.name == kOutputOrderAttribute && i < option->num_choices;
                 ++i) {
                const QString choice = ppdKeyword(option->choices[i].choice);
                if (choice.compare(attribute.value, Qt::CaseInsensitive) == 0)
                    return lockChoices({{kOutputOrderOption, choice}}, entry);
            }
        }
        return {};
    }

    // A printer that does not turn sheets over has nothing else to be locked at one side.
    bool isOneSidedByHand(const RequestedOptions &asked, const PolicyEntry &entry) const
    {
        return asked.choices.isEmpty() &&
               entry.keyword.compare("sides"_L1, Qt::CaseInsensitive) == 0 &&
               !turnsSheetsOver(m_session.ppd());
    }

    QStringList lockPanelValue(const JobOption &value, const PolicyEntry &entry)
    {
        const SessionSnapshot before = m_session.snapshot();
        const JobValueClaim claim =
            m_jobValues->takeJobOption(value, m_session.printSettings(), m_session.ppd());
        const QStringList problems = markImplied(m_session, m_jobValues);
        if (!problems.isEmpty()) {
            m_session.restore(before);
            return problems;
        }
        OptionLock lock{Kind::PanelValue, {}, claim.standsFor.value, value};
        // Such as "Custom" for a time of its own: a panel that marks another choice asks in vain.
        for (const JobOption &mark :
             m_jobValues->impliedMarks(m_session.printSettings(), m_session.ppd())) {
            if (mark.name == value.name)
                lock.choice = mark.value;
        }
        add(value.name, lock, entry);
        return {};
    }

    void add(const QString &name, OptionLock lock, const PolicyEntry &entry)
    {
        lock.by = entry.origin.text();
        m_locks.insert(name, lock);
    }

    void apply()
    {
        const PDEJobValues *jobValues = m_jobValues;
        PpdSession *session = &m_session;
        const auto companions = [jobValues, session](const OptionChoice &choice) {
            QList<OptionChoice> others;
            const QList<JobOption> all =
                jobValues ? jobValues->companions({choice.keyword, choice.choice},
                                                  session->printSettings(), session->ppd())
                          : QList<JobOption>();
            for (const JobOption &one : all)
                others += OptionChoice{one.name, one.value};
            return others;
        };
        m_session.setLocks(m_locks, companions);
    }

    PpdSession &m_session;
    const PDEJobValues *m_jobValues;
    OptionLocks m_locks;
    QList<PolicyProblem> m_voids;
};

} // namespace

QList<PolicyProblem> lockSettings(const QList<PolicyEntry> &locks, PpdSession &session,
                                  const PDEJobValues *jobValues)
{
    return locks.isEmpty() ? QList<PolicyProblem>() : Locker(session, jobValues).lock(locks);
}

QList<PolicyProblem> voidDefaults(const QList<PolicyEntry> &defaults, PpdSession &session,
                                  const PDEJobValues *jobValues)
{
    QList<PolicyProblem> voids;
    for (const PolicyEntry &entry : defaults) {
        const RequestedOptions asked({{entry.keyword, entry.value}}, session, jobValues);
        for (const QString &problem : asked.problems)
            voids += PolicyProblem{entry.origin, problem};
    }
    return voids;
}

} // namespace corvana
