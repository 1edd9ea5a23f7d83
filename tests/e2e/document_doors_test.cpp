#include <functional>

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMimeData>
#include <QProcess>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include "tests/dialog/support/UserHands.h"
#include "tests/e2e/QueueScene.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/PrintedSides.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

// The ways in which a document gets into the window. What is printed of it is what lp prints.

namespace {

const QString kTitle = u"letters"_s;
constexpr int kQueuePatience = 30000; // milliseconds that a queue may take on a busy machine

enum class Door { Dropped, Chosen, StandardInput, CommandLine, Desktop, FileManager };

struct DoorRow
{
    const char *name;
    Door door;
    QStringList documents; ///< "two", "three": numbered pages
};

const DoorRow kDoors[] = {
    {"dropped on the window", Door::Dropped, {u"two"_s}},
    {"several, dropped on the window", Door::Dropped, {u"three"_s, u"two"_s}},
    {"chosen among files", Door::Chosen, {u"three"_s}},
    {"standard input", Door::StandardInput, {u"two"_s}},
    {"named", Door::CommandLine, {u"three"_s}},
    {"several that are named", Door::CommandLine, {u"two"_s, u"three"_s}},
    {"opened with the desktop's entry", Door::Desktop, {u"two"_s, u"three"_s}},
    {"by an action of a file manager", Door::FileManager, {u"three"_s}},
};

// The words of the line that starts the program, with the files in the place of "%F".
QStringList startedBy(const QString &entry, const QStringList &files)
{
    QFile file(sourceFile(entry));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList words;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (!line.startsWith("Exec=") || !words.isEmpty())
            continue;
        for (const QString &word : QProcess::splitCommand(QString::fromUtf8(line.mid(5)))) {
            if (word == "%F"_L1)
                words += files;
            else
                words += word;
        }
    }
    return words;
}

/// Standard input is a file, for as long as this lives.
class StandardInput
{
public:
    explicit StandardInput(const QString &path) : m_former(::dup(STDIN_FILENO))
    {
        const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
        ::dup2(file, STDIN_FILENO);
        ::close(file);
    }
    ~StandardInput()
    {
        ::dup2(m_former, STDIN_FILENO);
        ::close(m_former);
    }
    Q_DISABLE_COPY_MOVE(StandardInput)

private:
    int m_former;
};

} // namespace

class DocumentDoorsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<UserFolders> m_folders;
    std::unique_ptr<QueueScene> m_scene;

    QStringList paths(const DoorRow &row) const
    {
        QStringList paths;
        for (const QString &name : row.documents)
            paths += m_folders->filePath(name + u".pdf"_s);
        return paths;
    }

    std::unique_ptr<WindowDriver> started(QStringList words) const
    {
        words.insert(1, u"-h"_s);
        words.insert(2, m_scene->cups.server());
        words.insert(3, u"-d"_s);
        words.insert(4, kQueue);
        words.insert(5, u"-t"_s);
        words.insert(6, kTitle);
        const ParsedCommandLine parsed = parseCommandLine(words);
        if (!parsed.commandLine)
            throw std::runtime_error(parsed.text.toStdString());
        CommandLine line = *parsed.commandLine;
        line.bundleRoots = {bundleRoot()};
        return std::make_unique<WindowDriver>(requestFor(line), WindowDriver::Activation::Yes);
    }

    static void drop(PrintWindow &window, const QStringList &files)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &file : files)
            urls += QUrl::fromLocalFile(file);
        data.setUrls(urls);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window, &event);
    }

    void choose(WindowDriver &window, const QString &file)
    {
        QTimer::singleShot(300, this, [&] {
            auto *files = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            QVERIFY(files);
            files->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(file);
            static_cast<QDialog *>(files)->accept();
        });
        QVERIFY(window.press(u"chooseDocuments"_s));
    }

    // The window with the documents in it.
    std::unique_ptr<WindowDriver> entered(const DoorRow &row)
    {
        const QString program = u"corvana-print"_s;
        const QStringList files = paths(row);
        switch (row.door) {
        case Door::CommandLine:
            return started(QStringList{program} + files);
        case Door::Desktop:
            return started(startedBy(u"packaging/desktop/corvana-print.desktop"_s, files));
        case Door::FileManager:
            return started(startedBy(u"packaging/desktop/corvana-print.action.desktop"_s, files));
        case Door::StandardInput: {
            const StandardInput input(files.constFirst());
            return started({program, u"-"_s});
        }
        case Door::Dropped:
        case Door::Chosen:
            break;
        }
        std::unique_ptr<WindowDriver> window = started({program});
        if (row.door == Door::Dropped)
            drop(window->dialog(), files);
        else
            choose(*window, files.constFirst());
        return window;
    }

    // The number of the queue's last job, once that has ended.
    int endedJob() const
    {
        const QList<KnownJob> jobs = m_scene->cups.jobs(kQueue);
        const int job = jobs.isEmpty() ? 0 : jobs.last().id;
        const bool ended = QTest::qWaitFor(
            [&] { return m_scene->cups.job(job).state >= IPP_JSTATE_CANCELED; }, kQueuePatience);
        return ended ? job : 0;
    }

    // All documents of a job, one after the other.
    QByteArray stream(int job) const
    {
        QByteArray data;
        for (const CapturedJob &captured : m_scene->device.jobs()) {
            if (captured.id == job)
                data += captured.data;
        }
        return data;
    }

    QByteArray printedByLp(const QStringList &files) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"CUPS_SERVERROOT"_s);
        QProcess lp;
        lp.setProcessEnvironment(environment);
        lp.start(u"lp"_s,
                 QStringList{u"-h"_s, m_scene->cups.server(), u"-d"_s, kQueue, u"-t"_s, kTitle} +
                     files);
        return lp.waitForFinished() && lp.exitCode() == 0 ? stream(endedJob()) : QByteArray();
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("cupsd is not installed");
        m_folders = std::make_unique<UserFolders>();
        m_folders->write(u"two.pdf"_s, numberedPdf("two", 2));
        m_folders->write(u"three.pdf"_s, numberedPdf("three", 3));
    }
    void init()
    {
        m_scene = std::make_unique<QueueScene>();
        m_scene->addQueue();
    }
    void cleanup() { m_scene.reset(); }
    void cleanupTestCase() { m_folders.reset(); }

    void whatComesInIsPrintedAsLpDoes_data() { addRows(kDoors); }
    void whatComesInIsPrintedAsLpDoes()
    {
        const DoorRow &row = currentRow(kDoors);
        {
            const std::unique_ptr<WindowDriver> window = entered(row);
            PrintTask &task = window->dialog().task();
            QTRY_COMPARE_WITH_TIMEOUT(task.documents().size(), row.documents.size(),
                                      kWindowPatience);
            QTRY_COMPARE_WITH_TIMEOUT(task.phase(), PrintTask::Phase::Ready, kWindowPatience);
            QTRY_VERIFY_WITH_TIMEOUT(window->canPress(u"print"_s), kWindowPatience);
            QVERIFY(window->pressPrint());
            QTRY_COMPARE_WITH_TIMEOUT(task.phase(), PrintTask::Phase::Ended, kQueuePatience);
            QVERIFY2(task.outcome().kind == JobOutcome::Kind::Printed,
                     qPrintable(task.outcome().text));
        }
        const QByteArray ours = stream(endedJob());
        QStringList sides;
        for (const QString &name : row.documents) {
            for (int page = 1; page <= (name == "two"_L1 ? 2 : 3); ++page)
                sides += u"%1 %2"_s.arg(name).arg(page);
        }
        QCOMPARE(printedSides(ours), sides);
        const QByteArray theirs = printedByLp(paths(row));
        QVERIFY(!theirs.isEmpty());
        QVERIFY(withoutDates(ours) == withoutDates(theirs));
    }
};

QTEST_MAIN(DocumentDoorsTest)

#include "document_doors_test.moc"
