#include <QtTest>

#include "platform/foundation/Bundle.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class BundleInfoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aFolderThatDoesNotExistIsNoBundle();
    void aFileIsNoBundle();
    void thePathIsCanonical();
    void theDictionaryIsRead();
    void aBundleWithoutADictionaryOpensAndHasNone();
    void aDictionaryThatCannotBeReadIsNone_data();
    void aDictionaryThatCannotBeReadIsNone();
    void anEmptyObjectIsADictionary();
    void anEntryOfAnotherTypeIsNoText_data();
    void anEntryOfAnotherTypeIsNoText();
    void anEntryOfAnotherTypeIsNoListOfTexts_data();
    void anEntryOfAnotherTypeIsNoListOfTexts();
    void aListKeepsItsOrder();
    void theLocalizationsAreThoseDeclared();
    void theShippedDictionaryIsComplete();

private:
    std::shared_ptr<Bundle> bundleWith(const QByteArray &json, QString *error = nullptr);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void BundleInfoTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

std::shared_ptr<Bundle> BundleInfoTest::bundleWith(const QByteArray &json, QString *error)
{
    QFile info(m_folder->filePath(u"info.json"_s));
    if (!info.open(QIODevice::WriteOnly) || info.write(json) != json.size())
        return nullptr;
    info.close();
    return Bundle::open(m_folder->path(), error);
}

void BundleInfoTest::aFolderThatDoesNotExistIsNoBundle()
{
    const QString path = m_folder->filePath(u"none.bundle"_s);
    QString error;
    QVERIFY(!Bundle::open(path, &error));
    QVERIFY2(error.contains(path), qPrintable(error));
    QVERIFY(!Bundle::open(path));
    QVERIFY(!Bundle::open(QString()));
}

void BundleInfoTest::aFileIsNoBundle()
{
    QFile file(m_folder->filePath(u"file.bundle"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(!Bundle::open(file.fileName()));
}

void BundleInfoTest::thePathIsCanonical()
{
    const QString link = m_folder->filePath(u"link.bundle"_s);
    const QString folder = m_folder->filePath(u"real.bundle"_s);
    QVERIFY(QDir().mkdir(folder));
    QVERIFY(QFile::link(folder, link));
    QCOMPARE(Bundle::open(link + u"/../link.bundle/"_s)->path(),
             QFileInfo(folder).canonicalFilePath());
}

void BundleInfoTest::theDictionaryIsRead()
{
    QString error;
    const auto bundle = bundleWith(R"({"CFBundleIdentifier": "com.corvana.test",
                                      "CFBundleName": "試験"})",
                                   &error);
    QVERIFY2(error.isNull(), qPrintable(error));
    QVERIFY(bundle->infoDictionary());
    QCOMPARE(bundle->identifier(), u"com.corvana.test"_s);
    QCOMPARE(bundle->infoString(kCFBundleNameKey), u"試験"_s);
}

void BundleInfoTest::aBundleWithoutADictionaryOpensAndHasNone()
{
    QString error;
    const auto bundle = Bundle::open(m_folder->path(), &error);
    QVERIFY(bundle);
    QVERIFY(!bundle->infoDictionary());
    QVERIFY2(error.contains("info.json"_L1), qPrintable(error));
    QVERIFY(bundle->identifier().isNull());
    QVERIFY(!bundle->infoStringList(kCFBundleLocalizationsKey));
    QVERIFY(bundle->localizations().isEmpty());
}

void BundleInfoTest::aDictionaryThatCannotBeReadIsNone_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("where");
    QTest::newRow("empty file") << QByteArray("") << u"info.json:1:"_s;
    QTest::newRow("no JSON") << QByteArray("CFBundleName = x") << u"info.json:1:"_s;
    QTest::newRow("wrong on the third line")
        << QByteArray("{\n  \"CFBundleName\": \"x\",\n  \"CFBundleIdentifier\": nothing,\n"
                      "  \"a\": 1\n}\n")
        << u"info.json:3:"_s;
    QTest::newRow("not UTF-8") << QByteArray("{\n\"CFBundleName\": \"Caf\xe9\"}")
                               << u"info.json:2:"_s;
    QTest::newRow("a list") << QByteArray("[\"CFBundleName\"]") << u"info.json:1:"_s;
    QTest::newRow("a text") << QByteArray("\"CFBundleName\"") << u"info.json:1:"_s;
    QTest::newRow("rubbish behind the object") << QByteArray("{}\n}\n") << u"info.json:2:"_s;
}

void BundleInfoTest::aDictionaryThatCannotBeReadIsNone()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, where);
    QString error;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(where));
    const auto bundle = bundleWith(json, &error);
    QVERIFY(bundle);
    QVERIFY(!bundle->infoDictionary());
    QVERIFY2(error.contains(where), qPrintable(error));
    QVERIFY2(error.startsWith(bundle->path()), qPrintable(error));
    QVERIFY(bundle->identifier().isNull());
}

void BundleInfoTest::anEmptyObjectIsADictionary()
{
    QString error;
    const auto bundle = bundleWith("{}", &error);
    QVERIFY(bundle->infoDictionary());
    QVERIFY(error.isNull());
    QVERIFY(bundle->identifier().isNull());
}

void BundleInfoTest::anEntryOfAnotherTypeIsNoText_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("number") << QByteArray("1");
    QTest::newRow("boolean") << QByteArray("true");
    QTest::newRow("null") << QByteArray("null");
    QTest::newRow("list") << QByteArray("[\"x\"]");
    QTest::newRow("object") << QByteArray("{}");
}

void BundleInfoTest::anEntryOfAnotherTypeIsNoText()
{
    QFETCH(QByteArray, value);
    const auto bundle = bundleWith("{\"CFBundleName\": " + value + "}");
    QVERIFY(bundle->infoDictionary());
    QVERIFY(bundle->infoString(kCFBundleNameKey).isNull());
}

void BundleInfoTest::anEntryOfAnotherTypeIsNoListOfTexts_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("text") << QByteArray("\"English\"");
    QTest::newRow("object") << QByteArray("{}");
    QTest::newRow("one entry is a number") << QByteArray("[\"English\", 2]");
    QTest::newRow("one entry is null") << QByteArray("[null, \"English\"]");
}

void BundleInfoTest::anEntryOfAnotherTypeIsNoListOfTexts()
{
    QFETCH(QByteArray, value);
    const auto bundle = bundleWith("{\"CFBundleLocalizations\": " + value + "}");
    QVERIFY(bundle->infoDictionary());
    QVERIFY(!bundle->infoStringList(kCFBundleLocalizationsKey));
    QVERIFY(bundle->localizations().isEmpty());
}

void BundleInfoTest::aListKeepsItsOrder()
{
    const auto bundle = bundleWith(R"({"keys": ["b", "a", "b"], "none": []})");
    QCOMPARE(bundle->infoStringList(u"keys"_s).value(), (QStringList{u"b"_s, u"a"_s, u"b"_s}));
    QCOMPARE(bundle->infoStringList(u"none"_s).value(), QStringList());
}

void BundleInfoTest::theLocalizationsAreThoseDeclared()
{
    const auto bundle = bundleWith(R"({"CFBundleLocalizations": ["Japanese", "English"]})");
    QCOMPARE(bundle->localizations(), (QStringList{u"Japanese"_s, u"English"_s}));
}

void BundleInfoTest::theShippedDictionaryIsComplete()
{
    QString error;
    const auto bundle = Bundle::open(corvana::test::bundleFile(), &error);
    QVERIFY2(bundle && bundle->infoDictionary(), qPrintable(error));
    for (const QLatin1StringView key : {kCFBundleNameKey, kCFBundleIdentifierKey,
                                        kCFBundleExecutableKey, kCFBundleHelpBookNameKey})
        QVERIFY2(!bundle->infoString(key).isEmpty(), key.data());
    QVERIFY(QFileInfo(bundle->path() + u'/' + bundle->infoString(kCFBundleExecutableKey)).isFile());
    const QStringList localizations = bundle->localizations();
    QVERIFY(!localizations.isEmpty());
    for (const QString &name : localizations) {
        const QString table = u"%1/strings/%2.qm"_s.arg(bundle->path(), name);
        QVERIFY2(QFileInfo(table).isFile(), qPrintable(table));
    }
}

QTEST_GUILESS_MAIN(BundleInfoTest)
#include "bundle_info_test.moc"
