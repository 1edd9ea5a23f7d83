// Which controls can be used, and how their texts are drawn, in every state of the job: who matches
// colors, monochrome printing, fax, and each choice of the color matching.

#include <QLineEdit>
#include <QSlider>
#include <QTest>

#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/LabelColor.h"
#include "tests/colorsetting/ColorSettingProbe.h"
#include "tests/colorsetting/OwnPictures.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

struct JobState
{
    QLatin1StringView name;
    bool driver; // matches the colors
    bool mono;
    bool fax;
    QLatin1StringView matching;
    // "1" on, "0" off, "-" never written: color matching, enhancement, mono color, color.
    QLatin1StringView flags;
    // "1" normal, "0" disabled: brightness, contrast, red, green, blue, saturation.
    QLatin1StringView texts;
    // "1" can be moved, "0" cannot, "-" as it was before.
    QLatin1StringView sliders;
};

constexpr JobState kStates[] = {
    {"driver, color, Normal"_L1, true, false, false, "Normal"_L1, "1111"_L1, "111111"_L1,
     "111111"_L1},
    {"driver, color, Vivid"_L1, true, false, false, "Vivid"_L1, "1111"_L1, "111111"_L1,
     "111111"_L1},
    {"driver, color, None"_L1, true, false, false, "None"_L1, "1111"_L1, "000000"_L1, "000000"_L1},
    {"driver, mono, Normal"_L1, true, true, false, "Normal"_L1, "1100"_L1, "110000"_L1,
     "110000"_L1},
    {"driver, mono, Vivid"_L1, true, true, false, "Vivid"_L1, "1100"_L1, "110000"_L1, "110000"_L1},
    {"driver, mono, None"_L1, true, true, false, "None"_L1, "1100"_L1, "110000"_L1, "110000"_L1},
    {"application, color, Normal"_L1, false, false, false, "Normal"_L1, "000-"_L1, "000000"_L1,
     "000000"_L1},
    {"application, color, Vivid"_L1, false, false, false, "Vivid"_L1, "000-"_L1, "000000"_L1,
     "000000"_L1},
    {"application, color, None"_L1, false, false, false, "None"_L1, "000-"_L1, "000000"_L1,
     "000000"_L1},
    {"application, mono, Normal"_L1, false, true, false, "Normal"_L1, "0000"_L1, "000000"_L1,
     "000000"_L1},
    {"application, mono, Vivid"_L1, false, true, false, "Vivid"_L1, "0000"_L1, "000000"_L1,
     "000000"_L1},
    {"application, mono, None"_L1, false, true, false, "None"_L1, "0000"_L1, "000000"_L1,
     "000000"_L1},
    {"fax, driver, color, Normal"_L1, true, false, true, "Normal"_L1, "1--0"_L1, "000000"_L1,
     "--0000"_L1},
    {"fax, driver, color, Vivid"_L1, true, false, true, "Vivid"_L1, "1--0"_L1, "000000"_L1,
     "--0000"_L1},
    {"fax, driver, color, None"_L1, true, false, true, "None"_L1, "1--0"_L1, "000000"_L1,
     "--0000"_L1},
    {"fax, driver, mono, Normal"_L1, true, true, true, "Normal"_L1, "1--0"_L1, "000000"_L1,
     "--0000"_L1},
    {"fax, driver, mono, Vivid"_L1, true, true, true, "Vivid"_L1, "1--0"_L1, "000000"_L1,
     "--0000"_L1},
    {"fax, driver, mono, None"_L1, true, true, true, "None"_L1, "1--0"_L1, "000000"_L1,
     "--0000"_L1},
    {"fax, application, color, Normal"_L1, false, false, true, "Normal"_L1, "0--0"_L1, "000000"_L1,
     "--0000"_L1},
    {"fax, application, color, Vivid"_L1, false, false, true, "Vivid"_L1, "0--0"_L1, "000000"_L1,
     "--0000"_L1},
    {"fax, application, color, None"_L1, false, false, true, "None"_L1, "0--0"_L1, "000000"_L1,
     "--0000"_L1},
    {"fax, application, mono, Normal"_L1, false, true, true, "Normal"_L1, "0--0"_L1, "000000"_L1,
     "--0000"_L1},
    {"fax, application, mono, Vivid"_L1, false, true, true, "Vivid"_L1, "0--0"_L1, "000000"_L1,
     "--0000"_L1},
    {"fax, application, mono, None"_L1, false, true, true, "None"_L1, "0--0"_L1, "000000"_L1,
     "--0000"_L1},
};

void putRows()
{
    QTest::addColumn<int>("state");
    for (int i = 0; i < int(std::size(kStates)); ++i)
        QTest::newRow(kStates[i].name.data()) << i;
}

QString flagsOf(const ColorSettingProbe &panel)
{
    QString flags;
    for (const QString &key :
         {u"QXColorMatching"_s, u"QXColorEnhancement"_s, u"QXMonoColor"_s, u"Color"_s}) {
        if (!panel.effectContent->contains(key))
            flags += u'-';
        else
            flags += panel.effectContent->value(key).toBool() ? u'1' : u'0';
    }
    return flags;
}

QString textsOf(ColorSettingProbe &panel, bool fields)
{
    QString texts;
    for (const QLatin1StringView effect : kEffectKeywords) {
        const QWidget *text = fields ? panel.determineField(effect) : panel.determineLabel(effect);
        texts += textColor(text) == ControlTextColor::Normal ? u'1' : u'0';
    }
    return texts;
}

QString slidersOf(ColorSettingProbe &panel)
{
    QString sliders;
    for (const QLatin1StringView effect : kEffectKeywords)
        sliders += isControlEnabled(panel.determineSlider(effect)) ? u'1' : u'0';
    return sliders;
}

// A field can be used while its slider can.
bool fieldsFollowTheirSliders(ColorSettingProbe &panel)
{
    return std::all_of(kEffectKeywords.begin(), kEffectKeywords.end(),
                       [&](QLatin1StringView effect) {
                           return panel.determineField(effect)->isEnabled() ==
                                  panel.determineSlider(effect)->isEnabled();
                       });
}

void enter(ColorSettingProbe &panel, const JobState &state)
{
    panel.setMode(kModeColorSync, state.driver);
    panel.setMode(kModeMono, state.mono);
    panel.setMode(kModeFaxOutput, state.fax);
    panel.m_outputBin.insert(kQXColorMatching, QString(state.matching));
    panel.checkUIConstraints();
}

// What a state asks for, where it leaves something as it was before.
QString completed(QLatin1StringView wanted, const QString &before)
{
    QString result = wanted;
    for (qsizetype i = 0; i < result.size(); ++i) {
        if (result.at(i) == u'-')
            result[i] = before.at(i);
    }
    return result;
}

} // namespace

class ConstraintsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_bundle.emplace(TestBundle::built());
        m_panel = std::make_unique<ColorSettingProbe>(RecordingHost::forSamplePrinter());
        QVERIFY(m_panel->initWithHost());
        QVERIFY(m_panel->panelView());
    }
    void cleanup()
    {
        m_panel.reset();
        m_bundle.reset();
    }

    void everyStateHasItsControls_data() { putRows(); }
    void everyStateHasItsControls()
    {
        QFETCH(int, state);
        const JobState &wanted = kStates[state];
        QCOMPARE(slidersOf(*m_panel), u"111111"_s);
        enter(*m_panel, wanted);
        QCOMPARE(flagsOf(*m_panel), wanted.flags);
        QCOMPARE(textsOf(*m_panel, false), wanted.texts);
        QCOMPARE(textsOf(*m_panel, true), wanted.texts);
        QCOMPARE(slidersOf(*m_panel), completed(wanted.sliders, u"111111"_s));
        QVERIFY(fieldsFollowTheirSliders(*m_panel));
        QCOMPARE(textColor(m_panel->optionLabel),
                 wanted.fax ? ControlTextColor::Disabled : ControlTextColor::Normal);
        const bool matchesColors = wanted.driver && !wanted.mono && !wanted.fax;
        QCOMPARE(textColor(m_panel->colorMatchingLabel),
                 matchesColors ? ControlTextColor::Normal : ControlTextColor::Disabled);
        QCOMPARE(isControlEnabled(m_panel->colorMatchingMatrix), matchesColors);
        QCOMPARE(isControlEnabled(m_panel->grayCheckBox), !wanted.fax);
    }

    void noStateLeavesATraceInTheNext_data() { putRows(); }
    void noStateLeavesATraceInTheNext()
    {
        QFETCH(int, state);
        const JobState &wanted = kStates[state];
        for (const JobState &former : kStates) {
            enter(*m_panel, former);
            const QString before = slidersOf(*m_panel);
            enter(*m_panel, wanted);
            const QString way = QString(former.name) + u" -> "_s + wanted.name;
            QVERIFY2(textsOf(*m_panel, false) == wanted.texts, qPrintable(way));
            QVERIFY2(textsOf(*m_panel, true) == wanted.texts, qPrintable(way));
            QVERIFY2(slidersOf(*m_panel) == completed(wanted.sliders, before), qPrintable(way));
            QVERIFY2(fieldsFollowTheirSliders(*m_panel), qPrintable(way));
        }
    }

    void grayDisablesEnhancedBlackInEveryState_data() { putRows(); }
    void grayDisablesEnhancedBlackInEveryState()
    {
        QFETCH(int, state);
        const JobState &wanted = kStates[state];
        for (const bool gray : {false, true, false}) {
            m_panel->grayCheckBox->setChecked(gray);
            enter(*m_panel, wanted);
            QCOMPARE(isControlEnabled(m_panel->enhancedBlackCheckBox), !wanted.fax && !gray);
        }
    }

    void aFlagThatAStateDoesNotWriteKeepsItsValue()
    {
        const JobState &color = kStates[0];
        const JobState &application = kStates[6];
        const JobState &mono = kStates[3];
        enter(*m_panel, color);
        enter(*m_panel, application);
        QCOMPARE(flagsOf(*m_panel), u"0001"_s);
        enter(*m_panel, mono);
        enter(*m_panel, application);
        QCOMPARE(flagsOf(*m_panel), u"0000"_s);
    }

    // An interface file may bind less than the one that is shipped.
    void theRulesDisableTheEffectsWithoutAnyBinding_data()
    {
        QTest::addColumn<bool>("driver");
        QTest::addColumn<bool>("mono");
        QTest::addColumn<QString>("matching");
        QTest::addColumn<QString>("usable");
        QTest::newRow("driver, color") << true << false << u"Normal"_s << u"111111"_s;
        QTest::newRow("driver, color, None") << true << false << u"None"_s << u"000000"_s;
        QTest::newRow("driver, mono") << true << true << u"Normal"_s << u"111111"_s;
        QTest::newRow("driver, mono, None") << true << true << u"None"_s << u"110000"_s;
        QTest::newRow("application, color") << false << false << u"Normal"_s << u"000000"_s;
        QTest::newRow("application, mono") << false << true << u"None"_s << u"000000"_s;
    }
    void theRulesDisableTheEffectsWithoutAnyBinding()
    {
        QFETCH(bool, driver);
        QFETCH(bool, mono);
        QFETCH(QString, matching);
        QFETCH(QString, usable);
        m_panel.reset();
        m_bundle.reset();
        TestBundle bundle = bundleWithoutPictures();
        QByteArray interface = shippedInterface();
        interface.replace("\"bindEnabled\"", "\"unbound\"");
        interface.replace("\"bindTextColor\"", "\"unbound\"");
        bundle.addInterface(u"QXLaserColorSetting"_s, interface);
        ColorSettingProbe panel(RecordingHost::forSamplePrinter());
        QVERIFY(panel.initWithHost());
        QVERIFY(panel.panelView());
        panel.setMode(kModeColorSync, driver);
        panel.setMode(kModeMono, mono);
        panel.m_outputBin.insert(kQXColorMatching, matching);
        panel.checkUIConstraints();
        QCOMPARE(slidersOf(panel), usable);
        QCOMPARE(textsOf(panel, false), usable);
        QCOMPARE(textsOf(panel, true), usable);
    }

    void aChoiceInOtherLettersIsNoNone()
    {
        m_panel->setMode(kModeColorSync, true);
        m_panel->m_outputBin.insert(kQXColorMatching, u"none"_s);
        m_panel->checkUIConstraints();
        QCOMPARE(slidersOf(*m_panel), u"111111"_s);
    }

private:
    std::optional<TestBundle> m_bundle;
    std::unique_ptr<ColorSettingProbe> m_panel;
};

QTEST_MAIN(ConstraintsTest)
#include "constraints_test.moc"
