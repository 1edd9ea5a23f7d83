#pragma once

#include <QDialog>
#include <QHash>
#include <QList>

#include "dialog/task/OtherQueues.h"

class QLabel;
class QListWidget;

namespace corvana {

/// Asks on which printers other programs are to have a preset, each with a tick: the one that is
/// open first, then others. It changes nothing: picks() is what was ticked when it was accepted.
class InstancePrinters : public QDialog
{
    Q_OBJECT

public:
    /// Whether a queue is ticked, by its name.
    using Picks = QHash<QString, bool>;

    /// `queues`: with the open one in front.
    InstancePrinters(const QList<OtherQueue> &queues, const Picks &picks,
                     QWidget *parent = nullptr);

    Picks picks() const;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void addRow(const OtherQueue &queue, bool isTicked);
    void showRemark(int row);
    void makeRoom();

    const QList<OtherQueue> m_queues;
    QListWidget *m_list;
    QLabel *m_remark;
};

} // namespace corvana
