#pragma once

#include <QObject>
#include <QString>
#include <QVariant>
#include <QVariantMap>

#include "platform/PlatformExport.h"

namespace corvana {

/// The observable map to which the controls of an interface file are bound by key: enabled states,
/// visibility, item texts, numbers of sliders and fields.
///
/// Ownership: created by the interface loader with the view and owned by it; panels hold a weak
/// reference, and without a view there is no dictionary and every write is skipped by its caller.
class CORVANA_PLATFORM_EXPORT BindingDictionary : public QObject
{
    Q_OBJECT

public:
    explicit BindingDictionary(QObject *parent = nullptr);

    /// The value under `key`; invalid when nothing was written yet.
    QVariant value(const QString &key) const { return m_values.value(key); }
    bool contains(const QString &key) const { return m_values.contains(key); }

    /// Writes `value` and applies it to every bound control at once, also when it equals the old
    /// one: the control may show something else by now.
    void setValue(const QString &key, const QVariant &value);

Q_SIGNALS:
    void valueWritten(const QString &key, const QVariant &value);

private:
    QVariantMap m_values;
};

} // namespace corvana
