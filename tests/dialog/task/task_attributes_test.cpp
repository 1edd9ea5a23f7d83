#include <QTest>

#include "dialog/job/PageChoice.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/task/TaskHistory.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Phase = PrintTask::Phase;
using Place = OfferedAttribute::Place;

namespace {

PpdBuilder plainPrinter()
{
    return PpdBuilder().option("Tray", "Tray", "Upper", {{"Upper", "Upper"}, {"Lower", "Lower"}});
}

PpdBuilder collatingPrinter()
{
    return plainPrinter().option("Collate", "Collate", "True",
                                 {{"True", "Sorted"}, {"False", "Unsorted"}});
}

const OfferedAttribute *find(const QList<OfferedAttribute> &offered, const QString &name)
{
    for (const OfferedAttribute &one : offered) {
        if (one.name == name)
            return &one;
    }
    return nullptr;
}

struct ShownCase
{
    const char *name;
    QString options; // as on a command line
    OfferedAttribute shown;
};

const QList<ShownCase> kShown{
    {"nobody asked", {}, {u"number-up"_s, {}, Place::Front, true, true}},
    {"asked", u"number-up=4"_s, {u"number-up"_s, u"4"_s, Place::Front, true, false}},
    {"the orientation", {}, {u"orientation-requested"_s, {}, Place::Front, true, true}},
    {"scaling",
     u"print-scaling=none"_s,
     {u"print-scaling"_s, u"none"_s, Place::Front, true, false}},
    {"banner pages",
     u"job-sheets=standard"_s,
     {u"job-sheets"_s, u"standard"_s, Place::More, true, false}},
    {"no banner page, said twice",
     u"job-sheets=none,none"_s,
     {u"job-sheets"_s, u"none,none"_s, Place::More, true, true}},
    {"an attribute that is not offered by itself",
     u"job-billing=Accounts"_s,
     {u"job-billing"_s, u"Accounts"_s, Place::More, true, false}},
    {"one copy has no order", {}, {u"collate"_s, {}, Place::BesideCopies, false, true}},
    {"several copies have",
     u"copies=2 collate=false"_s,
     {u"collate"_s, u"false"_s, Place::BesideCopies, true, false}},
    {"one page on a sheet has no order", {}, {u"number-up-layout"_s, {}, Place::More, false, true}},
    {"several pages on a sheet have",
     u"number-up=4 number-up-layout=tblr"_s,
     {u"number-up-layout"_s, u"tblr"_s, Place::More, true, false}},
};

struct RefusedCase
{
    const char *name;
    QString attribute;
    QString value;
    QString allowed; // that the answer names
};

const QList<RefusedCase> kRefused{
    {"below the range", u"job-priority"_s, u"0"_s, u"1 to 100"_s},
    {"above the range", u"job-priority"_s, u"101"_s, u"1 to 100"_s},
    {"not of the form", u"job-hold-until"_s, u"25:99"_s, u"a time HH:MM"_s},
    {"no word of the list", u"number-up"_s, u"3"_s, u"16"_s},
    {"empty", u"job-sheets"_s, u""_s, u"names of banner pages"_s},
};

} // namespace

/// The attributes of a job, as every face offers and changes them.
class TaskAttributesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TaskScene> m_scene;

    PrintTask &open(const QString &options, const PpdBuilder &ppd = plainPrinter())
    {
        PrintRequest request = m_scene->request(ppd);
        if (!options.isEmpty())
            request.options = parseOptions({options});
        return m_scene->open(request);
    }
    QStringList summary(const QString &title)
    {
        QStringList values;
        for (const SummaryLine &line : m_scene->task->summary()) {
            if (line.title == title)
                values += line.value;
        }
        return values;
    }
    bool prints(const QByteArray &option)
    {
        m_scene->task->print();
        if (!m_scene->reaches(Phase::Ended))
            return false;
        const QByteArrayList arguments = m_scene->arguments();
        return arguments.contains(option);
    }

private Q_SLOTS:
    void init() { m_scene = std::make_unique<TaskScene>(); }
    void cleanup() { m_scene.reset(); }

    void aPrinterOfOneSideOffersNoBooklet() { QVERIFY(!find(open({}).attributes(), u"booklet"_s)); }

    void whatIsInForceIsOffered_data() { addRows(kShown); }
    void whatIsInForceIsOffered()
    {
        const ShownCase &row = currentRow(kShown);
        const QList<OfferedAttribute> offered = open(row.options).attributes();
        const OfferedAttribute *shown = find(offered, row.shown.name);
        QVERIFY(shown);
        QCOMPARE(shown->value, row.shown.value);
        QCOMPARE(shown->value.isNull(), row.shown.value.isNull());
        QVERIFY(*shown == row.shown);
    }

    // Of every attribute there is, so that none is in force that nobody can see and change.
    void nothingIsInForceThatIsNotOffered()
    {
        for (const QString &name : jobAttributeNames()) {
            const JobAttribute &attribute = *jobAttribute(name);
            QString value = u"1"_s;
            if (!attribute.allowed.words.empty())
                value = attribute.allowed.words.back().value;
            const bool hasField = name == u"page-ranges"_s;
            PrintRequest request = m_scene->request(plainPrinter());
            for (const QString &format : {u"text/plain"_s, u"image/png"_s})
                request.documents += Document{u"/nonexistent"_s, format, u"other"_s};
            PrintTask &task = m_scene->open(request);
            task.settings().addAttributes({{name, value}});
            QVERIFY2((find(task.attributes(), name) != nullptr) != hasField, qPrintable(name));
        }
    }

    void whatNobodyAskedForIsOfferedWherePeopleLookForIt()
    {
        const QList<OfferedAttribute> offered = open({}).attributes();
        for (const QString &name :
             {u"collate"_s, u"number-up"_s, u"print-scaling"_s, u"page-set"_s, u"outputorder"_s})
            QVERIFY2(find(offered, name), qPrintable(name));
        for (const QString &name : {u"job-billing"_s, u"ppi"_s, u"fit-to-page"_s, u"page-ranges"_s})
            QVERIFY2(!find(offered, name), qPrintable(name));
    }

    // What one face refuses every face refuses: a list with a value that nobody follows is none.
    void aColorModeIsOfferedWhereItIsDoneAndHasNoOptionOfItsOwn()
    {
        const PpdBuilder pdf =
            PpdBuilder()
                .line("*ColorDevice: True")
                .line("*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"");
        QVERIFY(!find(open({}, pdf).attributes(), u"print-color-mode"_s));
        const QString problem = m_scene->task->setAttribute(u"print-color-mode"_s, u"monochrome"_s);
        QVERIFY2(problem.contains(u"auto, color"_s), qPrintable(problem));
        QVERIFY(summary(u"Color Mode"_s).isEmpty());
        const PpdBuilder postScript =
            PpdBuilder()
                .line("*ColorDevice: True")
                .line("*cupsFilter2: \"application/vnd.cups-postscript application/postscript 0 "
                      "-\"");
        QVERIFY(find(open({}, postScript).attributes(), u"print-color-mode"_s));
        PpdBuilder choosing = pdf;
        choosing.option("ColorModel", "Color", "color",
                        {{"color", "Color"}, {"grayscale", "Gray"}});
        QVERIFY(!find(open({}, choosing).attributes(), u"print-color-mode"_s));
        QCOMPARE(m_scene->task->setAttribute(u"print-color-mode"_s, u"monochrome"_s), QString());
        QCOMPARE(m_scene->session().markedChoice(u"ColorModel"_s), u"grayscale"_s);
    }

    void aColorModeIsNotOfferedBesideTheOptionThatThePanelsHaveForIt()
    {
        const PpdBuilder plain =
            PpdBuilder()
                .line("*ColorDevice: True")
                .line("*cupsFilter2: \"application/vnd.cups-postscript application/postscript 0 "
                      "-\"");
        PpdBuilder panels = plain;
        panels.line("*QXPrintDialogExtension: \"QXCLQuality13PDE.bundle\"")
            .option("QXMonoColor", "Color Mode", "Auto", {{"Auto", "Auto"}, {"Color", "Color"}});
        const OfferedAttribute front = *find(
            open(u"print-color-mode=monochrome"_s, plain).attributes(), u"print-color-mode"_s);
        QCOMPARE(front.place, OfferedAttribute::Place::Front);
        PrintTask &task = open({}, panels);
        QVERIFY(!task.opened()->panels->panels().isEmpty());
        QVERIFY(!find(task.attributes(), u"print-color-mode"_s));
        // What is in force is seen.
        const OfferedAttribute more = *find(
            open(u"print-color-mode=monochrome"_s, panels).attributes(), u"print-color-mode"_s);
        QCOMPARE(more.place, OfferedAttribute::Place::More);
    }

    void whatIsNotKnownToBeDoneIsNoFactInTheSummary()
    {
        PrintTask &task = open({});
        task.opened()->fetched.defaults = {{u"Sparkle"_s, u"bright"_s}};
        const QString line = summary(u"Sparkle"_s).value(0);
        QVERIFY2(line.startsWith(u"bright (asked for by the queue"_s), qPrintable(line));
    }

    void whatAQueueWritesInOtherLettersIsOneLine()
    {
        PrintTask &task = open(u"number-up=2"_s);
        task.opened()->fetched.defaults = {{u"Number-Up"_s, u"2"_s}};
        QCOMPARE(summary(u"Pages per Sheet"_s), QStringList{u"2"_s});
        QVERIFY(summary(u"Number-Up"_s).isEmpty());
    }

    // The server adds it to every job; nobody follows it in this one.
    void whatDoesNothingToTheDocumentIsNotInTheSummary()
    {
        PrintTask &task = open({});
        task.opened()->fetched.defaults = {{u"ppi"_s, u"300"_s}};
        QVERIFY(summary(u"Pixels per Inch"_s).isEmpty());
        task.settings().addAttributes({{u"page-left"_s, u"36"_s}});
        QCOMPARE(summary(u"Left Margin"_s), QStringList{u"36 (only where a page is scaled)"_s});
    }

    void aChoiceStandsInSummaryAndJob()
    {
        PrintTask &task = open({});
        QCOMPARE(task.setAttribute(u"number-up"_s, u"4"_s), QString());
        QCOMPARE(task.setAttribute(u"print-scaling"_s, u"none"_s), QString());
        QCOMPARE(summary(u"Pages per Sheet"_s), QStringList{u"4"_s});
        QCOMPARE(summary(u"Scaling"_s), QStringList{u"Actual Size"_s});
        QVERIFY(prints("number-up=4"));
        QVERIFY(m_scene->arguments().contains("print-scaling=none"));
    }

    void theUsualValueOverADefaultStandsInSummaryAndJob()
    {
        PrintTask &task = open(u"number-up=2"_s);
        QCOMPARE(task.setAttribute(u"number-up"_s, u"1"_s), QString());
        QCOMPARE(summary(u"Pages per Sheet"_s), QStringList{u"1"_s});
        QVERIFY(prints("number-up=1"));
    }

    void whatIsTakenBackIsStillOffered()
    {
        PrintTask &task = open(u"job-billing=Ada"_s);
        QCOMPARE(task.setAttribute(u"job-billing"_s, {}), QString());
        QVERIFY(find(task.attributes(), u"job-billing"_s));
        QVERIFY(find(task.attributes(), u"job-billing"_s)->value.isNull());
        QVERIFY(summary(u"Billed To"_s).isEmpty());
        QVERIFY(!prints("job-billing=Ada"));
    }

    // The server would add its own value again, and the window would show none.
    void whatItsQueueAlwaysSetsCannotBeTakenBackButChanged()
    {
        PrintTask &task = open(u"orientation-requested=4"_s);
        task.opened()->fetched.defaults = {{u"orientation-requested"_s, u"4"_s}};
        const QString problem = task.setAttribute(u"orientation-requested"_s, {});
        QVERIFY2(problem.contains(u"office"_s) && problem.contains(u"Portrait"_s),
                 qPrintable(problem));
        QCOMPARE(task.settings().attribute(u"orientation-requested"_s), u"4"_s);
        QCOMPARE(task.setAttribute(u"orientation-requested"_s, u"3"_s), QString());
        QVERIFY(prints("orientation-requested=3"));
    }

    void whatItsQueueSetsIsTakenBackWhereAValueAsksForNothing()
    {
        PrintTask &task = open(u"number-up=4"_s);
        task.opened()->fetched.defaults = {{u"number-up"_s, u"4"_s}};
        QCOMPARE(task.setAttribute(u"number-up"_s, {}), QString());
        QVERIFY(prints("number-up=1"));
    }

    // "landscape=false" takes it back.
    void whatItsQueueSetsInAnotherSpellingCanBeTakenBack()
    {
        PrintTask &task = open(u"orientation-requested=4"_s);
        task.opened()->fetched.defaults = {{u"landscape"_s, u"true"_s}};
        QCOMPARE(task.setAttribute(u"orientation-requested"_s, {}), QString());
        QVERIFY(prints("landscape=false"));
    }

    void aDefaultThatItsQueueHasGotMeanwhileIsShownWhenItComesBack()
    {
        const Printer printer = m_scene->printer(u"first"_s, plainPrinter().text());
        PrintTask &task = m_scene->open(m_scene->request(QList{printer}));
        task.setAttribute(u"orientation-requested"_s, u"3"_s);
        task.setAttribute(u"number-up"_s, u"4"_s);
        task.setAttribute(u"orientation-requested"_s, {});
        FetchedPrinter changed = task.opened()->fetched;
        changed.defaults = {{u"orientation-requested"_s, u"4"_s}};
        Q_EMIT task.printers().ready(changed);
        task.bringUp();
        QCOMPARE(task.settings().attribute(u"number-up"_s), u"4"_s);
        QCOMPARE(find(task.attributes(), u"orientation-requested"_s)->value, u"4"_s);
    }

    void aChangeIsShownAtOnceAndOnce()
    {
        PrintTask &task = open({});
        int shown = 0;
        connect(&task, &PrintTask::settingsChanged, this, [&] { ++shown; });
        task.setAttribute(u"number-up"_s, u"4"_s);
        QCOMPARE(shown, 1);
        task.setAttribute(u"number-up"_s, u"4"_s); // what it is already
        QCOMPARE(shown, 1);
    }

    void aValueThatIsNotAllowedIsRefusedInWords_data() { addRows(kRefused); }
    void aValueThatIsNotAllowedIsRefusedInWords()
    {
        const RefusedCase &row = currentRow(kRefused);
        PrintTask &task = open(u"job-priority=20"_s);
        const QList<JobOption> before = task.settings().attributes();
        const QString problem = task.setAttribute(row.attribute, row.value);
        QVERIFY2(problem.contains(u"“%1”"_s.arg(row.value)), qPrintable(problem));
        QVERIFY2(problem.contains(row.allowed), qPrintable(problem));
        QCOMPARE(task.settings().attributes(), before);
    }

    void aNameThatMeansNothingIsRefused()
    {
        QVERIFY(open({}).setAttribute(u"no-such-thing"_s, u"1"_s).contains(u"no-such-thing"_s));
    }

    // CUPS tells option and attribute apart by nothing but the case of their letters.
    void thePrintersOwnCollationIsTheOneThatChanges()
    {
        PrintTask &task = open(u"copies=2"_s, collatingPrinter());
        QCOMPARE(find(task.attributes(), u"collate"_s)->value, u"true"_s);
        QCOMPARE(task.setAttribute(u"collate"_s, u"false"_s), QString());
        QCOMPARE(m_scene->session().markedChoice(u"Collate"_s), u"False"_s);
        QCOMPARE(find(task.attributes(), u"collate"_s)->value, u"false"_s);
        QCOMPARE(task.settings().attribute(u"collate"_s), QString());
        QVERIFY(prints("Collate=False"));
        QVERIFY(!m_scene->arguments().contains("collate=false"));
    }

    // Filters that make the copies put none on the back of another.
    void copiesOnBothSidesAreCollatedWhereFiltersMakeThem()
    {
        PpdBuilder ppd = plainPrinter().option("Duplex", "Duplex", "None",
                                               {{"None", "Off"}, {"DuplexNoTumble", "On"}});
        PrintTask &hardware = open(u"copies=2 collate=false sides=two-sided-long-edge"_s, ppd);
        QCOMPARE(*find(hardware.attributes(), u"collate"_s),
                 (OfferedAttribute{u"collate"_s, u"false"_s, Place::BesideCopies, true, false}));
        QCOMPARE(summary(u"Copies"_s), QStringList{u"2, not collated"_s});

        ppd.line("*cupsManualCopies: True");
        PrintTask &filters = open(u"copies=2 collate=false sides=two-sided-long-edge"_s, ppd);
        const OfferedAttribute given = *find(filters.attributes(), u"collate"_s);
        QCOMPARE(given.value, u"true"_s);
        QVERIFY(!given.hasEffect);
        QVERIFY(summary(u"Copies"_s).value(0).startsWith(u"2, collated ("_s));
        QVERIFY(prints("collate=true"));
        QVERIFY(!m_scene->arguments().contains("collate=false"));

        PrintTask &oneSided = open(u"copies=2 collate=false"_s, ppd);
        QCOMPARE(find(oneSided.attributes(), u"collate"_s)->value, u"false"_s);
        QCOMPARE(summary(u"Copies"_s), QStringList{u"2, not collated"_s});
    }

    // Of a printer that collates only with a disk, and has none, the filters' collation is offered.
    void theFiltersCollationIsOfferedWhereThePrinterHasNone()
    {
        PpdBuilder ppd =
            collatingPrinter().option("Disk", "Disk", "None", {{"None", "None"}, {"Hard", "Hard"}});
        ppd.constraint("Collate", "True", "Disk", "None");
        const auto saysIt = [&] {
            const QByteArrayList arguments = m_scene->arguments();
            return std::any_of(arguments.cbegin(), arguments.cend(),
                               [](const QByteArray &one) { return one.startsWith("Collate="); });
        };
        PrintTask &first = open(u"copies=2 Collate=True"_s, ppd);
        QCOMPARE(find(first.attributes(), u"collate"_s)->value, u"true"_s);
        QVERIFY(prints("collate=true"));
        QVERIFY(!saysIt());
        PrintTask &task = open(u"copies=2"_s, ppd);
        QVERIFY(find(task.attributes(), u"collate"_s)->isUsual);
        QCOMPARE(summary(u"Copies"_s), QStringList{u"2, collated"_s});
        QCOMPARE(task.setAttribute(u"collate"_s, u"false"_s), QString());
        QCOMPARE(summary(u"Copies"_s), QStringList{u"2, not collated"_s});
        QVERIFY(prints("collate=false"));
        QVERIFY(!saysIt());
    }

    void anOptionOfThePrinterIsNoAttributeBesideIt()
    {
        const PpdBuilder ppd = plainPrinter().option("OutputOrder", "Order", "Normal",
                                                     {{"Normal", "First"}, {"Reverse", "Last"}});
        QVERIFY(!find(open({}, ppd).attributes(), u"outputorder"_s));
        QVERIFY(find(open({}).attributes(), u"outputorder"_s));
    }

    // CUPS' filters enlarge pages of nothing else.
    void aScaleInPercentIsOfferedForPicturesAlone()
    {
        PrintRequest request = m_scene->request(plainPrinter());
        for (const QString &format : {u"application/pdf"_s, u"text/plain"_s, u"image/png"_s}) {
            request.documents.first().format = format;
            const QList<OfferedAttribute> offered = m_scene->open(request).attributes();
            QCOMPARE(find(offered, u"scaling"_s) != nullptr, format == u"image/png"_s);
        }
    }

    // Sheets that lie face up are in order when the last page was printed first.
    void theOrderThatAPrinterHasAnywayIsShownAndCanBeChosenAgainst()
    {
        PpdBuilder ppd = plainPrinter();
        PrintTask &task = open({}, ppd.line("*DefaultOutputOrder: Reverse"));
        const auto order = [&] { return *find(task.attributes(), u"outputorder"_s); };
        QCOMPARE(order().value, u"reverse"_s);
        QVERIFY(order().isUsual);
        QCOMPARE(task.setAttribute(u"outputorder"_s, u"normal"_s), QString());
        QCOMPARE(task.settings().attribute(u"outputorder"_s), u"normal"_s);
        QCOMPARE(order().value, u"normal"_s);
        QVERIFY(!order().isUsual);
        QCOMPARE(task.setAttribute(u"outputorder"_s, u"reverse"_s), QString());
        QCOMPARE(task.settings().attribute(u"outputorder"_s), QString());
    }

    // What is usual elsewhere is a choice there.
    void anOrderThatWasChosenAgainstThePrintersGoesBack()
    {
        PpdBuilder ppd = plainPrinter();
        PrintTask &task = open({}, ppd.line("*DefaultOutputOrder: Reverse"));
        task.setAttribute(u"outputorder"_s, u"normal"_s);
        task.history().setBase({task.settingsNow(), u"Reports"_s});
        task.setAttribute(u"outputorder"_s, u"reverse"_s);
        task.history().resetSettings({u"outputorder"_s});
        QCOMPARE(task.settings().attribute(u"outputorder"_s), u"normal"_s);
        QCOMPARE(task.history().changedSettings(), QStringList());
    }

    void whatWasChosenComesBackWithItsPrinter()
    {
        const Printer first = m_scene->printer(u"first"_s, plainPrinter().text());
        const Printer second = m_scene->printer(u"second"_s, collatingPrinter().text());
        PrintTask &task = m_scene->open(m_scene->request(QList{first, second}));
        task.choosePrinter(first);
        task.bringUp();
        task.setAttribute(u"number-up"_s, u"4"_s);
        task.choosePrinter(second);
        task.bringUp();
        QCOMPARE(task.settings().attribute(u"number-up"_s), QString());
        task.choosePrinter(first);
        task.bringUp();
        QCOMPARE(task.settings().attribute(u"number-up"_s), u"4"_s);
        // And so does that it was taken back.
        task.setAttribute(u"number-up"_s, u"1"_s);
        task.choosePrinter(second);
        task.bringUp();
        task.choosePrinter(first);
        task.bringUp();
        QCOMPARE(task.settings().attribute(u"number-up"_s), QString());
    }
};

QTEST_MAIN(TaskAttributesTest)

#include "task_attributes_test.moc"
