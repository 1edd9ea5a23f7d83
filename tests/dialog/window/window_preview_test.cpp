#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QDropEvent>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QUrl>

#include "dialog/window/SettingsColumn.h"
#include "dialog/window/preview/PreviewPane.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/support/WindowDriver.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

// The window around the sheets that come out.
class WindowPreviewTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WindowDriver> m_window;
    QByteArray m_formerHome;

    PrintWindow &dialog() { return m_window->dialog(); }
    template <typename Child> Child *child(const QString &name)
    {
        return m_window->child<Child>(name);
    }
    SheetView *sheets() { return child<SheetView>(u"sheets"_s); }
    PreviewPane *preview() { return child<PreviewPane>(u"preview"_s); }
    QString counts() { return child<QLabel>(u"counts"_s)->text(); }
    QString document(const QString &name)
    {
        return writeFile(m_folder->filePath(name), "Some words.\n");
    }
    void open(const QStringList &documents, const QStringList &options = {})
    {
        CommandLine line = sampleDocument();
        line.ppd = sharedFile(u"ppd/corvana-cl5.ppd"_s);
        line.documents = documents;
        line.options = options;
        QDir::setCurrent(m_folder->path());
        m_window = std::make_unique<WindowDriver>(requestFor(line), WindowDriver::Activation::Yes);
        QTRY_COMPARE(dialog().task().phase(), PrintTask::Phase::Ready);
    }
    static QStringList sample() { return sampleDocument().documents; }
    void drop(const QList<QUrl> &urls)
    {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&dialog(), &enter);
        m_accepted = enter.isAccepted();
        if (!m_accepted)
            return;
        QDropEvent event({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&dialog(), &event);
        QTest::qWait(10);
    }
    bool m_accepted = false;

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_formerHome = qgetenv("XDG_CONFIG_HOME");
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder->filePath(u"config"_s)));
    }
    void cleanup()
    {
        m_window.reset();
        qputenv("XDG_CONFIG_HOME", m_formerHome);
    }

    void theSheetsOfTheJobAreShownAndCounted()
    {
        open(sample(), {u"sides=two-sided-long-edge"_s});
        QTRY_COMPARE_WITH_TIMEOUT(counts(), u"3 pages = 2 sheets"_s, kWindowPatience);
        QCOMPARE(sheets()->sheets().plan.sheets.size(), 2);
        QVERIFY(sheets()->isVisible());
        QTRY_COMPARE(child<QLabel>(u"lookedAt"_s)->text(), u"Sheet 1 of 2"_s);
        // Other settings, and the sheets follow.
        child<QSpinBox>(u"copies"_s)->setValue(3);
        QTRY_COMPARE_WITH_TIMEOUT(counts(), u"3 pages × 3 copies = 6 sheets"_s, kWindowPatience);
        auto *perSheet = child<QComboBox>(u"number-up"_s);
        perSheet->setCurrentIndex(perSheet->findText(u"4"_s));
        Q_EMIT perSheet->activated(perSheet->currentIndex());
        QTRY_COMPARE_WITH_TIMEOUT(sheets()->sheets().plan.sheets.size(), 1, kWindowPatience);
    }

    // How many there will be is said when it is known, and what is looked at stays.
    void aLongDocumentBeginsToBeShown()
    {
        const QString path = writeFile(m_folder->filePath(u"long.pdf"_s), numberedPdf("page", 400));
        QStringList seen;
        open({path});
        connect(&dialog().task(), &PrintTask::sheetsCounted, this, [&] {
            if (sheets()->sheets().plan.sheets.isEmpty())
                return; // What is known of the document may come before or after this line.
            seen += u"%1, %2, %3"_s.arg(counts(), child<QLabel>(u"lookedAt"_s)->text(),
                                        QString::number(sheets()->sheets().plan.sheets.size()));
        });
        QTRY_COMPARE_WITH_TIMEOUT(counts(), u"400 pages = 400 sheets"_s, kWindowPatience);
        QCOMPARE(seen, (QStringList{u"Counting the sheets…, Sheet 1, 8"_s,
                                    u"400 pages = 400 sheets, Sheet 1 of 400, 400"_s}));
        QVERIFY(!sheets()->isDimmed());
    }

    void aLargerWindowIsForTheSheets()
    {
        open(sample());
        dialog().resize(1100, 700);
        QCoreApplication::processEvents();
        const int settings = dialog().findChild<SettingsColumn *>()->width();
        const int before = preview()->width();
        dialog().resize(1400, 700);
        QCoreApplication::processEvents();
        QCOMPARE(dialog().findChild<SettingsColumn *>()->width(), settings);
        QCOMPARE(preview()->width(), before + 300);
    }

    void aNarrowWindowFoldsThePreviewByItselfAndKeepsTheCounts()
    {
        open(sample());
        QTRY_COMPARE_WITH_TIMEOUT(counts(), u"3 pages = 3 sheets"_s, kWindowPatience);
        const int least = dialog().findChild<SettingsColumn *>()->usualWidth() + 320;
        dialog().resize(least + 60, 700);
        QCoreApplication::processEvents();
        QVERIFY(!preview()->isFolded());
        dialog().resize(least - 10, 700);
        QCoreApplication::processEvents();
        QVERIFY(preview()->isFolded());
        QVERIFY(!sheets()->isVisible());
        QVERIFY(child<QLabel>(u"counts"_s)->isVisible());
        QCOMPARE(counts(), u"3 pages = 3 sheets"_s);
        dialog().resize(least + 60, 700);
        QCoreApplication::processEvents();
        QVERIFY(!preview()->isFolded());
        QVERIFY(sheets()->isVisible());
    }

    void whatWasFoldedByHandStaysFolded()
    {
        open(sample());
        const int width = dialog().width();
        child<QToolButton>(u"foldPreview"_s)->click();
        QCoreApplication::processEvents();
        QVERIFY(preview()->isFolded());
        QVERIFY(dialog().width() < width - 200);
        dialog().close();
        open(sample());
        QVERIFY(preview()->isFolded());
        child<QToolButton>(u"foldPreview"_s)->click();
        QCoreApplication::processEvents();
        QVERIFY(!preview()->isFolded());
        QVERIFY(sheets()->width() > 320 || child<QWidget>(u"noPreview"_s)->width() > 320);
        dialog().close();
        open(sample());
        QVERIFY(!preview()->isFolded());
    }

    void theFirstWindowIsNoLargerThanIsUsual()
    {
        QFont large = QApplication::font();
        const QFont usual = large;
        large.setPointSizeF(usual.pointSizeF() * 2);
        QApplication::setFont(large);
        open(sample());
        const QSize size = dialog().size();
        QApplication::setFont(usual);
        QVERIFY2(size.width() <= 1200 && size.height() <= 850,
                 qPrintable(u"%1 x %2"_s.arg(size.width()).arg(size.height())));
    }

    void withoutADocumentOneIsDroppedOrChosen()
    {
        open({});
        QVERIFY(m_window->canPress(u"chooseDocuments"_s));
        QVERIFY(!m_window->canPress(u"print"_s));
        QVERIFY(!child<QListWidget>(u"documents"_s)->isVisible());
        drop({QUrl::fromLocalFile(document(u"a.txt"_s))});
        QVERIFY(m_accepted);
        QTRY_COMPARE(child<QLabel>(u"document"_s)->text(), u"a.txt"_s);
        QVERIFY(m_window->canPress(u"print"_s));
        QTRY_COMPARE_WITH_TIMEOUT(counts(), u"1 page = 1 sheet"_s, kWindowPatience);
        QVERIFY(!m_window->canPress(u"chooseDocuments"_s));
    }

    void onlyFilesOfThisComputerAreDropped()
    {
        open({});
        drop({QUrl(u"https://example.com/a.pdf"_s)});
        QVERIFY(!m_accepted);
        drop({QUrl::fromLocalFile(m_folder->filePath(u"missing.pdf"_s))});
        QVERIFY(m_accepted);
        QTRY_VERIFY2(m_window->message().contains(u"missing.pdf"_s),
                     qPrintable(m_window->message()));
        QVERIFY(!m_window->canPress(u"print"_s));
    }

    void severalDocumentsAreAListInWhichTheyAreOrderedAndRemoved()
    {
        open({document(u"a.txt"_s), document(u"b.txt"_s)});
        auto *list = child<QListWidget>(u"documents"_s);
        QVERIFY(list->isVisible());
        drop({QUrl::fromLocalFile(document(u"c.txt"_s))});
        QTRY_COMPARE(list->count(), 3);
        const auto titles = [this] {
            QStringList found;
            for (const Document &each : dialog().task().documents())
                found += each.title;
            return found;
        };
        list->setCurrentRow(2);
        child<QToolButton>(u"documentUp"_s)->click();
        QCOMPARE(titles(), (QStringList{u"a.txt"_s, u"c.txt"_s, u"b.txt"_s}));
        QCOMPARE(list->currentRow(), 1);
        QVERIFY(list->item(1)->text().contains(u"c.txt"_s));
        child<QToolButton>(u"documentDown"_s)->click();
        QVERIFY(!child<QToolButton>(u"documentDown"_s)->isEnabled());
        list->setCurrentRow(0);
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Delete);
        QTRY_COMPARE(titles(), (QStringList{u"b.txt"_s, u"c.txt"_s}));
        // Dragged with the mouse, as the model tells it.
        QVERIFY(list->model()->moveRow({}, 0, {}, 2));
        QTRY_COMPARE(titles(), (QStringList{u"c.txt"_s, u"b.txt"_s}));
        child<QToolButton>(u"documentRemove"_s)->click();
        QTRY_VERIFY(!list->isVisible());
        QCOMPARE(child<QLabel>(u"document"_s)->text(), titles().constFirst());
    }

    // As undoing what was dropped does.
    void theOnlyDocumentMayGo()
    {
        open(sample());
        const auto *list = child<QListWidget>(u"documents"_s);
        QTRY_COMPARE(list->count(), 1);
        dialog().task().removeDocument(0);
        QTRY_COMPARE(list->count(), 0);
        QCOMPARE(list->currentRow(), -1);
        QVERIFY(!list->isVisible());
    }

    // Nothing is printed of such a job, so nothing is shown.
    void aDocumentThatCannotBePrintedIsSaid()
    {
        const QString damaged =
            writeFile(m_folder->filePath(u"damaged.pdf"_s), "%PDF-1.4\nnothing of a document\n");
        open(sample());
        const auto *reason = child<QLabel>(u"noPreviewReason"_s);
        // No window waits for a font in which nothing is written.
        QVERIFY(reason->text().isEmpty());
        const double usual = reason->parentWidget()->font().pointSizeF();
        QCOMPARE(reason->font().pointSizeF(), usual);
        open({sample().constFirst(), damaged});
        reason = child<QLabel>(u"noPreviewReason"_s);
        QTRY_VERIFY_WITH_TIMEOUT(reason->isVisible() && reason->text().contains(u"damaged.pdf"_s),
                                 kWindowPatience);
        QVERIFY(reason->font().pointSizeF() > usual);
    }

    // One sentence on whether it can be printed, and not another one that says more.
    void aPictureThatCannotBeLaidOutIsSaidOnce()
    {
        open({writeFile(m_folder->filePath(u"bad.jpg"_s), "\xff\xd8\xff\xe0 and no picture")});
        const auto *reason = child<QLabel>(u"noPreviewReason"_s);
        QTRY_VERIFY_WITH_TIMEOUT(reason->isVisible() &&
                                     reason->text().endsWith(u"may work all the same."_s),
                                 kWindowPatience);
        QVERIFY(!child<QLabel>(u"noPreviewNote"_s)->isVisible());
        QCOMPARE(child<QLabel>(u"counts"_s)->text(), u"Sheets: could not be counted"_s);
    }

    void tabGoesInTheOrderOfReading()
    {
        open(sample());
        QTRY_VERIFY_WITH_TIMEOUT(sheets()->isVisible(), kWindowPatience);
        QList<QWidget *> order;
        QWidget *first = child<QWidget>(u"printers"_s);
        first->setFocus();
        do {
            order += QApplication::focusWidget();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (QApplication::focusWidget() != first && order.size() < 200);
        const auto place = [&](QWidget *widget) { return order.indexOf(widget); };
        const qsizetype tabs = place(m_window->pages()->tabBar());
        const qsizetype size = place(child<QWidget>(u"PageSize"_s));
        const qsizetype view = place(sheets());
        const qsizetype cancel = place(child<QWidget>(u"cancel"_s));
        const qsizetype print = place(child<QWidget>(u"print"_s));
        QVERIFY2(
            0 < tabs && tabs < size && size < view && view < cancel && cancel < print,
            qPrintable(u"%1 %2 %3 %4 %5"_s.arg(tabs).arg(size).arg(view).arg(cancel).arg(print)));
    }

    void aKeyGoesFromPartToPart()
    {
        open(sample());
        QTRY_VERIFY_WITH_TIMEOUT(sheets()->isVisible(), kWindowPatience);
        auto *pages = child<QWidget>(u"PageSize"_s);
        pages->setFocus();
        QTest::keyClick(&dialog(), Qt::Key_F6);
        QVERIFY(sheets()->hasFocus());
        QTest::keyClick(&dialog(), Qt::Key_F6);
        QVERIFY(child<QWidget>(u"print"_s)->hasFocus());
        QTest::keyClick(&dialog(), Qt::Key_F6);
        QVERIFY(pages->hasFocus()); // where it was
        QTest::keyClick(&dialog(), Qt::Key_F6, Qt::ShiftModifier);
        QVERIFY(child<QWidget>(u"print"_s)->hasFocus());
    }

    void theSheetsAreEnlargedByKeysWhereverTheFocusIs()
    {
        open(sample());
        QTRY_VERIFY_WITH_TIMEOUT(sheets()->isVisible(), kWindowPatience);
        child<QWidget>(u"PageSize"_s)->setFocus();
        const int before = sheets()->percent();
        QTest::keyClick(&dialog(), Qt::Key_Plus, Qt::ControlModifier);
        QVERIFY(sheets()->percent() > before);
        auto *sizes = child<QComboBox>(u"zoom"_s);
        QTest::keyClick(&dialog(), Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(sheets()->zoom(), Zoom{});
        QCOMPARE(sizes->currentText(), u"Fit Page"_s);
        sizes->setCurrentIndex(1);
        Q_EMIT sizes->activated(1);
        QCOMPARE(sheets()->zoom().fit, Zoom::Fit::Width);
    }

    void enterTakesWhatIsTypedBeforeItPrints()
    {
        open(sample());
        child<QPushButton>(u"more"_s)->click();
        auto *priority = child<QDoubleSpinBox>(u"job-priority"_s);
        priority->setFocus();
        priority->selectAll();
        QTest::keyClicks(priority, u"70"_s);
        QTest::keyClick(priority, Qt::Key_Return);
        QCOMPARE(dialog().task().phase(), PrintTask::Phase::Ready);
        QCOMPARE(dialog().task().settings().attribute(u"job-priority"_s), u"70"_s);
        QTest::keyClick(priority, Qt::Key_Return);
        QVERIFY(dialog().task().phase() != PrintTask::Phase::Ready);
        dialog().reject();
        QTRY_COMPARE(dialog().task().phase(), PrintTask::Phase::Ready);
    }

    void aMirroredWindowHasTheSheetsAtTheOtherSide()
    {
        open(sample());
        dialog().resize(1100, 700);
        QCoreApplication::processEvents();
        auto *settings = dialog().findChild<SettingsColumn *>();
        QVERIFY(preview()->x() < settings->x());
        dialog().setLayoutDirection(Qt::RightToLeft);
        QTRY_VERIFY(preview()->x() > settings->x());
    }
};

QTEST_MAIN(WindowPreviewTest)
#include "window_preview_test.moc"
