#include <ctime>

#include <QTest>

#include "dialog/session/JobAttributes.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
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
        {u"sides-by-hand"_s,
         {u"no"_s, u"long-edge"_s, u"short-edge"_s},
         {QString(), u"yes"_s, u"two-sided-long-edge"_s, u"long-edge "_s}},
        {u"put-back"_s, {u"face-down"_s, u"face-up"_s}, {QString(), u"down"_s, u"face-up "_s}},
        {u"number-up"_s,
         {u"1"_s, u"2"_s, u"4"_s, u"6"_s, u"9"_s, u"16"_s},
         {QString(), u"0"_s, u"3"_s, u"8"_s, u"-2"_s, u"02"_s, u"2 "_s, u"2\n"_s, u"two"_s}},
        {u"number-up-layout"_s, {u"lrtb"_s, u"tbrl"_s}, {QString(), u"ltrb"_s, u"lrtb "_s}},
        {u"booklet"_s,
         {u"no"_s, u"left"_s, u"right"_s},
         {QString(), u"up"_s, u"true"_s, u"left "_s}},
        {u"repeat"_s, {u"1"_s, u"2"_s, u"16"_s}, {QString(), u"0"_s, u"3"_s, u"-2"_s}},
        {u"page-border"_s,
         {u"none"_s, u"single"_s, u"double-thick"_s},
         {QString(), u"thick"_s, u"None "_s}},
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
        {u"page-set"_s, {u"all"_s, u"even"_s, u"odd"_s}, {QString(), u"none"_s}},
        {u"orientation-requested"_s,
         {u"3"_s, u"4"_s, u"5"_s, u"6"_s},
         {QString(), u"2"_s, u"7"_s, u"sideways"_s, u"03"_s}},
        {u"fit-to-page"_s, {u"true"_s, u"false"_s}, {QString(), u"1"_s, u"perhaps"_s, u"true "_s}},
        {u"print-scaling"_s,
         {u"auto"_s, u"auto-fit"_s, u"fill"_s, u"fit"_s, u"none"_s},
         {QString(), u"100"_s}},
        {u"scaling"_s, {u"1"_s, u"100"_s, u"800"_s}, {QString(), u"0"_s, u"801"_s, u"50.5"_s}},
        {u"natural-scaling"_s, {u"1"_s, u"800"_s}, {QString(), u"0"_s, u"-1"_s, u"50%"_s}},
        {u"ppi"_s, {u"1"_s, u"9600"_s}, {QString(), u"0"_s, u"9601"_s, u"99999999999"_s}},
        {u"position"_s, {u"center"_s, u"bottom-right"_s}, {QString(), u"middle"_s}},
        {u"mirror"_s, {u"true"_s, u"false"_s}, {QString(), u"2"_s}},
        {u"page-left"_s, {u"0"_s, u"36"_s, u"28.35"_s, u"9999"_s}, {QString(), u"-1"_s, u"1cm"_s}},
        {u"page-right"_s, {u"36"_s}, {QString(), u"10000"_s}},
        {u"page-top"_s, {u"36"_s}, {QString(), u"3,5"_s}},
        {u"page-bottom"_s, {u"36"_s}, {QString(), u"36\n"_s}},
        {u"cpi"_s, {u"1"_s, u"12"_s, u"16.5"_s, u"100"_s}, {QString(), u"0"_s, u"0.5"_s, u"101"_s}},
        {u"lpi"_s, {u"6"_s, u"8"_s}, {QString(), u"0"_s, u"six"_s}},
        {u"columns"_s, {u"1"_s, u"3"_s}, {QString(), u"0"_s, u"1.5"_s, u"101"_s}},
        {u"wrap"_s, {u"true"_s, u"false"_s}, {QString(), u"0"_s}},
        {u"prettyprint"_s, {u"true"_s, u"false"_s}, {QString(), u"1"_s}},
        {u"collate"_s, {u"true"_s, u"false"_s}, {QString(), u"0"_s}},
        {u"outputorder"_s, {u"normal"_s, u"reverse"_s}, {QString(), u"backwards"_s}},
        {u"job-hold-until"_s,
         {u"no-hold"_s, u"indefinite"_s, u"day-time"_s, u"evening"_s, u"night"_s, u"second-shift"_s,
          u"third-shift"_s, u"weekend"_s, u"00:00"_s, u"7:05"_s, u"23:59"_s, u"12:30:59"_s},
         {QString(), u"24:00"_s, u"12:60"_s, u"12:5"_s, u"12"_s, u"12:30:60"_s, u"noon"_s,
          u"12:30\n"_s}},
        {u"job-priority"_s,
         {u"1"_s, u"50"_s, u"100"_s},
         {QString(), u"0"_s, u"101"_s, u"-1"_s, u"50.0"_s, u"high"_s, u" 50"_s, u"50\n"_s,
          u"0x10"_s, u"4294967297"_s}},
        {u"job-sheets"_s,
         {u"none"_s, u"standard"_s, u"standard,none"_s, u"my-banner_1.2"_s},
         {QString(), u"a,b,c"_s, u",none"_s, u"none,"_s, u"two words"_s, u"../etc/passwd"_s,
          u"standard\n"_s}},
        {u"job-billing"_s,
         {u"Accounts 12"_s, u"経理"_s, QString(255, u'x')},
         {QString(), QString(256, u'x'), QString(100, u'経'), u"a\nb"_s}},
        {u"job-cancel-after"_s,
         {u"1"_s, u"3600"_s, u"999999"_s},
         {QString(), u"0"_s, u"-1"_s, u"1h"_s, u"1000000"_s}},
        {u"print-color-mode"_s,
         {u"auto"_s, u"color"_s, u"monochrome"_s, u"Monochrome"_s},
         {QString(), u"grey"_s, u"monochrome "_s}},
        {u"print-quality"_s,
         {u"3"_s, u"4"_s, u"5"_s, u"draft"_s, u"High"_s},
         {QString(), u"2"_s, u"6"_s, u"best"_s}},
        {u"printer-resolution"_s,
         {u"600dpi"_s, u"1200x600dpi"_s},
         {QString(), u"600"_s, u"600x"_s, u"600dpcm"_s, u"Custom.600dpi"_s}},
        {u"output-bin"_s, {u"face-down"_s, u"Upper"_s}, {QString(), u"two words"_s, u"{a}"_s}},
        {u"finishings"_s, {u"3"_s, u"4,5"_s, u"staple"_s}, {QString(), u"4,"_s, u"4 5"_s, u"4a"_s}},
        {u"media-source"_s, {u"tray-1"_s, u"Lower"_s}, {QString(), u"a,b"_s}},
        {u"media-type"_s, {u"stationery"_s}, {QString(), u"a/b"_s}},
    };
    return all;
}

// What a message says is allowed.
struct Said
{
    const char *name; ///< of the attribute
    const char *text;
};
constexpr Said kSaid[] = {
    {"number-up", "1, 2, 4, 6, 9, 16"},
    {"orientation-requested",
     "3 (portrait), 4 (landscape), 5 (reverse landscape), 6 (reverse portrait)"},
    {"page-ranges", "pages and ranges in ascending order, such as 1-4,7,9-"},
    {"wrap", "true, false"},
    {"scaling", "1 to 800"},
    {"cpi", "1 to 100"},
    {"page-left", "0 to 9999 points of 1/72 inch"},
    {"job-hold-until", "no-hold, indefinite, day-time, evening, night, second-shift, third-shift, "
                       "weekend, or a time HH:MM in UTC"},
};

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
            QVERIFY(!jobAttribute(name)->allowed.text().isEmpty());
            QVERIFY(!textOfJobAttribute({name, u"1"_s}).title.isEmpty());
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

    void numbersOfIppAreSaidInWords_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("text");
        const auto row = [](const QString &name, const QString &value, const QString &text) {
            QTest::newRow(qPrintable(name + u'=' + value)) << name << value << text;
        };
        row(u"finishings"_s, u"3"_s, u"None"_s);
        row(u"finishings"_s, u"4,5"_s, u"Staple, Punch"_s);
        row(u"finishings"_s, u"staple"_s, u"Staple"_s);
        row(u"finishings"_s, u"13"_s, u"Make Booklet"_s);
        row(u"finishings"_s, u"20"_s, u"Staple (Top Left)"_s);
        row(u"finishings"_s, u"31"_s, u"Staple (Bottom, 2×)"_s);
        row(u"finishings"_s, u"25"_s, u"Edge Stitch (Top)"_s);
        row(u"finishings"_s, u"85,94"_s, u"Punch (Bottom, 4×), Fold (half-z)"_s);
        row(u"finishings"_s, u"9999"_s, u"9999"_s);
        row(u"finishings"_s, u"1073741914"_s, u"cups-fold-accordion"_s);
        row(u"finishings"_s, u"Crimp"_s, u"Crimp"_s);
        row(u"print-quality"_s, u"5"_s, u"High"_s);
        row(u"orientation-requested"_s, u"6"_s, u"Reverse Portrait"_s);
        row(u"job-collation-type"_s, u"4"_s, u"collated-documents"_s);
        row(u"vendor-number"_s, u"4"_s, u"4"_s);
        row(u"vendor-number"_s, u"0010"_s, u"0010"_s);
    }
    void numbersOfIppAreSaidInWords()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        QTEST(textOfJobAttribute({name, value}).value, "text");
    }

    void aValueHasOneSpellingInside_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("inside");
        const auto row = [](const QString &name, const QString &value, const QString &inside) {
            QTest::newRow(qPrintable(name + u'=' + value)) << name << value << inside;
        };
        row(u"number-up-layout"_s, u"LRTB"_s, u"lrtb"_s);
        row(u"page-set"_s, u"Even"_s, u"even"_s);
        row(u"fit-to-page"_s, u"True"_s, u"true"_s);
        row(u"fit-to-page"_s, u"Yes"_s, u"true"_s);
        row(u"collate"_s, u"off"_s, u"false"_s);
        row(u"orientation-requested"_s, u"landscape"_s, u"4"_s);
        row(u"orientation-requested"_s, u"Reverse-Portrait"_s, u"6"_s);
        row(u"print-quality"_s, u"High"_s, u"5"_s);
        row(u"finishings"_s, u"Saddle-Stitch"_s, u"8"_s);
        row(u"job-hold-until"_s, u"Night"_s, u"night"_s);
        row(u"job-billing"_s, u"Accounts"_s, u"Accounts"_s);
    }
    void aValueHasOneSpellingInside()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        QTEST(jobAttribute(name)->allowed.inOneSpelling(value).value_or(QString()), "inside");
    }

    void whatIsSaidOfTheValuesIsWhatIsChecked()
    {
        for (const QString &name : jobAttributeNames()) {
            const JobAttribute *attribute = jobAttribute(name);
            const AllowedValues &allowed = attribute->allowed;
            const QString text = allowed.text();
            QVERIFY2(!allowed.words.empty() || allowed.range || allowed.form, qPrintable(name));
            for (const AllowedValues::Word &word : allowed.words) {
                QVERIFY2(attribute->accepts(word.value), word.value.data());
                QVERIFY2(text.contains(word.value), qPrintable(text));
                QVERIFY2(!attribute->accepts(QString(word.value).toUpper() + u'x'),
                         word.value.data());
            }
            if (allowed.range) {
                const auto &[least, most, isWhole, unit] = *allowed.range;
                QVERIFY2(text.startsWith(u"%1 to %2"_s.arg(least).arg(most)), qPrintable(text));
                QVERIFY2(attribute->accepts(QString::number(least)), qPrintable(name));
                QVERIFY2(attribute->accepts(QString::number(most)), qPrintable(name));
                QVERIFY2(!attribute->accepts(QString::number(least - 1)), qPrintable(name));
                QVERIFY2(!attribute->accepts(QString::number(most + 1)), qPrintable(name));
                const QString between = QString::number((least + most) / 2, 'f', 2);
                QCOMPARE(attribute->accepts(between), !isWhole);
                QVERIFY2(text.endsWith(unit), qPrintable(text));
            }
            if (allowed.form)
                QVERIFY2(text.endsWith(allowed.form->text), qPrintable(text));
            QVERIFY2(attribute->usual.isEmpty() || attribute->accepts(attribute->usual),
                     qPrintable(name));
        }
    }

    void theValuesAreSaidInOneSentence_data() { addRows(kSaid); }
    void theValuesAreSaidInOneSentence()
    {
        const Said &row = currentRow(kSaid);
        QCOMPARE(jobAttribute(QString::fromLatin1(row.name))->allowed.text(),
                 QString::fromLatin1(row.text));
    }

    void otherNamesAreNoAttributes_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("unknown") << u"staple"_s;
        QTest::newRow("empty") << QString();
        QTest::newRow("other case; whoever reads options finds it") << u"Number-Up"_s;
        QTest::newRow("the number of copies has an option of its own") << u"copies"_s;
        QTest::newRow("raw data would skip every setting") << u"raw"_s;
    }
    void otherNamesAreNoAttributes()
    {
        QFETCH(QString, name);
        QVERIFY(!jobAttribute(name));
    }

    void theSummaryCallsThemInWords_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("shown");
        QTest::newRow("a number") << u"number-up"_s << u"4"_s << u"Pages per Sheet: 4"_s;
        QTest::newRow("on") << u"collate"_s << u"true"_s << u"Collate: On"_s;
        QTest::newRow("a number that nobody knows")
            << u"orientation-requested"_s << u"4"_s << u"Orientation: Landscape"_s;
        QTest::newRow("such a number of another attribute")
            << u"job-priority"_s << u"4"_s << u"Priority: 4"_s;
        QTest::newRow("no attribute") << u"staple"_s << u"true"_s << u"staple: true"_s;
    }
    void theSummaryCallsThemInWords()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        const JobAttributeText text = textOfJobAttribute({name, value});
        QTEST(u"%1: %2"_s.arg(text.title, text.value), "shown");
    }

    // As lp and the servers take it.
    void aTimeIsSaidToBeUtc()
    {
        const QByteArray before = qgetenv("TZ");
        const auto here = [](const char *zone, const QString &time) {
            qputenv("TZ", zone);
            tzset();
            return textOfJobAttribute({u"job-hold-until"_s, time}).value;
        };
        QCOMPARE(here("UTC0", u"22:30"_s), u"22:30 UTC"_s);
        QCOMPARE(here("JST-9", u"22:30"_s), u"22:30 UTC (07:30 here)"_s);
        QCOMPARE(here("JST-9", u"evening"_s), u"Evening"_s);
        before.isNull() ? qunsetenv("TZ") : qputenv("TZ", before);
        tzset();
    }

    void olderSpellings_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("meant");
        const auto row = [](const QString &name, const QString &value, const QString &meant) {
            QTest::newRow(qPrintable(name + u'=' + value)) << name << value << meant;
        };
        row(u"landscape"_s, u"true"_s, u"orientation-requested=4"_s);
        row(u"landscape"_s, u"false"_s, u"orientation-requested=3"_s);
        row(u"landscape"_s, u"Yes"_s, u"orientation-requested=4"_s);
        row(u"landscape"_s, u"off"_s, u"orientation-requested=3"_s);
        row(u"landscape"_s, u"perhaps"_s, u"landscape=perhaps"_s);
        row(u"fitplot"_s, u"true"_s, u"fit-to-page=true"_s);
        row(u"number-up"_s, u"2"_s, u"number-up=2"_s);
        row(u"multiple-document-handling"_s, u"separate-documents-collated-copies"_s,
            u"collate=true"_s);
        row(u"multiple-document-handling"_s, u"separate-documents-uncollated-copies"_s,
            u"collate=false"_s);
        row(u"multiple-document-handling"_s, u"single-document"_s,
            u"multiple-document-handling=single-document"_s);
        row(u"resolution"_s, u"600dpi"_s, u"printer-resolution=600dpi"_s);
    }
    void olderSpellings()
    {
        QFETCH(QString, name);
        QFETCH(QString, value);
        const JobOption option = inOneSpelling({name, value});
        QTEST(option.name + u'=' + option.value, "meant");
    }
};

QTEST_GUILESS_MAIN(JobAttributesTest)

#include "job_attributes_test.moc"
