#pragma once

#include <QObject>

#include "platform/pde/PDEPlugIn.h"
#include "plugin/QXJobValues.h"
#include "plugin/QXPageColors.h"

namespace corvana {

/// The principal object: hands the host the two panels.
class QXCLQuality13PDEPlugIn : public QObject, public PDEPlugIn
{
    Q_OBJECT
    Q_INTERFACES(corvana::PDEPlugIn)

public:
    bool initWithBundle(const std::shared_ptr<Bundle> &bundle) override;
    /// Print Setting first, Color Setting second; a panel that cannot be constructed is left out.
    QList<std::shared_ptr<PDEPanel>>
    PDEPanelsForType_withHostInfo(const QString &type,
                                  const std::shared_ptr<PDEPluginCallback> &host) override;
    PDEJobValues *jobValues() override { return &m_jobValues; }
    PDEPageColors *pageColors() override { return &m_pageColors; }

private:
    QXJobValues m_jobValues;
    QXPageColors m_pageColors;
};

} // namespace corvana
