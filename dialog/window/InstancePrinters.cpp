#include "dialog/window/InstancePrinters.h"

#include <algorithm>

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "dialog/window/chooser/PrinterTexts.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr int kFewestRows = 4;
constexpr int kMostRows = 12; // more are scrolled
constexpr int kSpacing = 2;   // so that ticks of small fonts do not touch; in pixels

// Two queues may have one description.
QString textOf(const Printer &printer)
{
    const QString shown = displayName(printer);
    const QString name = plainLine(printer.name);
    return shown == name ? name : u"%1 (%2)"_s.arg(shown, name);
}

} // namespace

InstancePrinters::InstancePrinters(const QList<OtherQueue> &queues, const Picks &picks,
                                   QWidget *parent)
    : QDialog(parent), m_queues(queues), m_list(new QListWidget(this)),
      m_remark(plainLabel({}, this))
{
    setWindowTitle(tr("More Printers"));
    setWindowModality(Qt::WindowModal);
    auto *layout = new QVBoxLayout(this);
    QLabel *intro =
        plainLabel(tr("Other programs have the preset on the &printers that are ticked:"), this);
    intro->setWordWrap(true);
    intro->setBuddy(m_list);
    layout->addWidget(intro);
    m_list->setObjectName(u"instancePrinters"_s);
    m_list->setUniformItemSizes(true);
    m_list->setSpacing(kSpacing);
    for (const OtherQueue &queue : queues)
        addRow(queue, picks.value(queue.printer.name, queue.isThere));
    const int rows = std::clamp(int(queues.size()), kFewestRows, kMostRows);
    const int height = std::max(m_list->sizeHintForRow(0), fontMetrics().height()) + 2 * kSpacing;
    m_list->setMinimumHeight(rows * height + 2 * m_list->frameWidth());
    layout->addWidget(m_list, 1);
    m_remark->setObjectName(u"instanceRemark"_s);
    m_remark->setWordWrap(true);
    // A problem takes two lines or more; the list stays where it is for most of them.
    m_remark->setMinimumHeight(2 * fontMetrics().lineSpacing());
    m_remark->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    layout->addWidget(m_remark);
    auto *buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Horizontal, this);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("OK"));
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    setMinimumWidth(26 * fontMetrics().height());
    connect(m_list, &QListWidget::currentRowChanged, this, &InstancePrinters::showRemark);
    m_list->setCurrentRow(0);
    m_list->setFocus();
}

void InstancePrinters::addRow(const OtherQueue &queue, bool isTicked)
{
    auto *item = new QListWidgetItem(textOf(queue.printer), m_list);
    // Whoever goes there reads why it has no tick.
    if (queue.problem.isEmpty()) {
        item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        item->setCheckState(isTicked ? Qt::Checked : Qt::Unchecked);
    } else {
        item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        item->setForeground(palette().brush(QPalette::Disabled, QPalette::Text));
        item->setData(Qt::AccessibleDescriptionRole, queue.problem);
    }
}

void InstancePrinters::showRemark(int row)
{
    if (row < 0 || row >= m_queues.size())
        return m_remark->clear();
    const OtherQueue &queue = m_queues.at(row);
    m_remark->setText(queue.problem.isEmpty()
                          ? tr("Other programs list it as “%1”.").arg(queue.instance)
                          : queue.problem);
    makeRoom();
}

// Windows do not grow with a text that takes more lines; without this it would cover the list.
void InstancePrinters::makeRoom()
{
    layout()->activate();
    const int needed = layout()->totalHeightForWidth(width());
    setMinimumHeight(needed);
    if (height() < needed)
        resize(width(), needed);
}

void InstancePrinters::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    makeRoom();
}

InstancePrinters::Picks InstancePrinters::picks() const
{
    Picks picks;
    for (int row = 0; row < m_queues.size(); ++row)
        picks.insert(m_queues.at(row).printer.name, m_list->item(row)->checkState() == Qt::Checked);
    return picks;
}

} // namespace corvana
