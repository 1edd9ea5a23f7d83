#include <QTest>

#include "dialog/session/MarksByCups.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/PanelHost.h"
#include "plugin/QXJobValues.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Rows.h"
#include "tests/support/ScriptedAlertPresenter.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// A colour printer with the options that libcups knows, whose pages are pictures when they come to
// it: no filter looks at what the PPD has no option for.
PpdBuilder rasterPrinter()
{
    return PpdBuilder()
        .line("*ColorDevice: True")
        .line("*cupsFilter: \"application/vnd.cups-raster 0 -\"")
        .option("InputSlot", "Tray", "Upper",
                {{"Upper", "Upper"}, {"Lower", "Lower"}, {"Tray1", "Tray 1"}})
        .option("MediaType", "Type", "Plain", {{"Plain", "Plain"}, {"Glossy", "Glossy"}})
        .option("OutputBin", "Bin", "Top", {{"Top", "Top"}, {"FaceDown", "Face Down"}})
        .option("Resolution", "Resolution", "600dpi",
                {{"600dpi", "600"}, {"1200x600dpi", "1200 x 600"}})
        .option("ColorModel", "Color", "RGB", {{"RGB", "Color"}, {"Gray", "Gray"}})
        .option("cupsPrintQuality", "Quality", "Normal",
                {{"Draft", "Draft"}, {"Normal", "Normal"}, {"High", "High"}})
        .option("Stapling", "Staple", "None", {{"None", "None"}, {"One", "One"}})
        .option("Punching", "Punch", "None", {{"None", "None"}, {"Two", "Two"}})
        .line("*cupsIPPFinishings 4/staple: \"*Stapling One\"")
        .line("*cupsIPPFinishings 5/punch: \"*Punching Two\"");
}

// Black and white is a choice of its own, and colour is none.
PpdBuilder greyByChoice()
{
    return PpdBuilder()
        .line("*ColorDevice: True")
        .line("*cupsFilter: \"application/vnd.cups-raster 0 -\"")
        .option("HPColorAsGray", "Gray", "False", {{"True", "On"}, {"False", "Off"}});
}

PpdBuilder colorWithoutOption()
{
    return PpdBuilder()
        .line("*ColorDevice: True")
        .line("*cupsFilter: \"application/vnd.cups-raster 0 -\"");
}

// A printer that takes PDF as it is, with choices that libcups has no name for. One option speaks
// of colours and is about something else.
PpdBuilder greyByName(const char *byDefault)
{
    return PpdBuilder()
        .line("*ColorDevice: True")
        .line("*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"")
        .option("ColorTrapping", "Trapping", "off", {{"off", "Off"}, {"black", "Black"}})
        .option("ColorModel", "Color", byDefault, {{"color", "Color"}, {"grayscale", "Gray"}});
}

PpdBuilder postScriptPrinter()
{
    return PpdBuilder()
        .line("*ColorDevice: True")
        .line("*cupsFilter2: \"application/vnd.cups-postscript application/postscript 0 -\"");
}

PpdBuilder monochromePrinter()
{
    return PpdBuilder()
        .line("*ColorDevice: False")
        .line("*cupsFilter: \"application/vnd.cups-raster 0 -\"");
}

enum class Which {
    Raster,
    GreyByChoice,
    GreyByName,
    UsuallyGrey,
    ColorWithoutOption,
    PostScript,
    Monochrome,
    Sample
};

struct Row
{
    const char *name;
    Which printer;
    const char *asked;
    const char *marked; ///< "Option=Choice …", or "job: …", or "refused: what is allowed"
};

constexpr Row kRows[] = {
    {"colour mode", Which::Raster, "print-color-mode=monochrome", "ColorModel=Gray"},
    {"colour mode in other letters", Which::Raster, "Print-Color-Mode=Monochrome",
     "ColorModel=Gray"},
    {"colour mode, by the choice for grey", Which::GreyByChoice, "print-color-mode=monochrome",
     "HPColorAsGray=True"},
    {"colour, where grey is the choice", Which::GreyByChoice, "print-color-mode=color",
     "HPColorAsGray=False"},
    {"colour mode, by the names of choices", Which::GreyByName, "print-color-mode=monochrome",
     "ColorModel=grayscale"},
    {"colour, by the names of choices", Which::UsuallyGrey, "print-color-mode=color",
     "ColorModel=color"},
    {"automatic, by the names of choices", Which::UsuallyGrey, "print-color-mode=auto",
     "ColorModel=color"},
    {"colour mode that nobody follows", Which::ColorWithoutOption, "print-color-mode=monochrome",
     "refused: auto, color"},
    {"colour, which comes anyway", Which::ColorWithoutOption, "print-color-mode=color",
     "job: print-color-mode=color"},
    {"colour mode that a filter follows", Which::PostScript, "print-color-mode=monochrome",
     "job: print-color-mode=monochrome"},
    {"monochrome, which comes anyway", Which::Monochrome, "print-color-mode=monochrome",
     "job: print-color-mode=monochrome"},
    {"colour of a monochrome printer", Which::Monochrome, "print-color-mode=color",
     "refused: monochrome"},
    {"colour mode that is none", Which::Raster, "print-color-mode=grey",
     "refused: auto, color, monochrome"},
    {"colour mode of a panel", Which::Sample, "print-color-mode=monochrome", "QXMonoColor=Mono"},
    {"automatic colour of a panel", Which::Sample, "print-color-mode=auto", "QXMonoColor=Auto"},

    {"quality", Which::Raster, "print-quality=5", "cupsPrintQuality=High"},
    {"quality by its name", Which::Raster, "print-quality=Draft", "cupsPrintQuality=Draft"},
    {"quality with a colour mode", Which::Raster, "print-quality=3 print-color-mode=monochrome",
     "ColorModel=Gray cupsPrintQuality=Draft"},
    {"quality that is none", Which::Raster, "print-quality=9",
     "refused: 3 (draft), 4 (normal), 5 (high)"},
    {"quality that nobody follows", Which::Monochrome, "print-quality=5", "refused: 4 (normal)"},
    {"quality that comes anyway", Which::Monochrome, "print-quality=4", "job: print-quality=4"},

    {"resolution", Which::Raster, "printer-resolution=1200x600dpi", "Resolution=1200x600dpi"},
    {"resolution, said twice", Which::Raster, "printer-resolution=600x600dpi", "Resolution=600dpi"},
    {"resolution by an older name", Which::Monochrome, "resolution=600dpi", "refused: "},
    {"resolution that is none", Which::Raster, "printer-resolution=300dpi",
     "refused: 600dpi, 1200x600dpi"},
    {"resolution of a panel", Which::Sample, "printer-resolution=1200dpi", "QXResolution=1200dpi"},

    {"bin", Which::Raster, "output-bin=FaceDown", "OutputBin=FaceDown"},
    {"bin by its standard name", Which::Raster, "output-bin=face-down", "OutputBin=FaceDown"},
    {"bin that is none", Which::Raster, "output-bin=mailbox-1", "refused: Top, FaceDown"},

    {"finishing", Which::Raster, "finishings=4", "Stapling=One"},
    {"finishing by its name", Which::Raster, "finishings=Staple", "Stapling=One"},
    {"two finishings", Which::Raster, "finishings=4,punch", "Punching=Two Stapling=One"},
    {"no finishing", Which::Raster, "finishings=3", "job: finishings=3"},
    {"finishing that is none", Which::Raster, "finishings=4,6",
     "refused: 3 (none), 4 (staple), 5 (punch)"},
    {"finishing of a printer without", Which::Monochrome, "finishings=4", "refused: 3 (none)"},

    {"source", Which::Raster, "media-source=lower", "InputSlot=Lower"},
    {"source by its standard name", Which::Raster, "media-source=tray-1", "InputSlot=Tray1"},
    {"source that is none", Which::Raster, "media-source=tray-9", "refused: Upper, Lower, Tray1"},
    {"source of a panel", Which::Sample, "media-source=tray-1", "QXInputSlot=Tray1"},
    {"type", Which::Raster, "media-type=glossy", "MediaType=Glossy"},
    {"type of a panel", Which::Sample, "media-type=Thick", "QXMediaType=Thick"},

    {"size and source", Which::Raster, "media=Postcard,Lower", "InputSlot=Lower PageSize=Postcard"},
    {"size, source and type in small letters", Which::Raster, "media=postcard,lower,glossy",
     "InputSlot=Lower MediaType=Glossy PageSize=Postcard"},
    {"source only", Which::Raster, "media=Lower", "InputSlot=Lower"},
    {"size and a source of a panel", Which::Sample, "media=A5,tray1",
     "PageSize=A5 QXInputSlot=Tray1"},
    {"a part that is nothing", Which::Raster, "media=Postcard,Cellar",
     "refused: “Cellar” is not allowed. Allowed: A4, Postcard, Upper, Lower, Tray1, "
     "Plain, Glossy"},

    {"everything of the paper at once", Which::Raster,
     "media-col={media-size-name=jpn_hagaki_100x148mm media-source=lower media-type=Glossy}",
     "InputSlot=Lower MediaType=Glossy PageSize=Postcard"},
    {"the paper by its measures", Which::Raster,
     "media-col={media-size={x-dimension=10000 y-dimension=14800}}", "PageSize=Postcard"},
    {"a margin of the paper", Which::Raster, "media-col={media-top-margin=0}", "refused: "},
    {"no collection", Which::Raster, "media-col=A5",
     "refused: {media-size-name=… media-source=… media-type=…}"},
};

QByteArray ppdOf(Which which)
{
    switch (which) {
    case Which::Raster:
        return rasterPrinter().text();
    case Which::GreyByChoice:
        return greyByChoice().text();
    case Which::GreyByName:
        return greyByName("color").text();
    case Which::UsuallyGrey:
        return greyByName("grayscale").text();
    case Which::ColorWithoutOption:
        return colorWithoutOption().text();
    case Which::PostScript:
        return postScriptPrinter().text();
    case Which::Monochrome:
        return monochromePrinter().text();
    case Which::Sample:
        break;
    }
    return samplePpd(5);
}

QMap<QString, QString> marksOf(const PpdSession &session)
{
    return session.snapshot().marks;
}

} // namespace

/// The attributes of lp and IPP, and what becomes of each on a printer with a PPD.
class AttributeChoicesTest : public QObject
{
    Q_OBJECT

private:
    ScriptedAlertPresenter m_presenter;
    QXJobValues m_values;

private Q_SLOTS:
    void whatAnAttributeBecomes_data() { addRows(kRows); }
    void whatAnAttributeBecomes()
    {
        const Row &row = currentRow(kRows);
        const auto session = sessionFor(ppdOf(row.printer));
        PanelHost panels(*session, nullptr, m_presenter);
        const PDEJobValues *values = row.printer == Which::Sample ? &m_values : nullptr;
        const QMap<QString, QString> before = marksOf(*session);
        const OptionOutcome outcome =
            applyOptions(parseOptions({QString::fromUtf8(row.asked)}), *session, values, panels);

        QString found;
        if (!outcome.ok()) {
            QCOMPARE(outcome.problems.size(), 1);
            found = u"refused: "_s + outcome.problems.constFirst();
            QVERIFY2(found.contains(QString::fromUtf8(row.asked).section(u'=', 0, 0).toLower()) ||
                         found.contains("media"_L1) || found.contains("resolution"_L1),
                     qPrintable(found));
            QVERIFY2(found.startsWith("refused: "_L1) &&
                         (found.endsWith(QString::fromUtf8(row.marked).mid(9) + u'.') ||
                          QByteArrayView(row.marked) == "refused: "),
                     qPrintable(found));
            QCOMPARE(marksOf(*session), before);
            return;
        }
        QStringList changed;
        const QMap<QString, QString> after = marksOf(*session);
        for (auto mark = after.cbegin(); mark != after.cend(); ++mark) {
            const bool isAsked =
                QString::fromUtf8(row.marked).contains(mark.key() + u'=' + mark.value());
            if (before.value(mark.key()) != mark.value() || isAsked)
                changed += mark.key() + u'=' + mark.value();
        }
        for (const JobOption &attribute : outcome.attributes)
            changed += u"job: %1=%2"_s.arg(attribute.name, attribute.value);
        QCOMPARE(changed.join(u' '), QString::fromUtf8(row.marked));
    }

    void askingLibcupsLeavesTheMarksAlone()
    {
        const auto session = sessionFor(ppdOf(Which::Raster));
        session->changeTogether({{u"PageSize"_s, u"Postcard"_s}, {u"InputSlot"_s, u"Lower"_s}});
        const SessionSnapshot before = session->snapshot();
        const QList<JobOption> choices = choicesByCups(
            session->ppd(), {{u"media"_s, u"A4,tray-1"_s}, {u"print-quality"_s, u"3"_s}});
        QVERIFY(choices.contains(JobOption{u"PageSize"_s, u"A4"_s}));
        QCOMPARE(session->snapshot(), before);
        QCOMPARE(QString::fromLatin1(ppdPageSize(session->ppd(), nullptr)->name), u"Postcard"_s);
    }

    void aColorModeKeepsTheQualityThatWasChosen()
    {
        const auto session = sessionFor(ppdOf(Which::Raster));
        PanelHost panels(*session, nullptr, m_presenter);
        QVERIFY(applyOptions({{u"print-quality"_s, u"5"_s}}, *session, nullptr, panels).ok());
        QVERIFY(applyOptions({{u"print-color-mode"_s, u"monochrome"_s}}, *session, nullptr, panels)
                    .ok());
        QCOMPARE(session->markedChoice(u"cupsPrintQuality"_s), u"High"_s);
        QVERIFY(applyOptions({{u"print-quality"_s, u"3"_s}}, *session, nullptr, panels).ok());
        QCOMPARE(session->markedChoice(u"ColorModel"_s), u"Gray"_s);
    }
};

QTEST_MAIN(AttributeChoicesTest)

#include "attribute_choices_test.moc"
