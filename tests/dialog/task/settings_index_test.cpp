#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTest>
#include <QTranslator>

#include "dialog/session/Summary.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/SettingsIndex.h"
#include "platform/pde/PDEPanel.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

struct Query
{
    const char *name;
    const char *language;
    const char *typed;
    /// The first that are found, "Setting" or "Setting: Choice", separated by "|"; empty: nothing.
    const char *first;
};

// Of the printer that no panel knows, whose texts are in three languages.
const Query kQueries[] = {
    {"a name", "en", "Staple", "Staple"},
    {"its beginning", "en", "stap", "Staple"},
    {"any case", "en", "STAPLE", "Staple"},
    {"wide letters", "en", "ｓｔａｐｌｅ", "Staple"},
    {"blanks around", "en", "  staple  ", "Staple"},
    {"a choice", "en", "top left", "Staple: Top Left"},
    {"words in another order", "en", "left staple", "Staple: Top Left"},
    {"an accent that is not typed", "en", "creme", "Paper Type: Crème Letterhead"},
    {"an accent that is typed", "en", "crème", "Paper Type: Crème Letterhead"},
    {"a name before a choice", "en", "paper", "Paper Size|Paper Source|Paper Type"},
    {"a choice before a keyword", "en", "upper", "Paper Source: Upper Tray"},
    {"a keyword", "en", "Media", "Paper Type"},
    {"a keyword of a choice", "en", "duplexnotumble", "Two-Sided: Long Edge"},
    {"a word of such a keyword", "en", "tumble", "Two-Sided: Long Edge"},
    {"a beginning before the midst", "en", "ark", "Watermark"},
    {"the whole before its beginning", "en", "tray 1", "Tray 1|Tray 10|Tray 11"},
    {"a place beside a name", "en", "finishing staple", "Staple"},
    {"a place alone", "en", "finishing", ""},
    {"copies", "en", "copies", "Copies"},
    {"an attribute", "en", "per sheet", "Pages per Sheet"},
    {"a choice of an attribute", "en", "landscape",
     "Orientation: Landscape|Orientation: Reverse "
     "Landscape"},
    {"a name of an attribute", "en", "number-up", "Pages per Sheet"},
    {"a box has no choices", "en", "collate", "Collate"},
    {"nothing", "en", "xyzzy", ""},
    {"a word too many", "en", "staple xyzzy", ""},
    {"no word", "en", "   ", ""},
    {"no password", "en", "pin", "PIN Code"},

    {"Japanese", "ja", "ステープル", "ステープル"},
    {"narrow kana", "ja", "ｽﾃｰﾌﾟﾙ", "ステープル"},
    {"a Japanese choice", "ja", "左上", "ステープル: 左上"},
    {"a wide blank", "ja", "ステープル　左上", "ステープル: 左上"},
    {"in the midst of Japanese", "ja", "方法", "給紙方法"},
    {"where the script changes", "ja", "レター", "用紙の種類: クリーム色レターヘッド"},
    {"a voiced kana is another letter", "ja", "ステーブル", ""},
    {"English in Japan", "ja", "staple", "ステープル"},
    {"an English choice in Japan", "ja", "top left", "ステープル: 左上"},
    {"an attribute in Japanese", "ja", "部単位", "部単位で印刷"},
    {"an attribute in English in Japan", "ja", "collate", "部単位で印刷"},
    {"a keyword in Japan", "ja", "Media", "用紙の種類"},

    {"Chinese", "zh_CN", "装订针", "装订针"},
    {"a Chinese choice", "zh_CN", "上层", "纸张来源: 上层纸盘"},
    {"a part of a Chinese name", "zh_CN", "类型", "纸张类型"},
    {"English in China", "zh_CN", "paper source", "纸张来源"},
};

// The run of the program has one language, in which libcups reads the texts of a PPD.
QString languageOfThisRun()
{
    const QByteArray locale = qgetenv("LC_ALL");
    for (const char *language : {"ja", "zh_CN"}) {
        if (locale.startsWith(language))
            return QLatin1StringView(language);
    }
    return u"en"_s;
}

QStringList samplePpdNames()
{
    return QDir(sourceFile(u"resources/ppd"_s)).entryList({u"*.ppd"_s}, QDir::Files);
}

} // namespace

/// What is found for which words.
class SettingsIndexTest : public QObject, private TaskScene
{
    Q_OBJECT

private:
    QTranslator m_translator;

    static QString shown(const FoundSetting &found)
    {
        return found.choice.isNull() ? found.setting.name
                                     : u"%1: %2"_s.arg(found.setting.name, found.choice);
    }
    static QStringList namesOf(const QList<FoundSetting> &all)
    {
        QStringList names;
        for (const FoundSetting &found : all)
            names += shown(found);
        return names;
    }
    void openSample(const QString &name)
    {
        QFile ppd(sourceFile(u"resources/ppd/"_s + name));
        QVERIFY(ppd.open(QIODevice::ReadOnly));
        open(request({printer(u"sample"_s, ppd.readAll())}));
        QVERIFY(task->opened());
    }
    std::optional<Setting> settingOf(const QString &keyword) const
    {
        for (const Setting &setting : settingsIndexOf(*task).settings()) {
            if (setting.keyword == keyword)
                return setting;
        }
        return {};
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QString language = languageOfThisRun();
        QLocale::setDefault(QLocale(language));
        if (language != u"en"_s) {
            QVERIFY(
                m_translator.load(u"corvana-print_"_s + language, sharedFile(u"translations"_s)));
            QCoreApplication::installTranslator(&m_translator);
        }
    }

    void theFirstThatAreFound_data()
    {
        QTest::addColumn<int>("row");
        int number = 0;
        for (const Query &query : kQueries) {
            if (languageOfThisRun() == QLatin1StringView(query.language))
                QTest::newRow(query.name) << number;
            ++number;
        }
    }
    void theFirstThatAreFound()
    {
        const Query &query = currentRow(kQueries);
        open(request(officePrinter()));
        const QList<FoundSetting> found =
            settingsIndexOf(*task).find(QString::fromUtf8(query.typed));
        const QStringList expected = QString::fromUtf8(query.first).split(u'|', Qt::SkipEmptyParts);
        if (expected.isEmpty())
            QCOMPARE(namesOf(found), QStringList());
        else
            QCOMPARE(namesOf(found).mid(0, expected.size()), expected);
    }

    void theOrderIsAlwaysTheSame()
    {
        open(request(officePrinter()));
        const SettingsIndex index = settingsIndexOf(*task);
        const QList<FoundSetting> first = index.find(u"a"_s);
        QVERIFY(first.size() > 5);
        for (int i = 0; i < 5; ++i)
            QCOMPARE(settingsIndexOf(*task).find(u"a"_s), first);
    }

    void onlyAFewChoicesOfOneSettingAreListed()
    {
        QList<PpdChoice> choices;
        for (int i = 0; i < 50; ++i) {
            const QByteArray number = QByteArray::number(i);
            choices += PpdChoice{"Fold" + number, "Fold " + number};
        }
        PpdBuilder ppd;
        ppd.option("Finish", "Finishing", "Fold0", choices);
        open(request(ppd));
        QCOMPARE(
            namesOf(settingsIndexOf(*task).find(u"fold"_s)),
            QStringList({u"Finishing: Fold 0"_s, u"Finishing: Fold 1"_s, u"Finishing: Fold 2"_s}));
        QCOMPARE(namesOf(settingsIndexOf(*task).find(u"fold 17"_s)),
                 QStringList{u"Finishing: Fold 17"_s});
    }

    void whatIsMistypedIsAnsweredWithASuggestion()
    {
        struct Row
        {
            const char *typed;
            const char *suggestion;
        };
        open(request(officePrinter()));
        const SettingsIndex index = settingsIndexOf(*task);
        for (const Row &row : {Row{"stapel", "Staple"}, Row{"watermrak", "Watermark"},
                               Row{"ppaer type", "Paper type"}, Row{"xyzzy", ""}, Row{"zq", ""}}) {
            QVERIFY(index.find(QLatin1StringView(row.typed)).isEmpty());
            QCOMPARE(index.suggestionFor(QLatin1StringView(row.typed)),
                     QLatin1StringView(row.suggestion));
        }
    }

    void eachSettingIsThereOnce_data()
    {
        QTest::addColumn<QString>("ppd");
        for (const QString &ppd : samplePpdNames())
            QTest::newRow(qPrintable(ppd)) << ppd;
    }
    void eachSettingIsThereOnce()
    {
        QFETCH(QString, ppd);
        openSample(ppd);
        const QList<Setting> settings = settingsIndexOf(*task).settings();
        QStringList keywords;
        for (const Setting &setting : settings) {
            QVERIFY2(!keywords.contains(setting.keyword), qPrintable(setting.keyword));
            QVERIFY2(!setting.name.isEmpty(), qPrintable(setting.keyword));
            QVERIFY2(!setting.place.titles.isEmpty(), qPrintable(setting.keyword));
            keywords += setting.keyword;
        }
        for (const ppd_option_t *option : choosableOptions(session()))
            QVERIFY2(keywords.contains(ppdKeyword(option->keyword)), option->keyword);
    }

    void whereASettingIs()
    {
        struct Row
        {
            const char *keyword;
            SettingPlace::Page page;
            QString where;
        };
        using Page = SettingPlace::Page;
        openSample(u"corvana-cl5.ppd"_s);
        for (const Row &row :
             {Row{"copies", Page::General, u"General"_s},
              Row{"Duplex", Page::General, u"General"_s},
              Row{"mirror", Page::General, u"General/More"_s},
              Row{"QXMediaType", Page::Panel, u"Print Setting"_s},
              Row{"QXSkipBlank", Page::Panel, u"Print Setting/Advanced Options/Other Options"_s},
              Row{"QXRed", Page::Panel, u"Color Setting/Color Adjustment"_s}}) {
            const auto setting = settingOf(QLatin1StringView(row.keyword));
            QVERIFY2(setting, row.keyword);
            QCOMPARE(setting->place.page, row.page);
            QCOMPARE(setting->place.titles.join(u'/'), row.where);
        }
    }

    void anOptionOfNoPageIsInTheListOfAll()
    {
        PpdBuilder ppd;
        ppd.line("*QXPrintDialogExtension: \"QXCLQuality13PDE.bundle\"");
        ppd.option("QXMediaType", "Media Type", "Plain", {{"Plain", "Plain"}, {"Thin", "Thin"}});
        ppd.onOff("QXSlowDrying", "Extra Drying Time");
        ppd.line("*OpenGroup: InstallableOptions/Options Installed")
            .onOff("Cassette", "Second Cassette")
            .line("*CloseGroup: InstallableOptions");
        open(request(ppd));
        QCOMPARE(task->opened()->panels->panels().size(), 2);
        QCOMPARE(optionsBesidePages(*task->opened()), QStringList{u"QXSlowDrying"_s});
        const auto setting = settingOf(u"QXSlowDrying"_s);
        QVERIFY(setting);
        QCOMPARE(setting->place.page, SettingPlace::Page::Options);
        QCOMPARE(setting->place.titles.constFirst(), u"All Options"_s);
        QVERIFY(!settingOf(u"Cassette"_s));
    }

    void theValueIsTheOneThatIsInForce()
    {
        openSample(u"corvana-cl5.ppd"_s);
        const auto value = [this](const char *keyword) {
            const auto setting = settingOf(QLatin1StringView(keyword));
            return setting ? valueNow(*setting, *task) : QString();
        };
        QCOMPARE(value("copies"), u"1"_s);
        QCOMPARE(value("page-ranges"), u"All"_s);
        QCOMPARE(value("number-up"), u"1"_s);
        QCOMPARE(value("QXBrightness"), u"0"_s);
        task->settings().askForCopies(3, JobSettings::By::User);
        task->setAttribute(u"number-up"_s, u"4"_s);
        task->propose(u"QXBrightness"_s, u"7"_s);
        task->propose(u"QXMediaType"_s, u"Thick"_s);
        task->propose(u"QXDensityAdjustment"_s, u"Custom.3"_s);
        QCOMPARE(value("copies"), u"3"_s);
        QCOMPARE(value("number-up"), u"4"_s);
        QCOMPARE(value("QXBrightness"), u"7"_s);
        QCOMPARE(value("QXMediaType"), u"Thick Paper"_s);
        QCOMPARE(value("QXDensityAdjustment"), u"3"_s);
    }

    // What the panels keep themselves is marked by nobody: from the list of options it reaches them
    // all the same, and what they do not take is said.
    void aValueOfThePanelsIsGivenToThePanels()
    {
        openSample(u"corvana-cl5.ppd"_s);
        const auto inJob = [this](const QString &name) {
            QStringList values;
            const OpenedPrinter &opened = *task->opened();
            for (const JobOption &option : jobOptions(*opened.session, opened.jobValues, {})) {
                if (option.name == name)
                    values += option.value;
            }
            return values.join(u'|');
        };
        task->propose(u"QXRed"_s, u"-4"_s);
        QCOMPARE(inJob(u"QXRed"_s), u"-4"_s);
        task->propose(u"QXSleepTime"_s, u"Custom.12"_s);
        QCOMPARE(inJob(u"QXSleepTime"_s), u"Custom.12"_s);
        QCOMPARE(session().markedChoice(u"QXSleepTime"_s), u"Custom"_s);
        QVERIFY(face.messages.isEmpty());
        task->propose(u"QXSleepTime"_s, u"Custom.1000"_s);
        QCOMPARE(inJob(u"QXSleepTime"_s), u"Custom.12"_s);
        QVERIFY2(face.message().contains(u"Custom.1 … Custom.99"_s), qPrintable(face.message()));
    }

    void aPasswordIsNoText()
    {
        open(request(officePrinter()));
        task->propose(u"Pin"_s, u"Custom.4711"_s);
        const auto pin = settingOf(u"Pin"_s);
        QVERIFY(pin);
        QVERIFY(!valueNow(*pin, *task).contains(u"4711"_s));
        for (const QString &text : settingsIndexOf(*task).searchedTexts())
            QVERIFY(!text.contains(u"4711"_s));
    }

    void withoutAPrinterNothingIsFound()
    {
        PrintRequest nothing = request(QList<Printer>());
        make(nothing);
        QVERIFY(settingsIndexOf(*task).find(u"copies"_s).isEmpty());
        QVERIFY(settingsIndexOf(*task).suggestionFor(u"copeis"_s).isNull());
    }
};

QTEST_MAIN(SettingsIndexTest)

#include "settings_index_test.moc"
