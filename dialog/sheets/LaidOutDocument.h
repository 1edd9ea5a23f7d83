#pragma once

#include <memory>

#include <QList>
#include <QSizeF>
#include <QString>
#include <QTemporaryDir>

#include "dialog/job/PdfPages.h"

namespace corvana {

/// What the layout step of the filter chain has made of one document: a PDF with one page for each
/// side that is printed, in the order of printing. A value that never changes, held by everybody
/// who still shows it; the file goes with the last of them.
class LaidOutDocument
{
public:
    /// `path` is that of a PDF in `folder`, which nobody else writes into. `sides` are its pages,
    /// as far as they were described.
    LaidOutDocument(std::unique_ptr<QTemporaryDir> folder, const QString &path, int count,
                    const QList<PdfPage> &sides);

    /// No other laid-out document ever has the same path while this one lives.
    const QString &path() const { return m_path; }
    /// How many pages the PDF has.
    int count() const { return m_count; }
    /// The size of a page as a PDF reader shows it, which has turned it as the page says. Units:
    /// points. Range of `page`: from 0 on. Errors: the null size where nobody knows.
    QSizeF size(int page) const { return m_sizes.value(page); }

    /// The laid-out document whose pages are the first ones of this one, by its path; empty: none.
    /// To be set before anybody else holds this one.
    const QString &begin() const { return m_begin; }
    void setBegin(const QString &path) { m_begin = path; }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    QString m_begin;
    int m_count;
    QList<QSizeF> m_sizes;
};

} // namespace corvana
