#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include "tests/e2e/QueueRuns.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/PrintedSides.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kQueue = u"office"_s;
const QString kTitle = u"letters"_s;
constexpr int kPatience = 20000; // milliseconds that a queue may take on a busy machine

/// A request that lp understands as well, and what the printer has to get for it.
struct Wish
{
    const char *name;
    QStringList options;   ///< each with -o
    QStringList documents; ///< "five", "two", "one", "mixed": numbered pages
    /// What stands on each side; nothing where the job is refused.
    QStringList sides;
    /// Lines that the summary has to hold, "Title: Value".
    QStringList summary{};
    /// What the refusal has to say.
    const char *refusal = nullptr;
    /// Whether lp sends the printer the same bytes.
    bool isAsWithLp = true;
    /// Defaults of the queue, as lpadmin takes them.
    QStringList queueDefaults{};
    /// The user's ~/.cups/lpoptions for the queue.
    QByteArray userDefaults{};
};

const QStringList kFive{u"five 1"_s, u"five 2"_s, u"five 3"_s, u"five 4"_s, u"five 5"_s};

const QList<Wish> kWishes{
    {"a document as it is", {}, {u"five"_s}, kFive},
    {"pages of a document", {u"page-ranges=2-3"_s}, {u"five"_s}, kFive.mid(1, 2)},
    {"pages of each of several documents",
     {u"page-ranges=1-2"_s},
     {u"five"_s, u"two"_s},
     {u"five 1"_s, u"five 2"_s, u"two 1"_s, u"two 2"_s}},
    {"several documents on both sides begin on a sheet each",
     {u"sides=two-sided-long-edge"_s, u"page-ranges=1-3"_s},
     {u"five"_s, u"two"_s},
     // A stream each: the printer ejects the sheet at the end of the first.
     {u"five 1"_s, u"five 2"_s, u"five 3"_s, u"two 1"_s, u"two 2"_s}},
    {"two pages of several documents on a side",
     {u"number-up=2"_s},
     {u"five"_s, u"two"_s},
     {u"five 1 five 2"_s, u"five 3 five 4"_s, u"five 5"_s, u"two 1 two 2"_s}},
    {"pages of a document, two on a side",
     {u"page-ranges=3-4"_s, u"number-up=2"_s},
     {u"five"_s},
     {u"five 3 five 4"_s},
     {},
     nullptr,
     false}, // lp takes the third and the fourth side, of which there is one
    {"pages that the document does not have",
     {u"page-ranges=9-12"_s},
     {u"five"_s},
     {},
     {},
     "5 pages"},
    {"even pages of a single one",
     {u"page-set=even"_s},
     {u"one"_s},
     {},
     {},
     "Nothing would be printed"},
    {"two pages on a side are the queue's default",
     {},
     {u"five"_s},
     {u"five 1 five 2"_s, u"five 3 five 4"_s, u"five 5"_s},
     {u"Pages per Sheet: 2"_s},
     nullptr,
     true,
     {u"number-up-default=2"_s}},
    {"one page on a side, where two are the queue's default",
     {u"number-up=1"_s},
     {u"five"_s},
     kFive,
     {},
     nullptr,
     true,
     {u"number-up-default=2"_s}},
    {"copies on one side, where two are the queue's default",
     {u"sides=one-sided"_s, u"copies=2"_s, u"Collate=True"_s},
     {u"five"_s},
     kFive + kFive,
     {u"Sheets: 5 pages × 2 copies = 10 sheets"_s},
     nullptr,
     true,
     {u"sides-default=two-sided-long-edge"_s}},
    {"copies on one side, where two are the default of queue and PPD",
     {u"sides=one-sided"_s, u"copies=2"_s, u"Collate=True"_s},
     {u"five"_s},
     kFive + kFive,
     {u"Sheets: 5 pages × 2 copies = 10 sheets"_s},
     nullptr,
     true,
     {u"sides-default=two-sided-long-edge"_s, u"Duplex=DuplexNoTumble"_s}},
    {"pages of a document, two on a side by the queue's default",
     {u"page-ranges=3-4"_s},
     {u"five"_s},
     {u"five 3 five 4"_s},
     {u"Pages per Sheet: 2"_s, u"Pages: 3-4"_s},
     nullptr,
     false,
     {u"number-up-default=2"_s}},
    {"pages by the queue's default, two on a side",
     {u"number-up=2"_s},
     {u"five"_s},
     {u"five 3 five 4"_s},
     {u"Pages per Sheet: 2"_s, u"Pages: 3-4"_s},
     nullptr,
     false, // lp takes sides here as well
     {u"page-ranges-default=3-4"_s}},
    {"two pages on a side are the user's default",
     {},
     {u"two"_s},
     {u"two 1 two 2"_s},
     {u"Pages per Sheet: 2"_s},
     nullptr,
     true,
     {},
     "number-up=2"},
    {"one page, two-sided", {u"sides=two-sided-long-edge"_s}, {u"one"_s}, {u"one 1"_s}},
    {"papers of several sizes",
     {},
     {u"mixed"_s},
     {u"mixed 1"_s, u"mixed 2"_s, u"mixed 3"_s},
     {u"Sheets: 3 pages = 3 sheets"_s}},
};

// The pages on each side. Where several share one, the order in which Ghostscript comes to them is
// its own.
QStringList inOrder(const QStringList &sides)
{
    static const QRegularExpression page(u"[a-z]+ [0-9]+"_s);
    QStringList ordered;
    for (const QString &side : sides) {
        QStringList pages;
        for (auto found = page.globalMatch(side); found.hasNext();)
            pages += found.next().captured();
        pages.sort();
        ordered += pages.join(u' ');
    }
    return ordered;
}

} // namespace

/// What a run prints to a queue, beside what lp prints there with the same words: the streams, what
/// stands on their sides, and what the summary promises.
class QueueLpTest : public QueueRuns
{
    Q_OBJECT

private:
    QString path(const QString &document) const { return m_runner->filePath(document + u".pdf"_s); }
    void write(const QByteArray &name, const QByteArray &content)
    {
        QFile file(path(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    QStringList paths(const Wish &wish) const
    {
        QStringList paths;
        for (const QString &document : wish.documents)
            paths += path(document);
        return paths;
    }
    static QStringList optionsOf(const Wish &wish)
    {
        QStringList arguments;
        for (const QString &option : wish.options)
            arguments += {u"-o"_s, option};
        return arguments;
    }
    // All of the job's documents, one after the other, as a printer gets them.
    QByteArray stream(int job) const
    {
        QByteArray data;
        const QList<CapturedJob> jobs = m_cups->capture(kQueue).jobs();
        for (const CapturedJob &captured : jobs) {
            if (captured.id == job)
                data += captured.data;
        }
        return data;
    }
    int lastJob() const
    {
        const QList<KnownJob> jobs = m_cups->jobs(kQueue);
        return jobs.isEmpty() ? 0 : jobs.last().id;
    }
    // Answers the number of its job.
    int printWithLp(const Wish &wish)
    {
        QProcess lp;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, m_runner->filePath(QString()));
        environment.remove(u"CUPS_SERVERROOT"_s);
        lp.setProcessEnvironment(environment);
        lp.start(u"lp"_s, QStringList{u"-h"_s, m_cups->server(), u"-d"_s, kQueue, u"-t"_s, kTitle} +
                              optionsOf(wish) + paths(wish));
        lp.waitForFinished();
        const int job = lastJob();
        const bool ended = QTest::qWaitFor(
            [&] { return m_cups->job(job).state >= IPP_JSTATE_CANCELED; }, kPatience);
        return lp.exitCode() == 0 && ended ? job : 0;
    }

private Q_SLOTS:
    void whatIsSaidIsWhatComesOut_data() { addRows(kWishes); }
    void whatIsSaidIsWhatComesOut()
    {
        const Wish &wish = currentRow(kWishes);
        write("one", numberedPdf("one", 1));
        write("two", numberedPdf("two", 2));
        write("five", numberedPdf("five", 5));
        write("mixed", numberedPdf("mixed", {kA4, kLetter, kA5}));
        QueueSettings settings;
        settings.options = wish.queueDefaults;
        m_cups->addQueue(kQueue, sourceFile(u"resources/ppd/corvana-cl5.ppd"_s), settings);
        if (!wish.userDefaults.isEmpty())
            m_runner->setUserOptions("Dest " + kQueue.toLatin1() + ' ' + wish.userDefaults + '\n');

        const RunEnd run =
            m_runner->run(QStringList{u"-d"_s, kQueue, u"-t"_s, kTitle, u"--summary"_s} +
                          optionsOf(wish) + paths(wish));
        if (wish.refusal) {
            QVERIFY2(run.status == 1, run.text().constData());
            QVERIFY2(run.err.contains(QString::fromUtf8(wish.refusal)), run.text().constData());
            QVERIFY2(run.err.contains(u"Nothing was printed."_s), run.text().constData());
            QVERIFY(m_cups->jobs(kQueue).isEmpty());
            return;
        }
        QVERIFY2(run.status == 0, run.text().constData());
        const QByteArray ours = stream(lastJob());
        QCOMPARE(inOrder(printedSides(ours)), wish.sides);
        for (const QString &line : wish.summary)
            QVERIFY2(run.out.split(u'\n').contains(line), run.text().constData());
        const int job = printWithLp(wish);
        QVERIFY(job > 0);
        const QByteArray theirs = stream(job);
        QCOMPARE(withoutDates(ours) == withoutDates(theirs), wish.isAsWithLp);
    }
};

QTEST_GUILESS_MAIN(QueueLpTest)

#include "queue_lp_test.moc"
