#include <algorithm>

#include <QDir>
#include <QTest>

#include "dialog/app/Translations.h"
#include "tests/e2e/DialogDriver.h"
#include "tests/e2e/PpdLines.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

/// An option of the Print Setting panel and the control that it is chosen with.
struct PanelOption
{
    QString keyword;
    QString control;
};

const QList<PanelOption> kPanelOptions{
    {u"QXResolution"_s, u"resolutionPopup"_s},
    {u"Resolution"_s, u"resolutionPopup"_s},
    {u"QXMediaType"_s, u"mediaTypePopup"_s},
    {u"QXMonoColor"_s, u"monoColorPopup"_s},
    {u"QXInputSlot"_s, u"paperFeedPopup"_s},
    {u"TonerSaveMode"_s, u"tonerSaveButton"_s},
    {u"QXImproveOutput"_s, u"improveMatrix"_s},
    {u"QXFixIntensity"_s, u"improveTonerfixButton"_s},
    {u"QXLessPaperCurl"_s, u"reducePaperButton"_s},
    {u"QXReduceGhost"_s, u"reduceGhostButton"_s},
    {u"QXDensityAdjustment"_s, u"densitySlider"_s},
    {u"QXSleepTime"_s, u"sleepTimeMatrix"_s},
    {u"QXQuietMode"_s, u"quietModeMatrix"_s},
    {u"QXSkipBlank"_s, u"skipBlankButton"_s},
};

/// Options without a row: a sleep time whose minutes the panel does not know, and paper curl as the
/// only improvement. They keep what the queue has.
const QStringList kWithoutRow{u"corvana-cl3 QXSleepTime"_s, u"corvana-ml3 QXSleepTime"_s,
                              u"corvana-ml3 QXLessPaperCurl"_s};

bool forbidsTonerSave(const QString &resolution)
{
    return resolution == u"1200dpi"_s || resolution == u"2400x600dpi"_s;
}

/// One choice for each of several options, chosen in one dialog.
using Job = QList<std::pair<QString, QString>>;

bool has(const Job &job, const QString &keyword)
{
    return std::any_of(job.cbegin(), job.cend(),
                       [&](const auto &chosen) { return chosen.first == keyword; });
}

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
    /// What the control of an option does offer, numbers apart; nothing when no user can get at it.
    static QStringList offeredChoices(DialogDriver &driver, const PpdLines &ppd,
                                      const PanelOption &option)
    {
        auto *control = driver.control<QWidget>(option.control);
        if (!driver.reach(control))
            return {};
        QStringList choices = DialogDriver::offered(control);
        choices.removeIf([&](const QString &choice) {
            const bool number = option.keyword == u"QXDensityAdjustment"_s &&
                                !ppd.choices(option.keyword).contains(choice);
            return choice == u"Custom"_s || number;
        });
        return choices;
    }

    /// Puts the choices together so that none keeps another one from being chosen.
    static QList<Job> jobsFor(const PpdLines &ppd, QList<std::pair<QString, QString>> pending)
    {
        const QString resolution = ppd.has(u"QXResolution"_s) ? u"QXResolution"_s : u"Resolution"_s;
        QList<Job> jobs;
        while (!pending.isEmpty()) {
            Job job;
            QString inForce = ppd.defaultChoice(resolution);
            QList<std::pair<QString, QString>> left;
            for (const auto &[keyword, choice] : std::as_const(pending)) {
                const bool tonerSave = keyword == u"TonerSaveMode"_s;
                if (has(job, keyword) ||
                    (tonerSave && has(job, resolution) && forbidsTonerSave(inForce))) {
                    left += {keyword, choice};
                    continue;
                }
                if (tonerSave && forbidsTonerSave(inForce)) {
                    for (const QString &other : ppd.choices(resolution)) {
                        if (!forbidsTonerSave(other))
                            inForce = other;
                    }
                    job += {resolution, inForce};
                }
                if (keyword == resolution)
                    inForce = choice;
                job += {keyword, choice};
            }
            jobs += job;
            pending = left;
        }
        return jobs;
    }

    static void chooseAll(DialogDriver &driver, const Job &job)
    {
        for (const auto &[keyword, choice] : job) {
            const auto option = std::find_if(
                kPanelOptions.cbegin(), kPanelOptions.cend(),
                [&, k = keyword](const PanelOption &candidate) { return candidate.keyword == k; });
            auto *control = driver.control<QWidget>(option->control);
            const QByteArray what = (keyword + u'=' + choice).toUtf8();
            QVERIFY2(driver.reach(control), what.constData());
            // What it stands at already has to be come back to.
            for (const QString &other : DialogDriver::offered(control)) {
                if (DialogDriver::chosen(control) != choice)
                    break;
                QVERIFY2(DialogDriver::choose(control, other), what.constData());
            }
            QVERIFY2(DialogDriver::chosen(control) != choice, what.constData());
            QVERIFY2(DialogDriver::choose(control, choice), what.constData());
            QVERIFY2(DialogDriver::chosen(control) == choice, what.constData());
        }
    }

    void verifySummary(const PpdLines &ppd, const Job &job, const QMap<QString, QString> &summary)
    {
        for (const auto &[keyword, choice] : job) {
            QString expected = ppd.text(keyword, choice);
            if (choice == u"ON"_s)
                expected = on();
            else if (choice == u"OFF"_s)
                expected = off();
            else if (keyword == u"QXDensityAdjustment"_s)
                expected = choice;
            QVERIFY2(!expected.isEmpty(), qUtf8Printable(keyword + u'=' + choice));
            QCOMPARE(keyword + u'=' + summary.value(ppd.text(keyword)), keyword + u'=' + expected);
        }
    }

    static void verifyCodes(const PpdLines &ppd, const Job &job, const QByteArray &data)
    {
        for (const auto &[keyword, chosen] : job) {
            QVERIFY(ppd.choices(keyword).contains(chosen));
            for (const QString &choice : ppd.choices(keyword)) {
                const QByteArray code = ppd.code(keyword, choice);
                const QString what = keyword + u'=' + choice;
                QVERIFY2(!code.isEmpty(), qPrintable(what));
                const qsizetype expected = choice == chosen ? 1 : 0;
                QVERIFY2(data.count(code) == expected,
                         qPrintable(u"%1 is printed %2 times, with %3 chosen"_s.arg(what)
                                        .arg(data.count(code))
                                        .arg(chosen)));
            }
            QCOMPARE(data.count("CorvanaOption(" + keyword.toLatin1() + '='), qsizetype(1));
        }
    }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("XDG_CONFIG_HOME", m_preferences.path().toLocal8Bit());
        m_language = QString::fromLatin1(qgetenv("LC_ALL").left(5)).section(u'.', 0, 0);
        if (m_language == u"ja_JP"_s)
            m_language = u"ja"_s;
        installTranslations(*qApp, QStringLiteral(CORVANA_TEST_SHARE_DIR "/translations"));
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
        const QStringList files = QDir(QStringLiteral(CORVANA_TEST_SOURCE_DIR "/resources/ppd"))
                                      .entryList({u"*.ppd"_s}, QDir::Files);
        QCOMPARE(files.size(), 6);
    }
    void everyChoiceReachesThePrinterAndTheSummary()
    {
        QFETCH(int, leastChoices);
        const QString printer = QString::fromLatin1(QTest::currentDataTag());
        const PpdLines ppd(printer, m_language);
        QList<std::pair<QString, QString>> cases;
        {
            DialogDriver driver(printer);
            for (const PanelOption &option : kPanelOptions) {
                const QStringList expected = expectedChoices(printer, ppd, option.keyword);
                // One pop-up stands for either form of the resolution.
                const QStringList offered =
                    ppd.has(option.keyword) ? offeredChoices(driver, ppd, option) : QStringList();
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
        QSet<std::pair<QString, QString>> printed;
        for (const Job &job : jobsFor(ppd, cases)) {
            DialogDriver driver(printer);
            chooseAll(driver, job);
            if (QTest::currentTestFailed())
                return;
            verifySummary(ppd, job, driver.summary());
            const QByteArray data = driver.print();
            QVERIFY2(!data.isEmpty(), qUtf8Printable(driver.message()));
            verifyCodes(ppd, job, data);
            if (QTest::currentTestFailed())
                return;
            for (const auto &choice : job)
                printed += choice;
        }
        QCOMPARE(printed.size(), cases.size());
        qInfo("%lld choices", static_cast<long long>(printed.size()));
    }
};

QTEST_MAIN(PanelChoicesTest)

#include "panel_choices_test.moc"
