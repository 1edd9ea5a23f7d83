#include <QSignalSpy>
#include <QSlider>
#include <QTest>

#include "dialog/session/OptionRequest.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/Gestures.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Ink = PageColors::Ink;

namespace {

constexpr int kColorPanel = 1;

// What a step of the brightness adds to each component, in the precision of the filter.
double brightnessOf(int step)
{
    return static_cast<double>(static_cast<float>(step) / 200.0f);
}

PpdBuilder colorPrinter()
{
    return PpdBuilder()
        .line("*ColorDevice: True")
        .line("*cupsFilter2: \"application/vnd.cups-pdf application/postscript 0 pdftops\"");
}

struct BlackCase
{
    const char *name;
    PpdBuilder ppd;
    QString options;
    Ink ink;
};
const QList<BlackCase> kBlackCases{
    {"a color printer", colorPrinter(), {}, Ink::Color},
    {"a printer of one ink", PpdBuilder().line("*ColorDevice: False"), {}, Ink::Black},
    {"asked for by the job", colorPrinter(), u"print-color-mode=monochrome"_s, Ink::Black},
    {"color asked for", colorPrinter(), u"print-color-mode=color"_s, Ink::Color},
    {"an option of the printer's",
     colorPrinter().option("ColorModel", "Color", "RGB", {{"RGB", "Color"}, {"Gray", "Grey"}}),
     u"ColorModel=Gray"_s, Ink::Black},
};

} // namespace

/// The colours in which a preview shows the pages.
class TaskColorsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TaskScene> m_scene;

    PrintTask &open(const PrintRequest &request) { return m_scene->open(request); }
    PrintTask &openSample(const QString &options = {})
    {
        PrintRequest request = m_scene->request({Printer{u"cl5"_s, u"CL"_s, samplePpdPath(), 5}});
        if (!options.isEmpty())
            request.options = parseOptions({options});
        return open(request);
    }
    QSlider *slider(const QString &name) const
    {
        const QPointer<QWidget> view = m_scene->task->opened()->panels->views().value(kColorPanel);
        return view ? view->findChild<QSlider *>(name) : nullptr;
    }

private Q_SLOTS:
    void init() { m_scene = std::make_unique<TaskScene>(); }
    void cleanup() { m_scene.reset(); }

    void whoeverSaysBlackIsBelieved_data() { addRows(kBlackCases); }
    void whoeverSaysBlackIsBelieved()
    {
        const BlackCase &row = currentRow(kBlackCases);
        PrintRequest request = m_scene->request(row.ppd);
        if (!row.options.isEmpty())
            request.options = parseOptions({row.options});
        const PageColors &colors = open(request).pageColors();
        QCOMPARE(colors.ink, row.ink);
        QCOMPARE(colors.transform,
                 row.ink == Ink::Black ? ColorTransform::grey() : ColorTransform());
        QCOMPARE(m_scene->task->pageColorsText().contains(u"black and white"_s),
                 row.ink == Ink::Black);
    }

    void aChoiceOfTheUsersIsFollowed()
    {
        PrintTask &task = open(m_scene->request(colorPrinter()));
        QSignalSpy changed(&task, &PrintTask::pageColorsChanged);
        QCOMPARE(task.setAttribute(u"print-color-mode"_s, u"monochrome"_s), QString());
        QCOMPARE(changed.size(), 1);
        QCOMPARE(task.pageColors().ink, Ink::Black);
        task.setAttribute(u"number-up"_s, u"2"_s);
        QCOMPARE(changed.size(), 1);
        task.setAttribute(u"print-color-mode"_s, u"color"_s);
        QCOMPARE(changed.size(), 2);
        QCOMPARE(task.pageColors(), PageColors());
    }

    void optionsOfACommandLineAreShown()
    {
        const PrintTask &task = openSample(u"QXMonoColor=Color QXBrightness=10"_s);
        QVERIFY(!task.pageColors().transform.isIdentity());
        QCOMPARE(task.pageColors().transform.rows[0][3], brightnessOf(10));
        QCOMPARE(task.pageColorsText(),
                 u"Shows your adjustments; colors on paper differ. “Color Matching: Normal” is "
                 "not shown."_s);
    }

    void aSliderIsFollowedWhileItMoves()
    {
        PrintTask &task = openSample(u"QXMonoColor=Color"_s);
        QVERIFY(task.opened()->panels->visit(kColorPanel));
        QSlider *brightness = slider(u"brightnessSlider"_s);
        QVERIFY(brightness);
        const QVariantMap saved = m_scene->session().printSettings().entries();
        QSignalSpy changed(&task, &PrintTask::pageColorsChanged);
        QSignalSpy settings(&task, &PrintTask::settingsChanged);
        for (const int step : {4, 8, -3}) {
            brightness->setValue(step);
            QTRY_COMPARE(task.pageColors().transform.rows[0][3], brightnessOf(step));
        }
        QCOMPARE(changed.size(), 3);
        QCOMPARE(settings.size(), 0);
        QCOMPARE(m_scene->session().printSettings().entries(), saved);
        // Leaving the page saves it, which shows nothing else.
        QVERIFY(task.opened()->panels->visit(-1));
        QVERIFY(m_scene->session().printSettings().entries() != saved);
        QCOMPARE(task.pageColors().transform.rows[0][3], brightnessOf(-3));
    }

    void aModeOfThePanelsIsFollowed()
    {
        PrintTask &task = openSample(u"QXMonoColor=Color QXRed=10"_s);
        QVERIFY(task.opened()->panels->visit(0));
        QVERIFY(task.opened()->panels->pick(u"QXMonoColor"_s, u"Mono"_s));
        QTRY_COMPARE(task.pageColors().ink, Ink::Black);
        QCOMPARE(task.pageColors().transform, ColorTransform::grey());
        QCOMPARE(task.pageColorsText(), u"Shown in black and white."_s);
    }

    void anotherMatchingModeIsNamed()
    {
        PrintTask &task = openSample(u"QXMonoColor=Color"_s);
        QSignalSpy changed(&task, &PrintTask::pageColorsChanged);
        task.propose(u"QXColorMatching"_s, u"Vivid"_s);
        QTRY_VERIFY(task.pageColorsText().contains(u"Vivid"_s));
        QCOMPARE(changed.size(), 1);
    }

    void theNextPrinterBeginsWithItsOwnColors()
    {
        const Printer sample{u"cl5"_s, u"CL"_s, samplePpdPath(), 5};
        const Printer other = m_scene->printer(u"office"_s, colorPrinter().text());
        PrintRequest request = m_scene->request({sample, other});
        request.options = parseOptions({u"QXMonoColor=Mono"_s});
        PrintTask &task = open(request);
        QCOMPARE(task.pageColors().ink, Ink::Black);
        task.choosePrinter(other);
        QCOMPARE(task.pageColors(), PageColors());
    }
};

QTEST_MAIN(TaskColorsTest)
#include "task_colors_test.moc"
