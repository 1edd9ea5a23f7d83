#include <algorithm>
#include <cstdio>
#include <optional>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/app/RequestFromCommandLine.h"
#include "tests/dialog/support/WindowDriver.h"
#include "tests/e2e/Monkey.h"
#include "tests/e2e/QueueScene.h"
#include "tests/e2e/WindowInvariants.h"
#include "tests/mass/PpdCollection.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

// Somebody who presses, clicks and pulls without looking. Whatever is done, the window stands, and
// what it promises holds; a failure is told with fewer acts that lead to it, as far as it is found
// again.
//
// A short run is made each time. CORVANA_MONKEY=10000 does so much with each printer,
// CORVANA_MONKEY_SEED does something else, CORVANA_MONKEY_LOG=FILE keeps what was done before a
// crash, CORVANA_MONKEY_FOREIGN=20 takes so many printers of other makers.

namespace {

constexpr int kUsualActs = 300;
constexpr int kUsualForeign = 2;
constexpr quint32 kSeed = 16;
// Of a failure that is not found again, so many of the last acts are told.
constexpr qsizetype kMostTold = 60;
const QString kForeignDriver = u"/usr/lib/cups/driver/postscript-hp"_s;

int number(const char *variable, int usual)
{
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? value : usual;
}

// Some minutes, but less than QTest leaves a test function altogether. Units: milliseconds.
int timeToShorten()
{
    constexpr int kMost = 10 * 60 * 1000;
    constexpr int kUsualLimit = 5 * 60 * 1000;
    return std::min(kMost, number("QTEST_FUNCTION_TIMEOUT", kUsualLimit) / 3);
}

// What became of some acts.
struct Played
{
    QString fault; // null where everything held
    qsizetype taken = 0;
    QStringList done{};
};

// Another fault on the way to a shorter one would be told in place of this one. Numbers are those
// of the moment.
bool areAlike(QString one, QString other)
{
    static const QRegularExpression digits(u"[0-9]+"_s);
    return one.remove(digits) == other.remove(digits);
}

QString told(const QStringList &done)
{
    const qsizetype hidden = std::max<qsizetype>(0, done.size() - kMostTold);
    const QString before = hidden > 0 ? u"(%1 more)\n"_s.arg(hidden) : QString();
    return before + done.mid(hidden).join(u'\n');
}

// The act of a list that does nothing but to be known again.
Act numbered(quint32 number)
{
    return {number, 0, 0};
}

QList<Act> numberedActs(int count)
{
    QList<Act> acts;
    for (int i = 0; i < count; ++i)
        acts += numbered(quint32(i));
    return acts;
}

QList<quint32> numbersOf(const QList<Act> &acts)
{
    QList<quint32> numbers;
    for (const Act &act : acts)
        numbers += act.kind;
    return numbers;
}

// Fails with the last of the acts of these numbers, where they come in this order.
Trial failsWith(const QList<quint32> &numbers, int *trials)
{
    return [=](const QList<Act> &acts) -> std::optional<qsizetype> {
        ++*trials;
        qsizetype found = 0;
        for (qsizetype i = 0; i < acts.size(); ++i) {
            if (acts.at(i).kind == numbers.at(found) && ++found == numbers.size())
                return i + 1;
        }
        return std::nullopt;
    };
}

} // namespace

class MonkeyTest : public QObject
{
    Q_OBJECT

private:
    std::optional<UserFolders> m_folders;
    QStringList m_samples;
    QStringList m_documents;

    static QList<Act> acts()
    {
        return randomActs(quint32(number("CORVANA_MONKEY_SEED", kSeed)),
                          number("CORVANA_MONKEY", kUsualActs));
    }

    using Play = std::function<Played(const QList<Act> &)>;
    static void verify(const Play &play)
    {
        const Played first = play(acts());
        if (first.fault.isNull())
            return;
        // It takes minutes to make it shorter, and a crash may come in between.
        const QByteArray found = u"%1 after %2 acts\n"_s.arg(first.fault).arg(first.taken).toUtf8();
        std::fputs(found.constData(), stderr);
        Played last = first;
        bool isFoundAgain = false;
        const QList<Act> fewest =
            shortened(acts().first(first.taken), QDeadlineTimer(timeToShorten()),
                      [&](const QList<Act> &fewer) -> std::optional<qsizetype> {
                          const Played played = play(fewer);
                          if (played.fault.isNull() || !areAlike(played.fault, first.fault))
                              return std::nullopt;
                          last = played;
                          isFoundAgain = true;
                          return played.taken;
                      });
        QFAIL(qPrintable(u"%1\nafter %2 acts%3; with %4 acts %5:\n%6"_s.arg(first.fault)
                             .arg(first.taken)
                             .arg(isFoundAgain ? QString() : u", and not found again"_s)
                             .arg(fewest.size())
                             .arg(last.fault, told(last.done))));
    }

    static Played letLoose(WindowDriver &window, const QStringList &documents,
                           const Monkey::World &world, const QList<Act> &acts)
    {
        if (!QTest::qWaitFor(
                [&] { return window.dialog().task().phase() == PrintTask::Phase::Ready; },
                kWindowPatience))
            return {u"the window does not come up"_s};
        Monkey monkey(window.dialog(), documents, world);
        const QString fault = monkey.run(acts);
        return {fault, monkey.actsTaken(), monkey.done()};
    }

    // The folder of the job holds nothing from before.
    Played playWithFiles(const QString &ppd, const QList<Act> &acts) const
    {
        const QTemporaryDir output;
        QDir::setCurrent(output.path());
        CommandLine line = sampleDocument();
        line.ppd = ppd;
        line.output = output.filePath(u"job.out"_s);
        PrintRequest request = requestFor(line);
        for (const QString &other : m_samples) {
            CommandLine another;
            another.ppd = other;
            if (other != ppd)
                request.printers += offeredPrinters(another);
        }
        WindowDriver window(request, WindowDriver::Activation::Yes);
        return letLoose(window, m_documents, {}, acts);
    }

    // What becomes of a print server while somebody has a window open.
    static QString happenAt(QueueScene &scene, const Act &act)
    {
        struct Event
        {
            const char *name;
            void (*happens)(QueueScene &);
        };
        static constexpr Event kEvents[] = {
            {"the server goes away", [](QueueScene &s) { s.goAway(); }},
            {"the server falls silent", [](QueueScene &s) { s.fallSilent(); }},
            {"the server is back", [](QueueScene &s) { s.mend(); }},
            {"the server is well", [](QueueScene &s) { s.mend(); }},
            {"connections break", [](QueueScene &s) { s.between.dropConnections(); }},
            {"the queue stops", [](QueueScene &s) { s.cups.stopQueue(kQueue, u"Paper jam"_s); }},
            {"the queue starts", [](QueueScene &s) { s.cups.startQueue(kQueue); }},
            {"there is another queue", [](QueueScene &s) { s.cups.addRawQueue(u"attic"_s); }},
            {"the queue has other options",
             [](QueueScene &s) { s.cups.setPpd(kQueue, samplePpdPath(u"corvana-mf4"_s)); }},
            {"the queue has its options again",
             [](QueueScene &s) { s.cups.setPpd(kQueue, samplePpdPath(u"corvana-cl5"_s)); }},
        };
        const Event &event = kEvents[act.what % std::size(kEvents)];
        event.happens(scene);
        return QLatin1StringView(event.name);
    }

    Played playWithQueue(const QList<Act> &acts) const
    {
        QueueScene scene;
        scene.addQueue();
        scene.open({m_documents.constFirst()});
        return letLoose(
            *scene.window, m_documents, [&](const Act &act) { return happenAt(scene, act); }, acts);
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_folders.emplace();
        for (const char *name : {"cl5", "cl4", "cl3", "cl2", "ml3", "mf4"})
            m_samples += sourceFile(u"resources/ppd/corvana-%1.ppd"_s.arg(QLatin1StringView(name)));
        m_documents = {
            sourceFile(u"resources/sample/welcome.pdf"_s),
            sourceFile(u"docs/images/window.png"_s),
            m_folders->write(u"letter.txt"_s, QByteArray("A line of a letter.\n").repeated(200)),
            m_folders->write(u"broken.pdf"_s, "%PDF-1.4\n1 0 obj\n<< /Type /Catalog"),
            m_folders->write(u"empty.txt"_s, {}),
            m_folders->filePath(u"missing.pdf"_s),
            m_folders->filePath({})};
    }

    void aFailureIsMadeAsShortAsItCanBe_data()
    {
        QTest::addColumn<QList<quint32>>("needed");
        QTest::newRow("one act") << QList<quint32>{7000};
        QTest::newRow("the first") << QList<quint32>{0};
        QTest::newRow("the last") << QList<quint32>{9999};
        QTest::newRow("neighbours") << QList<quint32>{4999, 5000};
        QTest::newRow("far from each other") << QList<quint32>{0, 3, 2500, 2501, 6001, 9999};
    }
    void aFailureIsMadeAsShortAsItCanBe()
    {
        QFETCH(QList<quint32>, needed);
        int trials = 0;
        const QList<Act> fewest =
            shortened(numberedActs(10000), QDeadlineTimer::Forever, failsWith(needed, &trials));
        QCOMPARE(numbersOf(fewest), needed);
        // Each act that has to stay costs a few trials at each length of what is left out.
        QVERIFY2(trials < 60 * needed.size(), qPrintable(u"%1 trials"_s.arg(trials)));
    }

    // Until a press that nothing answers is gone, neither is the other one that it undoes.
    void whatCanGoOnlyBehindSomethingElseGoesAsWell()
    {
        const auto trial = [](const QList<Act> &acts) -> std::optional<qsizetype> {
            const QList<quint32> numbers = numbersOf(acts);
            const bool fails =
                numbers.contains(30u) && (numbers.contains(10u) || !numbers.contains(20u));
            return fails ? std::optional(numbers.indexOf(30u) + 1) : std::nullopt;
        };
        QCOMPARE(numbersOf(shortened(numberedActs(64), QDeadlineTimer::Forever, trial)),
                 QList<quint32>{30u});
    }

    void behindTheActThatFailsNothingIsTriedAgain()
    {
        qsizetype longest = 0;
        int trials = 0;
        const Trial fails = failsWith({5}, &trials);
        shortened(numberedActs(1000), QDeadlineTimer::Forever, [&](const QList<Act> &acts) {
            // The first trial cannot know yet where it fails.
            longest = trials < 2 ? 0 : std::max(longest, acts.size());
            return fails(acts);
        });
        QVERIFY2(longest <= 6, qPrintable(QString::number(longest)));
    }

    void whenTheTimeIsOverWhatWasFoundIsLeft()
    {
        int trials = 0;
        const QList<Act> fewest =
            shortened(numberedActs(100), QDeadlineTimer(0), failsWith({50}, &trials));
        QCOMPARE(trials, 0);
        QCOMPARE(fewest.size(), 100);
    }

    // The panel has no lines for them then, and the job carries them.
    void whatCountsForNothingBesideTheModeIsInTheSummaryAsInTheJob_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::addColumn<QString>("mode");
        QTest::newRow("black and white") << u"QXMonoColor"_s << u"Mono"_s;
        QTest::newRow("the application matches colors")
            << u"AP_ColorMatchingMode"_s << u"AP_ApplicationColorMatching"_s;
    }
    void whatCountsForNothingBesideTheModeIsInTheSummaryAsInTheJob()
    {
        QFETCH(QString, keyword);
        QFETCH(QString, mode);
        CommandLine line = sampleDocument();
        line.ppd = m_samples.constFirst();
        WindowDriver window(requestFor(line));
        QVERIFY(window.waitForPanels(2));
        PrintTask &task = window.dialog().task();
        for (const auto &[name, choice] : {std::pair{u"QXColorMatching"_s, u"None"_s},
                                           {u"QXEnhanceBlkPrt"_s, u"ON"_s},
                                           {u"QXSlowDrying"_s, u"ON"_s},
                                           {keyword, mode}})
            task.propose(name, choice);
        window.showLastPage();
        QCOMPARE(brokenInvariant(window.dialog()), QString());
    }

    void whateverIsDoneTheWindowHolds_data()
    {
        QTest::addColumn<QString>("ppd");
        for (const QString &sample : std::as_const(m_samples))
            QTest::newRow(qPrintable(QFileInfo(sample).baseName())) << sample;
        if (!QFile::exists(kForeignDriver)) {
            QTest::newRow("printers of other makers") << QString();
            return;
        }
        const PpdCollection foreign(kForeignDriver);
        const int count = number("CORVANA_MONKEY_FOREIGN", kUsualForeign);
        for (int i = 0; i < count; ++i) {
            const NamedPpd ppd = foreign.at(i * foreign.size() / count);
            QTest::newRow(qPrintable(ppd.name))
                << m_folders->write(u"foreign-%1.ppd"_s.arg(i), ppd.content);
        }
    }
    void whateverIsDoneTheWindowHolds()
    {
        QFETCH(QString, ppd);
        if (ppd.isEmpty())
            QSKIP("No printers of other makers were tried: there is no "
                  "/usr/lib/cups/driver/postscript-hp (package printer-driver-postscript-hp)");
        verify([&](const QList<Act> &acts) { return playWithFiles(ppd, acts); });
    }

    void whateverBecomesOfTheServerTheWindowHolds()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        verify([this](const QList<Act> &acts) { return playWithQueue(acts); });
    }
};

QTEST_MAIN(MonkeyTest)

#include "monkey_test.moc"
