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
constexpr int kPatience = 20000; // milliseconds that a queue may take on a busy machine

// What the printers say of their sheets. One takes PDF, all others take PostScript.
const QByteArray kFaceDown = "*DefaultOutputOrder: Normal\n";
const QByteArray kFaceUp = "*DefaultOutputOrder: Reverse\n";
const QByteArray kPdfFaceUp = "*% PDF\n*DefaultOutputOrder: Reverse\n";
const QByteArray kBins = "*OpenUI *OutputBin: PickOne\n*OrderDependency: 30 AnySetup *OutputBin\n"
                         "*DefaultOutputBin: Top\n*OutputBin Top: \"\"\n*OutputBin Rear: \"\"\n"
                         "*CloseUI: *OutputBin\n*PageStackOrder Top: Normal\n"
                         "*PageStackOrder Rear: Reverse\n";

// As a user knows it: the sides in the order in which they leave the printer, "-" for an empty one.
const QString kForwards = u"1 2 3"_s;
const QString kBackwards = u"3 2 1"_s;

struct Order
{
    const char *name;
    QByteArray printer;
    QStringList options; ///< each with -o, or "-n 2"
    QString sides;
    /// What lp has to be told for the same bytes.
    QStringList forLp;
    /// What lp prints with the user's own words.
    QString byLp;
};
const QStringList kNormal{u"outputorder=normal"_s};
const QStringList kReverse{u"outputorder=reverse"_s};
const QStringList kBoth{u"sides=two-sided-long-edge"_s};
const QStringList kTwice{u"-n 2"_s, u"collate=true"_s};
const Order kOrders[] = {
    {"face down", kFaceDown, {}, kForwards, {}, kForwards},
    {"face down, the last page first", kFaceDown, kReverse, kBackwards, kReverse, kBackwards},
    {"PDF, face up", kPdfFaceUp, {}, kBackwards, {}, kBackwards},
    {"PDF, face up, the first page first", kPdfFaceUp, kNormal, kForwards, kNormal, kForwards},
    // The filters of these turn the order round twice.
    {"face up", kFaceUp, {}, kBackwards, kNormal, kForwards},
    {"face up, the first page first", kFaceUp, kNormal, kForwards, kReverse, kBackwards},
    {"face up, the last page first", kFaceUp, kReverse, kBackwards, kNormal, kForwards},
    {"face up, both sides", kFaceUp, kBoth, u"- 3 2 1"_s, kBoth + kNormal, u"1 2 3 -"_s},
    {"face up, both sides, the first page first", kFaceUp, kBoth + kNormal, u"1 2 3 -"_s,
     kBoth + kReverse, u"- 3 2 1"_s},
    {"face up, two copies", kFaceUp, kTwice, u"3 2 1 3 2 1"_s, kTwice + kNormal, u"1 2 3 1 2 3"_s},
    {"face up, two copies, the first page first", kFaceUp, kTwice + kNormal, u"1 2 3 1 2 3"_s,
     kTwice + kReverse, u"3 2 1 3 2 1"_s},
    {"a bin that stacks face up",
     kBins,
     {u"OutputBin=Rear"_s},
     kBackwards,
     {u"OutputBin=Rear"_s, u"outputorder=normal"_s},
     kForwards},
    {"a bin that stacks face down", kBins, {}, kForwards, {}, kForwards},
};

} // namespace

/// In which order the sides of a job leave a printer, whatever its filters turn round on the way,
/// and what lp prints there.
class QueueOutputOrderTest : public QueueRuns
{
    Q_OBJECT

private:
    QString m_document;

    QString written(const QString &name, const QByteArray &content) const
    {
        QFile file(m_runner->filePath(name));
        [&] {
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        }();
        return file.fileName();
    }
    void addQueue(const QByteArray &lines)
    {
        QByteArray ppd = readAll(kPpd) + lines;
        if (lines.contains("PDF"))
            ppd.replace("application/vnd.cups-postscript application/postscript",
                        "application/vnd.cups-pdf application/pdf");
        m_cups->addQueue(kQueue, written(u"office.ppd"_s, ppd));
        m_document = written(u"a.pdf"_s, numberedPdf("a", 3));
    }
    static QStringList argumentsOf(const QStringList &options)
    {
        QStringList arguments;
        for (const QString &option : options)
            arguments +=
                option.startsWith(u'-') ? option.split(u' ') : QStringList{u"-o"_s, option};
        return arguments;
    }
    QByteArray lastStream() const
    {
        const QList<CapturedJob> jobs = m_cups->capture(kQueue).jobs();
        return jobs.isEmpty() ? QByteArray() : jobs.constLast().data;
    }
    static QString sidesOf(const QByteArray &stream)
    {
        QStringList sides = printedSides(stream);
        for (QString &side : sides)
            side = side.isEmpty() ? u"-"_s : side.remove(u"a "_s);
        return sides.join(u' ');
    }
    // Answers what the printer gets.
    QByteArray printedByLp(const QStringList &options)
    {
        QProcess lp;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, m_runner->filePath(QString()));
        environment.remove(u"CUPS_SERVERROOT"_s);
        lp.setProcessEnvironment(environment);
        const qsizetype before = m_cups->capture(kQueue).jobs().size();
        lp.start(u"lp"_s, QStringList{u"-h"_s, m_cups->server(), u"-d"_s, kQueue, u"-t"_s, kTitle} +
                              argumentsOf(options) + QStringList{m_document});
        lp.waitForFinished();
        const bool isPrinted = QTest::qWaitFor(
            [&] {
                const QList<KnownJob> jobs = m_cups->jobs(kQueue);
                return m_cups->capture(kQueue).jobs().size() > before &&
                       jobs.constLast().state >= IPP_JSTATE_CANCELED;
            },
            kPatience);
        return isPrinted ? lastStream() : QByteArray();
    }

private Q_SLOTS:
    void whatLiesInTheBinIsWhatWasAskedFor_data() { addRows(kOrders); }
    void whatLiesInTheBinIsWhatWasAskedFor()
    {
        const Order &row = currentRow(kOrders);
        addQueue(row.printer);
        const RunEnd run = m_runner->run(QStringList{u"-d"_s, kQueue, u"-t"_s, kTitle} +
                                         argumentsOf(row.options) + QStringList{m_document});
        QVERIFY2(run.status == 0, run.text().constData());
        const QByteArray ours = lastStream();
        QCOMPARE(sidesOf(ours), row.sides);
        const QByteArray byLp = printedByLp(row.forLp);
        QCOMPARE(sidesOf(byLp), row.sides);
        // Each PDF has a number of its own in it.
        if (ours.startsWith("%!PS"))
            QCOMPARE(withoutDates(byLp), withoutDates(ours));
        // Should CUPS ever turn it round once only, nothing has to be done about it here any more.
        if (row.byLp != row.sides)
            QCOMPARE(sidesOf(printedByLp(row.options)), row.byLp);
    }

    // By its own words, and read back here.
    void anInstanceIsPrintedInTheOrderThatWasAskedFor_data() { addRows(kOrders); }
    void anInstanceIsPrintedInTheOrderThatWasAskedFor()
    {
        const Order &row = currentRow(kOrders);
        if (row.options.contains(kTwice.constFirst()))
            QSKIP("copies are in no instance");
        addQueue(row.printer);
        const RunEnd saved = m_runner->run(
            QStringList{u"--no-dialog"_s, u"-d"_s, kQueue, u"--save-instance"_s, u"Reports"_s} +
            argumentsOf(row.options));
        QVERIFY2(saved.status == 0, saved.text().constData());
        const QStringList instance{u"-d"_s, u"office/reports"_s};
        QCOMPARE(sidesOf(printedByLp({u"-d office/reports"_s})), row.sides);
        const RunEnd run = m_runner->run(instance + QStringList{u"-t"_s, kTitle, m_document});
        QVERIFY2(run.status == 0, run.text().constData());
        QCOMPARE(sidesOf(lastStream()), row.sides);
    }
};

QTEST_GUILESS_MAIN(QueueOutputOrderTest)
#include "queue_output_order_test.moc"
