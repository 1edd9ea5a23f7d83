#include "dialog/presets/PresetShelf.h"

#include <utility>

namespace corvana {

void PresetShelf::setPrinter(const PresetPlaces &places, const QString &model)
{
    m_store = PresetStore(places);
    if (m_model != model) {
        m_model = model;
        m_listing = {};
        Q_EMIT changed();
    }
    look();
}

void PresetShelf::look()
{
    m_work.run([this, store = m_store, model = m_model]() -> PresetWork::Then {
        // Only the answer, on the GUI thread, speaks of this object, which is alive then.
        return [this, model, found = store.list(model), instances = KnownInstances::read()] {
            const bool hasOthers = std::exchange(m_instances, instances) != instances;
            const bool isOther = model == m_model && found != m_listing;
            if (isOther)
                m_listing = found;
            if (isOther || hasOthers)
                Q_EMIT changed();
        };
    });
}

void PresetShelf::run(Change change, const QString &name, std::function<QString()> work)
{
    m_work.run([this, change, name, work = std::move(work)]() -> PresetWork::Then {
        return [this, change, name, problem = work()] { Q_EMIT ended(change, name, problem); };
    });
    if (change != Change::LastJob)
        look();
}

void PresetShelf::save(const PresetReplacing &settings, PresetStore::Replacing replacing,
                       const std::shared_ptr<Preset> &written, const Along &along)
{
    run(Change::Saved, settings.preset.name,
        [store = m_store, settings, replacing, written, along] {
            return store.save(settings, replacing, written.get(), along);
        });
}

void PresetShelf::rename(const Preset &preset, const QString &name, const Along &along)
{
    run(Change::Renamed, name,
        [store = m_store, preset, name, along] { return store.rename(preset, name, along); });
}

void PresetShelf::remove(const Preset &preset, const Along &along)
{
    run(Change::Removed, preset.name,
        [store = m_store, preset, along] { return store.remove(preset, along); });
}

void PresetShelf::keepLastJob(const Printer &printer, const QString &server,
                              const PresetContent &changes)
{
    run(Change::LastJob, {},
        [printer, server, changes] { return writeLastUsed(printer, server, changes); });
}

} // namespace corvana
