#include <QtTest>

#include <QProcess>

#include "platform/foundation/Bundle.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class BundleLocalizationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::system()); }
    void theEnvironmentChoosesTheLocalization_data();
    void theEnvironmentChoosesTheLocalization();
    void aRegionServesThoseThatWriteAlike_data();
    void aRegionServesThoseThatWriteAlike();
    void theDefaultLocaleChoosesTheLocalization_data();
    void theDefaultLocaleChoosesTheLocalization();
    void withoutAMatchTheFirstIsTaken_data();
    void withoutAMatchTheFirstIsTaken();
    void aLocalizationWithoutRegionServesEveryRegion();
    void noneIsPreferredWhereNoneIsOffered();
    void eachLocalizationIsPreferredOnce();
};

namespace {
const QStringList offered{u"English"_s, u"Japanese"_s, u"zh_CN"_s};
}

void BundleLocalizationsTest::theEnvironmentChoosesTheLocalization_data()
{
    QTest::addColumn<QStringList>("environment");
    QTest::addColumn<QString>("preferred");
    const auto row = [](const char *name, const char *environment, const char *preferred) {
        QTest::newRow(name) << QString::fromLatin1(environment).split(u' ', Qt::SkipEmptyParts)
                            << QString::fromLatin1(preferred);
    };
    row("English", "LANG=en_US.UTF-8", "English");
    row("another English", "LANG=en_GB.UTF-8", "English");
    row("Japanese", "LANG=ja_JP.UTF-8", "Japanese");
    row("simplified Chinese", "LANG=zh_CN.UTF-8", "zh_CN");
    row("Singapore writes simplified Chinese", "LANG=zh_SG.UTF-8", "zh_CN");
    row("traditional Chinese is not simplified", "LANG=zh_TW.UTF-8", "English");
    row("Hong Kong writes traditional Chinese", "LANG=zh_HK.UTF-8", "English");
    row("German is not offered", "LANG=de_DE.UTF-8", "English");
    row("C", "LANG=C", "English");
    row("C.UTF-8", "LC_ALL=C.UTF-8", "English");
    row("nothing set", "", "English");
    row("LC_ALL wins over LANG", "LANG=en_US.UTF-8 LC_ALL=ja_JP.UTF-8", "Japanese");
    row("LC_MESSAGES wins over LANG", "LANG=en_US.UTF-8 LC_MESSAGES=ja_JP.UTF-8", "Japanese");
    row("LANGUAGE wins over LANG", "LANG=en_US.UTF-8 LANGUAGE=ja", "Japanese");
    row("the second language serves", "LANG=de_DE.UTF-8 LANGUAGE=de:ja", "Japanese");
    row("all languages in the user's order", "LANG=zh_CN.UTF-8 LANGUAGE=zh_CN:ja:en",
        "zh_CN Japanese English");
    row("simplified after traditional Chinese", "LANG=zh_TW.UTF-8 LANGUAGE=zh_TW:zh_CN:en",
        "zh_CN English");
    row("English after traditional Chinese", "LANG=zh_TW.UTF-8 LANGUAGE=zh_TW:en", "English");
}

// Of two localisations in one language each serves the regions that write as its own does.
void BundleLocalizationsTest::aRegionServesThoseThatWriteAlike_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QStringList>("preferred");
    QTest::newRow("Taiwan") << u"zh_TW"_s << QStringList{u"zh_TW"_s};
    QTest::newRow("Hong Kong") << u"zh_HK"_s << QStringList{u"zh_TW"_s};
    QTest::newRow("China") << u"zh_CN"_s << QStringList{u"zh_CN"_s};
    QTest::newRow("Singapore") << u"zh_SG"_s << QStringList{u"zh_CN"_s};
    QTest::newRow("Brazil") << u"pt_BR"_s << QStringList{u"pt_BR"_s};
    QTest::newRow("Portugal") << u"pt_PT"_s << QStringList{u"pt_BR"_s};
    QTest::newRow("Austria") << u"de_AT"_s << QStringList{u"de"_s};
    QTest::newRow("Sweden") << u"sv_SE"_s << QStringList{u"English"_s};
}

void BundleLocalizationsTest::aRegionServesThoseThatWriteAlike()
{
    QFETCH(QString, locale);
    QFETCH(QStringList, preferred);
    QLocale::setDefault(QLocale(locale));
    const QStringList all{u"English"_s, u"zh_CN"_s, u"de"_s, u"pt_BR"_s, u"zh_TW"_s};
    QCOMPARE(Bundle::preferredLocalizations(all), preferred);
}

void BundleLocalizationsTest::theEnvironmentChoosesTheLocalization()
{
    QFETCH(QStringList, environment);
    QFETCH(QString, preferred);
    QProcess helper;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    const QStringList all = variables.keys();
    for (const QString &name : all) {
        if (name.startsWith("LC_"_L1) || name.startsWith("LANG"_L1))
            variables.remove(name);
    }
    for (const QString &assignment : environment)
        variables.insert(assignment.section(u'=', 0, 0), assignment.section(u'=', 1));
    helper.setProcessEnvironment(variables);
    helper.start(QStringLiteral(TEST_HELPER), offered);
    QVERIFY(helper.waitForFinished());
    QCOMPARE(helper.exitStatus(), QProcess::NormalExit);
    QCOMPARE(helper.exitCode(), 0);
    QCOMPARE(QString::fromUtf8(helper.readAllStandardOutput()), preferred);
}

void BundleLocalizationsTest::theDefaultLocaleChoosesTheLocalization_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("first");
    QTest::newRow("English") << QLocale(u"en_US"_s) << u"English"_s;
    QTest::newRow("Japanese") << QLocale(u"ja_JP"_s) << u"Japanese"_s;
    QTest::newRow("simplified Chinese") << QLocale(u"zh_CN"_s) << u"zh_CN"_s;
    QTest::newRow("Chinese without a region") << QLocale(QLocale::Chinese) << u"zh_CN"_s;
    QTest::newRow("traditional Chinese") << QLocale(u"zh_TW"_s) << u"English"_s;
    QTest::newRow("German") << QLocale(u"de_DE"_s) << u"English"_s;
    QTest::newRow("C") << QLocale::c() << u"English"_s;
}

void BundleLocalizationsTest::theDefaultLocaleChoosesTheLocalization()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, first);
    QLocale::setDefault(locale);
    QCOMPARE(Bundle::preferredLocalizations(offered).value(0), first);
}

void BundleLocalizationsTest::withoutAMatchTheFirstIsTaken_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QStringList>("localizations");
    const QStringList japaneseFirst{u"Japanese"_s, u"English"_s};
    QTest::newRow("a language that is not offered") << u"de_DE"_s << japaneseFirst;
    QTest::newRow("no language at all") << u"C"_s << japaneseFirst;
    // A name that is no language code must not pass for "no language".
    QTest::newRow("a name that is no language")
        << u"C"_s << QStringList{u"English"_s, u"Klingonese"_s};
}

void BundleLocalizationsTest::withoutAMatchTheFirstIsTaken()
{
    QFETCH(QString, locale);
    QFETCH(QStringList, localizations);
    QLocale::setDefault(QLocale(locale));
    QCOMPARE(Bundle::preferredLocalizations(localizations), localizations.first(1));
}

void BundleLocalizationsTest::aLocalizationWithoutRegionServesEveryRegion()
{
    const QStringList localizations{u"English"_s, u"de"_s};
    for (const char *locale : {"de_DE", "de_AT", "de_CH"}) {
        QLocale::setDefault(QLocale(QString::fromLatin1(locale)));
        QCOMPARE(Bundle::preferredLocalizations(localizations), QStringList{u"de"_s});
    }
}

void BundleLocalizationsTest::noneIsPreferredWhereNoneIsOffered()
{
    QVERIFY(Bundle::preferredLocalizations({}).isEmpty());
}

void BundleLocalizationsTest::eachLocalizationIsPreferredOnce()
{
    QLocale::setDefault(QLocale(u"ja_JP"_s));
    const QStringList preferred = Bundle::preferredLocalizations(offered);
    QCOMPARE(preferred.count(u"Japanese"_s), 1);
}

QTEST_GUILESS_MAIN(BundleLocalizationsTest)
#include "bundle_localizations_test.moc"
