#include "tests/e2e/WindowInvariants-checks.h"

#include <algorithm>
#include <optional>

#include <QAbstractButton>
#include <QTableWidget>

#include "dialog/job/PageChoice.h"
#include "dialog/session/CustomValue.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/Summary.h"
#include "dialog/session/TwoSided.h"
#include "dialog/task/AttributeEffects.h"
#include "dialog/task/StartValues.h"

using namespace Qt::StringLiterals;

namespace corvana::test {

namespace {

// What happens instead of a choice may stand in brackets behind it.
bool says(const SummaryLine &line, const QString &value)
{
    return line.value == value || line.value.startsWith(value + u" ("_s);
}

bool saysOneOf(const SummaryLine &line, const QStringList &values)
{
    return std::any_of(values.cbegin(), values.cend(),
                       [&](const QString &value) { return says(line, value); });
}

std::optional<JobOption> optionOf(const JobTicket &ticket, const QString &name)
{
    for (const JobOption &option : ticket.options) {
        if (option.name == name)
            return option;
    }
    return {};
}

QString titleOf(const ppd_option_t *option)
{
    return ppdText(option->text).value_or(ppdKeyword(option->keyword));
}

// How a summary may call a value of an option of the printer. A panel calls the two choices of a
// box in its own words, and a value of its own by its number alone.
QStringList wordsFor(const PpdSession &session, const JobOption &option)
{
    const ppd_choice_t *choice = ppdChoice(ppdOption(session.ppd(), option.name), option.value);
    if (choice ? isSecretChoice(session.ppd(), option.name, option.value)
               : isSecret(session.ppd(), option.name))
        return {QString(kHiddenLength, u'•')};
    if (!choice)
        return {option.value.startsWith(kCustomPrefix)
                    ? customText(session, option.name, option.value)
                    : option.value};
    QStringList words{ppdText(choice->text).value_or(option.value)};
    if (option.value == "ON"_L1 || option.value == "True"_L1)
        words += u"On"_s;
    if (option.value == "OFF"_L1 || option.value == "False"_L1)
        words += u"Off"_s;
    bool isNumber = false;
    if (const int number = option.value.toInt(&isNumber); isNumber)
        words += QString::number(number);
    return words;
}

// A panel may say the choice "Custom" in one line and its number in another, under the name that
// the PPD has for the number.
bool saysNumberApart(const QList<SummaryLine> &lines, const JobOption &option,
                     const PpdSession &session)
{
    const ppd_choice_t *custom = ppdChoice(ppdOption(session.ppd(), option.name), kCustomChoice);
    if (!custom || !option.value.startsWith(kCustomPrefix))
        return false;
    const QString text = ppdText(custom->text).value_or(kCustomChoice);
    const QString number = option.value.mid(kCustomPrefix.size());
    const auto isIn = [&](auto &&matches) {
        return std::any_of(lines.cbegin(), lines.cend(), matches);
    };
    return isIn([&](const SummaryLine &one) { return one.value == text; }) &&
           isIn([&](const SummaryLine &one) { return one.value == number; });
}

bool tells(const SummaryLine &line, const QString &name, const QString &title)
{
    return line.keyword.isEmpty() ? line.title == title : line.keyword == name;
}

QString asWritten(const JobOption &option)
{
    return option.name + u'=' + option.value;
}

QString missingOption(const QList<SummaryLine> &lines, const JobOption &option,
                      const JobTicket &ticket, const PpdSession &session)
{
    const ppd_option_t *known = ppdOption(session.ppd(), option.name);
    if (option.value == ppdKeyword(known->defchoice))
        return {};
    // Beside the copies, and as an attribute.
    if ((option.name == kCollateOption && ticket.copies > 1) ||
        (option.name == kDuplexOption && isTwoSidedByHand(ticket.options)))
        return {};
    const QStringList words = wordsFor(session, option);
    for (const SummaryLine &line : lines) {
        if (tells(line, option.name, titleOf(known)) && saysOneOf(line, words))
            return {};
    }
    if (saysNumberApart(lines, option, session))
        return {};
    return u"the job has %1, which no line of the summary says (“%2”)"_s.arg(asWritten(option),
                                                                             words.join(u"”, “"_s));
}

QString missingAttribute(const QList<SummaryLine> &lines, const JobOption &option,
                         const JobTicket &ticket)
{
    // What is no attribute is a value of a panel that this printer has no option for. Nobody can
    // set it there, and it has no line.
    if (!jobAttribute(option.name) || asksForNothing(option) ||
        (option.name == kCollateAttribute && ticket.copies > 1))
        return {};
    const JobAttributeText text = textOfJobAttribute(option);
    const bool isSaid = std::any_of(lines.cbegin(), lines.cend(), [&](const SummaryLine &line) {
        return tells(line, option.name, text.title) && says(line, text.value);
    });
    return isSaid ? QString()
                  : u"the job has %1, which no line of the summary says (“%2”)"_s.arg(
                        asWritten(option), text.value);
}

QString wrongCopies(const SummaryLine &line, const JobTicket &ticket, const PpdSession &session)
{
    QString expected = QString::number(ticket.copies);
    if (ticket.copies > 1)
        expected += isCollated(session, ticket.options) ? u", collated"_s : u", not collated"_s;
    return says(line, expected)
               ? QString()
               : u"the summary says “%1” copies, and the job has “%2”"_s.arg(line.value, expected);
}

// Lines that tell of no setting say what the printer is, and how many sheets come out.
QString untrueLine(const QList<SummaryLine> &lines, const SummaryLine &line,
                   const JobTicket &ticket, const PpdSession &session)
{
    if (line.keyword == kCopiesAttribute)
        return wrongCopies(line, ticket, session);
    if (line.keyword.isEmpty())
        return {};
    const std::optional<JobOption> option = optionOf(ticket, line.keyword);
    if (!option) {
        // A choice that waits for its number is in no job, and no such job is made.
        const bool waits = session.markedChoice(line.keyword) == kCustomChoice &&
                           session.customValue(line.keyword).isNull();
        return waits ? QString()
                     : u"the summary says “%1: %2”, and the job has no %3"_s.arg(
                           line.title, line.value, line.keyword);
    }
    const bool isTrue = ppdOption(session.ppd(), option->name)
                            ? saysOneOf(line, wordsFor(session, *option)) ||
                                  saysNumberApart(lines, *option, session)
                            : says(line, textOfJobAttribute(*option).value);
    return isTrue ? QString()
                  : u"the summary says “%1: %2”, and the job has %3"_s.arg(line.title, line.value,
                                                                           asWritten(*option));
}

QString tableFault(const QTableWidget &table, const QList<SummaryLine> &summary, bool isWhole)
{
    QStringList lines;
    for (const SummaryLine &line : summary)
        lines += line.title + u": "_s + line.value;
    if (isWhole && table.rowCount() != lines.size())
        return u"the summary has %1 lines; the job's has %2"_s.arg(table.rowCount())
            .arg(lines.size());
    for (int row = 0; row < table.rowCount(); ++row) {
        const QString shown = table.item(row, 0)->text() + u": "_s + table.item(row, 1)->text();
        if (!lines.contains(shown))
            return u"the summary shows “%1”; the job's is:\n%2"_s.arg(shown, lines.join(u'\n'));
    }
    return {};
}

} // namespace

QString summaryAndTicketFault(const QList<SummaryLine> &lines, const JobTicket &ticket,
                              const PpdSession &session)
{
    for (const JobOption &option : ticket.options) {
        const QString fault = ppdOption(session.ppd(), option.name)
                                  ? missingOption(lines, option, ticket, session)
                                  : missingAttribute(lines, option, ticket);
        if (!fault.isNull())
            return fault;
    }
    for (const SummaryLine &line : lines) {
        if (const QString fault = untrueLine(lines, line, ticket, session); !fault.isNull())
            return fault;
    }
    return {};
}

QString summaryFault(PrintWindow &window)
{
    const auto *table = window.findChild<QTableWidget *>(u"summary"_s);
    const OpenedPrinter *opened = settledPrinter(window);
    if (!table || !table->isVisible() || !opened)
        return {};
    PrintTask &task = window.task();
    const QList<SummaryLine> lines = task.summary();
    const auto *onlyChanged = window.findChild<QAbstractButton *>(u"onlyChanged"_s);
    const QString fault = tableFault(*table, lines, !onlyChanged->isChecked());
    // What is passed on as it is takes nothing of its printer along.
    if (!fault.isNull() || task.passesFilesOn())
        return fault;
    const JobSettings &settings = task.settings();
    const QList<JobOption> attributes =
        withAnswersToDefaults(withPagesOfOrder(settings.attributes()), *opened);
    JobTicket ticket = makeTicket(*opened, attributes, {}, settings.copies());
    // What shapes none of the documents is part of the job and not worth a line.
    ticket.options.removeIf([&](const JobOption &option) {
        return !ppdOption(opened->session->ppd(), option.name) &&
               !hasEffectOn(task.documents(), option);
    });
    return summaryAndTicketFault(lines, ticket, *opened->session);
}

} // namespace corvana::test
