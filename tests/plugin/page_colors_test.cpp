// The user's own pages are shown with what the Color Setting panel does to its reference picture.

#include <QRandomGenerator>
#include <QSlider>
#include <QTest>

#include "plugin/QXCLQuality13PDEPlugIn.h"
#include "plugin/QXPageColors.h"
#include "tests/colorsetting/ColorSettingProbe.h"
#include "tests/colorsetting/EffectArithmetic.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/Rows.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Ink = PageColors::Ink;

namespace {

// Arithmetic in single and in double precision may round one value to two neighbours.
constexpr int kRounding = 1;

const QVariantList kStrong{10, -6, 12, 4, -9, 15};

struct Mode
{
    const char *name;
    QList<JobOption> marks;
    Ink ink;
    QStringList unknown;
    bool showsEffects; // with effects another picture is seen than without
};
const QList<Mode> kModes{
    {"color", {{u"QXMonoColor"_s, u"Color"_s}}, Ink::Color, {u"QXColorMatching"_s}, true},
    {"monochrome", {{u"QXMonoColor"_s, u"Mono"_s}}, Ink::Black, {}, true},
    {"vivid",
     {{u"QXMonoColor"_s, u"Color"_s}, {u"QXColorMatching"_s, u"Vivid"_s}},
     Ink::Color,
     {u"QXColorMatching"_s},
     true},
    {"no matching",
     {{u"QXMonoColor"_s, u"Color"_s}, {u"QXColorMatching"_s, u"None"_s}},
     Ink::Color,
     {},
     false},
    {"no matching, monochrome",
     {{u"QXMonoColor"_s, u"Mono"_s}, {u"QXColorMatching"_s, u"None"_s}},
     Ink::Black,
     {},
     false},
};

// Zeros, each effect at both ends, and sets that a seed makes.
QList<QVariantList> effectSets()
{
    const qsizetype count = qsizetype(kEffectTable.size());
    QList<QVariantList> sets{QVariantList(count, 0)};
    for (qsizetype effect = 0; effect < count; ++effect) {
        for (const int step : {-20, 20}) {
            QVariantList set(count, 0);
            set[effect] = step;
            sets += set;
        }
    }
    QRandomGenerator random(14);
    for (int i = 0; i < 25; ++i) {
        QVariantList set;
        for (qsizetype effect = 0; effect < count; ++effect)
            set += random.bounded(-20, 21);
        sets += set;
    }
    return sets;
}

} // namespace

class PageColorsTest : public QObject
{
    Q_OBJECT

private:
    QXPageColors m_colors;

    static std::shared_ptr<RecordingHost> hostWith(const QList<JobOption> &marks,
                                                   const QVariantList &effects)
    {
        auto host = RecordingHost::forSamplePrinter();
        for (const JobOption &mark : marks)
            host->mark(mark.name, mark.value);
        for (const auto key : {kNormalEffect, kVividEffect, kMonoEffect})
            host->settings().setValue(key, effects);
        return host;
    }
    PageColors colorsOf(RecordingHost &host) const
    {
        return m_colors.pageColors(host.settings(), host.ppd());
    }
    // The panel of a host, as it stands when its user comes to it.
    static std::unique_ptr<ColorSettingProbe> shownPanel(const std::shared_ptr<RecordingHost> &host)
    {
        auto panel = std::make_unique<ColorSettingProbe>(host);
        if (!panel->initWithHost() || !panel->panelView())
            throw std::runtime_error("no panel");
        panel->willShow();
        panel->setRefImage(FilterImage(manyColors()));
        panel->redrawEffectImage();
        return panel;
    }

private Q_SLOTS:
    void thePlugInAnswersForTheColorsOfPages()
    {
        QXCLQuality13PDEPlugIn plugIn;
        QVERIFY(plugIn.pageColors());
    }

    void aPageGetsWhatThePanelDoesToItsReference_data() { addRows(kModes); }
    void aPageGetsWhatThePanelDoesToItsReference()
    {
        const Mode &mode = currentRow(kModes);
        const TestBundle bundle = TestBundle::built();
        const QList<QVariantList> sets = effectSets();
        for (const QVariantList &set : sets) {
            const auto host = hostWith(mode.marks, set);
            const auto panel = shownPanel(host);
            const PageColors colors = colorsOf(*host);
            const FilterImage reference = panel->refImage();
            QVERIFY(largestDifference(panel->effectImageView->image().rendered(),
                                      reference.filtered(colors.transform).rendered()) <=
                    kRounding);
            QCOMPARE(colors.ink, mode.ink);
            QCOMPARE(colors.unknown, mode.unknown);
        }
    }

    void effectsAreSeenWhereTheyAreInForce_data() { addRows(kModes); }
    void effectsAreSeenWhereTheyAreInForce()
    {
        const Mode &mode = currentRow(kModes);
        const auto plain = hostWith(mode.marks, QVariantList(6, 0));
        const auto adjusted = hostWith(mode.marks, kStrong);
        QCOMPARE(colorsOf(*plain) != colorsOf(*adjusted), mode.showsEffects);
        QCOMPARE(colorsOf(*plain).transform,
                 mode.ink == Ink::Black ? ColorTransform::grey() : ColorTransform());
    }

    void whatTheJobDoesNotCarryIsNotShown()
    {
        const auto byApplication =
            hostWith({{u"QXMonoColor"_s, u"Color"_s},
                      {u"AP_ColorMatchingMode"_s, u"AP_ApplicationColorMatching"_s}},
                     kStrong);
        QCOMPARE(colorsOf(*byApplication), PageColors());
        byApplication->mark(u"QXMonoColor"_s, u"Mono"_s);
        QCOMPARE(colorsOf(*byApplication).transform, ColorTransform::grey());

        const auto withoutOptions =
            RecordingHost::forPpd(PpdBuilder().driverMatchesColors().text());
        withoutOptions->settings().setValue(kNormalEffect, kStrong);
        QCOMPARE(colorsOf(*withoutOptions), PageColors());

        const auto cannotMatch = RecordingHost::forPpd(
            PpdBuilder()
                .option("QXBrightness", "Brightness", "0", {{"0", "0"}, {"10", "10"}})
                .text());
        cannotMatch->settings().setValue(kNormalEffect, kStrong);
        QCOMPARE(colorsOf(*cannotMatch), PageColors());
    }

    void aFaxIsGrey()
    {
        const auto host = hostWith({{u"QXMonoColor"_s, u"Color"_s}}, kStrong);
        host->settings().setValue(u"QXOutput"_s, u"FAX"_s);
        QCOMPARE(colorsOf(*host), (PageColors{ColorTransform::grey(), Ink::Black, {}}));
    }

    // Black toner alone makes greys that look the same on a screen.
    void grayWithBlackTonerChangesNothing()
    {
        const auto host = hostWith({{u"QXMonoColor"_s, u"Color"_s}}, kStrong);
        const PageColors before = colorsOf(*host);
        host->mark(u"QXGray"_s, host->marked(u"QXGray"_s) == u"ON"_s ? u"OFF"_s : u"ON"_s);
        QCOMPARE(colorsOf(*host), before);
    }

    void aSliderThatMovesIsShownBeforeItIsSaved()
    {
        const TestBundle bundle = TestBundle::built();
        const auto host = hostWith({{u"QXMonoColor"_s, u"Color"_s}}, QVariantList(6, 0));
        const auto panel = shownPanel(host);
        const QVariantMap saved = host->settings().entries();
        for (const QLatin1StringView effect : kEffectKeywords) {
            for (int step = 1; step <= 3; ++step) {
                const int said = host->shownChanges();
                panel->determineSlider(effect)->setValue(step);
                QCOMPARE(host->shownChanges(), said + 1);
                QCOMPARE(host->settings().entries(), saved);
                PrintSettings shown;
                shown.setEntries(saved);
                panel->writeShownValues(shown);
                panel->redrawEffectImage(); // a slider of the matrix is shown in another order
                QCOMPARE(m_colors.pageColors(shown, host->ppd()).transform,
                         panel->effectImageView->image().transform());
            }
        }
        QVERIFY2(colorsOf(*host).transform.isIdentity(), "nothing was saved");
    }

    void aHostThatDoesNotWantToKnowIsNotTold()
    {
        const TestBundle bundle = TestBundle::built();
        const auto host = hostWith({{u"QXMonoColor"_s, u"Color"_s}}, QVariantList(6, 0));
        host->lack(PDECallbackOperation::shownValuesDidChange);
        const auto panel = shownPanel(host);
        panel->determineSlider(u"QXRed"_s)->setValue(7);
        QCOMPARE(host->shownChanges(), 0);
    }
};

QTEST_MAIN(PageColorsTest)
#include "page_colors_test.moc"
