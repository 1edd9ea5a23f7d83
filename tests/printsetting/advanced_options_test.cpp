#include <QGroupBox>
#include <QHeaderView>
#include <QTest>

#include "platform/toolkit/ViewFrame.h"
#include "tests/printsetting/PrintSettingProbe.h"
#include "tests/support/Gestures.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QMap<QString, QString> kTexts{
    {u"advancedItem"_s, u"Further"_s},
    {u"ImproveOutput"_s, u"Improve It"_s},
    {u"QXQuietMode"_s, u"Be Quiet"_s},
    {u"OtherOption"_s, u"More"_s},
};

PpdBuilder withImprovement(const QByteArray &keyword)
{
    return PpdBuilder().onOff(keyword, "Improvement");
}

PpdBuilder withSleepTime()
{
    return PpdBuilder().option("QXSleepTime", "Sleep", "Default", {{"Default", "Automatic"}});
}

PpdBuilder withDensity(const QByteArray &text = "Density")
{
    return PpdBuilder().option("QXDensityAdjustment", text, "0", {{"0", "Standard"}});
}

QString disclosureEntry()
{
    return u"com.corvana.print.PrintSettings.advancedItem"_s;
}

} // namespace

/// The table of the advanced options, its pages, and the height of the panel around them.
class AdvancedOptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bundle.emplace(TestBundle::copied());
        m_bundle->setTexts(kTexts);
    }
    void cleanup()
    {
        m_panel.reset();
        m_host.reset();
        m_bundle.reset();
    }

    // Rows

    void eachRowHasItsCondition_data()
    {
        QTest::addColumn<QByteArray>("ppd");
        QTest::addColumn<QStringList>("rows"); // "id=label"
        const QStringList none;
        QTest::newRow("no option") << PpdBuilder().text() << none;
        QTest::newRow("toner save") << PpdBuilder().onOff("TonerSaveMode", "Save Toner").text()
                                    << QStringList{u"TonerSaveMode=Save Toner"_s};
        QTest::newRow("toner save, its text is not UTF-8")
            << PpdBuilder().onOff("TonerSaveMode", "Save \xff").text() << none;
        for (const char *keyword : {"QXImproveOutput", "QXReduceGhost", "QXFixIntensity"})
            QTest::newRow(keyword)
                << withImprovement(keyword).text() << QStringList{u"ImproveOutput=Improve It"_s};
        QTest::newRow("paper curl alone") << withImprovement("QXLessPaperCurl").text() << none;
        QTest::newRow("density") << withDensity().text()
                                 << QStringList{u"QXDensityAdjustment=Density"_s};
        QTest::newRow("density, its text is not UTF-8") << withDensity("\xff").text() << none;
        QTest::newRow("sleep time")
            << withSleepTime().customInteger("QXSleepTime", "Time", "Minutes", 1, 99).text()
            << QStringList{u"QXSleepTime=Sleep"_s};
        QTest::newRow("sleep time that takes no minutes") << withSleepTime().text() << none;
        QTest::newRow("sleep time with another parameter")
            << withSleepTime().customInteger("QXSleepTime", "Span", "Minutes", 1, 99).text()
            << none;
        QTest::newRow("quiet mode") << PpdBuilder().onOff("QXQuietMode", "Quiet").text()
                                    << QStringList{u"QXQuietMode=Be Quiet"_s};
        QTest::newRow("blank pages") << PpdBuilder().onOff("QXSkipBlank", "Skip").text()
                                     << QStringList{u"OtherOption=More"_s};
        QTest::newRow("all, in the order of the table")
            << samplePpd(5)
            << QStringList{u"TonerSaveMode=Toner Save"_s,
                           u"ImproveOutput=Improve It"_s,
                           u"QXDensityAdjustment=Density Adjustment"_s,
                           u"QXSleepTime=Sleep Time"_s,
                           u"QXQuietMode=Be Quiet"_s,
                           u"OtherOption=More"_s};
    }
    void eachRowHasItsCondition()
    {
        QFETCH(QByteArray, ppd);
        QFETCH(QStringList, rows);
        makePanel(ppd);
        m_panel->willShow();
        QCOMPARE(shownRows(), rows);
        for (const QString &id : {u"ImproveOutput"_s, u"QXQuietMode"_s, u"OtherOption"_s}) {
            const bool offered = !rows.filter(id + u'=').isEmpty();
            QCOMPARE(m_panel->effectContent->value(id), QVariant(offered));
        }
        QCOMPARE(m_panel->arrayController->selectionIndex(), rows.isEmpty() ? -1 : 0);
        QCOMPARE(m_panel->optionLabel->text(), u"Further"_s);
        m_panel->willShow();
        QCOMPARE(shownRows(), rows); // filled once
    }

    void rowsWithoutTranslationAreNamedByTheirKeys()
    {
        m_bundle.reset();
        m_bundle.emplace(TestBundle::copied());
        m_bundle->setTexts({});
        makePanel(samplePpd(5));
        m_panel->willShow();
        QVERIFY(shownRows().contains(u"OtherOption=OtherOption"_s));
        QVERIFY(shownRows().contains(u"ImproveOutput=ImproveOutput"_s));
        QCOMPARE(m_panel->optionLabel->text(), u"advancedItem"_s);
    }

    void aRowAddedLaterIsNotSelected()
    {
        makePanel(samplePpd(5));
        m_panel->willShow();
        m_panel->addAdvOption_forKey(u"Late"_s, u"LateOption"_s);
        QCOMPARE(shownRows().last(), u"LateOption=Late"_s);
        QCOMPARE(m_panel->arrayController->selectionIndex(), 0);
    }

    void theSelectedRowShowsItsPage()
    {
        makePanel(samplePpd(5));
        m_panel->willShow();
        QCOMPARE(m_panel->advancedTabView->currentWidget()->objectName(), u"TonerSaveMode"_s);
        const QAbstractItemModel *model = m_panel->advancedTableView->model();
        for (int row = model->rowCount() - 1; row >= 0; --row) {
            m_panel->advancedTableView->setCurrentIndex(model->index(row, 0));
            const QString id = shownRows().at(row).section(u'=', 0, 0);
            QCOMPARE(m_panel->advancedTabView->currentWidget()->objectName(), id);
        }
    }

    void withoutItsTableTheSectionIsHidden()
    {
        makePanel(samplePpd(5));
        m_panel->arrayController.clear();
        m_panel->optionLabel->setText(u"untouched"_s);
        m_panel->willShow();
        const QList<QWidget *> section{m_panel->optionLabel, m_panel->optionButton,
                                       m_panel->advancedTabView, m_panel->advancedTableView};
        for (const QWidget *view : section)
            QVERIFY2(view->isHidden(), qUtf8Printable(view->objectName()));
        QCOMPARE(m_panel->optionLabel->text(), u"untouched"_s);
        // What does not depend on the table is prepared all the same.
        QCOMPARE(m_panel->densitySlider->maximum(), 6);
        QCOMPARE(m_panel->sleepTimeStepper->maximum(), 99);
    }

    void longLabelsWidenTheColumn_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<bool>("wide");
        QTest::newRow("a short one") << u"More"_s << false;
        QTest::newRow("a long one") << QString(100, u'M') << true;
    }
    void longLabelsWidenTheColumn()
    {
        QFETCH(QString, label);
        QFETCH(bool, wide);
        QMap<QString, QString> texts = kTexts;
        texts.insert(u"OtherOption"_s, label);
        m_bundle->setTexts(texts);
        makePanel(samplePpd(5));
        m_panel->willShow();
        const QTableView *table = m_panel->advancedTableView;
        QCOMPARE(table->horizontalHeader()->stretchLastSection(), !wide);
        if (wide) {
            const double text = QFontMetricsF(table->font()).horizontalAdvance(label);
            QCOMPARE(table->columnWidth(0), qCeil(text + 12.0 * pixelsPerPoint(table)));
        }
    }

    // Labels and ranges

    void theImprovementIsLabelledByWhatItOffers_data()
    {
        QTest::addColumn<QByteArray>("ppd");
        QTest::addColumn<QString>("label");
        QTest::addColumn<double>("drop");
        const PpdBuilder choice = PpdBuilder().option("QXImproveOutput", "Output", "OFF",
                                                      {{"OFF", "Off"}, {"QXFixIntensity", "Fix"}});
        QTest::newRow("a choice between improvements") << choice.text() << u"Output: "_s << 0.0;
        QTest::newRow("a choice and ghosting")
            << PpdBuilder(choice).onOff("QXReduceGhost", "Ghost").text() << u"Output: "_s << 0.0;
        QTest::newRow("ghosting alone")
            << withImprovement("QXReduceGhost").text() << u"Improve It:"_s << 14.0;
        QTest::newRow("two boxes")
            << withImprovement("QXFixIntensity").onOff("QXLessPaperCurl", "Curl").text()
            << u"Improve It:"_s << 14.0;
    }
    void theImprovementIsLabelledByWhatItOffers()
    {
        QFETCH(QByteArray, ppd);
        QFETCH(QString, label);
        QFETCH(double, drop);
        makePanel(ppd);
        const double before = topOf(m_panel->improveLabel);
        m_panel->willShow();
        QCOMPARE(m_panel->improveLabel->text(), label);
        QCOMPARE(topOf(m_panel->improveLabel), before + drop);
    }

    void theDensityIsLabelledByItsOption_data()
    {
        QTest::addColumn<bool>("box");
        QTest::newRow("a label") << false;
        QTest::newRow("a box") << true;
    }
    void theDensityIsLabelledByItsOption()
    {
        QFETCH(bool, box);
        if (box)
            m_bundle->edit(u"interface/QXLaserPrintSetting.ui"_s,
                           "class=\"QLabel\" name=\"densityLabel\"",
                           "class=\"QGroupBox\" name=\"densityLabel\"");
        makePanel(withDensity("Light & Dark").text());
        m_panel->willShow();
        if (box)
            QCOMPARE(qobject_cast<QGroupBox *>(m_panel->densityLabel)->title(),
                     u"Light && Dark"_s); // no mnemonic
        else
            QCOMPARE(qobject_cast<QLabel *>(m_panel->densityLabel)->text(), u"Light && Dark: "_s);
    }

    void theDensitySliderHasOneMarkAStep_data()
    {
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::newRow("usual") << -6 << 6;
        QTest::newRow("others") << -3 << 10;
        QTest::newRow("one") << 2 << 2;
    }
    void theDensitySliderHasOneMarkAStep()
    {
        QFETCH(int, minimum);
        QFETCH(int, maximum);
        makePanel(withDensity()
                      .customInteger("QXDensityAdjustment", "Density", "D", minimum, maximum)
                      .text());
        m_panel->willShow();
        QCOMPARE(m_panel->densitySlider->minimum(), minimum);
        QCOMPARE(m_panel->densitySlider->maximum(), maximum);
        QCOMPARE(m_panel->densitySlider->tickInterval(), 1);
        QVERIFY(m_panel->densitySlider->tickPosition() != QSlider::NoTicks);
    }

    void aDensityWithoutItsRowIsPreparedAllTheSame()
    {
        makePanel(withDensity("\xff").text());
        m_panel->m_outputBin.insert(QXLaserPrintSetting::densityParamKey(), u"4"_s);
        m_panel->initializePopup();
        QCOMPARE(m_panel->densitySlider->maximum(), 6);
        QCOMPARE(m_panel->densitySlider->value(), 4);
    }

    void theStepperHasTheRangeAndTheUnitOfThePrinter()
    {
        makePanel(withSleepTime().customInteger("QXSleepTime", "Time", "Minuten", 5, 50).text());
        m_panel->willShow();
        QCOMPARE(m_panel->sleepTimeStepper->minimum(), 5);
        QCOMPARE(m_panel->sleepTimeStepper->maximum(), 50);
        QCOMPARE(m_panel->sleepTimeSuffixLabel->text(), u"Minuten"_s);
    }

    void aSleepTimeWithoutMinutesLeavesItsControlsAlone()
    {
        makePanel(withSleepTime().text());
        const int maximum = m_panel->sleepTimeStepper->maximum();
        m_panel->willShow();
        QCOMPARE(m_panel->sleepTimeStepper->maximum(), maximum);
        QCOMPARE(m_panel->sleepTimeSuffixLabel->text(), QString());
        m_panel->sleepTimeField->setText(QString());
        QVERIFY(m_panel->saveValuesAndReturnError(nullptr));
        QCOMPARE(m_panel->sleepTimeField->text(), QString());
        QVERIFY(!m_host->settings().contains(kSleepEntry));
    }

    // Controls

    void everyControlReachesTheHost_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("asked");
        QTest::newRow("toner save") << u"tonerSaveButton"_s << -1 << u"TonerSaveMode=ON"_s;
        QTest::newRow("ghosting") << u"reduceGhostButton"_s << -1 << u"QXReduceGhost=ON"_s;
        QTest::newRow("fixing") << u"improveTonerfixButton"_s << -1 << u"QXFixIntensity=ON"_s;
        QTest::newRow("curl") << u"reducePaperButton"_s << -1 << u"QXLessPaperCurl=ON"_s;
        QTest::newRow("blank pages") << u"skipBlankButton"_s << -1 << u"QXSkipBlank=ON"_s;
        QTest::newRow("improvement")
            << u"improveMatrix"_s << 2 << u"QXImproveOutput=QXLessPaperCurl"_s;
        QTest::newRow("quiet mode") << u"quietModeMatrix"_s << 1 << u"QXQuietMode=ON"_s;
        QTest::newRow("sleep time") << u"sleepTimeMatrix"_s << 1 << u"QXSleepTime=Custom"_s;
    }
    void everyControlReachesTheHost()
    {
        QFETCH(QString, control);
        QFETCH(int, row);
        QFETCH(QString, asked);
        const bool twoBoxes = asked.contains(u"QXFixIntensity=") || asked.contains(u"QXLessPaper");
        makePanel(twoBoxes && row < 0
                      ? withImprovement("QXFixIntensity").onOff("QXLessPaperCurl", "Curl").text()
                      : samplePpd(5));
        m_panel->willShow();
        m_host->forgetCalls();
        if (auto *matrix = m_panel->m_panelView->findChild<RadioMatrix *>(control))
            QVERIFY(pick(matrix, row));
        else
            QVERIFY(click(m_panel->m_panelView->findChild<QCheckBox *>(control)));
        QCOMPARE(m_host->asked(), QStringList{asked});
        QCOMPARE(m_panel->stored(asked.section(u'=', 0, 0)), asked.section(u'=', 1));
    }

    void aRefusedControlIsPutBack()
    {
        makePanel(samplePpd(5));
        m_panel->willShow();
        m_host->refuseEverything();
        m_panel->tonerSaveButton->click();
        QVERIFY(!m_panel->tonerSaveButton->isChecked());
        QVERIFY(pick(m_panel->sleepTimeMatrix, 1));
        QCOMPARE(m_panel->sleepTimeMatrix->selectedRow(), 0);
        QVERIFY(!m_panel->hasMode(kModeManualSleep));
    }

    // Height

    void withoutPaperSourceThePanelIsLower()
    {
        makePanel(samplePpd(5));
        m_panel->willShow();
        QCOMPARE(viewFrame(m_panel->m_panelView).height, 160.0);
        const QList<double> tops = sectionTops();
        const double width = viewFrame(m_panel->m_panelView).width;

        makePanel(samplePpd(5).replace("QXInputSlot", "NoInputSlot"));
        m_panel->willShow();
        QCOMPARE(viewFrame(m_panel->m_panelView).height, 130.0);
        QCOMPARE(viewFrame(m_panel->m_panelView).width, width);
        QList<double> higher = sectionTops();
        for (double &top : higher)
            top += 30.0;
        QCOMPARE(higher, tops);
    }

    void disclosingMakesThePanelHigher()
    {
        makePanel(samplePpd(5));
        m_panel->willShow();
        const double width = viewFrame(m_panel->m_panelView).width;
        QVERIFY(m_panel->advancedTableView->isHidden());
        QVERIFY(m_panel->advancedTabView->isHidden());
        m_panel->optionButton->click();
        QCOMPARE(viewFrame(m_panel->m_panelView).height, 275.0);
        QCOMPARE(viewFrame(m_panel->m_panelView).width, width);
        QVERIFY(!m_panel->advancedTableView->isHidden());
        QVERIFY(!m_panel->advancedTabView->isHidden());
        m_panel->saveValuesAndReturnError(nullptr);
        QCOMPARE(m_panel->entry(disclosureEntry()), QVariant(true));
        m_panel->optionButton->click();
        QCOMPARE(viewFrame(m_panel->m_panelView).height, 160.0);
        QVERIFY(m_panel->advancedTableView->isHidden());
        m_panel->toggleShowOption(nullptr); // what is not on hides
        QCOMPARE(viewFrame(m_panel->m_panelView).height, 45.0);
    }

    void whatWasDisclosedIsDisclosedAgain()
    {
        m_host = RecordingHost::forSamplePrinter();
        m_host->settings().setValue(disclosureEntry(), true);
        m_panel = std::make_unique<PrintSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
        QVERIFY(m_panel->optionButton->isChecked());
        QVERIFY(!m_panel->advancedTableView->isHidden());
        QCOMPARE(viewFrame(m_panel->m_panelView).height, 275.0);
        m_panel->shouldHide();
        m_panel->willShow();
        m_panel->restoreValuesAndReturnError(nullptr);
        QCOMPARE(viewFrame(m_panel->m_panelView).height, 275.0);
    }

private:
    void makePanel(const QByteArray &ppd)
    {
        m_panel.reset();
        m_host = RecordingHost::forPpd(ppd);
        m_panel = std::make_unique<PrintSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        QVERIFY(m_panel->panelView());
        m_host->forgetCalls();
    }
    QStringList shownRows() const
    {
        QStringList rows;
        for (const QVariantMap &row : m_panel->arrayController->arrangedObjects())
            rows += row.value(u"id"_s).toString() + u'=' + row.value(u"label"_s).toString();
        return rows;
    }
    // How far below its parent's upper edge a view lies. Units: points.
    static double topOf(const QWidget *view)
    {
        const ViewFrame frame = viewFrame(view);
        return viewFrame(view->parentWidget()).height - frame.y - frame.height;
    }
    // Distances of the section's views from the panel's upper edge.
    QList<double> sectionTops() const
    {
        QList<double> tops;
        const QList<QWidget *> section{m_panel->optionLabel, m_panel->optionButton,
                                       m_panel->advancedTabView, m_panel->advancedTableView};
        for (const QWidget *view : section)
            tops += topOf(view);
        return tops;
    }

    std::optional<TestBundle> m_bundle;
    std::shared_ptr<RecordingHost> m_host;
    std::unique_ptr<PrintSettingProbe> m_panel;
};

QTEST_MAIN(AdvancedOptionsTest)
#include "advanced_options_test.moc"
