#include <QDir>
#include <QFile>
#include <QTest>

#include "tests/dialog/support/TestPrinters.h"
#include "tests/e2e/BothFaces.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

/// What a user asks for. In every text {work} is a folder of the test's own.
struct Wish
{
    const char *name;
    QStringList arguments;
    /// A part of what is said instead of printing; null where the job is printed.
    const char *says = nullptr;
    /// Files of the printers, see printers().
    const char *printer = "cl5";
    QStringList documents{u"{work}/document.pdf"_s};
    QString output = u"{work}/job.ps"_s;
};

// Each with -o. Several options may stand in one.
QStringList options(const QString &options)
{
    return {u"-o"_s, options};
}

const QList<Wish> kRefused{
    {"an option that nobody knows", options(u"Sparkle=ON"_s), "this printer has no such option"},
    {"a choice that the printer lacks", options(u"QXMediaType=Silk"_s), "Allowed: Plain"},
    {"a value of a panel's own out of its range", options(u"QXSleepTime=Custom.100"_s),
     "Custom.1 … Custom.99"},
    {"a custom size that is too large", options(u"PageSize=Custom.900x900mm"_s),
     "PageSize=Custom.900x900mm: "},
    {"an attribute out of its range", options(u"number-up=5"_s), "number-up=5: "},
    {"choices that exclude each other", options(u"QXMediaType=Glossy Duplex=DuplexTumble"_s),
     "cannot be combined"},
    {"pages backwards", options(u"page-ranges=5-1"_s), "page-ranges=5-1: "},
    {"more copies than anybody makes", options(u"copies=999999"_s), "copies=999999: "},
    {"several problems at once", options(u"Sparkle=ON QXMediaType=Silk number-up=5"_s),
     "number-up=5: "},
    {"a medium that panels take for none of here", options(u"QXMediaType=PostCard"_s),
     "it became "},
    {"a medium that a paper brings, and that is in the way",
     options(u"PageSize=EnvDL Duplex=DuplexNoTumble"_s), "QXMediaType=Env: this cannot be combined",
     "onesided"},
    {"a colour of a job that is black and white", options(u"QXMonoColor=Mono QXRed=5"_s),
     "QXRed=5: the printer's settings do not allow this here"},
    {"an output that is a folder",
     {},
     "{work}/folder",
     "cl5",
     {u"{work}/document.pdf"_s},
     u"{work}/folder"_s},
    {"an output in a folder that is not there",
     {},
     "{work}/none/job.ps",
     "cl5",
     {u"{work}/document.pdf"_s},
     u"{work}/none/job.ps"_s},
    {"an output that is the document",
     {},
     "is the document itself",
     "cl5",
     {u"{work}/document.pdf"_s},
     u"{work}/document.pdf"_s},
    {"an output that is the second document",
     {},
     "is the document itself",
     "cl5",
     {u"{work}/page.txt"_s, u"{work}/document.pdf"_s},
     u"{work}/document.pdf"_s},
    {"a PPD that is none", {}, "Missing asterisk", "broken"},
    {"a PPD that is not there", {}, "none.ppd: ", "none"},
    {"a printer without panels", options(u"Media=Film Staple=Left"_s),
     "Media=Film: this cannot be combined", "office"},
};

const QList<Wish> kPrinted{
    {"nothing but the document", {}},
    {"choices of both panels",
     options(u"QXMediaType=Thick QXInputSlot=Tray1 Duplex=DuplexTumble QXColorMatching=Vivid"_s)},
    {"values of the panels' own",
     options(u"QXSleepTime=Custom.12 QXDensityAdjustment=-6 QXRed=5 QXBrightness=7"_s)},
    {"a custom size", options(u"PageSize=Custom.100x200mm"_s)},
    {"black and white", options(u"QXMonoColor=Mono"_s)},
    {"names of lp's", options(u"media=iso_a5_148x210mm sides=two-sided-long-edge"_s)},
    {"some pages", options(u"page-ranges=2-3"_s)},
    {"two pages on one sheet", options(u"number-up=2"_s)},
    {"several copies", {u"-n"_s, u"3"_s}},
    {"copies of an option", options(u"copies=2"_s)},
    {"-n before an option", {u"-n"_s, u"3"_s, u"-o"_s, u"copies=2"_s}},
    {"a title", {u"-t"_s, u"Übersicht (100 %)"_s}},
    {"several documents",
     options(u"QXMediaType=Thin"_s),
     nullptr,
     "cl5",
     {u"{work}/document.pdf"_s, u"{work}/page.txt"_s}},
    {"an envelope with its instructions", {u"-o"_s, u"PageSize=EnvDL"_s, u"--on-alert=print"_s}},
    {"a medium that was named beside the one that a paper brings",
     options(u"PageSize=EnvDL QXMediaType=Thick Duplex=DuplexNoTumble"_s), nullptr, "onesided"},
    {"a printer without panels", options(u"Tray=Lower Sleep=Custom.12 Staple=Left"_s), nullptr,
     "office"},
};

} // namespace

/// One request through both faces, the window and the run without one: what one refuses the other
/// refuses in the same words, and what both print are the same bytes.
class FacesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_work;

    QString inWork(const QString &text) const
    {
        return QString(text).replace(u"{work}"_s, m_work->path());
    }
    QStringList arguments(const Wish &wish) const
    {
        QStringList all{u"--ppd"_s,
                        inWork(u"{work}/%1.ppd"_s.arg(QString::fromLatin1(wish.printer))),
                        u"--output"_s, inWork(wish.output)};
        all += wish.arguments;
        for (const QString &document : wish.documents)
            all += inWork(document);
        return all;
    }

    static QByteArray contentOf(const QString &name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    FaceEnd inTerminal(const Wish &wish) const
    {
        return printInTerminal(arguments(wish), inWork(wish.output));
    }
    FaceEnd inWindow(const Wish &wish) const
    {
        return printInWindow(arguments(wish), inWork(wish.output));
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_work = std::make_unique<QTemporaryDir>();
        qputenv("XDG_CONFIG_HOME", m_work->filePath(u"config"_s).toLocal8Bit());
    }
    void init()
    {
        const QByteArray cl5 = contentOf(samplePpdPath());
        writeFile(inWork(u"{work}/cl5.ppd"_s), cl5);
        writeFile(inWork(u"{work}/onesided.ppd"_s),
                  cl5 + "*UIConstraints: *QXMediaType Env *Duplex DuplexNoTumble\n"
                        "*UIConstraints: *Duplex DuplexNoTumble *QXMediaType Env\n");
        writeFile(inWork(u"{work}/office.ppd"_s), officePrinter().text());
        writeFile(inWork(u"{work}/broken.ppd"_s), "no PPD");
        writeFile(inWork(u"{work}/document.pdf"_s),
                  contentOf(sourceFile(u"resources/sample/welcome.pdf"_s)));
        writeFile(inWork(u"{work}/page.txt"_s), contentOf(sourceFile(u"tests/data/page.txt"_s)));
        QDir().mkpath(inWork(u"{work}/folder"_s));
    }

    void whatIsRefusedIsRefusedInTheSameWords_data() { addRows(kRefused); }
    void whatIsRefusedIsRefusedInTheSameWords()
    {
        const Wish &wish = currentRow(kRefused);
        const FaceEnd terminal = inTerminal(wish);
        const FaceEnd window = inWindow(wish);
        QVERIFY(!terminal.isPrinted);
        QVERIFY(!window.isPrinted);
        const QString expected = inWork(QString::fromUtf8(wish.says));
        QVERIFY2(terminal.said.contains(expected), qPrintable(terminal.said));
        QCOMPARE(window.said, terminal.said);
        // Neither has left anything, or touched what stands there.
        QVERIFY(!QFile::exists(inWork(u"{work}/job.ps"_s)));
        QVERIFY(contentOf(inWork(u"{work}/document.pdf"_s)).startsWith("%PDF"));
    }

    void whatIsPrintedIsTheSame_data() { addRows(kPrinted); }
    void whatIsPrintedIsTheSame()
    {
        const Wish &wish = currentRow(kPrinted);
        const FaceEnd terminal = inTerminal(wish);
        QVERIFY2(terminal.isPrinted, qPrintable(terminal.said));
        const FaceEnd window = inWindow(wish);
        QVERIFY2(window.isPrinted, qPrintable(window.said));
        QVERIFY(terminal.printed.startsWith("%!PS"));
        QVERIFY(window.printed == terminal.printed);
    }

    // Whoever sits in front of the window reads the instructions.
    void aPolicyForAlertsIsForRunsThatNobodyWatches_data()
    {
        QTest::addColumn<QString>("policy");
        QTest::addColumn<QString>("says");
        QTest::newRow("hold") << u"hold"_s << u"a file cannot wait"_s;
        QTest::newRow("refuse") << u"refuse"_s << u"The printer's settings show instructions."_s;
    }
    void aPolicyForAlertsIsForRunsThatNobodyWatches()
    {
        QFETCH(QString, policy);
        QFETCH(QString, says);
        const Wish wish{"", {u"-o"_s, u"QXMediaType=Label"_s, u"--on-alert="_s + policy}};
        const FaceEnd terminal = inTerminal(wish);
        QVERIFY2(!terminal.isPrinted && terminal.said.contains(says), qPrintable(terminal.said));
        const FaceEnd window = inWindow(wish);
        QVERIFY2(window.isPrinted, qPrintable(window.said));
    }
};

QTEST_MAIN(FacesTest)

#include "faces_test.moc"
