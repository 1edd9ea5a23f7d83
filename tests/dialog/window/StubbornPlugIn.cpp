// A plug-in module with two panels. A box on each tells it not to let the user leave it, and the
// first shows an alert before it prints.

#include <QCheckBox>
#include <QObject>
#include <QVBoxLayout>

#include "platform/pde/PDEPanel.h"
#include "platform/pde/PDEPlugIn.h"
#include "platform/pde/PDEPluginCallback.h"
#include "platform/toolkit/Alert.h"

namespace {

class StubbornPanel : public corvana::PDEPanel
{
public:
    StubbornPanel(const QString &name, std::shared_ptr<corvana::PDEPluginCallback> host)
        : m_name(name), m_host(std::move(host))
    {
        m_stays = new QCheckBox(name, &m_view);
        m_stays->setObjectName(QStringLiteral("stays on ") + name);
        (new QVBoxLayout(&m_view))->addWidget(m_stays);
    }

    QString panelName() override { return m_name; }
    QString panelKind() override { return m_name; }
    QWidget *panelView() override { return m_hasView ? &m_view : nullptr; }
    void willShow() override {}
    bool shouldHide() override { return !m_stays->isChecked(); }
    bool restoreValuesAndReturnError(QString *) override { return true; }
    bool saveValuesAndReturnError(QString *) override { return true; }
    QVariantMap summaryInfo() override { return {}; }
    std::optional<QStringList> supportedPPDOptionKeys() override { return std::nullopt; }
    void PPDOptionKeyValueDidChange_ppdChoice(const QString &, const QString &) override {}
    bool shouldPrint() override
    {
        if (m_name != QLatin1StringView("First"))
            return true;
        corvana::Alert alert;
        alert.messageText = QStringLiteral("Open the cover");
        alert.buttons = {QStringLiteral("OK")};
        m_host->alertPresenter()->runModal(alert, &m_view);
        return true;
    }
    bool shouldShowHelp() override { return true; }

private:
    QString m_name;
    std::shared_ptr<corvana::PDEPluginCallback> m_host;
    // The environment says of a panel that it fails to make its view.
    const bool m_hasView = qEnvironmentVariable("TEST_PANEL_WITHOUT_VIEW") != m_name;
    QWidget m_view;
    QCheckBox *m_stays;
};

} // namespace

class StubbornPlugIn : public QObject, public corvana::PDEPlugIn
{
    Q_OBJECT
    Q_INTERFACES(corvana::PDEPlugIn)
    Q_PLUGIN_METADATA(IID CORVANA_PDE_PLUGIN_IID)

public:
    bool initWithBundle(const std::shared_ptr<corvana::Bundle> &) override { return true; }
    QList<std::shared_ptr<corvana::PDEPanel>>
    PDEPanelsForType_withHostInfo(const QString &,
                                  const std::shared_ptr<corvana::PDEPluginCallback> &host) override
    {
        return {std::make_shared<StubbornPanel>(QStringLiteral("First"), host),
                std::make_shared<StubbornPanel>(QStringLiteral("Second"), host)};
    }
    corvana::PDEJobValues *jobValues() override { return nullptr; }
};

#include "StubbornPlugIn.moc"
