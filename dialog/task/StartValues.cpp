#include "dialog/task/StartValues.h"

#include <QCoreApplication>

#include "dialog/task/OpenedPrinter.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(StartValues)
};

} // namespace

FittedOptions applyWhatFits(const QList<JobOption> &options, OpenedPrinter &printer)
{
    QList<JobOption> known;
    QStringList unknown;
    for (const JobOption &option : options) {
        if (isKnownOption(option.name, *printer.session))
            known += option;
        else
            unknown += option.name;
    }
    FittedOptions fitted;
    // All of their names in one line: whoever has set them for another program knows them.
    if (!unknown.isEmpty())
        fitted.problems +=
            Texts::tr("This printer has no option of the name %1.").arg(unknown.join(u", "_s));
    const auto apply = [&](const QList<JobOption> &some) {
        const OptionOutcome outcome =
            applyOptions(some, *printer.session, printer.jobValues, *printer.panels);
        fitted.attributes += outcome.attributes;
        if (outcome.copies)
            fitted.copies = outcome.copies;
        return outcome.problems;
    };
    if (known.isEmpty() || apply(known).isEmpty())
        return fitted;
    // Together they cannot be taken, so each for itself, as far as they go.
    for (const JobOption &option : std::as_const(known))
        fitted.problems += apply({option});
    return fitted;
}

} // namespace corvana
