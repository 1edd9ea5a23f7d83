#include "dialog/sheets/LayoutTraits.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include <QString>

#include "dialog/session/OptionNames.h"
#include "dialog/session/OutputOrder.h"
#include "dialog/session/PaperSize.h"
#include "dialog/session/TwoSided.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// What the layout step takes where a printer names no paper.
constexpr QSizeF kUsualPaper(612, 792);
constexpr QMarginsF kUsualMargins(18, 36, 18, 36);

std::optional<QString> valueOf(const QList<JobOption> &options, QLatin1StringView name)
{
    const auto found =
        std::find_if(options.crbegin(), options.crend(), [&](const JobOption &option) {
            return option.name.compare(name, Qt::CaseInsensitive) == 0;
        });
    return found == options.crend() ? std::nullopt : std::optional(found->value);
}

bool isTwoSided(const QList<JobOption> &options)
{
    if (isTwoSidedByHand(options))
        return true;
    const bool byOption = std::any_of(options.cbegin(), options.cend(), isTwoSidedChoice);
    return byOption || valueOf(options, "sides"_L1).value_or(QString()).startsWith("two-sided"_L1);
}

bool isTrue(ppd_file_t *ppd, const char *attribute)
{
    const ppd_attr_t *found = ppdFindAttr(ppd, attribute, nullptr);
    return found && found->value &&
           (qstricmp(found->value, "true") == 0 || qstricmp(found->value, "on") == 0 ||
            qstricmp(found->value, "yes") == 0);
}

bool canBePaper(QSizeF paper)
{
    const auto hundredths = [](double points) {
        const double value = hundredthsOfPoints(points);
        return std::isfinite(value) && std::abs(value) < 1e9 ? qRound(value) : 0;
    };
    return isPaper({hundredths(paper.width()), hundredths(paper.height())});
}

struct Sheet
{
    QSizeF paper;
    QMarginsF margins;
};

Sheet sheetOf(const ppd_size_t &size)
{
    return {{size.width, size.length},
            {size.left, size.length - size.top, size.width - size.right, size.bottom}};
}

Sheet sheetOf(ppd_file_t *ppd, const QList<JobOption> &options)
{
    const QString name = valueOf(options, kPageSizeOption).value_or(QString());
    if (const std::optional<QSizeF> custom = customPageSize(name)) {
        // Left, bottom, right, top.
        const float *margins = ppd->custom_margins;
        return {*custom, {margins[0], margins[3], margins[2], margins[1]}};
    }
    const ppd_size_t *size = ppdPageSize(ppd, name.isEmpty() ? nullptr : name.toUtf8().constData());
    return size ? sheetOf(*size) : Sheet{kUsualPaper, kUsualMargins};
}

// A margin that leaves something of the paper.
double possibleMargin(double margin, double length)
{
    return std::isfinite(margin) ? std::clamp(margin, 0.0, length / 2 - 1) : 0;
}

QByteArray number(double value)
{
    return QByteArray::number(value, 'f', 2);
}

} // namespace

LayoutTraits layoutTraits(ppd_file_t *ppd, const QList<JobOption> &options)
{
    const Sheet sheet = sheetOf(ppd, options);
    LayoutTraits traits;
    traits.paper = canBePaper(sheet.paper) ? sheet.paper : kUsualPaper;
    const double width = traits.paper.width();
    const double height = traits.paper.height();
    traits.margins = {possibleMargin(sheet.margins.left(), width),
                      possibleMargin(sheet.margins.top(), height),
                      possibleMargin(sheet.margins.right(), width),
                      possibleMargin(sheet.margins.bottom(), height)};
    traits.isTwoSided = isTwoSided(options);
    traits.isByHand = isTwoSidedByHand(options);
    // What is printed by hand is laid out in the order of reading: in which order its sides then
    // leave the printer follows from how the sheets are turned over, see HandPasses.
    traits.isTurnedRound = !traits.isByHand && isTurnedRoundOnTheWay(ppd, options);
    const bool hasOrder = !traits.isByHand || valueOf(options, kOutputOrderAttribute);
    traits.isReversed = hasOrder && printsLastPageFirst(ppd, options) != traits.isTurnedRound;
    traits.fillsSheets = isTrue(ppd, "cupsEvenDuplex");
    traits.turnsRight = ppd->landscape < 0;
    return traits;
}

QByteArray layoutPpd(const LayoutTraits &traits)
{
    const double width = traits.paper.width();
    const double height = traits.paper.height();
    const QByteArray size = number(width) + ' ' + number(height);
    const QByteArray area = number(traits.margins.left()) + ' ' + number(traits.margins.bottom()) +
                            ' ' + number(width - traits.margins.right()) + ' ' +
                            number(height - traits.margins.top());
    const QByteArray paper = kLayoutPaper;
    const QByteArray duplex{traits.isTwoSided ? kDuplexLongEdge.data() : kDuplexNone.data()};
    QByteArray ppd = "*PPD-Adobe: \"4.3\"\n"
                     "*FormatVersion: \"4.3\"\n"
                     "*FileVersion: \"1.0\"\n"
                     "*LanguageVersion: English\n"
                     "*LanguageEncoding: ISOLatin1\n"
                     "*PCFileName: \"LAYOUT.PPD\"\n"
                     "*Manufacturer: \"Layout\"\n"
                     "*Product: \"(Layout)\"\n"
                     "*PSVersion: \"(3010.000) 0\"\n"
                     "*ModelName: \"Layout\"\n"
                     "*ShortNickName: \"Layout\"\n"
                     "*NickName: \"Layout\"\n"
                     "*LanguageLevel: \"3\"\n"
                     "*ColorDevice: True\n"
                     "*DefaultColorSpace: RGB\n"
                     "*FileSystem: False\n"
                     "*Throughput: \"1\"\n"
                     "*TTRasterizer: Type42\n"
                     // No program. Where there is no such line, the layout step writes the end of a
                     // job for PostScript printers, even behind no page at all.
                     "*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"\n";
    ppd +=
        QByteArray("*LandscapeOrientation: ") + (traits.turnsRight ? "Minus90" : "Plus90") + '\n';
    ppd += QByteArray("*DefaultOutputOrder: ") + (traits.isReversed ? "Reverse" : "Normal") + '\n';
    ppd += QByteArray("*cupsEvenDuplex: ") + (traits.fillsSheets ? "True" : "False") + '\n';
    for (const char *option : {"PageSize", "PageRegion"})
        ppd += QByteArray("*OpenUI *") + option + ": PickOne\n*OrderDependency: 10 AnySetup *" +
               option + "\n*Default" + option + ": " + paper + "\n*" + option + ' ' + paper +
               ": \"\"\n*CloseUI: *" + option + '\n';
    ppd += "*DefaultImageableArea: " + paper + "\n*ImageableArea " + paper + ": \"" + area + "\"\n";
    ppd +=
        "*DefaultPaperDimension: " + paper + "\n*PaperDimension " + paper + ": \"" + size + "\"\n";
    ppd += "*OpenUI *Duplex: PickOne\n*OrderDependency: 20 AnySetup *Duplex\n*DefaultDuplex: " +
           duplex + "\n*Duplex None: \"\"\n*Duplex DuplexNoTumble: \"\"\n*CloseUI: *Duplex\n";
    return ppd;
}

} // namespace corvana
