#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QSet>
#include <QSlider>
#include <QStackedWidget>
#include <QTableView>
#include <QTest>

#include "dialog/session/PanelHost.h"
#include "platform/pde/PDEPlugIn.h"
#include "platform/toolkit/ArrayController.h"
#include "platform/toolkit/DisclosureButton.h"
#include "platform/toolkit/RadioMatrix.h"
#include "platform/toolkit/Stepper.h"
#include "tests/dialog/support/FakePlugIn.h"
#include "tests/dialog/support/LoadedBundle.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/ScriptedAlertPresenter.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

QByteArray textOf(const QString &ppd)
{
    QFile file(sourceFile(u"resources/ppd/"_s + ppd));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList samplePpds()
{
    return QDir(sourceFile(u"resources/ppd"_s)).entryList({u"*.ppd"_s}, QDir::Files);
}

// What a user can set something with. A stepper is one control, and so is a column of buttons.
bool isSetting(const QWidget *widget)
{
    const bool isPart = qobject_cast<const RadioMatrix *>(widget->parentWidget()) ||
                        qobject_cast<const Stepper *>(widget->parentWidget());
    return !isPart &&
           (qobject_cast<const QComboBox *>(widget) || qobject_cast<const QCheckBox *>(widget) ||
            qobject_cast<const RadioMatrix *>(widget) || qobject_cast<const QSlider *>(widget) ||
            qobject_cast<const QLineEdit *>(widget) || qobject_cast<const Stepper *>(widget));
}

QSet<QWidget *> visibleSettings(const QWidget *view)
{
    QSet<QWidget *> found;
    for (QWidget *widget : view->findChildren<QWidget *>()) {
        if (isSetting(widget) && widget->isVisible())
            found += widget;
    }
    return found;
}

// Everything that somebody can come to see in a panel who opens all of it, row after row.
QSet<QWidget *> settingsEverSeen(QWidget *view)
{
    for (DisclosureButton *button : view->findChildren<DisclosureButton *>()) {
        if (!button->isChecked())
            button->click();
    }
    QSet<QWidget *> found = visibleSettings(view);
    for (QTableView *table : view->findChildren<QTableView *>()) {
        for (int row = 0; table->isVisible() && row < table->model()->rowCount(); ++row) {
            table->selectRow(row);
            found += visibleSettings(view);
        }
    }
    return found;
}

} // namespace

/// Which settings the panels of the plug-in say that they show, and where.
class PanelControlsTest : public QObject
{
    Q_OBJECT

private:
    std::optional<ScriptedAlertPresenter> m_presenter;
    std::unique_ptr<PpdSession> m_session;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<PanelHost> m_panels;

    void open(const QByteArray &ppd)
    {
        m_panels.reset();
        m_window = std::make_unique<QWidget>();
        m_session = sessionFor(ppd);
        m_panels = std::make_unique<PanelHost>(*m_session, &loadedPlugIn(), *m_presenter);
        m_panels->setWindow(m_window.get());
        m_window->resize(800, 800);
        m_window->show();
        m_panels->bringUp();
    }
    // As a window does that turns to a panel's page.
    QWidget *turnTo(int panel)
    {
        for (const QPointer<QWidget> &view : m_panels->views())
            view->hide();
        QWidget *view = m_panels->views().at(panel);
        view->setParent(m_window.get());
        m_panels->visit(panel);
        view->show();
        return view;
    }
    QStringList keywordsOf(int panel)
    {
        QStringList keywords;
        for (const PanelControl &control : m_panels->controls(panel))
            keywords += control.keyword;
        return keywords;
    }
    std::optional<PanelControl> controlOf(const QString &keyword)
    {
        for (const PanelControl &control : m_panels->controls(m_panels->panelOf(keyword))) {
            if (control.keyword == keyword)
                return control;
        }
        return {};
    }

private Q_SLOTS:
    void init() { m_presenter.emplace(); }
    void cleanup()
    {
        m_panels.reset();
        m_session.reset();
        m_window.reset();
    }

    void whatIsSeenInAPanelIsListedAndNothingElse_data()
    {
        QTest::addColumn<QString>("ppd");
        QTest::addColumn<int>("panel");
        for (const QString &ppd : samplePpds()) {
            for (const int panel : {0, 1})
                QTest::addRow("%s, %d", qPrintable(ppd), panel) << ppd << panel;
        }
    }
    void whatIsSeenInAPanelIsListedAndNothingElse()
    {
        QFETCH(QString, ppd);
        QFETCH(int, panel);
        open(textOf(ppd));
        QSet<QWidget *> listed;
        for (const PanelControl &control : m_panels->controls(panel)) {
            QVERIFY2(control.control, qPrintable(control.keyword));
            QVERIFY2(!control.text.isEmpty(), qPrintable(control.keyword));
            QVERIFY2(ppdOption(m_session->ppd(), control.keyword), qPrintable(control.keyword));
            QVERIFY2(!listed.contains(control.control), qPrintable(control.keyword));
            listed += control.control;
            for (QWidget *companion : control.companions)
                listed += companion;
        }
        const QSet<QWidget *> seen = settingsEverSeen(turnTo(panel));
        for (QWidget *widget : seen)
            QVERIFY2(listed.contains(widget),
                     qPrintable(widget->objectName() + u" is not listed"_s));
        for (QWidget *widget : std::as_const(listed))
            QVERIFY2(seen.contains(widget), qPrintable(widget->objectName() + u" is never seen"_s));
    }

    void aSettingThatIsDisclosedIsSeen_data()
    {
        QTest::addColumn<QString>("ppd");
        for (const QString &ppd : samplePpds())
            QTest::newRow(qPrintable(ppd)) << ppd;
    }
    void aSettingThatIsDisclosedIsSeen()
    {
        QFETCH(QString, ppd);
        open(textOf(ppd));
        for (const int panel : {0, 1}) {
            turnTo(panel);
            // Backwards, so that each row of the advanced options is turned to from another one.
            QStringList keywords = keywordsOf(panel);
            QVERIFY(panel == 1 || !keywords.isEmpty()); // a black-and-white printer has no colors
            std::reverse(keywords.begin(), keywords.end());
            for (const QString &keyword : std::as_const(keywords)) {
                QCOMPARE(m_panels->panelOf(keyword), panel);
                m_panels->disclose(keyword);
                QVERIFY2(controlOf(keyword)->control->isVisible(), qPrintable(keyword));
            }
        }
        QCOMPARE(m_presenter->outstanding(), 0);
    }

    void theOrderIsThatOfTheView()
    {
        open(textOf(u"corvana-cl5.ppd"_s));
        QCOMPARE(keywordsOf(0),
                 QStringList({u"QXMediaType"_s, u"QXResolution"_s, u"QXMonoColor"_s,
                              u"QXInputSlot"_s, u"TonerSaveMode"_s, u"QXImproveOutput"_s,
                              u"QXReduceGhost"_s, u"QXDensityAdjustment"_s, u"QXSleepTime"_s,
                              u"QXQuietMode"_s, u"QXSkipBlank"_s}));
        QCOMPARE(keywordsOf(1),
                 QStringList({u"QXColorMatching"_s, u"QXEnhanceBlkPrt"_s, u"QXGray"_s,
                              u"QXBrightness"_s, u"QXContrast"_s, u"QXSaturation"_s, u"QXRed"_s,
                              u"QXGreen"_s, u"QXBlue"_s}));
    }

    void aControlHasTheTextsThatTheUserReads()
    {
        open(textOf(u"corvana-cl5.ppd"_s));
        const PanelControl media = controlOf(u"QXMediaType"_s).value();
        QCOMPARE(media.text, u"Media Type"_s);
        QVERIFY(media.choices.contains(u"Thick Paper"_s));
        QCOMPARE(media.choices.size(), qobject_cast<QComboBox *>(media.control)->count());
        QVERIFY(media.sections.isEmpty());
        QCOMPARE(media.label, media.control->window()->findChild<QLabel *>(u"mediaTypeLabel"_s));
        const PanelControl sleep = controlOf(u"QXSleepTime"_s).value();
        QCOMPARE(sleep.sections, QStringList({u"Advanced Options"_s, sleep.text}));
        QCOMPARE(sleep.companions.size(), 2);
        const PanelControl skip = controlOf(u"QXSkipBlank"_s).value();
        QCOMPARE(skip.sections, QStringList({u"Advanced Options"_s, u"Other Options"_s}));
        QVERIFY(skip.choices.isEmpty());
        const PanelControl red = controlOf(u"QXRed"_s).value();
        QCOMPARE(red.sections, QStringList{u"Color Adjustment"_s});
        QVERIFY(qobject_cast<QSlider *>(red.control));
        QVERIFY(qobject_cast<QLineEdit *>(red.companions.value(0)));
    }

    // Their controls are in the interface file, where nobody comes to see them.
    void whatHasNoRowIsNotListed()
    {
        PpdBuilder ppd;
        ppd.option("QXMediaType", "Media Type", "Plain", {{"Plain", "Plain"}, {"Thin", "Thin"}});
        ppd.option("QXSleepTime", "Sleep Time", "Default", {{"Default", "Automatic"}});
        ppd.option("QXLessPaperCurl", "Paper Curl", "OFF", {{"OFF", "Off"}, {"ON", "On"}});
        ppd.option("QXSlowDrying", "Extra Drying Time", "OFF", {{"OFF", "Off"}, {"ON", "On"}});
        open(ppd.text());
        QCOMPARE(keywordsOf(0), QStringList{u"QXMediaType"_s});
        QCOMPARE(keywordsOf(1), QStringList());
        QCOMPARE(m_panels->panelOf(u"QXSleepTime"_s), -1);
        m_panels->disclose(u"QXSleepTime"_s);
        m_panels->disclose(u"NoOption"_s);
    }

    void withoutPanelsThereAreNoControls()
    {
        const auto session = sampleSession();
        PanelHost panels(*session, nullptr, *m_presenter);
        panels.bringUp();
        QVERIFY(panels.controls(0).isEmpty());
        QVERIFY(panels.controls(-1).isEmpty());
        QCOMPARE(panels.panelOf(u"QXMediaType"_s), -1);
    }

    void aPanelThatSaysNothingOfItsControlsHasNone()
    {
        const auto session = sampleSession();
        FakePlugIn plugIn({u"A"_s});
        PanelHost panels(*session, &plugIn, *m_presenter);
        QVERIFY(panels.controls(0).isEmpty());
        panels.bringUp();
        QVERIFY(panels.controls(0).isEmpty());
    }
};

QTEST_MAIN(PanelControlsTest)

#include "panel_controls_test.moc"
