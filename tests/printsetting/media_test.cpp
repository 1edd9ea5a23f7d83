#include <QTest>

#include "platform/toolkit/PopUpButton.h"
#include "tests/printsetting/PrintSettingProbe.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

struct Market
{
    const char *name;
    QString language;
    int model;
    QString inhibited; // null: nothing
    QString usual;
    bool japanese;
    bool thin;
};

const Market kMarkets[] = {
    {"English, model 2", u"en"_s, 2, u"PostCard"_s, u"Plain"_s, false, false},
    {"English, model 3", u"en"_s, 3, u"PostCard"_s, u"Plain"_s, false, false},
    {"German", u"de"_s, 2, u"PostCard"_s, u"Plain"_s, false, false},
    {"Traditional Chinese", u"zh_TW"_s, 2, u"PostCard"_s, u"Plain"_s, false, false},
    {"a language without texts", u"sv"_s, 2, u"PostCard"_s, u"Plain"_s, false, false},
    {"Japanese, model 2", u"ja"_s, 2, QString(), u"Thin"_s, true, true},
    {"Japanese, model 3", u"ja"_s, 3, u"BOND"_s, u"Thin"_s, true, true},
    {"Japanese, model 5", u"ja"_s, 5, u"BOND"_s, u"Thin"_s, true, true},
    {"Simplified Chinese, model 2", u"zh_CN"_s, 2, u"PostCard"_s, u"Thin"_s, false, true},
    {"Simplified Chinese, model 3", u"zh_CN"_s, 3, u"PostCard"_s, u"Plain"_s, false, false},
};

} // namespace

/// Which media a printer offers and prefers, by the user's language and by its model.
class MediaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void marketsHaveTheirMedia_data()
    {
        QTest::addColumn<int>("index");
        for (size_t i = 0; i < std::size(kMarkets); ++i)
            QTest::newRow(kMarkets[i].name) << static_cast<int>(i);
    }
    void marketsHaveTheirMedia()
    {
        QFETCH(int, index);
        const Market &market = kMarkets[index];
        const UserLanguage user(market.language);
        const TestBundle bundle = TestBundle::built();
        const auto host = RecordingHost::forPpd(samplePpd(market.model));
        PrintSettingProbe panel(host);
        panel.setMode(kModeJapanese, !market.japanese);
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.hasMode(kModeJapanese), market.japanese);
        QCOMPARE(panel.hasMode(kModeThinPaperDefault), market.thin);
        QCOMPARE(panel.inhibitedMediaType(), market.inhibited);
        QCOMPARE(panel.inhibitedMediaType().isNull(), market.inhibited.isNull());
        QCOMPARE(panel.defaultMediaType(), market.usual);

        QVERIFY(panel.panelView());
        panel.willShow();
        QVERIFY(panel.mediaTypePopup->count() >= 10);
        for (const QString &medium : {u"PostCard"_s, u"BOND"_s, u"Plain"_s, u"Thin"_s}) {
            const bool offered = popup::indexOfItemWithRepresentedObject(panel.mediaTypePopup,
                                                                         QVariant(medium)) >= 0;
            QVERIFY2(offered == (medium != market.inhibited), qUtf8Printable(medium));
        }
    }

    void theUsualMediumIsImposedWhereNothingIsMarked()
    {
        const UserLanguage user(u"ja"_s);
        const TestBundle bundle = TestBundle::built();
        const auto host = RecordingHost::forSamplePrinter();
        host->unmark(u"QXMediaType"_s);
        PrintSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QCOMPARE(host->asked(), QStringList{u"QXMediaType=Thin"_s});
        QCOMPARE(panel.stored(u"QXMediaType"_s), u"Thin"_s);
    }

    void thePaperDecidesBeforeTheLanguage_data()
    {
        QTest::addColumn<bool>("envelope");
        QTest::addColumn<QString>("paper");
        QTest::addColumn<bool>("japanese");
        QTest::addColumn<QString>("medium");
        QTest::newRow("an envelope") << true << u"EnvDL"_s << false << u"Env"_s;
        QTest::newRow("an envelope before a post card")
            << true << u"Postcard"_s << true << u"Env"_s;
        QTest::newRow("a post card in Japan") << false << u"Postcard"_s << true << u"PostCard"_s;
        QTest::newRow("a post card elsewhere") << false << u"Postcard"_s << false << u"Thick"_s;
        QTest::newRow("capitalised as the medium") << false << u"PostCard"_s << true << u"Thin"_s;
        QTest::newRow("any other paper") << false << u"A4"_s << false << u"Plain"_s;
    }
    void thePaperDecidesBeforeTheLanguage()
    {
        QFETCH(bool, envelope);
        QFETCH(QString, paper);
        QFETCH(bool, japanese);
        QFETCH(QString, medium);
        const UserLanguage user(japanese ? u"ja"_s : u"en"_s);
        const TestBundle bundle = TestBundle::built();
        PrintSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        panel.setMode(kModeEnvelopePaper, envelope);
        panel.paperName = paper;
        QCOMPARE(panel.defaultMediaType(), medium);
    }

    void everyRestoreLooksAtTheLanguageAgain()
    {
        const TestBundle bundle = TestBundle::built();
        PrintSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        QVERIFY(!panel.hasMode(kModeJapanese));
        const UserLanguage user(u"ja"_s);
        panel.restoreValuesAndReturnError(nullptr);
        QVERIFY(panel.hasMode(kModeJapanese));
    }
};

QTEST_MAIN(MediaTest)
#include "media_test.moc"
