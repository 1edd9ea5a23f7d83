// Only values that are in force reach the job: what the summary does not name, the printer does not
// get.

#include <QTest>

#include "plugin/QXJobValues.h"
#include "tests/plugin/JobOptions.h"
#include "tests/support/RecordingHost.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

class ValuesInForceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void effectsThatAreNotInForcePrintTheirDefault_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("choice");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("the printer matches colours in colour")
            << u"QXMonoColor"_s << u"Color"_s
            << QStringList{u"QXBrightness=1"_s, u"QXContrast=2"_s, u"QXRed=3"_s,
                           u"QXGreen=4"_s,      u"QXBlue=5"_s,     u"QXSaturation=6"_s};
        QTest::newRow("monochrome has brightness and contrast")
            << u"QXMonoColor"_s << u"Mono"_s
            << QStringList{u"QXBrightness=1"_s, u"QXContrast=2"_s, u"QXRed=0"_s,
                           u"QXGreen=0"_s,      u"QXBlue=0"_s,     u"QXSaturation=0"_s};
        QTest::newRow("the application matches colours")
            << u"AP_ColorMatchingMode"_s << u"AP_ApplicationColorMatching"_s
            << QStringList{u"QXBrightness=0"_s, u"QXContrast=0"_s, u"QXRed=0"_s,
                           u"QXGreen=0"_s,      u"QXBlue=0"_s,     u"QXSaturation=0"_s};
    }
    void effectsThatAreNotInForcePrintTheirDefault()
    {
        QFETCH(QString, option);
        QFETCH(QString, choice);
        QFETCH(QStringList, expected);
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(option, choice);
        for (const auto key : {kNormalEffect, kMonoEffect})
            host->settings().setValue(key, QVariantList{1, 2, 3, 4, 5, 6});
        QCOMPARE(valuesOf(m_values.jobOptions(host->settings(), host->ppd())), expected);
    }

    void anAutomaticSleepTimeReplacesAManualMark()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->mark(u"QXSleepTime"_s, u"Custom"_s);
        host->settings().setValue(kSleepMode, u"Default"_s);
        QCOMPARE(m_values.impliedMarks(host->settings(), host->ppd()),
                 (QList<JobOption>{{u"QXSleepTime"_s, u"Default"_s}}));
    }

    void whatAnAcceptedOptionStandsForIsWhatTheJobGets_data()
    {
        QTest::addColumn<JobOption>("given");
        QTest::addColumn<JobOption>("standsFor");
        const auto row = [](const char *name, const JobOption &given, const QString &value) {
            QTest::newRow(name) << given << JobOption{given.name, value};
        };
        row("minutes", {u"QXSleepTime"_s, u"{Time=12}"_s}, u"Custom.12"_s);
        row("automatic", {u"QXSleepTime"_s, u"Default"_s}, u"Default"_s);
        row("density", {u"QXDensityAdjustment"_s, u"-2"_s}, u"Custom.-2"_s);
        row("the printer's own density", {u"QXDensityAdjustment"_s, u"Custom.0"_s}, u"0"_s);
        row("an effect", {u"QXRed"_s, u"+5"_s}, u"5"_s);
    }
    void whatAnAcceptedOptionStandsForIsWhatTheJobGets()
    {
        QFETCH(JobOption, given);
        QFETCH(JobOption, standsFor);
        const auto host = RecordingHost::forSamplePrinter();
        const JobValueClaim claim = m_values.takeJobOption(given, host->settings(), host->ppd());
        QCOMPARE(claim.outcome, JobValueClaim::Outcome::Accepted);
        QCOMPARE(claim.standsFor, standsFor);
        const QList<JobOption> job = m_values.jobOptions(host->settings(), host->ppd());
        // An automatic sleep time is the PPD's own mark and no value beside it.
        QCOMPARE(job.contains(standsFor), standsFor.value != "Default"_L1);
    }

private:
    QXJobValues m_values;
};

QTEST_GUILESS_MAIN(ValuesInForceTest)
#include "values_in_force_test.moc"
