#include <cmath>
#include <limits>

#include <QtTest>

#include "platform/foundation/Values.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class ValuesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextIsItsLeadingInteger_data();
    void aTextIsItsLeadingInteger();
    void aNumberIsTruncated_data();
    void aNumberIsTruncated();
    void aTextIsTrueByItsFirstTellingLetter_data();
    void aTextIsTrueByItsFirstTellingLetter();
    void aNumberIsTrueUnlessZero_data();
    void aNumberIsTrueUnlessZero();
    void anythingElseIsZeroAndFalse_data();
    void anythingElseIsZeroAndFalse();
};

namespace {

constexpr qint64 kHighest = std::numeric_limits<qint64>::max();
constexpr qint64 kLowest = std::numeric_limits<qint64>::min();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
const double kTwoToThe63 = std::ldexp(1.0, 63);

} // namespace

void ValuesTest::aTextIsItsLeadingInteger_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("integer");
    const auto row = [](const char *name, const char16_t *text, qint64 integer) {
        QTest::newRow(name) << QString::fromUtf16(text) << integer;
    };
    row("digits", u"12", 12);
    row("empty", u"", 0);
    row("blanks only", u"  \t ", 0);
    row("space before", u"  12", 12);
    row("every ASCII blank before", u"\t\n\v\f\r 12", 12);
    row("plus", u"+12", 12);
    row("minus", u"-12", -12);
    row("blanks, then minus", u"  -12", -12);
    row("minus zero", u"-0", 0);
    row("sign alone", u"-", 0);
    row("sign, then blank", u"- 12", 0);
    row("two signs", u"--12", 0);
    row("both signs", u"+-12", 0);
    row("leading zeros", u"0012", 12);
    row("letters behind", u"12abc", 12);
    row("blank in between", u"1 2", 1);
    row("decimal point behind", u"12.9", 12);
    row("negative fraction", u"-12.9", -12);
    row("decimal point before", u".5", 0);
    row("group separator", u"1,000", 1);
    row("exponent", u"1e3", 1);
    row("hexadecimal", u"0x10", 0);
    row("letters before", u"a12", 0);
    row("boolean word", u"YES", 0);
    row("full-width digits", u"１２", 0);
    row("full-width digit behind", u"1２", 1);
    row("Arabic-Indic digits", u"٣٤", 0);
    row("Devanagari digits", u"१२", 0);
    row("superscript digit", u"²", 0);
    row("minus sign that is no hyphen", u"\u221212", 0);
    row("highest", u"9223372036854775807", kHighest);
    row("one above the highest", u"9223372036854775808", kHighest);
    row("two above the highest", u"9223372036854775809", kHighest);
    row("ten times the highest", u"92233720368547758070", kHighest);
    row("far above", u"99999999999999999999999999999999999999999999", kHighest);
    row("lowest", u"-9223372036854775808", kLowest);
    row("one above the lowest", u"-9223372036854775807", kLowest + 1);
    row("one below the lowest", u"-9223372036854775809", kLowest);
    row("far below", u"-99999999999999999999999999999999999999999999", kLowest);
    row("2 to the 64", u"18446744073709551616", kHighest);
    row("zeros do not saturate", u"00000000000000000000000000000000007", 7);
    row("saturated with letters behind", u"99999999999999999999x", kHighest);
}

void ValuesTest::aTextIsItsLeadingInteger()
{
    QFETCH(QString, text);
    QFETCH(qint64, integer);
    QCOMPARE(integerValue(text), integer);
}

void ValuesTest::aNumberIsTruncated_data()
{
    QTest::addColumn<QVariant>("number");
    QTest::addColumn<qint64>("integer");
    const auto row = [](const char *name, const QVariant &number, qint64 integer) {
        QTest::newRow(name) << number << integer;
    };
    row("int", 12, 12);
    row("negative int", -12, -12);
    row("64 bits", kLowest, kLowest);
    row("unsigned beyond int", 4294967295u, 4294967295);
    row("unsigned 64 bits", quint64(kHighest), kHighest);
    row("unsigned above the highest", quint64(kHighest) + 1, kHighest);
    row("highest unsigned", std::numeric_limits<quint64>::max(), kHighest);
    row("unsigned long", QVariant::fromValue(std::numeric_limits<ulong>::max()), kHighest);
    row("long", QVariant::fromValue(long(-5)), -5);
    row("short", QVariant::fromValue(short(-5)), -5);
    row("unsigned short", QVariant::fromValue(ushort(65535)), 65535);
    row("signed byte", QVariant::fromValue(static_cast<signed char>(-5)), -5);
    row("unsigned byte", QVariant::fromValue(uchar(200)), 200);
    row("true", true, 1);
    row("false", false, 0);
    row("towards zero from above", 3.9, 3);
    row("towards zero from below", -3.9, -3);
    row("float", QVariant::fromValue(2.5f), 2);
    row("minus zero", -0.0, 0);
    row("less than one", 0.999, 0);
    row("largest double below 2 to the 63", std::nextafter(kTwoToThe63, 0.0), 9223372036854774784);
    row("2 to the 63", kTwoToThe63, kHighest);
    row("minus 2 to the 63", -kTwoToThe63, kLowest);
    row("below minus 2 to the 63", std::nextafter(-kTwoToThe63, -kInfinity), kLowest);
    row("huge", 1e300, kHighest);
    row("hugely negative", -1e300, kLowest);
    row("infinite", kInfinity, kHighest);
    row("minus infinite", -kInfinity, kLowest);
    row("not a number", std::nan(""), 0);
    row("float not a number", QVariant::fromValue(std::nanf("")), 0);
}

void ValuesTest::aNumberIsTruncated()
{
    QFETCH(QVariant, number);
    QFETCH(qint64, integer);
    QCOMPARE(integerValue(number), integer);
}

void ValuesTest::aTextIsTrueByItsFirstTellingLetter_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("boolean");
    const auto row = [](const char *name, const char16_t *text, bool boolean) {
        QTest::newRow(name) << QString::fromUtf16(text) << boolean;
    };
    row("Y", u"Y", true);
    row("yes", u"yes", true);
    row("T", u"T", true);
    row("true", u"true", true);
    row("one", u"1", true);
    row("nine", u"9", true);
    row("minus one", u"-1", true);
    row("plus one", u"+1", true);
    row("blanks before", u" \t\n1", true);
    row("blanks before a word", u"  yes", true);
    row("zeros before a digit", u"0001", true);
    row("sign, zeros, digit", u"-001", true);
    row("zeros before a word", u"00yes", true);
    row("sign before a word", u"+true", true);
    row("letters behind", u"1 of 2", true);
    row("empty", u"", false);
    row("blanks", u"   ", false);
    row("zero", u"0", false);
    row("zeros", u"000", false);
    row("minus zero", u"-0", false);
    row("zero point one", u"0.1", false);
    row("no", u"NO", false);
    row("false", u"false", false);
    row("on", u"ON", false);
    row("two signs", u"--1", false);
    row("blank behind the sign", u"- 1", false);
    row("blank behind the zeros", u"0 1", false);
    row("full-width one", u"１", false);
    row("full-width Y", u"Ｙ", false);
    row("Arabic-Indic one", u"١", false);
}

void ValuesTest::aTextIsTrueByItsFirstTellingLetter()
{
    QFETCH(QString, text);
    QFETCH(bool, boolean);
    QCOMPARE(booleanValue(text), boolean);
}

void ValuesTest::aNumberIsTrueUnlessZero_data()
{
    QTest::addColumn<QVariant>("number");
    QTest::addColumn<bool>("boolean");
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("one") << QVariant(1) << true;
    QTest::newRow("minus one") << QVariant(-1) << true;
    QTest::newRow("zero") << QVariant(0) << false;
    QTest::newRow("low bits zero") << QVariant(qint64(1) << 32) << true;
    QTest::newRow("highest unsigned") << QVariant(std::numeric_limits<quint64>::max()) << true;
    QTest::newRow("unsigned 2 to the 63") << QVariant(quint64(1) << 63) << true;
    QTest::newRow("lowest") << QVariant(kLowest) << true;
    QTest::newRow("half") << QVariant(0.5) << true;
    QTest::newRow("float half") << QVariant::fromValue(0.5f) << true;
    QTest::newRow("smallest double") << QVariant(std::numeric_limits<double>::denorm_min()) << true;
    QTest::newRow("zero as double") << QVariant(0.0) << false;
    QTest::newRow("minus zero") << QVariant(-0.0) << false;
    QTest::newRow("infinite") << QVariant(kInfinity) << true;
    // As an integer it is 0, and both readings of one entry must agree.
    QTest::newRow("not a number") << QVariant(std::nan("")) << false;
}

void ValuesTest::aNumberIsTrueUnlessZero()
{
    QFETCH(QVariant, number);
    QFETCH(bool, boolean);
    QCOMPARE(booleanValue(number), boolean);
}

void ValuesTest::anythingElseIsZeroAndFalse_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("null pointer") << QVariant::fromValue(nullptr);
    QTest::newRow("bytes") << QVariant(QByteArray("12"));
    QTest::newRow("character") << QVariant(QChar(u'7'));
    QTest::newRow("list") << QVariant(QStringList{u"12"_s});
    QTest::newRow("map") << QVariant(QVariantMap{{u"a"_s, 1}});
    QTest::newRow("date") << QVariant(QDate(2020, 1, 1));
}

void ValuesTest::anythingElseIsZeroAndFalse()
{
    QFETCH(QVariant, value);
    QCOMPARE(integerValue(value), 0);
    QCOMPARE(booleanValue(value), false);
}

QTEST_GUILESS_MAIN(ValuesTest)
#include "values_test.moc"
