#include "fuzz/support/Sessions.h"

#include <algorithm>
#include <optional>

#include <QFile>

#include "dialog/session/CustomValue.h"
#include "dialog/session/JobTicket.h"
#include "dialog/session/OptionNames.h"
#include "fuzz/support/MemoryFile.h"
#include "fuzz/support/Target.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

// Each is looked up among all conflicts, so that a PPD of thousands would fill a run by itself.
constexpr qsizetype kMostChanges = 60;

QString nameOf(const OptionChoice &choice)
{
    return choice.keyword + u'=' + choice.choice;
}

// Null where the job does not name the option.
QString inJob(const PpdSession &session, const QString &keyword)
{
    const QList<JobOption> options = jobOptions(session, nullptr, {});
    const auto found = std::find_if(options.cbegin(), options.cend(), [&](const JobOption &option) {
        return option.name == keyword;
    });
    return found == options.cend() ? QString() : found->value;
}

// A value within the limits that the PPD declares; null where there is none.
QString customChoice(const PpdSession &session, const QString &keyword)
{
    const std::optional<CustomLimits> limits = customLimits(session.ppd(), keyword);
    if (!limits)
        return {};
    const QString value =
        limits->isText() ? QString(std::clamp(limits->least.toInt(), 1, 100), u'1') : limits->least;
    return checkCustomValue(session.ppd(), keyword, kCustomPrefix + value)
        .value.value_or(QString());
}

QByteArray ppdOf(const QString &path)
{
    QFile file(QStringLiteral(CORVANA_FUZZ_SOURCE_DIR) + path);
    require(file.open(QIODevice::ReadOnly), "there is a sample printer", file.fileName());
    return file.readAll();
}

// Room is made for a choice as a whole, or nothing moves.
void tryWayOut(PpdSession &session, const OptionChoice &choice)
{
    const SessionSnapshot before = session.snapshot();
    const QList<OptionChoice> others = session.wayOut(choice);
    require(session.snapshot() == before, "looking for a way out changes nothing", nameOf(choice));
    const QList<Refusal> refusals = session.changeTogether(others + QList<OptionChoice>{choice});
    require(refusals.isEmpty() || session.snapshot() == before,
            "choices that are refused together change nothing", nameOf(choice));
    requireMarksAreEntries(session);
}

void tryChoice(PpdSession &session, const OptionChoice &choice)
{
    const SessionSnapshot before = session.snapshot();
    const ChangeResult result =
        session.change(choice.keyword, choice.choice, PpdSession::Origin::Dialog);
    requireMarksAreEntries(session);
    if (!result.accepted()) {
        require(session.snapshot() == before, "a refused choice changes nothing", nameOf(choice));
        if (!result.conflicting.isEmpty())
            tryWayOut(session, choice);
        return;
    }
    const bool lacksValue = choice.choice == kCustomChoice;
    if (lacksValue && session.customValue(choice.keyword).isNull())
        require(optionsWithoutValue(session, nullptr).contains(choice.keyword),
                "a custom choice without its value is named", nameOf(choice));
    else if (!lacksValue)
        require(inJob(session, choice.keyword) == choice.choice, "an accepted choice is in the job",
                nameOf(choice));
}

QList<OptionChoice> choicesOf(const PpdSession &session)
{
    QList<OptionChoice> choices;
    for (const ppd_option_t *option : session.options()) {
        for (int i = 0; i < option->num_choices; ++i)
            choices += {ppdKeyword(option->keyword), ppdKeyword(option->choices[i].choice)};
    }
    return choices;
}

// As many choices as there is time for, from all over a PPD. Another input begins with another one,
// so that all of them have their turn.
QList<OptionChoice> someChoices(const PpdSession &session, const QByteArray &input)
{
    const QList<OptionChoice> all = choicesOf(session);
    const qsizetype step = (all.size() + kMostChanges - 1) / kMostChanges;
    QList<OptionChoice> some;
    for (qsizetype i = step > 1 ? qChecksum(input) % step : 0; i < all.size(); i += step)
        some += all.at(i);
    return some;
}

} // namespace

std::unique_ptr<PpdSession> sessionOf(const QByteArray &ppd)
{
    const MemoryFile file(ppd);
    QString error;
    std::unique_ptr<PpdSession> session = PpdSession::open(file.path(), &error);
    require(session || !error.isEmpty(), "a PPD is refused with a reason");
    return session;
}

void requireMarksAreEntries(const PpdSession &session)
{
    for (const ppd_option_t *option : session.options()) {
        const QString keyword = ppdKeyword(option->keyword);
        const QString marked = session.markedChoice(keyword);
        if (marked.isNull())
            continue;
        require(session.printSettings().value(keyword).toString() == marked,
                "a marked choice stands in the print settings", nameOf({keyword, marked}));
        require(ppdChoice(ppdOption(session.ppd(), keyword), marked),
                "a marked choice is one of the option's", nameOf({keyword, marked}));
    }
}

void requireChoicesArePrintable(PpdSession &session, const QByteArray &input)
{
    const SessionSnapshot start = session.snapshot();
    const QList<OptionChoice> some = someChoices(session, input);
    for (const OptionChoice &choice : some)
        tryChoice(session, choice);
    for (const ppd_option_t *option : session.options()) {
        const QString keyword = ppdKeyword(option->keyword);
        if (const QString custom = customChoice(session, keyword); !custom.isNull())
            tryChoice(session, {keyword, custom});
    }
    for (const PMDuplexMode mode : {kPMDuplexNoTumble, kPMDuplexTumble, kPMDuplexNone})
        PMSetDuplex(&session.printSettings(), mode);
    for (const OptionChoice &unknown :
         {OptionChoice{u"NoSuchOption"_s, u"A4"_s}, OptionChoice{u"PageSize"_s, u"NoSuchChoice"_s}})
        require(
            !session.change(unknown.keyword, unknown.choice, PpdSession::Origin::Panel).accepted(),
            "a choice that is unknown is refused", nameOf(unknown));
    session.takeRefusals();
    session.restore(start);
    require(session.snapshot() == start, "what is restored is what was saved");
    requireMarksAreEntries(session);
}

QByteArray samplePpd()
{
    return ppdOf(u"/resources/ppd/corvana-cl5.ppd"_s);
}

QByteArray officePpd()
{
    return ppdOf(u"/fuzz/printers/office.ppd"_s);
}

} // namespace corvana::fuzz
