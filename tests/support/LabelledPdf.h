#pragma once

#include <QByteArray>

#include "tests/support/NumberedPdf.h"

namespace corvana::test {

/// A PDF of so many A4 pages that calls them as `labels` says, the entries of a number tree:
/// "0 << /S /r >> 4 << /S /D >>" is i, ii, iii, iv, 1, 2 and so on. They are added to a
/// numberedPdf() as whoever edits a PDF adds something.
inline QByteArray labelledPdf(const QByteArray &name, int pages, const QByteArray &labels)
{
    QByteArray pdf = numberedPdf(name, pages);
    const QByteArray before = pdf.mid(pdf.lastIndexOf("startxref\n") + 10).split('\n').constFirst();
    const QByteArray objects = QByteArray::number(2 * pages + 5);
    const QByteArray catalog = QByteArray::number(pdf.size()).rightJustified(10, '0');
    pdf += "1 0 obj\n<< /Type /Catalog /Pages 2 0 R /PageLabels << /Nums [ " + labels +
           " ] >> >>\nendobj\n";
    const QByteArray table = QByteArray::number(pdf.size());
    pdf += "xref\n1 1\n" + catalog + " 00000 n \ntrailer\n<< /Root 1 0 R /Size " + objects +
           " /Prev " + before + " >>\nstartxref\n" + table + "\n%%EOF\n";
    return pdf;
}

} // namespace corvana::test
