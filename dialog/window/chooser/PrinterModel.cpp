#include "dialog/window/chooser/PrinterModel.h"

#include <algorithm>

#include <QHash>

#include "dialog/window/chooser/PrinterSearch.h"
#include "platform/toolkit/ProgrammaticChange.h"

namespace corvana {

// A list may have a printer twice; the second one is another row than the first.
struct PrinterModel::Key
{
    PrinterId id;
    int occurrence = 0;

    bool operator==(const Key &) const = default;
};

size_t qHash(const PrinterModel::Key &key, size_t seed)
{
    return qHashMulti(seed, key.id, key.occurrence);
}

struct PrinterModel::Row
{
    Key key;
    Printer printer;
    Presence presence = Presence::Listed;
    mutable QString searchKey{}; // empty until somebody searches
};

namespace {

// Each group of rows that comes or goes by itself costs views and proxies the time of all rows. Of
// so many groups one is made, at the end, which is a change of the layout more.
constexpr int kManyGroups = 64;

template <typename IsPart> bool hasManyGroups(int rows, IsPart isPart)
{
    int groups = 0;
    for (int row = 0; row < rows && groups < kManyGroups; ++row) {
        if (isPart(row) && (row == 0 || !isPart(row - 1)))
            ++groups;
    }
    return groups == kManyGroups;
}

} // namespace

PrinterModel::PrinterModel(QObject *parent) : QAbstractListModel(parent) {}

PrinterModel::~PrinterModel() = default;

PrinterModel::Rows PrinterModel::rowsFor(const QList<Printer> &printers)
{
    Rows rows;
    rows.reserve(size_t(printers.size()) + 1);
    QHash<PrinterId, int> seen;
    seen.reserve(printers.size());
    for (const Printer &printer : printers) {
        const PrinterId id = idOf(printer);
        rows.push_back(std::make_unique<Row>(Row{{id, seen[id]++}, printer}));
    }
    return rows;
}

PrinterModel::Positions PrinterModel::positionsIn(const Rows &rows)
{
    Positions positions;
    positions.reserve(qsizetype(rows.size()));
    for (size_t i = 0; i < rows.size(); ++i)
        positions.insert(rows[i]->key, int(i));
    return positions;
}

void PrinterModel::setPrinters(const QList<Printer> &printers)
{
    Q_EMIT aboutToUpdate();
    {
        const ProgrammaticChange change; // views tell of the new numbers of their rows
        Rows wanted = rowsFor(printers);
        addKeptTo(wanted);
        const Positions positions = positionsIn(wanted);
        removeAllBut(positions);
        reorder(positions);
        this->change(positions, wanted);
        insertFrom(wanted, positions);
    }
    Q_EMIT updated();
}

// A kept printer that the list lacks stays behind the one that it stood behind.
void PrinterModel::addKeptTo(Rows &wanted) const
{
    if (!m_kept.isValid())
        return;
    const Positions positions = positionsIn(wanted);
    const Row &kept = *m_rows[size_t(m_kept.row())];
    if (positions.contains(kept.key))
        return;
    int place = 0;
    for (int above = m_kept.row() - 1; above >= 0 && place == 0; --above)
        place = positions.value(m_rows[size_t(above)]->key, -1) + 1;
    wanted.insert(wanted.begin() + place,
                  std::make_unique<Row>(Row{kept.key, kept.printer, Presence::Gone}));
}

void PrinterModel::removeAllBut(const Positions &wanted)
{
    const auto goes = [&](int row) { return !wanted.contains(m_rows[size_t(row)]->key); };
    if (hasManyGroups(int(m_rows.size()), goes)) {
        sortRows([&](const auto &a, const auto &b) {
            return wanted.contains(a->key) && !wanted.contains(b->key);
        });
    }
    for (int last = int(m_rows.size()) - 1; last >= 0; --last) {
        if (!goes(last))
            continue;
        int first = last;
        while (first > 0 && goes(first - 1))
            --first;
        beginRemoveRows({}, first, last);
        m_rows.erase(m_rows.begin() + first, m_rows.begin() + last + 1);
        endRemoveRows();
        last = first;
    }
}

void PrinterModel::reorder(const Positions &wanted)
{
    sortRows(
        [&](const auto &a, const auto &b) { return wanted.value(a->key) < wanted.value(b->key); });
}

// One change of the layout for any number of moves: proxies make nothing else of a move anyway.
template <typename Before> void PrinterModel::sortRows(Before before)
{
    if (std::is_sorted(m_rows.begin(), m_rows.end(), before))
        return;
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList former = persistentIndexList();
    std::vector<const Row *> held;
    for (const QModelIndex &index : former)
        held.push_back(m_rows[size_t(index.row())].get());
    std::stable_sort(m_rows.begin(), m_rows.end(), before);
    QHash<const Row *, int> places;
    for (size_t i = 0; i < m_rows.size(); ++i)
        places.insert(m_rows[i].get(), int(i));
    QModelIndexList now;
    for (const Row *row : held)
        now += index(places.value(row));
    changePersistentIndexList(former, now);
    Q_EMIT layoutChanged();
}

void PrinterModel::change(const Positions &positions, const Rows &wanted)
{
    int first = -1; // of the changed rows in a row
    const int count = int(m_rows.size());
    for (int i = 0; i <= count; ++i) {
        bool changed = false;
        if (i < count) {
            Row &row = *m_rows[size_t(i)];
            const Row &next = *wanted[size_t(positions.value(row.key))];
            changed = row.printer != next.printer || row.presence != next.presence;
            if (changed)
                row = next;
        }
        if (changed && first < 0)
            first = i;
        if (!changed && first >= 0) {
            Q_EMIT dataChanged(index(first), index(i - 1));
            first = -1;
        }
    }
}

// The rows are what is wanted now, in its order, but for those that are new.
void PrinterModel::insertFrom(Rows &wanted, const Positions &positions)
{
    std::vector<bool> isNew(wanted.size(), true);
    for (const auto &row : m_rows)
        isNew[size_t(positions.value(row->key))] = false;
    const auto insert = [&](size_t place, size_t first, size_t end) {
        m_rows.insert(m_rows.begin() + std::ptrdiff_t(place),
                      std::make_move_iterator(wanted.begin() + std::ptrdiff_t(first)),
                      std::make_move_iterator(wanted.begin() + std::ptrdiff_t(end)));
    };
    if (hasManyGroups(int(wanted.size()), [&](int row) { return isNew[size_t(row)]; })) {
        const size_t old = m_rows.size();
        beginInsertRows({}, int(old), int(wanted.size()) - 1);
        for (size_t i = 0; i < wanted.size(); ++i) {
            if (isNew[i])
                insert(m_rows.size(), i, i + 1);
        }
        endInsertRows();
        return reorder(positions);
    }
    for (size_t first = 0; first < wanted.size(); ++first) {
        if (!isNew[first])
            continue;
        size_t end = first + 1;
        while (end < wanted.size() && isNew[end])
            ++end;
        beginInsertRows({}, int(first), int(end) - 1);
        insert(first, first, end);
        endInsertRows();
        first = end - 1;
    }
}

void PrinterModel::keep(int row)
{
    m_kept = index(row);
    // Later: who keeps another printer is in the midst of a change of its own.
    QMetaObject::invokeMethod(this, &PrinterModel::dropGone, Qt::QueuedConnection);
}

void PrinterModel::dropGone()
{
    for (int row = int(m_rows.size()) - 1; row >= 0; --row) {
        if (!isGone(row) || m_kept.row() == row)
            continue;
        Q_EMIT aboutToUpdate();
        {
            const ProgrammaticChange change;
            beginRemoveRows({}, row, row);
            m_rows.erase(m_rows.begin() + row);
            endRemoveRows();
        }
        Q_EMIT updated();
    }
}

const Printer &PrinterModel::printer(int row) const
{
    return m_rows.at(size_t(row))->printer;
}

Presence PrinterModel::presence(int row) const
{
    return m_rows.at(size_t(row))->presence;
}

bool PrinterModel::isGone(int row) const
{
    return presence(row) == Presence::Gone;
}

int PrinterModel::rowOf(const PrinterId &id) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
                                    [&](const auto &row) { return row->key.id == id; });
    return found == m_rows.end() ? -1 : int(found - m_rows.begin());
}

const QString &PrinterModel::searchKey(int row) const
{
    const Row &found = *m_rows.at(size_t(row));
    if (found.searchKey.isEmpty()) {
        const Printer &printer = found.printer;
        // A word has no line break in it, so none is found across two of these.
        found.searchKey =
            foldedForSearch(plainLine(printer.name) + u'\n' + plainLine(printer.description) +
                            u'\n' + plainLine(printer.location));
    }
    return found.searchKey;
}

void PrinterModel::setIconSource(IconSource source)
{
    m_iconSource = source;
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::DecorationRole});
}

int PrinterModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant PrinterModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row &row = *m_rows[size_t(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return displayName(row.printer);
    case Qt::DecorationRole:
        return printerIcon(lookOf(row.printer, row.presence), m_iconSource);
    case Qt::ToolTipRole:
        return printerToolTip(row.printer, row.presence);
    case Qt::AccessibleTextRole:
        return accessibleText(row.printer, row.presence);
    case PrinterRole:
        return QVariant::fromValue(row.printer);
    case LocationRole:
        return plainLine(row.printer.location);
    case StateTextRole:
        return stateText(row.printer, row.presence);
    case DetailRole:
        return detailText(row.printer, row.presence);
    case GoneRole:
        return row.presence == Presence::Gone;
    default:
        return {};
    }
}

} // namespace corvana
