#include <QScrollArea>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/window/PrintWindow.h"
#include "tests/dialog/support/LoadedBundle.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/NumberedPdf.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

// What a person who looks at the summary sees of the sheets.
class WindowSheetsTest : public QObject
{
    Q_OBJECT

private:
    static constexpr int kPatience = 60000;

    QTemporaryDir m_folder;
    std::unique_ptr<PrintWindow> m_window;

    QTabWidget *pages() const { return m_window->findChild<QTabWidget *>(u"pages"_s); }
    QString sheets() const
    {
        const auto *summary = m_window->findChild<QTableWidget *>(u"summary"_s);
        for (int row = 0; summary && row < summary->rowCount(); ++row) {
            if (summary->item(row, 0)->text() == "Sheets"_L1)
                return summary->item(row, 1)->text();
        }
        return {};
    }

private Q_SLOTS:
    void theSummaryCountsWhileItIsLookedAt()
    {
        PrintRequest request;
        const QString path = writeFile(m_folder.filePath(u"a.pdf"_s), numberedPdf("page", 3));
        request.documents = {{path, u"application/pdf"_s, u"a.pdf"_s}};
        request.title = u"Job"_s;
        request.output = m_folder.filePath(u"out.ps"_s);
        request.bundleRoots = builtBundleRoots();
        request.printers = {{u"cl5"_s, u"CL"_s, samplePpdPath(), 5}};
        m_window = std::make_unique<PrintWindow>(request);
        m_window->show();
        QTRY_COMPARE(m_window->task().phase(), PrintTask::Phase::Ready);
        pages()->setCurrentIndex(pages()->count() - 1);
        QCOMPARE(sheets(), u"…"_s);
        QTRY_COMPARE_WITH_TIMEOUT(sheets(), u"3 pages = 3 sheets"_s, kPatience);

        pages()->setCurrentIndex(0);
        m_window->task().settings().setPageRanges(u"2"_s);
        pages()->setCurrentIndex(pages()->count() - 1);
        QCOMPARE(sheets(), u"…"_s);
        QTRY_COMPARE_WITH_TIMEOUT(sheets(), u"1 page = 1 sheet"_s, kPatience);
        m_window.reset();
    }
};

QTEST_MAIN(WindowSheetsTest)

#include "window_sheets_test.moc"
