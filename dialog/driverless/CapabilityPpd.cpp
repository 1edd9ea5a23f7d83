#include "dialog/driverless/CapabilityPpd.h"

#include <algorithm>

#include <QLatin1StringView>

#include "dialog/driverless/CapabilityOptions.h"
#include "dialog/session/PaperSize.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// What libcups keeps of texts; it would cut within a character. Units: bytes.
constexpr qsizetype kLongestText = 80;
constexpr qsizetype kLongestName = 31;
constexpr qsizetype kLongestNickname = 200;

// As many whole characters as fit.
QByteArray cut(const QString &text, qsizetype bytes)
{
    QString whole = text;
    while (whole.toUtf8().size() > bytes)
        whole.chop(whole.size() > 1 && whole.at(whole.size() - 1).isLowSurrogate() ? 2 : 1);
    return whole.trimmed().toUtf8();
}

// A text that stands between a slash and a colon, where "<" begins hexadecimal digits.
QByteArray optionText(QString text)
{
    text.replace(u": "_s, u" - "_s).replace(u':', u'-');
    text.replace(u'<', u'(').replace(u'>', u')').replace(u'"', u'\'');
    return cut(text, kLongestText);
}

bool isAscii(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 0x80; });
}

// What ASCII has of a text: letters lose their accents, and others are left out.
QString ascii(const QString &text)
{
    QString plain;
    const QString parts = text.normalized(QString::NormalizationForm_KD);
    for (const QChar c : parts) {
        if (c.unicode() >= 0x20 && c.unicode() < 0x7f)
            plain += c;
        else if (!c.isMark())
            plain += u' ';
    }
    return plain.simplified();
}

QByteArray quoted(QString text, qsizetype bytes)
{
    text.replace(u'"', u'\'').replace(u'<', u'(').replace(u'>', u')');
    return '"' + cut(text, bytes) + '"';
}

// The characters that a model's name may have.
QString plainName(const QString &name)
{
    QString plain;
    for (const QChar c : name) {
        const bool allowed = c.unicode() < 0x80 && (c.isLetterOrNumber() || " ./-+"_L1.contains(c));
        plain += allowed ? c : QChar(u' ');
    }
    plain = plain.simplified();
    return plain.isEmpty() ? u"Printer"_s : plain;
}

QByteArray points(int hundredthsOfMillimetre)
{
    return QByteArray::number(pointsOfHundredths(hundredthsOfMillimetre), 'f', 2);
}

// How a PPD begins. The encoding is that of the main texts; translations are always UTF-8.
constexpr char kStart[] = "*PPD-Adobe: \"4.3\"\n"
                          "*FormatVersion: \"4.3\"\n"
                          "*FileVersion: \"1.0\"\n"
                          "*LanguageVersion: English\n"
                          "*LanguageEncoding: ISOLatin1\n";

/// Collects the lines of a PPD, and the translations that follow at its end.
class Writer
{
public:
    void line(const QByteArray &line) { m_lines += line + '\n'; }

    // "*KEYWORD CHOICE/TEXT" and, in each language, its text. `value` is what follows the colon.
    void textLine(const QByteArray &keyword, const CapabilityText &text, const QByteArray &value)
    {
        QByteArray shown = optionText(ascii(text.english));
        if (shown.isEmpty())
            shown = keyword.mid(keyword.lastIndexOf(' ') + 1);
        line('*' + keyword + '/' + shown + ": " + value);
        translate(keyword, text);
    }
    void translate(const QByteArray &keyword, const CapabilityText &text)
    {
        m_texts += Text{keyword, text};
        m_ascii = m_ascii && isAscii(text.english);
    }
    // One option as libcups takes it: `keyword` may be another one than the option's own.
    void option(const CapabilityOption &option, const QByteArray &keyword)
    {
        line("*OpenUI *" + keyword + '/' + optionText(option.title.english) + ": PickOne");
        translate("Translation " + keyword, option.title);
        line("*OrderDependency: 10 AnySetup *" + keyword);
        line("*Default" + keyword + ": " + option.choices.at(option.usual).keyword);
        for (const CapabilityChoice &choice : option.choices)
            textLine(keyword + ' ' + choice.keyword, choice.text, '"' + choice.code + '"');
        line("*CloseUI: *" + keyword);
        if (option.attribute != "finishings")
            return;
        // By these lines libcups finds the choice of "finishings=4".
        for (const CapabilityChoice &choice : option.choices) {
            if (!choice.value.isEmpty())
                line("*cupsIPPFinishings " + choice.value.toLatin1() + '/' + choice.keyword +
                     ": \"*" + keyword + ' ' + choice.keyword + '"');
        }
    }
    // The main texts of a PPD are ASCII: where that is not enough, they are translated to English.
    QByteArray text() const
    {
        QByteArray languages;
        QByteArray lines;
        const auto add = [&](const QByteArray &name, const auto &textOf) {
            languages += (languages.isEmpty() ? "" : " ") + name;
            for (const Text &one : m_texts)
                lines += '*' + name + '.' + one.keyword + '/' + optionText(textOf(one.text)) +
                         ": \"\"\n";
        };
        if (!m_ascii)
            add("en", [](const CapabilityText &text) { return text.english; });
        for (std::size_t i = 0; i < kCapabilityLanguages.size(); ++i)
            add(kCapabilityLanguages.at(i),
                [i](const CapabilityText &text) { return text.translated.at(i); });
        return kStart + ("*cupsLanguages: \"" + languages + "\"\n") + m_lines + lines;
    }

private:
    struct Text
    {
        QByteArray keyword;
        CapabilityText text;
    };
    QByteArray m_lines;
    QList<Text> m_texts;
    bool m_ascii = true;
};

bool takes(const PrinterCapabilities &printer, QLatin1StringView format)
{
    return printer.documentFormats.contains(format, Qt::CaseInsensitive);
}

// The last step of the way of a document, and whether copies have to be made on that way: a file
// has no job attribute that asks for them.
void writeFilter(Writer &ppd, const PrinterCapabilities &printer)
{
    QByteArray filter = "\"application/vnd.cups-postscript application/postscript 0 -\"";
    bool manualCopies = true;
    if (takes(printer, "application/pdf"_L1))
        filter = "\"application/vnd.cups-pdf application/pdf 0 -\"";
    else if (takes(printer, "image/pwg-raster"_L1))
        filter = "\"image/pwg-raster image/pwg-raster 0 -\"";
    else if (takes(printer, "image/urf"_L1))
        filter = "\"image/urf image/urf 0 -\"";
    else
        manualCopies = false;
    ppd.line("*cupsFilter2: " + filter);
    ppd.line(QByteArray("*cupsManualCopies: ") + (manualCopies ? "True" : "False"));
}

void writeHeader(Writer &ppd, const PrinterCapabilities &printer)
{
    const QString name =
        printer.makeAndModel.isEmpty() ? u"Generic Printer"_s : printer.makeAndModel;
    const QString model = plainName(name);
    const QString nickname = ascii(name).isEmpty() ? model : ascii(name);
    const bool color = printer.colorModes.isEmpty() || printer.colorModes.contains("color"_L1) ||
                       printer.colorModes.contains("auto"_L1);
    ppd.line("*PCFileName: \"PRINTER.PPD\"");
    ppd.line("*Manufacturer: \"Generic\"");
    ppd.line("*Product: \"(" + cut(model, kLongestNickname) + ")\"");
    ppd.line("*ModelName: " + quoted(model, kLongestNickname));
    ppd.line("*ShortNickName: " + quoted(model, kLongestName));
    ppd.line("*NickName: " + quoted(nickname, kLongestNickname));
    ppd.line("*PSVersion: \"(3010.000) 0\"");
    ppd.line("*LanguageLevel: \"3\"");
    ppd.line(QByteArray("*ColorDevice: ") + (color ? "True" : "False"));
    ppd.line(QByteArray("*DefaultColorSpace: ") + (color ? "RGB" : "Gray"));
    ppd.line("*FileSystem: False");
    ppd.line("*LandscapeOrientation: Plus90");
    ppd.line("*TTRasterizer: Type42");
    ppd.line("*cupsVersion: \"2.4\"");
    writeFilter(ppd, printer);
}

// The measures of the papers.
void writePapers(Writer &ppd, const CapabilityOption &sizes)
{
    const QByteArray usual = sizes.choices.at(sizes.usual).keyword;
    ppd.line("*DefaultImageableArea: " + usual);
    ppd.line("*DefaultPaperDimension: " + usual);
    for (const CapabilityChoice &size : sizes.choices) {
        const QByteArray name = size.keyword + '/' + optionText(ascii(size.text.english));
        const MediaMargins &m = size.margins;
        ppd.line("*ImageableArea " + name + ": \"" + points(m.left) + ' ' + points(m.bottom) + ' ' +
                 points(size.dimension.width() - m.right) + ' ' +
                 points(size.dimension.height() - m.top) + '"');
        ppd.line("*PaperDimension " + name + ": \"" + points(size.dimension.width()) + ' ' +
                 points(size.dimension.height()) + '"');
    }
}

// Papers of any size. A printer that says nothing of papers gets what is usual: up to A0.
void writeCustomPapers(Writer &ppd, const PrinterCapabilities &printer)
{
    const bool unknown = printer.sizes.isEmpty() && !printer.customSizes;
    if (!unknown && !printer.customSizes)
        return;
    const MediaSizeRange range =
        printer.customSizes.value_or(MediaSizeRange{{2540, 2540}, {84100, 118900}});
    const MediaMargins &m = printer.margins;
    ppd.line("*VariablePaperSize: True");
    ppd.line("*MaxMediaWidth: \"" + points(range.maximum.width()) + '"');
    ppd.line("*MaxMediaHeight: \"" + points(range.maximum.height()) + '"');
    ppd.line("*HWMargins: " + points(m.left) + ' ' + points(m.bottom) + ' ' + points(m.right) +
             ' ' + points(m.top));
    ppd.line("*NonUIOrderDependency: 10 AnySetup *CustomPageSize");
    const auto title = [](const char *keyword) { return optionTitle(QLatin1StringView(keyword)); };
    ppd.textLine("CustomPageSize True", title("CustomPageSize"),
                 "\"pop pop pop <</PageSize[5 -2 roll]/ImagingBBox null>>setpagedevice\"");
    const auto parameter = [&](const char *name, const QByteArray &value) {
        ppd.textLine(QByteArray("ParamCustomPageSize ") + name, title(name), value);
    };
    parameter("Width",
              "1 points " + points(range.minimum.width()) + ' ' + points(range.maximum.width()));
    parameter("Height",
              "2 points " + points(range.minimum.height()) + ' ' + points(range.maximum.height()));
    parameter("WidthOffset", "3 points 0 0");
    parameter("HeightOffset", "4 points 0 0");
    parameter("Orientation", "5 int 0 0");
}

} // namespace

QByteArray ppdOfCapabilities(const PrinterCapabilities &printer)
{
    const QList<CapabilityOption> options = capabilityOptions(printer);
    Writer ppd;
    writeHeader(ppd, printer);
    for (const CapabilityOption &option : options) {
        ppd.option(option, option.keyword);
        if (option.keyword == "PageSize") {
            ppd.option(option, "PageRegion");
            writePapers(ppd, option);
            writeCustomPapers(ppd, printer);
        }
    }
    ppd.line("*DefaultFont: Courier");
    ppd.line("*Font Courier: Standard \"(002.004S)\" Standard ROM");
    return ppd.text();
}

} // namespace corvana
