#include "dialog/app/OpenedPrinter.h"

#include <QLoggingCategory>

#include "dialog/queues/PanelRecognition.h"
#include "dialog/session/OptionRequest.h"
#include "platform/pde/PDEBundleLoader.h"
#include "platform/pde/PDEPlugIn.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcPrinter, "corvana.dialog.printer", QtWarningMsg)

namespace {
constexpr QLatin1StringView kBundleFile{"QXCLQuality13PDE.bundle"};
}

std::unique_ptr<OpenedPrinter> openPrinter(const Printer &printer, const QStringList &bundleRoots,
                                           AlertPresenter &presenter, QString *error)
{
    auto opened = std::make_unique<OpenedPrinter>();
    opened->printer = printer;
    opened->session = PpdSession::open(printer.ppdPath, error);
    if (!opened->session)
        return nullptr;

    PDEPlugIn *plugIn = nullptr;
    const QString wanted = namedBundle(opened->session->ppd());
    const QString bundleFile = wanted.isNull() ? QString(kBundleFile) : wanted;
    const FoundPlugIn found = findPlugInBundle(bundleFile, bundleRoots);
    // Whether the printer wants panels is known from the PPD and what the bundle says of itself,
    // before any of its code runs.
    const PanelDecision decision =
        found.bundle ? decidePanels(opened->session->ppd(), *found.bundle)
                     : PanelDecision{!wanted.isNull(), QStringLiteral("there is no usable bundle")};
    qCInfo(lcPrinter).noquote() << printer.name
                                << (decision.panels ? "has panels:" : "has no panels:")
                                << decision.reason;
    if (decision.panels) {
        const LoadedPlugIn loaded = loadPlugInBundle(bundleFile, bundleRoots);
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
