#include "dialog/window/find/FindPopup.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QTimer>
#include <QVBoxLayout>

#include "dialog/window/find/FindRowDelegate.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/RowKeys.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostRows = 7;
constexpr int kWidth = 30;  // heights of the font
constexpr int kPause = 700; // milliseconds without another letter until the number is read out

} // namespace

FindPopup::FindPopup(QWidget *window) : QFrame(window), m_model(new FindModel(this))
{
    setObjectName(u"findPopup"_s);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    setFocusPolicy(Qt::NoFocus);
    build();
    hide();
}

void FindPopup::build()
{
    m_list = new QListView(this);
    m_list->setObjectName(u"foundSettings"_s);
    m_list->setAccessibleName(tr("Settings that were found"));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setFocusPolicy(Qt::NoFocus); // the field has it and passes the keys on
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setUniformItemSizes(true);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMouseTracking(true);
    m_list->setItemDelegate(new FindRowDelegate(this));
    m_list->setModel(m_model);
    m_note = plainLabel({}, this);
    m_note->setObjectName(u"findNote"_s);
    m_note->setWordWrap(true);
    m_note->setMargin(fontMetrics().height() / 4);
    m_note->setIndent(fontMetrics().height() / 4);
    m_layout = new QVBoxLayout(this);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_list, 1);
    m_layout->addWidget(m_note);
    connect(m_list, &QListView::clicked, this,
            [this](const QModelIndex &index) { Q_EMIT picked(index.row()); });
    // As in a menu, the row below the pointer is the one that a click would pick.
    connect(m_list, &QListView::entered, this,
            [this](const QModelIndex &index) { highlight(index.row()); });
}

void FindPopup::setField(QLineEdit *field)
{
    if (field)
        m_layout->insertWidget(0, field);
}

void FindPopup::setResults(const QList<FindResult> &results)
{
    m_model->setResults(results);
    m_list->setVisible(!results.isEmpty());
    m_note->setForegroundRole(QPalette::PlaceholderText);
    m_note->setText(results.size() == 1
                        ? tr("1 setting found")
                        : tr("%1 settings found").arg(QLocale().toString(results.size())));
    highlight(0);
    m_list->scrollToTop();
    sayCount();
}

void FindPopup::setNothing(const QString &text)
{
    m_model->setResults({});
    m_list->hide();
    m_note->setForegroundRole(QPalette::Text); // there is nothing else to read
    m_note->setText(text);
    sayCount();
}

// After a pause, so that the number does not interrupt what is read of the letters.
void FindPopup::sayCount()
{
    const int said = ++m_saying;
    QTimer::singleShot(kPause, this, [this, said] {
        if (said != m_saying || !isVisible())
            return;
        announce(this, m_note->text());
    });
}

void FindPopup::openAbove(const QWidget *anchor)
{
    const QWidget *window = parentWidget();
    const QRect field(anchor->mapTo(window, QPoint(0, 0)), anchor->size());
    const int width =
        qMin(qMax(kWidth * fontMetrics().height(), field.width()), window->width() - 2);
    m_layout->activate();
    const int rowHeight = FindRowDelegate::rowHeight(m_list);
    int others = 2 * frameWidth() + m_note->heightForWidth(width - 2 * frameWidth());
    if (m_layout->itemAt(0)->widget() != m_list)
        others += m_layout->itemAt(0)->sizeHint().height();
    const int room = field.top() - others;
    const int rows = qMin(qMin(m_model->rowCount(), kMostRows), qMax(1, room / qMax(1, rowHeight)));
    const int height = others + rows * rowHeight;
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const int left = mirrored ? field.right() + 1 - width : field.left();
    setGeometry(qBound(1, left, qMax(1, window->width() - 1 - width)), field.top() - height, width,
                height);
    show();
    raise();
}

int FindPopup::highlighted() const
{
    return isVisible() ? m_list->currentIndex().row() : -1;
}

void FindPopup::highlight(int row)
{
    const QModelIndex index = m_model->index(row, 0);
    if (!index.isValid())
        return;
    m_list->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    // The view says this itself only while it has the focus.
    QAccessibleEvent event(m_list, QAccessible::Focus);
    event.setChild(row);
    QAccessible::updateAccessibility(&event);
}

void FindPopup::move(int key)
{
    const int page = qMax(1, m_list->viewport()->height() / FindRowDelegate::rowHeight(m_list));
    const int row = m_list->currentIndex().row();
    if (const auto next = rowAfterKey(key, row, m_model->rowCount() - 1, page)) {
        highlight(*next);
        m_list->scrollTo(m_list->currentIndex());
    }
}

} // namespace corvana
