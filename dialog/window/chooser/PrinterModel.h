#pragma once

#include <memory>
#include <vector>

#include <QAbstractListModel>
#include <QPersistentModelIndex>

#include "dialog/printers/PrinterId.h"
#include "dialog/window/chooser/PrinterIcon.h"
#include "dialog/window/chooser/PrinterTexts.h"

namespace corvana {

/// The printers to choose from, in the order of the list that was set last. Each list is taken over
/// by its difference to the one before, so that the selection, the scroll position and an open list
/// of a view live on.
class PrinterModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Beside Qt's own: display, decoration, tool tip (markup, escaped) and accessible text.
    enum Role {
        PrinterRole = Qt::UserRole, ///< the Printer
        LocationRole,
        StateTextRole,
        DetailRole, ///< location and state
        GoneRole,   ///< true for a kept printer that the last list lacked
    };

    explicit PrinterModel(QObject *parent = nullptr);
    ~PrinterModel() override;

    /// Takes the list over. Its order becomes that of the rows; a printer that is in it twice has
    /// two rows. What this changes in a view is no act of the user. Costs no more than sorting the
    /// two lists, whatever comes and goes.
    void setPrinters(const QList<Printer> &printers);

    /// Keeps the printer of this row, or of none (-1), when a later list lacks it: it stays where
    /// it was, as one that is gone, until another one is kept or it is listed again.
    void keep(int row);

    /// Where the pictures of the printers come from; at first they are our own.
    void setIconSource(IconSource source);

    /// Range: an existing row.
    const Printer &printer(int row) const;
    /// Range: an existing row.
    bool isGone(int row) const;
    /// The row of a printer, or -1.
    int rowOf(const PrinterId &id) const;
    /// Name, description and location as a search sees them (foldedForSearch()).
    /// Range: an existing row.
    const QString &searchKey(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

Q_SIGNALS:
    /// Before and after all the changes of one list.
    void aboutToUpdate();
    void updated();

private:
    struct Key;
    struct Row;
    using Rows = std::vector<std::unique_ptr<Row>>;
    using Positions = QHash<Key, int>;

    friend size_t qHash(const Key &key, size_t seed);

    static Rows rowsFor(const QList<Printer> &printers);
    static Positions positionsIn(const Rows &rows);
    void addKeptTo(Rows &wanted) const;
    void removeAllBut(const Positions &wanted);
    void reorder(const Positions &wanted);
    template <typename Before> void sortRows(Before before);
    void change(const Positions &positions, const Rows &wanted);
    void insertFrom(Rows &wanted, const Positions &positions);
    void dropGone();
    Presence presence(int row) const;

    Rows m_rows;
    QPersistentModelIndex m_kept;
    IconSource m_iconSource = IconSource::Own;
};

} // namespace corvana
