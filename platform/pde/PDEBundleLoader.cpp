#include "platform/pde/PDEBundleLoader.h"

#include <cerrno>
#include <utility>

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QPluginLoader>

#include "platform/foundation/Bundle.h"
#include "platform/pde/PDEPlugIn.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcLoader, "corvana.pde.loader", QtWarningMsg)

namespace {

// Keys without which a bundle cannot work as a plug-in.
constexpr QLatin1StringView kRequiredKeys[] = {kCFBundleNameKey, kCFBundleIdentifierKey,
                                               kCFBundleExecutableKey};

// The list of the options that the bundle's panels handle; part of the contract with every host.
constexpr QLatin1StringView kSupportedOptionsKey{"PMPPDKeysSupported"};

// Whether nobody but `user` is in the group. Many systems give every user a group of the same name
// and let it write whatever the user makes; a checkout on such a system is as safe as on another.
// What such a group was given members for is shared, and its files are code of any of them.
bool isPrivateGroup(gid_t group, uid_t user)
{
    const passwd *account = ::getpwuid(user);
    if (!account || account->pw_gid != group)
        return false;
    const QByteArray name = account->pw_name;
    const auto *entry = ::getgrgid(group);
    if (!entry || name != entry->gr_name)
        return false;
    for (char **member = entry->gr_mem; *member; ++member) {
        if (name != *member)
            return false;
    }
    return true;
}

// Looks at the files of one bundle.
class Trust
{
public:
    // Why a file or folder below a trusted root cannot be trusted; null when it can.
    QString distrust(const QString &file)
    {
        // Asked for once: a window waits for this, and Qt asks seven times.
        struct stat information
        {
        };
        if (::stat(QFile::encodeName(file).constData(), &information) != 0)
            return u"%1: %2"_s.arg(file, qt_error_string(errno));
        if (information.st_mode & S_IWOTH)
            return u"%1 can be written by everybody"_s.arg(file);
        const uint owner = information.st_uid;
        if (owner != 0 && owner != ::geteuid() && owner != m_programOwner)
            return u"%1 belongs to another user"_s.arg(file);
        if ((information.st_mode & S_IWGRP) && !isOwnersAlone(information.st_gid, owner))
            return u"%1 can be written by the group %2"_s.arg(file, QFileInfo(file).group());
        return {};
    }

private:
    // Groups may be looked up in the network.
    bool isOwnersAlone(uint group, uint owner)
    {
        const auto pair = std::pair(group, owner);
        if (!m_groups.contains(pair))
            m_groups.insert(pair, isPrivateGroup(group, owner));
        return m_groups.value(pair);
    }

    const uint m_programOwner = QFileInfo(u"/proc/self/exe"_s).ownerId();
    QHash<std::pair<uint, uint>, bool> m_groups;
};

// Walks from `path` up to, and not including, `root`.
QString distrustOfPath(const QString &path, const QString &root)
{
    Trust trust;
    for (QFileInfo file(path); file.filePath() != root; file = QFileInfo(file.path())) {
        const QString problem = trust.distrust(file.filePath());
        if (!problem.isNull())
            return problem;
    }
    return {};
}

// Why something inside the bundle cannot be trusted; null when everything can.
QString distrustOfContents(const QString &bundle)
{
    Trust trust;
    QDirIterator contents(bundle,
                          QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
    while (contents.hasNext()) {
        contents.next();
        const QFileInfo file = contents.fileInfo();
        if (file.isSymLink() && !file.canonicalFilePath().startsWith(bundle + u'/'))
            return u"%1 leads out of the bundle, to %2"_s.arg(file.filePath(),
                                                              file.canonicalFilePath());
        const QString problem = trust.distrust(file.filePath());
        if (!problem.isNull())
            return problem;
    }
    return {};
}

FoundPlugIn unusable(const QString &problem)
{
    qCWarning(lcLoader).noquote() << problem;
    return {nullptr, {}, problem};
}

LoadedPlugIn refused(const QString &problem)
{
    qCWarning(lcLoader).noquote() << problem;
    LoadedPlugIn result;
    result.problem = problem;
    return result;
}

// Principal objects by module: a module is loaded, and told of its bundle, once in a process.
QHash<QString, LoadedPlugIn> &loadedPlugIns()
{
    static QHash<QString, LoadedPlugIn> plugIns;
    return plugIns;
}

// The canonical path of the bundle in the first root that has it; null when none has.
QString findBundle(const QString &fileName, const QStringList &roots, QString *root)
{
    for (const QString &candidate : roots) {
        const QString folder = QFileInfo(candidate).canonicalFilePath();
        const QFileInfo bundle(folder + u'/' + fileName);
        if (!folder.isEmpty() && bundle.isDir()) {
            *root = folder;
            return bundle.canonicalFilePath();
        }
    }
    return {};
}

} // namespace

FoundPlugIn findPlugInBundle(const QString &fileName, const QStringList &trustedRoots)
{
    if (fileName.isEmpty() || fileName.contains(u'/') || fileName.startsWith(u'.'))
        return unusable(u"\"%1\" is no name of a plug-in bundle"_s.arg(fileName));
    QString root;
    const QString path = findBundle(fileName, trustedRoots, &root);
    if (path.isNull())
        return {};
    if (!path.startsWith(root + u'/'))
        return unusable(u"%1 leads out of the trusted folder %2"_s.arg(path, root));
    if (const QString problem = distrustOfPath(path, root); !problem.isNull())
        return unusable(problem);
    if (const QString problem = distrustOfContents(path); !problem.isNull())
        return unusable(problem);

    QString error;
    const std::shared_ptr<Bundle> bundle = Bundle::open(path, &error);
    if (!bundle || !bundle->infoDictionary())
        return unusable(error);
    for (const QLatin1StringView key : kRequiredKeys) {
        if (bundle->infoString(key).isEmpty())
            return unusable(
                u"%1/info.json: the key \"%2\" with a text was expected"_s.arg(path, key));
    }
    if (!bundle->infoStringList(kSupportedOptionsKey)) {
        return unusable(u"%1/info.json: the key \"%2\" with a list of texts was expected"_s.arg(
            path, kSupportedOptionsKey));
    }
    const QString name = bundle->infoString(kCFBundleExecutableKey);
    const QString module = QFileInfo(path + u'/' + name).canonicalFilePath();
    if (module.isEmpty())
        return unusable(u"%1: the module %2 is missing"_s.arg(path, name));
    if (!module.startsWith(path + u'/'))
        return unusable(u"%1 leads out of the bundle %2"_s.arg(module, path));
    return {bundle, module, {}};
}

LoadedPlugIn loadPlugIn(const FoundPlugIn &found)
{
    if (!found.bundle)
        return refused(found.problem);
    if (const auto loaded = loadedPlugIns().constFind(found.module);
        loaded != loadedPlugIns().constEnd())
        return *loaded;
    QPluginLoader loader(found.module);
    loader.setLoadHints(QLibrary::PreventUnloadHint | QLibrary::ResolveAllSymbolsHint);
    const QString iid = loader.metaData().value("IID"_L1).toString();
    if (iid != QLatin1StringView(CORVANA_PDE_PLUGIN_IID)) {
        return refused(u"%1 was built for the contract \"%2\", this program needs \"%3\""_s.arg(
            found.module, iid, QLatin1StringView(CORVANA_PDE_PLUGIN_IID)));
    }
    // The module's panels look for their bundle while they are constructed.
    Bundle::associateModule(found.module, found.bundle);
    auto *plugIn = qobject_cast<PDEPlugIn *>(loader.instance());
    if (!plugIn)
        return refused(u"%1: %2"_s.arg(found.module, loader.errorString()));
    if (!plugIn->initWithBundle(found.bundle)) {
        return refused(u"%1: the plug-in cannot work with its bundle"_s.arg(found.bundle->path()));
    }
    return *loadedPlugIns().insert(found.module, {found.bundle, plugIn, {}});
}

LoadedPlugIn loadPlugInBundle(const QString &fileName, const QStringList &trustedRoots)
{
    FoundPlugIn found = findPlugInBundle(fileName, trustedRoots);
    if (!found.bundle && found.problem.isEmpty()) {
        found.problem = u"the plug-in bundle %1 is in none of the trusted folders: %2"_s.arg(
            fileName, trustedRoots.join(u", "_s));
    }
    return loadPlugIn(found);
}

} // namespace corvana
