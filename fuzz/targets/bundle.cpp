#include <QFileInfo>
#include <QTemporaryDir>

#include "fuzz/support/InputFile.h"
#include "fuzz/support/Target.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/HelpManager.h"
#include "platform/pde/PDEBundleLoader.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

/// Input: the information dictionary of a bundle. It is read, or named with what is wrong; every
/// localisation that is preferred is one that it declares; no resource lies outside the bundle; and
/// without a sound module no code is found.
void run(const QByteArray &input)
{
    static const QTemporaryDir root;
    const QString folder = root.filePath(u"Fuzz.bundle"_s);
    writeInput(folder + u"/info.json"_s, input);
    writeInput(folder + u"/pictures/a.tiff"_s, "a");
    writeInput(root.filePath(u"secret.tiff"_s), "secret");

    QString error;
    const std::shared_ptr<Bundle> bundle = Bundle::open(folder, &error);
    require(bundle != nullptr, "a folder is a bundle");
    require(bundle->infoDictionary().has_value() == error.isEmpty(),
            "a bundle without information says why", error);
    require(error.isEmpty() || error.contains(u"info.json"_s), "a problem names the file", error);
    const QStringList localizations = bundle->localizations();
    for (const QString &one : Bundle::preferredLocalizations(localizations))
        require(localizations.contains(one), "what is preferred is declared", one);
    require(localizations.isEmpty() == Bundle::preferredLocalizations(localizations).isEmpty(),
            "there is a localisation wherever one is declared");
    bundle->localizedStringOrKey(u"key"_s);
    QStringList names = localizations;
    names << bundle->identifier() << bundle->infoString(kCFBundleNameKey) << u"../secret"_s;
    for (const QString &name : names) {
        const QString path = bundle->pathForResource(name, u"tiff"_s);
        require(path.isNull() ||
                    QFileInfo(path).canonicalFilePath().startsWith(bundle->path() + u'/'),
                "a resource lies in the bundle", path);
    }
    HelpManager::sharedHelpManager().registerBooksInBundle(*bundle, folder);
    const FoundPlugIn found = findPlugInBundle(u"Fuzz.bundle"_s, {root.path()});
    require(!found.problem.isEmpty(), "a bundle without a module is refused");
}

const Target target("bundle", run);

} // namespace

} // namespace corvana::fuzz
