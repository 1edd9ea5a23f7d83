#include "dialog/task/ByHand.h"

#include <algorithm>

#include <QCoreApplication>
#include <QLocale>

#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/TwoSided.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/PassedOn.h"
#include "dialog/task/SavedAsPdf.h"
#include "platform/foundation/ForeignText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

using Printed = HandFeed::Printed;

constexpr auto kJobSheets = "job-sheets"_L1;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ByHand)
};

const JobOption *attribute(const QList<JobOption> &attributes, QLatin1StringView name)
{
    const auto found = std::find_if(attributes.cbegin(), attributes.cend(),
                                    [&](const JobOption &one) { return one.name == name; });
    return found == attributes.cend() ? nullptr : &*found;
}

QString named(const JobOption &option)
{
    return u"%1=%2"_s.arg(option.name, option.value);
}

QString edgeText(Qt::Edge edge)
{
    switch (edge) {
    case Qt::TopEdge:
        return Texts::tr("top");
    case Qt::RightEdge:
        return Texts::tr("right");
    case Qt::BottomEdge:
        return Texts::tr("bottom");
    case Qt::LeftEdge:
        return Texts::tr("left");
    }
    return {};
}

QString takingText(int sheets)
{
    return sheets == 1 ? Texts::tr("Take the printed sheet out of the printer.")
                       : Texts::tr("Take the %1 printed sheets out of the printer, as one stack.")
                             .arg(QLocale().toString(sheets));
}

QString puttingOneText(Printed inTray)
{
    return inTray == Printed::Down
               ? Texts::tr("Put it back into the tray with the printed side down, so that the %1 "
                           "edge of the page goes into the printer first.")
               : Texts::tr("Put it back into the tray with the printed side up, so that the %1 "
                           "edge of the page goes into the printer first.");
}

QString puttingAllText(Printed inTray)
{
    return inTray == Printed::Down
               ? Texts::tr("Put them back into the tray with the printed side down, so that the %1 "
                           "edge of the pages goes into the printer first.")
               : Texts::tr("Put them back into the tray with the printed side up, so that the %1 "
                           "edge of the pages goes into the printer first.");
}

QString puttingText(const HandPasses &passes, int sheets)
{
    const Printed inTray = passes.feed.inTray;
    const QString form = sheets == 1 ? puttingOneText(inTray) : puttingAllText(inTray);
    return form.arg(edgeText(passes.leadingEdge));
}

// How somebody can tell that the stack is in the right order.
QString uppermostText(const HandPasses &passes, const QStringList &titles)
{
    const PlannedSide &side = passes.uppermost;
    if (side.laidOutPage < 0)
        return Texts::tr("The last sheet lies uppermost. Nothing is printed on it so far.");
    if (side.pages.isEmpty())
        return Texts::tr("The last sheet lies uppermost.");
    QStringList numbers;
    for (const int page : side.pages)
        numbers += QString::number(page);
    const QString pages = numbers.size() == 1
                              ? Texts::tr("page %1").arg(numbers.constFirst())
                              : Texts::tr("pages %1").arg(numbers.join(Texts::tr(", ")));
    if (titles.size() == 1)
        return Texts::tr("The last sheet, with %1, lies uppermost.").arg(pages);
    return Texts::tr("The last sheet, with %1 of “%2”, lies uppermost.")
        .arg(pages, terminalLine(titles.value(side.document)));
}

} // namespace

bool canTurnByHand(const OpenedPrinter &printer)
{
    return printer.fetched.printer.origin != PrinterOrigin::File && !savesPdf(printer) &&
           !passesFilesOn(printer) && !turnsSheetsOver(printer.session->ppd());
}

QStringList problemsOfByHand(const QList<JobOption> &attributes, const OpenedPrinter &printer,
                             bool printsToFile, bool canAsk)
{
    if (!isTwoSidedByHand(attributes) || passesFilesOn(printer, attributes))
        return {};
    const QString byHand = named(*attribute(attributes, kSidesByHandAttribute));
    if (printsToFile)
        return {Texts::tr("Two-sided printing by hand (%1) needs a printer that sheets are put "
                          "back into: it cannot be done in a file.")
                    .arg(byHand)};
    QStringList problems;
    const JobOption *sheets = attribute(attributes, kJobSheets);
    if (sheets && !asksForNothing(*sheets))
        problems += Texts::tr("Two-sided printing by hand (%1) cannot be combined with %2: the "
                              "queue would add these pages to both halves.")
                        .arg(byHand, named(*sheets));
    if (!canAsk)
        problems += Texts::tr("Two-sided printing by hand (%1) needs somebody who puts the sheets "
                              "back, and nobody can be asked here. With sides-by-hand=no one side "
                              "of each sheet is printed.")
                        .arg(byHand);
    return problems;
}

TurnQuestion turnQuestion(const HandPasses &passes, const QStringList &titles, int copies)
{
    TurnQuestion question;
    const int sheets = int(passes.first.size()) * copies;
    question.steps << takingText(sheets) << puttingText(passes, sheets);
    if (sheets > 1)
        question.steps += uppermostText(passes, titles);
    question.inTray = passes.feed.inTray;
    question.leadingEdge = passes.leadingEdge;
    question.isWide = passes.isWide;
    return question;
}

} // namespace corvana
