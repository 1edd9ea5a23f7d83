#include <QtTest>

#include "platform/foundation/Bundle.h"

using namespace corvana;
using namespace Qt::StringLiterals;

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
    QLocale::setDefault(QLocale(u"ja_JP"_s));
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkpath(u"Test.bundle/strings"_s));
    for (const char *name : {"English", "Japanese"}) {
        const QString file = u"/%1.qm"_s.arg(QLatin1StringView(name));
        QVERIFY(QFile::copy(QStringLiteral(TEST_STRINGS_DIR) + file,
                            m_folder->filePath(u"Test.bundle/strings"_s + file)));
    }
}

void BundleStringsTest::cleanup()
{
    QLocale::setDefault(QLocale::system());
}

std::shared_ptr<Bundle> BundleStringsTest::bundleWith(const QByteArray &localizations)
{
    QFile info(m_folder->filePath(u"Test.bundle/info.json"_s));
    if (!info.open(QIODevice::WriteOnly))
        return nullptr;
    info.write("{\"CFBundleLocalizations\": [" + localizations + "]}");
    info.close();
    return Bundle::open(m_folder->filePath(u"Test.bundle"_s));
}

void BundleStringsTest::theTableOfTheUsersLanguageIsRead_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("text");
    QTest::newRow("Japanese") << u"ja_JP"_s << u"機種"_s;
    QTest::newRow("English") << u"en_GB"_s << u"Model of the printer"_s;
    QTest::newRow("not offered") << u"de_DE"_s << u"Model of the printer"_s;
}

void BundleStringsTest::theTableOfTheUsersLanguageIsRead()
{
    QFETCH(QString, locale);
    QFETCH(QString, text);
    QLocale::setDefault(QLocale(locale));
    const auto bundle = bundleWith("\"English\", \"Japanese\"");
    QCOMPARE(bundle->localizedString(u"Model"_s), text);
    QCOMPARE(bundle->localizedStringOrKey(u"Model"_s), text);
}

void BundleStringsTest::aKeyNeedNotBeAscii()
{
    const auto bundle = bundleWith("\"Japanese\"");
    QCOMPARE(bundle->localizedString(u"用紙"_s), u"紙"_s);
}

void BundleStringsTest::aMissingKeyIsNull()
{
    const auto bundle = bundleWith("\"Japanese\"");
    QVERIFY(bundle->localizedString(u"No such key"_s).isNull());
    QVERIFY(bundle->localizedString(u"model"_s).isNull());
    QVERIFY(bundle->localizedString(QString()).isNull());
}

void BundleStringsTest::aMissingKeyFallsBackToItself()
{
    const auto bundle = bundleWith("\"Japanese\"");
    QCOMPARE(bundle->localizedStringOrKey(u"No such key"_s), u"No such key"_s);
}

void BundleStringsTest::onlyTheBestTableIsAsked()
{
    const auto bundle = bundleWith("\"English\", \"Japanese\"");
    QVERIFY(bundle->localizedString(u"Only English"_s).isNull());
}

void BundleStringsTest::onlyTheContextOfTheTablesIsAsked()
{
    const auto bundle = bundleWith("\"Japanese\"");
    QVERIFY(bundle->localizedString(u"Hidden"_s).isNull());
}

void BundleStringsTest::aMissingTableIsLoggedAndGivesNull()
{
    const auto bundle = bundleWith("\"ja\"");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"string table.*ja\\.qm"_s));
    QVERIFY(bundle->localizedString(u"Model"_s).isNull());
    // Told once, not at every look-up.
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    QCOMPARE(bundle->localizedStringOrKey(u"Model"_s), u"Model"_s);
}

void BundleStringsTest::aMissingTableIsNotSoughtOutsideTheBundle()
{
    // "Test.bundle/strings/ja.qm" without its endings names "Test" beside the bundle.
    const QString table = QStringLiteral(TEST_STRINGS_DIR "/Japanese.qm");
    QVERIFY(QFile::copy(table, m_folder->filePath(u"Test.qm"_s)));
    QVERIFY(QFile::copy(table, m_folder->filePath(u"Test"_s)));
    const auto bundle = bundleWith("\"ja\"");
    QVERIFY(bundle->localizedString(u"Model"_s).isNull());
}

void BundleStringsTest::aLocalizationThatLeavesTheFolderIsNotRead()
{
    QVERIFY(QFile::copy(QStringLiteral(TEST_STRINGS_DIR "/Japanese.qm"),
                        m_folder->filePath(u"stray.qm"_s)));
    const auto bundle = bundleWith("\"../../stray\"");
    QVERIFY(bundle->localizedString(u"Model"_s).isNull());
}

void BundleStringsTest::aBundleWithoutLocalizationsHasNoTexts()
{
    const auto bundle = bundleWith("");
    QVERIFY(bundle->localizedString(u"Model"_s).isNull());
    QCOMPARE(bundle->localizedStringOrKey(u"Model"_s), u"Model"_s);
}

QTEST_GUILESS_MAIN(BundleStringsTest)
#include "bundle_strings_test.moc"
