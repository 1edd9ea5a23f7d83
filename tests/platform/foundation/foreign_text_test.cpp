#include <QTest>

#include "platform/foundation/ForeignText.h"

using namespace corvana;
using namespace Qt::StringLiterals;

/// Texts of others cannot control a terminal.
class ForeignTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLineForATerminal_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        const struct
        {
            const char *name;
            QString text;
            QString shown;
        } rows[] = {
            {"letters of every script", u"Büro 2. Stock, 二階 コピー, مكتب"_s,
             u"Büro 2. Stock, 二階 コピー, مكتب"_s},
            {"beyond the first plane", u"\U0001F5A8 \U00020BB7"_s, u"\U0001F5A8 \U00020BB7"_s},
            {"punctuation of shells and markup", u"<b>$(id)</b> `\\n`"_s, u"<b>$(id)</b> `\\n`"_s},
            {"escape", u"a\u001b[2Jb"_s, u"a<U+001B>[2Jb"_s},
            {"the one-byte form of an escape sequence", u"\u009b2J"_s, u"<U+009B>2J"_s},
            {"bell and delete", u"\a\u007f"_s, u"<U+0007><U+007F>"_s},
            {"line breaks", u"a\nb\rc\u2028d\u2029e\u0085f"_s,
             u"a<U+000A>b<U+000D>c<U+2028>d<U+2029>e<U+0085>f"_s},
            {"tab", u"a\tb"_s, u"a<U+0009>b"_s},
            {"nothing", QString(QChar(0)), u"<U+0000>"_s},
            {"direction overrides", u"a\u202eb\u202c\u2066c\u2069\u200f"_s,
             u"a<U+202E>b<U+202C><U+2066>c<U+2069><U+200F>"_s},
            {"joiners", u"\u0915\u094d\u200d\u200c"_s, u"\u0915\u094d\u200d\u200c"_s},
            {"invisible tags", u"a\U000E0041"_s, u"a<U+E0041>"_s},
            {"half a character", u"a"_s + QChar(0xd800), u"a\uFFFD"_s},
        };
        for (const auto &row : rows)
            QTest::newRow(row.name) << row.text << row.shown;
    }
    void aLineForATerminal()
    {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        QCOMPARE(terminalLine(text), shown);
    }

    void aMessageForATerminal_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::newRow("one line") << u"a\u001bb"_s << u"a<U+001B>b"_s;
        QTest::newRow("several lines") << u"a\r\nb\nc"_s << u"a\n  b\n  c"_s;
        QTest::newRow("an empty line") << u"a\n\nb"_s << u"a\n\n  b"_s;
        QTest::newRow("a line that begins anew") << u"a\rb"_s << u"a<U+000D>b"_s;
        QTest::newRow("nothing") << QString() << QString();
    }
    void aMessageForATerminal()
    {
        QFETCH(QString, text);
        QFETCH(QString, shown);
        QCOMPARE(terminalText(text), shown);
    }
};

QTEST_GUILESS_MAIN(ForeignTextTest)

#include "foreign_text_test.moc"
