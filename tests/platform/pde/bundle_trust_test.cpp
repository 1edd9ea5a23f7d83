#include <array>
#include <optional>

#include <grp.h>
#include <pwd.h>
#include <unistd.h>

#include <QtTest>

#include "platform/foundation/Bundle.h"
#include "platform/pde/PDEBundleLoader.h"

#include "BundleFolder.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class BundleTrustTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatOnlyItsOwnerCanWriteIsTrusted();
    void whatEverybodyCanWriteIsRefused_data();
    void whatEverybodyCanWriteIsRefused();
    void whatAGroupCanWriteIsRefused_data();
    void whatAGroupCanWriteIsRefused();
    void whatTheUsersOwnGroupCanWriteIsTrusted();
    void whatAnotherUserOwnsIsRefused_data();
    void whatAnotherUserOwnsIsRefused();
    void aBundleThatIsALinkOutOfTheRootIsRefused();
    void aLinkOutOfTheRootIsRefusedEvenIntoTheOtherRoot();
    void aModuleThatIsALinkOutOfTheBundleIsRefused();
    void aModuleFolderThatIsALinkOutOfTheBundleIsRefused();
    void aLinkInsideTheRootIsFollowed();
    void theTargetOfALinkMustBeTrustedToo();
    void aRootThatIsALinkIsFollowed();
    void permissionsAboveTheRootDoNotMatter();

private:
    QString place(const char *name) const { return m_folder->path(QString::fromLatin1(name)); }
    void loadAndCompareRefused(const QString &reason);
    bool loads(const QStringList &roots);

    std::unique_ptr<BundleFolder> m_folder;
};

namespace {

constexpr auto kOwnerOnly =
    QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
constexpr auto kEverybody =
    kOwnerOnly | QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;
constexpr auto kGroup =
    kOwnerOnly | QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ExeGroup;
constexpr uid_t kNobody = 65534;

// A group that is not the user's own; nothing when the user cannot give it a file.
std::optional<gid_t> groupOfOthers()
{
    if (::geteuid() == 0)
        return kNobody;
    std::array<gid_t, 64> groups{};
    const int count = ::getgroups(static_cast<int>(groups.size()), groups.data());
    const passwd *user = ::getpwuid(::geteuid());
    for (int i = 0; user && i < count; ++i) {
        if (groups.at(i) != user->pw_gid)
            return groups.at(i);
    }
    return std::nullopt;
}

void addTrustRows()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("module") << u"first/Test.bundle/module/test.so"_s;
    QTest::newRow("folder of the module") << u"first/Test.bundle/module"_s;
    QTest::newRow("bundle") << u"first/Test.bundle"_s;
}

} // namespace

void BundleTrustTest::init()
{
    m_folder = std::make_unique<BundleFolder>();
    QVERIFY(BundleFolder::makeBundle(place("first/Test.bundle"), u"Good"_s,
                                     BundleFolder::info("module/test.so")));
}

void BundleTrustTest::loadAndCompareRefused(const QString &reason)
{
    const LoadedPlugIn loaded = loadPlugInBundle(u"Test.bundle"_s, {m_folder->root()});
    QVERIFY(!loaded.plugIn);
    QVERIFY2(loaded.problem.contains(reason), qPrintable(loaded.problem));
    QCOMPARE(m_folder->marks(), 0);
}

bool BundleTrustTest::loads(const QStringList &roots)
{
    const LoadedPlugIn loaded = loadPlugInBundle(u"Test.bundle"_s, roots);
    return loaded.plugIn && m_folder->marks() == 1;
}

void BundleTrustTest::whatOnlyItsOwnerCanWriteIsTrusted()
{
    QVERIFY(loads({m_folder->root()}));
}

void BundleTrustTest::whatEverybodyCanWriteIsRefused_data()
{
    addTrustRows();
}

void BundleTrustTest::whatEverybodyCanWriteIsRefused()
{
    QFETCH(QString, name);
    QVERIFY(QFile::setPermissions(m_folder->path(name), kEverybody));
    loadAndCompareRefused(name + u" can be written by everybody"_s);
}

void BundleTrustTest::whatAGroupCanWriteIsRefused_data()
{
    addTrustRows();
}

void BundleTrustTest::whatAGroupCanWriteIsRefused()
{
    QFETCH(QString, name);
    const QByteArray file = QFile::encodeName(m_folder->path(name));
    const std::optional<gid_t> group = groupOfOthers();
    if (!group || ::chown(file.constData(), uid_t(-1), *group) != 0)
        QSKIP("only the superuser, or a member, can give a file to a group");
    QVERIFY(QFile::setPermissions(m_folder->path(name), kGroup));
    loadAndCompareRefused(name + u" can be written by the group "_s);
}

// As with a umask of 002, where every user has a group of the same name.
void BundleTrustTest::whatTheUsersOwnGroupCanWriteIsTrusted()
{
    const passwd *user = ::getpwuid(::geteuid());
    const struct group *group = user ? ::getgrgid(user->pw_gid) : nullptr;
    if (!group || QByteArray(user->pw_name) != group->gr_name || *group->gr_mem)
        QSKIP("this user has no group of its own");
    for (const char *name : {"first/Test.bundle", "first/Test.bundle/module",
                             "first/Test.bundle/module/test.so", "first/Test.bundle/info.json"}) {
        const QByteArray file = QFile::encodeName(place(name));
        QCOMPARE(::chown(file.constData(), uid_t(-1), user->pw_gid), 0);
        QVERIFY(QFile::setPermissions(place(name), kGroup));
    }
    QVERIFY(loads({m_folder->root()}));
}

void BundleTrustTest::whatAnotherUserOwnsIsRefused_data()
{
    addTrustRows();
}

void BundleTrustTest::whatAnotherUserOwnsIsRefused()
{
    QFETCH(QString, name);
    const QByteArray file = QFile::encodeName(m_folder->path(name));
    if (::geteuid() != 0 || ::chown(file.constData(), kNobody, gid_t(-1)) != 0)
        QSKIP("only the superuser can give a file away");
    loadAndCompareRefused(name + u" belongs to another user"_s);
}

void BundleTrustTest::aBundleThatIsALinkOutOfTheRootIsRefused()
{
    QVERIFY(QDir().rename(place("first/Test.bundle"), place("elsewhere.bundle")));
    QVERIFY(QFile::link(place("elsewhere.bundle"), place("first/Test.bundle")));
    loadAndCompareRefused(u"leads out of the trusted folder"_s);
}

void BundleTrustTest::aLinkOutOfTheRootIsRefusedEvenIntoTheOtherRoot()
{
    QVERIFY(QDir().rename(place("first/Test.bundle"), place("second/Real.bundle")));
    QVERIFY(QFile::link(place("second/Real.bundle"), place("first/Test.bundle")));
    const LoadedPlugIn loaded = loadPlugInBundle(u"Test.bundle"_s, m_folder->roots());
    QVERIFY(!loaded.plugIn);
    QCOMPARE(m_folder->marks(), 0);
}

void BundleTrustTest::aModuleThatIsALinkOutOfTheBundleIsRefused()
{
    QVERIFY(QFile::rename(place("first/Test.bundle/module/test.so"), place("first/test.so")));
    QVERIFY(QFile::link(place("first/test.so"), place("first/Test.bundle/module/test.so")));
    loadAndCompareRefused(u"leads out of the bundle"_s);
}

void BundleTrustTest::aModuleFolderThatIsALinkOutOfTheBundleIsRefused()
{
    QVERIFY(QDir().rename(place("first/Test.bundle/module"), place("first/module")));
    QVERIFY(QFile::link(place("first/module"), place("first/Test.bundle/module")));
    loadAndCompareRefused(u"leads out of the bundle"_s);
}

void BundleTrustTest::aLinkInsideTheRootIsFollowed()
{
    QVERIFY(QDir().rename(place("first/Test.bundle"), place("first/Test-1.0.bundle")));
    QVERIFY(QFile::link(place("first/Test-1.0.bundle"), place("first/Test.bundle")));
    QVERIFY(loads({m_folder->root()}));
}

void BundleTrustTest::theTargetOfALinkMustBeTrustedToo()
{
    QVERIFY(QDir().mkdir(place("first/versions")));
    QVERIFY(QDir().rename(place("first/Test.bundle"), place("first/versions/Test.bundle")));
    QVERIFY(QFile::link(place("first/versions/Test.bundle"), place("first/Test.bundle")));
    // Whoever writes here can replace the whole bundle.
    QVERIFY(QFile::setPermissions(place("first/versions"), kEverybody));
    loadAndCompareRefused(u"first/versions can be written by everybody"_s);
}

void BundleTrustTest::aRootThatIsALinkIsFollowed()
{
    QVERIFY(QFile::link(m_folder->root(), place("link")));
    QVERIFY(loads({place("link")}));
    QVERIFY(loadPlugInBundle(u"Test.bundle"_s, {place("link/../first/")}).plugIn);
}

void BundleTrustTest::permissionsAboveTheRootDoNotMatter()
{
    QVERIFY(QDir().mkdir(place("above")));
    QVERIFY(QDir().rename(m_folder->root(), place("above/first")));
    QVERIFY(QFile::setPermissions(place("above"), kEverybody));
    QVERIFY(loads({place("above/first")}));
}

QTEST_GUILESS_MAIN(BundleTrustTest)
#include "bundle_trust_test.moc"
