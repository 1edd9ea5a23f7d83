#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/job/Document.h"
#include "dialog/job/DocumentCopy.h"
#include "dialog/job/FileBytes.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

QString dataFile(const QString &name)
{
    return corvana::test::sourceFile(u"tests/data/"_s) + name;
}

QString sampleDocument()
{
    return corvana::test::sourceFile(u"resources/sample/welcome.pdf"_s);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class DocumentTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString refusalOf(const QString &path)
    {
        QString error;
        const Document document = inspectDocument(path, &error);
        return document == Document{} ? error : u"accepted as "_s + document.format;
    }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void cleanup() { m_folder.reset(); }

    void eachKindIsRecognised_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("format");
        QTest::newRow("PDF") << sampleDocument() << u"application/pdf"_s;
        QTest::newRow("PostScript") << dataFile(u"page.ps"_s) << u"application/postscript"_s;
        QTest::newRow("text") << dataFile(u"page.txt"_s) << u"text/plain"_s;
        QTest::newRow("PNG") << dataFile(u"page.png"_s) << u"image/png"_s;
        QTest::newRow("JPEG") << dataFile(u"page.jpg"_s) << u"image/jpeg"_s;
    }
    void eachKindIsRecognised()
    {
        QFETCH(QString, path);
        QFETCH(QString, format);
        QString error;
        const Document document = inspectDocument(path, &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(document.format, format);
        QCOMPARE(document.path, QFileInfo(path).absoluteFilePath());
        QCOMPARE(document.title, QFileInfo(path).fileName());
    }

    void theContentDecidesWhereTheNameSaysNothing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("format");
        const QString pdf = sampleDocument();
        QTest::newRow("no suffix") << u"report"_s << pdf << u"application/pdf"_s;
        QTest::newRow("unknown suffix") << u"report.r2"_s << pdf << u"application/pdf"_s;
        QTest::newRow("suffix in capitals") << u"REPORT.PDF"_s << pdf << u"application/pdf"_s;
        QTest::newRow("picture without suffix")
            << u"scan"_s << dataFile(u"page.png"_s) << u"image/png"_s;
        QTest::newRow("source code") << u"main.py"_s << dataFile(u"page.txt"_s) << u"text/plain"_s;
        QTest::newRow("blanks and other scripts")
            << u"a b 日報.pdf"_s << pdf << u"application/pdf"_s;
    }
    void theContentDecidesWhereTheNameSaysNothing()
    {
        QFETCH(QString, name);
        QFETCH(QString, source);
        QFETCH(QString, format);
        const QString path = writeFile(m_folder->filePath(name), contentOf(source));
        QString error;
        const Document document = inspectDocument(path, &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(document.format, format);
        QCOMPARE(document.title, name);
    }

    // What a printer takes as it is, is its own affair; that there is something, is not.
    void anyKindIsTakenWhereThatIsWanted_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("format"); // null: refused
        const QByteArray pcl("\x1B"
                             "E\x1B&l26AHello\x1B"
                             "E\0\x01",
                             18);
        const QString unknown = kUnknownFormat;
        QTest::newRow("printer data") << u"job.pcl"_s << pcl << unknown;
        QTest::newRow("printer data by another name") << u"job.pdf"_s << pcl << unknown;
        QTest::newRow("a picture by another name")
            << u"scan.jpg"_s << contentOf(dataFile(u"page.png"_s)) << u"image/png"_s;
        QTest::newRow("a web page")
            << u"a.html"_s << QByteArray("<html><body>x</body></html>\n") << u"text/plain"_s;
        QTest::newRow("nothing") << u"job.pcl"_s << QByteArray() << QString();
    }
    void anyKindIsTakenWhereThatIsWanted()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QString, format);
        const QString path = writeFile(m_folder->filePath(name), content);
        QString error;
        const Document document = inspectDocument(path, &error, DocumentKinds::Any);
        QCOMPARE(document.format, format);
        QCOMPARE(error.isEmpty(), !format.isNull());
        if (format == QString(kUnknownFormat))
            QVERIFY(inspectDocument(path, &error) == Document{});
    }

    void aNameThatPromisesSomethingElseIsRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("told");
        const QByteArray html = "<!DOCTYPE html>\n<html><body>404 Not Found</body></html>\n";
        const auto row = [](const char *name, const QString &file, const QByteArray &content,
                            const QString &told) {
            QTest::newRow(name) << file << content << told;
        };
        row("a web server's error page", u"report.pdf"_s, html, u"PDF document"_s);
        row("a PNG named JPEG", u"scan.jpg"_s, contentOf(dataFile(u"page.png"_s)),
            u"JPEG picture"_s);
        row("a JPEG named PNG", u"scan.png"_s, contentOf(dataFile(u"page.jpg"_s)),
            u"PNG picture"_s);
        row("PostScript named PDF", u"report.pdf"_s, contentOf(dataFile(u"page.ps"_s)),
            u"PDF document"_s);
        row("PDF named text", u"notes.txt"_s, contentOf(sampleDocument()), u"text"_s);
    }
    void aNameThatPromisesSomethingElseIsRefused()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QString, told);
        const QString path = writeFile(m_folder->filePath(name), content);
        const QString refusal = refusalOf(path);
        QVERIFY2(refusal.startsWith(path), qPrintable(refusal));
        QVERIFY2(refusal.contains(u"named like a "_s + told), qPrintable(refusal));
    }

    void whatIsNoDocumentIsRefusedByName_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("told");
        QTest::newRow("missing") << u"missing.pdf"_s << u"no such file"_s;
        QTest::newRow("a broken link") << u"broken.pdf"_s << u"no such file"_s;
        QTest::newRow("a folder") << u"folder.pdf"_s << u"is a folder"_s;
        QTest::newRow("empty") << u"empty.pdf"_s << u"is empty"_s;
        QTest::newRow("binary junk") << u"junk"_s
                                     << u"nobody can tell what is in it. Documents can be PDF, "
                                        "PostScript, text, PNG or JPEG"_s;
        QTest::newRow("binary junk named PDF")
            << u"junk.pdf"_s << u"PDF, PostScript, text, PNG or JPEG"_s;
        QTest::newRow("an archive")
            << u"archive.zip"_s << u"its contents: Zip archive. Documents can be PDF, "_s;
        QTest::newRow("a device") << u"device"_s << u"no ordinary file"_s;
    }
    void whatIsNoDocumentIsRefusedByName()
    {
        QFETCH(QString, kind);
        QFETCH(QString, told);
        const QString path = m_folder->filePath(kind);
        if (kind.startsWith(u"broken"_s))
            QVERIFY(QFile::link(u"/nowhere/at/all"_s, path));
        else if (kind.startsWith(u"folder"_s))
            QVERIFY(QDir().mkdir(path));
        else if (kind.startsWith(u"empty"_s))
            writeFile(path, "");
        else if (kind.startsWith(u"junk"_s))
            writeFile(path, QByteArray::fromHex("00ff13c80102fe9a00000000deadbeef0007"));
        else if (kind.startsWith(u"archive"_s))
            writeFile(path,
                      QByteArray("PK\x03\x04\x14\x00\x00\x00\x08\x00", 10) + QByteArray(40, 'x'));
        else if (kind == u"device"_s)
            QVERIFY(QFile::link(u"/dev/zero"_s, path));
        const QString refusal = refusalOf(path);
        QVERIFY2(refusal.startsWith(path), qPrintable(refusal));
        QVERIFY2(refusal.contains(told), qPrintable(refusal));
    }

    // Printed as a text it would be pages full of commands.
    void whatIsReadyForAPrinterIsNoText_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::newRow("PJL") << QByteArray("\x1B%-12345X@PJL ENTER LANGUAGE=PCL\nHello");
        QTest::newRow("two jobs in PostScript")
            << QByteArray("\x1B%-12345X%!PS\nshowpage\n\x1B%-12345X%!PS\nshowpage\n");
        QTest::newRow("PCL") << QByteArray("\x1B"
                                           "E\x1B&l0OHello");
    }
    void whatIsReadyForAPrinterIsNoText()
    {
        QFETCH(QByteArray, data);
        const QString refusal = refusalOf(writeFile(m_folder->filePath(u"job.prn"_s), data));
        QVERIFY2(refusal.contains(u"job.prn"_s) && refusal.contains(u"ready for a printer"_s) &&
                     refusal.contains(u"raw"_s),
                 qPrintable(refusal));
    }

    // A printer that is given documents as they are gets the commands as well.
    void postScriptIsTakenOutOfCommandsToAPrinter_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("isPipe");
        QTest::newRow("named like PostScript") << u"job.ps"_s << false;
        QTest::newRow("named like data of a printer") << u"job.prn"_s << false;
        QTest::newRow("what is read only once") << u"job"_s << true;
    }
    void postScriptIsTakenOutOfCommandsToAPrinter()
    {
        QFETCH(QString, name);
        QFETCH(bool, isPipe);
        const QByteArray bare = "%!PS\nshowpage\n";
        const QByteArray whole = "\x1B%-12345X@PJL SET COPIES=2\n@PJL ENTER LANGUAGE=POSTSCRIPT\n" +
                                 bare + "\x04\x1B%-12345X";
        const QString path = m_folder->filePath(name);
        const QString source = writeFile(m_folder->filePath(u"source"_s), whole);
        QProcess writer;
        if (isPipe) {
            QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
            writer.start(u"cp"_s, {source, path});
        } else {
            writeFile(path, whole);
        }
        QVERIFY(isReadToItsEnd(path));
        QString error;
        const Document document = inspectDocument(path, &error);
        QCOMPARE(error, QString());
        QCOMPARE(document.format, u"application/postscript"_s);
        QCOMPARE(document.title, name);
        QCOMPARE(contentOf(document.path).trimmed(), bare.trimmed());
        QCOMPARE(contentOf(document.original), whole);
        QCOMPARE(document.settings, QStringList{u"COPIES"_s});
        QCOMPARE(document.original == path, !isPipe);
        if (isPipe)
            QVERIFY(writer.waitForFinished());
        // As it is, it is left as it is.
        const Document raw = inspectDocument(source, &error, DocumentKinds::Any);
        QCOMPARE(raw.path, source);
        QCOMPARE(raw.original, QString());
    }

    void whatHoldsPostScriptIsNamedSo()
    {
        const QString refusal =
            refusalOf(writeFile(m_folder->filePath(u"job.txt"_s), "\x04%!PS\nshowpage\n\x04"));
        QVERIFY2(refusal.contains(u"holds a PostScript document"_s), qPrintable(refusal));
    }

    void aPipeIsReadToItsEndAndKept()
    {
        const QString path = m_folder->filePath(u"pipe.txt"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        // The writer comes late, and in two pieces.
        QProcess writer;
        writer.start(u"sh"_s,
                     {u"-c"_s, u"sleep 0.3; (echo one; sleep 0.3; echo two) > \"$0\""_s, path});
        QVERIFY(writer.waitForStarted());
        QString error;
        const Document document = inspectDocument(path, &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        writer.waitForFinished();
        QCOMPARE(document.title, u"pipe.txt"_s);
        QCOMPARE(contentOf(document.path), QByteArray("one\ntwo\n"));
    }

    void aPipeThatNobodyWritesMuchIntoIsEmpty()
    {
        const QString path = m_folder->filePath(u"pipe"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        QProcess writer;
        writer.start(u"sh"_s, {u"-c"_s, u": > \"$0\""_s, path});
        QVERIFY(writer.waitForStarted());
        const QString refusal = refusalOf(path);
        writer.waitForFinished();
        QVERIFY2(refusal.contains(u"is empty"_s), qPrintable(refusal));
    }

    void noMoreIsKeptThanThereIsRoomFor()
    {
        const QString path = writeFile(m_folder->filePath(u"big"_s), QByteArray(100'000, 'x'));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QString error;
        QVERIFY(!copyOfDocument(file.handle(), u"big"_s, &error, 99'999));
        QVERIFY2(error.contains(u"more than 99999 bytes"_s), qPrintable(error));
        error.clear();
        file.seek(0);
        QVERIFY(copyOfDocument(file.handle(), u"big"_s, &error, 100'000));
    }

    void aNameThatIsNoTextIsFoundAndShown()
    {
        const QByteArray bytes = QFile::encodeName(m_folder->path()) + "/r\xE9sum\xE9.txt";
        const int file = ::open(bytes.constData(), O_WRONLY | O_CREAT, 0600);
        QVERIFY(file >= 0);
        QCOMPARE(::write(file, "text\n", 5), 5);
        ::close(file);
        const auto removed = qScopeGuard([&] { ::unlink(bytes.constData()); }); // Qt cannot name it
        QString error;
        const Document document = inspectDocument(nameOfBytes(bytes), &error);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QCOMPARE(document.title, u"r\uFFFDsum\uFFFD.txt"_s);
        QCOMPARE(contentOf(document.path), QByteArray("text\n"));
        QVERIFY(document.copy);
    }

    void anyBytesAreANameAndComeBack()
    {
        const QByteArray names[] = {"plain.txt", "\xE5\x8D\xB0.txt",     "\xFF\xFE",
                                    "a\xE5\x8D", "\xF0\x9F\x98\x80\x80", "\xED\xB2\x80",
                                    "\xC0\xAF"};
        for (const QByteArray &bytes : names) {
            QCOMPARE(bytesOfName(nameOfBytes(bytes)), bytes);
            QCOMPARE(hasStrayBytes(nameOfBytes(bytes)), QString::fromUtf8(bytes).toUtf8() != bytes);
            QVERIFY(shownName(nameOfBytes(bytes)).isValidUtf16());
        }
    }

    void aDocumentThatCannotBeReadIsNamed()
    {
        if (::geteuid() == 0)
            QSKIP("the superuser reads every file");
        const QString path = writeFile(m_folder->filePath(u"secret.txt"_s), "secret\n");
        QFile::setPermissions(path, QFile::Permissions());
        const QString refusal = refusalOf(path);
        QVERIFY2(refusal.startsWith(path), qPrintable(refusal));
        QVERIFY2(refusal.contains(u"cannot be read"_s), qPrintable(refusal));
    }

    void aRelativePathBecomesAbsolute()
    {
        const QString former = QDir::currentPath();
        writeFile(m_folder->filePath(u"notes.txt"_s), "notes\n");
        QVERIFY(QDir::setCurrent(m_folder->path()));
        QString error;
        const Document document = inspectDocument(u"notes.txt"_s, &error);
        QDir::setCurrent(former);
        QVERIFY2(error.isEmpty(), qPrintable(error));
        QVERIFY(QFileInfo(document.path).isAbsolute());
    }

    void aNameWithAPercentSignIsShownAsItIs()
    {
        const QString refusal = refusalOf(u"/nowhere/100%2.pdf"_s);
        QVERIFY2(refusal.startsWith(u"/nowhere/100%2.pdf"_s), qPrintable(refusal));
    }
};

QTEST_GUILESS_MAIN(DocumentTest)

#include "document_test.moc"
