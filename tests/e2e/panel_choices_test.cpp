#include <QDir>
#include <QTest>

#include "dialog/app/Translations.h"
#include "tests/e2e/DialogDriver.h"
#include "tests/e2e/PanelChoices.h"
#include "tests/e2e/PpdLines.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

/// Options without a row: a sleep time whose minutes the panel does not know, and paper curl as the
/// only improvement. They keep what the queue has.
const QStringList kWithoutRow{u"corvana-cl3 QXSleepTime"_s, u"corvana-ml3 QXSleepTime"_s,
                              u"corvana-ml3 QXLessPaperCurl"_s};

} // namespace

/// From each choice that the Print Setting panel offers to the data that the printer gets and the
/// line that the summary tells, for each sample printer, in the language of the process.
class PanelChoicesTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_preferences;
    QString m_language; // as PPDs name it

    QString on() const
    {
        return m_language == u"ja"_s ? u"する"_s : m_language == u"zh_CN"_s ? u"开"_s : u"On"_s;
    }
    QString off() const
    {
        return m_language == u"ja"_s ? u"しない"_s : m_language == u"zh_CN"_s ? u"关"_s : u"Off"_s;
    }
    /// Media that this language has no use for; empty where every one is offered.
    QString inhibitedMedium(const PpdLines &ppd) const
    {
        if (m_language != u"ja"_s)
            return u"PostCard"_s;
        return ppd.modelNumber() < 3 ? QString() : u"BOND"_s;
    }
    /// What the panel has to offer by the printer's PPD, numbers apart.
    QStringList expectedChoices(const QString &printer, const PpdLines &ppd,
                                const QString &keyword) const
    {
        if (kWithoutRow.contains(printer + u' ' + keyword))
            return {};
        QStringList choices = ppd.choices(keyword);
        choices.removeIf([&](const QString &choice) {
            return ppd.text(keyword, choice).startsWith(u"Hagaki"_s) ||
                   choice == u"PlainDuplex"_s ||
                   (keyword == u"QXMediaType"_s && choice == inhibitedMedium(ppd));
        });
        return choices;
    }
private Q_SLOTS:
    void initTestCase()
    {
        qputenv("XDG_CONFIG_HOME", m_preferences.path().toLocal8Bit());
        m_language = QString::fromLatin1(qgetenv("LC_ALL").left(5)).section(u'.', 0, 0);
        if (m_language == u"ja_JP"_s)
            m_language = u"ja"_s;
        installTranslations(*qApp, corvana::test::sharedFile(u"translations"_s));
    }

    void everyChoiceReachesThePrinterAndTheSummary_data()
    {
        QTest::addColumn<int>("leastChoices"); // against a PPD that was not read
        QTest::newRow("corvana-cl2") << 25;
        QTest::newRow("corvana-cl3") << 25;
        QTest::newRow("corvana-cl4") << 20;
        QTest::newRow("corvana-cl5") << 35;
        QTest::newRow("corvana-mf4") << 20;
        QTest::newRow("corvana-ml3") << 10;
        const QStringList files = QDir(corvana::test::sourceFile(u"resources/ppd"_s))
                                      .entryList({u"*.ppd"_s}, QDir::Files);
        QCOMPARE(files.size(), 6);
    }
    void everyChoiceReachesThePrinterAndTheSummary()
    {
        QFETCH(int, leastChoices);
        const QString printer = QString::fromLatin1(QTest::currentDataTag());
        const PpdLines ppd(printer, m_language);
        QList<PanelChoice> cases;
        {
            DialogDriver driver(printer);
            for (const PanelOption &option : panelOptions()) {
                const QStringList expected = expectedChoices(printer, ppd, option.keyword);
                const QStringList offered = offeredChoices(driver, ppd, option);
                QStringList sortedExpected = expected;
                QStringList sortedOffered = offered;
                sortedExpected.sort();
                sortedOffered.sort();
                QCOMPARE(option.keyword + u": "_s + sortedOffered.join(u' '),
                         option.keyword + u": "_s + sortedExpected.join(u' '));
                for (const QString &choice : offered)
                    cases += {option.keyword, choice};
            }
        }
        QVERIFY2(cases.size() >= leastChoices, qPrintable(QString::number(cases.size())));
        QSet<PanelChoice> printed;
        for (const PanelJob &job : jobsFor(ppd, cases)) {
            DialogDriver driver(printer);
            QString problem = chooseAll(driver, job);
            QVERIFY2(problem.isEmpty(), qUtf8Printable(problem));
            problem = wrongLine(ppd, job, driver.summary(), {on(), off()});
            QVERIFY2(problem.isEmpty(), qUtf8Printable(problem));
            const QByteArray data = driver.print();
            QVERIFY2(!data.isEmpty(), qUtf8Printable(driver.message()));
            problem = wrongCode(ppd, job, data);
            QVERIFY2(problem.isEmpty(), qUtf8Printable(problem));
            for (const auto &choice : job)
                printed += choice;
        }
        QCOMPARE(printed.size(), cases.size());
        qInfo("%lld choices", static_cast<long long>(printed.size()));
    }
};

QTEST_MAIN(PanelChoicesTest)

#include "panel_choices_test.moc"
