#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Phase = PrintTask::Phase;

namespace {

/// A text that whoever reads it first has to wait for, as on a disk that does not answer. Everybody
/// else finds an ordinary text under its name.
class HeldText
{
public:
    /// To be made before anybody reads it.
    explicit HeldText(const QString &path) : m_path(path), m_pipe(path + u".pipe"_s)
    {
        // Renamed, a pipe is still the one that is being read.
        if (::mkfifo(name().constData(), 0600) != 0 ||
            ::link(name().constData(), QFile::encodeName(m_pipe).constData()) != 0)
            qFatal("no pipe");
    }
    ~HeldText() { release(); }
    Q_DISABLE_COPY_MOVE(HeldText)

    /// Waits for the one who waits. Errors: false when nobody comes.
    bool hold()
    {
        const bool comes = QTest::qWaitFor(
            [this] {
                m_writer = ::open(QFile::encodeName(m_pipe).constData(), O_WRONLY | O_NONBLOCK);
                return m_writer >= 0;
            },
            10000);
        QFile::remove(m_path);
        writeFile(m_path, "An ordinary text.\n");
        return comes;
    }
    void release()
    {
        if (m_writer >= 0)
            ::close(std::exchange(m_writer, -1));
    }

private:
    QByteArray name() const { return QFile::encodeName(m_path); }

    QString m_path;
    QString m_pipe;
    int m_writer = -1;
};

} // namespace

/// Characters that no font has are said before a text is printed, however long that takes to find
/// out.
class TaskTextsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TaskScene> m_scene;
    std::unique_ptr<HeldText> m_held;

    PrintTask &task() { return *m_scene->task; }
    ScriptedFace &face() { return m_scene->face; }

    Document text(const QString &name, const QByteArray &content)
    {
        const QString path = writeFile(m_scene->filter.path(name), content);
        return {path, u"text/plain"_s, name};
    }
    PrintRequest requestOf(const QList<Document> &documents)
    {
        PrintRequest request = m_scene->request(officePrinter());
        request.documents = documents;
        return request;
    }
    // A text that cannot be read yet, and behind it one with a character that Unicode does not
    // have.
    void openWhileATextIsHeld()
    {
        const QString path = m_scene->filter.path(u"held.txt"_s);
        m_held = std::make_unique<HeldText>(path);
        m_scene->open(
            requestOf({{path, u"text/plain"_s, u"held.txt"_s}, text(u"odd.txt"_s, "a\u0378b\n")}));
        QVERIFY(m_held->hold());
    }
    QString warning() { return face().warnings.value(0); }

private Q_SLOTS:
    void init() { m_scene = std::make_unique<TaskScene>(); }
    void cleanup()
    {
        m_held.reset(); // or the task would wait for whoever reads it
        m_scene.reset();
    }

    void whatNoFontHasIsSaidBeforeItIsPrinted()
    {
        m_scene->open(requestOf({text(u"notes.txt"_s, "a\u0378b\n")}));
        face().printsWithout = false;
        task().print();
        QTRY_COMPARE(face().warnings.size(), 1);
        QVERIFY2(warning().contains(u"U+0378"_s), qPrintable(warning()));
        QCOMPARE(task().phase(), Phase::Ready);
        QVERIFY(!m_scene->filter.hasOutput());
        face().printsWithout = true;
        task().print();
        QVERIFY(m_scene->reaches(Phase::Ended));
        QVERIFY(m_scene->filter.hasOutput());
    }

    void aTextThatIsStillLookedThroughHoldsUpTheJobAndNotTheWindow()
    {
        openWhileATextIsHeld();
        QElapsedTimer timer;
        timer.start();
        task().print();
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(task().phase(), Phase::Printing);
        QTest::qWait(300);
        QVERIFY(face().warnings.isEmpty());
        face().printsWithout = false;
        m_held->release();
        QTRY_COMPARE(face().warnings.size(), 1);
        QVERIFY2(warning().contains(u"U+0378"_s), qPrintable(warning()));
        QCOMPARE(task().phase(), Phase::Ready);
        QVERIFY(!m_scene->filter.hasOutput());
    }

    void whatIsNotKnownInTimeIsSaid()
    {
        openWhileATextIsHeld();
        task().print();
        QTRY_COMPARE_WITH_TIMEOUT(face().warnings.size(), 1, 15000);
        QVERIFY2(warning().startsWith(u"Not all of the text could be looked through"_s),
                 qPrintable(warning()));
        QVERIFY(m_scene->reaches(Phase::Ended)); // somebody wants it all the same
        QVERIFY(m_scene->filter.hasOutput());
        QCOMPARE(face().warnings.size(), 1);
    }

    void aJobThatWaitsForItsTextsCanBeTakenBack()
    {
        openWhileATextIsHeld();
        task().print();
        task().cancel();
        QCOMPARE(task().phase(), Phase::Ready);
        QCOMPARE(face().outcomes.value(0).kind, JobOutcome::Kind::Canceled);
        m_held->release();
        QTest::qWait(300);
        QVERIFY(face().warnings.isEmpty());
        QCOMPARE(task().phase(), Phase::Ready);
    }

    void aTaskThatIsInterruptedWaitsForNoText()
    {
        openWhileATextIsHeld();
        task().print();
        task().interrupt(PrintTask::OnInterrupt::CancelJob);
        QCOMPARE(task().phase(), Phase::Ended);
        m_held->release();
        QTest::qWait(300);
        QVERIFY(face().warnings.isEmpty());
        QVERIFY(!m_scene->filter.hasOutput());
    }
};

QTEST_MAIN(TaskTextsTest)

#include "task_texts_test.moc"
