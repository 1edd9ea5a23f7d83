#include "TestModule.h"

static const Mark mark;

class NoPlugInModule : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID CORVANA_PDE_PLUGIN_IID)
};

#include "TestModuleNoPlugIn.moc"
