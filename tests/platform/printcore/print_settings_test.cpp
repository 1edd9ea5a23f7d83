#include <QtTest>

#include "platform/printcore/PrintSettings.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class PrintSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWrittenEntryIsReadWithItsType_data();
    void aWrittenEntryIsReadWithItsType();
    void aMissingEntryIsToldAndLeavesTheValueAlone();
    void anEntryThatHoldsNothingIsNoMissingEntry();
    void keysAreCaseSensitive();
    void theLaterWriteReplacesTheEarlier();
    void aLockedWriteIsLoggedAndDone();
    void anUnlockedWriteIsNotLogged();
    void missingSettingsAreAnInvalidObject();
    void allEntriesAreReplacedAtOnce();
    void entriesTakenEarlierDoNotChange();
    void everyModeReachesTheDuplexHandler_data();
    void everyModeReachesTheDuplexHandler();
    void aModeThatDoesNotExistIsRefused_data();
    void aModeThatDoesNotExistIsRefused();
    void duplexWithoutSettingsIsAnInvalidObject();
    void duplexWithoutAHandlerIsLogged();
    void replacingTheEntriesKeepsTheDuplexHandler();
};

namespace {
const QString key = u"com.corvana.print.PrintSettings.densitymode"_s;
}

void PrintSettingsTest::aWrittenEntryIsReadWithItsType_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("text") << QVariant(u"12"_s);
    QTest::newRow("number") << QVariant(qint64(12));
    QTest::newRow("double") << QVariant(0.5);
    QTest::newRow("boolean") << QVariant(true);
    QTest::newRow("empty text") << QVariant(u""_s);
    QTest::newRow("map") << QVariant(QVariantMap{{u"a"_s, 1}});
}

void PrintSettingsTest::aWrittenEntryIsReadWithItsType()
{
    QFETCH(QVariant, value);
    PrintSettings settings;
    QCOMPARE(PMPrintSettingsSetValue(&settings, key, value, false), kPMNoError);
    QVariant read;
    QCOMPARE(PMPrintSettingsGetValue(&settings, key, &read), kPMNoError);
    QCOMPARE(read.typeId(), value.typeId());
    QCOMPARE(read, value);
}

void PrintSettingsTest::aMissingEntryIsToldAndLeavesTheValueAlone()
{
    PrintSettings settings;
    QVariant value = 7;
    QCOMPARE(PMPrintSettingsGetValue(&settings, key, &value), kPMKeyNotFound);
    QCOMPARE(value, QVariant(7));
}

void PrintSettingsTest::anEntryThatHoldsNothingIsNoMissingEntry()
{
    PrintSettings settings;
    settings.setValue(key, QVariant());
    QVariant value = 7;
    QCOMPARE(PMPrintSettingsGetValue(&settings, key, &value), kPMNoError);
    QVERIFY(!value.isValid());
}

void PrintSettingsTest::keysAreCaseSensitive()
{
    PrintSettings settings;
    settings.setValue(key, 1);
    QVERIFY(settings.contains(key));
    QVERIFY(!settings.contains(key.toUpper()));
    QVERIFY(!settings.value(key.toUpper()).isValid());
}

void PrintSettingsTest::theLaterWriteReplacesTheEarlier()
{
    PrintSettings settings;
    PMPrintSettingsSetValue(&settings, key, 1, false);
    PMPrintSettingsSetValue(&settings, key, u"two"_s, false);
    QCOMPARE(settings.entries(), (QVariantMap{{key, u"two"_s}}));
}

void PrintSettingsTest::aLockedWriteIsLoggedAndDone()
{
    PrintSettings settings;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"cannot be locked"_s));
    QCOMPARE(PMPrintSettingsSetValue(&settings, key, 3, true), kPMNoError);
    QCOMPARE(settings.value(key), QVariant(3));
}

void PrintSettingsTest::anUnlockedWriteIsNotLogged()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    PrintSettings settings;
    PMPrintSettingsSetValue(&settings, key, 3, false);
}

void PrintSettingsTest::missingSettingsAreAnInvalidObject()
{
    QVariant value = 7;
    QCOMPARE(PMPrintSettingsGetValue(nullptr, key, &value), kPMInvalidObject);
    QCOMPARE(value, QVariant(7));
    QCOMPARE(PMPrintSettingsSetValue(nullptr, key, 1, false), kPMInvalidObject);
}

void PrintSettingsTest::allEntriesAreReplacedAtOnce()
{
    PrintSettings settings;
    settings.setValue(key, 1);
    const QVariantMap snapshot{{u"other"_s, 2}};
    settings.setEntries(snapshot);
    QCOMPARE(settings.entries(), snapshot);
    QVERIFY(!settings.contains(key));
}

void PrintSettingsTest::entriesTakenEarlierDoNotChange()
{
    PrintSettings settings;
    settings.setValue(key, 1);
    const QVariantMap snapshot = settings.entries();
    settings.setValue(key, 2);
    QCOMPARE(snapshot.value(key), QVariant(1));
}

void PrintSettingsTest::everyModeReachesTheDuplexHandler_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("one-sided") << 1;
    QTest::newRow("long edge") << 2;
    QTest::newRow("short edge") << 3;
}

void PrintSettingsTest::everyModeReachesTheDuplexHandler()
{
    QFETCH(int, mode);
    PrintSettings settings;
    QList<int> asked;
    settings.setDuplexHandler([&](PMDuplexMode wanted) { asked += int(wanted); });
    QCOMPARE(PMSetDuplex(&settings, mode), kPMNoError);
    QCOMPARE(asked, QList<int>{mode});
    // The mark belongs to whoever listens; the entries are not the place for it.
    QVERIFY(settings.entries().isEmpty());
}

void PrintSettingsTest::aModeThatDoesNotExistIsRefused_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -1;
    QTest::newRow("past the last") << 4;
    QTest::newRow("far away") << std::numeric_limits<int>::max();
}

void PrintSettingsTest::aModeThatDoesNotExistIsRefused()
{
    QFETCH(int, mode);
    PrintSettings settings;
    int calls = 0;
    settings.setDuplexHandler([&](PMDuplexMode) { ++calls; });
    QCOMPARE(PMSetDuplex(&settings, mode), kPMInvalidObject);
    QCOMPARE(calls, 0);
}

void PrintSettingsTest::duplexWithoutSettingsIsAnInvalidObject()
{
    QCOMPARE(PMSetDuplex(nullptr, kPMDuplexNone), kPMInvalidObject);
}

void PrintSettingsTest::duplexWithoutAHandlerIsLogged()
{
    PrintSettings settings;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"two-sided.*mode 2"_s));
    QCOMPARE(PMSetDuplex(&settings, kPMDuplexNoTumble), kPMNoError);
}

void PrintSettingsTest::replacingTheEntriesKeepsTheDuplexHandler()
{
    PrintSettings settings;
    int calls = 0;
    settings.setDuplexHandler([&](PMDuplexMode) { ++calls; });
    settings.setEntries({});
    PMSetDuplex(&settings, kPMDuplexNone);
    QCOMPARE(calls, 1);
}

QTEST_GUILESS_MAIN(PrintSettingsTest)
#include "print_settings_test.moc"
