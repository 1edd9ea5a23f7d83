#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/job/FileBytes.h"
#include "dialog/task/TaskHistory.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// Documents that are chosen once the printer is open.
class TaskDocumentsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TaskScene> m_scene;
    QTemporaryDir m_folder;
    QStringList m_said;

    PrintTask &task() { return *m_scene->task; }
    QString file(const QString &name, const QByteArray &content = "Some words.\n")
    {
        return writeFile(m_folder.filePath(name), content);
    }
    QStringList titles()
    {
        QStringList titles;
        for (const Document &document : task().documents())
            titles += document.title;
        return titles;
    }
    QString makePipe(const QString &name)
    {
        const QString path = m_folder.filePath(name);
        return ::mkfifo(QFile::encodeName(path).constData(), 0600) == 0 ? path : QString();
    }
    /// How many descriptors of this program lead to a file.
    static qsizetype openings(const QString &path)
    {
        const QFileInfoList all =
            QDir(u"/proc/self/fd"_s)
                .entryInfoList(QDir::System | QDir::Files | QDir::NoDotAndDotDot);
        return std::count_if(all.cbegin(), all.cend(),
                             [&](const QFileInfo &one) { return one.symLinkTarget() == path; });
    }
    static bool isOpen(const QString &path) { return openings(path) > 0; }
    /// As a window is opened that has no document.
    void openWithout()
    {
        PrintRequest request = m_scene->request(officePrinter());
        request.documents.clear();
        request.title.clear();
        request.output.clear();
        m_scene->open(request);
        connect(&task(), &PrintTask::said, this,
                [this](const TaskMessage &message) { m_said += message.text; });
        task().bringUp();
        QCOMPARE(task().phase(), PrintTask::Phase::Ready);
    }

private Q_SLOTS:
    void init()
    {
        m_scene = std::make_unique<TaskScene>();
        m_said.clear();
        QDir::setCurrent(m_folder.path());
    }
    void cleanup() { m_scene.reset(); }

    void nothingIsPrintedWithoutADocument()
    {
        openWithout();
        QVERIFY(!task().canPrint());
        QStringList refused;
        connect(&task(), &PrintTask::refused, this,
                [&](const TaskRefusal &refusal) { refused = refusal.problems; });
        task().print();
        QCOMPARE(refused, QStringList{u"Choose a document to print."_s});
        QCOMPARE(task().phase(), PrintTask::Phase::Ready);
    }

    // The window goes on while another program writes.
    void aPipeIsReadBesideTheWindow()
    {
        openWithout();
        const QString pipe = m_folder.filePath(u"pipe"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QElapsedTimer time;
        time.start();
        task().addDocuments(
            {file(u"letter.txt"_s), u"/nonexistent.pdf"_s, pipe, file(u"more.txt"_s)});
        QVERIFY2(time.elapsed() < 2000, qPrintable(QString::number(time.elapsed())));
        QCOMPARE(titles(), QStringList{u"letter.txt"_s});
        QVERIFY2(m_said.last().contains(u"pipe is being read"_s), qPrintable(m_said.last()));
        QVERIFY2(m_said.last().contains(u"/nonexistent.pdf"_s), qPrintable(m_said.last()));
        // Nobody prints the others for all of them.
        m_said.clear();
        task().print();
        QCOMPARE(task().phase(), PrintTask::Phase::Ready);
        QVERIFY(m_said.value(0).contains(u"pipe is being read"_s));
        task().addDocuments({u"/missing.pdf"_s});
        QVERIFY2(m_said.last().contains(u"/missing.pdf"_s), qPrintable(m_said.last()));
        const int writer = ::open(QFile::encodeName(pipe).constData(), O_WRONLY);
        QVERIFY(writer >= 0);
        QCOMPARE(::write(writer, "Some ", 5), 5);
        QTest::qWait(200);
        QCOMPARE(titles().size(), 1);
        QCOMPARE(::write(writer, "words.\n", 7), 7);
        ::close(writer);
        QTRY_COMPARE(titles(), (QStringList{u"letter.txt"_s, u"pipe"_s, u"more.txt"_s}));
        QVERIFY2(m_said.last().contains(u"/missing.pdf"_s), qPrintable(m_said.last()));
        QVERIFY2(!m_said.last().contains(u"is being read"_s), qPrintable(m_said.last()));
        QVERIFY(task().history().canUndo());
        QFile::remove(pipe);
    }

    void standardInputIsReadBesideTheWindow()
    {
        openWithout();
        int ends[2];
        QCOMPARE(::pipe2(ends, O_CLOEXEC), 0);
        const int input = ::dup(STDIN_FILENO);
        ::dup2(ends[0], STDIN_FILENO);
        task().addDocuments({kStandardInput});
        QCOMPARE(m_said.last(), u"Standard input is being read."_s);
        QCOMPARE(::write(ends[1], "Some words.\n", 12), 12);
        ::close(ends[1]);
        QTRY_COMPARE(titles(), QStringList{u"standard input"_s});
        ::dup2(input, STDIN_FILENO);
        ::close(input);
        ::close(ends[0]);
    }

    void aPipeThatNobodyWritesIntoIsLeftWithoutWaiting_data()
    {
        QTest::addColumn<bool>("isCanceled");
        QTest::addColumn<bool>("hasWriter");
        QTest::newRow("canceled") << true << false;
        QTest::newRow("canceled, and somebody has it open") << true << true;
        QTest::newRow("the window is closed") << false << false;
        QTest::newRow("the window is closed, and somebody has it open") << false << true;
    }
    void aPipeThatNobodyWritesIntoIsLeftWithoutWaiting()
    {
        QFETCH(bool, isCanceled);
        QFETCH(bool, hasWriter);
        openWithout();
        const QString pipe = makePipe(u"idle"_s);
        std::function<void()> cancel;
        connect(&task(), &PrintTask::said, this,
                [&](const TaskMessage &message) { cancel = message.take; });
        task().addDocuments({pipe});
        QTRY_VERIFY(isOpen(pipe));
        const int writer =
            hasWriter ? ::open(QFile::encodeName(pipe).constData(), O_WRONLY | O_CLOEXEC) : -1;
        if (hasWriter)
            QCOMPARE(::write(writer, "Some ", 5), 5);
        QElapsedTimer time;
        time.start();
        if (isCanceled)
            cancel();
        else
            m_scene.reset();
        // Its reader lets go of the pipe.
        QTRY_COMPARE(openings(pipe), hasWriter ? 1 : 0);
        QVERIFY2(time.elapsed() < 3000, qPrintable(QString::number(time.elapsed())));
        if (hasWriter)
            ::close(writer);
        if (isCanceled)
            QCOMPARE(titles(), QStringList());
        QFile::remove(pipe);
    }

    // It was asked for as well.
    void whatStandsBehindACanceledPipeIsReadAllTheSame()
    {
        openWithout();
        const QString pipe = makePipe(u"canceled"_s);
        std::function<void()> cancel;
        connect(&task(), &PrintTask::said, this,
                [&](const TaskMessage &message) { cancel = message.take; });
        task().addDocuments({pipe, file(u"behind.txt"_s)});
        cancel();
        QTRY_COMPARE(titles(), QStringList{u"behind.txt"_s});
        QFile::remove(pipe);
    }

    // A job has the documents that it began with.
    void whatIsReadWhileAJobRunsWaitsForItsEnd()
    {
        openWithout();
        const QString pipe = makePipe(u"left"_s);
        task().addDocuments({file(u"first.txt"_s)});
        std::function<void()> cancel;
        connect(&task(), &PrintTask::said, this,
                [&](const TaskMessage &message) { cancel = message.take; });
        task().addDocuments({pipe, file(u"behind.txt"_s)});
        cancel();
        task().print(); // before the next one is begun
        QVERIFY(m_scene->reaches(PrintTask::Phase::Ended));
        QTest::qWait(100);
        QCOMPARE(titles(), QStringList{u"first.txt"_s});
        QFile::remove(pipe);
    }

    // Each printer that is chosen takes the messages of the former one away.
    void whatIsBeingReadIsSaidWhicheverPrinterIsChosen()
    {
        PrintRequest request =
            m_scene->request({m_scene->printer(u"one"_s, officePrinter().text()),
                              m_scene->printer(u"other"_s, smallPrinter().text())});
        m_scene->open(request);
        task().bringUp();
        connect(&task(), &PrintTask::said, this,
                [this](const TaskMessage &message) { m_said += message.text; });
        connect(&task(), &PrintTask::unsaid, this, [this] { m_said.clear(); });
        const QString pipe = makePipe(u"long"_s);
        task().addDocuments({pipe});
        QVERIFY(m_said.value(0).contains(u"long is being read"_s));
        task().choosePrinter(request.printers.at(1));
        QVERIFY2(m_said.join(u' ').contains(u"long is being read"_s),
                 qPrintable(m_said.join(u' ')));
        QFile::remove(pipe);
    }

    // No program can be told its name, so that it is copied, however large it is.
    void aFileWithANameOfStrayBytesIsReadBesideTheWindow()
    {
        openWithout();
        const QByteArray path = QFile::encodeName(m_folder.path()) + "/\xff.txt";
        const int made = ::open(path.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        QCOMPARE(::write(made, "Some words.\n", 12), 12);
        ::close(made);
        task().addDocuments({nameOfBytes(path)});
        QCOMPARE(titles(), QStringList());
        QTRY_COMPARE(titles().size(), 1);
        ::unlink(path.constData());
    }

    void aPipeOfTheCommandLineComesBehindTheOthers()
    {
        const QString pipe = m_folder.filePath(u"first"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        PrintRequest request = m_scene->request(officePrinter());
        const QString own = request.documents.constFirst().title;
        request.toRead = {pipe, file(u"after.txt"_s)};
        m_scene->open(request);
        task().bringUp();
        task().propose(u"Media"_s, u"Card"_s);
        QTest::qWait(1); // the step is recorded
        const int writer = ::open(QFile::encodeName(pipe).constData(), O_WRONLY);
        QCOMPARE(::write(writer, "Words.\n", 7), 7);
        ::close(writer);
        const QStringList all{own, u"first"_s, u"after.txt"_s};
        QTRY_COMPARE(titles(), all);
        // Nobody who takes back what he has done loses them.
        QCOMPARE(task().history().undoText(), u"Undo Paper Type"_s);
        task().history().undo();
        QCOMPARE(titles(), all);
        QVERIFY(!task().history().canUndo());
        task().history().redo();
        QCOMPARE(titles(), all);
        QCOMPARE(m_scene->session().markedChoice(u"Media"_s), u"Card"_s);
        // What is added then is a step.
        task().addDocuments({file(u"more.txt"_s)});
        QCOMPARE(task().history().undoText(), u"Undo Documents"_s);
        QFile::remove(pipe);
    }

    void aDocumentThatIsAddedIsPrinted()
    {
        openWithout();
        QSignalSpy changed(&task(), &PrintTask::documentsChanged);
        QSignalSpy shown(&task(), &PrintTask::settingsChanged);
        QSignalSpy proposed(&task(), &PrintTask::outputProposed);
        task().addDocuments({file(u"letter.txt"_s)});
        QCOMPARE(titles(), QStringList{u"letter.txt"_s});
        QCOMPARE(changed.size(), 1);
        QVERIFY(!shown.isEmpty());
        QVERIFY(task().canPrint());
        QCOMPARE(task().request().title, u"letter.txt"_s);
        // It has a file to be printed to, with the ending of the printer.
        QVERIFY(!proposed.isEmpty());
        QCOMPARE(task().output(), m_folder.filePath(u"letter.ps"_s));
        task().print();
        QVERIFY(m_scene->reaches(PrintTask::Phase::Ended));
        QVERIFY(task().outcome().isDone());
    }

    void whatCannotBePrintedIsSaidAndTheRestIsTaken()
    {
        openWithout();
        const QString program = file(u"program"_s, QByteArray("\x7f"
                                                              "ELF\x02\x01\x01\0\0\0",
                                                              10));
        task().addDocuments({file(u"a.txt"_s), m_folder.filePath(u"missing.pdf"_s), program,
                             m_folder.path(), file(u"b.txt"_s), file(u"empty.txt"_s, "")});
        QCOMPARE(titles(), (QStringList{u"a.txt"_s, u"b.txt"_s}));
        QCOMPARE(m_said.size(), 1);
        const QStringList problems = m_said.constFirst().split(u'\n');
        QCOMPARE(problems.size(), 4);
        // In the words of the command line.
        QString expected;
        inspectDocument(m_folder.filePath(u"missing.pdf"_s), &expected);
        QCOMPARE(problems.at(0), expected);
        QVERIFY2(problems.at(1).contains(u"program"_s), qPrintable(problems.at(1)));
        QVERIFY2(problems.at(2).contains(u"folder"_s), qPrintable(problems.at(2)));
        QVERIFY2(problems.at(3).contains(u"empty"_s), qPrintable(problems.at(3)));
    }

    void documentsArePutInOrderAndRemoved()
    {
        openWithout();
        task().addDocuments({file(u"a.txt"_s), file(u"b.txt"_s), file(u"c.txt"_s)});
        QCOMPARE(task().request().title, u"a.txt and 2 more"_s);
        task().moveDocument(2, 0);
        QCOMPARE(titles(), (QStringList{u"c.txt"_s, u"a.txt"_s, u"b.txt"_s}));
        task().moveDocument(0, 1);
        QCOMPARE(titles(), (QStringList{u"a.txt"_s, u"c.txt"_s, u"b.txt"_s}));
        task().removeDocument(1);
        QCOMPARE(titles(), (QStringList{u"a.txt"_s, u"b.txt"_s}));
        QSignalSpy changed(&task(), &PrintTask::documentsChanged);
        for (const int index : {-1, 2, 1000})
            task().removeDocument(index);
        task().moveDocument(0, 2);
        task().moveDocument(-1, 0);
        QVERIFY(changed.isEmpty());
        task().removeDocument(0);
        task().removeDocument(0);
        QVERIFY(!task().canPrint());
    }

    // Each step that can be undone has the list.
    void aListThatChangesAllDayTakesNoMoreRoom()
    {
        openWithout();
        task().addDocuments({file(u"a.txt"_s)});
        for (int i = 0; i < 50; ++i) {
            task().addDocuments({file(u"b.txt"_s)});
            task().moveDocument(1, 0);
            task().removeDocument(0);
        }
        QCOMPARE(titles(), QStringList{u"a.txt"_s});
        QVERIFY2(task().documents().capacity() <= 4,
                 qPrintable(QString::number(task().documents().capacity())));
    }

    void namesThatSomebodyHasChosenStay()
    {
        openWithout();
        PrintRequest request = m_scene->request(officePrinter());
        request.title = u"Named"_s;
        request.titleWasNamed = true;
        request.output = m_folder.filePath(u"named.ps"_s);
        request.outputWasNamed = true;
        m_scene->open(request);
        task().bringUp();
        task().addDocuments({file(u"a.txt"_s)});
        QCOMPARE(task().request().title, u"Named"_s);
        QCOMPARE(task().output(), m_folder.filePath(u"named.ps"_s));
    }

    void aFileThatTheUserNamedStays()
    {
        openWithout();
        task().addDocuments({file(u"a.txt"_s)});
        task().setOutput(m_folder.filePath(u"mine.ps"_s));
        task().addDocuments({file(u"b.txt"_s)});
        QCOMPARE(task().output(), m_folder.filePath(u"mine.ps"_s));
    }

    void documentsStayTheSameWhileTheyArePrinted()
    {
        openWithout();
        task().addDocuments({file(u"a.txt"_s), file(u"b.txt"_s)});
        task().print();
        QVERIFY(!task().canChangeDocuments());
        task().removeDocument(0);
        task().addDocuments({file(u"c.txt"_s)});
        task().moveDocument(0, 1);
        QCOMPARE(titles(), (QStringList{u"a.txt"_s, u"b.txt"_s}));
        QVERIFY(m_scene->reaches(PrintTask::Phase::Ended));
    }
};

QTEST_MAIN(TaskDocumentsTest)
#include "task_documents_test.moc"
