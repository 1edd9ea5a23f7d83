#include <algorithm>
#include <random>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/presets/PresetStore.h"
#include "dialog/session/CustomValue.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/Summary.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/PresetApplication.h"
#include "dialog/task/StartPresets.h"
#include "platform/pde/PDEPlugIn.h"
#include "platform/toolkit/Alert.h"
#include "tests/dialog/support/LoadedBundle.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/mass/PpdCollection.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// PPDs that nobody here wrote, where this Debian has them; and how many of them are tried.
const QString kForeignDriver = u"/usr/lib/cups/driver/postscript-hp"_s;
constexpr qsizetype kForeignPpds = 40;

constexpr auto kDialog = PpdSession::Origin::Dialog;

// A printer with its job, as a task has them.
struct Desk
{
    std::unique_ptr<OpenedPrinter> printer;
    JobSettings settings;

    PresetContent content() const { return contentOf(*printer, settings); }
    JobTicket ticket() const
    {
        return makeTicket(*printer, settings.attributes(), u"Job"_s, settings.copies());
    }
    QString summary() const
    {
        return summaryText(sessionSummary(*printer->session, *printer->panels, settings.copies(),
                                          settings.attributes()));
    }
    // Options of which nothing is chosen. A tray and the feeding by hand are two forms of one
    // choice to libcups: to mark one takes the mark of the other away, and then says nothing of it.
    QStringList unmarked() const
    {
        QStringList keywords;
        for (const ppd_option_t *option : printer->session->options()) {
            const QString keyword = ppdKeyword(option->keyword);
            const bool isForm = keyword == "ManualFeed"_L1 || keyword == "InputSlot"_L1;
            if (!isForm && printer->session->markedChoice(keyword).isEmpty())
                keywords += keyword;
        }
        return keywords;
    }
    QString model() const { return modelOf(printer->session->ppd()); }
};

// Whatever is shown is taken note of and agreed with.
class Agreeing : public AlertPresenter
{
public:
    int shown = 0;

    AlertAnswer runModal(const Alert &, QWidget *) override
    {
        ++shown;
        return {};
    }
};

// But for what sets up the device, which is not kept.
QStringList sortedLines(const QString &text)
{
    QStringList lines = text.split(u'\n');
    lines.removeIf([](const QString &line) {
        return line.startsWith("Sleep"_L1) || line.startsWith("Minutes"_L1);
    });
    lines.sort();
    return lines;
}

} // namespace

/// Settings of chance that are kept, and come back: on the same printer to the letter, on every
/// other one as far as it has them.
class PresetRoundsTest : public QObject
{
    Q_OBJECT

private:
    // Each printer has chances of its own, and the same ones in each run.
    static unsigned seedFor(const QString &ppd)
    {
        return qChecksum(QFileInfo(ppd).fileName().toUtf8());
    }

    QTemporaryDir m_folder;
    Agreeing m_presenter;
    std::mt19937 m_chance;
    QStringList m_ppds;

    qsizetype below(qsizetype end)
    {
        return std::uniform_int_distribution<qsizetype>(0, end - 1)(m_chance);
    }

    Desk open(const QString &ppd)
    {
        FetchedPrinter fetched;
        fetched.printer.name = QFileInfo(ppd).completeBaseName();
        fetched.ppd = ppdOfFile(ppd);
        QString error;
        Desk desk{openPrinter(fetched, builtBundleRoots(), m_presenter, &error), {}};
        if (!desk.printer)
            qFatal("%s: %s", qPrintable(ppd), qPrintable(error));
        desk.printer->panels->bringUp();
        return desk;
    }

    // A choice of chance, a custom value among them, as a user would pick it.
    void changeAnOption(Desk &desk)
    {
        PpdSession &session = *desk.printer->session;
        const QList<ppd_option_t *> options = session.options();
        const ppd_option_t *option =
            options.isEmpty() ? nullptr : options.at(below(options.size()));
        if (!option || option->num_choices == 0)
            return;
        const QString keyword = ppdKeyword(option->keyword);
        if (neverKept(session).contains(keyword))
            return;
        QString choice = ppdKeyword(option->choices[below(option->num_choices)].choice);
        if (choice == kCustomChoice) {
            if (keyword == kPageSizeOption)
                choice = u"Custom.300x%1"_s.arg(400 + below(100));
            else
                choice = u"Custom.%1"_s.arg(below(12));
            choice = checkCustomValue(session.ppd(), keyword, choice).value.value_or(QString());
        }
        if (!choice.isEmpty() && !desk.printer->panels->pick(keyword, choice))
            session.change(keyword, choice, kDialog);
        desk.printer->panels->deliverPending();
    }

    // As -o would set it.
    void changeAValueOfThePanels(Desk &desk)
    {
        if (!desk.printer->jobValues)
            return;
        static const QStringList names{u"QXRed"_s,
                                       u"QXGreen"_s,
                                       u"QXBlue"_s,
                                       u"QXBrightness"_s,
                                       u"QXContrast"_s,
                                       u"QXSaturation"_s,
                                       u"QXDensityAdjustment"_s};
        applyOptions({{names.at(below(names.size())), QString::number(below(5) - 2)}},
                     *desk.printer->session, desk.printer->jobValues, *desk.printer->panels);
    }

    void changeAnAttribute(Desk &desk)
    {
        static const QList<JobOption> values{
            {u"number-up"_s, u"4"_s},         {u"page-border"_s, u"single"_s},
            {u"outputorder"_s, u"reverse"_s}, {u"print-scaling"_s, u"fill"_s},
            {u"mirror"_s, u"true"_s},         {u"job-priority"_s, u"70"_s}};
        const JobOption &one = values.at(below(values.size()));
        desk.settings.setAttribute(one.name, one.value);
    }

    void changeSomething(Desk &desk)
    {
        for (int i = 0; i < 12; ++i) {
            changeAnOption(desk);
            if (i % 2 == 0)
                changeAValueOfThePanels(desk);
            if (i % 4 == 0)
                changeAnAttribute(desk);
        }
        desk.printer->panels->restoreAll();
        desk.printer->session->takeRefusals();
    }

    // Saved, and read again from its file.
    Preset kept(const Desk &desk, const PresetContent &defaults)
    {
        Preset preset{u"Chance"_s, desk.model(), false, desk.content(), {}};
        preset.changed = namesIn(changesIn(preset.content, defaults),
                                 panelEntries(*desk.printer->session, desk.printer->jobValues));
        const PresetStore store({m_folder.filePath(u"presets"_s)});
        const QString problem = store.save(preset, PresetStore::Replacing::Yes);
        if (!problem.isEmpty())
            qFatal("%s", qPrintable(problem));
        return store.list(desk.model()).find(preset.name)->preset;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QDir samples(sourceFile("resources/ppd"_L1));
        for (const QString &name : samples.entryList({u"*.ppd"_s}))
            m_ppds += samples.filePath(name);
        m_ppds += writeFile(m_folder.filePath(u"office.ppd"_s), officePrinter().text());
        m_ppds += writeFile(m_folder.filePath(u"small.ppd"_s), smallPrinter().text());
        if (!QFileInfo(kForeignDriver).isExecutable())
            return;
        const PpdCollection foreign(kForeignDriver);
        for (qsizetype i = 0; i < kForeignPpds; ++i) {
            const NamedPpd ppd = foreign.at(i * foreign.size() / kForeignPpds);
            m_ppds += writeFile(m_folder.filePath(u"foreign-%1.ppd"_s.arg(i)), ppd.content);
        }
    }

    void onTheSamePrinterEverythingComesBack()
    {
        int changes = 0;
        for (const QString &ppd : std::as_const(m_ppds)) {
            m_chance.seed(seedFor(ppd));
            for (int round = 0; round < 2; ++round) {
                Desk first = open(ppd);
                const PresetContent defaults = first.content();
                changeSomething(first);
                const Preset preset = kept(first, defaults);
                changes += int(preset.changed.size());
                // Once on a printer that was just opened, once on one that is set otherwise.
                for (const bool isFresh : {true, false}) {
                    Desk second = open(ppd);
                    if (!isFresh)
                        changeSomething(second);
                    const PresetOutcome outcome =
                        applyPreset(withChanges(defaults, preset.content),
                                    {PresetUse::Others::Cleared, preset.changed}, {},
                                    *second.printer, second.settings);
                    const QByteArray where = QFileInfo(ppd).fileName().toUtf8() + ' ' +
                                             QByteArray::number(round) +
                                             (isFresh ? " fresh: " : " other: ");
                    QVERIFY2(outcome.missing.isEmpty() && outcome.details.isEmpty(),
                             (where + (outcome.missing + outcome.details).join(u'\n').toUtf8())
                                 .constData());
                    QCOMPARE(second.content().entries, first.content().entries);
                    QList<JobOption> left = second.ticket().options;
                    QList<JobOption> right = first.ticket().options;
                    // What sets up the device, and secrets, are kept by neither.
                    const auto isNotKept = [&](const JobOption &option) {
                        return !isKept(option.name) &&
                               !preset.content.options.contains(option.name);
                    };
                    left.removeIf(isNotKept);
                    right.removeIf(isNotKept);
                    const auto byName = [](const JobOption &a, const JobOption &b) {
                        return a.name < b.name;
                    };
                    std::sort(left.begin(), left.end(), byName);
                    std::sort(right.begin(), right.end(), byName);
                    for (qsizetype i = 0; i < std::min(left.size(), right.size()); ++i)
                        QVERIFY2(left.at(i) == right.at(i),
                                 (where + left.at(i).name.toUtf8() + '=' +
                                  left.at(i).value.toUtf8() + " for " + right.at(i).value.toUtf8())
                                     .constData());
                    QCOMPARE(left.size(), right.size());
                    QVERIFY2(second.unmarked() == first.unmarked(),
                             (where + second.unmarked().join(u' ').toUtf8() + " for " +
                              first.unmarked().join(u' ').toUtf8())
                                 .constData());
                    if (isFresh)
                        QVERIFY2(sortedLines(second.summary()) == sortedLines(first.summary()),
                                 (where + sortedLines(second.summary()).join(u'\n').toUtf8() +
                                  "\nfor\n" + sortedLines(first.summary()).join(u'\n').toUtf8())
                                     .constData());
                }
            }
        }
        qInfo("%d PPDs, %d settings that were other than the printer's", int(m_ppds.size()),
              changes);
        QVERIFY(changes > 100);
    }

    // The panel proposes the envelope's own medium for its paper, and says how to load that one.
    void aKeptMediumBesideAnEnvelopeHasNoInstructionsForAnother()
    {
        const QString ppd = sourceFile("resources/ppd/corvana-cl5.ppd"_L1);
        Desk first = open(ppd);
        const PresetContent defaults = first.content();
        QVERIFY(applyOptions({{kPageSizeOption, u"EnvDL"_s}, {u"QXMediaType"_s, u"Thick"_s}},
                             *first.printer->session, first.printer->jobValues,
                             *first.printer->panels)
                    .ok());
        const Preset preset = kept(first, defaults);
        Desk second = open(ppd);
        m_presenter.shown = 0;
        applyPreset(withChanges(defaults, preset.content),
                    {PresetUse::Others::Cleared, preset.changed}, {}, *second.printer,
                    second.settings);
        QCOMPARE(second.printer->session->markedChoice(kPageSizeOption), u"EnvDL"_s);
        QCOMPARE(second.printer->session->markedChoice(u"QXMediaType"_s), u"Thick"_s);
        QCOMPARE(m_presenter.shown, 0);
    }

    void onAnotherPrinterWhatItHasAppliesAndWhatItHasNotIsNamed()
    {
        int applied = 0;
        int named = 0;
        const QStringList samples = m_ppds.mid(0, 8);
        for (const QString &from : samples) {
            m_chance.seed(seedFor(from));
            Desk first = open(from);
            const PresetContent firstDefaults = first.content();
            changeSomething(first);
            const Preset preset = kept(first, firstDefaults);
            for (const QString &to : std::as_const(m_ppds)) {
                if (to == from)
                    continue;
                Desk second = open(to);
                const PresetContent defaults = second.content();
                const PresetOutcome outcome =
                    applyPreset(withChanges(defaults, preset.content),
                                {PresetUse::Others::Cleared, preset.changed}, {}, *second.printer,
                                second.settings);
                const PresetContent now = second.content();
                const QString said = (outcome.missing + outcome.details).join(u'\n');
                const QByteArray where = QFileInfo(from).fileName().toUtf8() + " on " +
                                         QFileInfo(to).fileName().toUtf8() + ": ";
                for (auto one = preset.content.options.cbegin();
                     one != preset.content.options.cend(); ++one) {
                    // The plug-in takes values that the PPD has no option for.
                    const bool isInJob =
                        second.ticket().options.contains(JobOption{one.key(), one.value()});
                    if (isInJob || now.options.value(one.key()) == one.value()) {
                        ++applied;
                        continue;
                    }
                    ++named;
                    const ppd_option_t *option =
                        ppdOption(second.printer->session->ppd(), one.key());
                    const QString title =
                        option ? ppdText(option->text).value_or(one.key()) : one.key();
                    QVERIFY2(said.contains(title),
                             (where + one.key().toUtf8() + " is " +
                              now.options.value(one.key()).toUtf8() + ", said: " + said.toUtf8())
                                 .constData());
                }
                for (auto one = preset.content.attributes.cbegin();
                     one != preset.content.attributes.cend(); ++one)
                    QVERIFY2(now.attributes.value(one.key()) == one.value() ||
                                 said.contains(one.key()),
                             (where + one.key().toUtf8()).constData());
                // What panels' rules changed with it is not the preset's; everything else stays.
                const PresetContent changed = changesIn(now, defaults);
                if (!second.printer->jobValues) {
                    for (auto one = changed.options.cbegin(); one != changed.options.cend(); ++one)
                        QVERIFY2(
                            preset.content.options.contains(one.key()) ||
                                said.contains(
                                    ppdText(
                                        ppdOption(second.printer->session->ppd(), one.key())->text)
                                        .value_or(one.key())),
                            (where + one.key().toUtf8() + " changed").constData());
                }
                QVERIFY2(jobProblems(*second.printer->session, second.printer->jobValues).isEmpty(),
                         where.constData());
            }
        }
        qInfo("%d values applied, %d named", applied, named);
        QVERIFY(applied > 100 && named > 100);
    }
};

QTEST_MAIN(PresetRoundsTest)
#include "preset_rounds_test.moc"
