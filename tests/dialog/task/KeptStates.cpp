#include "tests/dialog/task/KeptStates.h"

#include <QStringList>
#include <QVariant>

#include "dialog/task/SettingsHistory.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

// What one has that the other lacks or has otherwise.
template <typename Values> QStringList missing(const Values &one, const Values &other)
{
    QStringList found;
    for (auto i = one.cbegin(); i != one.cend(); ++i) {
        if (other.value(i.key()) != i.value() || !other.contains(i.key()))
            found += i.key() + u": "_s + QVariant(i.value()).toString() + u" / "_s +
                     QVariant(other.value(i.key())).toString();
    }
    return found;
}

template <typename Values> QStringList differing(const Values &is, const Values &shouldBe)
{
    return missing(is, shouldBe) + missing(shouldBe, is);
}

QString optionsOf(const JobSettings &job)
{
    QStringList options;
    for (const JobOption &option : job.attributes())
        options += option.name + u'=' + option.value;
    return options.join(u' ');
}

} // namespace

void KeptStates::add(const TaskSettings &state)
{
    m_states.resize(m_present + 1);
    m_states += state;
    ++m_present;
    if (m_states.size() <= SettingsHistory::kMostSteps + 1)
        return;
    m_states.removeFirst();
    --m_present;
}

QString differenceOf(const TaskSettings &is, const TaskSettings &shouldBe)
{
    QStringList found = differing(is.session.marks, shouldBe.session.marks) +
                        differing(is.session.customValues, shouldBe.session.customValues) +
                        differing(is.session.entries, shouldBe.session.entries);
    if (is.printer.name != shouldBe.printer.name)
        found += u"printer: %1 / %2"_s.arg(is.printer.name, shouldBe.printer.name);
    if (!(is.session.pageFormat == shouldBe.session.pageFormat))
        found += u"page format"_s;
    if (!(is.job == shouldBe.job))
        found += u"job: %1 / %2"_s.arg(optionsOf(is.job), optionsOf(shouldBe.job));
    if (is.documents != shouldBe.documents)
        found += u"documents"_s;
    return found.join(u'\n');
}

int numberOf(const char *variable, int usual)
{
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? value : usual;
}

} // namespace corvana::test
