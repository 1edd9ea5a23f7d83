// The shipped module: nothing but the entry point, so that tests link the same objects as it does.

#include <QtPlugin>

#include "plugin/QXCLQuality13PDEPlugIn.h"

namespace corvana {

class Module : public QXCLQuality13PDEPlugIn
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID CORVANA_PDE_PLUGIN_IID)
};

} // namespace corvana

#include "Module.moc"
