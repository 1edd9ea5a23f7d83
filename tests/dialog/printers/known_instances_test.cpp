#include <memory>

#include <QDir>
#include <QFile>
#include <QTest>

#include "dialog/printers/KnownInstances.h"
#include "tests/dialog/support/OwnHome.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kName = u"lobby/reports"_s;
const OwnInstance kOf{u"Reports"_s, u"Model"_s};

QList<JobOption> media(const QString &value)
{
    return {{u"Media"_s, value}};
}

} // namespace

/// Instances and the list of which of them are ours: whichever of the two files cannot be written,
/// the other one does not say what is not so.
class KnownInstancesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<OwnHome> m_home;

    QString lpoptions() const { return m_home->filePath(u".cups/lpoptions"_s); }
    bool isThere() const { return KnownInstances::read().queues.hasInstance(kName); }
    bool isOurs() const { return KnownInstances::read().own.contains(kName); }
    // Neither written nor read, as a folder of that name.
    void block() const
    {
        QVERIFY(QFile::rename(lpoptions(), lpoptions() + u".aside"_s));
        QVERIFY(QDir().mkpath(lpoptions()));
    }
    void unblock() const
    {
        QVERIFY(QDir().rmdir(lpoptions()));
        QVERIFY(QFile::rename(lpoptions() + u".aside"_s, lpoptions()));
    }

private Q_SLOTS:
    void init() { m_home = std::make_unique<OwnHome>(); }
    void cleanup() { m_home.reset(); }

    // It would be somebody else's from then on.
    void whatCannotBeNotedIsNotWritten()
    {
        const QString later = u"/instances.json"_s;
        QVERIFY(QDir().mkpath(m_home->filePath(u"corvana-print"_s)));
        writeFile(OwnInstances::usualPath(), R"({"version":2,"instances":{}})");
        const QMap<QString, QString> problems = changeInstances({{kName, media(u"Card"_s)}}, kOf);
        QVERIFY2(problems.value(kName).contains(later), qPrintable(problems.value(kName)));
        QVERIFY(!isThere());
    }

    void whatStandsThereStaysOursHoweverOftenWritingFails()
    {
        QVERIFY(changeInstances({{kName, media(u"Card"_s)}}, kOf).isEmpty());
        block();
        for (const QString &value : {u"Film"_s, u"Plain"_s, u"Thick"_s, u"Thin"_s})
            QVERIFY(changeInstances({{kName, media(value)}}, kOf).contains(kName));
        unblock();
        QVERIFY(isOurs());
        QVERIFY(changeInstances({{kName, media(u"Film"_s)}}, kOf).isEmpty());
        QCOMPARE(KnownInstances::read().queues.optionsOf(kName), media(u"Film"_s));
    }

    void whatCannotBeRemovedStaysOurs()
    {
        QVERIFY(changeInstances({{kName, media(u"Card"_s)}}, kOf).isEmpty());
        block();
        QVERIFY(changeInstances({{kName, std::nullopt}}, {}).contains(kName));
        unblock();
        QVERIFY(isThere() && isOurs());
        QVERIFY(changeInstances({{kName, std::nullopt}}, {}).isEmpty());
        QVERIFY(!isThere());
        QVERIFY(OwnInstances().names().isEmpty());
    }

    void whatOthersHaveMadeOfItStays()
    {
        QVERIFY(changeInstances({{kName, media(u"Card"_s)}}, kOf).isEmpty());
        writeFile(lpoptions(), "Dest lobby/reports Media=Thick\n");
        QVERIFY(changeInstances({{kName, media(u"Film"_s)}}, kOf).contains(kName));
        QCOMPARE(KnownInstances::read().queues.optionsOf(kName), media(u"Thick"_s));
    }

    // Whatever a queue may be called, but not what libcups reads as something else.
    void namesThatWouldBeReadAsOthersAreRefused()
    {
        for (const QString &name :
             {u"lobby"_s, u"lob by/reports"_s, u"lobby/re ports"_s, u"lobby/reports/more"_s,
              u"lobby#/reports"_s, u"lobby/"_s, u"lobby/reports\n"_s, u"lobby/r\u00e9ports"_s}) {
            QVERIFY2(changeInstances({{name, media(u"Card"_s)}}, kOf).contains(name),
                     qPrintable(name));
        }
        for (const QString &name : {u"-lobby/reports"_s, u"Gr\u00f6\u00dfe/a_b.c-1"_s})
            QVERIFY2(changeInstances({{name, media(u"Card"_s)}}, kOf).isEmpty(), qPrintable(name));
    }
};

QTEST_GUILESS_MAIN(KnownInstancesTest)
#include "known_instances_test.moc"
