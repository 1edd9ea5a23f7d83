#include <QtTest>

#include "platform/toolkit/BindingDictionary.h"

using namespace corvana;

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
    QVERIFY(!dictionary.contains(QStringLiteral("density")));
    QVERIFY(!dictionary.value(QStringLiteral("density")).isValid());
}

void BindingDictionaryTest::aWrittenValueIsReadWithItsType()
{
    BindingDictionary dictionary;
    dictionary.setValue(QStringLiteral("density"), QStringLiteral("-2"));
    QVERIFY(dictionary.contains(QStringLiteral("density")));
    QVERIFY(!dictionary.contains(QStringLiteral("Density")));
    QCOMPARE(dictionary.value(QStringLiteral("density")).typeId(), int(QMetaType::QString));
    dictionary.setValue(QStringLiteral("density"), qint64(-2));
    QCOMPARE(dictionary.value(QStringLiteral("density")), QVariant(qint64(-2)));
    QCOMPARE(dictionary.value(QStringLiteral("density")).typeId(), int(QMetaType::LongLong));
}

void BindingDictionaryTest::everyWriteIsToldAlsoAnEqualOne()
{
    BindingDictionary dictionary;
    const QSignalSpy written(&dictionary, &BindingDictionary::valueWritten);
    for (int i = 0; i < 3; ++i)
        dictionary.setValue(QStringLiteral("density"), 4);
    QCOMPARE(written.count(), 3);
    QCOMPARE(written.last(), (QVariantList{QStringLiteral("density"), 4}));
}

void BindingDictionaryTest::aWriteIsDoneWhenItIsTold()
{
    BindingDictionary dictionary;
    QVariant seen;
    connect(&dictionary, &BindingDictionary::valueWritten, this,
            [&](const QString &key) { seen = dictionary.value(key); });
    dictionary.setValue(QStringLiteral("density"), 4);
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
                    dictionary.setValue(QStringLiteral("density"), 2);
            });
    dictionary.setValue(QStringLiteral("density"), 1);
    QCOMPARE(seen, (QVariantList{1, 2}));
    QCOMPARE(dictionary.value(QStringLiteral("density")), QVariant(2));
}

QTEST_GUILESS_MAIN(BindingDictionaryTest)
#include "binding_dictionary_test.moc"
