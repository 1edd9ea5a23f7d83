#pragma once

#include <functional>

#include <QString>
#include <QVariant>
#include <QVariantMap>

#include "platform/PlatformExport.h"
#include "platform/printcore/PMStatus.h"

namespace corvana {

/// Two-sided printing as a job asks for it. The numbers are part of the panels' contract.
enum PMDuplexMode : int {
    kPMDuplexNone = 1,     ///< one-sided
    kPMDuplexNoTumble = 2, ///< two-sided, bound at the long edge
    kPMDuplexTumble = 3,   ///< two-sided, bound at the short edge
};

/// The print settings of one job: entries by key, plus a hook through which a change of two-sided
/// printing reaches whoever keeps the PPD's marks.
///
/// Ownership: the host owns the settings for as long as its panels live; panels borrow them.
/// Thread: GUI thread only.
class CORVANA_PLATFORM_EXPORT PrintSettings
{
public:
    /// Called by PMSetDuplex() with the mode asked for.
    using DuplexHandler = std::function<void(PMDuplexMode)>;

    PrintSettings() = default;
    PrintSettings(const PrintSettings &) = delete;
    PrintSettings &operator=(const PrintSettings &) = delete;

    /// All entries, as one value: what a snapshot keeps.
    const QVariantMap &entries() const { return m_entries; }
    void setEntries(const QVariantMap &entries) { m_entries = entries; }

    bool contains(const QString &key) const { return m_entries.contains(key); }
    /// The entry under `key`; invalid when there is none.
    QVariant value(const QString &key) const { return m_entries.value(key); }
    void setValue(const QString &key, const QVariant &value);
    /// `handler` runs whenever setValue() has made an entry another one. It must not write entries.
    void setChangeHandler(std::function<void()> handler) { m_changeHandler = std::move(handler); }

    void setDuplexHandler(DuplexHandler handler) { m_duplexHandler = std::move(handler); }
    const DuplexHandler &duplexHandler() const { return m_duplexHandler; }

private:
    QVariantMap m_entries;
    DuplexHandler m_duplexHandler;
    std::function<void()> m_changeHandler;
};

/// A borrowed reference to a job's print settings; null means that the host has none.
using PMPrintSettings = PrintSettings *;

/// Reads the entry under `key` into `value`.
/// Errors: kPMInvalidObject without settings, kPMKeyNotFound without the entry; `value` is then
/// left as it was.
CORVANA_PLATFORM_EXPORT PMStatus PMPrintSettingsGetValue(PMPrintSettings settings,
                                                         const QString &key, QVariant *value);

/// Writes `value` under `key`. The panels always write unlocked entries (`locked` false); a locked
/// one cannot be expressed here and is logged, and written all the same.
/// Errors: kPMInvalidObject without settings.
CORVANA_PLATFORM_EXPORT PMStatus PMPrintSettingsSetValue(PMPrintSettings settings,
                                                         const QString &key, const QVariant &value,
                                                         bool locked);

/// Asks for one-sided or two-sided printing. The host changes its mark of the PPD's two-sided
/// option and its own controls.
/// Errors: kPMInvalidObject without settings or for a mode that does not exist.
CORVANA_PLATFORM_EXPORT PMStatus PMSetDuplex(PMPrintSettings settings, int mode);

} // namespace corvana
