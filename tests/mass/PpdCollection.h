#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace corvana::test {

/// A PPD by the name that a report calls it.
struct NamedPpd
{
    QString name;
    QByteArray content;
};

/// The PPDs that a collection names; they are read one by one, since some hold thousands.
class PpdCollection
{
public:
    /// A folder with everything below it, or a driver of CUPS that writes its PPDs itself (a
    /// program that knows "list" and "cat"). Errors: throws std::runtime_error.
    explicit PpdCollection(const QString &place);

    qsizetype size() const { return m_names.size(); }
    /// Errors: throws std::runtime_error when it cannot be read.
    NamedPpd at(qsizetype index) const;

private:
    QString m_driver; // empty for a folder
    QStringList m_names;
};

} // namespace corvana::test
