#include <QtTest>

#include "platform/toolkit/BindingDictionary.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class BindingDictionaryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatWasNeverWrittenIsInvalid();
    void aWrittenValueIsReadWithItsType();
    void everyWriteIsToldAlsoAnEqualOne();
    void aWriteIsDoneWhenItIsTold();
    void aWriteInsideAWriteIsToldWithItsOwnValue();
};

void BindingDictionaryTest::whatWasNeverWrittenIsInvalid()
{
    const BindingDictionary dictionary;
    QVERIFY(!dictionary.contains(u"density"_s));
    QVERIFY(!dictionary.value(u"density"_s).isValid());
}

void BindingDictionaryTest::aWrittenValueIsReadWithItsType()
{
    BindingDictionary dictionary;
    dictionary.setValue(u"density"_s, u"-2"_s);
    QVERIFY(dictionary.contains(u"density"_s));
    QVERIFY(!dictionary.contains(u"Density"_s));
    QCOMPARE(dictionary.value(u"density"_s).typeId(), int(QMetaType::QString));
    dictionary.setValue(u"density"_s, qint64(-2));
    QCOMPARE(dictionary.value(u"density"_s), QVariant(qint64(-2)));
    QCOMPARE(dictionary.value(u"density"_s).typeId(), int(QMetaType::LongLong));
}

void BindingDictionaryTest::everyWriteIsToldAlsoAnEqualOne()
{
    BindingDictionary dictionary;
    const QSignalSpy written(&dictionary, &BindingDictionary::valueWritten);
    for (int i = 0; i < 3; ++i)
        dictionary.setValue(u"density"_s, 4);
    QCOMPARE(written.count(), 3);
    QCOMPARE(written.last(), (QVariantList{u"density"_s, 4}));
}

void BindingDictionaryTest::aWriteIsDoneWhenItIsTold()
{
    BindingDictionary dictionary;
    QVariant seen;
    connect(&dictionary, &BindingDictionary::valueWritten, this,
            [&](const QString &key) { seen = dictionary.value(key); });
    dictionary.setValue(u"density"_s, 4);
    QCOMPARE(seen, QVariant(4));
}

void BindingDictionaryTest::aWriteInsideAWriteIsToldWithItsOwnValue()
{
    BindingDictionary dictionary;
    QVariantList seen;
    connect(&dictionary, &BindingDictionary::valueWritten, this,
            [&](const QString &, const QVariant &value) {
                seen += value;
                if (value == QVariant(1))
                    dictionary.setValue(u"density"_s, 2);
            });
    dictionary.setValue(u"density"_s, 1);
    QCOMPARE(seen, (QVariantList{1, 2}));
    QCOMPARE(dictionary.value(u"density"_s), QVariant(2));
}

QTEST_GUILESS_MAIN(BindingDictionaryTest)
#include "binding_dictionary_test.moc"
