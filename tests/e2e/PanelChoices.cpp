#include "tests/e2e/PanelChoices.h"

#include <algorithm>

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

bool forbidsTonerSave(const QString &resolution)
{
    return resolution == u"1200dpi"_s || resolution == u"2400x600dpi"_s;
}

bool has(const PanelJob &job, const QString &keyword)
{
    return std::any_of(job.cbegin(), job.cend(),
                       [&](const PanelChoice &chosen) { return chosen.first == keyword; });
}

} // namespace

const QList<PanelOption> &panelOptions()
{
    static const QList<PanelOption> options{
        {u"QXResolution"_s, u"resolutionPopup"_s},
        {u"Resolution"_s, u"resolutionPopup"_s},
        {u"QXMediaType"_s, u"mediaTypePopup"_s},
        {u"QXMonoColor"_s, u"monoColorPopup"_s},
        {u"QXInputSlot"_s, u"paperFeedPopup"_s},
        {u"TonerSaveMode"_s, u"tonerSaveButton"_s},
        {u"QXImproveOutput"_s, u"improveMatrix"_s},
        {u"QXFixIntensity"_s, u"improveTonerfixButton"_s},
        {u"QXLessPaperCurl"_s, u"reducePaperButton"_s},
        {u"QXReduceGhost"_s, u"reduceGhostButton"_s},
        {u"QXDensityAdjustment"_s, u"densitySlider"_s},
        {u"QXSleepTime"_s, u"sleepTimeMatrix"_s},
        {u"QXQuietMode"_s, u"quietModeMatrix"_s},
        {u"QXSkipBlank"_s, u"skipBlankButton"_s},
    };
    return options;
}

QStringList offeredChoices(DialogDriver &driver, const PpdLines &ppd, const PanelOption &option)
{
    auto *control = driver.control<QWidget>(option.control);
    if (!ppd.has(option.keyword) || !driver.reach(control))
        return {};
    QStringList choices = DialogDriver::offered(control);
    choices.removeIf([&](const QString &choice) {
        const bool number = option.keyword == u"QXDensityAdjustment"_s &&
                            !ppd.choices(option.keyword).contains(choice);
        return choice == u"Custom"_s || number;
    });
    return choices;
}

QList<PanelJob> jobsFor(const PpdLines &ppd, QList<PanelChoice> pending)
{
    const QString resolution = ppd.has(u"QXResolution"_s) ? u"QXResolution"_s : u"Resolution"_s;
    QList<PanelJob> jobs;
    while (!pending.isEmpty()) {
        PanelJob job;
        QString inForce = ppd.defaultChoice(resolution);
        QList<PanelChoice> left;
        for (const auto &[keyword, choice] : std::as_const(pending)) {
            const bool tonerSave = keyword == u"TonerSaveMode"_s;
            if (has(job, keyword) ||
                (tonerSave && has(job, resolution) && forbidsTonerSave(inForce))) {
                left += {keyword, choice};
                continue;
            }
            if (tonerSave && forbidsTonerSave(inForce)) {
                for (const QString &other : ppd.choices(resolution)) {
                    if (!forbidsTonerSave(other))
                        inForce = other;
                }
                job += {resolution, inForce};
            }
            if (keyword == resolution)
                inForce = choice;
            job += {keyword, choice};
        }
        jobs += job;
        pending = left;
    }
    return jobs;
}

QString chooseAll(DialogDriver &driver, const PanelJob &job)
{
    for (const auto &[keyword, choice] : job) {
        const auto option = std::find_if(
            panelOptions().cbegin(), panelOptions().cend(),
            [&, k = keyword](const PanelOption &candidate) { return candidate.keyword == k; });
        const QString what = keyword + u'=' + choice;
        if (option == panelOptions().cend())
            return what + u" is no option of the panel"_s;
        auto *control = driver.control<QWidget>(option->control);
        if (!driver.reach(control))
            return what + u" cannot be got at"_s;
        // What it stands at already has to be come back to.
        for (const QString &other : DialogDriver::offered(control)) {
            if (DialogDriver::chosen(control) != choice)
                break;
            if (!DialogDriver::choose(control, other))
                return what + u" cannot be left for "_s + other;
        }
        if (DialogDriver::chosen(control) == choice)
            return what + u" cannot be left"_s;
        if (!DialogDriver::choose(control, choice) || DialogDriver::chosen(control) != choice)
            return what + u" cannot be chosen"_s;
    }
    return {};
}

QString wrongLine(const PpdLines &ppd, const PanelJob &job, const QMap<QString, QString> &summary,
                  const OnOffTexts &texts)
{
    for (const auto &[keyword, choice] : job) {
        QString expected = ppd.text(keyword, choice);
        if (choice == u"ON"_s)
            expected = texts.on;
        else if (choice == u"OFF"_s)
            expected = texts.off;
        else if (keyword == u"QXDensityAdjustment"_s)
            expected = choice;
        const QString actual = summary.value(ppd.text(keyword));
        if (expected.isEmpty() || actual != expected)
            return u"%1: the summary says \"%2\", not \"%3\""_s.arg(keyword, actual, expected);
    }
    return {};
}

QString wrongCode(const PpdLines &ppd, const PanelJob &job, const QByteArray &data)
{
    for (const auto &[keyword, chosen] : job) {
        if (!ppd.choices(keyword).contains(chosen))
            return u"%1=%2 is no choice of the PPD"_s.arg(keyword, chosen);
        for (const QString &choice : ppd.choices(keyword)) {
            const QByteArray code = ppd.code(keyword, choice);
            if (code.isEmpty())
                return u"%1=%2 has no code"_s.arg(keyword, choice);
            if (data.count(code) != (choice == chosen ? 1 : 0))
                return u"%1=%2 is printed %3 times, with %4 chosen"_s.arg(keyword, choice)
                    .arg(data.count(code))
                    .arg(chosen);
        }
        if (data.count("CorvanaOption(" + keyword.toLatin1() + '=') != 1)
            return u"%1 is printed more than once"_s.arg(keyword);
    }
    return {};
}

} // namespace corvana::test
