#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>

namespace corvana {

/// A setting that was found, as a list shows it.
struct FindResult
{
    QString title{}; ///< the setting, or the setting and its choice
    QString value{}; ///< what it is at now; may be empty
    QString where{}; ///< "Print Setting › Advanced Options"

    bool operator==(const FindResult &) const = default;
};

/// The settings that were found, best first.
class FindModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { ValueRole = Qt::UserRole, WhereRole };

    using QAbstractListModel::QAbstractListModel;

    void setResults(const QList<FindResult> &results);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QList<FindResult> m_results;
};

} // namespace corvana
