#include <QTest>

#include "dialog/session/CustomValue.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// One custom option of each type: a whole number, a fraction, a length, a curve, a text.
PpdBuilder customPrinter()
{
    const QList<PpdChoice> choices{{"Standard", "Standard"}};
    return PpdBuilder()
        .option("Sleep", "Sleep", "Standard", choices)
        .customInteger("Sleep", "Time", "Minutes", 1, 99)
        .option("Density", "Density", "Standard", choices)
        .customInteger("Density", "Density", "Density", -6, 6)
        .option("Big", "Big", "Standard", choices)
        .customInteger("Big", "Count", "Count", 0, 2147483647)
        .option("Zoom", "Zoom", "Standard", choices)
        .customOfType("Zoom", "Factor", "real")
        .option("Margin", "Margin", "Standard", choices)
        .customOfType("Margin", "Width", "points")
        .option("Gamma", "Gamma", "Standard", choices)
        .customOfType("Gamma", "Gamma", "curve")
        .option("Mark", "Mark", "Standard", choices)
        .customOfType("Mark", "Text", "string")
        .option("Pair", "Pair", "Standard", choices)
        .line("*CustomPair True/Custom: \"\"")
        .line("*ParamCustomPair First/First: 1 int 1 9")
        .line("*ParamCustomPair Second/Second: 2 int 1 9")
        .option("Plain", "Plain", "Standard", choices);
}

} // namespace

class CustomValueTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PpdSession> m_sample;
    std::unique_ptr<PpdSession> m_custom;

private Q_SLOTS:
    // "lpadmin -o Sleep=Custom.12" writes such a default.
    void aDefaultOfItsOwnIsADefault()
    {
        const QList<PpdChoice> choices{{"Standard", "Standard"}};
        const auto session = sessionFor(
            PpdBuilder()
                .option("Sleep", "Sleep", "Custom.12", choices)
                .customInteger("Sleep", "Time", "Minutes", 1, 99)
                .option("Density", "Density", "Custom.99", choices) // which it does not take
                .customInteger("Density", "Density", "Density", -6, 6));
        QCOMPARE(customDefaults(session->ppd()), (QList<JobOption>{{u"Sleep"_s, u"Custom.12"_s}}));
        const QPair<QString, bool> steps[] = {
            {u"Custom.12"_s, false}, {u"Custom.13"_s, true}, {u"Standard"_s, true}};
        for (const auto &[choice, differs] : steps) {
            QVERIFY(session->change(u"Sleep"_s, choice, PpdSession::Origin::Dialog).accepted());
            QVERIFY2(session->differsFromDefault(u"Sleep"_s) == differs, qPrintable(choice));
        }
    }

    void aPinIsASecretWhateverItsType_data()
    {
        QTest::addColumn<QByteArray>("keyword");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<bool>("secret");
        const auto row = [](const char *name, const char *keyword, const char *text,
                            const char *type, bool secret) {
            QTest::newRow(name) << QByteArray(keyword) << QByteArray(text) << QByteArray(type)
                                << secret;
        };
        row("by its type", "Lock", "Lock", "passcode", true);
        row("a number, by its keyword", "JobPin", "Lock", "int", true);
        row("a number, by its text", "Lock", "Access Code", "int", true);
        row("a text", "Lock", "暗証番号", "string", true);
        row("a fraction", "Lock", "密码", "real", true);
        row("any other number", "Spinning", "Spinning", "int", false);
    }
    void aPinIsASecretWhateverItsType()
    {
        QFETCH(QByteArray, keyword);
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, type);
        const auto session = sessionFor(PpdBuilder()
                                            .option(keyword, text, "None", {{"None", "None"}})
                                            .customOfType(keyword, "Value", type));
        QTEST(isSecret(session->ppd(), QString::fromUtf8(keyword)), "secret");
    }

    void aParameterWithoutTheChoiceCustomTakesNothing_data()
    {
        QTest::addColumn<QByteArray>("ppd");
        const PpdBuilder whole =
            PpdBuilder().onOff("Sleep", "Sleep").customInteger("Sleep", "Time", "Minutes", 1, 99);
        QTest::newRow("no line for the choice")
            << whole.text().replace("*CustomSleep True/Custom: \"\"\n", "");
        QTest::newRow("the option is not closed") << whole.text().replace("*CloseUI: *Sleep\n", "");
    }
    void aParameterWithoutTheChoiceCustomTakesNothing()
    {
        QFETCH(QByteArray, ppd);
        const auto session = sessionFor(ppd);
        QVERIFY(!checkCustomValue(session->ppd(), u"Sleep"_s, u"Custom.12"_s).value);
        QVERIFY(!customLimits(session->ppd(), u"Sleep"_s));
        QVERIFY(allowedCustomValues(session->ppd(), u"Sleep"_s).isEmpty());
        // Whoever does not check hears it from the session.
        const ChangeResult result =
            session->change(u"Sleep"_s, u"Custom.12"_s, PpdSession::Origin::Dialog);
        QVERIFY(!result.accepted());
        QVERIFY(!session->changeTogether({{u"Sleep"_s, u"Custom.12"_s}}).isEmpty());
        QCOMPARE(session->markedChoice(u"Sleep"_s), u"OFF"_s);
        QVERIFY(session->customValue(u"Sleep"_s).isNull());
    }

    void initTestCase()
    {
        m_sample = sampleSession();
        m_custom = sessionFor(customPrinter());
    }

    // The sample printer takes sizes from 216 x 360 to 612 x 1008 points.
    void pageSizes_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("taken"); // null: refused
        const QString refused;

        QTest::newRow("points without a unit") << u"Custom.300x400"_s << u"Custom.300x400"_s;
        QTest::newRow("points") << u"Custom.300x400pt"_s << u"Custom.300x400"_s;
        QTest::newRow("fractions of points")
            << u"Custom.300.5x400.25"_s << u"Custom.300.5x400.25"_s;
        QTest::newRow("inches") << u"Custom.5x7in"_s << u"Custom.360x504"_s;
        QTest::newRow("feet") << u"Custom.0.5x1ft"_s << u"Custom.432x864"_s;
        QTest::newRow("millimetres") << u"Custom.127x254mm"_s << u"Custom.360x720"_s;
        QTest::newRow("centimetres") << u"Custom.12.7x25.4cm"_s << u"Custom.360x720"_s;
        QTest::newRow("metres") << u"Custom.0.127x0.254m"_s << u"Custom.360x720"_s;

        QTest::newRow("the smallest") << u"Custom.216x360"_s << u"Custom.216x360"_s;
        QTest::newRow("the largest") << u"Custom.612x1008"_s << u"Custom.612x1008"_s;
        QTest::newRow("the smallest as a message writes it")
            << u"Custom.76.2x127mm"_s << u"Custom.216x360"_s;
        QTest::newRow("too narrow") << u"Custom.215x400"_s << refused;
        QTest::newRow("too wide") << u"Custom.613x400"_s << refused;
        QTest::newRow("too short") << u"Custom.300x359"_s << refused;
        QTest::newRow("too long") << u"Custom.300x1009"_s << refused;
        QTest::newRow("a small paper lying on its side") << u"Custom.400x300"_s << refused;
        QTest::newRow("nothing") << u"Custom.0x0"_s << refused;
        QTest::newRow("negative") << u"Custom.-300x400"_s << refused;
        QTest::newRow("beyond any number") << u"Custom.%1x400"_s.arg(QString(400, u'9')) << refused;

        QTest::newRow("no size") << u"Custom."_s << refused;
        QTest::newRow("no height") << u"Custom.300"_s << refused;
        QTest::newRow("no width") << u"Custom.x400"_s << refused;
        QTest::newRow("not a number") << u"Custom.axb"_s << refused;
        QTest::newRow("three sizes") << u"Custom.300x400x500"_s << refused;
        QTest::newRow("capital X") << u"Custom.300X400"_s << refused;
        QTest::newRow("unknown unit") << u"Custom.300x400px"_s << refused;
        QTest::newRow("unit in capitals") << u"Custom.127x254MM"_s << refused;
        QTest::newRow("two units") << u"Custom.127mmx254mm"_s << refused;
        QTest::newRow("exponent") << u"Custom.3e2x400"_s << refused;
        QTest::newRow("decimal comma") << u"Custom.12,7x25,4cm"_s << refused;
        QTest::newRow("blank") << u"Custom.300x400 "_s << refused;
        QTest::newRow("line break") << u"Custom.300x400\n"_s << refused;
        QTest::newRow("full-width digits") << u"Custom.３００x４００"_s << refused;
        QTest::newRow("not custom") << u"300x400"_s << refused;
        QTest::newRow("other case") << u"custom.300x400"_s << refused;
    }
    void pageSizes()
    {
        QFETCH(QString, value);
        QFETCH(QString, taken);
        const CustomValueCheck check = checkCustomValue(m_sample->ppd(), u"PageSize"_s, value);
        QCOMPARE(check.value.value_or(QString()), taken);
        QCOMPARE(check.allowed, u"Custom.WIDTHxHEIGHTmm, 76.2x127mm … 215.9x355.6mm"_s);
        QCOMPARE(allowedCustomValues(m_sample->ppd(), u"PageSize"_s), check.allowed);
    }

    void whatIsTakenNamesTheSizeThatWasAsked()
    {
        const CustomValueCheck check =
            checkCustomValue(m_sample->ppd(), u"PageSize"_s, u"Custom.100x200mm"_s);
        QVERIFY(check.value);
        const ppd_size_t *size = ppdPageSize(m_sample->ppd(), check.value->toLatin1().constData());
        QVERIFY(qAbs(static_cast<double>(size->width) / 72 * 25.4 - 100) < 0.01);
        QVERIFY(qAbs(static_cast<double>(size->length) / 72 * 25.4 - 200) < 0.01);
    }

    void aPrinterOfFixedSizesTakesNoCustomSize()
    {
        const CustomValueCheck check =
            checkCustomValue(m_custom->ppd(), u"PageSize"_s, u"Custom.300x400"_s);
        QVERIFY(!check.value);
        QVERIFY(check.allowed.isEmpty());
        QVERIFY(allowedCustomValues(m_custom->ppd(), u"PageSize"_s).isEmpty());
    }

    void values_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("taken");

        QTest::newRow("int: minimum") << u"Sleep"_s << u"Custom.1"_s << true;
        QTest::newRow("int: maximum") << u"Sleep"_s << u"Custom.99"_s << true;
        QTest::newRow("int: below") << u"Sleep"_s << u"Custom.0"_s << false;
        QTest::newRow("int: above") << u"Sleep"_s << u"Custom.100"_s << false;
        QTest::newRow("int: negative minimum") << u"Density"_s << u"Custom.-6"_s << true;
        QTest::newRow("int: below a negative minimum") << u"Density"_s << u"Custom.-7"_s << false;
        QTest::newRow("int: greatest of all") << u"Big"_s << u"Custom.2147483647"_s << true;
        QTest::newRow("int: beyond 32 bits") << u"Big"_s << u"Custom.2147483648"_s << false;
        QTest::newRow("int: wraps to 1 in 32 bits")
            << u"Sleep"_s << u"Custom.4294967297"_s << false;
        QTest::newRow("int: huge") << u"Sleep"_s << u"Custom.%1"_s.arg(QString(300, u'9')) << false;
        QTest::newRow("int: fraction") << u"Sleep"_s << u"Custom.1.5"_s << false;
        QTest::newRow("int: exponent") << u"Sleep"_s << u"Custom.1e1"_s << false;
        QTest::newRow("int: hexadecimal") << u"Sleep"_s << u"Custom.0x10"_s << false;
        QTest::newRow("int: nothing") << u"Sleep"_s << u"Custom."_s << false;
        QTest::newRow("int: text") << u"Sleep"_s << u"Custom.x"_s << false;
        QTest::newRow("int: number and text") << u"Sleep"_s << u"Custom.5min"_s << false;
        QTest::newRow("int: leading blank") << u"Sleep"_s << u"Custom. 5"_s << false;
        QTest::newRow("int: trailing blank") << u"Sleep"_s << u"Custom.5 "_s << false;
        QTest::newRow("int: line break") << u"Sleep"_s << u"Custom.5\n"_s << false;
        QTest::newRow("int: full-width digit") << u"Sleep"_s << u"Custom.５"_s << false;
        QTest::newRow("int: without Custom") << u"Sleep"_s << u"5"_s << false;
        QTest::newRow("int: a choice") << u"Sleep"_s << u"Standard"_s << false;

        QTest::newRow("real: minimum") << u"Zoom"_s << u"Custom.10"_s << true;
        QTest::newRow("real: inside") << u"Zoom"_s << u"Custom.12.5"_s << true;
        QTest::newRow("real: maximum") << u"Zoom"_s << u"Custom.20"_s << true;
        QTest::newRow("real: below") << u"Zoom"_s << u"Custom.9.99"_s << false;
        QTest::newRow("real: above") << u"Zoom"_s << u"Custom.20.01"_s << false;
        QTest::newRow("real: not a number") << u"Zoom"_s << u"Custom.nan"_s << false;
        QTest::newRow("real: infinite") << u"Zoom"_s << u"Custom.inf"_s << false;
        QTest::newRow("real: blank") << u"Zoom"_s << u"Custom. 12"_s << false;
        QTest::newRow("real: nothing") << u"Zoom"_s << u"Custom."_s << false;

        QTest::newRow("points: inside") << u"Margin"_s << u"Custom.15"_s << true;
        QTest::newRow("points: above") << u"Margin"_s << u"Custom.21"_s << false;

        QTest::newRow("curve: inside") << u"Gamma"_s << u"Custom.15"_s << true;
        QTest::newRow("curve: below") << u"Gamma"_s << u"Custom.9"_s << false;
        QTest::newRow("curve: above") << u"Gamma"_s << u"Custom.21"_s << false;

        QTest::newRow("string: shortest") << u"Mark"_s << u"Custom.0123456789"_s << true;
        QTest::newRow("string: longest") << u"Mark"_s << u"Custom.01234567890123456789"_s << true;
        QTest::newRow("string: too short") << u"Mark"_s << u"Custom.012345678"_s << false;
        QTest::newRow("string: too long")
            << u"Mark"_s << u"Custom.012345678901234567890"_s << false;
        QTest::newRow("string: its length is that of its bytes")
            << u"Mark"_s << u"Custom.一二三四五六七"_s << false; // 21 bytes, 7 characters
        QTest::newRow("string: with a line break")
            << u"Mark"_s << u"Custom.01234\n56789"_s << false;

        QTest::newRow("several parameters") << u"Pair"_s << u"Custom.5"_s << false;
        QTest::newRow("an option of choices only") << u"Plain"_s << u"Custom.5"_s << false;
        QTest::newRow("an unknown option") << u"Nothing"_s << u"Custom.5"_s << false;
    }
    void values()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, value);
        QFETCH(bool, taken);
        const CustomValueCheck check = checkCustomValue(m_custom->ppd(), keyword, value);
        QCOMPARE(check.value.has_value(), taken);
        if (taken)
            QCOMPARE(*check.value, value);
        QCOMPARE(check.allowed, allowedCustomValues(m_custom->ppd(), keyword));
    }

    void allowed_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("allowed");
        QTest::newRow("int") << u"Sleep"_s << u"Custom.1 … Custom.99"_s;
        QTest::newRow("negative int") << u"Density"_s << u"Custom.-6 … Custom.6"_s;
        QTest::newRow("large int") << u"Big"_s << u"Custom.0 … Custom.2147483647"_s;
        QTest::newRow("real") << u"Zoom"_s << u"Custom.10 … Custom.20"_s;
        QTest::newRow("curve") << u"Gamma"_s << u"Custom.10 … Custom.20"_s;
        QTest::newRow("string") << u"Mark"_s << u"Custom.TEXT"_s;
        QTest::newRow("several parameters") << u"Pair"_s << QString();
        QTest::newRow("choices only") << u"Plain"_s << QString();
        QTest::newRow("unknown") << u"Nothing"_s << QString();
    }
    void allowed()
    {
        QFETCH(QString, keyword);
        QTEST(allowedCustomValues(m_custom->ppd(), keyword), "allowed");
    }

    void theLimitsAreThoseOfThePpd_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<CustomLimits::Kind>("kind");
        QTest::addColumn<QString>("least");
        QTest::addColumn<QString>("most");
        using Kind = CustomLimits::Kind;
        const auto row = [](const QString &keyword, Kind kind, const QString &least,
                            const QString &most) {
            QTest::newRow(qPrintable(keyword)) << keyword << kind << least << most;
        };
        row(u"int"_s, Kind::Number, u"-5"_s, u"99"_s);
        row(u"real"_s, Kind::Number, u"10"_s, u"20"_s);
        row(u"curve"_s, Kind::Number, u"10"_s, u"20"_s);
        row(u"points"_s, Kind::Points, u"10"_s, u"20"_s);
        row(u"string"_s, Kind::Text, u"10"_s, u"20"_s);
        row(u"password"_s, Kind::HiddenText, u"10"_s, u"20"_s);
        row(u"passcode"_s, Kind::HiddenText, u"10"_s, u"20"_s);
    }
    void theLimitsAreThoseOfThePpd()
    {
        QFETCH(QString, keyword);
        QFETCH(CustomLimits::Kind, kind);
        QFETCH(QString, least);
        QFETCH(QString, most);
        PpdBuilder ppd;
        ppd.option("int", "int", "A", {{"A", "A"}}).customInteger("int", "P", "P", -5, 99);
        for (const char *type : {"real", "curve", "points", "string", "password", "passcode"})
            ppd.option(type, type, "A", {{"A", "A"}}).customOfType(type, "P", type);
        const auto session = sessionFor(ppd);
        const auto limits = customLimits(session->ppd(), keyword);
        QVERIFY(limits);
        QCOMPARE(limits->kind, kind);
        QCOMPARE(limits->least, least);
        QCOMPARE(limits->most, most);
    }

    void withoutExactlyOneParameterThereAreNoLimits()
    {
        const auto session = sessionFor(officePrinter());
        for (const QString &keyword : {u"Shift"_s, u"Tray"_s, u"PageSize"_s, u"Nothing"_s})
            QVERIFY(!customLimits(session->ppd(), keyword));
    }

    void aPasscodeIsDigits()
    {
        const auto session = sessionFor(officePrinter());
        QVERIFY(checkCustomValue(session->ppd(), u"Pin"_s, u"Custom.4711"_s).value);
        QVERIFY(!checkCustomValue(session->ppd(), u"Pin"_s, u"Custom.471x"_s).value);
        QVERIFY(!checkCustomValue(session->ppd(), u"Pin"_s, u"Custom.471"_s).value);
    }
};

QTEST_GUILESS_MAIN(CustomValueTest)

#include "custom_value_test.moc"
