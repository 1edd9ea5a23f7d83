#include <algorithm>

#include "dialog/session/JobAttributes.h"
#include "dialog/task/PresetApplication.h"
#include "tests/dialog/task/PresetRounds.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

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
class PresetRoundsTest : public PresetRounds
{
    Q_OBJECT

private Q_SLOTS:
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
