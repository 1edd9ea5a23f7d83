#include <QDir>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include "dialog/presets/PresetFile.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

Preset reports()
{
    Preset preset;
    preset.name = u"Reports"_s;
    preset.model = u"Corvana CL-330 Color"_s;
    preset.content.options = {{u"Media"_s, u"Thick"_s}, {u"PageSize"_s, u"Custom.283.5x419.5"_s}};
    preset.content.entries = {{u"effects"_s, QVariantList{qlonglong(-3), u"0"_s, 2.5}},
                              {u"mode"_s, u"Custom"_s},
                              {u"on"_s, true}};
    preset.content.attributes = {{u"number-up"_s, u"2"_s}, {u"collate"_s, QString()}};
    preset.changed = QStringList{u"Media"_s};
    return preset;
}

QByteArray with(const QByteArray &members)
{
    return R"({"version": 1, "name": "A", )" + members + "}";
}

struct DamagedCase
{
    const char *name;
    QByteArray json;
    const char *problem;
};
const QList<DamagedCase> kDamaged{
    {"nothing", "", "line 1"},
    {"half of it", "{\n\"version\": 1,\n\"na", "line 3"},
    {"something behind it", "{\"version\": 1, \"name\": \"A\"}\nx", "line 2"},
    {"a list", "[]", "{ … }"},
    {"no version", R"({"name": "A"})", "version"},
    {"a later version", R"({"version": 2, "name": "A"})", "later version"},
    {"no name", R"({"version": 1})", "name"},
    {"an empty name", R"({"version": 1, "name": ""})", "name"},
    {"a name that moves the cursor", "{\"version\": 1, \"name\": \"A\\u001b[2J\"}", "name"},
    {"a name that turns what follows", "{\"version\": 1, \"name\": \"A\\u202e\"}", "name"},
    {"a model that is a number", with(R"("model": 3)"), "model"},
    {"options that are a list", with(R"("options": [])"), "options"},
    {"an option that is a number", with(R"("options": {"Media": 3})"), "Media"},
    {"an option that is nothing", with(R"("options": {"Media": null})"), "Media"},
    {"an option without a value", with(R"("options": {"Media": ""})"), "Media"},
    {"an option whose name is none", with(R"("options": {"Me dia": "A"})"), "options"},
    {"a value of two lines", with(R"("options": {"Media": "A\nB"})"), "Media"},
    {"a panel's value of an object", with(R"("panels": {"a": {"b": 1}})"), "a"},
    {"a panel's value of lists", with(R"("panels": {"a": [[1]]})"), "a"},
    {"changes that are a text", with(R"("changed": "Media")"), "changed"},
    {"a name of an option that is a number", with(R"("changed": [1])"), "changed"},
    {"the device as a text", with(R"("device": "yes")"), "device"},
    {"too deep", QByteArray(100000, '['), "line 1"},
    {"a long value", with("\"options\": {\"Media\": \"" + QByteArray(2000, 'x') + "\"}"), "Media"},
    {"a long list", with("\"panels\": {\"a\": [0" + QByteArray(",0").repeated(200) + "]}"), "a"},
};

} // namespace

/// A preset as a file, also as one of somebody who means harm.
class PresetFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrittenIsReadAgain()
    {
        const PresetReading reading = readPreset(writePreset(reports()));
        QCOMPARE(reading.problem, QString());
        QCOMPARE(*reading.preset, reports());
        QVERIFY(reading.preset->content.attributes.value(u"collate"_s).isNull());
    }

    // What panels compare with what they kept is of the same type as that.
    void numbersOfPanelsStayWholeNumbers()
    {
        const QVariantList effects =
            readPreset(writePreset(reports())).preset->content.entries.value(u"effects"_s).toList();
        QCOMPARE(effects.at(0).typeId(), int(QMetaType::LongLong));
        QCOMPARE(effects.at(1).typeId(), int(QMetaType::QString));
    }

    void whatALaterVersionHasWrittenStaysInTheFile()
    {
        const QByteArray json =
            with(R"("color": {"of": ["its", 1]}, "options": {"Media": "Thick"})");
        Preset preset = *readPreset(json).preset;
        preset.content.options.insert(u"Media"_s, u"Thin"_s);
        const QJsonObject written = readPreset(writePreset(preset)).preset->further;
        QCOMPARE(written.value(u"color"_s).toObject().value(u"of"_s).toArray().size(), 2);
    }

    void whatIsDamagedGivesNothingAndIsNamed_data() { addRows(kDamaged); }
    void whatIsDamagedGivesNothingAndIsNamed()
    {
        const DamagedCase &row = currentRow(kDamaged);
        const PresetReading reading = readPreset(row.json);
        QVERIFY(!reading.preset);
        QVERIFY2(reading.problem.contains(QString::fromUtf8(row.problem)),
                 qPrintable(reading.problem));
    }

    void tooManyValuesAreRefused()
    {
        QByteArray options = "\"options\": {\"A\": \"b\"";
        for (int i = 0; i < 5000; ++i)
            options += ", \"A" + QByteArray::number(i) + "\": \"b\"";
        QVERIFY(!readPreset(with(options + "}")).preset);
    }

    void aFileThatIsNotThereIsNoProblem()
    {
        const PresetReading reading = readPresetFile(u"/nonexistent/a.json"_s);
        QVERIFY(!reading.preset && reading.problem.isEmpty());
    }

    // Small enough to be written in one piece, when everything seems to be done.
    void aDiskThatIsFullAtTheEndLeavesTheFormerFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"a.json"_s);
        Preset preset;
        preset.name = u"Reports"_s;
        preset.content.options = {{u"Media"_s, u"Thick"_s}};
        QCOMPARE(writePresetFile(path, preset), QString());
        Preset other = preset;
        other.content.options = {{u"Media"_s, u"Thin"_s}};
        QString problem;
        {
            const FileSizeLimit limit(10);
            problem = writePresetFile(path, other);
        }
        QVERIFY2(problem.contains(path) && problem.contains(u"large"_s), qPrintable(problem));
        QCOMPARE(readPresetFile(path).preset, preset);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }

    void whatIsNoFileOrTooLargeIsNotRead()
    {
        const QTemporaryDir folder;
        const QString pipe = folder.filePath(u"pipe.json"_s);
        QCOMPARE(::mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
        QVERIFY(!readPresetFile(pipe).problem.isEmpty());
        QVERIFY(!readPresetFile(folder.path()).problem.isEmpty());
        const QString large =
            writeFile(folder.filePath(u"large.json"_s),
                      with("\"x\": 1") + QByteArray(qsizetype(kLargestPresetFile), ' '));
        QVERIFY(readPresetFile(large).problem.contains(u"larger"_s));
    }

    void everyNameHasAFileOfItsOwnAndNoneIsAPath_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name :
             {u"Reports"_s, u"reports"_s, u"../../etc/passwd"_s, u".."_s, u"."_s, u"/"_s, u""_s,
              u"報告"_s, u"报告"_s, u"-rf"_s, u"a b"_s, u"a  b"_s, u"con"_s, QString(100, u'文'),
              QString(300, u'a'), QString(301, u'a')})
            QTest::newRow(qPrintable(name.left(20) + QString::number(name.size()))) << name;
    }
    void everyNameHasAFileOfItsOwnAndNoneIsAPath()
    {
        static QStringList former;
        QFETCH(QString, name);
        const QString file = fileNameFor(name);
        static const QRegularExpression safe(u"^[A-Za-z0-9][A-Za-z0-9-]{0,63}$"_s);
        QVERIFY2(safe.match(file).hasMatch(), qPrintable(file));
        QVERIFY(!former.contains(file));
        former += file;
    }
};

QTEST_GUILESS_MAIN(PresetFileTest)
#include "preset_file_test.moc"
