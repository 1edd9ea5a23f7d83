#pragma once

#include <memory>

#include <QByteArray>
#include <QList>
#include <QStringList>

#include "dialog/policy/Policy.h"

namespace corvana::test {

/// A policy of files of these texts, named "1.conf", "2.conf" and so on, for a user in these
/// groups.
std::shared_ptr<const Policy> policyFrom(const QList<QByteArray> &texts,
                                         const QStringList &groups = {});
inline std::shared_ptr<const Policy> policyFrom(const QByteArray &text,
                                                const QStringList &groups = {})
{
    return policyFrom(QList{text}, groups);
}

/// A queue of that name.
Printer queue(const QString &name);

} // namespace corvana::test
