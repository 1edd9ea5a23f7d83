#include "dialog/task/OpenedPrinter.h"

#include <QLoggingCategory>

#include "dialog/printers/PanelRecognition.h"
#include "dialog/session/AttributeChoices.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/OutputOrder.h"
#include "dialog/session/PpdAhead.h"
#include "platform/pde/PDEBundleLoader.h"
#include "platform/pde/PDEPlugIn.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcPrinter, "corvana.dialog.printer", QtWarningMsg)

namespace {

// CUPS 2.4 gives each queue whose PPD has a DefaultColorModel other than these two names the
// default "monochrome", and does nothing with it. Nobody has asked for that, so it makes no job
// gray.
bool makesUpMonochrome(ppd_file_t *ppd)
{
    const ppd_attr_t *model = ppdFindAttr(ppd, "DefaultColorModel", nullptr);
    return ppd->color_device && model && model->value && qstricmp(model->value, "RGB") != 0 &&
           qstricmp(model->value, "CMYK") != 0;
}

} // namespace

void setFetched(const FetchedPrinter &fetched, OpenedPrinter &opened)
{
    opened.fetched = fetched;
    opened.saidDefaults = fetched.defaults;
    if (makesUpMonochrome(opened.session->ppd()))
        opened.fetched.defaults.removeAll({u"print-color-mode"_s, u"monochrome"_s});
}

std::unique_ptr<OpenedPrinter> openPrinter(const FetchedPrinter &fetched,
                                           const QStringList &bundleRoots,
                                           AlertPresenter &presenter, QString *error,
                                           const std::function<void(OpenedPrinter &)> &prepare,
                                           PpdAhead *ppds)
{
    auto opened = std::make_unique<OpenedPrinter>();
    PpdFile ppd =
        ppds ? ppds->open(fetched.ppd->path, error) : openPpdFile(fetched.ppd->path, error);
    if (!ppd)
        return nullptr;
    opened->session = std::make_unique<PpdSession>(std::move(ppd));
    setFetched(fetched, *opened);

    const Printer &printer = fetched.printer;
    PDEPlugIn *plugIn = nullptr;
    const PanelDecision decision = decidePanels(opened->session->ppd(), printer, bundleRoots);
    qCInfo(lcPrinter).noquote() << printer.name
                                << (decision.panels ? "has panels:" : "has no panels:")
                                << decision.reason;
    if (decision.panels) {
        const LoadedPlugIn loaded =
            decision.found.bundle
                ? loadPlugIn(decision.found)
                : loadPlugInBundle(bundleFileOf(opened->session->ppd()), bundleRoots);
        plugIn = loaded.plugIn;
        opened->bundle = loaded.bundle;
        opened->panelProblem = loaded.problem;
    }
    if (plugIn) {
        opened->jobValues = plugIn->jobValues();
        opened->pageColors = plugIn->pageColors();
    }
    if (prepare)
        prepare(*opened);
    if (plugIn) {
        // Entries that are stored already come before the panels, which would overwrite them.
        const QStringList refused = markImplied(*opened->session, opened->jobValues);
        for (const QString &problem : refused)
            qCWarning(lcPrinter).noquote() << problem;
    }
    opened->panels = std::make_unique<PanelHost>(*opened->session, plugIn, presenter);
    return opened;
}

namespace {

// Whether a job is black and white by the filter that makes PostScript of PDF, which is the only
// one that follows the attribute where the printer has no option for it.
bool makesPdfGray(const OpenedPrinter &printer, const QList<JobOption> &attributes)
{
    static const JobOption monochrome{u"print-color-mode"_s, u"monochrome"_s};
    ppd_file_t *ppd = printer.session->ppd();
    return !printer.fetched.capabilities && ppd->color_device && attributes.contains(monochrome) &&
           AttributeReader(ppd, printer.jobValues).read(monochrome).outcome ==
               AttributeChoices::Outcome::Attribute;
}

} // namespace

JobTicket makeTicket(const OpenedPrinter &printer, const QList<JobOption> &attributes,
                     const QString &title, int copies)
{
    const PpdSession &session = *printer.session;
    JobTicket ticket{
        title, copies,
        jobOptions(session, printer.jobValues, withCollation(attributes, copies, session)),
        secretsOf(session)};
    // PostScript passes other filters, which turn nothing round a second time.
    ticket.postScriptAsPdf =
        makesPdfGray(printer, attributes) || isTurnedRoundOnTheWay(session.ppd(), ticket.options);
    return ticket;
}

} // namespace corvana
