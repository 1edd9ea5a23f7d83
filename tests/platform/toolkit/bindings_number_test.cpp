#include <QLineEdit>
#include <QSlider>
#include <QTest>
#include <QVBoxLayout>

#include "platform/toolkit/BindingDictionary.h"
#include "platform/toolkit/Bindings.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/ProgrammaticChange.h"

#include "UserActs.h"

using namespace corvana;
using namespace Qt::StringLiterals;

/// A field that shows the number of a slider.
class BindingsNumberTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(m_window.get());
        m_group = new QWidget;
        layout->addWidget(m_group);
        auto *groupLayout = new QVBoxLayout(m_group);
        m_slider = new QSlider(Qt::Horizontal);
        m_slider->setRange(-20, 20);
        m_field = new QLineEdit;
        groupLayout->addWidget(m_slider);
        groupLayout->addWidget(m_field);
        m_dictionary = std::make_unique<BindingDictionary>();
        m_dictionary->setValue(kKey, 3);
        QVERIFY(bindValue(m_slider, m_dictionary.get(), kKey));
        bindNumber(m_field, m_dictionary.get(), kKey, m_slider);
        QVERIFY(user::show(m_window.get()));
    }
    void cleanup()
    {
        m_window.reset();
        m_dictionary.reset();
    }

    void theNumberIsShown_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("number") << QVariant(-7) << u"-7"_s;
        QTest::newRow("fraction") << QVariant(7.9f) << u"7"_s;
        QTest::newRow("decimal text") << QVariant(u"+7"_s) << u"7"_s;
        QTest::newRow("no number") << QVariant(u"much"_s) << u"0"_s;
        QTest::newRow("nothing") << QVariant() << u"0"_s;
        QTest::newRow("beyond the slider") << QVariant(99) << u"99"_s;
        QTest::newRow("beyond all numbers")
            << QVariant(u"999999999999999999999"_s) << u"9223372036854775807"_s;
        QTest::newRow("not a number") << QVariant(qQNaN()) << u"0"_s;
        QTest::newRow("a list") << QVariant(QVariantList{1, 2}) << u"0"_s;
    }
    void theNumberIsShown()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, text);
        m_dictionary->setValue(kKey, value);
        QCOMPARE(m_field->text(), text);
        // As text: what is not a number equals nothing, not even itself.
        QCOMPARE(QDebug::toString(m_dictionary->value(kKey)), QDebug::toString(value));
    }

    void whatIsEnteredIsWrittenInsideTheRange_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("number");
        QTest::newRow("a number") << u"12"_s << 12;
        QTest::newRow("a negative number") << u"-12"_s << -12;
        QTest::newRow("with its sign") << u"+12"_s << 12;
        QTest::newRow("blanks around it") << u" 12 "_s << 12;
        QTest::newRow("the highest") << u"20"_s << 20;
        QTest::newRow("above") << u"21"_s << 20;
        QTest::newRow("the lowest") << u"-20"_s << -20;
        QTest::newRow("below") << u"-9999"_s << -20;
        QTest::newRow("full-width digits") << u"－１２"_s << -12;
        QTest::newRow("Arabic digits") << u"١٢"_s << 12;
        QTest::newRow("Devanagari digits") << u"-१२"_s << -12;
        QTest::newRow("a true minus sign") << u"\u221212"_s << -12;
        QTest::newRow("the largest number") << u"9223372036854775807"_s << 20;
        QTest::newRow("zeros in front") << u"-004"_s << -4;
        QTest::newRow("a fraction with a comma") << u"-1,9"_s << -1;
        // Anything that is no number leaves what there was.
        QTest::newRow("nothing") << u""_s << 3;
        QTest::newRow("a word") << u"much"_s << 3;
        QTest::newRow("a number and a word") << u"12 steps"_s << 3;
        QTest::newRow("a fraction") << u"12.5"_s << 12;
        QTest::newRow("two signs") << u"--12"_s << 3;
        QTest::newRow("a sign behind") << u"12-"_s << 3;
        QTest::newRow("a sign alone") << u"-"_s << 3;
        QTest::newRow("a plus sign alone") << u"+"_s << 3;
        QTest::newRow("two plus signs") << u"++1"_s << 3;
        QTest::newRow("two fractions") << u"1.5.2"_s << 3;
        QTest::newRow("hexadecimal") << u"0x1"_s << 3;
        QTest::newRow("two numbers") << u"1 2"_s << 3;
        QTest::newRow("not a number") << u"nan"_s << 3;
        QTest::newRow("a half as one sign") << u"½"_s << 3;
        QTest::newRow("more digits than a number has") << u"99999999999999999999"_s << 20;
    }
    void whatIsEnteredIsWrittenInsideTheRange()
    {
        QFETCH(QString, typed);
        QFETCH(int, number);
        enter(typed);
        QCOMPARE(m_dictionary->value(kKey).toInt(), number);
        // The panels store what they read, and tell an integer from a fraction.
        if (number != 3)
            QCOMPARE(m_dictionary->value(kKey).typeId(), int(QMetaType::LongLong));
        QCOMPARE(m_field->text(), QString::number(number));
        QCOMPARE(m_slider->value(), number);
    }

    void whatIsBeingTypedIsNotWrittenYet()
    {
        m_field->setFocus();
        m_field->selectAll();
        QTest::keyClicks(m_field, u"12"_s);
        QCOMPARE(m_dictionary->value(kKey), QVariant(3));
        QTest::keyClick(m_field, Qt::Key_Tab);
        QCOMPARE(m_dictionary->value(kKey).toInt(), 12);
    }

    void anUnchangedNumberIsNotWritten()
    {
        m_dictionary->setValue(kKey, u"+3"_s);
        enter(u"3"_s);
        QCOMPARE(m_dictionary->value(kKey), QVariant(u"+3"_s));
        enter(u"003"_s);
        QCOMPARE(m_field->text(), u"3"_s);
        QCOMPARE(m_dictionary->value(kKey), QVariant(u"+3"_s));
    }

    void aNumberBeyondTheRangeStaysUntilAnotherIsEntered()
    {
        m_dictionary->setValue(kKey, 99);
        enter(u"99"_s);
        QCOMPARE(m_dictionary->value(kKey), QVariant(99));
        enter(u"98"_s);
        QCOMPARE(m_dictionary->value(kKey).toInt(), 20);
    }

    void theRangeIsTheSlidersAtThatTime()
    {
        m_slider->setRange(-5, 5);
        enter(u"12"_s);
        QCOMPARE(m_dictionary->value(kKey).toInt(), 5);
    }

    void sliderAndFieldMoveTogether()
    {
        m_slider->setValue(-9);
        QCOMPARE(m_field->text(), u"-9"_s);
        QCOMPARE(m_dictionary->value(kKey).toInt(), -9);
    }

    void aProgrammaticChangeWritesNothingBack()
    {
        const ProgrammaticChange change;
        m_field->setText(u"12"_s);
        Q_EMIT m_field->editingFinished();
        QCOMPARE(m_dictionary->value(kKey), QVariant(3));
    }

    // Enabled

    void theFieldCanBeUsedWhileTheSliderCan()
    {
        m_slider->setEnabled(false);
        QVERIFY(!m_field->isEnabled());
        m_slider->setEnabled(true);
        QVERIFY(m_field->isEnabled());
    }

    void aDisabledGroupDoesNotDisableTheFieldForGood()
    {
        m_group->setEnabled(false);
        QVERIFY2(isControlEnabled(m_field), "it is the group that is disabled");
        m_group->setEnabled(true);
        QVERIFY(m_slider->isEnabled());
        QVERIFY(m_field->isEnabled());

        m_slider->setEnabled(false);
        m_group->setEnabled(false);
        m_group->setEnabled(true);
        QVERIFY(!m_field->isEnabled());

        m_group->setEnabled(false);
        m_slider->setEnabled(true);
        m_group->setEnabled(true);
        QVERIFY(m_slider->isEnabled());
        QVERIFY(m_field->isEnabled());
    }

    void theBoundFlagReachesTheFieldThroughTheSlider()
    {
        bindEnabled(m_slider, m_dictionary.get(), u"usable"_s);
        m_dictionary->setValue(u"usable"_s, false);
        QVERIFY(!m_field->isEnabled());
        m_dictionary->setValue(u"usable"_s, true);
        QVERIFY(m_field->isEnabled());
    }

    void aFieldThatIsGoneIsLeftAlone()
    {
        delete m_field;
        m_slider->setEnabled(false);
        m_dictionary->setValue(kKey, 5);
        QCOMPARE(m_slider->value(), 5);
    }

    void aSliderDisabledBeforehandDisablesTheField()
    {
        QSlider slider;
        QLineEdit field;
        slider.setEnabled(false);
        bindNumber(&field, m_dictionary.get(), kKey, &slider);
        QVERIFY(!field.isEnabled());
    }

    void aFieldMayOutliveItsSlider()
    {
        delete m_slider;
        m_dictionary->setValue(kKey, 5);
        QCOMPARE(m_field->text(), u"5"_s);
    }

private:
    void enter(const QString &text)
    {
        m_field->setFocus();
        m_field->setText(text);
        QTest::keyClick(m_field, Qt::Key_Return);
    }

    static inline const QString kKey = u"number"_s;
    std::unique_ptr<QWidget> m_window;
    QWidget *m_group = nullptr;
    QSlider *m_slider = nullptr;
    QLineEdit *m_field = nullptr;
    std::unique_ptr<BindingDictionary> m_dictionary;
};

QTEST_MAIN(BindingsNumberTest)
#include "bindings_number_test.moc"
