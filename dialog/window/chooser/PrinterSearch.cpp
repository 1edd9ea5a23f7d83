#include "dialog/window/chooser/PrinterSearch.h"

#include <algorithm>

#include "dialog/window/chooser/PrinterModel.h"

namespace corvana {

QString foldedForSearch(const QString &text)
{
    QString folded = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    // The accents of Latin, Greek and Cyrillic. The voicing marks of Japanese, which are combining
    // characters too by now, make another letter.
    folded.removeIf([](QChar unit) { return unit.unicode() >= 0x300 && unit.unicode() <= 0x36f; });
    return folded;
}

PrinterSearch::PrinterSearch(QObject *parent) : QSortFilterProxyModel(parent) {}

void PrinterSearch::setPrinters(PrinterModel *printers)
{
    m_printers = printers;
    setSourceModel(printers);
}

void PrinterSearch::setText(const QString &text)
{
    const QStringList words = foldedForSearch(text).simplified().split(u' ', Qt::SkipEmptyParts);
    if (words == m_words)
        return;
    m_words = words;
    invalidateRowsFilter();
}

bool PrinterSearch::filterAcceptsRow(int row, const QModelIndex &) const
{
    return m_words.isEmpty() ||
           std::all_of(m_words.begin(), m_words.end(), [&](const QString &word) {
               return m_printers->searchKey(row).contains(word);
           });
}

} // namespace corvana
