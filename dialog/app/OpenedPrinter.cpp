#include "dialog/app/OpenedPrinter.h"

#include <QLoggingCategory>

#include "dialog/queues/PanelRecognition.h"
#include "platform/pde/PDEBundleLoader.h"
#include "platform/pde/PDEJobValues.h"
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
    const LoadedPlugIn loaded = loadPlugInBundle(kBundleFile, bundleRoots);
    if (!loaded.plugIn) {
        opened->panelProblem = loaded.problem;
    } else {
        const PanelDecision decision = decidePanels(opened->session->ppd(), *loaded.bundle);
        qCInfo(lcPrinter).noquote() << printer.name
                                    << (decision.panels ? "has panels:" : "has no panels:")
                                    << decision.reason;
        if (decision.panels) {
            plugIn = loaded.plugIn;
            opened->bundle = loaded.bundle;
        }
    }
    if (plugIn) {
        opened->jobValues = plugIn->jobValues();
        // Entries that are stored already come before the panels, which would overwrite them.
        const QList<JobOption> marks = opened->jobValues
            ? opened->jobValues->impliedMarks(opened->session->printSettings(),
                                              opened->session->ppd())
            : QList<JobOption>();
        for (const JobOption &mark : marks)
            opened->session->change(mark.name, mark.value, PpdSession::Origin::Dialog);
    }
    opened->panels = std::make_unique<PanelHost>(*opened->session, plugIn, presenter);
    return opened;
}

} // namespace corvana
