#include <QTest>

#include "plugin/QXJobValues.h"
#include "tests/plugin/JobOptions.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/RecordingHost.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

using Outcome = JobValueClaim::Outcome;

QList<JobOption> zeroEffects()
{
    QList<JobOption> options;
    for (const QString &keyword : {u"QXBrightness"_s, u"QXContrast"_s, u"QXRed"_s, u"QXGreen"_s,
                                   u"QXBlue"_s, u"QXSaturation"_s})
        options += JobOption{keyword, u"0"_s};
    return options;
}

PpdBuilder withSleepTime()
{
    return PpdBuilder().option("QXSleepTime", "Sleep Time", "Default", {{"Default", "Automatic"}});
}

PpdBuilder withDensity(const QList<PpdChoice> &choices = {{"0", "Standard"}})
{
    return PpdBuilder().option("QXDensityAdjustment", "Density", "0", choices);
}

} // namespace

Q_DECLARE_METATYPE(corvana::JobValueClaim::Outcome)

class JobValuesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theOptionForColorIsNamedWhereThePrinterHasIt()
    {
        const auto color = RecordingHost::forSamplePrinter();
        QCOMPARE(m_values.colorOption(color->ppd()), u"QXMonoColor"_s);
        const auto gray = RecordingHost::forPpd(PpdBuilder().text());
        QVERIFY(m_values.colorOption(gray->ppd()).isNull());
        QVERIFY(m_values.colorOption(nullptr).isNull());
    }

    // jobOptions()

    void aJobWithoutEntriesPrintsWithoutEffects()
    {
        const auto host = RecordingHost::forSamplePrinter();
        QCOMPARE(m_values.jobOptions(host->settings(), host->ppd()), zeroEffects());
        QVERIFY(m_values.jobOptions(host->settings(), nullptr).isEmpty());
    }

    void theSleepTimeOfAJob_data()
    {
        QTest::addColumn<QByteArray>("ppd");
        QTest::addColumn<QVariantMap>("entries");
        QTest::addColumn<QList<JobOption>>("options");
        const QByteArray printer =
            withSleepTime().customInteger("QXSleepTime", "Time", "Minutes", 5, 50).text();
        const auto entries = [](const QString &mode, const QVariant &minutes) {
            return QVariantMap{{kSleepMode, mode}, {kSleep, minutes}};
        };
        const auto minutes = [](const QString &value) {
            return QList<JobOption>{{u"QXSleepTime"_s, value}};
        };
        const QList<JobOption> none;
        QTest::newRow("manual") << printer << entries(u"Custom"_s, u"12"_s)
                                << minutes(u"Custom.12"_s);
        QTest::newRow("manual, a number")
            << printer << entries(u"Custom"_s, 12) << minutes(u"Custom.12"_s);
        QTest::newRow("above the bounds")
            << printer << entries(u"Custom"_s, u"99"_s) << minutes(u"Custom.50"_s);
        QTest::newRow("below the bounds")
            << printer << entries(u"Custom"_s, u"1"_s) << minutes(u"Custom.5"_s);
        QTest::newRow("no minutes")
            << printer << QVariantMap{{kSleepMode, u"Custom"_s}} << minutes(u"Custom.5"_s);
        QTest::newRow("automatic") << printer << entries(u"Default"_s, u"Default"_s) << none;
        QTest::newRow("no entries") << printer << QVariantMap{} << none;
        QTest::newRow("minutes without a mode")
            << printer << QVariantMap{{kSleep, u"12"_s}} << none;
        QTest::newRow("no parameter")
            << withSleepTime().text() << entries(u"Custom"_s, u"12"_s) << none;
        QTest::newRow("no such option")
            << PpdBuilder().text() << entries(u"Custom"_s, u"12"_s) << none;
    }
    void theSleepTimeOfAJob() { compareOptions(); }

    void theDensityOfAJob_data()
    {
        QTest::addColumn<QByteArray>("ppd");
        QTest::addColumn<QVariantMap>("entries");
        QTest::addColumn<QList<JobOption>>("options");
        const auto entry = [](const QVariant &value) { return QVariantMap{{kDensity, value}}; };
        const QByteArray custom =
            withDensity().customInteger("QXDensityAdjustment", "Density", "D", -3, 4).text();
        const QList<JobOption> none;
        const auto option = [](const QString &value) {
            return QList<JobOption>{{u"QXDensityAdjustment"_s, value}};
        };
        QTest::newRow("a custom value") << custom << entry(u"-2"_s) << option(u"Custom.-2"_s);
        QTest::newRow("above the bounds") << custom << entry(u"6"_s) << option(u"Custom.4"_s);
        QTest::newRow("below the bounds") << custom << entry(-6) << option(u"Custom.-3"_s);
        QTest::newRow("the printer's own") << custom << entry(u"0"_s) << option(u"0"_s);
        QTest::newRow("no entry") << custom << QVariantMap{} << none;
        QTest::newRow("a choice beside custom values")
            << withDensity({{"0", "Standard"}, {"2", "Darker"}})
                   .customInteger("QXDensityAdjustment", "Density", "D", -3, 4)
                   .text()
            << entry(u"2"_s) << option(u"2"_s);
        QTest::newRow("a choice where the default is none")
            << QByteArray(custom).replace("*DefaultQXDensityAdjustment: 0",
                                          "*DefaultQXDensityAdjustment: 4294967296")
            << entry(u"0"_s) << option(u"0"_s);
        QTest::newRow("a default that is no choice")
            << QByteArray(custom).replace("*DefaultQXDensityAdjustment: 0",
                                          "*DefaultQXDensityAdjustment: Middle")
            << entry(u"0"_s) << option(u"0"_s);
        QTest::newRow("a choice") << withDensity({{"0", "Standard"}, {"2", "Darker"}}).text()
                                  << entry(u"2"_s) << option(u"2"_s);
        QTest::newRow("a choice with its sign")
            << withDensity({{"0", "Standard"}, {"+2", "Darker"}}).text() << entry(u"2"_s)
            << option(u"+2"_s);
        QTest::newRow("neither custom nor a choice, so the host can refuse it")
            << withDensity().text() << entry(u"2"_s) << option(u"2"_s);
        QTest::newRow("beyond the choices")
            << withDensity({{"-2", "Lighter"}, {"0", "Standard"}, {"+2", "Darker"}}).text()
            << entry(u"-6"_s) << option(u"-6"_s);
        QTest::newRow("between the choices")
            << withDensity({{"-2", "Lighter"}, {"0", "Standard"}, {"+2", "Darker"}}).text()
            << entry(u"1"_s) << option(u"1"_s);
        const QByteArray words =
            PpdBuilder()
                .option("QXDensityAdjustment", "Density", "Middle",
                        {{"Light", "Light"}, {"Middle", "Middle"}, {"2dark", "Dark"}})
                .text();
        QTest::newRow("no choice is a number")
            << words << entry(u"2"_s) << QList<JobOption>{{QString(kDensity), u"2"_s}};
        QTest::newRow("no choice is a number, the printer's own")
            << words << entry(u"0"_s) << option(u"Middle"_s);
        QTest::newRow("no such option") << PpdBuilder().text() << entry(u"2"_s) << none;
    }
    void theDensityOfAJob() { compareOptions(); }

    void theEffectsOfAJobComeFromTheSetInForce_data()
    {
        QTest::addColumn<QString>("colorMode");
        QTest::addColumn<QString>("colorMatching");
        QTest::addColumn<QString>("brightness");
        QTest::newRow("normal") << u"Color"_s << u"Normal"_s << u"1"_s;
        QTest::newRow("vivid") << u"Color"_s << u"Vivid"_s << u"2"_s;
        QTest::newRow("no matching") << u"Color"_s << u"None"_s << u"1"_s;
        QTest::newRow("mono") << u"Mono"_s << u"Vivid"_s << u"3"_s;
    }
    void theEffectsOfAJobComeFromTheSetInForce()
    {
        QFETCH(QString, colorMode);
        QFETCH(QString, colorMatching);
        QFETCH(QString, brightness);
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(u"QXMonoColor"_s, colorMode);
        host->mark(u"QXColorMatching"_s, colorMatching);
        host->settings().setValue(kNormalEffect, QVariantList{1, 0, 0, 0, 0, 0});
        host->settings().setValue(kVividEffect, QVariantList{u"2"_s, 0, 0, 0, 0, 0});
        host->settings().setValue(kMonoEffect, QVariantList{3, 0, 0, 0, 0, 0});
        QList<JobOption> expected = zeroEffects();
        expected.first().value = brightness;
        QCOMPARE(m_values.jobOptions(host->settings(), host->ppd()), expected);
    }

    void anEffectThatThePpdLacksIsAnAttributeAndAValueThatItLacksIsNamed()
    {
        const auto host =
            RecordingHost::forPpd(PpdBuilder()
                                      .driverMatchesColors()
                                      .option("QXRed", "Red", "0", {{"0", "0"}, {"+5", "5"}})
                                      .text());
        const auto withRed = [](const QString &red) {
            return QStringList{u"QXBrightness=1"_s, u"QXContrast=-2"_s, u"QXRed="_s + red,
                               u"QXGreen=0"_s,      u"QXBlue=0"_s,      u"QXSaturation=20"_s};
        };
        host->settings().setValue(kNormalEffect, QVariantList{1, -2, 5, 0, 99, 20});
        QCOMPARE(valuesOf(m_values.jobOptions(host->settings(), host->ppd())), withRed(u"+5"_s));
        host->settings().setValue(kNormalEffect, QVariantList{1, -2, 6, 0, 99, 20});
        QCOMPARE(valuesOf(m_values.jobOptions(host->settings(), host->ppd())),
                 withRed(u"6"_s)); // for the host to refuse
    }

    void anEffectThatIsNotInForceIsNoAttribute()
    {
        const auto host = RecordingHost::forPpd(PpdBuilder().driverMatchesColors().text());
        host->settings().setValue(kMonoEffect, QVariantList{1, 2, 3, 4, 5, 6});
        host->settings().setValue(u"QXMonoColor"_s, u"Mono"_s);
        QCOMPARE(valuesOf(m_values.jobOptions(host->settings(), host->ppd())),
                 (QStringList{u"QXBrightness=1"_s, u"QXContrast=2"_s}));
    }

    void onlyASetOfSixIsASet_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QStringList>("values");
        const QStringList zero{u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s};
        QTest::newRow("two") << QVariant(QVariantList{9, 9}) << zero;
        QTest::newRow("seven") << QVariant(QVariantList{9, 9, 9, 9, 9, 9, 9}) << zero;
        QTest::newRow("none") << QVariant(QVariantList()) << zero;
        QTest::newRow("a text") << QVariant(u"999999"_s) << zero;
        QTest::newRow("a number") << QVariant(9) << zero;
        QTest::newRow("a map") << QVariant(QVariantMap{{u"QXRed"_s, 9}}) << zero;
        QTest::newRow("six texts")
            << QVariant(QStringList{u"1"_s, u"+2"_s, u" 3"_s, u"4th"_s, u"-5"_s, u"six"_s})
            << QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"-5"_s, u"0"_s};
        QTest::newRow("six values of six types")
            << QVariant(QVariantList{true, 2.9, u"3"_s, QVariantList{4}, QVariantMap(), QVariant()})
            << QStringList{u"1"_s, u"2"_s, u"3"_s, u"0"_s, u"0"_s, u"0"_s};
        QTest::newRow("the ends of the range, and beyond")
            << QVariant(QVariantList{-20, 20, -21, 21, u"-99999999999999999999"_s, 1e300})
            << QStringList{u"-20"_s, u"20"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s};
    }
    void onlyASetOfSixIsASet()
    {
        QFETCH(QVariant, stored);
        QFETCH(QStringList, values);
        const auto host = RecordingHost::forSamplePrinter();
        host->settings().setValue(kNormalEffect, stored);
        QList<JobOption> expected = zeroEffects();
        for (qsizetype i = 0; i < expected.size(); ++i)
            expected[i].value = values.at(i);
        QCOMPARE(m_values.jobOptions(host->settings(), host->ppd()), expected);
    }

    void anEffectTakenIntoABadSetLeavesTheOthersAtZero()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->settings().setValue(kNormalEffect, QVariantList{9, 9});
        QCOMPARE(
            m_values.takeJobOption({u"QXBlue"_s, u"4"_s}, host->settings(), host->ppd()).outcome,
            Outcome::Accepted);
        QCOMPARE(host->settings().value(kNormalEffect),
                 QVariant(QVariantList{u"0"_s, u"0"_s, u"0"_s, u"0"_s, qint64(4), u"0"_s}));
    }

    // takeJobOption()

    void anOptionIsTakenOrRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::addColumn<Outcome>("outcome");
        QTest::addColumn<QString>("allowed");
        QTest::addColumn<QVariantMap>("written");
        const auto accepted = [](const char *row, const QString &name, const QString &value,
                                 const QVariantMap &written) {
            QTest::newRow(row) << name << value << Outcome::Accepted << QString() << written;
        };
        const auto refused = [](const char *row, const QString &name, const QString &value,
                                const QString &allowed) {
            QTest::newRow(row) << name << value << Outcome::Refused << allowed << QVariantMap();
        };
        const auto notMine = [](const char *row, const QString &name, const QString &value) {
            QTest::newRow(row) << name << value << Outcome::NotMine << QString() << QVariantMap();
        };
        const QString sleep = u"QXSleepTime"_s;
        const auto minutes = [](const QString &value) {
            return QVariantMap{{kSleepMode, u"Custom"_s}, {kSleep, value}};
        };
        accepted("sleep: the lowest", sleep, u"Custom.1"_s, minutes(u"1"_s));
        accepted("sleep: the highest", sleep, u"Custom.99"_s, minutes(u"99"_s));
        accepted("sleep: in braces", sleep, u"{Time=12}"_s, minutes(u"12"_s));
        accepted("sleep: a leading zero", sleep, u"Custom.012"_s, minutes(u"12"_s));
        accepted("sleep: automatic", sleep, u"Default"_s,
                 {{kSleepMode, u"Default"_s}, {kSleep, u"Default"_s}});
        for (const QString &bad :
             {u"Custom.0"_s, u"Custom.100"_s, u"Custom.-5"_s, u"Custom."_s, u"Custom"_s,
              u"Custom.12min"_s, u"Custom.1.5"_s, u"Custom.99999999999999999999"_s, u"{Time=100}"_s,
              u"{Span=12}"_s, u"{Time=12"_s, u"{"_s}) {
            refused(qPrintable(u"sleep: "_s + bad), sleep, bad, u"Custom.1 … Custom.99"_s);
        }
        notMine("sleep: a plain number", sleep, u"12"_s);
        notMine("sleep: an unknown choice", sleep, u"Never"_s);

        const QString density = u"QXDensityAdjustment"_s;
        accepted("density: custom", density, u"Custom.-6"_s, {{kDensity, u"-6"_s}});
        accepted("density: a plain number", density, u"6"_s, {{kDensity, u"6"_s}});
        accepted("density: with its sign", density, u"+3"_s, {{kDensity, u"3"_s}});
        accepted("density: in braces", density, u"{Density=-1}"_s, {{kDensity, u"-1"_s}});
        accepted("density: the printer's own", density, u"0"_s, {{kDensity, u"0"_s}});
        for (const QString &bad :
             {u"7"_s, u"-7"_s, u"Custom.7"_s, u"dark"_s, u""_s, u"{Time=1}"_s, u"1 "_s})
            refused(qPrintable(u"density: \""_s + bad + u'"'), density, bad, u"-6 … 6"_s);

        const QString red = u"QXRed"_s;
        accepted(
            "red: the lowest", red, u"-20"_s,
            {{kNormalEffect, QVariantList{u"0"_s, u"0"_s, qint64(-20), u"0"_s, u"0"_s, u"0"_s}}});
        accepted(
            "red: with its sign", red, u"+20"_s,
            {{kNormalEffect, QVariantList{u"0"_s, u"0"_s, qint64(20), u"0"_s, u"0"_s, u"0"_s}}});
        for (const QString &bad : {u"21"_s, u"-21"_s, u"rose"_s, u""_s, u"1.5"_s})
            refused(qPrintable(u"red: \""_s + bad + u'"'), red, bad, u"-20 … 20"_s);

        notMine("another option", u"QXMediaType"_s, u"Plain"_s);
        notMine("other letter case", u"qxred"_s, u"3"_s);
        notMine("an entry's own key", QString(kDensity), u"3"_s);
    }
    void anOptionIsTakenOrRefused()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        QFETCH(Outcome, outcome);
        QFETCH(QString, allowed);
        QFETCH(QVariantMap, written);
        const auto host = RecordingHost::forSamplePrinter();
        PrintSettings settings;
        const JobValueClaim claim = m_values.takeJobOption({name, value}, settings, host->ppd());
        QCOMPARE(claim.outcome, outcome);
        QCOMPARE(claim.allowed, allowed);
        QCOMPARE(settings.entries(), written);
    }

    void theBoundsOfARefusalAreThePpds()
    {
        const auto host = RecordingHost::forPpd(
            withSleepTime().customInteger("QXSleepTime", "Time", "Minutes", 5, 50).text());
        PrintSettings settings;
        const JobValueClaim claim =
            m_values.takeJobOption({u"QXSleepTime"_s, u"Custom.51"_s}, settings, host->ppd());
        QCOMPARE(claim.outcome, Outcome::Refused);
        QCOMPARE(claim.allowed, u"Custom.5 … Custom.50"_s);
    }

    void anEffectThatIsNoChoiceIsRefused()
    {
        const auto host = RecordingHost::forPpd(
            PpdBuilder().option("QXRed", "Red", "0", {{"0", "0"}, {"5", "5"}}).text());
        PrintSettings settings;
        QCOMPARE(m_values.takeJobOption({u"QXRed"_s, u"5"_s}, settings, host->ppd()).outcome,
                 Outcome::Accepted);
        const QVariantMap before = settings.entries();
        QCOMPARE(m_values.takeJobOption({u"QXRed"_s, u"6"_s}, settings, host->ppd()).outcome,
                 Outcome::Refused);
        QCOMPARE(settings.entries(), before);
    }

    void aPrinterWithoutTheOptionHasNoSuchValue_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::newRow("sleep time") << u"QXSleepTime"_s << u"Custom.12"_s;
        QTest::newRow("automatic sleep time") << u"QXSleepTime"_s << u"Default"_s;
        QTest::newRow("density") << u"QXDensityAdjustment"_s << u"2"_s;
        QTest::newRow("an effect") << u"QXRed"_s << u"2"_s;
    }
    void aPrinterWithoutTheOptionHasNoSuchValue()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        const auto host = RecordingHost::forPpd(PpdBuilder().text());
        PrintSettings settings;
        QCOMPARE(m_values.takeJobOption({name, value}, settings, host->ppd()).outcome,
                 Outcome::NotMine);
        QVERIFY(settings.entries().isEmpty());
    }

    void anEffectGoesIntoTheSetInForceAndKeepsTheOthers_data()
    {
        QTest::addColumn<QString>("colorMode");
        QTest::addColumn<QString>("colorMatching");
        QTest::addColumn<QString>("key");
        QTest::newRow("normal") << u"Auto"_s << u"Normal"_s << QString(kNormalEffect);
        QTest::newRow("vivid") << u"Auto"_s << u"Vivid"_s << QString(kVividEffect);
        QTest::newRow("mono") << u"Mono"_s << u"Vivid"_s << QString(kMonoEffect);
    }
    void anEffectGoesIntoTheSetInForceAndKeepsTheOthers()
    {
        QFETCH(QString, colorMode);
        QFETCH(QString, colorMatching);
        QFETCH(QString, key);
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(u"QXMonoColor"_s, colorMode);
        host->mark(u"QXColorMatching"_s, colorMatching);
        const QVariantList before{1, 2, 3, 4, 5, 6};
        for (const QLatin1StringView set : {kNormalEffect, kVividEffect, kMonoEffect})
            host->settings().setValue(set, before);
        QCOMPARE(m_values.takeJobOption({u"QXSaturation"_s, u"-7"_s}, host->settings(), host->ppd())
                     .outcome,
                 Outcome::Accepted);
        for (const QLatin1StringView set : {kNormalEffect, kVividEffect, kMonoEffect}) {
            const QVariantList after{1, 2, 3,
                                     4, 5, set == key ? QVariant(qint64(-7)) : QVariant(6)};
            QCOMPARE(host->settings().value(set), QVariant(after));
        }
    }

    void whatIsTakenComesOutAgain_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::newRow("sleep time") << u"QXSleepTime"_s << u"Custom.42"_s;
        QTest::newRow("density") << u"QXDensityAdjustment"_s << u"Custom.-4"_s;
        QTest::newRow("an effect") << u"QXGreen"_s << u"-13"_s;
    }
    void whatIsTakenComesOutAgain()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        const auto host = RecordingHost::forSamplePrinter();
        QCOMPARE(m_values.takeJobOption({name, value}, host->settings(), host->ppd()).outcome,
                 Outcome::Accepted);
        QVERIFY(
            m_values.jobOptions(host->settings(), host->ppd()).contains(JobOption{name, value}));
    }

    // impliedMarks()

    void storedEntriesImplyMarks_data()
    {
        QTest::addColumn<QByteArray>("ppd");
        QTest::addColumn<QVariant>("mode");
        QTest::addColumn<QList<JobOption>>("marks");
        const QByteArray printer =
            withSleepTime().customInteger("QXSleepTime", "Time", "Minutes", 1, 99).text();
        const QList<JobOption> none;
        const auto mark = [](const QString &choice) {
            return QList<JobOption>{{u"QXSleepTime"_s, choice}};
        };
        QTest::newRow("manual") << printer << QVariant(u"Custom"_s) << mark(u"Custom"_s);
        // Any fixed choice that is marked already is as good.
        QTest::newRow("automatic") << printer << QVariant(u"Default"_s) << none;
        QTest::newRow("no entry") << printer << QVariant() << none;
        QTest::newRow("manual, no custom values")
            << withSleepTime().text() << QVariant(u"Custom"_s) << none;
        QTest::newRow("no such option") << PpdBuilder().text() << QVariant(u"Default"_s) << none;
    }
    void storedEntriesImplyMarks()
    {
        QFETCH(QByteArray, ppd);
        QFETCH(QVariant, mode);
        QFETCH(QList<JobOption>, marks);
        const auto host = RecordingHost::forPpd(ppd);
        PrintSettings settings;
        if (mode.isValid())
            settings.setValue(kSleepMode, mode);
        QCOMPARE(m_values.impliedMarks(settings, host->ppd()), marks);
    }

private:
    // Of the rows' PPD and entries.
    void compareOptions()
    {
        QFETCH(QByteArray, ppd);
        QFETCH(QVariantMap, entries);
        QFETCH(QList<JobOption>, options);
        const auto host = RecordingHost::forPpd(ppd);
        PrintSettings settings;
        settings.setEntries(entries);
        QCOMPARE(m_values.jobOptions(settings, host->ppd()), options);
    }

    QXJobValues m_values;
};

QTEST_MAIN(JobValuesTest)
#include "job_values_test.moc"
