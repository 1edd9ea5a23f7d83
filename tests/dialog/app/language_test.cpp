#include <QProcessEnvironment>
#include <QTest>

#include "dialog/app/Language.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

QProcessEnvironment environmentOf(const QString &settings)
{
    QProcessEnvironment environment;
    const QStringList list = settings.split(u' ', Qt::SkipEmptyParts);
    for (const QString &setting : list)
        environment.insert(setting.section(u'=', 0, 0), setting.section(u'=', 1));
    return environment;
}

} // namespace

class LanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theEnvironmentChoosesTheLanguage_data()
    {
        QTest::addColumn<QString>("environment");
        QTest::addColumn<QString>("localization");
        QTest::addColumn<QString>("messages");
        const auto row = [](const char *name, const char *environment, const char *localization,
                            const char *messages) {
            QTest::newRow(name) << QString::fromLatin1(environment)
                                << QString::fromLatin1(localization)
                                << QString::fromLatin1(messages);
        };
        row("nothing set", "", "English", "C");
        row("C", "LANG=C", "English", "C");
        row("C with an encoding", "LC_ALL=C.UTF-8", "English", "C");
        row("POSIX", "LANG=POSIX", "English", "C");
        row("English", "LANG=en_US.UTF-8", "English", "en_US.UTF-8");
        row("another English", "LANG=en_GB.UTF-8", "English", "en_GB.UTF-8");
        row("Japanese", "LANG=ja_JP.UTF-8", "Japanese", "ja_JP.UTF-8");
        row("an encoding of old", "LANG=ja_JP.eucJP", "Japanese", "ja_JP.UTF-8");
        row("Chinese", "LANG=zh_CN.UTF-8", "zh_CN", "zh_CN.UTF-8");
        row("Singapore reads what China reads", "LANG=zh_SG.UTF-8", "zh_CN", "zh_CN.UTF-8");
        row("Taiwan reads something else", "LANG=zh_TW.UTF-8", "zh_TW", "zh_TW.UTF-8");
        row("as Hong Kong does", "LANG=zh_HK.UTF-8", "zh_TW", "zh_TW.UTF-8");
        row("and Macau", "LANG=zh_MO.UTF-8", "zh_TW", "zh_TW.UTF-8");
        row("traditional Chinese without a region", "LANGUAGE=zh_Hant LANG=en_US.UTF-8", "zh_TW",
            "zh_TW.UTF-8");
        row("simplified Chinese without a region", "LANGUAGE=zh_Hans LANG=en_US.UTF-8", "zh_CN",
            "zh_CN.UTF-8");
        row("simplified Chinese in Hong Kong", "LANGUAGE=zh_Hans_HK LANG=en_US.UTF-8", "zh_CN",
            "zh_CN.UTF-8");
        row("Chinese without a script", "LANGUAGE=zh LANG=en_US.UTF-8", "zh_CN", "zh_CN.UTF-8");
        row("German", "LANG=de_DE.UTF-8", "de", "de_DE.UTF-8");
        row("German of Austria", "LANG=de_AT.UTF-8", "de", "de_AT.UTF-8");
        row("an old locale of the euro", "LANG=de_DE@euro", "de", "de_DE.UTF-8");
        row("French", "LANG=fr_FR.UTF-8", "fr", "fr_FR.UTF-8");
        row("French of Canada", "LANG=fr_CA.UTF-8", "fr", "fr_CA.UTF-8");
        row("Spanish of Mexico", "LANG=es_MX.UTF-8", "es", "es_MX.UTF-8");
        row("Italian of Switzerland", "LANG=it_CH.UTF-8", "it", "it_CH.UTF-8");
        row("Portuguese of Brazil", "LANG=pt_BR.UTF-8", "pt_BR", "pt_BR.UTF-8");
        row("Portugal reads what there is", "LANG=pt_PT.UTF-8", "pt_BR", "pt_BR.UTF-8");
        row("Korean", "LANG=ko_KR.UTF-8", "ko", "ko_KR.UTF-8");
        row("a language without texts", "LANG=sv_SE.UTF-8", "English", "C");
        row("a language that does not exist", "LANG=xx_XX.UTF-8", "English", "C");

        row("LC_ALL first", "LC_ALL=ja_JP.UTF-8 LC_MESSAGES=zh_CN.UTF-8 LANG=en_US.UTF-8",
            "Japanese", "ja_JP.UTF-8");
        row("then LC_MESSAGES", "LC_MESSAGES=zh_CN.UTF-8 LANG=ja_JP.UTF-8", "zh_CN", "zh_CN.UTF-8");
        row("what is empty is not set", "LC_ALL= LC_MESSAGES= LANG=ja_JP.UTF-8", "Japanese",
            "ja_JP.UTF-8");
        row("other categories do not count", "LC_TIME=ja_JP.UTF-8 LANG=en_US.UTF-8", "English",
            "en_US.UTF-8");

        row("LANGUAGE before all", "LANGUAGE=ja LC_ALL=en_US.UTF-8", "Japanese", "ja_JP.UTF-8");
        row("LANGUAGE with a region", "LANGUAGE=ja_JP LANG=en_US.UTF-8", "Japanese", "ja_JP.UTF-8");
        row("the first with texts", "LANGUAGE=sv:zh_CN:ja LANG=sv_SE.UTF-8", "zh_CN",
            "zh_CN.UTF-8");
        row("English in its place", "LANGUAGE=sv:en:ja LANG=ja_JP.UTF-8", "English", "en_US.UTF-8");
        row("none of the list", "LANGUAGE=sv:nb LANG=ja_JP.UTF-8", "English", "C");
        row("the list ends at C", "LANGUAGE=sv:C:ja LANG=ja_JP.UTF-8", "English", "C");
        row("an empty list is none", "LANGUAGE= LANG=ja_JP.UTF-8", "Japanese", "ja_JP.UTF-8");
        row("a list of nothing is none", "LANGUAGE=:: LANG=ja_JP.UTF-8", "Japanese", "ja_JP.UTF-8");
        row("LANGUAGE counts for nothing in C", "LANGUAGE=ja LC_ALL=C", "English", "C");
        row("nor in POSIX", "LANGUAGE=ja LANG=POSIX", "English", "C");
        row("but in C with an encoding", "LANGUAGE=ja LANG=C.UTF-8", "Japanese", "ja_JP.UTF-8");
        row("whichever variable says so", "LANGUAGE=zh_CN LC_ALL=C.UTF-8 LANG=en_US.UTF-8", "zh_CN",
            "zh_CN.UTF-8");
        row("and it may end at C there, too", "LANGUAGE=sv:C:ja LC_ALL=C.UTF-8", "English", "C");
        row("nor without a locale", "LANGUAGE=ja", "English", "C");
    }
    void theEnvironmentChoosesTheLanguage()
    {
        QFETCH(QString, environment);
        QFETCH(QString, localization);
        QFETCH(QString, messages);
        const Language language = languageOf(environmentOf(environment));
        QCOMPARE(language.localization, localization);
        QCOMPARE(language.messagesLocale, messages);
        QVERIFY(dialogLocalizations().contains(language.localization));
    }
};

QTEST_APPLESS_MAIN(LanguageTest)

#include "language_test.moc"
