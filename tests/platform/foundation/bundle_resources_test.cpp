#include <cstdlib>

#include <QtTest>

#include "platform/foundation/Bundle.h"

using namespace corvana;

class BundleResourcesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void anInterfaceFileLiesInItsFolder();
    void everythingElseLiesAmongThePictures();
    void aMissingResourceIsNull_data();
    void aMissingResourceIsNull();
    void aNameThatLeavesTheFolderFindsNothing_data();
    void aNameThatLeavesTheFolderFindsNothing();
    void codeThatNobodyAssociatedHasNoBundle();
    void associatedCodeAndDataHaveTheirBundle();
    void aLaterAssociationReplacesTheEarlier();
    void aModuleThatDoesNotExistIsNotMistakenForTheProgram();

private:
    void write(const QString &name);

    std::unique_ptr<QTemporaryDir> m_root;
    std::shared_ptr<Bundle> m_bundle;
};

namespace {

void someCode() {}
int someData = 0;

const void *address(void (*code)())
{
    return reinterpret_cast<const void *>(code);
}

} // namespace

void BundleResourcesTest::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    QDir root(m_root->path());
    QVERIFY(root.mkpath(QStringLiteral("Test.bundle/interface/sub")));
    QVERIFY(root.mkpath(QStringLiteral("Test.bundle/pictures/folder.tiff")));
    for (const char *name :
         {"outside.ui", "outside.tiff", "Test.bundle/stray.ui", "Test.bundle/interface/Panel.ui",
          "Test.bundle/interface/.hidden.ui", "Test.bundle/interface/sub/Deep.ui",
          "Test.bundle/interface/a%1b.ui", "Test.bundle/pictures/load.tiff"})
        write(QString::fromLatin1(name));
    m_bundle = Bundle::open(root.filePath(QStringLiteral("Test.bundle")));
    QVERIFY(m_bundle);
}

void BundleResourcesTest::write(const QString &name)
{
    QFile file(m_root->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

void BundleResourcesTest::anInterfaceFileLiesInItsFolder()
{
    QCOMPARE(m_bundle->pathForResource(QStringLiteral("Panel"), QStringLiteral("ui")),
             m_bundle->path() + QStringLiteral("/interface/Panel.ui"));
    QCOMPARE(m_bundle->pathForResource(QStringLiteral("a%1b"), QStringLiteral("ui")),
             m_bundle->path() + QStringLiteral("/interface/a%1b.ui"));
}

void BundleResourcesTest::everythingElseLiesAmongThePictures()
{
    QCOMPARE(m_bundle->pathForResource(QStringLiteral("load"), QStringLiteral("tiff")),
             m_bundle->path() + QStringLiteral("/pictures/load.tiff"));
}

void BundleResourcesTest::aMissingResourceIsNull_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("type");
    QTest::newRow("no such file") << QStringLiteral("Nobody") << QStringLiteral("ui");
    QTest::newRow("in the other folder") << QStringLiteral("load") << QStringLiteral("ui");
    QTest::newRow("of another type") << QStringLiteral("load") << QStringLiteral("png");
    QTest::newRow("a folder") << QStringLiteral("folder") << QStringLiteral("tiff");
    QTest::newRow("other case") << QStringLiteral("panel") << QStringLiteral("ui");
    QTest::newRow("no name") << QString() << QStringLiteral("ui");
    QTest::newRow("no type") << QStringLiteral("load") << QString();
}

void BundleResourcesTest::aMissingResourceIsNull()
{
    QFETCH(QString, name);
    QFETCH(QString, type);
    QVERIFY(m_bundle->pathForResource(name, type).isNull());
}

void BundleResourcesTest::aNameThatLeavesTheFolderFindsNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("type");
    QTest::newRow("parent of the bundle")
        << QStringLiteral("../../outside") << QStringLiteral("ui");
    QTest::newRow("parent in the middle")
        << QStringLiteral("sub/../../stray") << QStringLiteral("ui");
    QTest::newRow("sub-folder") << QStringLiteral("sub/Deep") << QStringLiteral("ui");
    QTest::newRow("hidden file") << QStringLiteral(".hidden") << QStringLiteral("ui");
    QTest::newRow("absolute") << m_root->filePath(QStringLiteral("outside"))
                              << QStringLiteral("ui");
    QTest::newRow("through the type")
        << QStringLiteral("folder") << QStringLiteral("tiff/../../stray.ui");
}

void BundleResourcesTest::aNameThatLeavesTheFolderFindsNothing()
{
    QFETCH(QString, name);
    QFETCH(QString, type);
    QVERIFY(m_bundle->pathForResource(name, type).isNull());
}

void BundleResourcesTest::codeThatNobodyAssociatedHasNoBundle()
{
    QVERIFY(!Bundle::bundleForCode(nullptr));
    QVERIFY(!Bundle::bundleForCode(reinterpret_cast<const void *>(&std::strtol)));
    int onTheStack = 0;
    QVERIFY(!Bundle::bundleForCode(&onTheStack));
    QVERIFY(!Bundle::bundleForCode(address(&someCode)));
}

void BundleResourcesTest::aModuleThatDoesNotExistIsNotMistakenForTheProgram()
{
    Bundle::associateModule(QCoreApplication::applicationFilePath(), nullptr);
    Bundle::associateModule(m_root->filePath(QStringLiteral("no-such-module.so")), m_bundle);
    QVERIFY(!Bundle::bundleForCode(address(&someCode)));
}

void BundleResourcesTest::associatedCodeAndDataHaveTheirBundle()
{
    Bundle::associateModule(QCoreApplication::applicationFilePath(), m_bundle);
    QCOMPARE(Bundle::bundleForCode(address(&someCode)), m_bundle);
    QCOMPARE(Bundle::bundleForCode(&someData), m_bundle);
    QVERIFY(!Bundle::bundleForCode(reinterpret_cast<const void *>(&std::strtol)));
}

void BundleResourcesTest::aLaterAssociationReplacesTheEarlier()
{
    const auto second = Bundle::open(m_bundle->path());
    Bundle::associateModule(QCoreApplication::applicationFilePath(), m_bundle);
    Bundle::associateModule(QCoreApplication::applicationFilePath(), second);
    QCOMPARE(Bundle::bundleForCode(address(&someCode)), second);
}

QTEST_GUILESS_MAIN(BundleResourcesTest)
#include "bundle_resources_test.moc"
