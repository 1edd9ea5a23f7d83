#include "dialog/policy/PolicyEntry.h"

#include <algorithm>
#include <iterator>
#include <tuple>

#include <QCoreApplication>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Policy)
};

using Value = PolicyKeyForm::Value;

constexpr PolicyKeyForm kForms[] = {
    {PolicyKey::Default, "default."_L1, Value::Any},
    {PolicyKey::Lock, "lock."_L1, Value::Any},
    {PolicyKey::Hide, "hide"_L1, Value::YesNo},
    {PolicyKey::FileOutput, "file-output"_L1, Value::YesNo},
    {PolicyKey::LastUsed, "last-used"_L1, Value::YesNo},
    {PolicyKey::Presets, "presets"_L1, Value::Folder},
    {PolicyKey::Journal, "journal"_L1, Value::YesNo},
    {PolicyKey::JournalTitle, "journal-title"_L1, Value::YesNo},
    {PolicyKey::ConfirmSheets, "confirm-sheets"_L1, Value::Number},
};

// Users belong to groups by the dozen, and printers are what most decisions are about: who names
// both has thought of both.
constexpr PolicyRank kRanks[] = {
    {false, false, 0}, // [all]
    {false, true, 1},  // [group ...]
    {true, false, 2},  // [printer ...]
    {true, true, 3},   // [printer ..., group ...]
};

constexpr int kMostSheets = 1000000;

// A word of a section's line: in quotes where it would not stand as one.
QString word(const QString &text)
{
    const bool isPlain = std::none_of(text.cbegin(), text.cend(), [](QChar c) {
        return c.isSpace() || c == u',' || c == u']' || c == u'"';
    });
    return isPlain ? text : u'"' + text + u'"';
}

QString words(const QString &kind, const QStringList &texts)
{
    QString all = kind;
    for (const QString &text : texts)
        all += u' ' + word(text);
    return all;
}

} // namespace

QString PolicyOrigin::text() const
{
    return line > 0 ? u"%1:%2"_s.arg(file, QString::number(line)) : file;
}

QString PolicyProblem::text() const
{
    return origin.text() + u": "_s + what;
}

std::span<const PolicyKeyForm> policyKeyForms()
{
    return kForms;
}

const PolicyKeyForm &formOf(PolicyKey key)
{
    return *std::find_if(std::begin(kForms), std::end(kForms),
                         [&](const PolicyKeyForm &form) { return form.key == key; });
}

QString policyKeyNames()
{
    QStringList names;
    for (const PolicyKeyForm &form : kForms)
        names += form.takesKeyword() ? form.name + u"KEYWORD"_s : QString(form.name);
    return names.join(u", "_s);
}

QString problemOfValue(const PolicyKeyForm &form, const QString &value)
{
    if (value.isEmpty())
        return {}; // takes back what was said before
    switch (form.value) {
    case Value::Any:
        return {};
    case Value::YesNo:
        if (value == "yes"_L1 || value == "no"_L1)
            return {};
        return Texts::tr("“%1” is not allowed. Allowed: %2.").arg(value, u"yes, no"_s);
    case Value::Folder:
        if (value.startsWith(u'/'))
            return {};
        return Texts::tr("“%1” is not allowed. Allowed: %2.")
            .arg(value, Texts::tr("the path of a folder that begins with /"));
    case Value::Number: {
        const bool isDigits = std::all_of(value.cbegin(), value.cend(),
                                          [](QChar c) { return c >= u'0' && c <= u'9'; });
        bool isNumber = false;
        const int number = value.toInt(&isNumber);
        if (isDigits && isNumber && number <= kMostSheets)
            return {};
        return Texts::tr("“%1” is not allowed. Allowed: %2.")
            .arg(value,
                 Texts::tr("a number from %1 to %2").arg(u"0"_s, QString::number(kMostSheets)));
    }
    }
    return {};
}

QString PolicyScope::text() const
{
    QStringList parts;
    if (!printers.isEmpty())
        parts += words(u"printer"_s, printers);
    if (!groups.isEmpty())
        parts += words(u"group"_s, groups);
    return u"[%1]"_s.arg(parts.isEmpty() ? u"all"_s : parts.join(u", "_s));
}

std::span<const PolicyRank> policyRanks()
{
    return kRanks;
}

int rankOf(const PolicyScope &scope)
{
    const auto found = std::find_if(std::begin(kRanks), std::end(kRanks), [&](const PolicyRank &r) {
        return r.namesPrinters != scope.printers.isEmpty() &&
               r.namesGroups != scope.groups.isEmpty();
    });
    return found->rank;
}

QString PolicyEntry::name() const
{
    return formOf(key).name + keyword;
}

bool countsMore(const PolicyEntry &entry, const PolicyEntry &other)
{
    const auto weight = [](const PolicyEntry &one) {
        return std::make_tuple(one.file, rankOf(one.scope), one.origin.line);
    };
    return weight(entry) > weight(other);
}

} // namespace corvana
