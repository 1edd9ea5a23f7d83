#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

#include "dialog/preview/RendererProcess.h"
#include "tests/dialog/preview/ReferencePages.h"
#include "tests/dialog/preview/Renderers.h"
#include "tests/support/LabelledPdf.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Outcome = RendererProcess::Outcome;

namespace {

constexpr quint32 kDocument = 5;
constexpr QSize kSize(256, 64);

/// Of one page that was asked for twice: a renderer may be caught at any of these steps.
struct Answers
{
    Outcome started = Outcome::Interrupted;
    Outcome opened = Outcome::Interrupted;
    Outcome drawn = Outcome::Interrupted;
    Outcome drawnAgain = Outcome::Interrupted;
};

struct Manner
{
    const char *name;
    Answers answers; // the first that is not Done ends it
};
const Manner kManners[] = {
    {"never ready", {Outcome::CannotStart}},
    {"dying at once", {Outcome::CannotStart}},
    {"nonsense at once", {Outcome::CannotStart}},
    {"another version", {Outcome::Done, Outcome::Done, Outcome::Died}},
    {"another sequence", {Outcome::Done, Outcome::Done, Outcome::Died}},
    {"another kind", {Outcome::Done, Outcome::Done, Outcome::Died}},
    {"another status", {Outcome::Done, Outcome::Done, Outcome::Died}},
    {"refusing", {Outcome::Done, Outcome::Done, Outcome::Died}},
    {"a request", {Outcome::Done, Outcome::Died}},
    {"an empty message", {Outcome::Done, Outcome::Died}},
    {"a short message", {Outcome::Done, Outcome::Died}},
    {"a long message", {Outcome::Done, Outcome::Died}},
    {"a descriptor", {Outcome::Done, Outcome::Done, Outcome::Died}},
    {"no pages", {Outcome::Done, Outcome::Died}},
    {"endless pages", {Outcome::Done, Outcome::Died}},
    {"two answers", {Outcome::Done, Outcome::Done, Outcome::Done, Outcome::Died}},
    {"answers before questions", {Outcome::Done, Outcome::Died}},
    {"looping", {Outcome::Done, Outcome::Done, Outcome::OutOfTime}},
    {"looping at once", {Outcome::Done, Outcome::OutOfTime}},
    {"dying while opening", {Outcome::Done, Outcome::Died}},
    {"dying while drawing", {Outcome::Done, Outcome::Done, Outcome::Died}},
};

struct Sides
{
    const char *name;
    QSize size;
    Outcome outcome;
};
const Sides kSides[] = {
    {"one pixel", {1, 1}, Outcome::Done},
    {"no width", {0, 10}, Outcome::TooLarge},
    {"negative", {-5, 10}, Outcome::TooLarge},
    {"too wide", {16385, 1}, Outcome::TooLarge},
    {"too many pixels", {8001, 8000}, Outcome::TooLarge},
    {"in several bands", {5000, 7000}, Outcome::Done},
};

struct Kernel
{
    const char *name; ///< what it lacks
    bool hasSeccomp;
    bool hasLandlock;
};
const Kernel kKernels[] = {
    {"landlock", true, false},
    {"seccomp", false, true},
    {"both", false, false},
};

bool isOpaque(const QImage &picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        if (std::any_of(row, row + picture.width(),
                        [](QRgb pixel) { return qAlpha(pixel) != 255; }))
            return false;
    }
    return true;
}

} // namespace

class RendererProcessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_file =
            writtenFile(m_folder.path(), u"three.pdf"_s, numberedPdf("page", {kA4, kLetter, kA5}));
    }

    void whateverARendererAnswersNothingHappensButThatItIsGone_data() { addRows(kManners); }
    void whateverARendererAnswersNothingHappensButThatItIsGone()
    {
        const Manner &row = currentRow(kManners);
        RendererProcess process(hostileRenderer(row.name));
        Answers answers;
        int pages = 0;
        QImage picture;
        answers.started = process.start();
        if (answers.started == Outcome::Done)
            answers.opened = process.open(kDocument, m_file, {}, &pages);
        if (answers.opened == Outcome::Done)
            answers.drawn = process.draw(kDocument, 0, kSize, &picture);
        if (answers.drawn == Outcome::Done)
            answers.drawnAgain = process.draw(kDocument, 0, kSize, &picture);
        QCOMPARE(answers.started, row.answers.started);
        QCOMPARE(answers.opened, row.answers.opened);
        QCOMPARE(answers.drawn, row.answers.drawn);
        QCOMPARE(answers.drawnAgain, row.answers.drawnAgain);
        QVERIFY(!process.isRunning());
        QVERIFY(runningRenderers("hostile_renderer").isEmpty());
    }

    void aPictureIsNobodyElsesAndOpaque()
    {
        RendererProcess process(hostileRenderer("writing on"));
        int pages = 0;
        QImage picture;
        QCOMPARE(process.start(), Outcome::Done);
        QCOMPARE(process.open(kDocument, m_file, {}, &pages), Outcome::Done);
        QCOMPARE(process.draw(kDocument, 0, kSize, &picture), Outcome::Done);
        QCOMPARE(picture.format(), QImage::Format_RGB32);
        QVERIFY(isOpaque(picture));
        const QImage before = picture.copy();
        QTest::qSleep(50); // the renderer writes on
        QVERIFY(picture == before);
    }

    void aRunningRendererSaysHowItIsLockedIn()
    {
        RendererProcess process(RendererSettings::shipped());
        QCOMPARE(process.start(), Outcome::Done);
        if (process.locks().filtersCalls == 0 || process.locks().fencesFiles == 0)
            QSKIP("This system lacks Landlock or seccomp.");
        QCOMPARE(runningRenderers(), QList<pid_t>{process.processId()});
        QFile status(u"/proc/%1/status"_s.arg(process.processId()));
        QVERIFY(status.open(QIODevice::ReadOnly));
        const QByteArray text = status.readAll();
        for (const char *line :
             {"NoNewPrivs:\t1\n", "Seccomp:\t2\n", "CapEff:\t0000000000000000\n"})
            QVERIFY2(text.contains(line), text.constData());
    }

    void olderKernelsDrawToo_data() { addRows(kKernels); }
    void olderKernelsDrawToo()
    {
        const Kernel &row = currentRow(kKernels);
        RendererSettings settings = RendererSettings::shipped();
        qputenv("OLD_KERNEL_RUNS", settings.program.toLocal8Bit());
        qputenv("OLD_KERNEL_LACKS", row.name);
        settings.program = QCoreApplication::applicationDirPath() + u"/old_kernel"_s;
        const QRegularExpression warning(u"This system has no "_s);
        QTest::ignoreMessage(QtWarningMsg, warning);
        if (!row.hasSeccomp && !row.hasLandlock)
            QTest::ignoreMessage(QtWarningMsg, warning);
        RendererProcess process(settings);
        QCOMPARE(process.start(), Outcome::Done);
        QCOMPARE(process.locks().filtersCalls == 1, row.hasSeccomp);
        QCOMPARE(process.locks().fencesFiles > 0, row.hasLandlock);
        int pages = 0;
        QImage picture;
        QCOMPARE(process.open(kDocument, m_file, {}, &pages), Outcome::Done);
        QCOMPARE(process.draw(kDocument, 0, {595, 842}, &picture), Outcome::Done);
        QCOMPARE(largestDifference(picture, drawnByPdftoppm(m_file, 0, {595, 842})), 0);
    }

    void documentsAreOpenedListedDrawnAndClosed()
    {
        RendererProcess process(RendererSettings::shipped());
        QCOMPARE(process.start(), Outcome::Done);
        int pages = 0;
        QCOMPARE(process.open(kDocument, m_file, {}, &pages), Outcome::Done);
        QCOMPARE(pages, 3);
        QList<QSizeF> sizes;
        QCOMPARE(process.listSizes(kDocument, pages, &sizes), Outcome::Done);
        QCOMPARE(sizes, (QList<QSizeF>{kA4, kLetter, kA5}));
        QImage picture;
        QCOMPARE(process.draw(kDocument, 3, kSize, &picture), Outcome::Damaged); // no such page
        QCOMPARE(process.draw(kDocument, 2, kSize, &picture), Outcome::Done);
        QCOMPARE(picture.size(), kSize);
        QCOMPARE(process.close(kDocument), Outcome::Done);
        QCOMPARE(process.open(kDocument, m_file, {}, &pages), Outcome::Done); // its number is free
    }

    void manySizesTakeSeveralMessages()
    {
        QList<QSizeF> papers(700, kA4);
        papers[0] = papers[255] = papers[256] = papers[699] = kA5;
        const QString file =
            writtenFile(m_folder.path(), u"many.pdf"_s, numberedPdf("page", papers));
        RendererProcess process(RendererSettings::shipped());
        QCOMPARE(process.start(), Outcome::Done);
        int pages = 0;
        QCOMPARE(process.open(kDocument, file, {}, &pages), Outcome::Done);
        QList<QSizeF> sizes;
        QCOMPARE(process.listSizes(kDocument, pages, &sizes), Outcome::Done);
        QCOMPARE(sizes, papers);
    }

    void labelsAreThoseOfTheDocument()
    {
        const QByteArray labels = "0 << /S /r >> 4 << /S /D >> 69 << /P (A-) /S /D >>";
        const QString file =
            writtenFile(m_folder.path(), u"labelled.pdf"_s, labelledPdf("page", 70, labels));
        RendererProcess process(RendererSettings::shipped());
        QCOMPARE(process.start(), Outcome::Done);
        int pages = 0;
        QCOMPARE(process.open(kDocument, file, {}, &pages), Outcome::Done);
        QStringList found;
        QCOMPARE(process.listLabels(kDocument, pages, &found), Outcome::Done);
        QCOMPARE(found.size(), 70); // in two messages
        QCOMPARE(found.first(5), (QStringList{u"i"_s, u"ii"_s, u"iii"_s, u"iv"_s, u"1"_s}));
        QCOMPARE(found.constLast(), u"A-1"_s);
        // A document without labels calls its pages by their numbers.
        QCOMPARE(process.open(2, m_file, {}, &pages), Outcome::Done);
        QCOMPARE(process.listLabels(2, pages, &found), Outcome::Done);
        QCOMPARE(found, (QStringList{QString(), QString(), QString()}));
    }

    void hostileLabelsAreBoundedAndHarmless()
    {
        const QByteArray labels = "0 << /P (" + QByteArray(5000, 'x') +
                                  ") >> 1 << /P (a\\033[2J\\nb) >> 2 << /P <FEFF0041202E0042> >> "
                                  "3 << /P <FEFFD83DDE0000E9> >> 4 << /P <FEFFDE00D83D> >>";
        const QString file =
            writtenFile(m_folder.path(), u"hostile-labels.pdf"_s, labelledPdf("page", 5, labels));
        RendererProcess process(RendererSettings::shipped());
        QCOMPARE(process.start(), Outcome::Done);
        int pages = 0;
        QCOMPARE(process.open(kDocument, file, {}, &pages), Outcome::Done);
        QStringList found;
        QCOMPARE(process.listLabels(kDocument, pages, &found), Outcome::Done);
        QCOMPARE(found.value(0), QString(renderer::kLabelRoom, u'x'));
        QCOMPARE(found.value(1), u"a?[2J?b"_s);
        QCOMPARE(found.value(2), u"A<U+202E>B"_s);
        QCOMPARE(found.value(3), u"\U0001F600\u00e9"_s);
        QCOMPARE(found.value(4), u"\ufffd\ufffd"_s); // halves of a character
    }

    void aPasswordOpensWhatIsProtected()
    {
        const QString file = m_folder.filePath(u"protected.pdf"_s);
        QCOMPARE(QProcess::execute(u"qpdf"_s, {u"--encrypt"_s, u"secret"_s, u"owner"_s, u"256"_s,
                                               u"--"_s, m_file, file}),
                 0);
        RendererProcess process(RendererSettings::shipped());
        QCOMPARE(process.start(), Outcome::Done);
        int pages = 0;
        QCOMPARE(process.open(1, file, {}, &pages), Outcome::PasswordNeeded);
        QCOMPARE(process.open(1, file, u"guess"_s, &pages), Outcome::PasswordNeeded);
        QCOMPARE(process.open(1, file, QString(200, u'x'), &pages), Outcome::PasswordNeeded);
        QCOMPARE(process.open(1, file, u"secret"_s, &pages), Outcome::Done);
        QCOMPARE(process.open(2, file, u"owner"_s, &pages), Outcome::Done);
        QCOMPARE(pages, 3);
    }

    void whatIsNoFileIsUnreadable()
    {
        RendererProcess process(RendererSettings::shipped());
        QCOMPARE(process.start(), Outcome::Done);
        const QString pipe = m_folder.filePath(u"pipe"_s);
        QCOMPARE(::mkfifo(pipe.toLocal8Bit().constData(), 0600), 0);
        int pages = 0;
        for (const QString &file : {pipe, m_folder.path(), m_folder.filePath(u"absent"_s)})
            QCOMPARE(process.open(kDocument, file, {}, &pages), Outcome::Unreadable);
        const QString empty = writtenFile(m_folder.path(), u"empty.pdf"_s, {});
        QCOMPARE(process.open(kDocument, empty, {}, &pages), Outcome::Damaged);
        QVERIFY(process.isRunning());
    }

    void onlyPicturesThatMakeSenseAreAskedFor_data() { addRows(kSides); }
    void onlyPicturesThatMakeSenseAreAskedFor()
    {
        const Sides &row = currentRow(kSides);
        RendererProcess process(RendererSettings::shipped());
        QCOMPARE(process.start(), Outcome::Done);
        int pages = 0;
        QCOMPARE(process.open(kDocument, m_file, {}, &pages), Outcome::Done);
        QImage picture;
        QCOMPARE(process.draw(kDocument, 0, row.size, &picture), row.outcome);
        QVERIFY(process.isRunning());
        if (row.outcome == Outcome::Done)
            QVERIFY(isOpaque(picture));
    }

    void bandsLeaveNoTrace()
    {
        // 35 million pixels are drawn in four bands, whose seams must not be seen.
        constexpr QSize large(5000, 7000);
        RendererProcess process(RendererSettings::shipped());
        QCOMPARE(process.start(), Outcome::Done);
        int pages = 0;
        QCOMPARE(process.open(kDocument, m_file, {}, &pages), Outcome::Done);
        QImage picture;
        QCOMPARE(process.draw(kDocument, 0, large, &picture), Outcome::Done);
        QCOMPARE(largestDifference(picture, drawnByPdftoppm(m_file, 0, large)), 0);
    }

private:
    QTemporaryDir m_folder;
    QString m_file;
};

QTEST_GUILESS_MAIN(RendererProcessTest)
#include "renderer_process_test.moc"
