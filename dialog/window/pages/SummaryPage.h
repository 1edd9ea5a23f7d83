#pragma once

#include <QList>
#include <QWidget>

class QTableWidget;

namespace corvana {

struct SummaryLine;

/// All settings of the job, one line each, in display order.
class SummaryPage : public QWidget
{
    Q_OBJECT

public:
    explicit SummaryPage(QWidget *parent = nullptr);

    void setLines(const QList<SummaryLine> &lines);

private:
    QTableWidget *m_table;
};

} // namespace corvana
