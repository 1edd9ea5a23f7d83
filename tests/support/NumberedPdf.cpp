#include "tests/support/NumberedPdf.h"

namespace corvana::test {

namespace {

// Objects 1 and 2 are catalog and page tree, 3 the font, and each page takes two more.
constexpr int kFirstPage = 4;

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
        pdf += "trailer\n<< /Root 1 0 R /Size " + QByteArray::number(m_offsets.size() + 1) +
               " >>\nstartxref\n" + QByteArray::number(m_pdf.size()) + "\n%%EOF\n";
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

} // namespace

QByteArray numberedPdf(const QByteArray &name, const QList<QSizeF> &pages)
{
    const int count = static_cast<int>(pages.size());
    QByteArray kids;
    for (int i = 0; i < count; ++i)
        kids += reference(kFirstPage + 2 * i) + ' ';
    PdfWriter pdf;
    pdf.add("<< /Type /Catalog /Pages 2 0 R >>");
    pdf.add("<< /Type /Pages /Count " + QByteArray::number(count) + " /Kids [ " + kids + "] >>");
    pdf.add("<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>");
    for (int i = 0; i < count; ++i) {
        const QByteArray text = "BT /F 48 Tf 100 " + QByteArray::number(pages.at(i).height() / 2) +
                                " Td (" + name + ' ' + QByteArray::number(i + 1) + ") Tj ET";
        pdf.add("<< /Type /Page /Parent 2 0 R /MediaBox [0 0 " +
                QByteArray::number(pages.at(i).width()) + ' ' +
                QByteArray::number(pages.at(i).height()) +
                "] /Resources << /Font << /F 3 0 R >> >> /Contents " +
                reference(kFirstPage + 2 * i + 1) + " >>");
        pdf.add("<< /Length " + QByteArray::number(text.size()) + " >>\nstream\n" + text +
                "\nendstream");
    }
    return pdf.finished();
}

QByteArray numberedPdf(const QByteArray &name, int pages)
{
    return numberedPdf(name, QList<QSizeF>(pages, kA4));
}

} // namespace corvana::test
