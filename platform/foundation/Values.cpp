#include "platform/foundation/Values.h"

#include <cmath>
#include <limits>

#include <QMetaType>

namespace corvana {

namespace {

constexpr qint64 kLowest = std::numeric_limits<qint64>::min();
constexpr qint64 kHighest = std::numeric_limits<qint64>::max();

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || (c.unicode() >= 0x09 && c.unicode() <= 0x0d);
}

// Only the ASCII digits: a PPD number and a job option are read by C code behind us.
int digitValue(QChar c)
{
    return c.unicode() >= u'0' && c.unicode() <= u'9' ? c.unicode() - u'0' : -1;
}

qint64 leadingInteger(const QString &text)
{
    qsizetype i = 0;
    while (i < text.size() && isBlank(text.at(i)))
        ++i;
    bool negative = false;
    if (i < text.size() && (text.at(i) == u'+' || text.at(i) == u'-')) {
        negative = text.at(i) == u'-';
        ++i;
    }
    // Accumulated downwards, since the lowest number has no positive counterpart.
    qint64 value = 0;
    for (; i < text.size(); ++i) {
        const int digit = digitValue(text.at(i));
        if (digit < 0)
            break;
        if (value < (kLowest + digit) / 10)
            return negative ? kLowest : kHighest;
        value = value * 10 - digit;
    }
    if (negative)
        return value;
    return value == kLowest ? kHighest : -value;
}

qint64 truncated(double number)
{
    if (std::isnan(number))
        return 0;
    // 2^63 is exact as a double, the highest 64-bit integer is not.
    constexpr double kTwoToThe63 = 9223372036854775808.0;
    if (number >= kTwoToThe63)
        return kHighest;
    if (number < -kTwoToThe63)
        return kLowest;
    return static_cast<qint64>(number);
}

bool isFloatingPoint(int type)
{
    return type == QMetaType::Double || type == QMetaType::Float;
}

bool isInteger(int type)
{
    switch (type) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Bool:
        return true;
    default:
        return false;
    }
}

} // namespace

qint64 integerValue(const QVariant &value)
{
    const int type = value.typeId();
    if (type == QMetaType::QString)
        return leadingInteger(value.toString());
    if (isFloatingPoint(type))
        return truncated(value.toDouble());
    if (type == QMetaType::ULongLong || type == QMetaType::ULong) {
        const quint64 number = value.toULongLong();
        return number > static_cast<quint64>(kHighest) ? kHighest : static_cast<qint64>(number);
    }
    if (isInteger(type))
        return value.toLongLong();
    return 0;
}

bool booleanValue(const QVariant &value)
{
    const int type = value.typeId();
    if (type == QMetaType::QString) {
        const QString text = value.toString();
        qsizetype i = 0;
        while (i < text.size() && isBlank(text.at(i)))
            ++i;
        if (i < text.size() && (text.at(i) == u'+' || text.at(i) == u'-'))
            ++i;
        while (i < text.size() && text.at(i) == u'0')
            ++i;
        if (i == text.size())
            return false;
        const QChar c = text.at(i);
        return c == u'Y' || c == u'y' || c == u'T' || c == u't' || digitValue(c) > 0;
    }
    if (isFloatingPoint(type)) {
        const double number = value.toDouble();
        return !std::isnan(number) && number != 0.0;
    }
    if (isInteger(type))
        return value.toLongLong() != 0;
    return false;
}

} // namespace corvana
