#pragma once

#include <QSortFilterProxyModel>
#include <QStringList>

namespace corvana {

class PrinterModel;

/// A text without what a search overlooks: case, accents, the width of East Asian characters.
QString foldedForSearch(const QString &text);

/// The printers whose name, description or location has all words of a search, in any order of the
/// words; the printers keep theirs.
class PrinterSearch : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit PrinterSearch(QObject *parent = nullptr);

    /// What to show the printers of; null for nothing. Ownership: the caller's.
    void setPrinters(PrinterModel *printers);
    /// Searches for the words of `text`; for a text without words everything is found.
    void setText(const QString &text);
    bool isSearching() const { return !m_words.isEmpty(); }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    PrinterModel *m_printers = nullptr;
    QStringList m_words; // folded
};

} // namespace corvana
