#include "tests/support/NumberedPdf.h"

namespace corvana::test {

namespace {

// Objects 1 and 2 are catalog and page tree, 3 the font, 4 says what the document is called, and
// each page takes two more.
constexpr int kFirstPage = 5;

class PdfWriter
{
public:
    void add(const QByteArray &object)
    {
        m_offsets += m_pdf.size();
        m_pdf += QByteArray::number(m_offsets.size()) + " 0 obj\n" + object + "\nendobj\n";
    }

    QByteArray finished() const
    {
        QByteArray pdf = m_pdf;
        pdf += "xref\n0 " + QByteArray::number(m_offsets.size() + 1) + "\n0000000000 65535 f \n";
        for (const qsizetype offset : m_offsets)
            pdf += QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
        pdf += "trailer\n<< /Root 1 0 R /Info 4 0 R /Size " +
               QByteArray::number(m_offsets.size() + 1) + " >>\nstartxref\n" +
               QByteArray::number(m_pdf.size()) + "\n%%EOF\n";
        return pdf;
    }

private:
    QByteArray m_pdf = "%PDF-1.4\n";
    QList<qsizetype> m_offsets;
};

QByteArray reference(int object)
{
    return QByteArray::number(object) + " 0 R";
}

QByteArray rectangle(const QRectF &rect)
{
    return QByteArray::number(rect.x()) + ' ' + QByteArray::number(rect.y()) + ' ' +
           QByteArray::number(rect.width()) + ' ' + QByteArray::number(rect.height()) + " re ";
}

QByteArray box(const char *name, const QRectF &rect)
{
    return QByteArray("/") + name + " [" + QByteArray::number(rect.left()) + ' ' +
           QByteArray::number(rect.top()) + ' ' + QByteArray::number(rect.right()) + ' ' +
           QByteArray::number(rect.bottom()) + "] ";
}

// Well inside the paper, so that no printer's margins take anything of it.
QByteArray contentOf(const QByteArray &text, const QRectF &page)
{
    constexpr double kInset = 50;
    const QRectF frame = page.adjusted(kInset, kInset, -kInset, -kInset);
    return "2 w " + rectangle(frame) + "S 1 0 0 rg " +
           rectangle({frame.left() + 8, frame.bottom() - 48, 60, 40}) + "f 0 0 1 rg " +
           rectangle({frame.right() - 48, frame.bottom() - 28, 40, 20}) + "f 0 g BT /F 48 Tf 100 " +
           QByteArray::number(page.height() / 2) + " Td (" + text + ") Tj ET";
}

} // namespace

QByteArray numberedPdf(const QByteArray &name, const QList<NumberedPage> &pages,
                       const QByteArray &title)
{
    const int count = static_cast<int>(pages.size());
    QByteArray kids;
    for (int i = 0; i < count; ++i)
        kids += reference(kFirstPage + 2 * i) + ' ';
    PdfWriter pdf;
    pdf.add("<< /Type /Catalog /Pages 2 0 R >>");
    pdf.add("<< /Type /Pages /Count " + QByteArray::number(count) + " /Kids [ " + kids + "] >>");
    pdf.add("<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>");
    pdf.add("<< /Title (" + title + ") >>");
    for (int i = 0; i < count; ++i) {
        const NumberedPage &page = pages.at(i);
        const QByteArray content =
            contentOf(name + ' ' + QByteArray::number(i + 1), QRectF({0, 0}, page.size));
        pdf.add("<< /Type /Page /Parent 2 0 R " + box("MediaBox", QRectF({0, 0}, page.size)) +
                (page.crop.isEmpty() ? QByteArray() : box("CropBox", page.crop)) + "/Rotate " +
                QByteArray::number(page.rotation) +
                " /Resources << /Font << /F 3 0 R >> >> /Contents " +
                reference(kFirstPage + 2 * i + 1) + " >>");
        pdf.add("<< /Length " + QByteArray::number(content.size()) + " >>\nstream\n" + content +
                "\nendstream");
    }
    return pdf.finished();
}

QByteArray numberedPdf(const QByteArray &name, const QList<QSizeF> &sizes, const QByteArray &title)
{
    QList<NumberedPage> pages;
    for (const QSizeF &size : sizes)
        pages += NumberedPage{size};
    return numberedPdf(name, pages, title);
}

QByteArray numberedPdf(const QByteArray &name, int pages)
{
    return numberedPdf(name, QList<NumberedPage>(pages));
}

} // namespace corvana::test
