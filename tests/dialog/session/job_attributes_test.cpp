#include <QTest>

#include "dialog/session/JobAttributes.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

struct Samples
{
    QString name;
    QStringList taken;
    QStringList refused;
};

const QList<Samples> &samples()
{
    static const QList<Samples> all{
        {u"number-up"_s,
         {u"1"_s, u"2"_s, u"4"_s, u"6"_s, u"9"_s, u"16"_s},
         {QString(), u"0"_s, u"3"_s, u"8"_s, u"-2"_s, u"02"_s, u"2 "_s, u"2\n"_s, u"two"_s}},
        {u"page-ranges"_s,
         {u"1"_s, u"1-4"_s, u"1-4,7,9-"_s, u"-3"_s, u"3-3"_s, u"2,4,6"_s, u"999999999"_s,
          u"5-999999999"_s},
         {QString(),
          u"0"_s,
          u"-"_s,
          u"--"_s,
          u"5-3"_s,
          u"4,2"_s,
          u"1-4,4"_s,
          u"1,,3"_s,
          u"1,"_s,
          u",1"_s,
          u"9-,12"_s,
          u"1-2-3"_s,
          u"a"_s,
          u"1 - 4"_s,
          u"1-4\n"_s,
          u"1.5"_s,
          u"+1"_s,
          u"1234567890"_s,
          u"99999999999999999999"_s,
          u"0-4"_s,
          u"-0"_s,
          u"１"_s}},
        {u"orientation-requested"_s,
         {u"3"_s, u"4"_s, u"5"_s, u"6"_s},
         {QString(), u"2"_s, u"7"_s, u"portrait"_s, u"03"_s}},
        {u"fit-to-page"_s,
         {u"true"_s, u"false"_s},
         {QString(), u"True"_s, u"yes"_s, u"1"_s, u"on"_s}},
        {u"print-scaling"_s,
         {u"auto"_s, u"auto-fit"_s, u"fill"_s, u"fit"_s, u"none"_s},
         {QString(), u"Fit"_s, u"100"_s}},
        {u"collate"_s, {u"true"_s, u"false"_s}, {QString(), u"FALSE"_s, u"no"_s}},
        {u"outputorder"_s, {u"normal"_s, u"reverse"_s}, {QString(), u"Normal"_s, u"backwards"_s}},
        {u"page-set"_s, {u"all"_s, u"even"_s, u"odd"_s}, {QString(), u"Even"_s, u"none"_s}},
        {u"job-hold-until"_s,
         {u"no-hold"_s, u"indefinite"_s, u"day-time"_s, u"evening"_s, u"night"_s, u"second-shift"_s,
          u"third-shift"_s, u"weekend"_s, u"00:00"_s, u"7:05"_s, u"23:59"_s, u"12:30:59"_s},
         {QString(), u"24:00"_s, u"12:60"_s, u"12:5"_s, u"12"_s, u"12:30:60"_s, u"noon"_s,
          u"12:30\n"_s, u"Night"_s}},
        {u"job-priority"_s,
         {u"1"_s, u"50"_s, u"100"_s},
         {QString(), u"0"_s, u"101"_s, u"-1"_s, u"50.0"_s, u"high"_s, u" 50"_s, u"50\n"_s,
          u"0x10"_s, u"4294967297"_s}},
        {u"job-sheets"_s,
         {u"none"_s, u"standard"_s, u"standard,none"_s, u"my-banner_1.2"_s},
         {QString(), u"a,b,c"_s, u",none"_s, u"none,"_s, u"two words"_s, u"../etc/passwd"_s,
          u"standard\n"_s}},
    };
    return all;
}

} // namespace

class JobAttributesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyAttributeHasSamplesAndAWordForThem()
    {
        QStringList sampled;
        for (const Samples &one : samples())
            sampled += one.name;
        QCOMPARE(sampled, jobAttributeNames());
        for (const QString &name : jobAttributeNames()) {
            QVERIFY(jobAttribute(name));
            QVERIFY(!jobAttribute(name)->allowed.isEmpty());
        }
    }

    void values_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("taken");
        for (const Samples &one : samples()) {
            for (const QString &value : one.taken)
                QTest::newRow(qUtf8Printable(u"%1=%2"_s.arg(one.name, value)))
                    << one.name << value << true;
            for (const QString &value : one.refused)
                QTest::newRow(qUtf8Printable(u"%1=%2 refused"_s.arg(
                    one.name, QString(value).replace(u'\n', u"<newline>"_s))))
                    << one.name << value << false;
        }
    }
    void values()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        QFETCH(bool, taken);
        const JobAttribute *attribute = jobAttribute(name);
        QVERIFY(attribute);
        QCOMPARE(attribute->accepts(value), taken);
    }

    void otherNamesAreNoAttributes_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("unknown") << u"staple"_s;
        QTest::newRow("empty") << QString();
        QTest::newRow("other case") << u"Number-Up"_s;
        QTest::newRow("the number of copies has an option of its own") << u"copies"_s;
        QTest::newRow("raw data would skip every setting") << u"raw"_s;
    }
    void otherNamesAreNoAttributes()
    {
        QFETCH(QString, name);
        QVERIFY(!jobAttribute(name));
    }
};

QTEST_GUILESS_MAIN(JobAttributesTest)

#include "job_attributes_test.moc"
