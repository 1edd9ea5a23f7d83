#include <QFileInfo>
#include <QTemporaryDir>

#include "dialog/printers/PpdCache.h"
#include "fuzz/support/InputFile.h"
#include "fuzz/support/Sessions.h"
#include "fuzz/support/Target.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

// The entry and the PPD of a cache with one queue.
struct Kept
{
    QString entry;
    QString ppd;
};

Kept keptIn(const QTemporaryDir &folder, const PpdCache &cache, const QueueDetails &details)
{
    const SharedPpd stored = cache.store(u"server"_s, details);
    require(stored != nullptr, "a printer's PPD can be kept", folder.path());
    return {folder.filePath(u"server/lobby.json"_s), stored->path};
}

/// Input: what the cache says of a queue. There is a queue by its own name whose PPD is the one
/// that was kept, or none; each of its defaults has a name and a value; and the same queue can be
/// kept again and is then as it was.
void run(const QByteArray &input)
{
    static const QTemporaryDir folder;
    const PpdCache cache(folder.path());
    QueueDetails details;
    details.printer.name = u"lobby"_s;
    details.printer.uri = u"ipp://localhost/printers/lobby"_s;
    details.ppd = samplePpd();
    details.ppdHash = hashOfPpd(details.ppd);
    const Kept kept = keptIn(folder, cache, details);
    require(QFileInfo::exists(kept.entry), "a queue has an entry", kept.entry);

    // The digest is one that no input can guess.
    QByteArray entry = input;
    entry.replace("DIGEST", details.ppdHash);
    writeInput(kept.entry, entry);
    if (const auto found = cache.find(u"server"_s, u"Lobby"_s)) {
        require(found->printer.name == u"Lobby"_s && found->printer.origin == PrinterOrigin::Queue,
                "a queue is found by the name that was asked for", found->printer.name);
        require(found->ppd && found->ppd->path == kept.ppd && found->ppd->hash == details.ppdHash,
                "a queue has the PPD that was kept", found->ppd ? found->ppd->path : QString());
        for (const JobOption &option : found->defaults)
            require(!option.name.isEmpty() && !option.value.isEmpty(),
                    "a default has a name and a value", option.name);
    }
    require(!cache.find(u"server"_s, u"../lobby"_s) && !cache.find(u".."_s, u"lobby"_s),
            "a queue is no path");
    require(cache.store(u"server"_s, details) != nullptr, "a queue can be kept again");
    const auto again = cache.find(u"server"_s, u"lobby"_s);
    require(again && again->printer.uri == details.printer.uri && again->defaults.isEmpty(),
            "a queue that was kept is there");
}

const Target target("ppd_cache", run);

} // namespace

} // namespace corvana::fuzz
