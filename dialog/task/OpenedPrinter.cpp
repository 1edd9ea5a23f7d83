#include "dialog/task/OpenedPrinter.h"

#include <QLoggingCategory>

#include "dialog/queues/PanelRecognition.h"
#include "dialog/queues/UserQueues.h"
#include "dialog/session/OptionRequest.h"
#include "platform/pde/PDEBundleLoader.h"
#include "platform/pde/PDEPlugIn.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcPrinter, "corvana.dialog.printer", QtWarningMsg)

namespace {

constexpr QLatin1StringView kBundleFile{"QXCLQuality13PDE.bundle"};

QString bundleFileOf(ppd_file_t *ppd)
{
    const QString named = namedBundle(ppd);
    return named.isNull() ? QString(kBundleFile) : named;
}

// Known from the administrator, the PPD and what the bundle says of itself, before any of its code
// runs.
PanelDecision panelsOf(ppd_file_t *ppd, const Printer &printer, const QStringList &bundleRoots)
{
    const PanelRule rule =
        panelRule(panelRulesFile(),
                  {queueOfInstance(printer.name), ppdText(ppd->nickname).value_or(QString())});
    const FoundPlugIn found = findPlugInBundle(bundleFileOf(ppd), bundleRoots);
    if (found.bundle)
        return decidePanels(ppd, *found.bundle, rule);
    const bool wanted =
        rule == PanelRule::ByPpd ? !namedBundle(ppd).isNull() : rule == PanelRule::Panels;
    return {wanted, QStringLiteral("there is no usable bundle")};
}

} // namespace

bool wantsPanels(ppd_file_t *ppd, const Printer &printer, const QStringList &bundleRoots)
{
    return panelsOf(ppd, printer, bundleRoots).panels;
}

std::unique_ptr<OpenedPrinter> openPrinter(const Printer &printer, const QStringList &bundleRoots,
                                           AlertPresenter &presenter, QString *error,
                                           const std::function<void(PpdSession &)> &restore)
{
    auto opened = std::make_unique<OpenedPrinter>();
    opened->printer = printer;
    opened->session = PpdSession::open(printer.ppdPath, error);
    if (!opened->session)
        return nullptr;
    if (restore)
        restore(*opened->session);

    PDEPlugIn *plugIn = nullptr;
    const PanelDecision decision = panelsOf(opened->session->ppd(), printer, bundleRoots);
    qCInfo(lcPrinter).noquote() << printer.name
                                << (decision.panels ? "has panels:" : "has no panels:")
                                << decision.reason;
    if (decision.panels) {
        const LoadedPlugIn loaded =
            loadPlugInBundle(bundleFileOf(opened->session->ppd()), bundleRoots);
        plugIn = loaded.plugIn;
        opened->bundle = loaded.bundle;
        opened->panelProblem = loaded.problem;
    }
    if (plugIn) {
        opened->jobValues = plugIn->jobValues();
        // Entries that are stored already come before the panels, which would overwrite them.
        const QStringList refused = markImplied(*opened->session, opened->jobValues);
        for (const QString &problem : refused)
            qCWarning(lcPrinter).noquote() << problem;
    }
    opened->panels = std::make_unique<PanelHost>(*opened->session, plugIn, presenter);
    return opened;
}

} // namespace corvana
