#include <QTest>
#include <QTransform>

#include "dialog/session/OptionRequest.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/SidePictures.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Phase = PrintTask::Phase;

namespace {

struct TurnedCase
{
    const char *name;
    QString options;
    QString pages{};
    int documents = 1;
};
const QList<TurnedCase> kTurned{
    {"as it is", {}},
    {"two pages on a side", u"number-up=2"_s},
    {"four of them", u"number-up=4"_s},
    {"a booklet", u"booklet=left"_s},
    {"each page twice", u"repeat=2"_s},
    {"landscape", u"orientation-requested=4"_s},
    {"the other way", u"orientation-requested=5"_s},
    {"upside down", u"orientation-requested=6"_s},
    {"filled and turned", u"orientation-requested=4 print-scaling=fill"_s},
    {"mirrored", u"number-up=2 mirror"_s},
    {"last one first", u"number-up=2 outputorder=reverse"_s},
    {"some pages of several documents", u"number-up=2"_s, u"2-4"_s, 2},
    {"several documents turned", u"orientation-requested=4"_s, {}, 2},
};

} // namespace

/// What is saved as PDF is read on a screen: upright, as the preview shows it.
class TaskPdfTurnsTest : public QObject
{
    Q_OBJECT

private:
    static constexpr int kPatience = 60000;

    std::unique_ptr<TaskScene> m_scene;
    std::unique_ptr<Variable> m_filter; // the real one, in place of the scene's

    PrintTask &open(const TurnedCase &row)
    {
        PrintRequest request = m_scene->request(QList<Printer>());
        request.wantedPrinter = kPdfPrinterName;
        request.server = {u"127.0.0.1"_s, 9, HTTP_ENCRYPTION_IF_REQUESTED}; // nobody is there
        request.documents.clear();
        for (int i = 0; i < row.documents; ++i) {
            const QString name = u"%1.pdf"_s.arg(i);
            request.documents +=
                Document{writeFile(m_scene->filter.path(name), numberedPdf("a", 5 - i)),
                         u"application/pdf"_s, name};
        }
        if (!row.options.isEmpty())
            request.options = parseOptions({row.options});
        PrintTask &task = m_scene->make(request);
        task.startUnattended();
        [&] { QTRY_COMPARE(task.phase(), Phase::Opened); }();
        task.bringUp();
        task.settings().setPageRanges(row.pages);
        return task;
    }
    // As they are seen in the preview.
    static QList<QImage> shown(const SheetPreview &preview)
    {
        QList<QList<QImage>> files;
        for (const auto &file : preview.files)
            files += picturesOfPdf(file->path());
        QList<QImage> sides;
        for (const PlannedSheet &sheet : preview.plan.sheets) {
            const PlannedSide &side = sheet.front;
            sides += files.value(side.document)
                         .value(side.laidOutPage)
                         .transformed(QTransform().rotate(side.turn));
        }
        return sides;
    }

private Q_SLOTS:
    void init()
    {
        m_scene = std::make_unique<TaskScene>();
        m_filter = std::make_unique<Variable>("CORVANA_PRINT_CUPSFILTER", "");
    }
    void cleanup()
    {
        m_filter.reset();
        m_scene.reset();
    }

    void theFileIsReadAsThePreviewShowsIt_data() { addRows(kTurned); }
    void theFileIsReadAsThePreviewShowsIt()
    {
        PrintTask &task = open(currentRow(kTurned));
        task.countSheets();
        QTRY_COMPARE_WITH_TIMEOUT(task.sheetPreview().state, SheetPreview::State::Known, kPatience);
        const QList<QImage> seen = shown(task.sheetPreview());
        task.print();
        QVERIFY2(m_scene->reaches(Phase::Ended), qPrintable(m_scene->face.problems().join(u'\n')));
        const QList<QImage> saved = picturesOfPdf(task.output());
        QVERIFY(!seen.isEmpty());
        QCOMPARE(saved.size(), seen.size());
        for (qsizetype i = 0; i < seen.size(); ++i) {
            const PictureDifference difference = differenceOf(saved.at(i), seen.at(i));
            // Letters are drawn a little otherwise when they lie on their side.
            QVERIFY2(difference.size <= 1 && difference.edges <= 2 && difference.mean < 5,
                     qPrintable(u"page %1: %2 %3 %4"_s.arg(
                         QString::number(i + 1), QString::number(difference.size),
                         QString::number(difference.edges), QString::number(difference.mean))));
        }
    }
};

QTEST_MAIN(TaskPdfTurnsTest)
#include "task_pdf_turns_test.moc"
