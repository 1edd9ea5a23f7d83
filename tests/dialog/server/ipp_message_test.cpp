#include <array>

#include <QTest>

#include "dialog/server/IppMessage.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

/// A message with one attribute of each kind, each of which a server may send in place of another.
IppMessage oneOfEachKind()
{
    IppMessage message(ippNew());
    ipp_t *const ipp = message.get();
    ippAddString(ipp, IPP_TAG_PRINTER, IPP_TAG_TEXT, "text", nullptr, "Hall");
    ippAddString(ipp, IPP_TAG_PRINTER, IPP_TAG_NAME, "name", nullptr, "office");
    ippAddString(ipp, IPP_TAG_PRINTER, IPP_TAG_KEYWORD, "keyword", nullptr, "none");
    ippAddString(ipp, IPP_TAG_PRINTER, IPP_TAG_URI, "uri", nullptr, "ipp://print/");
    ippAddString(ipp, IPP_TAG_PRINTER, IPP_TAG_TEXTLANG, "textlang", "de", "Flur");
    ippAddInteger(ipp, IPP_TAG_PRINTER, IPP_TAG_INTEGER, "integer", 7);
    ippAddInteger(ipp, IPP_TAG_PRINTER, IPP_TAG_ENUM, "enum", 5);
    ippAddBoolean(ipp, IPP_TAG_PRINTER, "boolean", 1);
    ippAddRange(ipp, IPP_TAG_PRINTER, "range", 1, 9);
    ippAddResolution(ipp, IPP_TAG_PRINTER, "resolution", IPP_RES_PER_INCH, 600, 300);
    ippAddOctetString(ipp, IPP_TAG_PRINTER, "octets", "abc", 3);
    const std::array<ipp_uchar_t, 11> date{};
    ippAddDate(ipp, IPP_TAG_PRINTER, "date", date.data());
    ippAddOutOfBand(ipp, IPP_TAG_PRINTER, IPP_TAG_NOVALUE, "novalue");
    ippAddOutOfBand(ipp, IPP_TAG_PRINTER, IPP_TAG_UNKNOWN, "unknown");
    const IppMessage collection(ippNew());
    ippAddInteger(collection.get(), IPP_TAG_ZERO, IPP_TAG_INTEGER, "member", 1);
    ippAddCollection(ipp, IPP_TAG_PRINTER, "collection", collection.get());
    return message;
}

} // namespace

class IppMessageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachReaderTakesOnlyItsOwnKind_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("number");
        QTest::addColumn<bool>("truthWithoutTrue");
        const auto row = [](const char *name, const char *text, int number, bool truth) {
            QTest::newRow(name) << QString::fromUtf8(text) << number << truth;
        };
        row("text", "Hall", -3, false);
        row("name", "office", -3, false);
        row("keyword", "none", -3, false);
        row("uri", "ipp://print/", -3, false);
        row("textlang", "Flur", -3, false);
        row("integer", "", 7, false);
        row("enum", "", 5, false);
        row("boolean", "", -3, true);
        for (const char *other : {"range", "resolution", "octets", "date", "novalue", "unknown",
                                  "collection", "missing"})
            row(other, "", -3, false);
    }
    void eachReaderTakesOnlyItsOwnKind()
    {
        QFETCH(QString, text);
        QFETCH(int, number);
        QFETCH(bool, truthWithoutTrue);
        const IppMessage message = oneOfEachKind();
        ipp_attribute_t *attribute =
            ippFindAttribute(message.get(), QTest::currentDataTag(), IPP_TAG_ZERO);
        QCOMPARE(ippText(attribute), text);
        QCOMPARE(ippTexts(attribute), text.isEmpty() ? QStringList() : QStringList{text});
        QCOMPARE(ippNumber(attribute, -3), number);
        QCOMPARE(ippTruth(attribute, false), truthWithoutTrue);
        // The given default, unless it is a truth.
        const bool isTruth = qstrcmp(QTest::currentDataTag(), "boolean") == 0;
        QCOMPARE(ippTruth(attribute, true), true);
        if (isTruth) {
            ippSetBoolean(message.get(), &attribute, 0, 0);
            QCOMPARE(ippTruth(attribute, true), false);
        }
    }

    void severalTextsAreReadByTheirIndex()
    {
        const IppMessage message(ippNew());
        addIppKeywords(message.get(), IPP_TAG_PRINTER, "reasons", {"first", "second"});
        ipp_attribute_t *attribute = ippFindAttribute(message.get(), "reasons", IPP_TAG_ZERO);
        QCOMPARE(ippText(attribute, 1), u"second"_s);
        QCOMPARE(ippText(attribute, 2), QString());
        QCOMPARE(ippTexts(attribute), (QStringList{u"first"_s, u"second"_s}));
    }

    void whatOthersSayIsOneHarmlessLine_data()
    {
        QTest::addColumn<QByteArray>("said");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *name, const QByteArray &said, const QString &shown) {
            QTest::newRow(name) << said << shown;
        };
        row("plain", "Hall, 2nd floor", u"Hall, 2nd floor"_s);
        row("Japanese", "会議室", u"会議室"_s);
        row("blanks around it", "  Hall \n", u"Hall"_s);
        row("lines", "Hall\r\nsecond\nthird", u"Hall  second third"_s);
        row("escape sequences", "\x1b[31mred\x1b[0m", u"[31mred [0m"_s);
        row("bell and delete",
            "a\x07"
            "b\x7f"
            "c",
            u"a b c"_s);
        row("second set of controls",
            "a\xc2\x9b"
            "31m",
            u"a 31m"_s);
        // It would turn what stands behind it round: "gpj.exe" looks like an image.
        row("turned text",
            "a\xe2\x80\xae"
            "gpj",
            u"a gpj"_s);
        row("isolates",
            "a\xe2\x81\xa6"
            "b\xe2\x81\xa9",
            u"a b"_s);
        row("invisible",
            "a\xe2\x80\x8b"
            "b\xef\xbb\xbf",
            u"a b"_s);
        row("separators",
            "a\xe2\x80\xa8"
            "b\xe2\x80\xa9"
            "c",
            u"a b c"_s);
        row("no UTF-8",
            "a\xff"
            "b",
            u"a\ufffdb"_s);
        row("nothing", "", QString());
        row("only controls", "\n\t\r", QString());
    }
    void whatOthersSayIsOneHarmlessLine()
    {
        QFETCH(QByteArray, said);
        QFETCH(QString, shown);
        QCOMPARE(shownText(said.constData()), shown);
    }

    void aTextThatIsMissingIsEmpty() { QVERIFY(shownText(nullptr).isEmpty()); }

    void aLongTextIsCutBetweenCharacters_data()
    {
        QTest::addColumn<int>("ahead");
        QTest::newRow("whole pairs") << 0;
        QTest::newRow("the cut meets a pair") << 1;
    }
    void aLongTextIsCutBetweenCharacters()
    {
        QFETCH(int, ahead);
        const QByteArray text =
            QByteArray(ahead, 'a') + QByteArray("\xf0\x9f\x96\xa8").repeated(5000);
        const QString shown = shownText(text.constData());
        QVERIFY(shown.size() <= 500);
        QVERIFY(shown.size() >= 498);
        QVERIFY(shown.isValidUtf16());
    }

    void queuesAreNamedByUrisThatServersUnderstand_data()
    {
        QTest::addColumn<QString>("queue");
        QTest::addColumn<bool>("isClass");
        QTest::addColumn<QString>("uri");
        QTest::newRow("plain") << u"office"_s << false << u"ipp://localhost/printers/office"_s;
        QTest::newRow("class") << u"all"_s << true << u"ipp://localhost/classes/all"_s;
        QTest::newRow("blank") << u"a b"_s << false << u"ipp://localhost/printers/a%20b"_s;
        QTest::newRow("percent") << u"a%41"_s << false << u"ipp://localhost/printers/a%2541"_s;
        QTest::newRow("umlaut") << u"Büro"_s << false << u"ipp://localhost/printers/B%C3%BCro"_s;
    }
    void queuesAreNamedByUrisThatServersUnderstand()
    {
        QFETCH(QString, queue);
        QFETCH(bool, isClass);
        QFETCH(QString, uri);
        QCOMPARE(queueUri(queue, isClass), uri);
    }

    void aRequestSaysWhoAsksAndAboutWhat()
    {
        const IppMessage message =
            newIppRequest(IPP_OP_GET_PRINTER_ATTRIBUTES, u"ipp://localhost/printers/a"_s);
        QCOMPARE(ippGetOperation(message.get()), IPP_OP_GET_PRINTER_ATTRIBUTES);
        const auto text = [&](const char *name) {
            return ippText(ippFindAttribute(message.get(), name, IPP_TAG_ZERO));
        };
        QCOMPARE(text("printer-uri"), u"ipp://localhost/printers/a"_s);
        QCOMPARE(text("requesting-user-name"), QString::fromLocal8Bit(cupsUser()));
        const IppMessage aboutServer = newIppRequest(IPP_OP_CUPS_GET_DEFAULT);
        QVERIFY(!ippFindAttribute(aboutServer.get(), "printer-uri", IPP_TAG_ZERO));
    }
};

QTEST_GUILESS_MAIN(IppMessageTest)
#include "ipp_message_test.moc"
