#include "dialog/sheets/PassPdf.h"

#include <chrono>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::seconds kPatience{120};
// The system bounds the length of an argument.
constexpr qsizetype kMostPages = 1000;

QByteArray emptyPdf(const QSizeF &paper)
{
    const QByteArray objects[] = {
        "<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Kids[3 0 R]/Count 1>>",
        "<</Type/Page/Parent 2 0 R/MediaBox[0 0 " + QByteArray::number(paper.width(), 'f', 2) +
            ' ' + QByteArray::number(paper.height(), 'f', 2) + "]/Resources<<>>>>"};
    QByteArray pdf = "%PDF-1.4\n";
    QByteArray table = "0000000000 65535 f \n";
    int number = 0;
    for (const QByteArray &object : objects) {
        table += QByteArray::number(pdf.size()).rightJustified(10, '0') + " 00000 n \n";
        pdf += QByteArray::number(++number) + " 0 obj" + object + "endobj\n";
    }
    const QByteArray entries = QByteArray::number(number + 1);
    const QByteArray start = QByteArray::number(pdf.size());
    return pdf + "xref\n0 " + entries + '\n' + table + "trailer<</Size " + entries +
           "/Root 1 0 R>>\nstartxref\n" + start + "\n%%EOF\n";
}

// Makes the arguments of qpdf.
class Arguments
{
public:
    Arguments(const PassSource &source, const QString &folder) : m_source(source), m_folder(folder)
    {
        for (const PassSide &side : source.sides)
            add(side);
        endGroup();
    }

    QStringList pages() const { return m_pages; }
    QList<BlankPage> blanks() const { return m_blanks; }

private:
    const PassSource &m_source;
    QString m_folder;
    QList<BlankPage> m_blanks;
    QStringList m_pages;
    QString m_file; // of the sides that were added last
    QStringList m_numbers;

    void add(const PassSide &side)
    {
        const bool isBlank = side.laidOutPage < 0;
        const QString file =
            isBlank ? blank(side.paper) : m_source.documents.at(side.document)->path();
        if (file != m_file || m_numbers.size() == kMostPages)
            endGroup();
        m_file = file;
        m_numbers += QString::number(isBlank ? 1 : side.laidOutPage + 1);
    }

    void endGroup()
    {
        if (!m_numbers.isEmpty())
            m_pages << m_file << m_numbers.join(u',');
        m_numbers.clear();
    }

    // Of the size of its sheet: the chain looks at all pages before it lays any.
    QString blank(const QSizeF &paper)
    {
        const QByteArray content = emptyPdf(paper);
        for (const BlankPage &blank : std::as_const(m_blanks)) {
            if (blank.content == content)
                return blank.path;
        }
        m_blanks += BlankPage{u"%1/blank-%2.pdf"_s.arg(m_folder, QString::number(m_blanks.size())),
                              content};
        return m_blanks.constLast().path;
    }
};

// Which pages are turned: "1-4,7", some of them in an argument.
QStringList turns(const QList<PassSide> &sides)
{
    QStringList arguments;
    QStringList ranges;
    const auto end = [&] {
        if (!ranges.isEmpty())
            arguments += u"--rotate=+180:"_s + ranges.join(u',');
        ranges.clear();
    };
    for (qsizetype i = 0; i < sides.size(); ++i) {
        if (!sides.at(i).isTurned)
            continue;
        const qsizetype first = i;
        while (i + 1 < sides.size() && sides.at(i + 1).isTurned)
            ++i;
        ranges += u"%1-%2"_s.arg(QString::number(first + 1), QString::number(i + 1));
        if (ranges.size() == kMostPages)
            end();
    }
    end();
    return arguments;
}

} // namespace

PassPdfPlan planPassPdf(const PassSource &source, const QString &folder, const QString &output)
{
    const Arguments arguments(source, folder);
    FilterStep step;
    step.program = u"qpdf"_s;
    // Many documents may be more files than can be open at once.
    step.arguments = QStringList{u"--no-warn"_s, u"--warning-exit-0"_s, u"--empty"_s,
                                 u"--keep-files-open=n"_s, u"--pages"_s} +
                     arguments.pages() + QStringList{u"--"_s} + turns(source.sides) +
                     QStringList{output};
    step.output = output;
    step.outputName = output;
    step.writes = FilterStep::Writes::FileOfItsOwn;
    step.patience = kPatience;
    return {arguments.blanks(), {step}};
}

} // namespace corvana
