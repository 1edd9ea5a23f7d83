#pragma once

#include <QAbstractListModel>
#include <QHash>
#include <QList>

#include "dialog/preview/PageDrawer.h"
#include "dialog/sheets/ChoosablePages.h"

namespace corvana {

/// The pages of a job's documents as the rows of a list: each with a tick, its number, and what
/// its document calls it. A row before the pages of a document names it where there are several,
/// and says why its pages cannot be shown.
///
/// A tick is one of a number of a page: it stands at that page of every document.
class PageModel : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Of more pages no list is made: they are typed. All documents together.
    static constexpr int kMostRows = 10'000;

    enum Role {
        PageRole = Qt::UserRole, ///< from 1; 0 for a row that names a document
        FileRole,                ///< of which the page is drawn; empty where none is
        SizeRole,                ///< of the page; null where nobody knows
        LabelRole,               ///< what the document calls the page, where not by its number
        ReasonRole,              ///< why the pages of the document that a row names are not shown
    };

    explicit PageModel(QObject *parent = nullptr) : QAbstractListModel(parent) {}

    void setPages(const ChoosablePages &pages);
    /// What was found out about the pages of a file.
    void describe(const DescribedPages &pages);
    /// Whether that was done; until then no page is drawn in the right proportions.
    bool isDescribed(const QString &file) const { return m_described.contains(file); }

    const PageTicks &ticks() const { return m_ticks; }
    void setTicks(const PageTicks &ticks);
    /// Ticks the pages between two rows as the user does it, or takes their ticks.
    void tickRun(const QModelIndex &one, const QModelIndex &other, bool ticked);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    /// The user has ticked other pages.
    void ticked();

private:
    struct Row
    {
        int document = 0;
        int page = 0;
    };

    QString accessibleText(const Row &row) const;
    QString label(const Row &row) const;
    void ticksChanged();

    QList<ChoosableDocument> m_documents;
    QList<Row> m_rows;
    QHash<QString, DescribedPages> m_described; // by file
    PageTicks m_ticks;
};

} // namespace corvana
