#include "dialog/window/chooser/PrinterPopup.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "dialog/window/chooser/ElidedLabel.h"
#include "dialog/window/chooser/PrinterIcon.h"
#include "dialog/window/chooser/PrinterModel.h"
#include "dialog/window/chooser/PrinterRowDelegate.h"
#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/RowKeys.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr int kManyPrinters = 12; // more than anybody counts at a glance
constexpr int kFewestRows = 2;    // room for a message where there are fewer
constexpr int kMeasuredRows = 300;

} // namespace

PrinterPopup::PrinterPopup(QWidget *anchor)
    : QFrame(anchor, Qt::Popup), m_anchor(anchor), m_delegate(new PrinterRowDelegate(this))
{
    setObjectName(u"printerPopup"_s);
    setAccessibleName(tr("Printers"));
    setFrameShape(QFrame::StyledPanel);
    setAttribute(Qt::WA_WindowPropagation);
    build();
}

void PrinterPopup::buildField()
{
    m_field = new QLineEdit(this);
    m_field->setObjectName(u"printerSearch"_s);
    m_field->setPlaceholderText(tr("Search by name or location"));
    m_field->setAccessibleName(tr("Search printers"));
    m_field->setClearButtonEnabled(true);
    m_field->addAction(searchIcon(), QLineEdit::LeadingPosition);
    setFieldButtonNames(m_field, QCoreApplication::translate("ClearButton", "Clear"));
    m_field->installEventFilter(this);
    setFocusProxy(m_field);
}

void PrinterPopup::buildList()
{
    m_list = new QListView(this);
    m_list->setObjectName(u"printerList"_s);
    m_list->setAccessibleName(tr("Printers"));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setFocusPolicy(Qt::NoFocus); // the search field has it and passes the keys on
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setUniformItemSizes(true);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMouseTracking(true);
    m_list->setItemDelegate(m_delegate);
    m_list->setModel(&m_search);
    m_nothing = plainLabel({}, this);
    m_nothing->setObjectName(u"noPrinter"_s);
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setForegroundRole(QPalette::PlaceholderText);
    m_nothing->setBackgroundRole(QPalette::Base);
    m_nothing->setAutoFillBackground(true);
    m_area = new QStackedWidget(this);
    m_area->addWidget(m_list);
    m_area->addWidget(m_nothing);
}

void PrinterPopup::build()
{
    buildField();
    buildList();
    m_footer = new PrinterFooterRow(this);
    const int gap = fontMetrics().height() / 2;
    auto *top = new QHBoxLayout;
    top->setContentsMargins(gap / 2, gap / 2, gap / 2, gap / 2);
    top->addWidget(m_field);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(top);
    layout->addWidget(m_area, 1);
    layout->addWidget(m_footer);

    connect(m_field, &QLineEdit::textChanged, this, &PrinterPopup::search);
    connect(m_list, &QListView::clicked, this, &PrinterPopup::pick);
    // As in a menu, the row below the pointer is the one that a click would pick.
    connect(m_list, &QListView::entered, this, &PrinterPopup::highlight);
}

void PrinterPopup::open(PrinterModel *printers, int chosenRow)
{
    m_printers = printers;
    m_chosen = printers->index(chosenRow);
    m_delegate->setChosen(m_chosen);
    m_rowsShown = 0;
    m_search.setPrinters(printers);
    connect(printers, &PrinterModel::aboutToUpdate, this, &PrinterPopup::holdPosition);
    connect(printers, &PrinterModel::updated, this, &PrinterPopup::restorePosition);
    setLayoutDirection(m_anchor->layoutDirection());
    setFont(m_anchor->font());
    m_field->clear();
    updateTexts();
    place();
    show();
    m_field->setFocus(Qt::PopupFocusReason);
    highlight(m_search.mapFromSource(m_chosen));
    m_list->scrollTo(m_list->currentIndex(), QAbstractItemView::PositionAtCenter);
    // The first row in view is a whole one.
    QScrollBar *bar = m_list->verticalScrollBar();
    bar->setValue(bar->value() - bar->value() % m_delegate->rowHeight(m_list));
}

void PrinterPopup::setSearchText(const QString &text)
{
    m_field->setText(text);
}

void PrinterPopup::setFooter(const PrinterFooter &footer)
{
    m_footer->setFooter(footer);
    if (isVisible())
        place();
}

// The number of printers, what there is to say when none is shown, and the owner's text.
void PrinterPopup::updateTexts()
{
    const int all = m_printers ? m_printers->rowCount() : 0;
    const int found = m_search.rowCount();
    m_nothing->setText(all == 0 ? tr("No printer was found") : tr("No printer matches"));
    m_area->setCurrentWidget(found == 0 ? static_cast<QWidget *>(m_nothing) : m_list);
    const QLocale locale;
    if (all <= kManyPrinters)
        return m_footer->setCount({});
    m_footer->setCount(
        m_search.isSearching()
            ? tr("%1 of %2 printers").arg(locale.toString(found), locale.toString(all))
            : tr("%1 printers").arg(locale.toString(all)));
}

int PrinterPopup::usefulWidth() const
{
    const int widest = 40 * fontMetrics().height();
    int width = m_footer->sizeHint().width();
    // Texts are alike; the rest of a long list would only cost time.
    for (int row = 0; row < qMin(m_printers->rowCount(), kMeasuredRows) && width < widest; ++row)
        width = qMax(width, m_delegate->widthFor(displayName(m_printers->printer(row)),
                                                 detailText(m_printers->printer(row)), m_list));
    width += style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2 * frameWidth();
    return qMin(width, widest);
}

// Below the anchor, or above it where there is more room. An open popup only ever grows: a list
// that jumps about below the pointer gets the wrong row picked.
void PrinterPopup::place()
{
    const QRect screen = m_anchor->screen()->availableGeometry();
    const QRect anchor(m_anchor->mapToGlobal(QPoint(0, 0)), m_anchor->size());
    m_rowsShown = qMax(m_rowsShown, qMax(kFewestRows, m_printers->rowCount()));
    const int others =
        layout()->sizeHint().height() - m_area->sizeHint().height() + 2 * frameWidth();
    const int rowHeight = m_delegate->rowHeight(m_list);
    const int below = screen.bottom() - anchor.bottom();
    const int above = anchor.top() - screen.top();
    // Whole rows, as many as there is room for.
    const auto heightWithin = [&](int room) {
        return others + qMin(m_rowsShown, qMax(1, (room - others) / rowHeight)) * rowHeight;
    };
    const int wanted = heightWithin(screen.height() * 2 / 3);
    const bool goesBelow = wanted <= below || below >= above;
    const int height = qMin(wanted, heightWithin(goesBelow ? below : above));
    const int width = qMin(
        screen.width(), qMax(isVisible() ? this->width() : 0, qMax(anchor.width(), usefulWidth())));
    const int left =
        layoutDirection() == Qt::RightToLeft ? anchor.right() + 1 - width : anchor.left();
    setGeometry(qBound(screen.left(), left, screen.right() + 1 - width),
                goesBelow ? anchor.bottom() + 1 : anchor.top() - height, width, height);
}

void PrinterPopup::search(const QString &text)
{
    m_search.setText(text);
    updateTexts();
    highlight(m_search.isSearching() ? m_search.index(0, 0) : m_search.mapFromSource(m_chosen));
    if (m_list->currentIndex().isValid())
        m_list->scrollTo(m_list->currentIndex());
    else
        m_list->scrollToTop();
}

void PrinterPopup::highlight(const QModelIndex &shown)
{
    if (!shown.isValid()) {
        m_list->selectionModel()->clear(); // the current row as well: Enter picks nothing then
        return;
    }
    m_list->selectionModel()->setCurrentIndex(shown, QItemSelectionModel::ClearAndSelect);
    // The view says this itself only while it has the focus.
    QAccessibleEvent event(m_list, QAccessible::Focus);
    event.setChild(shown.row());
    QAccessible::updateAccessibility(&event);
}

void PrinterPopup::holdPosition()
{
    m_highlighted = m_search.mapToSource(m_list->currentIndex());
    const QModelIndex top = m_list->indexAt(QPoint(m_list->viewport()->width() / 2, 0));
    // What the user looks at stays where it is: the highlighted row, or what is in view instead.
    const bool highlightInView =
        m_list->viewport()->rect().intersects(m_list->visualRect(m_list->currentIndex()));
    const QModelIndex still = highlightInView ? m_list->currentIndex() : top;
    m_still = m_search.mapToSource(still);
    m_stillAt = m_list->visualRect(still).top();
}

void PrinterPopup::restorePosition()
{
    updateTexts();
    place();
    // The view moved the highlight of a printer that went to a neighbour, which nobody meant.
    const QModelIndex highlighted = m_search.mapFromSource(m_highlighted);
    if (m_list->currentIndex() != highlighted)
        highlight(highlighted);
    const QModelIndex still = m_search.mapFromSource(m_still);
    m_list->doItemsLayout();
    if (still.isValid()) {
        QScrollBar *bar = m_list->verticalScrollBar();
        bar->setValue(bar->value() + m_list->visualRect(still).top() - m_stillAt);
    }
}

void PrinterPopup::pick(const QModelIndex &shown)
{
    const QPersistentModelIndex row = m_search.mapToSource(shown);
    if (!row.isValid())
        return;
    hide();
    Q_EMIT picked(row.row());
}

bool PrinterPopup::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_field && event->type() == QEvent::KeyPress &&
        handleKey(static_cast<QKeyEvent *>(event)))
        return true;
    return QFrame::eventFilter(watched, event);
}

void PrinterPopup::keyPressEvent(QKeyEvent *event)
{
    if (!handleKey(event))
        QFrame::keyPressEvent(event);
}

void PrinterPopup::moveHighlight(int key)
{
    const int page = qMax(1, m_list->viewport()->height() / m_delegate->rowHeight(m_list));
    const int row = m_list->currentIndex().row(); // -1 where nothing is highlighted
    if (const auto next = rowAfterKey(key, row, m_search.rowCount() - 1, page))
        highlight(m_search.index(*next, 0));
}

bool PrinterPopup::handleKey(QKeyEvent *event)
{
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::AltModifier &&
        (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)) {
        hide();
        return true;
    }
    if (modifiers != Qt::NoModifier)
        return false;
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        moveHighlight(event->key());
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        pick(m_list->currentIndex());
        return true;
    case Qt::Key_Escape:
        if (m_field->text().isEmpty())
            hide();
        else
            m_field->clear();
        return true;
    case Qt::Key_F4:
        hide();
        return true;
    default:
        return false;
    }
}

void PrinterPopup::mousePressEvent(QMouseEvent *event)
{
    const QPoint at = event->globalPosition().toPoint();
    const QRect anchor(m_anchor->mapToGlobal(QPoint(0, 0)), m_anchor->size());
    // The press that closes the list would open it again.
    setAttribute(Qt::WA_NoMouseReplay, anchor.contains(at));
    QFrame::mousePressEvent(event);
}

void PrinterPopup::hideEvent(QHideEvent *event)
{
    QFrame::hideEvent(event);
    if (event->spontaneous() || !m_printers)
        return;
    disconnect(m_printers, nullptr, this, nullptr);
    // A closed list costs nothing when the printers change.
    m_search.setPrinters(nullptr);
    m_search.setText(QString());
    m_printers = nullptr;
    Q_EMIT closed();
}

} // namespace corvana
