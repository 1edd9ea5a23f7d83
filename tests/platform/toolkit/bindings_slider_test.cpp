#include <QtTest>

#include <QSlider>

#include "platform/toolkit/BindingDictionary.h"
#include "platform/toolkit/Bindings.h"
#include "platform/toolkit/ProgrammaticChange.h"

#include "UserActs.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class BindingsSliderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aValueOutsideTheRangeIsKeptInTheDictionary();
    void aLaterRangeShowsTheValueThatWasOutside();
    void aNarrowerRangeWritesNothingBack();
    void aRangeWritesNothingBackWithoutAValueEither();
    void anEqualWriteIsShownAgain();
    void anyKindOfNumberIsShown_data();
    void anyKindOfNumberIsShown();
    void theKeyboardWritesBack();
    void theMouseWritesBack();
    void assistiveTechnologyWritesBack();
    void aProgrammaticChangeWritesNothingBack();
    void twoSlidersOfOneKeyMoveTogether();
    void aValueThatIsThereAlreadyIsShownAtOnce();
    void anotherKeyIsNotShown();
    void aSliderMayOutliveItsDictionary();
    void aDictionaryMayOutliveItsSlider();

private:
    qint64 stored() const { return m_dictionary->value(key).toLongLong(); }

    static inline const QString key = u"density"_s;
    std::unique_ptr<QSlider> m_slider;
    std::unique_ptr<BindingDictionary> m_dictionary;
    int m_writes = 0;
};

void BindingsSliderTest::init()
{
    m_slider = std::make_unique<QSlider>(Qt::Horizontal);
    m_slider->setRange(0, 10);
    m_dictionary = std::make_unique<BindingDictionary>();
    m_writes = 0;
    connect(m_dictionary.get(), &BindingDictionary::valueWritten, this, [this] { ++m_writes; });
    QVERIFY(bindValue(m_slider.get(), m_dictionary.get(), key));
}

void BindingsSliderTest::aValueOutsideTheRangeIsKeptInTheDictionary()
{
    m_dictionary->setValue(key, qint64(-2));
    QCOMPARE(m_slider->value(), 0);
    QCOMPARE(stored(), -2);
    QCOMPARE(m_writes, 1);
}

void BindingsSliderTest::aLaterRangeShowsTheValueThatWasOutside()
{
    m_dictionary->setValue(key, qint64(-2));
    m_slider->setRange(-6, 6);
    QCOMPARE(m_slider->value(), -2);
    QCOMPARE(stored(), -2);
    QCOMPARE(m_writes, 1);
}

void BindingsSliderTest::aNarrowerRangeWritesNothingBack()
{
    m_dictionary->setValue(key, qint64(9));
    m_slider->setRange(0, 4);
    QCOMPARE(m_slider->value(), 4);
    QCOMPARE(stored(), 9);
    QCOMPARE(m_writes, 1);
    m_slider->setMaximum(10);
    QCOMPARE(m_slider->value(), 9);
    m_slider->setMinimum(10);
    m_slider->setMinimum(0);
    QCOMPARE(m_slider->value(), 9);
    QCOMPARE(m_writes, 1);
}

void BindingsSliderTest::aRangeWritesNothingBackWithoutAValueEither()
{
    m_slider->setRange(5, 10); // the slider stood at 0
    QCOMPARE(m_slider->value(), 5);
    QVERIFY(!m_dictionary->contains(key));
    QCOMPARE(m_writes, 0);
}

void BindingsSliderTest::anEqualWriteIsShownAgain()
{
    m_dictionary->setValue(key, qint64(3));
    {
        const ProgrammaticChange change;
        m_slider->setValue(8);
    }
    m_dictionary->setValue(key, qint64(3));
    QCOMPARE(m_slider->value(), 3);
}

void BindingsSliderTest::anyKindOfNumberIsShown_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("shown");
    QTest::newRow("text") << QVariant(u" 7 points"_s) << 7;
    QTest::newRow("fraction") << QVariant(6.9) << 6;
    QTest::newRow("boolean") << QVariant(true) << 1;
    QTest::newRow("nothing") << QVariant() << 0;
    QTest::newRow("beyond 32 bits") << QVariant(qint64(1) << 32) << 10;
    QTest::newRow("below 32 bits") << QVariant(-(qint64(1) << 32) + 5) << 0;
}

void BindingsSliderTest::anyKindOfNumberIsShown()
{
    QFETCH(QVariant, value);
    QFETCH(int, shown);
    m_dictionary->setValue(key, value);
    QCOMPARE(m_slider->value(), shown);
    QCOMPARE(m_dictionary->value(key), value);
    QCOMPARE(m_writes, 1);
}

void BindingsSliderTest::theKeyboardWritesBack()
{
    QVERIFY(user::show(m_slider.get()));
    QTest::keyClick(m_slider.get(), Qt::Key_Right);
    QCOMPARE(stored(), 1);
    QCOMPARE(m_dictionary->value(key).typeId(), int(QMetaType::LongLong));
    QTest::keyClick(m_slider.get(), Qt::Key_End);
    QCOMPARE(stored(), 10);
    QCOMPARE(m_writes, 2);
}

void BindingsSliderTest::theMouseWritesBack()
{
    m_slider->resize(200, 30);
    QVERIFY(user::show(m_slider.get()));
    QTest::mouseClick(m_slider.get(), Qt::LeftButton, {}, QPoint(190, 15));
    QVERIFY(m_slider->value() > 0);
    QCOMPARE(stored(), m_slider->value());
}

void BindingsSliderTest::assistiveTechnologyWritesBack()
{
    QVERIFY(user::setValue(m_slider.get(), 6));
    QCOMPARE(stored(), 6);
    QCOMPARE(m_writes, 1);
}

void BindingsSliderTest::aProgrammaticChangeWritesNothingBack()
{
    const ProgrammaticChange change;
    m_slider->setValue(6);
    QVERIFY(!m_dictionary->contains(key));
}

void BindingsSliderTest::twoSlidersOfOneKeyMoveTogether()
{
    QSlider other;
    other.setRange(0, 3);
    QVERIFY(bindValue(&other, m_dictionary.get(), key));
    m_slider->setValue(8);
    QCOMPARE(other.value(), 3); // as far as its range goes, and without a word back
    QCOMPARE(stored(), 8);
    QCOMPARE(m_writes, 1);
}

void BindingsSliderTest::aValueThatIsThereAlreadyIsShownAtOnce()
{
    m_dictionary->setValue(key, qint64(4));
    QSlider late;
    QVERIFY(bindValue(&late, m_dictionary.get(), key));
    QCOMPARE(late.value(), 4);
    QCOMPARE(m_writes, 1);
}

void BindingsSliderTest::anotherKeyIsNotShown()
{
    m_dictionary->setValue(u"contrast"_s, qint64(4));
    QCOMPARE(m_slider->value(), 0);
}

void BindingsSliderTest::aSliderMayOutliveItsDictionary()
{
    m_dictionary->setValue(key, qint64(4));
    m_dictionary.reset();
    m_slider->setRange(0, 2);
    m_slider->setValue(1);
    QCOMPARE(m_slider->value(), 1);
}

void BindingsSliderTest::aDictionaryMayOutliveItsSlider()
{
    m_slider.reset();
    m_dictionary->setValue(key, qint64(4));
    QCOMPARE(stored(), 4);
}

QTEST_MAIN(BindingsSliderTest)
#include "bindings_slider_test.moc"
