#include <algorithm>

#include <QFile>

#include "fuzz/support/InputFile.h"
#include "fuzz/support/Target.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/foundation/Values.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

// Keys as the panels and the dialog have them. Others do not all survive Qt's own writing.
bool areOurs(const QStringList &keys)
{
    return std::all_of(keys.cbegin(), keys.cend(), [](const QString &key) {
        return !key.isEmpty() && std::all_of(key.cbegin(), key.cend(), [](QChar c) {
            return c.unicode() < 0x80 && (c.isLetterOrNumber() || c == u'-' || c == u'_');
        });
    });
}

// What Qt writes of a value is read as another one in these cases, which mean the same to whoever
// asks for it: a list of one is that one, and an empty list is nothing.
QVariant asRead(const QVariant &value)
{
    if (value.typeId() != QMetaType::QStringList && value.typeId() != QMetaType::QVariantList)
        return value;
    const QVariantList list = value.toList();
    if (list.isEmpty())
        return {};
    return list.size() == 1 ? list.constFirst() : QVariant(list);
}

// Only texts, and lists of them: what panels and the dialog keep, and what users write. The rest has
// forms of Qt's own.
bool isOurs(const QVariant &value)
{
    if (value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList) {
        const QVariantList list = value.toList();
        return std::all_of(list.cbegin(), list.cend(),
                           [](const QVariant &one) { return one.typeId() == QMetaType::QString; });
    }
    return value.typeId() == QMetaType::QString || value.typeId() == QMetaType::QByteArray;
}

void requireSameValues(const QVariantMap &before, const QVariantMap &after)
{
    require(after.keys() == before.keys(), "what was written is read again",
            after.keys().join(u' '));
    for (auto one = before.cbegin(); one != before.cend(); ++one)
        require(!isOurs(*one) || asRead(*one) == asRead(after.value(one.key())),
                "a value that was written is read again", one.key());
}

/// Input: a file of preferences. It is read whole or not at all; what was read can be written and
/// is then read with the same values; and a file that cannot be read is kept when another one takes
/// its place.
void run(const QByteArray &input)
{
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    const QString name = u"fuzz"_s;
    const QString path = UserDefaults::fileOfDomain(name);
    const QString damaged = path + u".damaged"_s;
    QFile::remove(damaged);
    writeInput(path, input);

    const std::optional<QVariantMap> domain = defaults.persistentDomainForName(name);
    for (const QVariant &value : domain.value_or(QVariantMap())) {
        integerValue(value);
        booleanValue(value);
    }
    const QVariantMap written = domain.value_or(QVariantMap{{u"key"_s, 1}});
    require(defaults.setPersistentDomain_forName(written, name), "preferences can be written");
    require(domain || contentOf(damaged) == input, "preferences that are damaged are kept");
    const std::optional<QVariantMap> again = defaults.persistentDomainForName(name);
    require(again.has_value(), "preferences that were written can be read");
    if (domain && areOurs(domain->keys()))
        requireSameValues(*domain, *again);
}

const Target target("preferences", run);

} // namespace

} // namespace corvana::fuzz
