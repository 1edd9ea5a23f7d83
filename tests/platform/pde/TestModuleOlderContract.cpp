#include "TestModule.h"

static const Mark mark;

class OlderContractModule : public TestPlugIn
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.corvana.print.pde.PlugIn/1")
};

#include "TestModuleOlderContract.moc"
