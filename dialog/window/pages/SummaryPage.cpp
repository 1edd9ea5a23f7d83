#include "dialog/window/pages/SummaryPage.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

#include "dialog/session/PanelHost.h"

namespace corvana {

using namespace Qt::StringLiterals;

SummaryPage::SummaryPage(QWidget *parent) : QWidget(parent) {}

void SummaryPage::build()
{
    if (m_table)
        return;
    m_table = new QTableWidget(0, 2, this);
    m_table->setObjectName(u"summary"_s);
    m_table->setAccessibleName(tr("Summary"));
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setStretchLastSection(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    setFocusProxy(m_table);
}

void SummaryPage::setLines(const QList<SummaryLine> &lines)
{
    build();
    m_table->setRowCount(static_cast<int>(lines.size()));
    for (int row = 0; row < m_table->rowCount(); ++row) {
        m_table->setItem(row, 0, new QTableWidgetItem(lines.at(row).title));
        m_table->setItem(row, 1, new QTableWidgetItem(lines.at(row).value));
    }
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
}

} // namespace corvana
