#include <QTest>

#include "dialog/presets/PresetContent.h"
#include "dialog/session/PpdSession.h"
#include "platform/pde/PDEPlugIn.h"
#include "tests/dialog/support/LoadedBundle.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/EffectEntries.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const PDEJobValues *jobValues()
{
    return loadedPlugIn().jobValues();
}

constexpr auto kDialog = PpdSession::Origin::Dialog;

} // namespace

/// What of a printer's settings is kept for a later job, and what is not.
class PresetContentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choicesAreKeptWithTheirCustomValuesWhole()
    {
        const auto session = sessionFor(officePrinter());
        QVERIFY(session->change(u"Sleep"_s, u"Custom.12"_s, kDialog).accepted());
        QVERIFY(session->change(u"Media"_s, u"Film"_s, kDialog).accepted());
        const PresetContent content = contentOf(*session, nullptr, {}, false);
        QCOMPARE(content.options.value(u"Sleep"_s), u"Custom.12"_s);
        QCOMPARE(content.options.value(u"Media"_s), u"Film"_s);
    }

    void passwordsAreNotKept()
    {
        const auto session = sessionFor(officePrinter());
        QVERIFY(contentOf(*session, nullptr, {}, true).options.contains(u"Media"_s));
        QVERIFY(session->change(u"Pin"_s, u"Custom.4711"_s, kDialog).accepted());
        const PresetContent content = contentOf(*session, nullptr, {}, true);
        QVERIFY(!content.options.contains(u"Pin"_s));
        for (const QString &value : content.options)
            QVERIFY(!value.contains(u"4711"_s));
    }

    // A PIN that is chosen digit by digit: the option is not kept at all, whatever is chosen.
    void digitsOfAPinAreNotKept()
    {
        const auto session = sessionFor(PpdBuilder().option(
            "AccessCode1", "Access Code", "None", {{"None", "None"}, {"1", "1"}, {"2", "2"}}));
        QVERIFY(!contentOf(*session, nullptr, {}, true).options.contains(u"AccessCode1"_s));
    }

    void whatIsBuiltInIsNotKept()
    {
        const auto session = sessionFor(PpdBuilder()
                                            .line("*OpenGroup: InstallableOptions/Installed")
                                            .onOff("Duplexer", "Duplexer")
                                            .line("*CloseGroup: InstallableOptions")
                                            .onOff("Boost", "Boost"));
        const PresetContent content = contentOf(*session, nullptr, {}, true);
        QVERIFY(!content.options.contains(u"Duplexer"_s));
        QVERIFY(content.options.contains(u"Boost"_s));
    }

    void pagesAndCopiesAreNotKept()
    {
        const auto session = sessionFor(smallPrinter());
        const PresetContent content = contentOf(*session, nullptr,
                                                {{u"number-up"_s, u"2"_s},
                                                 {u"page-ranges"_s, u"1-3"_s},
                                                 {u"page-set"_s, u"odd"_s},
                                                 {u"copies"_s, u"3"_s},
                                                 {u"raw"_s, u"true"_s},
                                                 {u"job-priority"_s, u"7"_s},
                                                 {u"Sparkle"_s, u"bright"_s}},
                                                true);
        QCOMPARE(content.attributes.keys(), (QStringList{u"job-priority"_s, u"number-up"_s}));
        QCOMPARE(withoutWishesForOneJob(content).attributes.keys(), QStringList{u"number-up"_s});
    }

    void thePanelsOwnValuesAreKeptInForceOrNotAndWhatIsDisclosedIsNot()
    {
        const auto session = sampleSession();
        PrintSettings &settings = session->printSettings();
        const QVariantList vivid{1, 2, 3, 4, 5, 6};
        settings.setValue(kVividEffect, vivid);
        settings.setValue(u"com.corvana.print.PrintSettings.someDisclosure"_s, true);
        const PresetContent content = contentOf(*session, jobValues(), {}, false);
        QCOMPARE(content.entries.value(kVividEffect).toList(), vivid);
        QVERIFY(!content.entries.contains(u"com.corvana.print.PrintSettings.someDisclosure"_s));
        QVERIFY(content.options.contains(u"QXMediaType"_s));
    }

    // A panel stores all of its values as soon as it is visited.
    void aValueThatWasNeverStoredIsWhatThatMeans()
    {
        const auto session = sampleSession();
        const PresetContent never = contentOf(*session, jobValues(), {}, true);
        for (const char *key : {kNormalEffect.data(), kVividEffect.data(), kMonoEffect.data()})
            session->printSettings().setValue(QLatin1StringView(key), QVariantList(6, u"0"_s));
        session->printSettings().setValue(u"com.corvana.print.PrintSettings.sleepmode"_s,
                                          u"Default"_s);
        QCOMPARE(contentOf(*session, jobValues(), {}, true).entries, never.entries);
        QVERIFY(!never.entries.isEmpty());
    }

    void whatSetsUpTheDeviceIsKeptOnlyWhenAskedFor()
    {
        const auto session = sampleSession();
        jobValues()->takeJobOption({u"QXSleepTime"_s, u"Custom.12"_s}, session->printSettings(),
                                   session->ppd());
        const PresetContent with = contentOf(*session, jobValues(), {}, true);
        const PresetContent without = contentOf(*session, jobValues(), {}, false);
        QCOMPARE(with.options.value(u"QXSleepTime"_s), u"Custom.12"_s);
        QVERIFY(!without.options.contains(u"QXSleepTime"_s));
        QCOMPARE(with.entries.size(), without.entries.size() + 2);
        QVERIFY(!namesIn(without, panelEntries(*session, jobValues())).contains(u"QXSleepTime"_s));
    }

    void changesAreWhatHasAnotherValueAndWhatIsTakenAway()
    {
        PresetContent before;
        before.options = {{u"Media"_s, u"Plain"_s}, {u"Tray"_s, u"Upper"_s}};
        before.attributes = {{u"number-up"_s, u"2"_s}, {u"page-border"_s, u"single"_s}};
        before.entries = {{u"a"_s, 1}, {u"b"_s, 2}};
        PresetContent now = before;
        QVERIFY(changesIn(now, before).isEmpty());
        now.options.insert(u"Media"_s, u"Card"_s);
        now.attributes.remove(u"number-up"_s);
        now.attributes.insert(u"mirror"_s, u"true"_s);
        now.entries.insert(u"b"_s, 3);
        const PresetContent changes = changesIn(now, before);
        QCOMPARE(changes.options, (QMap<QString, QString>{{u"Media"_s, u"Card"_s}}));
        QCOMPARE(changes.attributes.keys(), (QStringList{u"mirror"_s, u"number-up"_s}));
        QVERIFY(changes.attributes.value(u"number-up"_s).isNull());
        QCOMPARE(changes.entries, (QVariantMap{{u"b"_s, 3}}));
    }

    // The effects of a mode stand in one entry, and somebody has moved one slider.
    void ofAnEntryOfSeveralOptionsTheOneThatWasChangedIsNamed()
    {
        const QList<PanelEntry> entries{{u"effects"_s, {}, {u"Red"_s, u"Green"_s}},
                                        {u"others"_s, {}, {u"Blue"_s, u"Gray"_s}}};
        PresetContent changes;
        changes.options = {{u"Red"_s, u"3"_s}};
        changes.entries = {{u"effects"_s, 3}, {u"others"_s, 1}};
        // Of a mode that is not in force no option tells which it was.
        QCOMPARE(namesIn(changes, entries), (QStringList{u"Red"_s, u"Blue"_s, u"Gray"_s}));
    }

    void whatAProgramAskedForIsNotItsUsersWish()
    {
        PresetContent before;
        before.options = {{u"Media"_s, u"Plain"_s}, {u"Tray"_s, u"Upper"_s}};
        before.attributes = {{u"page-border"_s, u"single"_s}};
        PresetContent started = before;
        started.options = {{u"Media"_s, u"Card"_s}, {u"Tray"_s, u"Lower"_s}};
        started.attributes = {{u"number-up"_s, u"2"_s}};
        QCOMPARE(withoutRequest(started, before, started), before);
        PresetContent now = started;
        now.options.insert(u"Tray"_s, u"Auto"_s);
        now.attributes.insert(u"number-up"_s, u"4"_s);
        now.attributes.insert(u"page-border"_s, u"double"_s);
        PresetContent wished = before;
        wished.options.insert(u"Tray"_s, u"Auto"_s);
        wished.attributes = now.attributes;
        QCOMPARE(withoutRequest(now, before, started), wished);
    }

    void aModelIsKnownByWhatItsPpdCallsIt()
    {
        QCOMPARE(modelOf(sampleSession()->ppd()).left(8), u"Corvana "_s);
        QVERIFY(!modelOf(sampleSession()->ppd()).contains(u"PostScript"_s));
    }
};

QTEST_MAIN(PresetContentTest)
#include "preset_content_test.moc"
