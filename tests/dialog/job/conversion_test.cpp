#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/job/FileQueue.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

QString source(const QString &name)
{
    return corvana::test::sourceFile(name);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// Real documents through the filter chain of CUPS, as it is installed.
class ConversionTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    // The result of one job; null when it failed, and then `problem` says why.
    QByteArray printed(const QString &path, const QList<JobOption> &options, QString *problem,
                       int copies = 1)
    {
        const Document document = inspectDocument(path, problem);
        if (document.path.isEmpty())
            return {};
        const QString output = m_folder->filePath(u"out.ps"_s);
        FileQueue queue;
        connect(&queue, &FileQueue::finished, this, [problem](const QString &p) { *problem = p; });
        queue.print(document, {u"Job"_s, copies, options}, samplePpdPath(), output);
        return queue.wait() ? contentOf(output) : QByteArray();
    }

private Q_SLOTS:
    void initTestCase() { qunsetenv("CORVANA_PRINT_CUPSFILTER"); }
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void cleanup() { m_folder.reset(); }

    void everyKindOfDocumentCarriesTheChoicesToThePrinter_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("PDF") << source(u"resources/sample/welcome.pdf"_s);
        QTest::newRow("PostScript") << source(u"tests/data/page.ps"_s);
        QTest::newRow("text") << source(u"tests/data/page.txt"_s);
        QTest::newRow("PNG") << source(u"tests/data/page.png"_s);
        QTest::newRow("JPEG") << source(u"tests/data/page.jpg"_s);
    }
    void everyKindOfDocumentCarriesTheChoicesToThePrinter()
    {
        QFETCH(QString, path);
        QString problem;
        const QByteArray data = printed(
            path, {{u"QXMediaType"_s, u"Thick"_s}, {u"QXSleepTime"_s, u"Custom.12"_s}}, &problem);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        QVERIFY(data.startsWith("%!PS"));
        QVERIFY(data.contains("(QXMediaType=Thick)"));
        QVERIFY(!data.contains("(QXMediaType=Plain)"));
        QVERIFY(data.contains("(QXSleepTime=Custom)"));
    }

    void aChoiceThatIsLeftOutIsThePrintersDefault()
    {
        QString problem;
        const QByteArray data = printed(source(u"tests/data/page.txt"_s), {}, &problem);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        QVERIFY(data.contains("(QXMediaType=Plain)"));
    }

    void aBrokenDocumentFailsAndLeavesNothing()
    {
        const QString broken = writeFile(m_folder->filePath(u"broken.pdf"_s),
                                         "%PDF-1.4\nnothing that a reader would take\n%%EOF\n");
        writeFile(m_folder->filePath(u"out.ps"_s), "yesterday's");
        QString problem;
        QVERIFY(printed(broken, {}, &problem).isNull());
        QVERIFY2(problem.contains(u"could not be converted"_s), qPrintable(problem));
        QCOMPARE(contentOf(m_folder->filePath(u"out.ps"_s)), QByteArray("yesterday's"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 2);
    }
};

QTEST_GUILESS_MAIN(ConversionTest)

#include "conversion_test.moc"
