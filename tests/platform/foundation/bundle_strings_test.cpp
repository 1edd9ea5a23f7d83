#include <QtTest>

#include "platform/foundation/Bundle.h"

using namespace corvana;

class BundleStringsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theTableOfTheUsersLanguageIsRead_data();
    void theTableOfTheUsersLanguageIsRead();
    void aKeyNeedNotBeAscii();
    void aMissingKeyIsNull();
    void aMissingKeyFallsBackToItself();
    void onlyTheBestTableIsAsked();
    void onlyTheContextOfTheTablesIsAsked();
    void aMissingTableIsLoggedAndGivesNull();
    void aMissingTableIsNotSoughtOutsideTheBundle();
    void aLocalizationThatLeavesTheFolderIsNotRead();
    void aBundleWithoutLocalizationsHasNoTexts();

private:
    std::shared_ptr<Bundle> bundleWith(const QByteArray &localizations);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void BundleStringsTest::init()
{
    QLocale::setDefault(QLocale(QStringLiteral("ja_JP")));
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("Test.bundle/strings")));
    for (const char *name : {"English", "Japanese"}) {
        const QString file = QStringLiteral("/%1.qm").arg(QLatin1StringView(name));
        QVERIFY(QFile::copy(QStringLiteral(TEST_STRINGS_DIR) + file,
                            m_folder->filePath(QStringLiteral("Test.bundle/strings") + file)));
    }
}

void BundleStringsTest::cleanup()
{
    QLocale::setDefault(QLocale::system());
}

std::shared_ptr<Bundle> BundleStringsTest::bundleWith(const QByteArray &localizations)
{
    QFile info(m_folder->filePath(QStringLiteral("Test.bundle/info.json")));
    if (!info.open(QIODevice::WriteOnly))
        return nullptr;
    info.write("{\"CFBundleLocalizations\": [" + localizations + "]}");
    info.close();
    return Bundle::open(m_folder->filePath(QStringLiteral("Test.bundle")));
}

void BundleStringsTest::theTableOfTheUsersLanguageIsRead_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("text");
    QTest::newRow("Japanese") << QStringLiteral("ja_JP") << QStringLiteral("機種");
    QTest::newRow("English") << QStringLiteral("en_GB") << QStringLiteral("Model of the printer");
    QTest::newRow("not offered") << QStringLiteral("de_DE")
                                 << QStringLiteral("Model of the printer");
}

void BundleStringsTest::theTableOfTheUsersLanguageIsRead()
{
    QFETCH(QString, locale);
    QFETCH(QString, text);
    QLocale::setDefault(QLocale(locale));
    const auto bundle = bundleWith("\"English\", \"Japanese\"");
    QCOMPARE(bundle->localizedString(QStringLiteral("Model")), text);
    QCOMPARE(bundle->localizedStringOrKey(QStringLiteral("Model")), text);
}

void BundleStringsTest::aKeyNeedNotBeAscii()
{
    const auto bundle = bundleWith("\"Japanese\"");
    QCOMPARE(bundle->localizedString(QStringLiteral("用紙")), QStringLiteral("紙"));
}

void BundleStringsTest::aMissingKeyIsNull()
{
    const auto bundle = bundleWith("\"Japanese\"");
    QVERIFY(bundle->localizedString(QStringLiteral("No such key")).isNull());
    QVERIFY(bundle->localizedString(QStringLiteral("model")).isNull());
    QVERIFY(bundle->localizedString(QString()).isNull());
}

void BundleStringsTest::aMissingKeyFallsBackToItself()
{
    const auto bundle = bundleWith("\"Japanese\"");
    QCOMPARE(bundle->localizedStringOrKey(QStringLiteral("No such key")),
             QStringLiteral("No such key"));
}

void BundleStringsTest::onlyTheBestTableIsAsked()
{
    const auto bundle = bundleWith("\"English\", \"Japanese\"");
    QVERIFY(bundle->localizedString(QStringLiteral("Only English")).isNull());
}

void BundleStringsTest::onlyTheContextOfTheTablesIsAsked()
{
    const auto bundle = bundleWith("\"Japanese\"");
    QVERIFY(bundle->localizedString(QStringLiteral("Hidden")).isNull());
}

void BundleStringsTest::aMissingTableIsLoggedAndGivesNull()
{
    const auto bundle = bundleWith("\"ja\"");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("string table.*ja\\.qm")));
    QVERIFY(bundle->localizedString(QStringLiteral("Model")).isNull());
    // Told once, not at every look-up.
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    QCOMPARE(bundle->localizedStringOrKey(QStringLiteral("Model")), QStringLiteral("Model"));
}

void BundleStringsTest::aMissingTableIsNotSoughtOutsideTheBundle()
{
    // "Test.bundle/strings/ja.qm" without its endings names "Test" beside the bundle.
    const QString table = QStringLiteral(TEST_STRINGS_DIR "/Japanese.qm");
    QVERIFY(QFile::copy(table, m_folder->filePath(QStringLiteral("Test.qm"))));
    QVERIFY(QFile::copy(table, m_folder->filePath(QStringLiteral("Test"))));
    const auto bundle = bundleWith("\"ja\"");
    QVERIFY(bundle->localizedString(QStringLiteral("Model")).isNull());
}

void BundleStringsTest::aLocalizationThatLeavesTheFolderIsNotRead()
{
    QVERIFY(QFile::copy(QStringLiteral(TEST_STRINGS_DIR "/Japanese.qm"),
                        m_folder->filePath(QStringLiteral("stray.qm"))));
    const auto bundle = bundleWith("\"../../stray\"");
    QVERIFY(bundle->localizedString(QStringLiteral("Model")).isNull());
}

void BundleStringsTest::aBundleWithoutLocalizationsHasNoTexts()
{
    const auto bundle = bundleWith("");
    QVERIFY(bundle->localizedString(QStringLiteral("Model")).isNull());
    QCOMPARE(bundle->localizedStringOrKey(QStringLiteral("Model")), QStringLiteral("Model"));
}

QTEST_GUILESS_MAIN(BundleStringsTest)
#include "bundle_strings_test.moc"
