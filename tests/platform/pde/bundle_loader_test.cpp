#include <QtTest>

#include "platform/foundation/Bundle.h"
#include "platform/pde/PDEBundleLoader.h"
#include "platform/pde/PDEPlugIn.h"

#include "BundleFolder.h"

using namespace corvana;

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
    QString bundle() const { return m_folder->root() + QStringLiteral("/Test.bundle"); }
    LoadedPlugIn load() const
    {
        return loadPlugInBundle(QStringLiteral("Test.bundle"), m_folder->roots());
    }

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
    QVERIFY(BundleFolder::makeBundle(bundle(), QStringLiteral("Good"),
                                     BundleFolder::info(kExecutable)));
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
    QVERIFY(BundleFolder::makeBundle(bundle(), QStringLiteral("Good"),
                                     BundleFolder::info(kExecutable)));
    const LoadedPlugIn loaded = load();
    QVERIFY(loaded.plugIn);
    QCOMPARE(seenBy(loaded, "bundlePath").toString(), loaded.bundle->path());
    QVERIFY(seenBy(loaded, "knewItsBundle").toBool());
}

void BundleLoaderTest::theFirstRootThatHasTheBundleWins()
{
    const QString second = m_folder->otherRoot() + QStringLiteral("/Test.bundle");
    QVERIFY(
        BundleFolder::makeBundle(second, QStringLiteral("Good"), BundleFolder::info(kExecutable)));
    QCOMPARE(load().bundle->path(), QFileInfo(second).canonicalFilePath());
    QVERIFY(BundleFolder::makeBundle(bundle(), QStringLiteral("Good"),
                                     BundleFolder::info(kExecutable)));
    QCOMPARE(load().bundle->path(), QFileInfo(bundle()).canonicalFilePath());
}

void BundleLoaderTest::aRefusalInTheFirstRootIsNotGotRoundByTheSecond()
{
    QVERIFY(BundleFolder::makeBundle(bundle(), QStringLiteral("Good"), "{}"));
    QVERIFY(BundleFolder::makeBundle(m_folder->otherRoot() + QStringLiteral("/Test.bundle"),
                                     QStringLiteral("Good"), BundleFolder::info(kExecutable)));
    compareRefused(load(), QStringLiteral("first/Test.bundle"));
    QCOMPARE(m_folder->marks(), 0);
}

void BundleLoaderTest::aRootThatDoesNotExistIsPassedOver()
{
    QVERIFY(BundleFolder::makeBundle(bundle(), QStringLiteral("Good"),
                                     BundleFolder::info(kExecutable)));
    const QStringList roots{QString(), m_folder->path(QStringLiteral("nowhere")), m_folder->root()};
    QVERIFY(loadPlugInBundle(QStringLiteral("Test.bundle"), roots).plugIn);
}

void BundleLoaderTest::aBundleThatNoRootHasIsRefused()
{
    const LoadedPlugIn loaded = load();
    compareRefused(loaded, QStringLiteral("Test.bundle"));
    // An administrator must learn where it was looked for.
    for (const QString &root : m_folder->roots())
        QVERIFY2(loaded.problem.contains(root), qPrintable(loaded.problem));
    compareRefused(loadPlugInBundle(QStringLiteral("Test.bundle"), {}),
                   QStringLiteral("Test.bundle"));
}

void BundleLoaderTest::aNameThatIsNoNameIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("the root itself") << QStringLiteral(".");
    QTest::newRow("the folder above") << QStringLiteral("..");
    QTest::newRow("path upwards") << QStringLiteral("../second/Test.bundle");
    QTest::newRow("path downwards") << QStringLiteral("sub/Test.bundle");
    QTest::newRow("slash at the end") << QStringLiteral("Test.bundle/");
    QTest::newRow("absolute") << m_folder->otherRoot() + QStringLiteral("/Test.bundle");
    QTest::newRow("hidden") << QStringLiteral(".Test.bundle");
}

void BundleLoaderTest::aNameThatIsNoNameIsRefused()
{
    QFETCH(QString, name);
    for (const char *place : {"first/Test.bundle", "first/.Test.bundle", "first/sub/Test.bundle",
                              "second/Test.bundle"}) {
        QVERIFY(BundleFolder::makeBundle(m_folder->path(QString::fromLatin1(place)),
                                         QStringLiteral("Good"), BundleFolder::info(kExecutable)));
    }
    compareRefused(loadPlugInBundle(name, {m_folder->root()}), QStringLiteral("is no name"));
    QCOMPARE(m_folder->marks(), 0);
}

void BundleLoaderTest::aDictionaryThatIsNotEnoughIsRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no JSON") << QByteArray("{\n,}") << QStringLiteral("info.json:2:");
    QTest::newRow("no object") << QByteArray("[]") << QStringLiteral("JSON object");
    QTest::newRow("no name") << QByteArray(R"({"CFBundleIdentifier": "a",
                                               "CFBundleExecutable": "module/test.so"})")
                             << QStringLiteral("CFBundleName");
    QTest::newRow("no identifier") << QByteArray(R"({"CFBundleName": "a",
                                                     "CFBundleExecutable": "module/test.so"})")
                                   << QStringLiteral("CFBundleIdentifier");
    QTest::newRow("no executable") << QByteArray(R"({"CFBundleName": "a",
                                                     "CFBundleIdentifier": "a"})")
                                   << QStringLiteral("CFBundleExecutable");
    QTest::newRow("empty executable")
        << BundleFolder::info("") << QStringLiteral("CFBundleExecutable");
    QTest::newRow("executable is no text") << QByteArray(R"({"CFBundleName": "a",
        "CFBundleIdentifier": "a", "CFBundleExecutable": ["module/test.so"]})")
                                           << QStringLiteral("CFBundleExecutable");
}

void BundleLoaderTest::aDictionaryThatIsNotEnoughIsRefused()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, reason);
    QVERIFY(BundleFolder::makeBundle(bundle(), QStringLiteral("Good"), json));
    const LoadedPlugIn loaded = load();
    compareRefused(loaded, reason);
    QVERIFY2(loaded.problem.contains(QLatin1StringView("info.json")), qPrintable(loaded.problem));
    QCOMPARE(m_folder->marks(), 0);
}

void BundleLoaderTest::aBundleWithoutADictionaryIsRefused()
{
    QVERIFY(BundleFolder::makeBundle(bundle(), QStringLiteral("Good"), "{}"));
    QVERIFY(QFile::remove(bundle() + QStringLiteral("/info.json")));
    compareRefused(load(), QStringLiteral("info.json"));
    QCOMPARE(m_folder->marks(), 0);
}

void BundleLoaderTest::aModuleThatCannotBeUsedIsRefused_data()
{
    QTest::addColumn<QByteArray>("executable");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << QByteArray("module/none.so") << QStringLiteral("missing");
    QTest::newRow("a folder") << QByteArray("module") << QStringLiteral("contract");
    QTest::newRow("no library") << QByteArray("info.json") << QStringLiteral("contract");
    QTest::newRow("outside the bundle")
        << QByteArray("../outside.so") << QStringLiteral("leads out of the bundle");
    QTest::newRow("in a bundle with a longer name") << QByteArray("../Test.bundle2/module/test.so")
                                                    << QStringLiteral("leads out of the bundle");
    QTest::newRow("the bundle itself") << QByteArray(".") << QStringLiteral("leads out");
}

void BundleLoaderTest::aModuleThatCannotBeUsedIsRefused()
{
    QFETCH(QByteArray, executable);
    QFETCH(QString, reason);
    QVERIFY(
        BundleFolder::makeBundle(bundle(), QStringLiteral("Good"), BundleFolder::info(executable)));
    QVERIFY(BundleFolder::makeBundle(bundle() + u'2', QStringLiteral("Good"),
                                     BundleFolder::info(kExecutable)));
    QVERIFY(BundleFolder::copyModule(QStringLiteral("Good"),
                                     m_folder->root() + QStringLiteral("/outside.so")));
    compareRefused(load(), reason);
    QCOMPARE(m_folder->marks(), 0);
}

void BundleLoaderTest::aModuleForAnotherContractNeverRuns()
{
    QVERIFY(BundleFolder::makeBundle(bundle(), QStringLiteral("OlderContract"),
                                     BundleFolder::info(kExecutable)));
    const LoadedPlugIn loaded = load();
    compareRefused(loaded, QStringLiteral("\"com.corvana.print.pde.PlugIn/0\""));
    QVERIFY2(loaded.problem.contains(QLatin1StringView(CORVANA_PDE_PLUGIN_IID)),
             qPrintable(loaded.problem));
    QCOMPARE(m_folder->marks(), 0);
}

void BundleLoaderTest::aModuleWithoutAPrincipalObjectIsRefused()
{
    QVERIFY(BundleFolder::makeBundle(bundle(), QStringLiteral("NoPlugIn"),
                                     BundleFolder::info(kExecutable)));
    compareRefused(load(), QStringLiteral("test.so"));
}

void BundleLoaderTest::aPlugInThatRefusesItsBundleIsNotAnswered()
{
    QByteArray info = BundleFolder::info(kExecutable);
    info.insert(1, "\"TestRefuses\": true, ");
    QVERIFY(BundleFolder::makeBundle(bundle(), QStringLiteral("Good"), info));
    compareRefused(load(), QStringLiteral("cannot work with its bundle"));
}

QTEST_GUILESS_MAIN(BundleLoaderTest)
#include "bundle_loader_test.moc"
