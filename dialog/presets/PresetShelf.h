#pragma once

#include <QObject>

#include "dialog/presets/LastUsed.h"
#include "dialog/presets/PresetStore.h"
#include "dialog/presets/PresetWork.h"
#include "dialog/printers/KnownInstances.h"

namespace corvana {

/// The presets for one model of printers as they are known now, what other programs have beside
/// them, and what becomes of presets: read and written beside the GUI thread, one after the other.
///
/// Thread: GUI thread only.
class PresetShelf : public QObject
{
    Q_OBJECT

public:
    enum class Change { Saved, Renamed, Removed, LastJob };

    explicit PresetShelf(QObject *parent = nullptr) : QObject(parent) {}

    /// Where presets lie, and for which model they are listed from now on. changed() follows.
    void setPrinter(const PresetPlaces &places, const QString &model);
    /// Looks again, since other windows keep presets as well. changed() follows where there are
    /// others.
    void look();
    /// As far as it is known: of another model nothing.
    const PresetListing &listing() const { return m_listing; }
    /// What stood in lpoptions when it was looked at last; nothing before that.
    const KnownInstances &instances() const { return m_instances; }

    // ended() follows each of these. `along` is called on another thread, and borrows nothing.

    using Along = PresetStore::Along;
    /// `written`: see PresetStore; the other thread's until it ended.
    void save(const PresetReplacing &settings, PresetStore::Replacing replacing,
              const std::shared_ptr<Preset> &written, const Along &along = {});
    void rename(const Preset &preset, const QString &name, const Along &along = {});
    void remove(const Preset &preset, const Along &along = {});
    void keepLastJob(const Printer &printer, const QString &server, const PresetContent &changes);

Q_SIGNALS:
    /// listing() or instances() are others.
    void changed();
    /// `problem`: why it is not done; empty when it is. `name`: of the preset as it is called now.
    void ended(corvana::PresetShelf::Change change, const QString &name, const QString &problem);

private:
    void run(Change change, const QString &name, std::function<QString()> work);

    PresetStore m_store{PresetPlaces()};
    QString m_model;
    PresetListing m_listing;
    KnownInstances m_instances;
    PresetWork m_work; // last: what it does may still use a copy of the others
};

} // namespace corvana
