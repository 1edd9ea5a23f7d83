#include <QTest>

#include "tests/dialog/job/Variable.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/NumberedPdf.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Phase = PrintTask::Phase;

// What pages there are to be chosen, and what becomes of a choice.
class TaskPagesTest : public QObject
{
    Q_OBJECT

private:
    static constexpr int kPatience = 60000; // milliseconds that a chain may take on a busy machine

    std::unique_ptr<TaskScene> m_scene;

    Document pdf(const QString &name, const QByteArray &content) const
    {
        return {writeFile(m_scene->filter.path(name), content), u"application/pdf"_s, name};
    }
    PrintTask &open(const QList<Document> &documents)
    {
        PrintRequest request = m_scene->request({m_scene->printer(u"laser"_s, samplePpd(5))});
        request.documents = documents;
        return m_scene->open(request);
    }

private Q_SLOTS:
    void init() { m_scene = std::make_unique<TaskScene>(); }
    void cleanup() { m_scene.reset(); }

    void pagesOfAPdfAreKnownOnceItWasLookedAt()
    {
        PrintTask &task = open({pdf(u"a.pdf"_s, numberedPdf("page", 5))});
        QTRY_VERIFY_WITH_TIMEOUT(task.knowsDocuments(), kPatience);
        const ChoosablePages pages = task.choosablePages();
        QCOMPARE(pages.documents.size(), 1);
        QCOMPARE(pages.documents.constFirst().title, u"a.pdf"_s);
        QCOMPARE(pages.documents.constFirst().pages, 5);
        QCOMPARE(pages.documents.constFirst().file, task.documents().constFirst().path);
        QVERIFY(pages.documents.constFirst().reason.isEmpty());
    }

    void aDocumentThatCannotBePrintedSaysWhy()
    {
        PrintTask &task = open({pdf(u"a.pdf"_s, "%PDF-1.4\nnothing of the kind\n")});
        QTRY_VERIFY_WITH_TIMEOUT(task.knowsDocuments(), kPatience);
        const ChoosableDocument document = task.choosablePages().documents.constFirst();
        QCOMPARE(document.pages, 0);
        QVERIFY(document.file.isEmpty());
        QCOMPARE(document.reason, u"“a.pdf” is damaged. None of its pages can be printed."_s);
    }

    void pagesOfATextAreKnownWhenItWasLaidOut()
    {
        const Variable realChain("CORVANA_PRINT_CUPSFILTER", "");
        const QString path =
            writeFile(m_scene->filter.path(u"a.txt"_s), QByteArray(200, '\n') + "end");
        PrintTask &task = open({{path, u"text/plain"_s, u"a.txt"_s}});
        QCOMPARE(task.phase(), Phase::Ready);
        QCOMPARE(task.choosablePages().documents.constFirst().pages, 0);
        task.countSheets();
        QTRY_VERIFY_WITH_TIMEOUT(task.choosablePages().documents.constFirst().pages > 1, kPatience);
        QVERIFY(task.choosablePages().documents.constFirst().file.isEmpty());
        QVERIFY(!task.choosablePages().documents.constFirst().reason.isEmpty());
    }

    void aChoiceIsAnAttributeAndAllPagesAreNone()
    {
        PrintTask &task = open({pdf(u"a.pdf"_s, numberedPdf("page", 5))});
        task.choosePages(u"1-3,5"_s);
        QCOMPARE(task.settings().attribute(u"page-ranges"_s), u"1-3,5"_s);
        QCOMPARE(task.choosablePages().choice.ranges, u"1-3,5"_s);
        task.choosePages({});
        QVERIFY(task.settings().attribute(u"page-ranges"_s).isEmpty());
        QVERIFY(m_scene->face.messages.isEmpty());
    }

    void whatIsNotTakenIsSaid()
    {
        PrintTask &task = open({pdf(u"a.pdf"_s, numberedPdf("page", 5))});
        task.choosePages(u"9-7"_s);
        QVERIFY(m_scene->face.message().contains(u"“9-7” is not allowed."_s));
        QVERIFY(task.settings().attribute(u"page-ranges"_s).isEmpty());
    }
};

QTEST_MAIN(TaskPagesTest)

#include "task_pages_test.moc"
