#include "platform/toolkit/RadioMatrix.h"

#include <QRadioButton>
#include <QVBoxLayout>

#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/ProgrammaticChange.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {
constexpr char kRepresentedObject[] = "representedObject";
}

RadioMatrix::RadioMatrix(QWidget *parent) : QWidget(parent), m_layout(new QVBoxLayout(this))
{
    setAccessibleRole(this, QAccessible::Grouping);
    m_layout->setContentsMargins(0, 0, 0, 0);
}

void RadioMatrix::setNumberOfRows(int rows)
{
    while (numberOfRows() > qMax(rows, 0))
        removeRow(numberOfRows() - 1);
    while (numberOfRows() < rows)
        addRow();
}

void RadioMatrix::addRow()
{
    auto *cell = new QRadioButton(this);
    connect(cell, &QRadioButton::toggled, this, [this, cell](bool on) {
        if (on)
            cellToggled(cell);
    });
    connect(cell, &QRadioButton::clicked, this, [this, cell] { cellClicked(cell); });
    m_cells.push_back(cell);
    m_layout->addWidget(cell);
    if (focusProxy() == nullptr)
        setFocusProxy(cell); // so that a label's buddy shortcut reaches the buttons
}

void RadioMatrix::removeRow(int row)
{
    if (row < 0 || row >= numberOfRows())
        return;
    const ProgrammaticChange change;
    QRadioButton *cell = m_cells.at(static_cast<size_t>(row));
    m_cells.erase(m_cells.begin() + row);
    m_reported.forget(cell);
    if (focusProxy() == cell)
        setFocusProxy(m_cells.empty() ? nullptr : m_cells.front());
    // The row may be removed by what its own button just set off, so the button itself goes later.
    cell->disconnect(this);
    cell->hide();
    cell->deleteLater();
}

QString RadioMatrix::cellTitle(int row) const
{
    const QRadioButton *button = cell(row);
    return button ? button->text().replace(u"&&"_s, u"&"_s) : QString();
}

void RadioMatrix::setCellTitle(int row, const QString &title)
{
    // A printer's own text is no place for keyboard mnemonics.
    if (QRadioButton *button = cell(row))
        button->setText(withoutMnemonic(title));
}

QVariant RadioMatrix::representedObject(int row) const
{
    const QRadioButton *button = cell(row);
    return button ? button->property(kRepresentedObject) : QVariant();
}

void RadioMatrix::setRepresentedObject(int row, const QVariant &object)
{
    if (QRadioButton *button = cell(row))
        button->setProperty(kRepresentedObject, object);
}

int RadioMatrix::selectedRow() const
{
    for (int row = 0; row < numberOfRows(); ++row) {
        if (cell(row)->isChecked())
            return row;
    }
    return -1;
}

void RadioMatrix::selectRow(int row)
{
    const ProgrammaticChange change;
    for (QRadioButton *button : m_cells) {
        // An exclusive button cannot be switched off, only replaced.
        button->setAutoExclusive(false);
        button->setChecked(false);
        button->setAutoExclusive(true);
    }
    if (QRadioButton *button = cell(row))
        button->setChecked(true);
}

QRadioButton *RadioMatrix::cell(int row) const
{
    return row >= 0 && row < numberOfRows() ? m_cells.at(static_cast<size_t>(row)) : nullptr;
}

void RadioMatrix::cellToggled(QRadioButton *cell)
{
    if (ProgrammaticChange::isInProgress())
        return;
    m_reported.report(cell, [this, cell] { Q_EMIT activated(rowOf(cell)); });
}

void RadioMatrix::cellClicked(QRadioButton *cell)
{
    if (!m_reported.endsReportedAct(cell))
        Q_EMIT activated(rowOf(cell));
}

int RadioMatrix::rowOf(const QRadioButton *cell) const
{
    for (int row = 0; row < numberOfRows(); ++row) {
        if (m_cells.at(static_cast<size_t>(row)) == cell)
            return row;
    }
    return -1;
}

} // namespace corvana
