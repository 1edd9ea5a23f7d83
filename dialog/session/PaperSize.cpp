#include "dialog/session/PaperSize.h"

#include <algorithm>
#include <array>

#include <cups/pwg.h>

#include <QRegularExpression>

#include "dialog/session/OptionNames.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Units: hundredths of a millimetre.
constexpr int kSmallest = 100;
constexpr int kLargest = 5'000'000;

struct Unit
{
    QLatin1StringView name;
    double points;
};
constexpr Unit kUnits[] = {
    {""_L1, 1.0},
    {"pt"_L1, 1.0},
    {"in"_L1, kPointsPerInch},
    {"ft"_L1, 12 * kPointsPerInch},
    {"mm"_L1, kPointsPerMillimetre},
    {"cm"_L1, 10 * kPointsPerMillimetre},
    {"m"_L1, 1000 * kPointsPerMillimetre},
};

// "custom_mine_10x15cm". libcups takes every unit but inches for millimetres.
QSize dimensionOfCustomName(const QString &name)
{
    const QString text = name.section(u'_', -1);
    const std::optional<QSizeF> points =
        text.endsWith(u'm') || text.endsWith(u'n') || text.endsWith(u't') ? sizeWithUnit(text)
                                                                          : std::nullopt;
    constexpr double kLongest = 3e6; // more would be no number of hundredths of a millimetre
    if (!points || points->width() > kLongest || points->height() > kLongest)
        return {};
    return {qRound(hundredthsOfPoints(points->width())),
            qRound(hundredthsOfPoints(points->height()))};
}

// What printers call the smallest and the largest paper that they take.
bool isLimit(const QString &media)
{
    static const QRegularExpression limit(u"^(custom|roll)_(min|max)_"_s);
    return limit.match(media).hasMatch();
}

bool isSame(const QString &keyword, const QString &media)
{
    return keyword.compare(media, Qt::CaseInsensitive) == 0;
}

} // namespace

std::optional<QSizeF> sizeWithUnit(const QString &text)
{
    static const QRegularExpression form(
        u"^([0-9]{1,9}(?:\\.[0-9]+)?)x([0-9]{1,9}(?:\\.[0-9]+)?)([a-z]*)\\z"_s);
    const QRegularExpressionMatch match = form.match(text);
    const auto unit = std::find_if(std::begin(kUnits), std::end(kUnits),
                                   [&](const Unit &one) { return one.name == match.captured(3); });
    if (!match.hasMatch() || unit == std::end(kUnits))
        return std::nullopt;
    return QSizeF(match.captured(1).toDouble() * unit->points,
                  match.captured(2).toDouble() * unit->points);
}

std::optional<QSizeF> customPageSize(const QString &choice)
{
    return choice.startsWith(kCustomPrefix) ? sizeWithUnit(choice.mid(kCustomPrefix.size()))
                                            : std::nullopt;
}

bool isPaper(QSize dimension)
{
    const auto sane = [](int length) { return length >= kSmallest && length <= kLargest; };
    return sane(dimension.width()) && sane(dimension.height());
}

QSize dimensionOfMedia(const QString &name)
{
    if (name.startsWith("custom_"_L1)) {
        const QSize size = dimensionOfCustomName(name);
        return isPaper(size) ? size : QSize();
    }
    const QByteArray bytes = name.toUtf8();
    const pwg_media_t *media = pwgMediaForPWG(bytes.constData());
    if (!media)
        media = pwgMediaForLegacy(bytes.constData());
    const QSize size = media ? QSize(media->width, media->length) : QSize();
    return isPaper(size) ? size : QSize();
}

QString pageSizeOfMedia(ppd_file_t *ppd, const QString &media)
{
    // The entry "Custom" is no size of its own: it has the one that was asked for last.
    ppd_option_t *sizes = ppdOption(ppd, kPageSizeOption);
    if (isSame(media, kCustomChoice))
        return {};
    if (ppdChoice(sizes, media))
        return media;
    for (int i = 0; sizes && i < sizes->num_choices; ++i) {
        if (const QString keyword = ppdKeyword(sizes->choices[i].choice); isSame(keyword, media))
            return keyword;
    }
    const QString name = media.toLower();
    const QSize dimension = isLimit(name) ? QSize() : dimensionOfMedia(name);
    if (dimension.isEmpty())
        return {};
    constexpr double kTolerance = 5.0; // points, as CUPS matches media sizes
    for (int i = 0; i < ppd->num_sizes; ++i) {
        const ppd_size_t &size = ppd->sizes[i];
        if (kCustomChoice == QLatin1StringView(size.name))
            continue;
        if (qAbs(static_cast<double>(size.width) - pointsOfHundredths(dimension.width())) <=
                kTolerance &&
            qAbs(static_cast<double>(size.length) - pointsOfHundredths(dimension.height())) <=
                kTolerance)
            return ppdKeyword(size.name);
    }
    return {};
}

QString customChoiceOfMedia(const QString &media)
{
    const QString name = media.toLower();
    std::optional<QSizeF> points;
    if (name.startsWith(QString(kCustomPrefix).toLower())) {
        points = sizeWithUnit(name.mid(kCustomPrefix.size()));
    } else if (const QSize size = isLimit(name) ? QSize() : dimensionOfMedia(name);
               !size.isEmpty()) {
        points = QSizeF(pointsOfHundredths(size.width()), pointsOfHundredths(size.height()));
    }
    if (!points)
        return {};
    return u"%1%2x%3"_s.arg(kCustomPrefix, QString::number(points->width(), 'f', 6),
                            QString::number(points->height(), 'f', 6));
}

QString customMediaName(QSize dimension)
{
    std::array<char, 128> name{};
    pwgFormatSizeName(name.data(), name.size(), "custom", nullptr, dimension.width(),
                      dimension.height(), "mm");
    return QString::fromLatin1(name.data());
}

} // namespace corvana
