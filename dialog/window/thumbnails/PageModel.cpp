#include "dialog/window/thumbnails/PageModel.h"

#include <QLocale>

#include "platform/foundation/ForeignText.h"

namespace corvana {

void PageModel::setPages(const ChoosablePages &pages)
{
    beginResetModel();
    m_documents = pages.documents;
    m_rows.clear();
    for (int i = 0; i < m_documents.size(); ++i) {
        ChoosableDocument &document = m_documents[i];
        document.title = terminalLine(document.title);
        const bool hasRoom = document.pages <= kMostRows - m_rows.size();
        if (!hasRoom)
            document.reason = tr("It has %L1 pages, too many to be shown here. They can be typed.")
                                  .arg(document.pages);
        if (m_documents.size() > 1 || !document.reason.isEmpty())
            m_rows += Row{i, 0};
        for (int page = 1; hasRoom && page <= document.pages; ++page)
            m_rows += Row{i, page};
    }
    endResetModel();
}

void PageModel::describe(const DescribedPages &pages)
{
    m_described.insert(pages.file, pages);
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {SizeRole, LabelRole});
}

void PageModel::setTicks(const PageTicks &ticks)
{
    if (ticks == m_ticks)
        return;
    m_ticks = ticks;
    ticksChanged();
}

void PageModel::ticksChanged()
{
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::CheckStateRole});
}

void PageModel::tickRun(const QModelIndex &one, const QModelIndex &other, bool ticks)
{
    const int first = qMin(one.row(), other.row());
    const int last = qMax(one.row(), other.row());
    PageTicks ticked = m_ticks;
    for (int row = first; row >= 0 && row <= last && row < m_rows.size(); ++row)
        ticked.tick(m_rows.at(row).page, ticks);
    if (ticked == m_ticks)
        return;
    m_ticks = ticked;
    ticksChanged();
    Q_EMIT this->ticked();
}

int PageModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QString PageModel::label(const Row &row) const
{
    const auto described = m_described.constFind(m_documents.at(row.document).file);
    return described == m_described.cend() ? QString() : described->labels.value(row.page - 1);
}

QString PageModel::accessibleText(const Row &row) const
{
    const QString number = QLocale().toString(row.page);
    const QString own = label(row);
    QString page = own.isEmpty() ? tr("Page %1").arg(number) : tr("Page %1 (%2)").arg(number, own);
    if (m_documents.size() > 1)
        page = tr("%1 of %2").arg(page, m_documents.at(row.document).title);
    return m_ticks.isTicked(row.page) ? tr("%1, chosen").arg(page) : tr("%1, not chosen").arg(page);
}

QVariant PageModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return {};
    const Row &row = m_rows.at(index.row());
    const ChoosableDocument &document = m_documents.at(row.document);
    const bool isPage = row.page > 0;
    switch (role) {
    case PageRole:
        return row.page;
    case ReasonRole:
        return isPage ? QString() : document.reason;
    case FileRole:
        return isPage ? document.file : QString();
    case Qt::DisplayRole:
        return isPage ? QString::number(row.page) : document.title;
    case Qt::AccessibleTextRole:
        return isPage ? accessibleText(row) : document.title;
    default:
        break;
    }
    if (!isPage)
        return {};
    switch (role) {
    case Qt::CheckStateRole:
        return m_ticks.isTicked(row.page) ? Qt::Checked : Qt::Unchecked;
    case LabelRole:
        return label(row);
    case SizeRole:
        return m_described.value(document.file).sizes.value(row.page - 1);
    default:
        return {};
    }
}

bool PageModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || index.data(PageRole).toInt() == 0)
        return false;
    tickRun(index, index, value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags PageModel::flags(const QModelIndex &index) const
{
    if (index.data(PageRole).toInt() == 0)
        return Qt::ItemNeverHasChildren;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
           Qt::ItemNeverHasChildren;
}

} // namespace corvana
