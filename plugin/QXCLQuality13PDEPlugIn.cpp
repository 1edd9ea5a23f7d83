#include "plugin/QXCLQuality13PDEPlugIn.h"

#include "colorsetting/ColorTransformer.h"
#include "colorsetting/QXLaserColorSettingPDE.h"
#include "printsetting/QXLaserPrintSettingPDE.h"

namespace corvana {

namespace {

template <typename Panel>
void appendPanel(QList<std::shared_ptr<PDEPanel>> &panels,
                 const std::shared_ptr<PDEPluginCallback> &host)
{
    auto panel = std::make_shared<Panel>();
    if (panel->initWithCallback(host))
        panels += panel;
}

} // namespace

bool QXCLQuality13PDEPlugIn::initWithBundle(const std::shared_ptr<Bundle> &)
{
    return true;
}

QList<std::shared_ptr<PDEPanel>> QXCLQuality13PDEPlugIn::PDEPanelsForType_withHostInfo(
    const QString &type, const std::shared_ptr<PDEPluginCallback> &host)
{
    QList<std::shared_ptr<PDEPanel>> panels;
    if (type != QLatin1StringView(kPrintDialogExtensionType))
        return panels;
    appendPanel<QXLaserPrintSettingPDE>(panels, host);
    appendPanel<QXLaserColorSettingPDE>(panels, host);
    ValueTransformer::setValueTransformer(std::make_shared<ColorTransformer>(),
                                          QLatin1StringView(kColorTransformerName));
    return panels;
}

} // namespace corvana
