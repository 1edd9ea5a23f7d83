#include "tests/dialog/sheets/TestPdf.h"

namespace corvana::test {

QByteArray pdfOfSizes(const QList<QSizeF> &sizes, const QByteArray &title)
{
    QList<QByteArray> objects{"<< /Type /Catalog /Pages 2 0 R >>",
                              {},
                              "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
                              "<< /Title (" + title + ") >>"};
    QByteArray pages;
    for (const QSizeF &size : sizes) {
        const QByteArray width = QByteArray::number(size.width());
        const QByteArray height = QByteArray::number(size.height());
        const QByteArray content = "BT /F 24 Tf " + QByteArray::number(size.width() / 2) + ' ' +
                                   QByteArray::number(size.height() / 2) + " Td (page" +
                                   QByteArray::number(objects.size() / 2 - 1) + ") Tj ET";
        pages += QByteArray::number(objects.size() + 1) + " 0 R ";
        objects += "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 " + width + ' ' + height +
                   "] /Contents " + QByteArray::number(objects.size() + 2) +
                   " 0 R /Resources << /Font << /F 3 0 R >> >> >>";
        objects += "<< /Length " + QByteArray::number(content.size()) + " >>\nstream\n" + content +
                   "\nendstream";
    }
    objects[1] =
        "<< /Type /Pages /Kids [" + pages + "] /Count " + QByteArray::number(sizes.size()) + " >>";
    QByteArray pdf = "%PDF-1.4\n";
    QByteArray table = "0000000000 65535 f \n";
    for (qsizetype i = 0; i < objects.size(); ++i) {
        table += QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
        pdf += QByteArray::number(i + 1) + " 0 obj\n" + objects.at(i) + "\nendobj\n";
    }
    const QByteArray count = QByteArray::number(objects.size() + 1);
    return pdf + "xref\n0 " + count + '\n' + table + "trailer << /Size " + count +
           " /Root 1 0 R /Info 4 0 R >>\nstartxref\n" + QByteArray::number(pdf.size()) +
           "\n%%EOF\n";
}

} // namespace corvana::test
