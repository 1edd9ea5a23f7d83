#include <algorithm>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

#include "dialog/session/JobAttributes.h"

namespace corvana {

using namespace Qt::StringLiterals;
using Word = AllowedValues::Word;

namespace {

bool isIn(const AllowedValues::Range &range, const QString &value)
{
    static const QRegularExpression whole(u"^[0-9]{1,6}\\z"_s);
    static const QRegularExpression decimal(u"^[0-9]{1,6}([.][0-9]{1,3})?\\z"_s);
    return (range.isWhole ? whole : decimal).match(value).hasMatch() &&
           value.toDouble() >= range.least && value.toDouble() <= range.most;
}

// What libcups takes for a truth value beside "true" and "false".
std::optional<bool> truthOf(const QString &value)
{
    const QString word = value.toLower();
    if (word == "yes"_L1 || word == "on"_L1)
        return true;
    if (word == "no"_L1 || word == "off"_L1)
        return false;
    return std::nullopt;
}

QString translated(const char *text)
{
    return QCoreApplication::translate("JobAttributes", text);
}

// Digits as they are to be typed.
QString rangeText(const AllowedValues::Range &range)
{
    const QString limits = translated(QT_TRANSLATE_NOOP("JobAttributes", "%1 to %2"))
                               .arg(QString::number(range.least), QString::number(range.most));
    return range.unit.isEmpty() ? limits : limits + u' ' + translated(range.unit.data());
}

} // namespace

const Word *AllowedValues::word(const QString &value) const
{
    const auto found = std::find_if(words.begin(), words.end(),
                                    [&](const Word &word) { return word.value == value; });
    return found == words.end() ? nullptr : &*found;
}

std::optional<QString> AllowedValues::inOneSpelling(const QString &value) const
{
    const auto isSame = [&](const Word &word) {
        // IPP writes a name of several words with hyphens.
        return value.compare(word.value, Qt::CaseInsensitive) == 0 ||
               value.compare(QString(word.meaning).replace(u' ', u'-'), Qt::CaseInsensitive) == 0;
    };
    const auto found =
        value.isEmpty() ? words.end() : std::find_if(words.begin(), words.end(), isSame);
    if (found != words.end())
        return QString(found->value);
    if (word(u"true"_s)) {
        if (const std::optional<bool> isTrue = truthOf(value))
            return QString(isTrue.value() ? "true"_L1 : "false"_L1);
    }
    const bool taken = (range && isIn(*range, value)) || (form && form->accepts(value));
    return taken ? std::optional(value) : std::nullopt;
}

QString AllowedValues::text() const
{
    QStringList parts;
    for (const Word &word : words)
        parts += word.meaning.isEmpty() ? QString(word.value)
                                        : u"%1 (%2)"_s.arg(word.value, word.meaning);
    if (range)
        parts += rangeText(*range);
    if (form) {
        const QString text = translated(form->text.data());
        parts += parts.isEmpty()
                     ? text
                     : translated(QT_TRANSLATE_NOOP("JobAttributes", "or %1")).arg(text);
    }
    return parts.join(u", "_s);
}

} // namespace corvana
