#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include "dialog/session/OptionRequest.h"
#include "dialog/task/TaskHistory.h"
#include "dialog/task/TaskPresets.h"
#include "tests/dialog/policy/TestPolicy.h"
#include "tests/dialog/support/OwnHome.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/PresetActs.h"
#include "tests/dialog/task/TaskScene.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Replacing = PresetStore::Replacing;

/// What becomes of a preset that is kept again, on a printer that does not take all of it.
class PresetUpdateTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<OwnHome> m_home;
    std::unique_ptr<TaskScene> m_scene;

    PrintRequest request(const QString &preset = {}, const QString &options = {})
    {
        PrintRequest request = m_scene->request(smallPrinter());
        request.presetPlaces = {m_home->filePath(u"presets"_s)};
        request.preset = preset;
        request.options = parseOptions({options});
        return request;
    }
    PrintTask &task() { return *m_scene->task; }
    TaskPresets &presets() { return task().presets(); }
    PresetStore store() const { return PresetStore({m_home->filePath(u"presets"_s)}); }
    Preset stored(const QString &name) const
    {
        const std::optional<StoredPreset> found = store().listAll().find(name);
        return found ? found->preset : Preset();
    }
    // A preset of the small printer, or of all printers.
    Preset preset(const QString &name, bool forAll, const PresetContent &content)
    {
        m_scene->open(request());
        Preset preset{name, forAll ? QString() : presets().modelName(), false, content, {}};
        preset.changed = content.options.keys() + content.attributes.keys();
        [&] { QCOMPARE(store().save(preset, Replacing::Yes), QString()); }();
        m_scene->task.reset();
        return preset;
    }
    QString done(const std::function<void()> &act) { return endOf(presets(), act); }
    QString update()
    {
        return done([&] { presets().update(); });
    }
    void propose(const QString &keyword, const QString &choice)
    {
        task().propose(keyword, choice);
        QCoreApplication::processEvents();
    }
    void openWindow(const PrintRequest &request)
    {
        m_scene->open(request);
        QTRY_VERIFY(!presets().listing().presets.isEmpty());
    }

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<OwnHome>();
        m_scene = std::make_unique<TaskScene>();
    }
    void cleanup()
    {
        m_scene.reset();
        m_home.reset();
    }

    void whatThePrinterLacksStays_data()
    {
        QTest::addColumn<bool>("atTheStart");
        QTest::newRow("named at the start") << true;
        QTest::newRow("used in the window") << false;
    }
    void whatThePrinterLacksStays()
    {
        QFETCH(bool, atTheStart);
        preset(u"All"_s, true,
               {{{u"ColorMatching"_s, u"Vivid"_s}, {u"Media"_s, u"Film"_s}},
                {{u"com.other.value"_s, 7}},
                {{u"number-up"_s, u"2"_s}}});
        openWindow(request(atTheStart ? u"All"_s : QString()));
        if (!atTheStart)
            presets().use(u"All"_s);
        propose(u"Boost"_s, u"ON"_s);
        QCOMPARE(update(), QString());
        Preset now = stored(u"All"_s);
        QCOMPARE(now.content.options, (QMap<QString, QString>{{u"ColorMatching"_s, u"Vivid"_s},
                                                              {u"Media"_s, u"Film"_s},
                                                              {u"Boost"_s, u"ON"_s}}));
        QCOMPARE(now.content.entries.value(u"com.other.value"_s).toInt(), 7);
        QCOMPARE(now.content.attributes.value(u"number-up"_s), u"2"_s);
        for (const QString &name : {u"ColorMatching"_s, u"Media"_s, u"Boost"_s, u"number-up"_s})
            QVERIFY2(now.changed.contains(name), qPrintable(name));
        // Once more: it is selected as it was kept.
        propose(u"Boost"_s, u"OFF"_s);
        task().setAttribute(u"number-up"_s, u"4"_s);
        QCOMPARE(update(), QString());
        now = stored(u"All"_s);
        QCOMPARE(now.content.options.value(u"ColorMatching"_s), u"Vivid"_s);
        QCOMPARE(now.content.attributes.value(u"number-up"_s), u"4"_s);
        QVERIFY(!now.changed.contains(u"Boost"_s));
    }

    void whatIsLockedStays()
    {
        preset(u"Rep"_s, false,
               {{{u"Boost"_s, u"ON"_s}, {u"Media"_s, u"Plain"_s}},
                {},
                {{u"number-up"_s, u"4"_s}, {u"mirror"_s, u"true"_s}}});
        PrintRequest locked = request(u"Rep"_s);
        locked.policy = policyFrom("[all]\nlock.Boost=OFF\nlock.number-up=1\n");
        openWindow(locked);
        QCOMPARE(m_scene->session().markedChoice(u"Boost"_s), u"OFF"_s);
        propose(u"Media"_s, u"Film"_s);
        QCOMPARE(update(), QString());
        const Preset now = stored(u"Rep"_s);
        QCOMPARE(now.content.options.value(u"Boost"_s), u"ON"_s);
        QCOMPARE(now.content.options.value(u"Media"_s), u"Film"_s);
        QCOMPARE(now.content.attributes.value(u"number-up"_s), u"4"_s);
        QCOMPARE(now.content.attributes.value(u"mirror"_s), u"true"_s);
        QVERIFY(now.changed.contains(u"Boost"_s) && now.changed.contains(u"number-up"_s));
    }

    // What the user takes away is not there any more.
    void whatIsSetNowCounts()
    {
        preset(u"Rep"_s, false, {{{u"Media"_s, u"Film"_s}}, {}, {{u"number-up"_s, u"4"_s}}});
        openWindow(request(u"Rep"_s));
        task().setAttribute(u"number-up"_s, {});
        propose(u"Media"_s, u"Plain"_s);
        QCOMPARE(update(), QString());
        const Preset now = stored(u"Rep"_s);
        QCOMPARE(now.content.options.value(u"Media"_s), u"Plain"_s);
        QVERIFY(!now.content.attributes.contains(u"number-up"_s));
        QVERIFY(now.changed.isEmpty());
    }

    void whoReplacesKeepsWhatALaterVersionKnows()
    {
        PresetContent content{{{u"Stapler2"_s, u"On"_s}, {u"Boost"_s, u"ON"_s}},
                              {{u"com.unknown"_s, u"x"_s}},
                              {{u"x-new"_s, u"1"_s}, {u"number-up"_s, u"4"_s}}};
        preset(u"One"_s, false, content);
        PrintRequest script = request({}, u"Media=Film"_s);
        script.presetToSave = u"One"_s;
        m_scene->make(script).startUnattended();
        QCOMPARE(done([&] { presets().save({u"One"_s, false, false, true}); }), QString());
        const Preset now = stored(u"One"_s);
        QCOMPARE(now.content.options.value(u"Stapler2"_s), u"On"_s);
        QCOMPARE(now.content.entries.value(u"com.unknown"_s).toString(), u"x"_s);
        QCOMPARE(now.content.attributes.value(u"x-new"_s), u"1"_s);
        QCOMPARE(now.content.options.value(u"Media"_s), u"Film"_s);
        // What is known here is replaced.
        QCOMPARE(now.content.options.value(u"Boost"_s), u"OFF"_s);
        QVERIFY(!now.content.attributes.contains(u"number-up"_s));
        QVERIFY(now.changed.contains(u"Stapler2"_s) && !now.changed.contains(u"Boost"_s));
    }

    void whatAnotherWindowHasKeptMeanwhileStays()
    {
        Preset other = preset(u"Rep"_s, false, {{{u"Media"_s, u"Film"_s}}, {}, {}});
        openWindow(request(u"Rep"_s));
        other.content.options.insert(u"Media"_s, u"Card"_s);
        QCOMPARE(store().save(other, Replacing::Yes), QString());
        propose(u"Boost"_s, u"ON"_s);
        const QString problem = update();
        QVERIFY2(problem.contains(u"“Rep” was saved elsewhere"_s), qPrintable(problem));
        QCOMPARE(stored(u"Rep"_s), other);
        QVERIFY(m_scene->face.message().contains(problem));
        QCOMPARE(m_scene->session().markedChoice(u"Boost"_s), u"ON"_s);
        // Selected again, it is known as it is.
        presets().use(u"Rep"_s);
        propose(u"Boost"_s, u"ON"_s);
        QCOMPARE(update(), QString());
        QCOMPARE(stored(u"Rep"_s).content.options.value(u"Media"_s), u"Card"_s);
        QCOMPARE(stored(u"Rep"_s).content.options.value(u"Boost"_s), u"ON"_s);
    }

    void whoSaysToReplaceItReplacesAlsoThat()
    {
        Preset other = preset(u"Rep"_s, false, {{{u"Media"_s, u"Film"_s}}, {}, {}});
        openWindow(request(u"Rep"_s));
        other.content.options.insert(u"Media"_s, u"Card"_s);
        QCOMPARE(store().save(other, Replacing::Yes), QString());
        QCOMPARE(done([&] { presets().save({u"Rep"_s, false, false, true}); }), QString());
        QCOMPARE(stored(u"Rep"_s).content.options.value(u"Media"_s), u"Film"_s);
    }

    void aNameAfterRenamingIsOfTheSamePreset()
    {
        preset(u"Rep"_s, false, {{{u"Gone"_s, u"Yes"_s}, {u"Media"_s, u"Film"_s}}, {}, {}});
        openWindow(request(u"Rep"_s));
        QCOMPARE(done([&] { presets().rename(u"Letters"_s); }), QString());
        propose(u"Boost"_s, u"ON"_s);
        QCOMPARE(update(), QString());
        QCOMPARE(stored(u"Letters"_s).content.options.value(u"Gone"_s), u"Yes"_s);
        QCOMPARE(stored(u"Letters"_s).content.options.value(u"Boost"_s), u"ON"_s);
    }

    void whatIsAskedForIsAChangeOfWhereTheJobStarts()
    {
        m_scene->open(request({}, u"number-up=2 Media=Film"_s));
        QCOMPARE(presets().selectedName(), u"Printer Defaults"_s);
        QVERIFY(presets().isChanged());
        QCOMPARE(task().history().changedSettings(), (QStringList{u"Media"_s, u"number-up"_s}));
        QCOMPARE(task().history().baseText(u"Media"_s), u"Plain Paper"_s);
        task().history().resetAll();
        QVERIFY(!presets().isChanged());
        QCOMPARE(m_scene->session().markedChoice(u"Media"_s), u"Plain"_s);
        QVERIFY(task().settings().attribute(u"number-up"_s).isNull());
    }

    void whatIsAskedForIsAChangeOfThePreset()
    {
        preset(u"Rep"_s, false, {{{u"Media"_s, u"Film"_s}}, {}, {{u"number-up"_s, u"4"_s}}});
        openWindow(request(u"Rep"_s, u"number-up=2"_s));
        QCOMPARE(task().history().changedSettings(), QStringList{u"number-up"_s});
        QCOMPARE(task().history().base().name, u"Rep"_s);
        QCOMPARE(update(), QString());
        QCOMPARE(stored(u"Rep"_s).content.attributes.value(u"number-up"_s), u"2"_s);
        QVERIFY(!presets().isChanged());
    }

    void whatIsAlwaysThereIsNoNameOfAPreset()
    {
        m_scene->open(request());
        for (const QString &name : {u"Last Used"_s, u"printer defaults"_s}) {
            const QString problem = done([&] { presets().save({name, false, false, true}); });
            QVERIFY2(problem.contains(name), qPrintable(problem));
        }
        QVERIFY(store().listAll().presets.isEmpty());
        // A file has such a name from before: it can have another one.
        QCOMPARE(done([&] { presets().save({u"Rep"_s, false, false, true}); }), QString());
        const QString path = store().listAll().presets.constFirst().path;
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QJsonObject json = QJsonDocument::fromJson(file.readAll()).object();
        file.close();
        json[u"name"_s] = u"Last Used"_s;
        writeFile(path, QJsonDocument(json).toJson());
        const Preset old = stored(u"Last Used"_s);
        QCOMPARE(old.name, u"Last Used"_s);
        QVERIFY(!store().rename(old, u"Printer Defaults"_s).isEmpty());
        QCOMPARE(store().rename(old, u"Former"_s), QString());
        QCOMPARE(store().listAll().names(), QStringList{u"Former"_s});
    }
};

QTEST_MAIN(PresetUpdateTest)
#include "preset_update_test.moc"
