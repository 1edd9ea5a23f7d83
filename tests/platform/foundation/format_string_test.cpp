#include <QtTest>

#include "platform/foundation/FormatString.h"

using namespace corvana;

class FormatStringTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDirectiveShowsNothing_data();
    void aDirectiveShowsNothing();
};

void FormatStringTest::aDirectiveShowsNothing_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *name, const char16_t *format, const char16_t *shown) {
        QTest::newRow(name) << QString::fromUtf16(format) << QString::fromUtf16(shown);
    };
    row("no directive", u"The paper \"A4\" cannot be used.", u"The paper \"A4\" cannot be used.");
    row("empty", u"", u"");
    row("doubled per cent sign", u"50%% of all", u"50% of all");
    row("two doubled per cent signs", u"%%%%", u"%%");
    row("text", u"a%sb", u"ab");
    row("object", u"a%@b", u"ab");
    row("number", u"a%db", u"ab");
    row("length", u"a%lldb", u"ab");
    row("flags, width and precision", u"a%-+08.3fb", u"ab");
    row("width from an argument", u"a%*db", u"ab");
    row("position", u"%1$@ and %2$@", u" and ");
    row("writing directive", u"a%nb", u"ab");
    row("several", u"%s%s%s%s", u"");
    row("unknown conversion letter", u"a%yb", u"ab");
    row("letter that is not ASCII", u"a%用b", u"ab");
    row("letter of two code units", u"a%𠮷b", u"ab");
    row("flag and then a per cent sign", u"a%5%b", u"a%b");
    row("doubled, then a directive", u"%%%d", u"%");
    row("per cent sign at the end", u"100%", u"100");
    row("flags at the end", u"100%-5", u"100");
    row("length at the end", u"100%ll", u"100");
    row("stray sign in a sentence", u"at 50 % strength", u"at 50 trength");
}

void FormatStringTest::aDirectiveShowsNothing()
{
    QFETCH(QString, format);
    QFETCH(QString, shown);
    QCOMPARE(formattedWithoutArguments(format), shown);
}

QTEST_GUILESS_MAIN(FormatStringTest)
#include "format_string_test.moc"
