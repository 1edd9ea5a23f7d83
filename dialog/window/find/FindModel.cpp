#include "dialog/window/find/FindModel.h"

#include "platform/toolkit/PlainText.h"

namespace corvana {

void FindModel::setResults(const QList<FindResult> &results)
{
    beginResetModel();
    m_results = results;
    endResetModel();
}

int FindModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_results.size());
}

QVariant FindModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const FindResult &result = m_results.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return result.title;
    case ValueRole:
        return result.value;
    case WhereRole:
        return result.where;
    case Qt::AccessibleTextRole:
        return result.value.isEmpty()
                   ? tr("%1, on %2").arg(result.title, result.where)
                   : tr("%1, %2, on %3").arg(result.title, result.value, result.where);
    case Qt::ToolTipRole:
        return plainToolTip(result.title + u'\n' + result.where);
    default:
        return {};
    }
}

} // namespace corvana
