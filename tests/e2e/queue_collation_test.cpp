#include <QFile>
#include <QProcess>
#include <QTest>

#include "tests/e2e/QueueRuns.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/PrintedSides.h"
#include "tests/support/Rows.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kQueue = u"office"_s;
const QString kTitle = u"letters"_s;

// The printer's own collation, which is there as soon as it has a disk. It has none.
constexpr QByteArrayView kExcluded = "*OpenGroup: InstallableOptions/Installed\n"
                                     "*OpenUI *Disk/Disk: Boolean\n"
                                     "*DefaultDisk: False\n"
                                     "*Disk True/Installed: \"\"\n"
                                     "*Disk False/Not Installed: \"\"\n"
                                     "*CloseUI: *Disk\n"
                                     "*CloseGroup: InstallableOptions\n"
                                     "*OpenUI *Collate/Collate: Boolean\n"
                                     "*OrderDependency: 30 AnySetup *Collate\n"
                                     "*DefaultCollate: False\n"
                                     "*Collate True/On: \"<</Collate true>> setpagedevice\"\n"
                                     "*Collate False/Off: \"<</Collate false>> setpagedevice\"\n"
                                     "*CloseUI: *Collate\n"
                                     "*UIConstraints: *Disk False *Collate True\n"
                                     "*UIConstraints: *Collate True *Disk False\n";
// CUPS' filters know no such choices.
constexpr QByteArrayView kOnOff = "*OpenUI *Collate/Collate: PickOne\n"
                                  "*OrderDependency: 30 AnySetup *Collate\n"
                                  "*DefaultCollate: Off\n"
                                  "*Collate On/On: \"<</Collate true>> setpagedevice\"\n"
                                  "*Collate Off/Off: \"<</Collate false>> setpagedevice\"\n"
                                  "*CloseUI: *Collate\n";

enum class Takes { PostScript, Pdf };

struct Wish
{
    const char *name;
    QByteArray collation; ///< of the PPD
    Takes takes;
    const char *document; ///< "three.pdf", "three.ps"
    QString option;       ///< empty: nobody says anything
    bool isCollated;
    QString lp; ///< with which lp gets the same
};

const QList<Wish> &wishes()
{
    static const QList<Wish> all = [] {
        const QByteArray excluded = kExcluded.toByteArray();
        const QByteArray enabled =
            QByteArray(excluded).replace("*DefaultDisk: False", "*DefaultDisk: True");
        const QByteArray onOff = kOnOff.toByteArray();
        const QString on = u"collate=true"_s;
        const QString off = u"collate=false"_s;
        return QList<Wish>{
            {"by default", excluded, Takes::PostScript, "three.pdf", {}, true, on},
            {"PostScript", excluded, Takes::PostScript, "three.ps", {}, true, on},
            {"asked for", excluded, Takes::PostScript, "three.pdf", on, true, on},
            {"by the option's name", excluded, Takes::PostScript, "three.pdf", u"Collate=True"_s,
             true, on},
            {"by the name of IPP", excluded, Takes::PostScript, "three.pdf",
             u"multiple-document-handling=separate-documents-collated-copies"_s, true, on},
            {"not wanted", excluded, Takes::PostScript, "three.pdf", off, false, off},
            {"not wanted, PostScript", excluded, Takes::PostScript, "three.ps", off, false, off},
            {"not wanted, by the option's name", excluded, Takes::PostScript, "three.pdf",
             u"Collate=False"_s, false, off},
            {"a printer of PDF", excluded, Takes::Pdf, "three.pdf", {}, true, on},
            {"a printer of PDF, not wanted", excluded, Takes::Pdf, "three.pdf", off, false, off},
            {"on and off", onOff, Takes::PostScript, "three.pdf", {}, true, on},
            {"on and off, PostScript", onOff, Takes::PostScript, "three.ps", u"Collate=On"_s, true,
             on},
            {"on and off, not wanted", onOff, Takes::PostScript, "three.pdf", u"Collate=Off"_s,
             false, off},
            {"with a disk", enabled, Takes::PostScript, "three.pdf", {}, true, u"Collate=True"_s},
        };
    }();
    return all;
}

/// A queue that adds an order of copies to each job, and what a job says itself.
struct Added
{
    const char *name;
    QString byQueue; ///< a default, as lpadmin takes it
    QString option;  ///< empty: nobody says anything
    int copies;
    bool isCollated;
};

const QString kSetsByIpp =
    u"multiple-document-handling-default=separate-documents-collated-copies"_s;
const QString kPagesByIpp =
    u"multiple-document-handling-default=separate-documents-uncollated-copies"_s;

const QList<Added> kAdded{
    {"in sets, and nobody objects", u"collate-default=true"_s, {}, 2, true},
    {"in sets, not wanted", u"collate-default=true"_s, u"collate=false"_s, 2, false},
    {"in sets, not wanted by the option", u"collate-default=true"_s, u"Collate=False"_s, 2, false},
    {"by pages", u"collate-default=false"_s, {}, 2, false},
    {"by pages, not wanted", u"collate-default=false"_s, u"collate=true"_s, 2, true},
    {"by pages, one copy", u"collate-default=false"_s, {}, 1, false},
    {"by pages, not wanted of one copy", u"collate-default=false"_s, u"collate=true"_s, 1, true},
    {"in sets, in words of IPP", kSetsByIpp, {}, 2, true},
    {"in sets, in words of IPP, not wanted", kSetsByIpp, u"collate=false"_s, 2, false},
    {"by pages, in words of IPP", kPagesByIpp, {}, 2, false},
    {"by pages, in words of IPP, not wanted", kPagesByIpp, u"collate=true"_s, 2, true},
    {"in words that are not known", u"multiple-document-handling-default=single-document"_s,
     u"collate=false"_s, 2, false},
};

/// Two-sided copies of a printer that makes none.
struct Forced
{
    const char *name;
    QStringList options;
    QStringList documents;
    QString copies; ///< what the summary says
    QString sides;  ///< with the copies, which the filters make
};

const QList<Forced> kForced{
    {"on both sides",
     {u"sides=two-sided-long-edge"_s, u"collate=false"_s},
     {u"three"_s},
     u"2, collated (two-sided copies are always collated on this printer)"_s,
     u"three 1, three 2, three 3, , three 1, three 2, three 3"_s},
    {"several on both sides",
     {u"sides=two-sided-long-edge"_s, u"collate=false"_s},
     {u"three"_s, u"one"_s},
     u"2, collated (two-sided copies are always collated on this printer)"_s,
     u"three 1, three 2, three 3, one 1, three 1, three 2, three 3, one 1"_s},
    {"as usual",
     {u"sides=two-sided-long-edge"_s},
     {u"three"_s},
     u"2, collated"_s,
     u"three 1, three 2, three 3, , three 1, three 2, three 3"_s},
    {"on one side",
     {u"collate=false"_s},
     {u"three"_s},
     u"2, not collated"_s,
     u"three 1, three 1, three 2, three 2, three 3, three 3"_s},
};

QByteArray threePages()
{
    QByteArray text = "%!PS-Adobe-3.0\n%%Pages: 3\n%%EndComments\n";
    for (int page = 1; page <= 3; ++page) {
        const QByteArray number = QByteArray::number(page);
        text += "%%Page: " + number + ' ' + number +
                "\n/Helvetica findfont 40 scalefont setfont 72 500 moveto (three " + number +
                ") show showpage\n";
    }
    return text + "%%EOF\n";
}

} // namespace

/// Several copies on printers whose own collation is not to be had: CUPS' filters make them, and
/// what is said is what comes out.
class QueueCollationTest : public QueueRuns
{
    Q_OBJECT

private:
    QString write(const QString &name, const QByteArray &content) const
    {
        QFile file(m_runner->filePath(name));
        [&] {
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        }();
        return file.fileName();
    }
    QString ppdOf(const Wish &wish) const
    {
        QByteArray text = readAll(kPpd) + wish.collation;
        if (wish.takes == Takes::Pdf)
            text.replace("application/vnd.cups-postscript application/postscript 0 -",
                         "application/vnd.cups-pdf application/pdf 0 -");
        return write(u"office.ppd"_s, text);
    }
    // Who makes the copies, and in which order.
    static void verifyCopies(const Wish &wish, const QByteArray &data)
    {
        const bool byFilters = wish.isCollated && wish.takes == Takes::PostScript &&
                               !wish.collation.contains("DefaultDisk: True");
        if (byFilters) {
            const QStringList once{u"three 1"_s, u"three 2"_s, u"three 3"_s};
            QCOMPARE(printedSides(data), once + once + once);
        } else if (wish.takes == Takes::PostScript) {
            QCOMPARE(data.count("\n%%Page: "), qsizetype(3));
            QCOMPARE(data.count("%RBINumCopies: 3\n"), qsizetype(1));
        } else {
            QVERIFY(data.contains("%%PDFTOPDFNumCopies : 3\n"));
            QVERIFY(data.contains(wish.isCollated ? "%%PDFTOPDFCollate : true\n"
                                                  : "%%PDFTOPDFCollate : false\n"));
        }
    }
    // Each PDF has another number of its own.
    static QByteArray comparable(const QByteArray &data)
    {
        QByteArray text = withoutDates(data);
        const qsizetype number = text.lastIndexOf("/ID [");
        return number < 0 ? text : text.remove(number, text.indexOf(']', number) - number);
    }
    QByteArray printedWithLp(const Wish &wish, const QString &document)
    {
        QProcess lp;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, m_runner->filePath(QString()));
        environment.remove(u"CUPS_SERVERROOT"_s);
        lp.setProcessEnvironment(environment);
        lp.start(u"lp"_s, {u"-h"_s, m_cups->server(), u"-d"_s, kQueue, u"-t"_s, kTitle, u"-n"_s,
                           u"3"_s, u"-o"_s, wish.lp, document});
        lp.waitForFinished();
        const auto jobs = [&] { return m_cups->capture(kQueue).jobs(); };
        if (!QTest::qWaitFor([&] { return jobs().size() == 2; }, kQueuePatience))
            return {};
        return jobs().last().data;
    }

private Q_SLOTS:
    void copiesComeOutAsIsSaid_data() { addRows(wishes()); }
    void copiesComeOutAsIsSaid()
    {
        const Wish &wish = currentRow(wishes());
        const QString pdf = write(u"three.pdf"_s, numberedPdf("three", 3));
        const QString ps = write(u"three.ps"_s, threePages());
        const QString document = QByteArrayView(wish.document).endsWith("ps") ? ps : pdf;
        const QString ppd = ppdOf(wish);
        m_cups->addQueue(kQueue, ppd);
        QStringList asked{u"-t"_s, kTitle, u"-n"_s, u"3"_s, u"--summary"_s};
        if (!wish.option.isEmpty())
            asked += {u"-o"_s, wish.option};

        const RunEnd run =
            m_runner->run(QStringList{u"-d"_s, kQueue} + asked + QStringList{document});
        QVERIFY2(run.status == 0, run.text().constData());
        const QStringList lines = run.out.split(u'\n');
        QVERIFY2(lines.contains(wish.isCollated ? u"Copies: 3, collated"_s
                                                : u"Copies: 3, not collated"_s),
                 run.text().constData());
        QVERIFY2(lines.contains(u"Sheets: 3 pages × 3 copies = 9 sheets"_s),
                 run.text().constData());

        const QByteArray ours = m_cups->capture(kQueue).jobs().value(0).data;
        verifyCopies(wish, ours);
        QVERIFY(comparable(ours) == comparable(printedWithLp(wish, document)));

        const QString file = m_runner->filePath(u"result"_s);
        const RunEnd intoFile = m_runner->run(QStringList{u"-d"_s, kQueue, u"--output"_s, file} +
                                              asked + QStringList{document});
        QVERIFY2(intoFile.status == 0, intoFile.text().constData());
        QCOMPARE(intoFile.out.contains(u", not collated"_s), !wish.isCollated);
        verifyCopies(wish, readAll(file));
    }

    // The job says one order under all of its names, and the summary says it once.
    void whatAQueueAddsIsAnswered_data() { addRows(kAdded); }
    void whatAQueueAddsIsAnswered()
    {
        const Added &added = currentRow(kAdded);
        const QByteArray text = readAll(kPpd) + kExcluded.toByteArray().replace(
                                                    "*DefaultDisk: False", "*DefaultDisk: True");
        QueueSettings settings;
        settings.options = QStringList{added.byQueue};
        m_cups->addQueue(kQueue, write(u"office.ppd"_s, text), settings);
        QStringList arguments{u"-n"_s, QString::number(added.copies), u"--summary"_s};
        if (!added.option.isEmpty())
            arguments += {u"-o"_s, added.option};
        const RunEnd run =
            m_runner->run(QStringList{u"-d"_s, kQueue} + arguments +
                          QStringList{write(u"three.pdf"_s, numberedPdf("three", 3))});
        QVERIFY2(run.status == 0, run.text().constData());
        const QStringList lines = run.out.split(u'\n');
        const QString order = added.isCollated ? u"collated"_s : u"not collated"_s;
        QVERIFY2(lines.contains(added.copies > 1 ? u"Copies: 2, "_s + order : u"Copies: 1"_s),
                 run.text().constData());
        const bool saysCollate = added.copies == 1 && !added.isCollated;
        QCOMPARE(lines.count(u"Collate: Off"_s), saysCollate ? 1 : 0);
        QCOMPARE(lines.filter(u"Collate: "_s).size(), saysCollate ? 1 : 0);
        QVERIFY2(!run.out.contains(u"multiple-document-handling: false"_s), run.text().constData());

        // Of a single copy the filters say nothing else.
        const QByteArray data = m_cups->capture(kQueue).jobs().value(0).data;
        const bool isOn = added.copies > 1 && added.isCollated;
        QCOMPARE(data.count("Feature: *Collate True"), qsizetype(isOn));
        QCOMPARE(data.count("Feature: *Collate False"), qsizetype(!isOn));
        QCOMPARE(data.count("\n%%Page: "), qsizetype(3));
        QCOMPARE(data.count("%RBINumCopies: 2\n"), qsizetype(added.copies > 1));
    }

    void whatFiltersForceIsSaid_data() { addRows(kForced); }
    void whatFiltersForceIsSaid()
    {
        const Forced &forced = currentRow(kForced);
        const QByteArray text =
            readAll(kPpd).replace("*cupsManualCopies: False", "*cupsManualCopies: True");
        m_cups->addQueue(kQueue, write(u"office.ppd"_s, text));
        write(u"three.pdf"_s, numberedPdf("three", 3));
        write(u"one.pdf"_s, numberedPdf("one", 1));
        QStringList arguments{u"-d"_s, kQueue, u"-n"_s, u"2"_s, u"--summary"_s};
        for (const QString &option : forced.options)
            arguments += {u"-o"_s, option};
        for (const QString &document : forced.documents)
            arguments += m_runner->filePath(document + u".pdf"_s);
        const RunEnd run = m_runner->run(arguments);
        QVERIFY2(run.status == 0, run.text().constData());
        QVERIFY2(run.out.split(u'\n').contains(u"Copies: "_s + forced.copies),
                 run.text().constData());
        QStringList sides;
        for (const CapturedJob &job : m_cups->capture(kQueue).jobs())
            sides += printedSides(job.data);
        while (!sides.isEmpty() && sides.constLast().isEmpty())
            sides.removeLast();
        QCOMPARE(sides.join(u", "_s), forced.sides);
    }
};

QTEST_GUILESS_MAIN(QueueCollationTest)

#include "queue_collation_test.moc"
