#include <QDir>
#include <QDirIterator>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/presets/LastUsed.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kServer = u"office.example:631"_s;

Printer queue(const QString &name)
{
    Printer printer;
    printer.name = name;
    printer.origin = PrinterOrigin::Queue;
    return printer;
}

PresetContent thick()
{
    PresetContent changes;
    changes.options.insert(u"Media"_s, u"Thick"_s);
    changes.attributes.insert(u"number-up"_s, QString());
    return changes;
}

} // namespace

/// What is kept of a printer's last job.
class LastUsedTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_home;
    std::vector<std::unique_ptr<Variable>> m_variables;

    QStringList files() const
    {
        QStringList found;
        QDirIterator all(m_home->path(), {u"*.json"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (all.hasNext())
            found += all.next();
        return found;
    }

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        for (const char *name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME"})
            m_variables.push_back(std::make_unique<Variable>(name, m_home->path().toUtf8()));
    }
    void cleanup() { m_variables.clear(); }

    void eachPrinterHasItsOwn()
    {
        QVERIFY(readLastUsed(queue(u"lobby"_s), kServer).changes.isEmpty());
        QCOMPARE(writeLastUsed(queue(u"lobby"_s), kServer, thick()), QString());
        QCOMPARE(readLastUsed(queue(u"lobby"_s), kServer).changes, thick());
        QCOMPARE(readLastUsed(queue(u"Lobby"_s), kServer).changes, thick());
        QVERIFY(readLastUsed(queue(u"lobby/drafts"_s), kServer).changes.isEmpty());
        QVERIFY(readLastUsed(queue(u"lobby"_s), u"home.example"_s).changes.isEmpty());
        QVERIFY(readLastUsed(queue(u"../lobby"_s), kServer).changes.isEmpty());
        Printer device = queue(u"lobby"_s);
        device.origin = PrinterOrigin::Device;
        QVERIFY(readLastUsed(device, kServer).changes.isEmpty());
    }

    void nothingChangedIsNothingKept()
    {
        QCOMPARE(writeLastUsed(queue(u"lobby"_s), kServer, {}), QString());
        QVERIFY(files().isEmpty());
        writeLastUsed(queue(u"lobby"_s), kServer, thick());
        QCOMPARE(files().size(), 1);
        QCOMPARE(writeLastUsed(queue(u"lobby"_s), kServer, {}), QString());
        QVERIFY(files().isEmpty());
    }

    void whatIsDamagedIsNamedAndStaysAsItIs()
    {
        writeLastUsed(queue(u"lobby"_s), kServer, thick());
        const QString path = files().constFirst();
        writeFile(path, "{");
        const LastUsedReading reading = readLastUsed(queue(u"lobby"_s), kServer);
        QVERIFY(reading.changes.isEmpty() && reading.problem.contains(path));
        QVERIFY(writeLastUsed(queue(u"lobby"_s), kServer, thick()).contains(path));
        QVERIFY(writeLastUsed(queue(u"lobby"_s), kServer, {}).contains(path));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("{"));
    }

    void switchedOffItForgets()
    {
        QVERIFY(remembersLastUsed());
        writeLastUsed(queue(u"lobby"_s), kServer, thick());
        QCOMPARE(setRemembersLastUsed(false), QString());
        QVERIFY(!remembersLastUsed());
        QVERIFY(files().isEmpty());
        QCOMPARE(setRemembersLastUsed(true), QString());
        QVERIFY(remembersLastUsed());
    }
};

QTEST_GUILESS_MAIN(LastUsedTest)
#include "last_used_test.moc"
