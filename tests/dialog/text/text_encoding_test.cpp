#include <QBuffer>
#include <QTemporaryFile>
#include <QTest>

#include <iconv.h>

#include "dialog/text/TextDecoder.h"
#include "dialog/text/TextEncoding.h"
#include "dialog/text/TextSource.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr auto kJapanese =
    "印刷の設定を確認してください。用紙は「厚紙」を選び、両面で印刷します。\n"
    "カラーの調整は、次のページで行うことができます。\n";
// As older machines write lists: narrow syllables, among them such as have a mark of voice.
constexpr auto kNarrow = "ﾃｽﾄ ﾃﾞｰﾀ ﾌｧｲﾙ\nｺｰﾄﾞ ｼｮｳﾋﾝﾒｲ ｽｳﾘｮｳ ｷﾝｶﾞｸ\n001 ﾎﾞｰﾙﾍﾟﾝ 10 1,500\n";
constexpr auto kNarrowAndWide = "ｺｰﾄﾞ 商品名 数量 ｷﾝｶﾞｸ\n001 ﾎﾞｰﾙﾍﾟﾝ（黒） 10 1,500\n"
                                "002 ﾉｰﾄ 5 800\n請求書のﾃﾞｰﾀを印刷します。\n";
constexpr auto kSimplified = "请检查打印设置。选择厚纸，然后双面打印。颜色可以在下一页中进行调整，"
                             "如果打印机没有响应，请与管理员联系。\n";
constexpr auto kSpaced = "打印 设置 纸张 尺寸 双面 颜色 调整 质量 份数 方向 页面 预览 帮助 取消 "
                         "确定 保存 文档 队列 作业 服务器\n";
constexpr auto kTraditional = "請檢查列印設定。選擇厚紙，然後雙面列印。顏色可以在下一頁中進行調整，"
                              "如果印表機沒有回應，請與管理員聯絡。\n";
constexpr auto kKorean = "인쇄 설정을 확인하십시오. 두꺼운 용지를 선택하고 양면으로 인쇄합니다. "
                         "색상은 다음 페이지에서 조정할 수 있습니다.\n";
// As older newspapers and laws have it: words of Chinese origin in ideographs.
constexpr auto kMixedKorean =
    "印刷 설정을 확인하여 주십시오. 두꺼운 용지를 선택하고 兩面으로 인쇄하여야 합니다. 색상은 다음 "
    "페이지에서 調整할 수 있으며 관리자에게 問議할 수 있습니다. 그리고 이 書類는 나라에서 정한 "
    "法律에 따라 다섯 해 동안 保管하여야 합니다.\n";
// With syllables that only the larger set of Windows has.
constexpr auto kRareKorean = "펲시콜라를 마시며 똠양꿍과 햏햏을 기다리는 사람들이 인쇄를 합니다. "
                             "뷁이라는 글자도 인쇄되는지 확인하십시오. 용지를 넣으십시오.\n";
constexpr auto kGerman = "Größe prüfen: Für übergroße Blätter öffnet man die Fächer.\n";
constexpr auto kFrench = "Réglages d\u2019impression : papier épais, déjà prêt à être imprimé.\n";

// What iconv(3) makes of a text; the encodings of the system, not those of the product.
QByteArray encoded(const char *text, const char *encoding)
{
    QByteArray input(text);
    QByteArray output(input.size() * 4 + 16, '\0');
    const iconv_t converter = ::iconv_open(encoding, "UTF-8");
    char *from = input.data();
    char *to = output.data();
    auto left = size_t(input.size());
    auto room = size_t(output.size());
    const bool whole = ::iconv(converter, &from, &left, &to, &room) == 0 &&
                       ::iconv(converter, nullptr, nullptr, &to, &room) == 0;
    ::iconv_close(converter);
    return whole ? output.left(output.size() - qsizetype(room)) : QByteArray();
}

struct Writing
{
    const char *name;
    const char *text;
    const char *encoding; // it is written in
    const char *found;    // what it is recognised as
    const char *language;
    const char *user = "";
    QByteArrayView marker = "";
};
constexpr Writing kWritings[] = {
    {"ASCII", "plain text\n", "ASCII", "UTF-8", ""},
    {"UTF-8, Japanese", kJapanese, "UTF-8", "UTF-8", "ja"},
    {"UTF-8, Japanese in narrow syllables", kNarrow, "UTF-8", "UTF-8", "ja"},
    {"UTF-8, Chinese", kSimplified, "UTF-8", "UTF-8", "zh_CN"},
    {"UTF-8, Chinese, for a Japanese", "漢字\n", "UTF-8", "UTF-8", "ja", "ja"},
    {"UTF-8, Traditional Chinese", kTraditional, "UTF-8", "UTF-8", "zh_TW"},
    {"UTF-8, Traditional Chinese, for a mainlander", kTraditional, "UTF-8", "UTF-8", "zh_TW",
     "zh_CN"},
    {"UTF-8, Chinese, for a Taiwanese", kSimplified, "UTF-8", "UTF-8", "zh_CN", "zh_TW"},
    {"UTF-8, what all Chinese write alike, for a Taiwanese", "文字\n", "UTF-8", "UTF-8", "zh_TW",
     "zh_TW"},
    {"UTF-8, ideographs, for a Korean", "漢字\n", "UTF-8", "UTF-8", "ko", "ko"},
    {"UTF-8, Korean with ideographs", kMixedKorean, "UTF-8", "UTF-8", "ko"},
    {"UTF-8, Korean", kKorean, "UTF-8", "UTF-8", "ko"},
    {"UTF-8, German", kGerman, "UTF-8", "UTF-8", ""},
    {"UTF-8 with a mark", kJapanese, "UTF-8", "UTF-8", "ja", "", "\xEF\xBB\xBF"},
    {"UTF-16LE with a mark", kJapanese, "UTF-16LE", "UTF-16LE", "", "", "\xFF\xFE"},
    {"UTF-16BE with a mark", kJapanese, "UTF-16BE", "UTF-16BE", "", "", "\xFE\xFF"},
    {"UTF-32LE with a mark", kJapanese, "UTF-32LE", "UTF-32LE", "", "",
     QByteArrayView("\xFF\xFE\0\0", 4)},
    {"UTF-32BE with a mark", kJapanese, "UTF-32BE", "UTF-32BE", "", "",
     QByteArrayView("\0\0\xFE\xFF", 4)},
    {"UTF-16LE without a mark", kGerman, "UTF-16LE", "UTF-16LE", ""},
    {"UTF-16BE without a mark", kGerman, "UTF-16BE", "UTF-16BE", ""},
    {"UTF-16LE without a mark, Japanese", kJapanese, "UTF-16LE", "UTF-16LE", "ja"},
    {"UTF-16BE without a mark, Japanese", kJapanese, "UTF-16BE", "UTF-16BE", "ja"},
    {"UTF-16LE without a mark, narrow syllables", kNarrow, "UTF-16LE", "UTF-16LE", "ja"},
    {"UTF-16LE without a mark, Chinese", kSimplified, "UTF-16LE", "UTF-16LE", "zh_CN"},
    {"UTF-16BE without a mark, Chinese, for a Japanese", kTraditional, "UTF-16BE", "UTF-16BE", "ja",
     "ja"},
    {"UTF-16LE without a mark, with an ideograph that ends with zero", "一二三四五六七八九十\n一\n",
     "UTF-16LE", "UTF-16LE", "zh_CN"},
    {"UTF-16BE without a mark, Korean", kKorean, "UTF-16BE", "UTF-16BE", "ko"},
    {"UTF-16LE without a mark, Korean with ideographs", kMixedKorean, "UTF-16LE", "UTF-16LE", "ko"},
    {"Shift_JIS", kJapanese, "CP932", "CP932", "ja"},
    {"Shift_JIS, for a Chinese", kJapanese, "CP932", "CP932", "ja", "zh_CN"},
    {"Shift_JIS, narrow syllables", kNarrow, "CP932", "CP932", "ja"},
    {"Shift_JIS, narrow syllables, for a Japanese", kNarrow, "CP932", "CP932", "ja", "ja"},
    {"Shift_JIS, one narrow word", "ﾃｽﾄ\n", "CP932", "CP932", "ja", "ja"},
    {"Shift_JIS, narrow syllables and ideographs", kNarrowAndWide, "CP932", "CP932", "ja", "ja"},
    {"Shift_JIS, narrow syllables and ideographs, for anybody", kNarrowAndWide, "CP932", "CP932",
     "ja"},
    {"EUC-JP, as narrow syllables it would be some", "商品\n", "EUC-JP", "EUC-JP-MS", "ja", "ja"},
    {"GBK, as narrow syllables it would be some", "中文\n", "GBK", "GB18030", "zh_CN", "zh_CN"},
    {"EUC-JP", kJapanese, "EUC-JP", "EUC-JP-MS", "ja"},
    {"EUC-JP, for a Chinese", kJapanese, "EUC-JP", "EUC-JP-MS", "ja", "zh_CN"},
    {"ISO-2022-JP", kJapanese, "ISO-2022-JP", "ISO-2022-JP", "ja"},
    {"ISO-2022-KR", kKorean, "ISO-2022-KR", "ISO-2022-KR", "ko"},
    {"ISO-2022-CN", kSimplified, "ISO-2022-CN", "ISO-2022-CN", "zh_CN"},
    {"ISO-2022-CN, Traditional Chinese", kTraditional, "ISO-2022-CN", "ISO-2022-CN", "zh_TW"},
    {"GB18030", kSimplified, "GB18030", "GB18030", "zh_CN"},
    {"GBK", kSimplified, "GBK", "GB18030", "zh_CN"},
    {"GBK, for a Japanese", kSimplified, "GBK", "GB18030", "zh_CN", "ja"},
    {"Big5", kTraditional, "BIG5", "BIG5-HKSCS", "zh_TW"},
    {"Big5, for a Japanese", kTraditional, "BIG5", "BIG5-HKSCS", "zh_TW", "ja"},
    {"Big5, for a mainlander", kTraditional, "BIG5", "BIG5-HKSCS", "zh_TW", "zh_CN"},
    {"Big5, for a Korean", kTraditional, "BIG5", "BIG5-HKSCS", "zh_TW", "ko"},
    {"GBK, for a Taiwanese", kSimplified, "GBK", "GB18030", "zh_CN", "zh_TW"},
    {"GBK, for a Korean", kSimplified, "GBK", "GB18030", "zh_CN", "ko"},
    {"GBK with blanks between words", kSpaced, "GBK", "GB18030", "zh_CN"},
    {"GBK with blanks between words, for a Korean", kSpaced, "GBK", "GB18030", "zh_CN", "ko"},
    {"Windows' Korean", kRareKorean, "CP949", "UHC", "ko"},
    {"EUC-KR with ideographs", kMixedKorean, "EUC-KR", "UHC", "ko"},
    {"EUC-KR with ideographs, for a Korean", kMixedKorean, "EUC-KR", "UHC", "ko", "ko"},
    {"EUC-KR, for a Taiwanese", kKorean, "EUC-KR", "UHC", "ko", "zh_TW"},
    {"EUC-KR", kKorean, "EUC-KR", "UHC", "ko"},
    {"EUC-KR, for a Chinese", kKorean, "EUC-KR", "UHC", "ko", "zh_CN"},
    {"Latin-1", kGerman, "ISO-8859-1", "CP1252", ""},
    {"Windows-1252", kFrench, "CP1252", "CP1252", ""},
    {"Latin-1, for a Chinese", kGerman, "ISO-8859-1", "CP1252", "zh_CN", "zh_CN"},
    {"Latin-1, for a Japanese", kFrench, "CP1252", "CP1252", "ja", "ja"},
    {"two ideographs, for a Chinese", "打印\n", "GBK", "GB18030", "zh_CN", "zh_CN"},
    {"two ideographs, for a Taiwanese", "列印\n", "BIG5", "BIG5-HKSCS", "zh_TW", "zh_TW"},
    {"two syllables, for a Korean", "인쇄\n", "EUC-KR", "UHC", "ko", "ko"},
    {"two ideographs, for a Japanese", "印刷\n", "EUC-JP", "EUC-JP-MS", "ja", "ja"},
};

struct Beginning
{
    const char *name;
    QByteArray bytes;
    bool isText;
};
const Beginning kBeginnings[] = {
    {"a form feed first", "\fPage\n", true},
    {"an escape sequence first", "\x1B[31mred\x1B[0m\n", true},
    {"Japanese that switches its sets", "\x1B$B%F%9%H\x1B(B\n", true},
    {"UTF-16 without a mark", QByteArray("a\0b\0\n\0", 6), true},
    {"a mark of UTF-16", "\xFF\xFE\x31\x00", true},
    {"ideographs in UTF-16", encoded(kSimplified, "UTF-16BE"), true},
    {"Korean that switches its sets", encoded(kKorean, "ISO-2022-KR"), true},
    {"shifts to a set that nobody has named", "\x0E abc \x0F\n", false},
    {"a name of a set that nobody shifts to", "\x1B$)C abc \x01\n", false},
    {"a table of numbers of two bytes",
     QByteArray("\x00\x01\x00\x02\x34\x12\x78\x56\x00\x10\xFF\x7F\x00\x20\x11\x4E", 16), false},
    {"zeros", QByteArray("text\0text", 9), false},
    {"a program",
     QByteArray("\x7F"
                "ELF\x02\x01\x01\0\0\0",
                10),
     false},
    {"a bell", "\a", false},
};

} // namespace

/// What a text is written in, and its characters.
class TextEncodingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Of a file that is written anew a part would be printed as if it were all.
    void aTextThatBecomesShorterIsNotTakenForWhole_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<bool>("isWhole");
        QTest::newRow("as it was") << 1'000'000 << true;
        QTest::newRow("longer") << 1'000'010 << true;
        QTest::newRow("shorter") << 200'000 << false;
        QTest::newRow("emptied") << 0 << false;
    }
    void aTextThatBecomesShorterIsNotTakenForWhole()
    {
        QFETCH(int, size);
        QFETCH(bool, isWhole);
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(QByteArray(1'000'000, 'a'));
        QVERIFY(file.flush());
        QString problem;
        TextSource source(file.fileName(), {}, &problem);
        source.read();
        QVERIFY(file.resize(size));
        while (!source.atEnd())
            source.read();
        QCOMPARE(source.problem().isEmpty(), isWhole);
    }

    void aTextIsRecognizedAndReadBack_data() { addRows(kWritings); }
    void aTextIsRecognizedAndReadBack()
    {
        const Writing &row = currentRow(kWritings);
        const QByteArray bytes = encoded(row.text, row.encoding);
        QVERIFY(!bytes.isEmpty());
        QBuffer file;
        file.setData(row.marker.toByteArray() + bytes);
        file.open(QIODevice::ReadOnly);
        const TextEncoding encoding = recognizeEncoding(file, QString::fromLatin1(row.user));
        QCOMPARE(encoding.name, QByteArray(row.found));
        QCOMPARE(encoding.language, QString::fromLatin1(row.language));
        QCOMPARE(encoding.marker, int(row.marker.size()));
        TextDecoder decoder(encoding.name);
        QCOMPARE(QString::fromStdU32String(decoder.decode(bytes, true)),
                 QString::fromUtf8(row.text));
        QCOMPARE(decoder.broken(), 0);
    }

    void aTextBehindAMegabyteOfAsciiIsRecognized()
    {
        QBuffer file;
        file.setData(QByteArray("plain\n").repeated(200'000) + encoded(kJapanese, "CP932"));
        file.open(QIODevice::ReadOnly);
        QCOMPARE(recognizeEncoding(file, {}).name, QByteArray("CP932"));
    }

    void aDamagedPlaceDoesNotChangeWhatATextIs()
    {
        QBuffer file;
        file.setData(QByteArray(kJapanese).repeated(5) + "\xFF\xFE" + kJapanese);
        file.open(QIODevice::ReadOnly);
        QCOMPARE(recognizeEncoding(file, {}).name, QByteArray("UTF-8"));
    }

    void pieceByPieceTheSameCharactersComeOut()
    {
        for (const char *encoding : {"UTF-8", "CP932", "ISO-2022-JP", "UTF-16LE"}) {
            const QByteArray bytes = encoded(kJapanese, encoding);
            TextDecoder decoder(encoding);
            std::u32string text;
            for (const char byte : bytes)
                text += decoder.decode(QByteArray(1, byte));
            text += decoder.decode({}, true);
            QCOMPARE(QString::fromStdU32String(text), QString::fromUtf8(kJapanese));
        }
    }

    void whatIsNoCharacterIsMarkedAndTheRestStays()
    {
        TextDecoder decoder("UTF-8");
        QCOMPARE(QString::fromStdU32String(decoder.decode("a\xFFz\xE3\x81", true)),
                 u"a\uFFFDz\uFFFD\uFFFD"_s);
        QCOMPARE(decoder.broken(), 3);
    }

    void controlCharactersSayWhetherAFileIsAText_data() { addRows(kBeginnings); }
    void controlCharactersSayWhetherAFileIsAText()
    {
        const Beginning &row = currentRow(kBeginnings);
        QCOMPARE(looksLikeText(row.bytes), row.isText);
    }
};

QTEST_GUILESS_MAIN(TextEncodingTest)
#include "text_encoding_test.moc"
