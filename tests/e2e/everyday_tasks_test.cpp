#include <algorithm>
#include <functional>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/support/UserHands.h"
#include "tests/e2e/DialogDriver.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/PrintedSides.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

// What people do every day, from the open window to what comes out, and how much they have to do
// for it.

namespace {

constexpr int kPrintPatience = 60000; // milliseconds that a chain may take on a busy machine

/// What came out.
struct Result
{
    QByteArray data;
    QStringList sides;    ///< the words on each
    QStringList features; ///< "Duplex=None"
    QString printer;
};

struct Task
{
    const char *name;
    const char *document;                  ///< "four": numbered pages of A4; or a file of the tree
    QStringList options;                   ///< that the window starts with
    std::function<bool(UserHands &)> work; ///< all but Print
    int clicks;                            ///< at most, the one on Print among them
    int keys;
    QStringList features; ///< that the printer is told
    std::function<bool(const Result &)> isRight;
};

const QStringList kFour{u"page 1"_s, u"page 2"_s, u"page 3"_s, u"page 4"_s};

// Where several pages share a side, the order in which Ghostscript comes to them is its own.
bool holds(const QString &side, const QStringList &pages)
{
    return std::all_of(pages.cbegin(), pages.cend(),
                       [&](const QString &page) { return side.contains(page); }) &&
           side.count(u"page"_s) == pages.size();
}

const Task kTasks[] = {
    {"a booklet",
     "four",
     {},
     [](UserHands &hands) {
         return hands.click(u"more"_s) && hands.choose(u"booklet"_s, u"Bound at the Left"_s);
     },
     5,
     0,
     {u"Duplex=DuplexTumble"_s},
     [](const Result &result) {
         return result.sides.size() == 2 && holds(result.sides.at(0), {u"page 4"_s, u"page 1"_s}) &&
                holds(result.sides.at(1), {u"page 2"_s, u"page 3"_s});
     }},
    {"an envelope",
     "four",
     {u"page-ranges=1"_s},
     [](UserHands &hands) { return hands.choose(u"PageSize"_s, u"Envelope DL"_s); },
     5,
     0,
     {u"PageSize=EnvDL"_s},
     [](const Result &result) { return result.sides == kFour.first(1); }},
    {"black and white, two on a side",
     "four",
     {},
     [](UserHands &hands) {
         return hands.choose(u"number-up"_s, u"2"_s) && hands.turnTo(1) &&
                hands.choose(u"monoColorPopup"_s, u"Mono"_s);
     },
     6,
     0,
     {u"QXMonoColor=Mono"_s},
     [](const Result &result) {
         return result.sides.size() == 2 && holds(result.sides.at(0), kFour.first(2));
     }},
    {"a PDF",
     "four",
     {},
     [](UserHands &hands) { return hands.choosePrinter(u"Save as PDF"_s); },
     3,
     0,
     {},
     [](const Result &result) { return result.data.startsWith("%PDF-") && result.sides == kFour; }},
    {"pages 2 to 3",
     "four",
     {},
     [](UserHands &hands) { return hands.click(u"pageRanges"_s) && hands.type(u"2-3"_s); },
     2,
     3,
     {},
     [](const Result &result) { return result.sides == kFour.mid(1, 2); }},
    {"two copies, collated, on both sides",
     "four",
     {},
     [](UserHands &hands) {
         return hands.tabTo(u"copies"_s) && hands.key(Qt::Key_Up) &&
                hands.choose(u"Duplex"_s, u"Long-Edge Binding"_s);
     },
     3,
     8,
     {u"Duplex=DuplexNoTumble"_s},
     [](const Result &result) { return result.sides == kFour + kFour; }},
    {"back to one side after both",
     "four",
     {u"sides=two-sided-long-edge"_s},
     [](UserHands &hands) { return hands.choose(u"Duplex"_s, u"Off (1-Sided)"_s); },
     3,
     0,
     {u"Duplex=None"_s},
     [](const Result &result) { return result.sides == kFour; }},
    {"back to the defaults of the printer",
     "four",
     {},
     [](UserHands &hands) {
         return hands.choose(u"Duplex"_s, u"Long-Edge Binding"_s) &&
                hands.choose(u"number-up"_s, u"2"_s) && hands.pick(u"reset"_s, u"resetAll"_s);
     },
     7,
     0,
     {u"Duplex=None"_s},
     [](const Result &result) { return result.sides == kFour; }},
    {"A4 on Letter, fitted",
     "four",
     {},
     [](UserHands &hands) {
         return hands.choose(u"PageSize"_s, u"US Letter"_s) &&
                hands.choose(u"print-scaling"_s, u"Fit to Paper"_s);
     },
     5,
     0,
     {u"PageSize=Letter"_s},
     [](const Result &result) { return result.sides == kFour; }},
    {"another printer with the same pages",
     "four",
     {},
     [](UserHands &hands) {
         return hands.click(u"pageRanges"_s) && hands.type(u"2"_s) &&
                hands.choosePrinter(u"Other Printer"_s);
     },
     4,
     1,
     {},
     [](const Result &result) {
         return result.sides == kFour.mid(1, 1) && result.printer == "other"_L1;
     }},
    // A picture of a page's size at 150 % needs four of them.
    {"a picture across the paper, enlarged",
     "tests/data/page.png",
     {u"scaling=100"_s},
     [](UserHands &hands) {
         return hands.click(u"more"_s) &&
                hands.choose(u"orientation-requested"_s, u"Landscape"_s) &&
                hands.click(u"scaling"_s) && hands.key(Qt::Key_A, Qt::ControlModifier) &&
                hands.type(u"150"_s);
     },
     8,
     4,
     {},
     [](const Result &result) { return result.sides.size() == 4; }},
};

} // namespace

class EverydayTasksTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    PrintRequest requestOf(const Task &task)
    {
        CommandLine line = sampleDocument();
        line.ppd = sourceFile(u"resources/ppd/corvana-cl5.ppd"_s);
        const QString name = QString::fromLatin1(task.document);
        line.documents = {name == "four"_L1
                              ? writeFile(m_folder->filePath(u"four.pdf"_s), numberedPdf("page", 4))
                              : sourceFile(name)};
        line.options = task.options;
        PrintRequest request = requestFor(line);
        Printer other = request.printers.constFirst();
        other.name = u"other"_s;
        other.description = u"Other Printer"_s;
        other.ppdPath = sourceFile(u"resources/ppd/corvana-cl2.ppd"_s);
        request.printers += other;
        return request;
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        for (const char *variable : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
            qputenv(variable, QFile::encodeName(m_folder->path()));
        QDir::setCurrent(m_folder->path());
    }

    void aTaskIsDoneWithFewSteps_data() { addRows(kTasks); }
    void aTaskIsDoneWithFewSteps()
    {
        const Task &task = currentRow(kTasks);
        AlertAnswerer alerts;
        WindowDriver window(requestOf(task), WindowDriver::Activation::Yes);
        QTRY_COMPARE_WITH_TIMEOUT(window.dialog().task().phase(), PrintTask::Phase::Ready,
                                  kWindowPatience);
        QVERIFY(window.waitForPanel(1));
        UserHands hands(window.dialog());
        QVERIFY(task.work(hands));
        QTRY_COMPARE_WITH_TIMEOUT(window.dialog().task().phase(), PrintTask::Phase::Ready,
                                  kWindowPatience);
        QTRY_VERIFY(window.canPress(u"print"_s));
        QVERIFY(hands.click(u"print"_s));
        QTRY_VERIFY2_WITH_TIMEOUT(!window.dialog().printedTo().isEmpty(),
                                  qPrintable(window.message()), kPrintPatience);
        hands.addClicks(static_cast<int>(alerts.seen.size()));
        Result result;
        QFile file(window.dialog().printedTo());
        QVERIFY(file.open(QIODevice::ReadOnly));
        result.data = file.readAll();
        result.printer = window.dialog().task().printer().name;
        result.sides = printedSides(result.data);
        result.features = printedFeatures(result.data);
        for (const QString &feature : task.features)
            QVERIFY2(result.features.contains(feature), qPrintable(result.features.join(u' ')));
        QVERIFY2(task.isRight(result), qPrintable(result.sides.join(u'|')));
        const QString effort = u"%1 clicks, %2 keys"_s.arg(hands.clicks()).arg(hands.keys());
        QVERIFY2(hands.clicks() <= task.clicks && hands.keys() <= task.keys, qPrintable(effort));
    }
};

QTEST_MAIN(EverydayTasksTest)

#include "everyday_tasks_test.moc"
