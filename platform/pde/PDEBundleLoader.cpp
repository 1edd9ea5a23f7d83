#include "platform/pde/PDEBundleLoader.h"

#include <unistd.h>

#include <QFileInfo>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QPluginLoader>

#include "platform/foundation/Bundle.h"
#include "platform/pde/PDEPlugIn.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcLoader, "corvana.pde.loader", QtWarningMsg)

namespace {

// Keys without which a bundle cannot work as a plug-in.
constexpr QLatin1StringView kRequiredKeys[] = {kCFBundleNameKey, kCFBundleIdentifierKey,
                                               kCFBundleExecutableKey};

// Why a file or folder below a trusted root cannot be trusted; null when it can.
QString distrust(const QFileInfo &file, uint programOwner)
{
    const auto writers = QFileDevice::WriteOther;
    if (file.permissions() & writers)
        return QStringLiteral("%1 can be written by everybody").arg(file.filePath());
    const uint owner = file.ownerId();
    if (owner != 0 && owner != ::geteuid() && owner != programOwner)
        return QStringLiteral("%1 belongs to another user").arg(file.filePath());
    return {};
}

// Walks from `path` up to, and not including, `root`.
QString distrustOfPath(const QString &path, const QString &root)
{
    const uint programOwner = QFileInfo(QStringLiteral("/proc/self/exe")).ownerId();
    for (QFileInfo file(path); file.filePath() != root; file = QFileInfo(file.path())) {
        const QString problem = distrust(file, programOwner);
        if (!problem.isNull())
            return problem;
    }
    return {};
}

LoadedPlugIn refused(const QString &problem)
{
    qCWarning(lcLoader).noquote() << problem;
    LoadedPlugIn result;
    result.problem = problem;
    return result;
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

LoadedPlugIn loadPlugInBundle(const QString &fileName, const QStringList &trustedRoots)
{
    if (fileName.isEmpty() || fileName.contains(u'/') || fileName.startsWith(u'.'))
        return refused(QStringLiteral("\"%1\" is no name of a plug-in bundle").arg(fileName));
    QString root;
    const QString path = findBundle(fileName, trustedRoots, &root);
    if (path.isNull()) {
        return refused(QStringLiteral("the plug-in bundle %1 is in none of the trusted folders: %2")
                           .arg(fileName, trustedRoots.join(QStringLiteral(", "))));
    }
    if (!path.startsWith(root + u'/'))
        return refused(QStringLiteral("%1 leads out of the trusted folder %2").arg(path, root));

    QString error;
    const std::shared_ptr<Bundle> bundle = Bundle::open(path, &error);
    if (!bundle || !bundle->infoDictionary())
        return refused(error);
    for (const QLatin1StringView key : kRequiredKeys) {
        if (bundle->infoString(key).isEmpty())
            return refused(QStringLiteral("%1/info.json: the key \"%2\" with a text was expected")
                               .arg(path, key));
    }

    const QString name = bundle->infoString(kCFBundleExecutableKey);
    const QString module = QFileInfo(path + u'/' + name).canonicalFilePath();
    if (module.isEmpty())
        return refused(QStringLiteral("%1: the module %2 is missing").arg(path, name));
    if (!module.startsWith(path + u'/'))
        return refused(QStringLiteral("%1 leads out of the bundle %2").arg(module, path));
    if (const QString problem = distrustOfPath(module, root); !problem.isNull())
        return refused(problem);

    QPluginLoader loader(module);
    loader.setLoadHints(QLibrary::PreventUnloadHint | QLibrary::ResolveAllSymbolsHint);
    const QString iid = loader.metaData().value(QLatin1StringView("IID")).toString();
    if (iid != QLatin1StringView(CORVANA_PDE_PLUGIN_IID)) {
        return refused(QStringLiteral("%1 was built for the contract \"%2\", this program needs \"%3\"")
                           .arg(module, iid, QLatin1StringView(CORVANA_PDE_PLUGIN_IID)));
    }
    // The module's panels look for their bundle while they are constructed.
    Bundle::associateModule(module, bundle);
    auto *plugIn = qobject_cast<PDEPlugIn *>(loader.instance());
    if (!plugIn)
        return refused(QStringLiteral("%1: %2").arg(module, loader.errorString()));
    if (!plugIn->initWithBundle(bundle))
        return refused(QStringLiteral("%1: the plug-in cannot work with its bundle").arg(path));
    return {bundle, plugIn, {}};
}

} // namespace corvana
