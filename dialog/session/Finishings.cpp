#include "dialog/session/Finishings.h"

#include <iterator>

#include <cups/ipp.h>

#include <QCoreApplication>
#include <QStringList>

namespace corvana {

namespace {

using namespace Qt::StringLiterals;

struct Part
{
    QLatin1StringView keyword;
    const char *shown;
};
constexpr Part kPlaces[] = {
    {"top-left"_L1, "Top Left"},   {"bottom-left"_L1, "Bottom Left"},
    {"top-right"_L1, "Top Right"}, {"bottom-right"_L1, "Bottom Right"},
    {"left"_L1, "Left"},           {"top"_L1, "Top"},
    {"right"_L1, "Right"},         {"bottom"_L1, "Bottom"},
};
constexpr Part kNumbers[] = {{"dual-"_L1, "2×"}, {"triple-"_L1, "3×"}, {"quad-"_L1, "4×"}};

// How it is done: "dual-left" is "Left, 2×". The ways to fold are keywords of IPP in any language.
QString mannerText(QString manner)
{
    QString times;
    for (const Part &number : kNumbers) {
        if (!manner.startsWith(number.keyword))
            continue;
        manner = manner.mid(number.keyword.size());
        times = u", "_s + QString::fromUtf8(number.shown);
    }
    for (const Part &place : kPlaces) {
        if (manner == place.keyword)
            return QCoreApplication::translate("JobAttributes", place.shown) + times;
    }
    return manner + times;
}

QString oneFinishingText(const QString &finishing)
{
    bool isNumber = false;
    const int number = finishing.toInt(&isNumber);
    const QString keyword =
        isNumber ? QString::fromUtf8(ippEnumString("finishings", number)) : finishing.toLower();
    for (const AllowedValues::Word &word : kFinishingWords) {
        const QString base = QString(word.meaning).replace(u' ', u'-');
        const QString name = QCoreApplication::translate(word.context, word.shown);
        if (keyword == base)
            return name;
        if (keyword.startsWith(base + u'-'))
            return QCoreApplication::translate("Summary", "%1 (%2)")
                .arg(name, mannerText(keyword.mid(base.size() + 1)));
    }
    return isNumber ? keyword : finishing;
}

} // namespace

QString finishingText(const QString &finishings)
{
    if (finishings.isEmpty())
        return finishings;
    QStringList texts;
    const QStringList all = finishings.split(u',');
    for (const QString &one : all)
        texts += oneFinishingText(one);
    return texts.join(u", "_s);
}

} // namespace corvana
