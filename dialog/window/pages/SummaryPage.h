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

    /// Makes the table, which is no part of a window that is just coming up.
    void build();
    /// The page is built first where it was not yet.
    void setLines(const QList<SummaryLine> &lines);

private:
    QTableWidget *m_table = nullptr;
};

} // namespace corvana
