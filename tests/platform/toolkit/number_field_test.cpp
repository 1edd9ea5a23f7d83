#include <QLineEdit>
#include <QSlider>
#include <QtTest>

#include "platform/toolkit/BindingDictionary.h"
#include "platform/toolkit/Bindings.h"
#include "platform/toolkit/ProgrammaticChange.h"

using namespace corvana;
using namespace Qt::StringLiterals;

/// A field whose number is bound, in the range of a slider.
class NumberFieldTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dictionary = std::make_unique<BindingDictionary>();
        m_field = std::make_unique<QLineEdit>();
        m_slider = std::make_unique<QSlider>();
        m_slider->setRange(-6, 6);
        bindNumber(m_field.get(), m_dictionary.get(), u"density"_s, m_slider.get());
        m_dictionary->setValue(u"density"_s, qint64(3));
        m_written.clear();
        connect(m_dictionary.get(), &BindingDictionary::valueWritten, this,
                [this](const QString &, const QVariant &value) { m_written += value; });
    }
    void cleanup()
    {
        m_field.reset();
        m_slider.reset();
        m_dictionary.reset();
    }

    void theNumberIsShown_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("shown");
        QTest::newRow("a number") << QVariant(-2) << u"-2"_s;
        QTest::newRow("a text") << QVariant(u"-2"_s) << u"-2"_s;
        QTest::newRow("a fraction") << QVariant(2.9) << u"2"_s;
        QTest::newRow("outside the range") << QVariant(99) << u"99"_s;
        QTest::newRow("a word") << QVariant(u"dark"_s) << u"0"_s;
        QTest::newRow("beyond all numbers")
            << QVariant(u"999999999999999999999"_s) << u"9223372036854775807"_s;
        QTest::newRow("no number") << QVariant(qQNaN()) << u"0"_s;
        QTest::newRow("a list") << QVariant(QVariantList{1, 2}) << u"0"_s;
        QTest::newRow("nothing") << QVariant() << u"0"_s;
    }
    void theNumberIsShown()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, shown);
        m_dictionary->setValue(u"density"_s, value);
        QCOMPARE(m_field->text(), shown);
        QCOMPARE(m_written.size(), 1); // nothing comes back
    }

    void whatIsEnteredIsWrittenInsideTheRange_data()
    {
        QTest::addColumn<QString>("entered");
        QTest::addColumn<qint64>("written");
        QTest::newRow("inside") << u"-4"_s << qint64(-4);
        QTest::newRow("above") << u"7"_s << qint64(6);
        QTest::newRow("below") << u"-7"_s << qint64(-6);
        QTest::newRow("the largest") << u"9223372036854775807"_s << qint64(6);
        QTest::newRow("zeros in front") << u"-004"_s << qint64(-4);
        QTest::newRow("full-width") << u"\uff0d\uff14"_s << qint64(-4);
        QTest::newRow("a minus sign") << u"\u22124"_s << qint64(-4);
        QTest::newRow("beyond every number") << u"99999999999999999999"_s << qint64(6);
        QTest::newRow("a fraction") << u"1.9"_s << qint64(1);
        QTest::newRow("a fraction with a comma") << u"-1,9"_s << qint64(-1);
        QTest::newRow("Arabic digits") << u"٤"_s << qint64(4);
    }
    void whatIsEnteredIsWrittenInsideTheRange()
    {
        QFETCH(QString, entered);
        QFETCH(qint64, written);
        enter(entered);
        QCOMPARE(m_written.size(), 1);
        QCOMPARE(m_written.first(), QVariant(written));
        QCOMPARE(m_written.first().typeId(), int(QMetaType::LongLong));
        QCOMPARE(m_field->text(), QString::number(written));
    }

    void whatIsNoNumberBringsTheFormerOneBack_data()
    {
        QTest::addColumn<QString>("entered");
        for (const QString &text : {u""_s, u"-"_s, u"+"_s, u"--1"_s, u"1-"_s, u"++1"_s, u"1.5.2"_s,
                                    u"0x1"_s, u"1 2"_s, u"dark"_s, u"nan"_s, u"½"_s})
            QTest::addRow("'%s'", qUtf8Printable(text)) << text;
    }
    void whatIsNoNumberBringsTheFormerOneBack()
    {
        QFETCH(QString, entered);
        enter(entered);
        QVERIFY(m_written.isEmpty());
        QCOMPARE(m_field->text(), u"3"_s);
    }

    void theSameNumberIsWrittenAnewButNotTold()
    {
        enter(u"+03"_s);
        QVERIFY(m_written.isEmpty());
        QCOMPARE(m_field->text(), u"3"_s);
    }

    void theRangeIsThatOfTheMoment()
    {
        m_slider->setRange(0, 100);
        enter(u"70"_s);
        QCOMPARE(m_written, QVariantList{qint64(70)});
    }

    void aChangeOfTheProgramsOwnIsNotWritten()
    {
        const ProgrammaticChange change;
        enter(u"5"_s);
        QVERIFY(m_written.isEmpty());
    }

private:
    void enter(const QString &text)
    {
        m_field->setText(text);
        QTest::keyClick(m_field.get(), Qt::Key_Return);
    }

    std::unique_ptr<BindingDictionary> m_dictionary;
    std::unique_ptr<QLineEdit> m_field;
    std::unique_ptr<QSlider> m_slider;
    QVariantList m_written;
};

QTEST_MAIN(NumberFieldTest)
#include "number_field_test.moc"
