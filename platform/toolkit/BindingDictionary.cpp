#include "platform/toolkit/BindingDictionary.h"

namespace corvana {

BindingDictionary::BindingDictionary(QObject *parent) : QObject(parent) {}

void BindingDictionary::setValue(const QString &key, const QVariant &value)
{
    m_values.insert(key, value);
    Q_EMIT valueWritten(key, value);
}

} // namespace corvana
