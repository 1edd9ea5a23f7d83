#include "TestModule.h"

static const Mark mark;

class GoodModule : public TestPlugIn
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID CORVANA_PDE_PLUGIN_IID)
};

#include "TestModuleGood.moc"
