#include <QTest>

#include "tests/dialog/task/StartValuesScene.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// A job that starts with settings which were kept from before.
class StartPresetsTest : public StartValuesScene
{
    Q_OBJECT

private:
    Preset fullPreset(const QString &options)
    {
        start();
        Preset preset{
            u"Reports"_s,
            modelOf(m_printer->session->ppd()),
            false,
            withChanges(contentOf(*m_printer->session, nullptr, {}, false), contentWith(options)),
            {}};
        m_printer.reset();
        m_settings = {};
        PresetStore(m_request.presetPlaces).save(preset, PresetStore::Replacing::Yes);
        m_request.preset = preset.name;
        return preset;
    }
    QString marked(const QString &keyword) { return m_printer->session->markedChoice(keyword); }

private Q_SLOTS:
    void withoutAnythingKeptAJobStartsWhereItStartsForEverybody()
    {
        m_request.remembersLastUsed = true;
        const StartOutcome outcome = start();
        QVERIFY(outcome.lastUsed.isEmpty() && !outcome.preset);
        QCOMPARE(outcome.kept, outcome.defaults);
        QCOMPARE(outcome.defaults.options.value(u"Media"_s), u"Plain"_s);
        QVERIFY(outcome.ignored.isEmpty() && outcome.unset.isEmpty());
    }

    void aRunThatRemembersNothingStartsWithNothingOfTheLastJob()
    {
        say(By::LastUsed, u"Media=Card"_s);
        m_request.remembersLastUsed = false;
        QVERIFY(start().lastUsed.isEmpty());
        QCOMPARE(marked(u"Media"_s), u"Plain"_s);
    }

    // Of the last job only changes are kept.
    void aDefaultThatAnAdministratorChangesLaterCounts()
    {
        say(By::LastUsed, u"Media=Film"_s);
        say(By::Queue, u"Boost=ON number-up=2"_s);
        const StartOutcome outcome = start();
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
        QCOMPARE(marked(u"Boost"_s), u"ON"_s);
        QCOMPARE(attribute(u"number-up"_s), u"2"_s);
        QCOMPARE(outcome.defaults.options.value(u"Media"_s), u"Plain"_s);
        QCOMPARE(outcome.kept.options.value(u"Media"_s), u"Film"_s);
    }

    void aPresetTakesThePlaceOfTheLastJobAsAWhole()
    {
        fullPreset(u"Media=Film"_s);
        say(By::LastUsed, u"Boost=ON number-up=2"_s);
        const StartOutcome outcome = start();
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
        QCOMPARE(marked(u"Boost"_s), u"OFF"_s);
        QVERIFY(attribute(u"number-up"_s).isNull());
        QVERIFY(outcome.preset);
        QCOMPARE(outcome.preset->stored.name, u"Reports"_s);
        QVERIFY(outcome.ignored.isEmpty() && outcome.unset.isEmpty());
    }

    void ofWhatAPresetTakesThePlaceOfNothingIsSaid()
    {
        fullPreset(u"Media=Film"_s);
        say(By::LastUsed, u"Tray=Cellar"_s);
        QCOMPARE(start().ignored, QStringList());
        m_request.preset.clear();
        m_settings = {};
        QCOMPARE(start().ignored.size(), 1);
    }

    void whatIsAskedForCountsMoreThanAPreset()
    {
        fullPreset(u"Media=Film number-up=4"_s);
        say(By::Options, u"Media=Card number-up=2"_s);
        const StartOutcome outcome = start();
        QCOMPARE(marked(u"Media"_s), u"Card"_s);
        QCOMPARE(attribute(u"number-up"_s), u"2"_s);
        QCOMPARE(outcome.kept.options.value(u"Media"_s), u"Film"_s);
        QCOMPARE(outcome.kept.attributes.value(u"number-up"_s), u"4"_s);
    }

    void anUnknownNameIsRefusedWithThoseThatThereAre()
    {
        fullPreset(u"Media=Film"_s);
        m_request.preset = u"Letters"_s;
        const StartOutcome outcome = start();
        QCOMPARE(outcome.unset.size(), 1);
        QVERIFY(outcome.unset.constFirst().contains(u"Letters"_s));
        QVERIFY(outcome.unset.constFirst().contains(u"Reports"_s));
        QCOMPARE(marked(u"Media"_s), u"Plain"_s);
    }

    void aDamagedPresetIsNamedWithItsFile()
    {
        fullPreset(u"Media=Film"_s);
        const QString path =
            PresetStore(m_request.presetPlaces).listAll().presets.constFirst().path;
        writeFile(path, "{");
        const StartOutcome outcome = start();
        QVERIFY(outcome.unset.join(u' ').contains(path));
    }

    void whatThePrinterHasNotIsNamedAndTheRestApplies()
    {
        fullPreset(u"Media=Film Tray=Cellar Stapler=Left number-up=2"_s);
        const StartOutcome outcome = start();
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
        QCOMPARE(attribute(u"number-up"_s), u"2"_s);
        const QString said = outcome.ignored.join(u'\n');
        QCOMPARE(outcome.ignored.size(), 2);
        QVERIFY2(said.contains(u"Cellar"_s) && said.contains(u"Stapler"_s), qPrintable(said));
        QVERIFY(said.startsWith(u"Reports: "_s));
        QVERIFY(outcome.unset.isEmpty());
    }

    void anAttributeThatNobodyHereKnowsIsNamed()
    {
        Preset preset = fullPreset(u"Media=Film"_s);
        preset.content.attributes.insert(u"finishing-glitter"_s, u"much"_s);
        PresetStore(m_request.presetPlaces).save(preset, PresetStore::Replacing::Yes);
        const StartOutcome outcome = start();
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
        QCOMPARE(outcome.ignored.size(), 1);
        QVERIFY2(outcome.ignored.constFirst().contains(u"finishing-glitter"_s),
                 qPrintable(outcome.ignored.constFirst()));
    }

    // Card cannot be printed on both sides.
    void ofWhatExcludesEachOtherOneIsLeftOutAndNamed()
    {
        fullPreset(u"Media=Card Duplex=DuplexNoTumble Boost=ON"_s);
        const StartOutcome outcome = start();
        QCOMPARE(marked(u"Boost"_s), u"ON"_s);
        QCOMPARE(outcome.ignored.size(), 1);
        const bool isCard = marked(u"Media"_s) == u"Card"_s;
        const bool isTwoSided = marked(u"Duplex"_s) == u"DuplexNoTumble"_s;
        QVERIFY(isCard != isTwoSided);
    }

    // Where something that nobody chose is in the way of what somebody chose, that goes.
    void whatWasChosenIsKeptBeforeWhatWasUsual()
    {
        Preset preset = fullPreset(u"Media=Card Duplex=DuplexNoTumble"_s);
        for (const QString &chosen : {u"Media"_s, u"Duplex"_s}) {
            preset.changed = {chosen};
            PresetStore(m_request.presetPlaces).save(preset, PresetStore::Replacing::Yes);
            m_settings = {};
            start();
            QCOMPARE(marked(chosen), preset.content.options.value(chosen));
        }
    }

    void aDamagedMemoryOfTheLastJobStopsNothingAndIsSaid()
    {
        say(By::LastUsed, u"Media=Film"_s);
        const QStringList files =
            QDir(m_home->filePath(u"corvana-print/last-used"_s)).entryList(QDir::Files);
        const QString path = m_home->filePath(u"corvana-print/last-used/"_s + files.constFirst());
        writeFile(path, "[]");
        const StartOutcome outcome = start();
        QCOMPARE(outcome.ignored.size(), 1);
        QVERIFY(outcome.ignored.constFirst().contains(path));
        QVERIFY(outcome.lastUsed.isEmpty());
    }

    void whatTheLastJobLeftAndThePrinterHasNotAnyMoreIsNamed()
    {
        say(By::LastUsed, u"Media=Film Tray=Cellar"_s);
        const StartOutcome outcome = start();
        QCOMPARE(marked(u"Media"_s), u"Film"_s);
        QCOMPARE(outcome.ignored.size(), 1);
        QVERIFY(outcome.ignored.constFirst().contains(u"Cellar"_s));
    }
};

QTEST_MAIN(StartPresetsTest)
#include "start_presets_test.moc"
