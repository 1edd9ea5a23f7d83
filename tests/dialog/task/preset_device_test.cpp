#include <QTest>

#include "dialog/session/OptionRequest.h"
#include "dialog/task/StartPresets.h"
#include "dialog/task/TaskPresets.h"
#include "tests/dialog/support/OwnHome.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// What sets up the printer itself is set by a preset that says so, whatever else stands in it:
/// somebody may have written it by hand.
class PresetDeviceTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<OwnHome> m_home;
    std::unique_ptr<TaskScene> m_scene;

    PrintRequest request()
    {
        PrintRequest request = m_scene->request({{u"cl5"_s, u"cl5"_s, samplePpdPath(), 5}});
        request.presetPlaces = {m_home->filePath(u"presets"_s)};
        return request;
    }
    QString sleepTime()
    {
        const PresetContent now =
            contentOf(*m_scene->task->opened(), m_scene->task->settings(), true);
        return now.options.value(u"QXSleepTime"_s);
    }
    // Two presets with the same content.
    void keep()
    {
        PrintRequest timed = request();
        timed.options = parseOptions({u"QXSleepTime=Custom.12 QXMediaType=Thick"_s});
        PrintTask &task = m_scene->open(timed);
        QCOMPARE(sleepTime(), u"Custom.12"_s);
        Preset preset;
        preset.model = task.presets().modelName();
        preset.content = contentOf(*task.opened(), task.settings(), true);
        for (const bool device : {false, true}) {
            preset.name = device ? u"Device"_s : u"Job"_s;
            preset.device = device;
            const PresetStore store(timed.presetPlaces);
            QCOMPARE(store.save(preset, PresetStore::Replacing::No), QString());
        }
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

    void atTheStart()
    {
        keep();
        PrintRequest named = request();
        named.preset = u"Device"_s;
        m_scene->open(named);
        QCOMPARE(sleepTime(), u"Custom.12"_s);
        named.preset = u"Job"_s;
        m_scene->open(named);
        QVERIFY(sleepTime() != u"Custom.12"_s);
        QCOMPARE(m_scene->session().markedChoice(u"QXMediaType"_s), u"Thick"_s);
    }

    void inTheWindow()
    {
        keep();
        PrintTask &task = m_scene->open(request());
        QTRY_COMPARE(task.presets().listing().presets.size(), 2);
        task.presets().use(u"Job"_s);
        QVERIFY(sleepTime() != u"Custom.12"_s);
        QCOMPARE(m_scene->session().markedChoice(u"QXMediaType"_s), u"Thick"_s);
        task.presets().use(u"Device"_s);
        QCOMPARE(sleepTime(), u"Custom.12"_s);
    }
};

QTEST_MAIN(PresetDeviceTest)
#include "preset_device_test.moc"
