#pragma once

#include <functional>

#include <QList>
#include <QString>

#include "tests/resources/SamplePpd.h"

namespace corvana::test {

/// A printer in each of the languages that its texts exist in.
struct SamplePrinter
{
    SamplePrinter(const QString &printer)
        : english(printer, "en_US"), japanese(printer, "ja_JP"), chinese(printer, "zh_CN")
    {
    }

    SamplePpd english;
    SamplePpd japanese;
    SamplePpd chinese;
};

/// Something about a printer by which the panels decide what they do.
struct Condition
{
    QString name; ///< as in conditions.tsv
    std::function<bool(const SamplePrinter &printer)> isMetBy;
};

/// All of them, in the order in which the panels come to them.
const QList<Condition> &conditions();

} // namespace corvana::test
