#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QVariantMap>

#include "platform/PlatformExport.h"

class QStackedWidget;
class QTableView;

namespace corvana {

/// An ordered list of rows with at most one row selected, shown by a table and by the pages that
/// belong to the rows. A row is a dictionary: "label" is what the table shows, "id" names the page.
///
/// Ownership: made by the interface loader for its name, and owned by the view.
class CORVANA_PLATFORM_EXPORT ArrayController : public QAbstractListModel
{
    Q_OBJECT

public:
    /// The keys of a row.
    static constexpr QLatin1StringView kLabel{"label"};
    static constexpr QLatin1StringView kId{"id"};

    explicit ArrayController(QObject *parent = nullptr);

    /// Whether a row that is added becomes the selected one. Default: true.
    void setSelectsInsertedObjects(bool selects) { m_selectsInserted = selects; }
    void addObject(const QVariantMap &row);
    const QList<QVariantMap> &arrangedObjects() const { return m_rows; }

    /// The index of the selected row, or -1.
    int selectionIndex() const { return m_selected; }
    /// Selects a row. Errors: false for one that does not exist; the selection stays then.
    bool setSelectionIndex(int index);

    /// Shows the labels in `table`, whose selected row is the selection from now on, and which
    /// keeps room for all of them.
    void bindTable(QTableView *table);
    /// Shows the page of `pages` whose object name is the selected row's "id". Without a selection,
    /// or without such a page, `pages` shows its page without a name, where it has one.
    void bindPages(QStackedWidget *pages);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

Q_SIGNALS:
    void selectionChanged(int index);

private:
    QList<QVariantMap> m_rows;
    int m_selected = -1;
    bool m_selectsInserted = true;
};

} // namespace corvana
