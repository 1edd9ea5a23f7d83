#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/window/DocumentPasswordDialog.h"
#include "tests/dialog/support/LoadedBundle.h"
#include "tests/dialog/support/ProtectedPdf.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/support/WindowDriver.h"
#include "tests/support/NumberedPdf.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

// Documents that want a password, as somebody at a window sees them.
class WindowDocumentsTest : public QObject
{
    Q_OBJECT

private:
    static constexpr int kPatience = 60000;

    QTemporaryDir m_folder;

    static DocumentPasswordDialog *question(const WindowDriver &window)
    {
        auto *dialog = window.dialog().findChild<DocumentPasswordDialog *>();
        return dialog && dialog->isVisible() ? dialog : nullptr;
    }
    static void answer(DocumentPasswordDialog *dialog, const QString &password)
    {
        dialog->findChild<QLineEdit *>(u"password"_s)->setText(password);
        dialog->accept();
    }
    PrintRequest request(Protection protection) const
    {
        PrintRequest request;
        const QString path = protectedPdf(m_folder.filePath(u"a.pdf"_s), protection);
        request.documents = {{path, u"application/pdf"_s, u"a.pdf"_s}};
        request.title = u"Job"_s;
        request.output = m_folder.filePath(u"out.ps"_s);
        request.bundleRoots = builtBundleRoots();
        request.printers = {{u"cl5"_s, u"CL"_s, samplePpdPath(), 5}};
        return request;
    }

private Q_SLOTS:
    void thePasswordIsAskedUntilItIsRight()
    {
        WindowDriver window(request(Protection::AesWith256Bits));
        QTRY_VERIFY_WITH_TIMEOUT(question(window), kPatience);
        answer(question(window), u"wrong"_s);
        QTRY_VERIFY_WITH_TIMEOUT(
            question(window) && question(window)->findChild<QWidget *>(u"wrong"_s), kPatience);
        answer(question(window), kUserPassword);
        QTRY_COMPARE_WITH_TIMEOUT(window.message(),
                                  u"“a.pdf” is protected. The file that is printed to is not."_s,
                                  kPatience);
        QTRY_COMPARE_WITH_TIMEOUT(window.dialog().task().sheetPreview().counts,
                                  u"5 pages = 5 sheets"_s, kPatience);
        QVERIFY(window.pressPrint());
        QTRY_VERIFY_WITH_TIMEOUT(!window.dialog().report().isEmpty(), kPatience);
    }

    // What would be printed is what is in the file by then.
    void aDocumentThatIsWrittenAnewIsShownAnew_data()
    {
        QTest::addColumn<bool>("replaced");
        QTest::newRow("written to") << false;
        QTest::newRow("replaced, as most programs save") << true;
    }
    void aDocumentThatIsWrittenAnewIsShownAnew()
    {
        QFETCH(bool, replaced);
        PrintRequest opened = request(Protection::AesWith256Bits);
        const QString path = writeFile(opened.documents.constFirst().path, numberedPdf("page", 3));
        WindowDriver window(opened);
        const auto counts = [&] { return window.dialog().task().sheetPreview().counts; };
        QTRY_COMPARE_WITH_TIMEOUT(counts(), u"3 pages = 3 sheets"_s, kPatience);
        QTest::qWait(1500); // until nothing that the opening brings lets it be laid out once more
        const QString other = writeFile(m_folder.filePath(u"b.pdf"_s), numberedPdf("page", 7));
        if (replaced) {
            QVERIFY(QFile::remove(path));
            QVERIFY(QFile::rename(other, path));
        } else {
            writeFile(path, numberedPdf("page", 7));
        }
        QTRY_COMPARE_WITH_TIMEOUT(counts(), u"7 pages = 7 sheets"_s, kPatience);
    }

    // It would be cut off at its second line, and turn round what stands behind it.
    void aNameIsOneLineThatTurnsNothingRound()
    {
        PrintRequest opened = request(Protection::AesWith256Bits);
        const QString first = u"new\nline.txt"_s;
        const QString second = u"a\u202Efdp.txt"_s;
        opened.documents.clear();
        opened.title = first;
        for (const QString &name : {first, second})
            opened.documents +=
                {writeFile(m_folder.filePath(name), "Some words.\n"), u"text/plain"_s, name};
        WindowDriver window(opened);
        const auto *list = window.child<QListWidget>(u"documents"_s);
        QTRY_COMPARE(list->count(), 2);
        QCOMPARE(list->item(0)->text(), u"new<U+000A>line.txt (text)"_s);
        QCOMPARE(list->item(1)->text(), u"a<U+202E>fdp.txt (text)"_s);
        window.dialog().task().removeDocument(1);
        QTRY_COMPARE(window.child<QLabel>(u"document"_s)->text(), u"new<U+000A>line.txt"_s);
    }

    void whoDoesNotKnowItCancels()
    {
        WindowDriver window(request(Protection::AesWith256Bits));
        QTRY_VERIFY_WITH_TIMEOUT(question(window), kPatience);
        question(window)->reject();
        const QString locked = u"“a.pdf” is protected: it is printed only with its password."_s;
        QTRY_COMPARE(window.message(), locked);
        QVERIFY(!question(window));
        // Print asks once more.
        QVERIFY(window.pressPrint());
        QTRY_VERIFY(question(window));
        question(window)->reject();
        QTRY_COMPARE(window.message(), locked);
        QCOMPARE(window.dialog().task().phase(), PrintTask::Phase::Ready);
    }

    void whatForbidsPrintingIsRefusedInItsWords()
    {
        WindowDriver window(request(Protection::OwnerOnlyNoPrinting));
        const QString forbids =
            u"“a.pdf” does not allow printing. Only its owner's password does."_s;
        QTRY_COMPARE_WITH_TIMEOUT(window.message(), forbids, kPatience);
        QVERIFY(!question(window));
        // Print says it again, and what would help stays beside it.
        for (int i = 0; i < 2; ++i) {
            QVERIFY(window.pressPrint());
            QTRY_COMPARE(window.message(), forbids);
            QCOMPARE(window.dialog().task().phase(), PrintTask::Phase::Ready);
            QVERIFY(window.dialog().report().isEmpty());
            QVERIFY(window.canPress(u"messageAction"_s));
        }
        QVERIFY(window.press(u"messageAction"_s));
        QTRY_VERIFY(question(window));
    }
};

QTEST_MAIN(WindowDocumentsTest)

#include "window_documents_test.moc"
