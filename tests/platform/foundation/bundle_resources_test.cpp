#include <cstdlib>

#include <QtTest>

#include "platform/foundation/Bundle.h"

using namespace corvana;
using namespace Qt::StringLiterals;

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
    QVERIFY(root.mkpath(u"Test.bundle/interface/sub"_s));
    QVERIFY(root.mkpath(u"Test.bundle/pictures/folder.tiff"_s));
    for (const char *name :
         {"outside.ui", "outside.tiff", "Test.bundle/stray.ui", "Test.bundle/interface/Panel.ui",
          "Test.bundle/interface/.hidden.ui", "Test.bundle/interface/sub/Deep.ui",
          "Test.bundle/interface/a%1b.ui", "Test.bundle/pictures/load.tiff"})
        write(QString::fromLatin1(name));
    m_bundle = Bundle::open(root.filePath(u"Test.bundle"_s));
    QVERIFY(m_bundle);
}

void BundleResourcesTest::write(const QString &name)
{
    QFile file(m_root->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

void BundleResourcesTest::anInterfaceFileLiesInItsFolder()
{
    QCOMPARE(m_bundle->pathForResource(u"Panel"_s, u"ui"_s),
             m_bundle->path() + u"/interface/Panel.ui"_s);
    QCOMPARE(m_bundle->pathForResource(u"a%1b"_s, u"ui"_s),
             m_bundle->path() + u"/interface/a%1b.ui"_s);
}

void BundleResourcesTest::everythingElseLiesAmongThePictures()
{
    QCOMPARE(m_bundle->pathForResource(u"load"_s, u"tiff"_s),
             m_bundle->path() + u"/pictures/load.tiff"_s);
}

void BundleResourcesTest::aMissingResourceIsNull_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("type");
    QTest::newRow("no such file") << u"Nobody"_s << u"ui"_s;
    QTest::newRow("in the other folder") << u"load"_s << u"ui"_s;
    QTest::newRow("of another type") << u"load"_s << u"png"_s;
    QTest::newRow("a folder") << u"folder"_s << u"tiff"_s;
    QTest::newRow("other case") << u"panel"_s << u"ui"_s;
    QTest::newRow("no name") << QString() << u"ui"_s;
    QTest::newRow("no type") << u"load"_s << QString();
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
    QTest::newRow("parent of the bundle") << u"../../outside"_s << u"ui"_s;
    QTest::newRow("parent in the middle") << u"sub/../../stray"_s << u"ui"_s;
    QTest::newRow("sub-folder") << u"sub/Deep"_s << u"ui"_s;
    QTest::newRow("hidden file") << u".hidden"_s << u"ui"_s;
    QTest::newRow("absolute") << m_root->filePath(u"outside"_s) << u"ui"_s;
    QTest::newRow("through the type") << u"folder"_s << u"tiff/../../stray.ui"_s;
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
    Bundle::associateModule(m_root->filePath(u"no-such-module.so"_s), m_bundle);
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
