#include <set>

#include <QTest>

#include "tests/colorsetting/ColorSettingProbe.h"
#include "tests/support/Gestures.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QVariantList kZeroTexts = effectTexts({u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s});

// A printer whose effects do not start at zero, and which lacks the saturation.
PpdBuilder unusualPrinter()
{
    PpdBuilder ppd;
    ppd.option("QXBrightness", "Brightness", "3", {{"3", "3"}, {"0", "0"}});
    ppd.option("QXContrast", "Contrast", "-2", {{"-2", "-2"}});
    ppd.option("QXRed", "Red", "Low", {{"Low", "Low"}});
    ppd.option("QXGreen", "Green", "4steps", {{"4steps", "4"}});
    ppd.option("QXBlue", "Blue", "0", {{"0", "0"}});
    return ppd;
}

} // namespace

class EffectsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyEffectStandsOnceInTheTable()
    {
        std::set<Effect> effects;
        std::set<QString> keywords;
        std::set<int> tags;
        std::set<std::pair<EffectFilter, int>> codes;
        for (const EffectInfo &effect : kEffectTable) {
            QVERIFY(effects.insert(effect.effect).second);
            QVERIFY(keywords.insert(effect.keyword).second);
            QVERIFY(tags.insert(effect.tag).second);
            QVERIFY(codes.insert({effect.filter, effectCode(effect)}).second);
            QVERIFY(0 <= effectCode(effect) && effectCode(effect) <= 2);
            QCOMPARE(effectOfKeyword(effect.keyword), &effect);
        }
        QCOMPARE(tags, (std::set<int>{0, 1, 2, 3, 4, 5}));
        QVERIFY(!effectOfKeyword(u"QXGray"_s));
        QVERIFY(!effectOfKeyword(QString()));
    }

    void theSetFollowsTheModes_data()
    {
        QTest::addColumn<bool>("mono");
        QTest::addColumn<QString>("colorMatching");
        QTest::addColumn<QString>("key");
        QTest::newRow("normal") << false << u"Normal"_s << QString(kNormalEffect);
        QTest::newRow("vivid") << false << u"Vivid"_s << QString(kVividEffect);
        QTest::newRow("no matching") << false << u"None"_s << QString(kNormalEffect);
        QTest::newRow("no value") << false << QString() << QString(kNormalEffect);
        QTest::newRow("other letter case") << false << u"vivid"_s << QString(kNormalEffect);
        QTest::newRow("mono") << true << u"Normal"_s << QString(kMonoEffect);
        QTest::newRow("mono before vivid") << true << u"Vivid"_s << QString(kMonoEffect);
    }
    void theSetFollowsTheModes()
    {
        QFETCH(bool, mono);
        QFETCH(QString, colorMatching);
        QFETCH(QString, key);
        QCOMPARE(effectSetKey(mono, colorMatching), key);

        const auto host = RecordingHost::forSamplePrinter();
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        panel.setMode(kModeMono, mono);
        panel.m_outputBin.insert(u"QXColorMatching"_s, colorMatching);
        host->settings().setEntries(
            {{key, effectTexts({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s})}});
        panel.restoreEffectValues();
        QCOMPARE(panel.effects().first().toString(), u"1"_s);
        host->settings().setEntries({});
        panel.saveEffectValues();
        QCOMPARE(host->settings().entries().keys(), QStringList{key});
    }

    void storedValuesAreChecked_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QVariant>("usable");
        const auto text = [](const QString &value) { return QVariant(value); };
        QTest::newRow("the lowest") << text(u"-20"_s) << text(u"-20"_s);
        QTest::newRow("below") << text(u"-21"_s) << text(u"0"_s);
        QTest::newRow("the highest") << text(u"20"_s) << text(u"20"_s);
        QTest::newRow("above") << text(u"21"_s) << text(u"0"_s);
        QTest::newRow("a number") << QVariant(7) << QVariant(7);
        QTest::newRow("a number above") << QVariant(21) << text(u"0"_s);
        QTest::newRow("no number counts as zero") << text(u"much"_s) << text(u"much"_s);
        QTest::newRow("absent") << QVariant() << text(u"0"_s);
    }
    void storedValuesAreChecked()
    {
        QFETCH(QVariant, stored);
        QFETCH(QVariant, usable);
        QCOMPARE(usableEffectValue(stored), usable);
        QCOMPARE(usableEffectValue(stored).typeId(), usable.typeId());
    }

    void aStoredSetIsRestored_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QVariantList>("effects");
        QTest::newRow("six texts, one out of range")
            << QVariant(effectTexts({u"5"_s, u"30"_s, u"-3"_s, u"0"_s, u"0"_s, u"0"_s}))
            << effectTexts({u"5"_s, u"0"_s, u"-3"_s, u"0"_s, u"0"_s, u"0"_s});
        QTest::newRow("a list of texts")
            << QVariant(QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s})
            << effectTexts({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s});
        QTest::newRow("six numbers")
            << QVariant(QVariantList{1, 2, 3, 4, 5, -20}) << QVariantList{1, 2, 3, 4, 5, -20};
        QTest::newRow("five values")
            << QVariant(effectTexts({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s})) << kZeroTexts;
        QTest::newRow("seven values")
            << QVariant(effectTexts({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s, u"7"_s}))
            << kZeroTexts;
        QTest::newRow("an empty set") << QVariant(QVariantList()) << kZeroTexts;
        QTest::newRow("no set at all") << QVariant(u"123456"_s) << kZeroTexts;
        QTest::newRow("a number") << QVariant(6) << kZeroTexts;
        QTest::newRow("a map of six")
            << QVariant(QVariantMap{
                   {u"a"_s, 1}, {u"b"_s, 2}, {u"c"_s, 3}, {u"d"_s, 4}, {u"e"_s, 5}, {u"f"_s, 6}})
            << kZeroTexts;
        QTest::newRow("six bytes") << QVariant(QByteArray("123456")) << kZeroTexts;
        QTest::newRow("five texts in a list of texts")
            << QVariant(QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s}) << kZeroTexts;
        QTest::newRow("the ends of the range, and beyond")
            << QVariant(QVariantList{-20, 20, -21, 21, u"-20"_s, u"99999999999999999999"_s})
            << QVariantList{-20, 20, u"0"_s, u"0"_s, u"-20"_s, u"0"_s};
        QTest::newRow("an absent one among them")
            << QVariant(QVariantList{1, QVariant(), 3, 4, 5, 6})
            << QVariantList{1, u"0"_s, 3, 4, 5, 6};
        // What is no number counts as zero wherever it is used, and is kept as it is stored.
        QTest::newRow("other things than numbers and texts")
            << QVariant(QVariantList{QVariantList{9}, QVariantMap{{u"a"_s, 9}}, true, 2.5, u""_s,
                                     QByteArray("7")})
            << QVariantList{QVariantList{9}, QVariantMap{{u"a"_s, 9}}, true, 2.5,
                            u""_s,           QByteArray("7")};
        QTest::newRow("no entry") << QVariant() << kZeroTexts;
    }
    void aStoredSetIsRestored()
    {
        QFETCH(QVariant, stored);
        QFETCH(QVariantList, effects);
        const auto host = RecordingHost::forSamplePrinter();
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        host->settings().setEntries({});
        if (stored.isValid())
            host->settings().setValue(kNormalEffect, stored);
        panel.m_outputBin.insert(u"QXBrightness"_s, 9);
        panel.restoreEffectValues();
        QCOMPARE(panel.effects(), effects);
        QCOMPARE(panel.effects().first().typeId(), effects.first().typeId());

        QVERIFY(panel.panelView());
        panel.restoreEffectValues();
        QCOMPARE(panel.shownEffects(), effects);
    }

    void theFirstDefaultsAreThePrintersAndLaterOnesAreNot()
    {
        const auto host = RecordingHost::forPpd(unusualPrinter().text());
        host->answerNoPrintSettings(); // nothing is restored over the defaults
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        const QVariantList defaults{qint64(3), qint64(-2), qint64(0),
                                    qint64(4), qint64(0),  QVariant()};
        QCOMPARE(panel.effects(), defaults);
        QCOMPARE(panel.effects().first().typeId(), int(QMetaType::LongLong));
        QVERIFY2(!panel.outputBin().contains(u"QXSaturation"_s), "the printer has none");
        const QStringList order{u"QXBrightness"_s, u"QXContrast"_s, u"QXRed"_s,
                                u"QXGreen"_s,      u"QXBlue"_s,     u"QXSaturation"_s};
        QCOMPARE(panel.PPDEffectKeys, std::optional(order));

        panel.m_outputBin.insert(u"QXBrightness"_s, 7);
        QVERIFY(panel.panelView());
        panel.setEffectDefaults();
        QCOMPARE(panel.stored(u"QXBrightness"_s), u"7"_s);
        QCOMPARE(panel.shownEffects().first(), QVariant(7));
    }

    void whatTheControlsShowIsSaved()
    {
        const auto host = RecordingHost::forSamplePrinter();
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.effectContent->setValue(u"QXBrightness"_s, 20.9);
        panel.effectContent->setValue(u"QXContrast"_s, u"-5"_s);
        panel.effectContent->setValue(u"QXRed"_s, 21);
        panel.effectContent->setValue(u"QXGreen"_s, -21);
        panel.effectContent->setValue(u"QXBlue"_s, QVariant());
        panel.effectContent->setValue(u"QXSaturation"_s, -0.9);
        panel.saveEffectValues();
        const QVariantList saved{qint64(20), qint64(-5), u"0"_s, u"0"_s, qint64(0), qint64(0)};
        QCOMPARE(panel.entry(kNormalEffect), QVariant(saved));
        const QVariantList held{qint64(20),  qint64(-5), qint64(21),
                                qint64(-21), qint64(0),  qint64(0)};
        QCOMPARE(panel.effects(), held);
    }

    void withoutAViewWhatIsHeldIsSaved()
    {
        const auto host = RecordingHost::forSamplePrinter();
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        panel.m_outputBin.insert(u"QXBrightness"_s, u"4"_s);
        panel.m_outputBin.insert(u"QXContrast"_s, u"-33"_s);
        panel.m_outputBin.remove(u"QXRed"_s);
        panel.saveEffectValues();
        QCOMPARE(panel.entry(kNormalEffect),
                 QVariant(effectTexts({u"4"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s})));
    }

    void everySaveWritesTheSet_data()
    {
        QTest::addColumn<bool>("all");
        QTest::newRow("saveAllValues, before the first show") << true;
        QTest::newRow("saveValuesAndReturnError") << false;
    }
    void everySaveWritesTheSet()
    {
        QFETCH(bool, all);
        const auto host = RecordingHost::forSamplePrinter();
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        host->settings().setEntries({});
        QString error = u"untouched"_s;
        if (all)
            panel.saveAllValues();
        else
            QVERIFY(panel.saveValuesAndReturnError(&error));
        QCOMPARE(error, u"untouched"_s);
        QCOMPARE(panel.entry(kNormalEffect), QVariant(kZeroTexts));
    }

    void withoutPrintSettingsTheEffectsStay_data()
    {
        QTest::addColumn<bool>("lacksTheOperation");
        QTest::newRow("the host has no such operation") << true;
        QTest::newRow("the host has none") << false;
    }
    void withoutPrintSettingsTheEffectsStay()
    {
        QFETCH(bool, lacksTheOperation);
        const auto host = RecordingHost::forSamplePrinter();
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        const QVariantMap entries = host->settings().entries();
        if (lacksTheOperation)
            host->lack(PDECallbackOperation::printSettings);
        else
            host->answerNoPrintSettings();
        panel.m_outputBin.insert(u"QXBrightness"_s, u"9"_s);
        panel.saveEffectValues();
        panel.restoreEffectValues();
        QCOMPARE(panel.stored(u"QXBrightness"_s), u"9"_s);
        QCOMPARE(host->settings().entries(), entries);
    }

    void eachRestoreReadsTheSetInForce()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->settings().setValue(kVividEffect,
                                  effectTexts({u"1"_s, u"1"_s, u"1"_s, u"1"_s, u"1"_s, u"1"_s}));
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QCOMPARE(panel.effects(), kZeroTexts);
        host->mark(u"QXColorMatching"_s, u"Vivid"_s);
        QVERIFY(panel.restoreValuesAndReturnError(nullptr));
        QCOMPARE(panel.stored(u"QXBrightness"_s), u"1"_s);
        QCOMPARE(panel.entry(kNormalEffect), QVariant(kZeroTexts));
    }

    void aPickOfTheModeCarriesTheShownEffectsIntoItsSet()
    {
        const auto host = RecordingHost::forSamplePrinter();
        ColorSettingProbe panel(host);
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.willShow();
        panel.effectContent->setValue(u"QXBrightness"_s, 8);
        QVERIFY(pick(panel.colorMatchingMatrix, 1));
        QCOMPARE(panel.stored(u"QXColorMatching"_s), u"Vivid"_s);
        QCOMPARE(panel.entry(kVividEffect).toList().first(), QVariant(qint64(8)));
        QCOMPARE(panel.entry(kNormalEffect).toList().first().toString(), u"0"_s);
    }

private:
    TestBundle m_bundle = TestBundle::built();
};

QTEST_MAIN(EffectsTest)
#include "effects_test.moc"
