#include "dialog/window/preview/DocumentArea.h"

#include <QComboBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QListWidget>
#include <QShortcut>
#include <QToolButton>

#include "dialog/window/chooser/ElidedLabel.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostRows = 4; // the rest scrolls: the room belongs to the sheets

} // namespace

DocumentArea::DocumentArea(QWidget *parent)
    : QWidget(parent), m_title(new ElidedLabel(this)), m_list(new QListWidget(this))
{
    m_title->setObjectName(u"document"_s);
    m_title->setMiddleCut();
    buildList();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    buildHeader();
    layout->addWidget(m_list);
    updateButtons();
}

void DocumentArea::buildHeader()
{
    m_up = addButton(u"documentUp"_s, tr("Print this document earlier"));
    m_up->setArrowType(Qt::UpArrow);
    m_down = addButton(u"documentDown"_s, tr("Print this document later"));
    m_down->setArrowType(Qt::DownArrow);
    m_remove = addButton(u"documentRemove"_s, tr("Do not print this document"));
    m_remove->setText(tr("Remove"));
    m_add = addButton(u"documentAdd"_s, tr("Print further documents in the same job"));
    m_add->setText(tr("Add…"));
    auto *header = new QHBoxLayout;
    header->setSpacing(4);
    // As high as the row of the printer beside it.
    header->addStrut(QComboBox().sizeHint().height());
    header->addWidget(m_title, 1);
    for (QToolButton *button : {m_up, m_down, m_remove, m_add})
        header->addWidget(button);
    static_cast<QVBoxLayout *>(layout())->insertLayout(0, header);
    connect(m_up, &QToolButton::clicked, this, [this] { moveCurrent(-1); });
    connect(m_down, &QToolButton::clicked, this, [this] { moveCurrent(1); });
    connect(m_remove, &QToolButton::clicked, this,
            [this] { Q_EMIT removed(m_list->currentRow()); });
    connect(m_add, &QToolButton::clicked, this, &DocumentArea::choose);
}

QToolButton *DocumentArea::addButton(const QString &name, const QString &what)
{
    auto *button = new QToolButton(this);
    button->setObjectName(name);
    setPlainToolTip(button, what);
    button->setAccessibleName(what);
    return button;
}

void DocumentArea::buildList()
{
    m_list->setObjectName(u"documents"_s);
    m_list->setAccessibleName(tr("Documents in the order in which they are printed"));
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setDragDropMode(QAbstractItemView::InternalMove);
    m_list->setUniformItemSizes(true);
    connect(m_list, &QListWidget::currentRowChanged, this, &DocumentArea::updateButtons);
    // Later: the list is in the midst of its drop, and is filled anew by what it causes.
    connect(m_list->model(), &QAbstractItemModel::rowsMoved, this,
            [this](const QModelIndex &, int from, int, const QModelIndex &, int before) {
                const int to = before > from ? before - 1 : before;
                QMetaObject::invokeMethod(
                    this, [this, from, to] { Q_EMIT moved(from, to); }, Qt::QueuedConnection);
            });
    auto *removing =
        new QShortcut(QKeySequence::Delete, m_list, nullptr, nullptr, Qt::WidgetShortcut);
    connect(removing, &QShortcut::activated, this, [this] {
        if (m_remove->isEnabled())
            Q_EMIT removed(m_list->currentRow());
    });
}

void DocumentArea::setDocuments(const QString &title, const QList<ListedDocument> &documents)
{
    m_title->setLine(documents.size() > 1 ? tr("%n documents, printed in this order:", nullptr,
                                               static_cast<int>(documents.size()))
                                          : title);
    if (documents != m_documents) {
        m_documents = documents;
        const int row = m_list->currentRow();
        const QSignalBlocker blocker(m_list);
        m_list->clear();
        for (const ListedDocument &document : documents) {
            auto *item = new QListWidgetItem(tr("%1 (%2)").arg(document.title, document.kind));
            item->setToolTip(plainToolTip(document.place));
            item->setFlags(item->flags() & ~Qt::ItemIsDropEnabled);
            m_list->addItem(item);
        }
        m_list->setCurrentRow(qMin(qMax(0, row), m_list->count() - 1));
    }
    setFolded(m_isFolded);
    m_list->setVisible(documents.size() > 1);
    updateHeight();
    updateButtons();
}

void DocumentArea::updateHeight()
{
    const int rows = qBound(2, m_list->count(), kMostRows);
    const int row = m_list->count() > 0 ? m_list->sizeHintForRow(0) : fontMetrics().height();
    m_list->setFixedHeight(rows * row + 2 * m_list->frameWidth());
}

void DocumentArea::setCanChange(bool canChange)
{
    m_canChange = canChange;
    updateButtons();
}

void DocumentArea::setFolded(bool folded)
{
    m_isFolded = folded;
    setVisible(!folded && !m_documents.isEmpty());
}

void DocumentArea::choose()
{
    const QStringList files = QFileDialog::getOpenFileNames(this, tr("Choose Documents to Print"));
    if (!files.isEmpty())
        Q_EMIT chosen(files);
}

void DocumentArea::moveCurrent(int by)
{
    const int from = m_list->currentRow();
    m_list->setCurrentRow(from + by); // where the document will be
    Q_EMIT moved(from, from + by);
}

void DocumentArea::updateButtons()
{
    const int row = m_list->currentRow();
    const bool several = m_list->count() > 1;
    for (QToolButton *button : {m_up, m_down, m_remove})
        button->setVisible(several);
    m_up->setEnabled(m_canChange && row > 0);
    m_down->setEnabled(m_canChange && row >= 0 && row < m_list->count() - 1);
    m_remove->setEnabled(m_canChange && row >= 0);
    m_add->setEnabled(m_canChange);
    m_list->setDragEnabled(m_canChange);
}

QList<QWidget *> DocumentArea::focusOrder() const
{
    return {m_up, m_down, m_remove, m_add, m_list};
}

} // namespace corvana
