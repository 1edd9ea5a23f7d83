#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/window/preview/PreviewPane.h"
#include "dialog/window/thumbnails/PageChooser.h"
#include "dialog/window/thumbnails/PageThumbnails.h"
#include "tests/dialog/support/LoadedBundle.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/support/WindowDriver.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/PrintedSides.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

// Pages that are chosen in a window of their own, and sheets that are marked.
class WindowPagesTest : public QObject
{
    Q_OBJECT

private:
    static constexpr int kPatience = 60000;

    QTemporaryDir m_folder;

    QString output() const { return m_folder.filePath(u"out.ps"_s); }
    PrintRequest request(const QByteArray &pdf)
    {
        PrintRequest request;
        const QString path = writeFile(m_folder.filePath(u"a.pdf"_s), pdf);
        request.documents = {{path, u"application/pdf"_s, u"a.pdf"_s}};
        request.title = u"Job"_s;
        request.output = output();
        request.bundleRoots = builtBundleRoots();
        request.printers = {{u"cl5"_s, u"CL"_s, samplePpdPath(), 5}};
        return request;
    }
    static PageChooser *open(WindowDriver &window)
    {
        window.press(u"choosePages"_s);
        auto *chooser = window.child<PageChooser>(u"pageChooser"_s);
        return chooser && QTest::qWaitForWindowExposed(chooser) ? chooser : nullptr;
    }
    static void click(PageChooser *chooser, int row)
    {
        auto *view = chooser->findChild<PageThumbnails *>();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                          view->visualRect(view->model()->index(row, 0)).center());
    }
    static void finish(PageChooser *chooser, QDialogButtonBox::StandardButton button)
    {
        chooser->findChild<QDialogButtonBox *>()->button(button)->click();
    }

private Q_SLOTS:
    void cleanup() { QFile::remove(output()); }

    void whatIsTickedIsPrinted()
    {
        WindowDriver window(request(numberedPdf("page", 5)));
        QTRY_COMPARE_WITH_TIMEOUT(window.dialog().task().sheetPreview().counts,
                                  u"5 pages = 5 sheets"_s, kPatience);
        PageChooser *chooser = open(window);
        QVERIFY(chooser);
        QVERIFY(chooser->isModal());
        click(chooser, 1);
        click(chooser, 3);
        QVERIFY(window.dialog().task().settings().pageRanges().isEmpty()); // not yet
        finish(chooser, QDialogButtonBox::Ok);
        QCOMPARE(window.dialog().task().settings().pageRanges(), u"1,3,5"_s);
        QCOMPARE(window.child<QLineEdit>(u"pageRanges"_s)->text(), u"1,3,5"_s);
        QTRY_COMPARE_WITH_TIMEOUT(window.dialog().task().sheetPreview().counts,
                                  u"3 pages = 3 sheets"_s, kPatience);
        QVERIFY(window.pressPrint());
        QTRY_VERIFY_WITH_TIMEOUT(!window.dialog().report().isEmpty(), kPatience);
        QFile file(output());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(printedSides(file.readAll()),
                 (QStringList{u"page 1"_s, u"page 3"_s, u"page 5"_s}));
    }

    void theWindowBeginsWithWhatIsInForceAndCancelLosesNothing()
    {
        WindowDriver window(request(numberedPdf("page", 5)));
        QTRY_COMPARE(window.dialog().task().phase(), PrintTask::Phase::Ready);
        window.child<QLineEdit>(u"pageRanges"_s)->setText(u"2-"_s);
        PageChooser *chooser = open(window);
        QVERIFY(chooser);
        QTRY_COMPARE_WITH_TIMEOUT(chooser->findChild<QLineEdit *>(u"ranges"_s)->text(), u"2-5"_s,
                                  kPatience);
        click(chooser, 0);
        finish(chooser, QDialogButtonBox::Cancel);
        QCOMPARE(window.dialog().task().settings().pageRanges(), u"2-"_s);
        QCOMPARE(window.child<QLineEdit>(u"pageRanges"_s)->text(), u"2-"_s);
    }

    void allTickedIsNoChoice()
    {
        PrintRequest asked = request(numberedPdf("page", 5));
        asked.options = {{u"page-ranges"_s, u"2"_s}};
        WindowDriver window(asked);
        QTRY_COMPARE(window.dialog().task().settings().pageRanges(), u"2"_s);
        PageChooser *chooser = open(window);
        QVERIFY(chooser);
        QTRY_COMPARE_WITH_TIMEOUT(chooser->findChild<QLineEdit *>(u"ranges"_s)->text(), u"2"_s,
                                  kPatience);
        chooser->findChild<QPushButton *>(u"chooseAll"_s)->click();
        finish(chooser, QDialogButtonBox::Ok);
        QVERIFY(window.dialog().task().settings().attribute(u"page-ranges"_s).isNull());
    }

    void withoutADocumentThereIsNothingToChoose()
    {
        PrintRequest asked = request(numberedPdf("page", 1));
        asked.documents.clear();
        WindowDriver window(asked);
        QTRY_COMPARE(window.dialog().task().phase(), PrintTask::Phase::Ready);
        QVERIFY(!window.canPress(u"choosePages"_s));
        QVERIFY(!window.child<QPushButton>(u"choosePages"_s)->toolTip().isEmpty());
    }

    void aSheetWithAnEmptyBackIsMarkedAndSaysWhy()
    {
        PrintRequest asked = request(numberedPdf("page", 1));
        asked.options = {{u"Duplex"_s, u"DuplexNoTumble"_s}};
        WindowDriver window(asked);
        auto *sheets = window.child<SheetView>(u"sheets"_s);
        QTRY_COMPARE_WITH_TIMEOUT(sheets->sheets().marks.size(), 1, kPatience);
        const QString why = u"The back of this sheet stays empty: only one side is printed."_s;
        QCOMPARE(sheets->sheets().marks.constFirst().text, why);
        QVERIFY(sheets->accessibleName().endsWith(u"Note: "_s + why));
        QTest::keyClick(sheets, Qt::Key_Space);
        QCOMPARE(window.message(), why);
    }

    void theMessageOfADamagedDocumentShowsItsFirstSheet()
    {
        // Its list of objects is not where the end says; all pages are found all the same.
        QByteArray damaged = numberedPdf("page", 2);
        damaged = damaged.first(damaged.indexOf("startxref")) + "startxref\n17\n%%EOF\n";
        PrintRequest asked = request(damaged);
        const QString whole = writeFile(m_folder.filePath(u"whole.pdf"_s), numberedPdf("page", 2));
        asked.documents.prepend({whole, u"application/pdf"_s, u"whole.pdf"_s});
        WindowDriver window(asked);
        QTRY_VERIFY_WITH_TIMEOUT(window.message().contains(u"“a.pdf” is damaged"_s), kPatience);
        auto *sheets = window.child<SheetView>(u"sheets"_s);
        QTRY_COMPARE_WITH_TIMEOUT(sheets->sheets().marks.size(), 1, kPatience);
        QCOMPARE(sheets->sheets().marks.constFirst().sheet, 2);
        QVERIFY(sheets->sheets().marks.constFirst().text.contains(u"“a.pdf” is damaged"_s));
        QCOMPARE(sheets->current(), SideIndex{0});
        QVERIFY(window.press(u"messageAction"_s));
        QTRY_COMPARE(sheets->current(), SideIndex{2});
    }
};

QTEST_MAIN(WindowPagesTest)

#include "window_pages_test.moc"
