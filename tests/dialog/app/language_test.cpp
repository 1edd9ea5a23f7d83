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
        row("Taiwan does not", "LANG=zh_TW.UTF-8", "English", "C");
        row("a language without texts", "LANG=de_DE.UTF-8", "English", "C");
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
        row("the first with texts", "LANGUAGE=de:zh_CN:ja LANG=de_DE.UTF-8", "zh_CN",
            "zh_CN.UTF-8");
        row("English in its place", "LANGUAGE=de:en:ja LANG=ja_JP.UTF-8", "English", "en_US.UTF-8");
        row("none of the list", "LANGUAGE=de:fr LANG=ja_JP.UTF-8", "English", "C");
        row("the list ends at C", "LANGUAGE=de:C:ja LANG=ja_JP.UTF-8", "English", "C");
        row("an empty list is none", "LANGUAGE= LANG=ja_JP.UTF-8", "Japanese", "ja_JP.UTF-8");
        row("a list of nothing is none", "LANGUAGE=:: LANG=ja_JP.UTF-8", "Japanese", "ja_JP.UTF-8");
        row("LANGUAGE counts for nothing in C", "LANGUAGE=ja LC_ALL=C", "English", "C");
        row("nor in POSIX", "LANGUAGE=ja LANG=POSIX", "English", "C");
        row("but in C with an encoding", "LANGUAGE=ja LANG=C.UTF-8", "Japanese", "ja_JP.UTF-8");
        row("whichever variable says so", "LANGUAGE=zh_CN LC_ALL=C.UTF-8 LANG=en_US.UTF-8", "zh_CN",
            "zh_CN.UTF-8");
        row("and it may end at C there, too", "LANGUAGE=de:C:ja LC_ALL=C.UTF-8", "English", "C");
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
