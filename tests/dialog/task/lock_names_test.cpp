#include <QTest>

#include "dialog/session/AttributeChoices.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/JobTicket.h"
#include "dialog/session/LockedValues.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/PpdSession.h"
#include "dialog/task/LeftSession.h"
#include "tests/dialog/task/StartValuesScene.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

/// One setting that is locked, and another name of it by which somebody asks for something else.
struct Pair
{
    const char *name;
    const char *lock;
    const char *asked;
    bool isPossible = false; ///< it means the same
};

// Each both ways.
constexpr Pair kPairs[] = {
    {"scaling, no fitting", "print-scaling=fit", "fit-to-page=false"},
    {"scaling, fitting", "print-scaling=none", "fit-to-page=true"},
    {"scaling, fitting as it was called", "print-scaling=none", "fitplot=true"},
    {"scaling, percent of the page", "print-scaling=fit", "scaling=50"},
    {"scaling, percent of the picture", "print-scaling=fit", "natural-scaling=50"},
    {"scaling, pixels", "print-scaling=none", "ppi=300"},
    {"fitting, scaling", "fit-to-page=true", "print-scaling=none"},
    {"fitting, automatic scaling", "fit-to-page=true", "print-scaling=auto"},
    {"no fitting, scaling", "fit-to-page=false", "print-scaling=fit"},
    {"no fitting, percent", "fit-to-page=false", "scaling=200"},
    {"fitting, pixels", "fit-to-page=true", "ppi=100"},
    {"percent, scaling", "scaling=50", "print-scaling=fit"},
    {"percent, fitting", "scaling=50", "fit-to-page=true"},
    {"percent of the picture, percent of the page", "natural-scaling=50", "scaling=80"},
    {"pixels, percent", "ppi=100", "scaling=80"},
    {"pixels, scaling", "ppi=100", "print-scaling=none"},
    {"fitting is fitting", "print-scaling=fit", "fit-to-page=true", true},
    {"fitting is fitting, the other way", "fit-to-page=true", "print-scaling=fit", true},
    {"no fitting beside none", "print-scaling=none", "fit-to-page=false", true},
    {"nothing beside percent", "scaling=50", "print-scaling=auto", true},
    {"sides, Duplex", "sides=two-sided-long-edge", "Duplex=None"},
    {"Duplex, sides", "Duplex=DuplexNoTumble", "sides=one-sided"},
    {"Duplex, the other edge", "Duplex=DuplexNoTumble", "sides=two-sided-short-edge"},
    {"media, PageSize", "media=A4", "PageSize=Postcard"},
    {"PageSize, media", "PageSize=A4", "media=Postcard"},
    {"InputSlot, media-col", "InputSlot=Upper", "media-col={media-source=Lower}"},
    {"landscape, orientation", "landscape=true", "orientation-requested=3"},
    {"orientation, landscape", "orientation-requested=4", "landscape=false"},
    {"orientation is landscape", "orientation-requested=4", "landscape=true", true},
    {"order, OutputOrder", "outputorder=reverse", "OutputOrder=Normal"},
    {"OutputOrder, order", "OutputOrder=Reverse", "outputorder=normal"},
    {"OutputOrder is the order", "OutputOrder=Reverse", "outputorder=reverse", true},
    {"collate, handling", "collate=true",
     "multiple-document-handling=separate-documents-uncollated-copies"},
    {"handling, collate", "multiple-document-handling=separate-documents-uncollated-copies",
     "collate=true"},
    {"collate, Collate", "collate=false", "Collate=True"},
    {"Collate, collate", "Collate=True", "collate=false"},
    {"Collate, handling", "Collate=True",
     "multiple-document-handling=separate-documents-uncollated-copies"},
    {"ColorModel, mode", "ColorModel=Gray", "print-color-mode=color"},
    {"mode, ColorModel", "print-color-mode=monochrome", "ColorModel=RGB"},
    {"Resolution, printer-resolution", "Resolution=600dpi", "printer-resolution=1200dpi"},
    {"Resolution, resolution", "Resolution=600dpi", "resolution=1200dpi"},
    {"printer-resolution, Resolution", "printer-resolution=600dpi", "Resolution=1200dpi"},
    {"OutputBin, output-bin", "OutputBin=Top", "output-bin=Rear"},
    {"output-bin, OutputBin", "output-bin=Top", "OutputBin=Rear"},
    {"InputSlot, media-source", "InputSlot=Upper", "media-source=Lower"},
    {"InputSlot, media", "InputSlot=Upper", "media=Lower"},
    {"media-source, InputSlot", "media-source=Upper", "InputSlot=Lower"},
    {"MediaType, media-type", "MediaType=Plain", "media-type=Card"},
    {"media-type, MediaType", "media-type=Plain", "MediaType=Card"},
    {"finishings, StapleLocation", "finishings=4", "StapleLocation=None"},
    {"StapleLocation, finishings", "StapleLocation=None", "finishings=staple"},
    {"pages", "page-ranges=1-2", "page-ranges=3"},
    {"pages on a sheet", "number-up=2", "number-up=4"},
    {"hand feed", "ManualFeed=False", "ManualFeed=True"},
};

// A printer that does not turn sheets over.
constexpr Pair kByHand[] = {
    {"one side, two sides by hand", "sides=one-sided", "sides-by-hand=long-edge"},
    {"two sides by hand, one side", "sides-by-hand=long-edge", "sides=one-sided"},
};

PpdBuilder printer(bool turnsOver)
{
    PpdBuilder ppd =
        PpdBuilder()
            .option("InputSlot", "Source", "Upper", {{"Upper", "Upper"}, {"Lower", "Lower"}})
            .option("ManualFeed", "Manual Feed", "False", {{"False", "Off"}, {"True", "On"}})
            .option("MediaType", "Type", "Plain", {{"Plain", "Plain"}, {"Card", "Card"}})
            .option("ColorModel", "Color", "RGB", {{"RGB", "Color"}, {"Gray", "Gray"}})
            .option("Resolution", "Resolution", "600dpi", {{"600dpi", "600"}, {"1200dpi", "1200"}})
            .option("OutputBin", "Bin", "Top", {{"Top", "Top"}, {"Rear", "Rear"}})
            .option("OutputOrder", "Order", "Normal",
                    {{"Normal", "Normal"}, {"Reverse", "Reverse"}})
            .option("Collate", "Collate", "True", {{"True", "On"}, {"False", "Off"}})
            .option("StapleLocation", "Staple", "None",
                    {{"None", "Off"}, {"SinglePortrait", "Corner"}})
            .line("*cupsIPPFinishings 4/staple: \"*StapleLocation SinglePortrait\"");
    return turnsOver ? ppd.option("Duplex", "Two-Sided", "None",
                                  {{"None", "Off"},
                                   {"DuplexNoTumble", "Long Edge"},
                                   {"DuplexTumble", "Short Edge"}})
                     : ppd;
}

} // namespace

/// What is locked is locked by all of its names, whoever asks.
class LockNamesTest : public StartValuesScene
{
    Q_OBJECT

private:
    void usePrinter(bool turnsOver)
    {
        m_fetched.ppd =
            ppdOfFile(writeFile(m_home->filePath(u"b.ppd"_s), printer(turnsOver).text()));
    }
    void lock(const char *option)
    {
        m_request.policy = policyFrom("[all]\nlock." + QByteArray(option) + '\n');
    }
    QList<JobOption> job() const
    {
        return jobOptions(*m_printer->session, m_printer->jobValues, m_settings.attributes());
    }
    // A new job under the lock.
    StartOutcome begin(const Pair &row)
    {
        m_settings = {};
        lock(row.lock);
        return start();
    }
    QStringList broken() const
    {
        return brokenLocks(m_printer->session->locks(), job(), m_settings.copiesAskedFor());
    }
    void isAsLocked(const QList<JobOption> &locked, const char *way)
    {
        const QList<JobOption> now = job();
        QStringList texts;
        for (const JobOption &option : now)
            texts += option.name + u'=' + option.value;
        QVERIFY2(now == locked, qPrintable(QLatin1StringView(way) + u": "_s + texts.join(u' ')));
        QCOMPARE(broken(), QStringList());
    }
    void everyWay(const Pair &row)
    {
        const QString asked = QString::fromUtf8(row.asked);
        const StartOutcome alone = begin(row);
        QCOMPARE(alone.unset + alone.ignored, QStringList());
        QVERIFY(!m_printer->session->locks().isEmpty());
        const QList<JobOption> locked = job();

        say(By::Options, asked);
        const QStringList refused = begin(row).unset;
        QCOMPARE(refused.isEmpty(), row.isPossible);
        if (!row.isPossible)
            QVERIFY2(refused.join(u' ').contains(u"set by your administrator"_s),
                     qPrintable(refused.join(u' ')));
        isAsLocked(locked, "-o");
        m_request.options.clear();

        say(By::UserQueues, asked);
        QCOMPARE(begin(row).ignored.isEmpty(), row.isPossible);
        isAsLocked(locked, "lpoptions");
        setUserOptions({});

        begin(row);
        QCOMPARE(applyUsersOptions(parseOptions({asked}), *m_printer).problems.isEmpty(),
                 row.isPossible);
        isAsLocked(locked, "an instance");

        say(By::Preset, asked);
        begin(row);
        isAsLocked(locked, "a preset");
        m_request.preset.clear();

        // Whatever a control writes, and whatever a step brings back.
        begin(row);
        const JobOption option = parseOptions({asked}).constFirst();
        m_printer->session->change(option.name, option.value, PpdSession::Origin::Dialog);
        // Of what has no option of the printer's.
        if (jobAttribute(option.name) && !AttributeReader::isFor(option.name) &&
            option.name != kCollateAttribute)
            m_settings.setAttribute(option.name, option.value);
        isAsLocked(locked, "the window");

        m_request.policy.reset();
        m_settings = {};
        say(By::Options, asked);
        start();
        const SessionSnapshot before = m_printer->session->snapshot();
        const QList<JobOption> attributes = m_settings.attributes();
        m_request.options.clear();
        begin(row);
        m_printer->session->restore(before);
        m_settings.restoreChosenAttributes(attributes);
        isAsLocked(locked, "undo");
    }

private Q_SLOTS:
    void aLockHoldsByEachName_data() { addRows(kPairs); }
    void aLockHoldsByEachName()
    {
        usePrinter(true);
        everyWay(currentRow(kPairs));
    }

    void oneSideIsNoSideByHand_data() { addRows(kByHand); }
    void oneSideIsNoSideByHand()
    {
        usePrinter(false);
        everyWay(currentRow(kByHand));
    }

    // Of two lines that say something else under two names the one that counts less is void.
    void linesThatContradictEachOtherAreNamed()
    {
        usePrinter(true);
        m_request.policy = policyFrom("[all]\nlock.print-scaling=fit\nlock.scaling=50\n");
        PpdSession &session = (start(), *m_printer->session);
        const QList<PolicyProblem> voids =
            lockSettings(policyOf(m_request).locksOf(m_fetched.printer), session, nullptr);
        QCOMPARE(voids.size(), 1);
        QVERIFY2(voids.constFirst().text().contains(u":2: print-scaling=fit"_s),
                 qPrintable(voids.constFirst().text()));
    }

    void aLineThatAsksForNothingBesideAnotherTakesItNotAway()
    {
        usePrinter(true);
        m_request.policy = policyFrom("[all]\nlock.print-scaling=auto\nlock.scaling=50\n");
        start();
        QVERIFY(job().contains(JobOption{u"scaling"_s, u"50"_s}));
        QCOMPARE(broken(), QStringList());
    }

    void aJobThatSaysTheSameByAnotherNameBreaksNoLock()
    {
        usePrinter(true);
        lock("print-scaling=fit");
        start();
        const auto brokenBy = [this](const JobOption &more) {
            return brokenLocks(m_printer->session->locks(), job() << more, 1);
        };
        QCOMPARE(brokenBy({u"fit-to-page"_s, u"true"_s}), QStringList());
        QCOMPARE(brokenBy({u"fit-to-page"_s, u"false"_s}), QStringList{u"fit-to-page"_s});
        // Nobody has to hear of it where a preset says it so.
        for (const bool isSame : {true, false}) {
            m_settings = {};
            say(By::Preset, isSame ? u"fit-to-page=true"_s : u"fit-to-page=false"_s);
            QCOMPARE(start().ignored.isEmpty(), isSame);
        }
    }

    // libcups takes the mark of the hand feed away with each tray.
    void aTrayCanBeChosenWhereTheHandFeedIsLockedOff()
    {
        usePrinter(true);
        lock("ManualFeed=False");
        say(By::Options, u"InputSlot=Lower"_s);
        QCOMPARE(start().unset, QStringList());
        PpdSession &session = *m_printer->session;
        QCOMPARE(session.markedChoice(u"InputSlot"_s), u"Lower"_s);
        QVERIFY(!job().contains(JobOption{u"ManualFeed"_s, u"True"_s}));
        QCOMPARE(broken(), QStringList());
        const SessionSnapshot lower = session.snapshot();
        QVERIFY(session.change(u"InputSlot"_s, u"Upper"_s, PpdSession::Origin::Panel).accepted());
        QCOMPARE(session.changeTogether({{u"InputSlot"_s, u"Lower"_s}}), QList<Refusal>());
        QVERIFY(!session.change(u"ManualFeed"_s, u"True"_s, PpdSession::Origin::Dialog).accepted());
        QVERIFY(!session.changeTogether({{u"ManualFeed"_s, u"True"_s}}).isEmpty());
        session.change(u"InputSlot"_s, u"Upper"_s, PpdSession::Origin::Dialog);
        session.restore(lower);
        QCOMPARE(session.snapshot(), lower);
    }

    void aSetThatTakesTheHandFeedAwayBringsTheTrayBack()
    {
        usePrinter(true);
        start();
        PpdSession &session = *m_printer->session;
        session.change(u"InputSlot"_s, u"Lower"_s, PpdSession::Origin::Dialog);
        session.change(u"ManualFeed"_s, u"True"_s, PpdSession::Origin::Dialog);
        QVERIFY(session.markedChoice(u"InputSlot"_s).isNull());
        QCOMPARE(session.changeTogether({{u"ManualFeed"_s, u"False"_s}}), QList<Refusal>());
        QCOMPARE(session.markedChoice(u"InputSlot"_s), u"Lower"_s);
        QCOMPARE(session.markedChoice(u"ManualFeed"_s), u"False"_s);
        // A set that names a tray means that one.
        session.change(u"ManualFeed"_s, u"True"_s, PpdSession::Origin::Dialog);
        QCOMPARE(
            session.changeTogether({{u"ManualFeed"_s, u"False"_s}, {u"InputSlot"_s, u"Upper"_s}}),
            QList<Refusal>());
        QCOMPARE(session.markedChoice(u"InputSlot"_s), u"Upper"_s);
    }
};

QTEST_MAIN(LockNamesTest)
#include "lock_names_test.moc"
