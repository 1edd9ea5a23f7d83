#pragma once

#include <QFile>
#include <QJsonObject>
#include <QObject>

#include "platform/foundation/Bundle.h"
#include "platform/pde/PDEPlugIn.h"

/// Names the file that grows by one byte whenever the code of a test module starts to run.
inline constexpr char kMarkVariable[] = "CORVANA_TEST_MARK";

/// Leaves the mark. As a static object of a module it runs before anything that a host can call.
struct Mark
{
    Mark()
    {
        QFile file(qEnvironmentVariable(kMarkVariable));
        if (file.open(QIODevice::Append))
            file.write("x");
    }
};

/// A principal object without panels. Its bundle's dictionary says whether it wants to work.
class TestPlugIn : public QObject, public corvana::PDEPlugIn
{
    Q_OBJECT
    Q_INTERFACES(corvana::PDEPlugIn)

public:
    bool initWithBundle(const std::shared_ptr<corvana::Bundle> &bundle) override
    {
        setProperty("bundlePath", bundle->path());
        const auto code = reinterpret_cast<const void *>(&TestPlugIn::staticMetaObject);
        setProperty("knewItsBundle", corvana::Bundle::bundleForCode(code) == bundle);
        return !bundle->infoDictionary()->contains(QLatin1StringView("TestRefuses"));
    }
    QList<std::shared_ptr<corvana::PDEPanel>>
    PDEPanelsForType_withHostInfo(const QString &,
                                  const std::shared_ptr<corvana::PDEPluginCallback> &) override
    {
        return {};
    }
    corvana::PDEJobValues *jobValues() override { return nullptr; }
};
