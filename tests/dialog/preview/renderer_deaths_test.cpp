#include <atomic>
#include <csignal>
#include <random>
#include <thread>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/preview/PagePictures.h"
#include "tests/dialog/preview/ReferencePages.h"
#include "tests/dialog/preview/Renderers.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int kPatience = 20000; // milliseconds
constexpr int kPages = 40;
constexpr unsigned kSeed = 20261122;

/// Ends the renderers of this process again and again.
class Killer
{
public:
    Killer()
        : m_thread([this] {
              while (!m_ends) {
                  for (const pid_t renderer : runningRenderers())
                      ::kill(renderer, SIGKILL);
                  std::this_thread::sleep_for(1ms);
              }
          })
    {
    }
    ~Killer()
    {
        m_ends = true;
        m_thread.join();
    }

private:
    std::atomic<bool> m_ends = false;
    std::thread m_thread;
};

struct Trouble
{
    const char *manner;
    const char *name;
    const char *problem;
};
constexpr auto kDamaged = "This page cannot be shown: it is damaged.";
constexpr auto kTooLong = "This page cannot be shown: drawing it takes too long.";
constexpr auto kNoProgram = "Pages cannot be shown: the program that draws them does not run.";
const Trouble kTroubles[] = {
    {"dying at once", "dies before it is ready", kNoProgram},
    {"never ready", "never gets ready", kNoProgram},
    {"dying while opening", "dies while loading", kDamaged},
    {"dying while drawing", "dies while drawing", kDamaged},
    {"another status", "answers nonsense", kDamaged},
    {"looping at once", "loops while loading", kTooLong},
    {"looping", "loops while drawing", kTooLong},
};

} // namespace

class RendererDeathsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_file = writtenFile(m_folder.path(), u"pages.pdf"_s, numberedPdf("page", kPages));
    }
    void cleanup()
    {
        QVERIFY(runningRenderers().isEmpty());
        QVERIFY(runningRenderers("hostile_renderer").isEmpty());
    }

    void aRendererThatFailsTwiceCostsThePageASentence_data() { addRows(kTroubles); }
    void aRendererThatFailsTwiceCostsThePageASentence()
    {
        const Trouble &row = currentRow(kTroubles);
        PagePictures pictures(hostileRenderer(row.manner));
        QSignalSpy drawn(&pictures, &PagePictures::drawn);
        const PageToDraw page{m_file, 0, {256, 64}};
        pictures.want({page});
        QTRY_COMPARE_WITH_TIMEOUT(drawn.count(), 1, kPatience);
        QCOMPARE(pictures.problem(m_file, 0), QString::fromLatin1(row.problem));
        QVERIFY(pictures.picture(page).isNull());
        // And it is not tried again.
        pictures.want({page});
        QTest::qWait(100);
        QCOMPARE(drawn.count(), 1);
    }

    void aDocumentThatKillsAlwaysIsGivenUpAsAWhole()
    {
        PagePictures pictures(hostileRenderer("dying while drawing"));
        QSignalSpy drawn(&pictures, &PagePictures::drawn);
        QList<PageToDraw> pages;
        for (int page = 0; page < kPages; ++page)
            pages.append({m_file, page, {256, 64}});
        pictures.want(pages);
        QTRY_COMPARE_WITH_TIMEOUT(pictures.problem(m_file, kPages - 1),
                                  QString::fromLatin1(kDamaged), kPatience);
        QVERIFY2(drawn.count() < 10, qPrintable(QString::number(drawn.count())));
    }

    void aRendererThatIsKilledAtAnyMomentIsStartedAgain()
    {
        std::mt19937 random(kSeed);
        PagePictures pictures;
        for (int round = 0; round < kPages; ++round) {
            const PageToDraw page{m_file, round, {700, 990}};
            pictures.want({page});
            // From before it starts to after it has drawn.
            std::this_thread::sleep_for(std::chrono::microseconds(random() % 60000));
            const QList<pid_t> renderers = runningRenderers();
            QVERIFY(renderers.size() <= 1);
            for (const pid_t renderer : renderers)
                ::kill(renderer, SIGKILL);
            // One that dies after its page was drawn is to be gone before the next round.
            while (!renderers.isEmpty() && runningRenderers() == renderers)
                QTest::qSleep(1);
            QTRY_VERIFY_WITH_TIMEOUT(!pictures.picture(page).isNull() ||
                                         !pictures.problem(m_file, round).isEmpty(),
                                     kPatience);
            QCOMPARE(pictures.problem(m_file, round), QString());
        }
    }

    void aRendererThatIsKilledAllTheTimeIsGivenUpAndComesBackWhenTheFileIsForgotten()
    {
        PagePictures pictures;
        const PageToDraw page{m_file, 0, {700, 990}};
        {
            const Killer killer;
            pictures.want({page});
            QTRY_VERIFY_WITH_TIMEOUT(!pictures.problem(m_file, 0).isEmpty(), kPatience);
        }
        pictures.forget(m_file);
        QCOMPARE(pictures.problem(m_file, 0), QString());
        pictures.want({page});
        QTRY_VERIFY_WITH_TIMEOUT(!pictures.picture(page).isNull(), kPatience);
    }

    void aPageThatNobodyWantsAnyMoreIsNotWaitedFor()
    {
        RendererSettings settings = hostileRenderer("looping");
        settings.pagePatience = 1h;
        PagePictures pictures(settings);
        pictures.want({{m_file, 0, {256, 64}}});
        QTRY_VERIFY_WITH_TIMEOUT(!runningRenderers("hostile_renderer").isEmpty(), kPatience);
        QTest::qWait(100);
        pictures.want({});
        QTRY_VERIFY_WITH_TIMEOUT(runningRenderers("hostile_renderer").isEmpty(), kPatience);
        QCOMPARE(pictures.problem(m_file, 0), QString());
    }

    void theRendererEndsWithWhatItDrawsFor()
    {
        RendererSettings settings = hostileRenderer("looping");
        settings.pagePatience = 1h;
        QElapsedTimer timer;
        {
            PagePictures pictures(settings);
            pictures.want({{m_file, 0, {256, 64}}});
            QTRY_VERIFY_WITH_TIMEOUT(!runningRenderers("hostile_renderer").isEmpty(), kPatience);
            QTest::qWait(100);
            timer.start();
        }
        QVERIFY(timer.elapsed() < 1000);
    }

    void withoutTheProgramItIsSaid()
    {
        RendererSettings settings;
        settings.program = u"/nonexistent/corvana-page-renderer"_s;
        PagePictures pictures(settings);
        pictures.want({{m_file, 0, {256, 64}}});
        QTRY_COMPARE_WITH_TIMEOUT(pictures.problem(m_file, 0), QString::fromLatin1(kNoProgram),
                                  kPatience);
    }

private:
    QTemporaryDir m_folder;
    QString m_file;
};

QTEST_GUILESS_MAIN(RendererDeathsTest)
#include "renderer_deaths_test.moc"
