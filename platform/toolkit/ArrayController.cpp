#include "platform/toolkit/ArrayController.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QStackedWidget>
#include <QTableView>

#include "platform/toolkit/PlainText.h"

namespace corvana {

namespace {
constexpr int kRowMargin = 8; // pixels above and below a label, together
}

ArrayController::ArrayController(QObject *parent) : QAbstractListModel(parent) {}

void ArrayController::addObject(const QVariantMap &row)
{
    const int index = static_cast<int>(m_rows.size());
    beginInsertRows({}, index, index);
    m_rows += row;
    endInsertRows();
    if (m_selectsInserted)
        setSelectionIndex(index);
}

bool ArrayController::setSelectionIndex(int index)
{
    if (index < 0 || index >= m_rows.size())
        return false;
    if (index != m_selected) {
        m_selected = index;
        Q_EMIT selectionChanged(index);
    }
    return true;
}

void ArrayController::bindTable(QTableView *table)
{
    table->setModel(this);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setTabKeyNavigation(false); // the key leads on to the controls of the selected row
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->horizontalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->verticalHeader()->hide();
    table->verticalHeader()->setMinimumSectionSize(0);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + kRowMargin);
    const auto fit = [this, table] {
        const int rows = rowCount() * table->verticalHeader()->defaultSectionSize();
        table->setMinimumHeight(rows + 2 * table->frameWidth());
    };
    connect(this, &ArrayController::rowsInserted, table, fit);
    fit();
    const auto show = [this, table] { table->setCurrentIndex(index(m_selected)); };
    connect(this, &ArrayController::selectionChanged, table, show);
    show();
    connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) { setSelectionIndex(current.row()); });
}

void ArrayController::bindPages(QStackedWidget *pages)
{
    const auto show = [this, pages] {
        const QString id = m_rows.value(m_selected).value(kId).toString();
        QWidget *unnamed = nullptr;
        for (int i = 0; i < pages->count(); ++i) {
            QWidget *page = pages->widget(i);
            if (!id.isEmpty() && page->objectName() == id)
                return pages->setCurrentWidget(page);
            if (page->objectName().isEmpty())
                unnamed = page;
        }
        if (unnamed)
            pages->setCurrentWidget(unnamed);
    };
    connect(this, &ArrayController::selectionChanged, pages, show);
    show();
}

int ArrayController::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ArrayController::data(const QModelIndex &index, int role) const
{
    const QVariant label = m_rows.value(index.row()).value(kLabel);
    switch (role) {
    case Qt::DisplayRole:
        return label;
    case Qt::ToolTipRole: // the label is cut where the table is narrow
        return plainToolTip(label.toString());
    default:
        return {};
    }
}

} // namespace corvana
