// How the effects' values become parameters of the preview's filters.

#include <bit>

#include <QLineEdit>
#include <QSlider>
#include <QTest>

#include "tests/colorsetting/ColorSettingProbe.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// A number that a parameter must not have been, so that a test sees whether it was set.
constexpr int kUntouchedStep = 11;

} // namespace

class ParametersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_panel = std::make_unique<ColorSettingProbe>(RecordingHost::forSamplePrinter());
        QVERIFY(m_panel->initWithHost());
        QVERIFY(m_panel->panelView());
        m_panel->willShow();
    }
    void cleanup() { m_panel.reset(); }

    void aColorControlIsANumberOfSinglePrecision_data()
    {
        QTest::addColumn<QString>("effect");
        QTest::addColumn<QString>("filterKey");
        QTest::addColumn<float>("divisor");
        QTest::addColumn<float>("identity");
        QTest::addColumn<float>("lowest");
        QTest::addColumn<float>("highest");
        QTest::newRow("brightness")
            << u"QXBrightness"_s << u"inputBrightness"_s << 200.0f << 0.0f << -0.1f << 0.1f;
        QTest::newRow("contrast") << u"QXContrast"_s << u"inputContrast"_s << 160.0f << 1.0f
                                  << 0.875f << 1.125f;
        QTest::newRow("saturation")
            << u"QXSaturation"_s << u"inputSaturation"_s << 80.0f << 1.0f << 0.75f << 1.25f;
    }
    void aColorControlIsANumberOfSinglePrecision()
    {
        QFETCH(QString, effect);
        QFETCH(QString, filterKey);
        QFETCH(float, divisor);
        QFETCH(float, identity);
        QFETCH(float, lowest);
        QFETCH(float, highest);
        const auto parameterAt = [&](int step) {
            m_panel->determineSlider(effect)->setValue(step);
            return m_panel->ccFilter->valueForKey(filterKey);
        };
        for (int step = -20; step <= 20; ++step) {
            const QVariant parameter = parameterAt(step);
            QCOMPARE(parameter.typeId(), int(QMetaType::Float));
            const float expected = static_cast<float>(step) / divisor + identity;
            QCOMPARE(std::bit_cast<quint32>(parameter.value<float>()),
                     std::bit_cast<quint32>(expected));
        }
        QCOMPARE(std::bit_cast<quint32>(parameterAt(-20).value<float>()),
                 std::bit_cast<quint32>(lowest));
        QCOMPARE(std::bit_cast<quint32>(parameterAt(20).value<float>()),
                 std::bit_cast<quint32>(highest));
        QCOMPARE(std::bit_cast<quint32>(parameterAt(0).value<float>()),
                 std::bit_cast<quint32>(identity));
    }

    void aGainIsANumberOfDoublePrecision_data()
    {
        QTest::addColumn<QString>("effect");
        QTest::addColumn<QString>("filterKey");
        QTest::addColumn<int>("component");
        QTest::newRow("red") << u"QXRed"_s << u"inputRVector"_s << 0;
        QTest::newRow("green") << u"QXGreen"_s << u"inputGVector"_s << 1;
        QTest::newRow("blue") << u"QXBlue"_s << u"inputBVector"_s << 2;
    }
    void aGainIsANumberOfDoublePrecision()
    {
        QFETCH(QString, effect);
        QFETCH(QString, filterKey);
        QFETCH(int, component);
        const auto gainAt = [&](int step) -> std::optional<double> {
            m_panel->determineSlider(effect)->setValue(step);
            const QVariant parameter = m_panel->cmFilter->valueForKey(filterKey);
            if (parameter.metaType() != QMetaType::fromType<FilterVector>())
                return std::nullopt;
            const auto vector = parameter.value<FilterVector>();
            const double components[] = {vector.red, vector.green, vector.blue, vector.alpha};
            for (int i = 0; i < 4; ++i) {
                if (i != component && components[i] != 0)
                    return std::nullopt;
            }
            return components[component];
        };
        for (int step = -20; step <= 20; ++step) {
            const std::optional<double> gain = gainAt(step);
            QVERIFY(gain);
            QCOMPARE(std::bit_cast<quint64>(*gain), std::bit_cast<quint64>(step / 35.0 + 1.0));
        }
        QCOMPARE(gainAt(0), std::optional(1.0));
        QVERIFY(qAbs(*gainAt(-20) - 0.428571428571) < 1e-11);
        QVERIFY(qAbs(*gainAt(20) - 1.571428571428) < 1e-11);
    }

    void aCodeChoosesTheColorControlsThatAreSet_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QStringList>("set");
        QTest::newRow("all") << -1
                             << QStringList{u"QXBrightness"_s, u"QXContrast"_s, u"QXSaturation"_s};
        QTest::newRow("all, any negative code")
            << -7 << QStringList{u"QXBrightness"_s, u"QXContrast"_s, u"QXSaturation"_s};
        QTest::newRow("brightness") << 0 << QStringList{u"QXBrightness"_s};
        QTest::newRow("contrast") << 1 << QStringList{u"QXContrast"_s};
        QTest::newRow("saturation") << 2 << QStringList{u"QXSaturation"_s};
        QTest::newRow("beyond") << 3 << QStringList();
    }
    void aCodeChoosesTheColorControlsThatAreSet()
    {
        QFETCH(int, code);
        QFETCH(QStringList, set);
        const QMap<QString, float> parameters{{u"QXBrightness"_s, 5 / 200.0f},
                                              {u"QXContrast"_s, 5 / 160.0f + 1},
                                              {u"QXSaturation"_s, 5 / 80.0f + 1}};
        const QMap<QString, QString> keys{{u"QXBrightness"_s, u"inputBrightness"_s},
                                          {u"QXContrast"_s, u"inputContrast"_s},
                                          {u"QXSaturation"_s, u"inputSaturation"_s}};
        for (const QString &key : keys)
            m_panel->ccFilter->setValue_forKey(float(kUntouchedStep), key);
        writeAll(u"5.9"_s);
        const FilterImage image = somePicture();
        const FilterImage output = m_panel->applyColorControlFilter_code(image, code);
        QCOMPARE(output.picture().constBits(), image.picture().constBits());
        for (auto effect = keys.begin(); effect != keys.end(); ++effect) {
            const bool isSet = set.contains(effect.key());
            QCOMPARE(m_panel->ccFilter->valueForKey(effect.value()).toFloat(),
                     isSet ? parameters.value(effect.key()) : float(kUntouchedStep));
            // What is shown becomes the whole number only where one control was moved.
            const QVariant shown = m_panel->effectContent->value(effect.key());
            const bool rewritten = isSet && code >= 0;
            QCOMPARE(shown, rewritten ? QVariant(5.0f) : QVariant(u"5.9"_s));
            QCOMPARE(shown.typeId(), int(rewritten ? QMetaType::Float : QMetaType::QString));
        }
    }

    void aCodeChoosesTheGainsThatAreSet_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QStringList>("set");
        QTest::newRow("all") << -1 << QStringList{u"QXRed"_s, u"QXGreen"_s, u"QXBlue"_s};
        QTest::newRow("red") << 0 << QStringList{u"QXRed"_s};
        QTest::newRow("green") << 1 << QStringList{u"QXGreen"_s};
        QTest::newRow("blue") << 2 << QStringList{u"QXBlue"_s};
        QTest::newRow("beyond") << 3 << QStringList();
    }
    void aCodeChoosesTheGainsThatAreSet()
    {
        QFETCH(int, code);
        QFETCH(QStringList, set);
        const double gain = 5 / 35.0 + 1;
        const QMap<QString, FilterVector> parameters{
            {u"QXRed"_s, {gain, 0, 0}}, {u"QXGreen"_s, {0, gain, 0}}, {u"QXBlue"_s, {0, 0, gain}}};
        const QMap<QString, QString> keys{{u"QXRed"_s, u"inputRVector"_s},
                                          {u"QXGreen"_s, u"inputGVector"_s},
                                          {u"QXBlue"_s, u"inputBVector"_s}};
        const FilterVector untouched{kUntouchedStep, kUntouchedStep, kUntouchedStep};
        for (const QString &key : keys)
            m_panel->cmFilter->setValue_forKey(untouched, key);
        writeAll(u"5.9"_s);
        const FilterImage image = somePicture();
        const FilterImage output = m_panel->applyColorMatrixFilter_code(image, code);
        QCOMPARE(output.picture().constBits(), image.picture().constBits());
        for (auto effect = keys.begin(); effect != keys.end(); ++effect) {
            const bool isSet = set.contains(effect.key());
            QVERIFY(m_panel->cmFilter->valueForKey(effect.value()).value<FilterVector>() ==
                    (isSet ? parameters.value(effect.key()) : untouched));
            const QVariant shown = m_panel->effectContent->value(effect.key());
            const bool rewritten = isSet && code >= 0;
            QCOMPARE(shown, rewritten ? QVariant(qint64(5)) : QVariant(u"5.9"_s));
            QCOMPARE(shown.typeId(), int(rewritten ? QMetaType::LongLong : QMetaType::QString));
        }
    }

    void whatIsNoNumberCountsAsZero_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<float>("parameter");
        QTest::newRow("nothing") << QVariant() << 1.0f;
        QTest::newRow("no number") << QVariant(u"much"_s) << 1.0f;
        QTest::newRow("a list") << QVariant(QVariantList{8}) << 1.0f;
        QTest::newRow("a decimal text") << QVariant(u"8"_s) << 1.05f;
        QTest::newRow("a fraction is cut") << QVariant(8.99) << 1.05f;
        QTest::newRow("a negative fraction is cut towards zero") << QVariant(-8.99) << 0.95f;
    }
    void whatIsNoNumberCountsAsZero()
    {
        QFETCH(QVariant, value);
        QFETCH(float, parameter);
        m_panel->ccFilter->setValue_forKey(3.0f, kCIInputContrastKey);
        m_panel->effectContent->setValue(u"QXContrast"_s, value);
        m_panel->applyColorControlFilter_code(somePicture(), -1);
        QCOMPARE(m_panel->ccFilter->valueForKey(kCIInputContrastKey).toFloat(), parameter);
    }

    void aMovedControlSetsItsOwnParameterOnly()
    {
        m_panel->effectContent->setValue(u"QXContrast"_s, 20); // by nobody's move
        m_panel->determineSlider(u"QXBrightness"_s)->setValue(10);
        QCOMPARE(m_panel->ccFilter->valueForKey(kCIInputBrightnessKey).toFloat(), 0.05f);
        QCOMPARE(m_panel->ccFilter->valueForKey(kCIInputContrastKey).toFloat(), 1.0f);
    }

    void theTagOfAControlChoosesItsEffect_data()
    {
        QTest::addColumn<QString>("effect");
        QTest::addColumn<int>("tag");
        QTest::newRow("brightness") << u"QXBrightness"_s << 0;
        QTest::newRow("contrast") << u"QXContrast"_s << 1;
        QTest::newRow("saturation") << u"QXSaturation"_s << 2;
        QTest::newRow("red") << u"QXRed"_s << 3;
        QTest::newRow("green") << u"QXGreen"_s << 4;
        QTest::newRow("blue") << u"QXBlue"_s << 5;
    }
    void theTagOfAControlChoosesItsEffect()
    {
        QFETCH(QString, effect);
        QFETCH(int, tag);
        QSlider *slider = m_panel->determineSlider(effect);
        QLineEdit *field = m_panel->determineField(effect);
        QCOMPARE(slider->property("tag").toInt(), tag);
        QCOMPARE(field->property("tag").toInt(), tag);
        QCOMPARE(slider->minimum(), -20);
        QCOMPARE(slider->maximum(), 20);
        slider->setValue(7);
        QCOMPARE(QXLaserColorSettingPDE::EffectVal().tag, qint64(tag));
        QCOMPARE(QXLaserColorSettingPDE::EffectVal().value, qint64(7));
        QCOMPARE(field->text(), u"7"_s);
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, u"-9"_s);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(QXLaserColorSettingPDE::EffectVal().tag, qint64(tag));
        QCOMPARE(QXLaserColorSettingPDE::EffectVal().value, qint64(-9));
        QCOMPARE(slider->value(), -9);
    }

private:
    static FilterImage somePicture()
    {
        QImage picture(2, 2, QImage::Format_RGB32);
        picture.fill(qRgb(90, 120, 150));
        return FilterImage(picture);
    }
    void writeAll(const QVariant &value)
    {
        for (const QLatin1StringView effect : kEffectKeywords)
            m_panel->effectContent->setValue(effect, value);
    }

    TestBundle m_bundle = TestBundle::built();
    std::unique_ptr<ColorSettingProbe> m_panel;
};

QTEST_MAIN(ParametersTest)
#include "parameters_test.moc"
