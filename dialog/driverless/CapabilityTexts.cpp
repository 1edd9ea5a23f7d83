#include "dialog/driverless/CapabilityTexts.h"

#include <optional>

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

#include "dialog/driverless/CapabilityTranslations.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Row
{
    const char *key; // the attribute and its value
    const char *english;
    const char *japanese;
    const char *chinese;
};

constexpr Row kTexts[] = {
    {"sides one-sided", "Off", "オフ（片面）", "关（单面）"},
    {"sides two-sided-long-edge", "Long Edge", "長辺とじ", "长边装订"},
    {"sides two-sided-short-edge", "Short Edge", "短辺とじ", "短边装订"},

    {"print-color-mode auto", "Automatic", "自動", "自动"},
    {"print-color-mode color", "Color", "カラー", "彩色"},
    {"print-color-mode monochrome", "Black and White", "モノクロ", "黑白"},
    {"print-color-mode bi-level", "Pure Black and White", "白黒 2 値", "纯黑白"},

    {"print-quality 3", "Draft", "下書き", "草稿"},
    {"print-quality 4", "Normal", "標準", "标准"},
    {"print-quality 5", "High", "高", "高"},

    {"media iso_a3_297x420mm", "A3", "A3", "A3"},
    {"media iso_a4_210x297mm", "A4", "A4", "A4"},
    {"media iso_a5_148x210mm", "A5", "A5", "A5"},
    {"media iso_a6_105x148mm", "A6", "A6", "A6"},
    {"media jis_b4_257x364mm", "JIS B4", "B4 (JIS)", "B4 (JIS)"},
    {"media jis_b5_182x257mm", "JIS B5", "B5 (JIS)", "B5 (JIS)"},
    {"media iso_b5_176x250mm", "ISO B5", "B5 (ISO)", "B5 (ISO)"},
    {"media na_letter_8.5x11in", "US Letter", "レター", "US Letter"},
    {"media na_legal_8.5x14in", "US Legal", "リーガル", "US Legal"},
    {"media na_executive_7.25x10.5in", "Executive", "エグゼクティブ", "Executive"},
    {"media na_ledger_11x17in", "Tabloid", "タブロイド", "Tabloid"},
    {"media na_invoice_5.5x8.5in", "Statement", "ステートメント", "Statement"},
    {"media jpn_hagaki_100x148mm", "Postcard", "はがき", "明信片"},
    {"media jpn_oufuku_148x200mm", "Double Postcard", "往復はがき", "双明信片"},
    {"media na_index-3x5_3x5in", "3 x 5 in", "3 x 5 インチ", "3 x 5 英寸"},
    {"media na_index-4x6_4x6in", "4 x 6 in", "4 x 6 インチ", "4 x 6 英寸"},
    {"media na_5x7_5x7in", "5 x 7 in", "5 x 7 インチ", "5 x 7 英寸"},
    {"media na_govt-letter_8x10in", "8 x 10 in", "8 x 10 インチ", "8 x 10 英寸"},
    {"media oe_photo-l_3.5x5in", "3.5 x 5 in", "L 判", "3.5 x 5 英寸"},
    {"media na_number-10_4.125x9.5in", "Envelope #10", "封筒 #10", "信封 #10"},
    {"media na_monarch_3.875x7.5in", "Envelope Monarch", "封筒 Monarch", "信封 Monarch"},
    {"media iso_dl_110x220mm", "Envelope DL", "封筒 DL", "信封 DL"},
    {"media iso_c5_162x229mm", "Envelope C5", "封筒 C5", "信封 C5"},
    {"media iso_c6_114x162mm", "Envelope C6", "封筒 C6", "信封 C6"},
    {"media jpn_chou3_120x235mm", "Envelope Chou 3", "封筒 長形 3 号", "信封 长形 3 号"},
    {"media jpn_chou4_90x205mm", "Envelope Chou 4", "封筒 長形 4 号", "信封 长形 4 号"},

    {"media-type auto", "Automatic", "自動", "自动"},
    {"media-type stationery", "Plain Paper", "普通紙", "普通纸"},
    {"media-type stationery-lightweight", "Thin Paper", "普通紙（薄め）", "薄纸"},
    {"media-type stationery-heavyweight", "Thick Paper", "厚紙", "厚纸"},
    {"media-type stationery-coated", "Coated Paper", "コート紙", "铜版纸"},
    {"media-type stationery-inkjet", "Inkjet Paper", "インクジェット紙", "喷墨纸"},
    {"media-type stationery-letterhead", "Letterhead", "レターヘッド", "信头纸"},
    {"media-type stationery-prepunched", "Prepunched Paper", "パンチ済み用紙", "预打孔纸"},
    {"media-type stationery-preprinted", "Preprinted Paper", "印刷済み用紙", "预印纸"},
    {"media-type stationery-recycled", "Recycled Paper", "再生紙", "再生纸"},
    {"media-type stationery-bond", "Bond Paper", "ボンド紙", "证券纸"},
    {"media-type stationery-fine", "Fine Paper", "上質紙", "优质纸"},
    {"media-type cardstock", "Card Stock", "カード用紙", "卡片纸"},
    {"media-type envelope", "Envelope", "封筒", "信封"},
    {"media-type labels", "Labels", "ラベル紙", "标签纸"},
    {"media-type transparency", "Transparency", "OHP フィルム", "透明胶片"},
    {"media-type continuous", "Continuous Paper", "連続紙", "连续纸"},
    {"media-type disc", "Disc", "ディスク", "光盘"},
    {"media-type photographic", "Photo Paper", "写真用紙", "照片纸"},
    {"media-type photographic-glossy", "Glossy Photo Paper", "光沢写真用紙", "光面照片纸"},
    {"media-type photographic-high-gloss", "High Gloss Photo Paper", "高光沢写真用紙",
     "高光照片纸"},
    {"media-type photographic-matte", "Matte Photo Paper", "マット写真用紙", "哑光照片纸"},
    {"media-type photographic-satin", "Satin Photo Paper", "サテン写真用紙", "缎面照片纸"},
    {"media-type photographic-semi-gloss", "Semi-Gloss Photo Paper", "半光沢写真用紙",
     "半光照片纸"},
    {"media-type other", "Other", "その他", "其他"},

    {"media-source auto", "Automatic", "自動選択", "自动选择"},
    {"media-source main", "Main Tray", "メイントレイ", "主纸盒"},
    {"media-source alternate", "Alternate Tray", "補助トレイ", "备用纸盒"},
    {"media-source manual", "Manual Feed", "手差し", "手动送纸"},
    {"media-source by-pass-tray", "Multi-Purpose Tray", "多目的トレイ", "多功能纸盒"},
    {"media-source envelope", "Envelope Feeder", "封筒フィーダー", "信封进纸器"},
    {"media-source large-capacity", "Large Capacity Tray", "大容量トレイ", "大容量纸盒"},
    {"media-source top", "Upper Tray", "上段トレイ", "上层纸盒"},
    {"media-source middle", "Middle Tray", "中段トレイ", "中层纸盒"},
    {"media-source bottom", "Lower Tray", "下段トレイ", "下层纸盒"},
    {"media-source rear", "Rear Tray", "背面トレイ", "后部纸盒"},
    {"media-source side", "Side Tray", "側面トレイ", "侧面纸盒"},
    {"media-source photo", "Photo Tray", "写真トレイ", "照片纸盒"},
    {"media-source disc", "Disc Tray", "ディスクトレイ", "光盘托盘"},
    {"media-source main-roll", "Main Roll", "メインロール", "主卷纸"},
    {"media-source tray-%1", "Tray %1", "トレイ %1", "纸盒 %1"},
    {"media-source roll-%1", "Roll %1", "ロール %1", "卷纸 %1"},

    {"output-bin auto", "Automatic", "自動", "自动"},
    {"output-bin face-up", "Face Up", "印刷面を上", "面朝上"},
    {"output-bin face-down", "Face Down", "印刷面を下", "面朝下"},
    {"output-bin top", "Upper Bin", "上段排紙トレイ", "上层出纸盒"},
    {"output-bin middle", "Middle Bin", "中段排紙トレイ", "中层出纸盒"},
    {"output-bin bottom", "Lower Bin", "下段排紙トレイ", "下层出纸盒"},
    {"output-bin left", "Left Bin", "左側排紙トレイ", "左侧出纸盒"},
    {"output-bin right", "Right Bin", "右側排紙トレイ", "右侧出纸盒"},
    {"output-bin center", "Center Bin", "中央排紙トレイ", "中央出纸盒"},
    {"output-bin rear", "Rear Bin", "背面排紙トレイ", "后部出纸盒"},
    {"output-bin side", "Side Bin", "側面排紙トレイ", "侧面出纸盒"},
    {"output-bin large-capacity", "Large Capacity Bin", "大容量排紙トレイ", "大容量出纸盒"},
    {"output-bin my-mailbox", "My Mailbox", "マイメールボックス", "我的邮箱"},
    {"output-bin tray-%1", "Output Tray %1", "排紙トレイ %1", "出纸盒 %1"},
    {"output-bin mailbox-%1", "Mailbox %1", "メールボックス %1", "邮箱 %1"},
    {"output-bin stacker-%1", "Stacker %1", "スタッカー %1", "堆纸器 %1"},

    {"finishings none", "Off", "オフ", "关"},
    {"finishings staple", "On", "オン", "开"},
    {"finishings punch", "On", "オン", "开"},
    {"finishings fold", "On", "オン", "开"},
    {"finishings staple-top-left", "Top Left", "左上", "左上"},
    {"finishings staple-bottom-left", "Bottom Left", "左下", "左下"},
    {"finishings staple-top-right", "Top Right", "右上", "右上"},
    {"finishings staple-bottom-right", "Bottom Right", "右下", "右下"},
    {"finishings staple-dual-left", "Two, Left", "左に 2 か所", "左侧两处"},
    {"finishings staple-dual-top", "Two, Top", "上に 2 か所", "上侧两处"},
    {"finishings staple-dual-right", "Two, Right", "右に 2 か所", "右侧两处"},
    {"finishings staple-dual-bottom", "Two, Bottom", "下に 2 か所", "下侧两处"},
    {"finishings punch-dual-left", "Two Holes, Left", "左に 2 穴", "左侧两孔"},
    {"finishings punch-dual-top", "Two Holes, Top", "上に 2 穴", "上侧两孔"},
    {"finishings punch-dual-right", "Two Holes, Right", "右に 2 穴", "右侧两孔"},
    {"finishings punch-dual-bottom", "Two Holes, Bottom", "下に 2 穴", "下侧两孔"},

    {"job-sheets none", "Off", "オフ", "关"},
    {"job-sheets standard", "Standard", "標準", "标准"},
    {"job-sheets classified", "Classified", "部外秘", "内部"},
    {"job-sheets confidential", "Confidential", "社外秘", "保密"},
    {"job-sheets secret", "Secret", "秘", "秘密"},
    {"job-sheets topsecret", "Top Secret", "極秘", "绝密"},
    {"job-sheets unclassified", "Unclassified", "機密指定なし", "非保密"},

    {"title PageSize", "Paper Size", "用紙サイズ", "纸张尺寸"},
    {"title Duplex", "Two-Sided Printing", "両面印刷", "双面打印"},
    {"title ColorModel", "Color Mode", "カラーモード", "颜色模式"},
    {"title cupsPrintQuality", "Print Quality", "印刷品質", "打印质量"},
    {"title Resolution", "Resolution", "解像度", "分辨率"},
    {"title MediaType", "Paper Type", "用紙の種類", "介质类型"},
    {"title InputSlot", "Paper Source", "給紙方法", "纸张来源"},
    {"title OutputBin", "Output Bin", "排紙先", "出纸盒"},
    {"title StapleLocation", "Staple", "ステープル", "装订"},
    {"title PunchMedia", "Punch", "パンチ", "打孔"},
    {"title FoldType", "Fold", "折り", "折叠"},
    {"title JobSheets", "Cover Sheet", "表紙", "封面页"},
    {"title CustomPageSize", "Custom Size", "ユーザー定義サイズ", "自定义尺寸"},
    {"title Width", "Width", "幅", "宽度"},
    {"title Height", "Height", "高さ", "高度"},
    {"title WidthOffset", "Width Offset", "幅方向のずらし量", "宽度偏移"},
    {"title HeightOffset", "Height Offset", "高さ方向のずらし量", "高度偏移"},
    {"title Orientation", "Orientation", "給紙の向き", "送纸方向"},
    {"title PrinterDefault", "Printer's Default", "プリンターの既定値", "打印机默认值"},
    {"title borderless", "%1, Borderless", "%1（フチなし）", "%1（无边距）"},
};

// The languages that have a file of their own, in the order of kCapabilityLanguages.
constexpr auto kTables = {germanTexts,     frenchTexts, spanishTexts,           italianTexts,
                          portugueseTexts, koreanTexts, traditionalChineseTexts};

using Texts = QHash<QString, CapabilityText>;

Texts allTexts()
{
    Texts texts;
    for (const Row &row : kTexts) {
        CapabilityText &text = texts[QString::fromUtf8(row.key)];
        text = everywhere(QString::fromUtf8(row.english));
        text.translated[0] = QString::fromUtf8(row.japanese);
        text.translated[1] = QString::fromUtf8(row.chinese);
    }
    std::size_t language = 2;
    for (const auto &table : kTables) {
        for (const CapabilityTranslation &row : table()) {
            if (const auto text = texts.find(QString::fromUtf8(row.key)); text != texts.end())
                text->translated.at(language) = QString::fromUtf8(row.text);
        }
        ++language;
    }
    return texts;
}

// Nothing for a key that no table has.
std::optional<CapabilityText> textOf(const QString &key)
{
    static const Texts texts = allTexts();
    const auto found = texts.constFind(key);
    return found == texts.constEnd() ? std::nullopt : std::optional(*found);
}

// "letter-head" is a keyword, "Letter Head" and "Büttenpapier" are names.
QString nameOf(const QString &keyword)
{
    static const QRegularExpression form(u"^[a-z0-9._-]+\\z"_s);
    if (!form.match(keyword).hasMatch())
        return keyword;
    QStringList words = QString(keyword).replace(u'_', u'-').split(u'-', Qt::SkipEmptyParts);
    for (QString &word : words)
        word[0] = word[0].toUpper();
    return words.isEmpty() ? keyword : words.join(u' ');
}

// "om_dai-pa-kai_275x395mm" is "Dai Pa Kai (275 x 395 mm)"; the class says nothing to people, and
// neither does a name that only repeats the size.
QString nameOfMedia(const QString &keyword)
{
    static const QRegularExpression form(u"^[a-z]+_(.+)_([0-9.]+)x([0-9.]+)(mm|in)\\z"_s);
    const QRegularExpressionMatch match = form.match(keyword);
    if (!match.hasMatch())
        return nameOf(keyword);
    const QString size =
        u"%1 x %2 %3"_s.arg(match.captured(2), match.captured(3), match.captured(4));
    static const QRegularExpression onlySize(u"^[0-9.]+x[0-9.]+(mm|in)?\\z"_s);
    const QString name = match.captured(1);
    if (onlySize.match(name).hasMatch())
        return size;
    return u"%1 (%2)"_s.arg(nameOf(name), size);
}

} // namespace

CapabilityText capabilityText(QLatin1StringView attribute, const QString &keyword)
{
    const QString prefix = attribute + " "_L1;
    if (const auto text = textOf(prefix + keyword))
        return *text;
    static const QRegularExpression numbered(u"^([a-z-]+-)([0-9]{1,4})\\z"_s);
    if (const QRegularExpressionMatch match = numbered.match(keyword); match.hasMatch()) {
        if (const auto form = textOf(prefix + match.captured(1) + u"%1"_s))
            return withArgument(*form, everywhere(match.captured(2)));
    }
    const QString name = attribute == "media"_L1 ? nameOfMedia(keyword) : nameOf(keyword);
    return everywhere(name);
}

CapabilityText optionTitle(QLatin1StringView option)
{
    return capabilityText("title"_L1, option);
}

CapabilityText everywhere(const QString &text)
{
    CapabilityText same{text, {}};
    same.translated.fill(text);
    return same;
}

CapabilityText withArgument(const CapabilityText &form, const CapabilityText &argument)
{
    CapabilityText text{form.english.arg(argument.english), {}};
    for (std::size_t i = 0; i < text.translated.size(); ++i)
        text.translated[i] = form.translated[i].arg(argument.translated[i]);
    return text;
}

CapabilityText borderless(const CapabilityText &paper)
{
    return withArgument(optionTitle("borderless"_L1), paper);
}

} // namespace corvana
