#include "dialog/printers/PrinterId.h"

#include <algorithm>

#include <QHash>

namespace corvana {

namespace {

QChar folded(QChar c)
{
    return c >= u'A' && c <= u'Z' ? QChar(c.unicode() - u'A' + u'a') : c;
}

} // namespace

QString foldedQueueName(QString name)
{
    const auto isCapital = [](QChar c) { return folded(c) != c; };
    if (std::any_of(name.cbegin(), name.cend(), isCapital)) // else nothing is copied
        std::transform(name.cbegin(), name.cend(), name.begin(), folded);
    return name;
}

bool isSameQueue(const QString &name, const QString &other)
{
    return std::equal(name.cbegin(), name.cend(), other.cbegin(), other.cend(),
                      [](QChar a, QChar b) { return folded(a) == folded(b); });
}

bool isCalled(const Printer &printer, const QString &name)
{
    return printer.origin == PrinterOrigin::Queue ? isSameQueue(printer.name, name)
                                                  : printer.name == name;
}

PrinterId idOf(const Printer &printer)
{
    switch (printer.origin) {
    case PrinterOrigin::Queue:
        return {printer.origin, {}, foldedQueueName(printer.name)};
    case PrinterOrigin::Device:
        return {printer.origin, printer.uri, {}};
    case PrinterOrigin::File:
        break;
    }
    return {printer.origin, printer.ppdPath, printer.name};
}

size_t qHash(const PrinterId &id, size_t seed)
{
    return qHashMulti(seed, int(id.origin), id.place, id.name);
}

} // namespace corvana
