#include "platform/printcore/PrintSettings.h"

#include <QLoggingCategory>

namespace corvana {

Q_LOGGING_CATEGORY(lcPrintCore, "corvana.printcore", QtWarningMsg)

void PrintSettings::setValue(const QString &key, const QVariant &value)
{
    QVariant &entry = m_entries[key];
    // A number and a text, or two numbers of different types, are different entries.
    const bool isSame = entry.metaType() == value.metaType() && entry == value;
    entry = value;
    if (!isSame && m_changeHandler)
        m_changeHandler();
}

PMStatus PMPrintSettingsGetValue(PMPrintSettings settings, const QString &key, QVariant *value)
{
    if (!settings)
        return kPMInvalidObject;
    if (!settings->contains(key))
        return kPMKeyNotFound;
    *value = settings->value(key);
    return kPMNoError;
}

PMStatus PMPrintSettingsSetValue(PMPrintSettings settings, const QString &key,
                                 const QVariant &value, bool locked)
{
    if (!settings)
        return kPMInvalidObject;
    if (locked)
        qCWarning(lcPrintCore) << "print settings entries cannot be locked; written unlocked:"
                               << key;
    settings->setValue(key, value);
    return kPMNoError;
}

PMStatus PMSetDuplex(PMPrintSettings settings, int mode)
{
    if (!settings || mode < kPMDuplexNone || mode > kPMDuplexTumble)
        return kPMInvalidObject;
    if (settings->duplexHandler())
        settings->duplexHandler()(static_cast<PMDuplexMode>(mode));
    else
        qCWarning(lcPrintCore) << "nobody listens to a change of two-sided printing to mode"
                               << mode;
    return kPMNoError;
}

} // namespace corvana
