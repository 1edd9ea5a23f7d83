#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/TestPaths.h"

#include <stdexcept>

#include <QFile>
#include <QTemporaryDir>

namespace corvana::test {

QString samplePpdPath()
{
    return corvana::test::sourceFile(QStringLiteral("resources/ppd/corvana-cl5.ppd"));
}

namespace {

std::unique_ptr<PpdSession> opened(const QString &path)
{
    QString error;
    auto session = PpdSession::open(path, &error);
    if (!session)
        throw std::runtime_error(error.toStdString());
    return session;
}

} // namespace

std::unique_ptr<PpdSession> sampleSession()
{
    return opened(samplePpdPath());
}

std::unique_ptr<PpdSession> sessionFor(const QByteArray &ppdText)
{
    // A session keeps nothing of the file but what it has read.
    const QTemporaryDir folder;
    return opened(writeFile(folder.filePath(QStringLiteral("test.ppd")), ppdText));
}

PpdBuilder smallPrinter()
{
    return PpdBuilder()
        .option("Duplex", "Two-Sided", "None",
                {{"None", "Off"}, {"DuplexNoTumble", "Long Edge"}, {"DuplexTumble", "Short Edge"}})
        .option("Tray", "Tray", "Upper", {{"Upper", "Upper Tray"}, {"Lower", "Lower Tray"}})
        .option("Media", "Media", "Plain",
                {{"Plain", "Plain Paper"}, {"Card", "Card"}, {"Film", "Film"}})
        .onOff("Boost", "Boost")
        .option("QXOutput", "Output To", "Printer", {{"Printer", "Printer"}, {"FAX", "Fax"}})
        .option(
            "AP_ColorMatchingMode", "Colors Matched By", "AP_VendorColorMatching",
            {{"AP_ApplicationColorMatching", "Application"}, {"AP_VendorColorMatching", "Printer"}})
        .constraint("Media", "Card", "Duplex", "DuplexNoTumble")
        .constraint("Media", "Card", "Duplex", "DuplexTumble")
        .constraint("Media", "Film", "Tray", "Lower")
        .constraint("PageSize", "Postcard", "Tray", "Lower");
}

namespace {

struct Translated
{
    const char *keyword;
    const char *english;
    const char *japanese;
    const char *chinese;
};

void translate(PpdBuilder &ppd, const QByteArray &option, const Translated &text)
{
    ppd.line("*ja." + option + ' ' + text.keyword + '/' + text.japanese + ": \"\"");
    ppd.line("*zh_CN." + option + ' ' + text.keyword + '/' + text.chinese + ": \"\"");
}

void addOption(PpdBuilder &ppd, const Translated &option, const QList<Translated> &choices)
{
    QList<PpdChoice> english;
    for (const Translated &choice : choices)
        english += PpdChoice(choice.keyword, choice.english);
    ppd.option(option.keyword, option.english, choices.constFirst().keyword, english);
    translate(ppd, "Translation", option);
    for (const Translated &choice : choices)
        translate(ppd, option.keyword, choice);
}

void openGroup(PpdBuilder &ppd, const Translated &group)
{
    ppd.line(QByteArray("*OpenGroup: ") + group.keyword + '/' + group.english);
    translate(ppd, "Translation", group);
}

} // namespace

PpdBuilder officePrinter()
{
    const Translated off{"OFF", "Off", "しない", "关"};
    const Translated on{"ON", "On", "する", "开"};
    PpdBuilder ppd;
    ppd.line("*cupsLanguages: \"ja zh_CN\"");
    addOption(ppd, {"Duplex", "Two-Sided", "両面印刷", "双面打印"},
              {{"None", "Off", "しない", "关"}, {"DuplexNoTumble", "Long Edge", "長辺", "长边"}});
    addOption(ppd, {"Banner", "Separator Page", "区切りページ", "分隔页"}, {off, on});
    openGroup(ppd, {"Paper", "Paper", "用紙", "纸张"});
    addOption(ppd, {"Tray", "Paper Source", "給紙方法", "纸张来源"},
              {{"Auto", "Automatic", "自動", "自动"},
               {"Upper", "Upper Tray", "上段トレイ", "上层纸盘"},
               {"Lower", "Lower Tray", "下段トレイ", "下层纸盘"}});
    addOption(ppd, {"Media", "Paper Type", "用紙の種類", "纸张类型"},
              {{"Plain", "Plain Paper", "普通紙", "普通纸"},
               {"Card", "Card", "厚紙", "卡片纸"},
               {"Film", "Transparency", "OHPフィルム", "透明胶片"},
               {"Creme", "Crème Letterhead", "クリーム色レターヘッド", "米色信头纸"}});
    ppd.line("*CloseGroup: Paper");
    openGroup(ppd, {"Finish", "Finishing", "仕上げ", "装订"});
    addOption(ppd, {"Punch", "Punching", "パンチ", "打孔"}, {off, on});
    ppd.line("*OpenSubGroup: Stapling/Stapling");
    addOption(ppd, {"Staple", "Staple", "ステープル", "装订针"},
              {off, {"Left", "Top Left", "左上", "左上"}, {"Right", "Top Right", "右上", "右上"}});
    ppd.line("*CloseSubGroup: Stapling");
    addOption(ppd,
              {"Shift", "Offset of the Page Image on Both Axes When Stapled", "画像の位置をずらす",
               "图像偏移"},
              {off});
    ppd.line("*CloseGroup: Finish");
    openGroup(ppd, {"Security", "Job and Security", "ジョブとセキュリティ", "作业与安全"});
    addOption(ppd, {"Sleep", "Sleep Time", "スリープ時間", "睡眠时间"},
              {{"Printer", "Printer's Setting", "プリンターの設定", "打印机设置"},
               {"5", "5 Minutes", "5 分", "5 分钟"}});
    addOption(ppd, {"Pin", "PIN Code", "暗証番号", "密码"}, {off});
    addOption(ppd, {"Mark", "Watermark", "透かし文字", "水印"}, {off});
    ppd.line("*CloseGroup: Security");
    ppd.customInteger("Sleep", "Time", "Minutes", 1, 99);
    ppd.line("*CustomPin True/Custom: \"\"").line("*ParamCustomPin Code/Code: 1 passcode 4 8");
    ppd.line("*CustomMark True/Custom: \"\"").line("*ParamCustomMark Text/Text: 1 string 1 20");
    ppd.line("*CustomShift True/Custom: \"\"")
        .line("*ParamCustomShift X/X: 1 int 0 9")
        .line("*ParamCustomShift Y/Y: 2 int 0 9");
    for (const char *custom : {"Sleep", "Pin", "Mark", "Shift"}) {
        const QByteArray keyword(custom);
        ppd.line("*ja.Custom" + keyword + " True/数値を指定: \"\"");
        ppd.line("*zh_CN.Custom" + keyword + " True/自定义: \"\"");
    }
    openGroup(ppd, {"Trays", "Trays Installed", "装着されたトレイ", "已安装的纸盘"});
    for (int tray = 1; tray <= 14; ++tray) {
        const QByteArray number = QByteArray::number(tray);
        const QByteArray keyword = "Tray" + number;
        const QByteArray english = "Tray " + number;
        const QByteArray japanese = "トレイ " + number;
        const QByteArray chinese = "纸盘 " + number;
        addOption(
            ppd,
            {keyword.constData(), english.constData(), japanese.constData(), chinese.constData()},
            {off, on});
    }
    ppd.line("*CloseGroup: Trays");
    return ppd.constraint("Media", "Film", "Staple", "Left")
        .constraint("Media", "Film", "Staple", "Right");
}

QString writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw std::runtime_error((path + QStringLiteral(": ") + file.errorString()).toStdString());
    return path;
}

} // namespace corvana::test
