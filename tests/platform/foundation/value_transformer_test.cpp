#include <QtTest>

#include "platform/foundation/ValueTransformer.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class ValueTransformerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A look-up that finds nothing is no error, so its message is off unless asked for.
    void initTestCase() { QLoggingCategory::setFilterRules(u"corvana.*.info=true"_s); }
    void aRegisteredTransformerIsFound();
    void aLaterRegistrationReplacesTheEarlier();
    void theRegistryKeepsItsTransformersAlive();
    void anUnknownTransformerIsNullAndLogged();
    void namesAreCaseSensitive();
    void aRegistrationOfNothingCountsAsUnknown();
};

namespace {

class Constant : public ValueTransformer
{
public:
    explicit Constant(int value, int *deaths = nullptr) : m_value(value), m_deaths(deaths) {}
    ~Constant() override
    {
        if (m_deaths)
            ++*m_deaths;
    }
    QVariant transformedValue(const QVariant &) const override { return m_value; }
    QVariant reverseTransformedValue(const QVariant &) const override { return {}; }

private:
    int m_value;
    int *m_deaths;
};

QString testName()
{
    return QString::fromLatin1(QTest::currentTestFunction());
}

} // namespace

void ValueTransformerTest::aRegisteredTransformerIsFound()
{
    const auto transformer = std::make_shared<Constant>(1);
    ValueTransformer::setValueTransformer(transformer, testName());
    QCOMPARE(ValueTransformer::valueTransformerForName(testName()), transformer);
}

void ValueTransformerTest::aLaterRegistrationReplacesTheEarlier()
{
    int deaths = 0;
    ValueTransformer::setValueTransformer(std::make_shared<Constant>(1, &deaths), testName());
    ValueTransformer::setValueTransformer(std::make_shared<Constant>(2), testName());
    QCOMPARE(ValueTransformer::valueTransformerForName(testName())->transformedValue({}),
             QVariant(2));
    QCOMPARE(deaths, 1);
}

void ValueTransformerTest::theRegistryKeepsItsTransformersAlive()
{
    static int deaths = 0;
    ValueTransformer::setValueTransformer(std::make_shared<Constant>(1, &deaths), testName());
    QCOMPARE(deaths, 0);
    QVERIFY(ValueTransformer::valueTransformerForName(testName()));
}

void ValueTransformerTest::anUnknownTransformerIsNullAndLogged()
{
    QTest::ignoreMessage(QtInfoMsg, QRegularExpression(u"NobodyTransformer"_s));
    QVERIFY(!ValueTransformer::valueTransformerForName(u"NobodyTransformer"_s));
}

void ValueTransformerTest::namesAreCaseSensitive()
{
    ValueTransformer::setValueTransformer(std::make_shared<Constant>(1), testName());
    QVERIFY(!ValueTransformer::valueTransformerForName(testName().toUpper()));
}

void ValueTransformerTest::aRegistrationOfNothingCountsAsUnknown()
{
    ValueTransformer::setValueTransformer(std::make_shared<Constant>(1), testName());
    ValueTransformer::setValueTransformer(nullptr, testName());
    QTest::ignoreMessage(QtInfoMsg, QRegularExpression(testName()));
    QVERIFY(!ValueTransformer::valueTransformerForName(testName()));
}

QTEST_GUILESS_MAIN(ValueTransformerTest)
#include "value_transformer_test.moc"
