// The part of the panel that the disclosure button shows: its height, its texts and its controls.

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTest>

#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/InterfaceLoader.h"
#include "platform/toolkit/ViewFrame.h"
#include "tests/colorsetting/ColorSettingProbe.h"
#include "tests/support/Gestures.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr double kCollapsed = 110.0;
constexpr double kDisclosed = 348.0;

constexpr QLatin1StringView kDisclosedEntry{"com.corvana.print.PrintSettings.advancedcolorItem"};

// A printer whose driver matches colors, and has the effects that `keywords` name.
PpdBuilder printerWith(const QList<QByteArray> &keywords)
{
    PpdBuilder ppd;
    ppd.driverMatchesColors();
    ppd.option("QXColorMatching", "Matching", "Normal", {{"Normal", "Normal"}, {"None", "None"}});
    ppd.onOff("QXGray", "Gray").onOff("QXEnhanceBlkPrt", "Black");
    for (const QByteArray &keyword : keywords)
        ppd.option(keyword, "The " + keyword.mid(2), "0", {{"0", "0"}});
    return ppd;
}

} // namespace

class AdvancedPartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_bundle.emplace(TestBundle::built()); }
    void cleanup()
    {
        m_panel.reset();
        m_host.reset();
        m_bundle.reset();
    }

    // Disclosure

    void thePanelIsLowUntilItIsDisclosed()
    {
        show(RecordingHost::forSamplePrinter());
        QCOMPARE(height(), kCollapsed);
        QCOMPARE(part(u"advancedOptions"_s)->isVisibleTo(m_panel->panelView()), false);
        m_panel->optionButton->click();
        QCOMPARE(height(), kDisclosed);
        QVERIFY(part(u"advancedOptions"_s)->isVisibleTo(m_panel->panelView()));
        m_panel->optionButton->click();
        QCOMPARE(height(), kCollapsed);
        QVERIFY(!part(u"advancedOptions"_s)->isVisibleTo(m_panel->panelView()));
    }

    void theDisclosureAddsToWhateverTheHeightIs()
    {
        show(RecordingHost::forSamplePrinter());
        ViewFrame frame = viewFrame(m_panel->panelView());
        frame.height = 500;
        setViewFrame(m_panel->panelView(), frame);
        m_panel->optionButton->click();
        QCOMPARE(height(), 738.0);
        m_panel->optionButton->click();
        QCOMPARE(height(), 500.0);
        QCOMPARE(viewFrame(m_panel->panelView()).width, frame.width);
    }

    void theDisclosureIsRememberedInTheJob()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->settings().setValue(kDisclosedEntry, true);
        show(host);
        QCOMPARE(height(), kDisclosed);
        QVERIFY(m_panel->optionButton->isChecked());
        m_panel->optionButton->click();
        QCOMPARE(host->settings().value(kDisclosedEntry), QVariant(false));
        QVERIFY(m_panel->restoreValuesAndReturnError(nullptr));
        QCOMPARE(height(), kCollapsed);
    }

    void aDisclosureOutlivesTheNextRestore()
    {
        show(RecordingHost::forSamplePrinter());
        m_panel->optionButton->click();
        QVERIFY(m_panel->restoreValuesAndReturnError(nullptr));
        QVERIFY(m_panel->optionButton->isChecked());
        QCOMPARE(height(), kDisclosed);
    }

    void aToggleKeepsEnhancedBlackDisabledWithGray_data()
    {
        QTest::addColumn<bool>("gray");
        QTest::addColumn<bool>("grayCanBeUsed");
        QTest::addColumn<bool>("blackCanBeUsed");
        QTest::newRow("gray") << true << true << false;
        QTest::newRow("no gray") << false << true << true;
        QTest::newRow("gray that cannot be used") << true << false << true;
    }
    void aToggleKeepsEnhancedBlackDisabledWithGray()
    {
        QFETCH(bool, gray);
        QFETCH(bool, grayCanBeUsed);
        QFETCH(bool, blackCanBeUsed);
        show(RecordingHost::forSamplePrinter());
        m_panel->grayCheckBox->setChecked(gray);
        m_panel->grayCheckBox->setEnabled(grayCanBeUsed);
        for (int toggle = 0; toggle < 2; ++toggle) {
            m_panel->enhancedBlackCheckBox->setEnabled(true);
            m_panel->optionButton->click();
            QCOMPARE(isControlEnabled(m_panel->enhancedBlackCheckBox), blackCanBeUsed);
        }
    }

    // Texts

    void theHeadingIsLocalized_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("English") << u"en"_s;
        QTest::newRow("Japanese") << u"ja"_s;
        QTest::newRow("Chinese") << u"zh_CN"_s;
    }
    void theHeadingIsLocalized()
    {
        QFETCH(QString, language);
        const UserLanguage user(language);
        show(RecordingHost::forSamplePrinter());
        const QString text = m_bundle->bundle()->localizedString(u"advancedcolorItem"_s);
        QVERIFY(!text.isEmpty() && text != u"advancedcolorItem"_s);
        QCOMPARE(m_panel->optionLabel->text(), text);
    }

    void anEffectsLabelIsThePrintersTextElseTheLocalizedKeyword()
    {
        show(RecordingHost::forPpd(
            printerWith({"QXBrightness", "QXContrast", "QXRed", "QXGreen", "QXBlue"}).text()));
        QCOMPARE(label(u"QXBrightness"_s)->text(), u"The Brightness"_s);
        QCOMPARE(label(u"QXContrast"_s)->text(), u"The Contrast"_s);
        QCOMPARE(label(u"QXRed"_s)->text(), u"The Red"_s);
        QCOMPARE(label(u"QXGreen"_s)->text(), u"The Green"_s);
        QCOMPARE(label(u"QXBlue"_s)->text(), u"The Blue"_s);
        QCOMPARE(label(u"QXSaturation"_s)->text(),
                 m_bundle->bundle()->localizedStringOrKey(u"QXSaturation"_s));
    }

    void aTextThatIsNotUtf8LeavesTheLabelAsItWas()
    {
        PpdBuilder ppd = printerWith({});
        ppd.option("QXRed", "R\xff", "0", {{"0", "0"}});
        m_host = RecordingHost::forPpd(ppd.text());
        m_panel = std::make_unique<ColorSettingProbe>(m_host);
        QVERIFY(m_panel->initWithHost());
        QVERIFY(m_panel->panelView());
        label(u"QXRed"_s)->setText(u"as it was"_s);
        m_panel->willShow();
        QCOMPARE(label(u"QXRed"_s)->text(), u"as it was"_s);
    }

    void anAmpersandInAPrintersTextIsShown()
    {
        PpdBuilder ppd = printerWith({});
        ppd.option("QXRed", "Red & Rose", "0", {{"0", "0"}});
        show(RecordingHost::forPpd(ppd.text()));
        // Of a label that leads to a control, a single sign would be a key to press.
        QCOMPARE(label(u"QXRed"_s)->text(), u"Red && Rose"_s);
        QCOMPARE(accessibleName(m_panel->determineField(u"QXRed"_s)), u"Red & Rose"_s);
    }

    void assistiveTechnologyKnowsSlidersFieldsAndPreview()
    {
        show(RecordingHost::forSamplePrinter());
        for (const QLatin1StringView effect : kEffectKeywords) {
            const QString name = label(effect)->text();
            QCOMPARE(accessibleName(m_panel->determineSlider(effect)), name);
            QCOMPARE(accessibleName(m_panel->determineField(effect)), name);
        }
        QVERIFY(!m_panel->effectImageView->accessibleName().isEmpty());
    }

    // Controls

    void rosterLookupsOfTheEffects_data()
    {
        QTest::addColumn<QString>("effect");
        QTest::addColumn<QString>("name");
        QTest::newRow("brightness") << u"QXBrightness"_s << u"brightness"_s;
        QTest::newRow("contrast") << u"QXContrast"_s << u"contrast"_s;
        QTest::newRow("red") << u"QXRed"_s << u"red"_s;
        QTest::newRow("green") << u"QXGreen"_s << u"green"_s;
        QTest::newRow("blue") << u"QXBlue"_s << u"blue"_s;
        QTest::newRow("saturation") << u"QXSaturation"_s << u"saturation"_s;
        QTest::newRow("other letter case") << u"qxred"_s << QString();
        QTest::newRow("gray") << u"QXGray"_s << QString();
        QTest::newRow("color matching") << u"QXColorMatching"_s << QString();
        QTest::newRow("nothing") << QString() << QString();
    }
    void rosterLookupsOfTheEffects()
    {
        QFETCH(QString, effect);
        QFETCH(QString, name);
        show(RecordingHost::forSamplePrinter());
        QWidget *slider = name.isNull() ? nullptr : part(name + u"Slider"_s);
        QWidget *field = name.isNull() ? nullptr : part(name + u"Field"_s);
        QCOMPARE(m_panel->determineSlider(effect), slider);
        QCOMPARE(m_panel->determineField(effect), field);
        if (name.isNull())
            return;
        QVERIFY(slider && field);
        QCOMPARE(m_panel->determineLabel(effect), part(name + u"Label"_s));
        QVERIFY2(!m_panel->determineUI(effect), "an effect is bound to no PPD choice");
        QVERIFY(m_panel->determineKey(slider).isNull());
        QVERIFY(m_panel->determineKey(field).isNull());
    }

    void aMovedSliderIsSavedAndMarksNothing()
    {
        show(RecordingHost::forSamplePrinter());
        m_host->forgetCalls();
        m_panel->determineSlider(u"QXGreen"_s)->setValue(-6);
        QVERIFY(m_panel->saveValuesAndReturnError(nullptr));
        QCOMPARE(m_panel->entry(kNormalEffect),
                 QVariant(QVariantList{qint64(0), qint64(0), qint64(0), qint64(-6), qint64(0),
                                       qint64(0)}));
        QVERIFY(m_host->asked().isEmpty());
        QCOMPARE(m_host->marked(u"QXGreen"_s), u"0"_s);
    }

    void storedEffectsAreShownAsWholeNumbers()
    {
        const auto host = RecordingHost::forSamplePrinter();
        host->settings().setValue(
            kNormalEffect, effectTexts({u"5"_s, u"30"_s, u"-3"_s, u"+7"_s, u"-20"_s, u"20"_s}));
        show(host);
        const QVariantList whole{qint64(5), qint64(0),   qint64(-3),
                                 qint64(7), qint64(-20), qint64(20)};
        for (size_t i = 0; i < kEffectKeywords.size(); ++i) {
            const qint64 value = whole.at(qsizetype(i)).toLongLong();
            QCOMPARE(qint64(m_panel->determineSlider(kEffectKeywords[i])->value()), value);
            QCOMPARE(m_panel->determineField(kEffectKeywords[i])->text(), QString::number(value));
        }
    }

    // Printers without effects

    void aPrinterWithoutEffectsHasANoticeInTheirPlace_data()
    {
        QTest::addColumn<QList<QByteArray>>("effects");
        QTest::addColumn<bool>("any");
        QTest::newRow("none") << QList<QByteArray>{} << false;
        QTest::newRow("one") << QList<QByteArray>{"QXSaturation"} << true;
    }
    void aPrinterWithoutEffectsHasANoticeInTheirPlace()
    {
        QFETCH(QList<QByteArray>, effects);
        QFETCH(bool, any);
        show(RecordingHost::forPpd(printerWith(effects).text()));
        m_panel->optionButton->click();
        QWidget *view = m_panel->panelView();
        QCOMPARE(part(u"effects"_s)->isVisibleTo(view), any);
        for (const QLatin1StringView effect : kEffectKeywords)
            QCOMPARE(m_panel->determineSlider(effect)->isVisibleTo(view),
                     effects.contains(QByteArray(effect.data(), effect.size())));
        QCOMPARE(m_panel->effectImageView->isVisibleTo(view), any);
        auto *notice = view->findChild<QLabel *>(u"noEffectsLabel"_s);
        QCOMPARE(notice->isVisibleTo(view), !any);
        QCOMPARE(notice->text(), m_bundle->bundle()->localizedStringOrKey(u"NoColorEffects"_s));
        QVERIFY(notice->text() != u"NoColorEffects"_s);
        QCOMPARE(takeInterfaceProblems(), QStringList());
    }

private:
    void show(const std::shared_ptr<RecordingHost> &host)
    {
        m_host = host;
        m_panel = std::make_unique<ColorSettingProbe>(host);
        QVERIFY(m_panel->initWithHost());
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
    }
    double height() { return viewFrame(m_panel->panelView()).height; }
    QWidget *part(const QString &name) { return m_panel->panelView()->findChild<QWidget *>(name); }
    QLabel *label(const QString &effect)
    {
        return qobject_cast<QLabel *>(m_panel->determineLabel(effect));
    }
    static QString accessibleName(QWidget *control)
    {
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(control);
        return interface ? interface->text(QAccessible::Name) : QString();
    }

    std::optional<TestBundle> m_bundle;
    std::shared_ptr<RecordingHost> m_host;
    std::unique_ptr<ColorSettingProbe> m_panel;
};

QTEST_MAIN(AdvancedPartTest)
#include "advanced_part_test.moc"
