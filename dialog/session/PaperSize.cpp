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
    if (media != kCustomChoice && ppdChoice(ppdOption(ppd, kPageSizeOption), media))
        return media;
    const QSize dimension = dimensionOfMedia(media);
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

QString customMediaName(QSize dimension)
{
    std::array<char, 128> name{};
    pwgFormatSizeName(name.data(), name.size(), "custom", nullptr, dimension.width(),
                      dimension.height(), "mm");
    return QString::fromLatin1(name.data());
}

} // namespace corvana
