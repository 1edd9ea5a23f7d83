#include <QtTest>

#include "platform/foundation/Bundle.h"
#include "platform/pde/PDEBundleLoader.h"
#include "platform/pde/PDEPlugIn.h"

#include "BundleFolder.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class BundleLoaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<BundleFolder>(); }
    void aGoodBundleIsLoaded();
    void thePlugInKnowsItsBundleWhenItIsInitialised();
    void theFirstRootThatHasTheBundleWins();
    void aRefusalInTheFirstRootIsNotGotRoundByTheSecond();
    void aRootThatDoesNotExistIsPassedOver();
    void aBundleThatNoRootHasIsRefused();
    void aNameThatIsNoNameIsRefused_data();
    void aNameThatIsNoNameIsRefused();
    void aDictionaryThatIsNotEnoughIsRefused_data();
    void aDictionaryThatIsNotEnoughIsRefused();
    void aBundleWithoutADictionaryIsRefused();
    void aModuleThatCannotBeUsedIsRefused_data();
    void aModuleThatCannotBeUsedIsRefused();
    void aModuleForAnotherContractNeverRuns();
    void aModuleWithoutAPrincipalObjectIsRefused();
    void aPlugInThatRefusesItsBundleIsNotAnswered();

private:
    QString bundle() const { return m_folder->root() + u"/Test.bundle"_s; }
    LoadedPlugIn load() const { return loadPlugInBundle(u"Test.bundle"_s, m_folder->roots()); }

    std::unique_ptr<BundleFolder> m_folder;
};

namespace {

const QByteArray kExecutable = "module/test.so";

void compareRefused(const LoadedPlugIn &loaded, const QString &reason)
{
    QVERIFY(!loaded.plugIn);
    QVERIFY(!loaded.bundle);
    QVERIFY2(loaded.problem.contains(reason), qPrintable(loaded.problem));
}

QVariant seenBy(const LoadedPlugIn &loaded, const char *property)
{
    const auto *object = dynamic_cast<const QObject *>(loaded.plugIn);
    return object ? object->property(property) : QVariant();
}

} // namespace

void BundleLoaderTest::aGoodBundleIsLoaded()
{
    QVERIFY(BundleFolder::makeBundle(bundle(), u"Good"_s, BundleFolder::info(kExecutable)));
    const LoadedPlugIn loaded = load();
    QVERIFY2(loaded.problem.isNull(), qPrintable(loaded.problem));
    QVERIFY(loaded.plugIn);
    QVERIFY(loaded.bundle);
    QCOMPARE(loaded.bundle->path(), QFileInfo(bundle()).canonicalFilePath());
    QVERIFY(loaded.plugIn->PDEPanelsForType_withHostInfo({}, nullptr).isEmpty());
    // The other tests take an unchanged mark as proof that nothing ran.
    QCOMPARE(m_folder->marks(), 1);
}

void BundleLoaderTest::thePlugInKnowsItsBundleWhenItIsInitialised()
{
    QVERIFY(BundleFolder::makeBundle(bundle(), u"Good"_s, BundleFolder::info(kExecutable)));
    const LoadedPlugIn loaded = load();
    QVERIFY(loaded.plugIn);
    QCOMPARE(seenBy(loaded, "bundlePath").toString(), loaded.bundle->path());
    QVERIFY(seenBy(loaded, "knewItsBundle").toBool());
}

void BundleLoaderTest::theFirstRootThatHasTheBundleWins()
{
    const QString second = m_folder->otherRoot() + u"/Test.bundle"_s;
    QVERIFY(BundleFolder::makeBundle(second, u"Good"_s, BundleFolder::info(kExecutable)));
    QCOMPARE(load().bundle->path(), QFileInfo(second).canonicalFilePath());
    QVERIFY(BundleFolder::makeBundle(bundle(), u"Good"_s, BundleFolder::info(kExecutable)));
    QCOMPARE(load().bundle->path(), QFileInfo(bundle()).canonicalFilePath());
}

void BundleLoaderTest::aRefusalInTheFirstRootIsNotGotRoundByTheSecond()
{
    QVERIFY(BundleFolder::makeBundle(bundle(), u"Good"_s, "{}"));
    QVERIFY(BundleFolder::makeBundle(m_folder->otherRoot() + u"/Test.bundle"_s, u"Good"_s,
                                     BundleFolder::info(kExecutable)));
    compareRefused(load(), u"first/Test.bundle"_s);
    QCOMPARE(m_folder->marks(), 0);
}

void BundleLoaderTest::aRootThatDoesNotExistIsPassedOver()
{
    QVERIFY(BundleFolder::makeBundle(bundle(), u"Good"_s, BundleFolder::info(kExecutable)));
    const QStringList roots{QString(), m_folder->path(u"nowhere"_s), m_folder->root()};
    QVERIFY(loadPlugInBundle(u"Test.bundle"_s, roots).plugIn);
}

void BundleLoaderTest::aBundleThatNoRootHasIsRefused()
{
    const LoadedPlugIn loaded = load();
    compareRefused(loaded, u"Test.bundle"_s);
    // An administrator must learn where it was looked for.
    for (const QString &root : m_folder->roots())
        QVERIFY2(loaded.problem.contains(root), qPrintable(loaded.problem));
    compareRefused(loadPlugInBundle(u"Test.bundle"_s, {}), u"Test.bundle"_s);
}

void BundleLoaderTest::aNameThatIsNoNameIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("the root itself") << u"."_s;
    QTest::newRow("the folder above") << u".."_s;
    QTest::newRow("path upwards") << u"../second/Test.bundle"_s;
    QTest::newRow("path downwards") << u"sub/Test.bundle"_s;
    QTest::newRow("slash at the end") << u"Test.bundle/"_s;
    QTest::newRow("absolute") << m_folder->otherRoot() + u"/Test.bundle"_s;
    QTest::newRow("hidden") << u".Test.bundle"_s;
}

void BundleLoaderTest::aNameThatIsNoNameIsRefused()
{
    QFETCH(QString, name);
    for (const char *place : {"first/Test.bundle", "first/.Test.bundle", "first/sub/Test.bundle",
                              "second/Test.bundle"}) {
        QVERIFY(BundleFolder::makeBundle(m_folder->path(QString::fromLatin1(place)), u"Good"_s,
                                         BundleFolder::info(kExecutable)));
    }
    compareRefused(loadPlugInBundle(name, {m_folder->root()}), u"is no name"_s);
    QCOMPARE(m_folder->marks(), 0);
}

void BundleLoaderTest::aDictionaryThatIsNotEnoughIsRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no JSON") << QByteArray("{\n,}") << u"info.json:2:"_s;
    QTest::newRow("no object") << QByteArray("[]") << u"JSON object"_s;
    QTest::newRow("no name") << QByteArray(R"({"CFBundleIdentifier": "a",
                                               "CFBundleExecutable": "module/test.so"})")
                             << u"CFBundleName"_s;
    QTest::newRow("no identifier") << QByteArray(R"({"CFBundleName": "a",
                                                     "CFBundleExecutable": "module/test.so"})")
                                   << u"CFBundleIdentifier"_s;
    QTest::newRow("no executable") << QByteArray(R"({"CFBundleName": "a",
                                                     "CFBundleIdentifier": "a"})")
                                   << u"CFBundleExecutable"_s;
    QTest::newRow("empty executable") << BundleFolder::info("") << u"CFBundleExecutable"_s;
    QTest::newRow("executable is no text") << QByteArray(R"({"CFBundleName": "a",
        "CFBundleIdentifier": "a", "CFBundleExecutable": ["module/test.so"]})")
                                           << u"CFBundleExecutable"_s;
}

void BundleLoaderTest::aDictionaryThatIsNotEnoughIsRefused()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, reason);
    QVERIFY(BundleFolder::makeBundle(bundle(), u"Good"_s, json));
    const LoadedPlugIn loaded = load();
    compareRefused(loaded, reason);
    QVERIFY2(loaded.problem.contains("info.json"_L1), qPrintable(loaded.problem));
    QCOMPARE(m_folder->marks(), 0);
}

void BundleLoaderTest::aBundleWithoutADictionaryIsRefused()
{
    QVERIFY(BundleFolder::makeBundle(bundle(), u"Good"_s, "{}"));
    QVERIFY(QFile::remove(bundle() + u"/info.json"_s));
    compareRefused(load(), u"info.json"_s);
    QCOMPARE(m_folder->marks(), 0);
}

void BundleLoaderTest::aModuleThatCannotBeUsedIsRefused_data()
{
    QTest::addColumn<QByteArray>("executable");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << QByteArray("module/none.so") << u"missing"_s;
    QTest::newRow("a folder") << QByteArray("module") << u"contract"_s;
    QTest::newRow("no library") << QByteArray("info.json") << u"contract"_s;
    QTest::newRow("outside the bundle")
        << QByteArray("../outside.so") << u"leads out of the bundle"_s;
    QTest::newRow("in a bundle with a longer name")
        << QByteArray("../Test.bundle2/module/test.so") << u"leads out of the bundle"_s;
    QTest::newRow("the bundle itself") << QByteArray(".") << u"leads out"_s;
}

void BundleLoaderTest::aModuleThatCannotBeUsedIsRefused()
{
    QFETCH(QByteArray, executable);
    QFETCH(QString, reason);
    QVERIFY(BundleFolder::makeBundle(bundle(), u"Good"_s, BundleFolder::info(executable)));
    QVERIFY(BundleFolder::makeBundle(bundle() + u'2', u"Good"_s, BundleFolder::info(kExecutable)));
    QVERIFY(BundleFolder::copyModule(u"Good"_s, m_folder->root() + u"/outside.so"_s));
    compareRefused(load(), reason);
    QCOMPARE(m_folder->marks(), 0);
}

void BundleLoaderTest::aModuleForAnotherContractNeverRuns()
{
    QVERIFY(
        BundleFolder::makeBundle(bundle(), u"OlderContract"_s, BundleFolder::info(kExecutable)));
    const LoadedPlugIn loaded = load();
    compareRefused(loaded, u"\"com.corvana.print.pde.PlugIn/1\""_s);
    QVERIFY2(loaded.problem.contains(QLatin1StringView(CORVANA_PDE_PLUGIN_IID)),
             qPrintable(loaded.problem));
    QCOMPARE(m_folder->marks(), 0);
}

void BundleLoaderTest::aModuleWithoutAPrincipalObjectIsRefused()
{
    QVERIFY(BundleFolder::makeBundle(bundle(), u"NoPlugIn"_s, BundleFolder::info(kExecutable)));
    compareRefused(load(), u"test.so"_s);
}

void BundleLoaderTest::aPlugInThatRefusesItsBundleIsNotAnswered()
{
    QByteArray info = BundleFolder::info(kExecutable);
    info.insert(1, "\"TestRefuses\": true, ");
    QVERIFY(BundleFolder::makeBundle(bundle(), u"Good"_s, info));
    compareRefused(load(), u"cannot work with its bundle"_s);
}

QTEST_GUILESS_MAIN(BundleLoaderTest)
#include "bundle_loader_test.moc"
