#include "dialog/task/JobSettings.h"

#include <algorithm>

#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"

namespace corvana {

namespace {

bool isPageRanges(const JobOption &option)
{
    return option.name == kPageRangesAttribute;
}

QString valueOf(const QString &name, const QList<JobOption> &options)
{
    const auto found = std::find_if(options.cbegin(), options.cend(),
                                    [&](const JobOption &option) { return option.name == name; });
    return found == options.cend() ? QString() : found->value;
}

} // namespace

void JobSettings::askForCopies(int copies, By by)
{
    // A field that shows only what the printer makes has not been changed by showing it.
    if (by < m_by || (by == By::User && copies == this->copies()))
        return;
    m_copies = copies;
    m_by = by;
}

int JobSettings::copiesAskedFor() const
{
    const auto lock = m_locks.find(kCopiesAttribute);
    return lock == m_locks.cend() ? m_copies : lock->value.toInt();
}

int JobSettings::copies() const
{
    const int copies = copiesAskedFor();
    return m_mostCopies > 0 ? std::min(copies, m_mostCopies) : copies;
}

QString JobSettings::pageRanges() const
{
    if (const auto lock = m_locks.find(kPageRangesAttribute); lock != m_locks.cend())
        return lock->value;
    if (m_pageRanges)
        return *m_pageRanges;
    const auto asked = std::find_if(m_attributes.cbegin(), m_attributes.cend(), isPageRanges);
    return asked == m_attributes.cend() ? QString() : asked->value;
}

void JobSettings::setPageRanges(const QString &ranges)
{
    const QString compact = QString(ranges).remove(u' ');
    if (compact == pageRanges())
        return;
    // Pages that were typed and taken back leave nothing.
    m_pageRanges.reset();
    if (compact != pageRanges())
        m_pageRanges = compact;
}

bool JobSettings::hasValidPageRanges() const
{
    const QString ranges = pageRanges();
    return ranges.isEmpty() || jobAttribute(kPageRangesAttribute)->accepts(ranges);
}

void JobSettings::addAttributes(const QList<JobOption> &attributes)
{
    for (const JobOption &attribute : attributes) {
        m_attributes.removeIf([&](const JobOption &a) { return a.name == attribute.name; });
        m_attributes += attribute;
    }
}

QList<JobOption> JobSettings::attributes() const
{
    QList<JobOption> all = m_attributes;
    all.removeIf(isPageRanges);
    for (const JobOption &chosen : m_chosen) {
        const auto former = std::find_if(all.begin(), all.end(), [&](const JobOption &option) {
            return option.name == chosen.name;
        });
        if (former == all.end())
            all += chosen;
        else
            *former = chosen;
    }
    for (auto lock = m_locks.cbegin(); lock != m_locks.cend(); ++lock) {
        if (lock->kind != OptionLock::Kind::Attribute || lock.key() == kCopiesAttribute)
            continue;
        all.removeIf([&](const JobOption &option) { return option.name == lock.key(); });
        all += JobOption{lock.key(), lock->value};
    }
    all.removeIf(
        [](const JobOption &option) { return option.value.isNull() || isPageRanges(option); });
    if (const QString ranges = pageRanges(); !ranges.isEmpty())
        all += JobOption{kPageRangesAttribute, ranges};
    return all;
}

QString JobSettings::attribute(const QString &name) const
{
    return valueOf(name, attributes());
}

void JobSettings::setAttribute(const QString &name, const QString &value, const QString &usual)
{
    if (name == kPageRangesAttribute)
        return setPageRanges(value);
    m_chosen.removeIf([&](const JobOption &option) { return option.name == name; });
    const QString former = valueOf(name, m_attributes);
    const JobAttribute *known = jobAttribute(name);
    const bool isDoneAnyway =
        former.isNull() && known && value == (usual.isNull() ? QString(known->usual) : usual);
    if (value != former && !isDoneAnyway)
        m_chosen += JobOption{name, value};
}

void JobSettings::keepTakenAlong(const QString &name)
{
    m_takenAlong.removeIf([&](const TakenAlong &taken) { return taken.name == name; });
}

void JobSettings::takeAttributesOf(const JobSettings &other)
{
    m_pageRanges = pageRanges(); // also those that an attribute of others asks for
    m_attributes = other.m_attributes;
    m_chosen = other.m_chosen;
    m_takenAlong = other.m_takenAlong;
}

void JobSettings::leavePrinter()
{
    m_locks.clear(); // what this printer's users may not choose says nothing of the next one
    // Where there were none, the next printer's options may still name some.
    if (const QString ranges = pageRanges(); !ranges.isEmpty())
        m_pageRanges = ranges;
    m_attributes.clear();
    m_chosen.clear();
    m_takenAlong.clear();
    m_mostCopies = 0;
    if (m_by == By::Queue || m_by == By::UserQueues || m_by == By::Policy) {
        m_copies = 1;
        m_by = By::Program;
    }
}

} // namespace corvana
