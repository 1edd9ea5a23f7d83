#include "dialog/task/PrintRequest.h"

#include <QCoreApplication>

#include "dialog/policy/Policy.h"
#include "dialog/printers/PrinterId.h"

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PrintRequest)
};

} // namespace

const Policy &policyOf(const PrintRequest &request)
{
    static const Policy nothing;
    return request.policy ? *request.policy : nothing;
}

QString notOfferedText(const PolicyEntry &entry, const Printer &printer)
{
    return entry.key == PolicyKey::Hide
               ? Texts::tr("The printer “%1” is not offered by your administrator (%2).")
                     .arg(printer.name, entry.origin.text())
               : Texts::tr("Printing to a file is not offered by your administrator (%1).")
                     .arg(entry.origin.text());
}

std::function<QString(const Printer &)> whyNotOffered(const PrintRequest &request)
{
    if (policyOf(request).isEmpty())
        return {};
    return [policy = request.policy](const Printer &printer) {
        const auto hides = policy->whatHides(printer);
        return hides ? notOfferedText(*hides, printer) : QString();
    };
}

int wantedAmongFiles(const PrintRequest &request)
{
    for (int i = 0; i < request.printers.size(); ++i) {
        if (request.wantedPrinter.isEmpty() ||
            isCalled(request.printers.at(i), request.wantedPrinter))
            return i;
    }
    return -1;
}

} // namespace corvana
