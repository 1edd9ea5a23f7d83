#pragma once

#include <functional>
#include <memory>

#include <QList>
#include <QMap>
#include <QStringList>
#include <QWidget>

#include "platform/pde/PDEJobValues.h"
#include "platform/pde/PDEPanel.h"
#include "platform/pde/PDEPlugIn.h"

namespace corvana {
class PDEPluginCallback;
}

namespace corvana::test {

/// What was called on the panels of one plug-in, in order: "A.willShow", "B.changed Duplex=None".
using CallLog = QStringList;

/// A panel that notes each call in a log shared with its siblings, and then does what a test tells
/// it to do.
class FakePanel : public PDEPanel
{
public:
    FakePanel(QString name, CallLog &log, std::shared_ptr<PDEPluginCallback> host);

    /// Run inside the operation of that name, after it was noted ("willShow", "restore", "save",
    /// "changed", "shouldHide", "summary", "shouldPrint", "view").
    QMap<QString, std::function<void()>> inside;
    /// What shouldPrint() answers.
    bool allowsPrinting = true;
    /// What shouldHide() answers.
    bool allowsLeaving = true;
    /// What summaryInfo() answers: title and value, in display order.
    QList<std::pair<QString, QString>> summaryLines;
    bool hasView = true;
    /// What it shows beside what it has saved, by key.
    QVariantMap shown{};
    /// What supportedPPDOptionKeys() answers.
    std::optional<QStringList> supported{};

    /// Asks the host for a change, as a panel does for its user or for a rule. The host's answer.
    bool propose(const QString &keyword, const QString &choice);
    PDEPluginCallback &host() { return *m_host; }

    QString panelName() override { return m_name; }
    QString panelKind() override { return m_name; }
    QWidget *panelView() override;
    void willShow() override;
    bool shouldHide() override;
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    void writeShownValues(PrintSettings &settings) const override;
    QVariantMap summaryInfo() override;
    std::optional<QStringList> supportedPPDOptionKeys() override { return supported; }
    void PPDOptionKeyValueDidChange_ppdChoice(const QString &keyword,
                                              const QString &choice) override;
    bool shouldPrint() override;
    bool shouldShowHelp() override { return true; }

private:
    void note(const QString &operation, const QString &what = {});

    QString m_name;
    CallLog &m_log;
    std::shared_ptr<PDEPluginCallback> m_host;
    std::unique_ptr<QWidget> m_view;
};

/// A plug-in of recording panels.
class FakePlugIn : public PDEPlugIn
{
public:
    /// Panels of these names, in this order.
    explicit FakePlugIn(QStringList names) : m_names(std::move(names)) {}

    CallLog log;
    /// The panels built last, in order.
    QList<std::shared_ptr<FakePanel>> panels;
    /// Run for each panel while it is being built.
    std::function<void(FakePanel &)> whileBuilding;
    /// What the host asked panels for, once for each time it did.
    QStringList askedTypes;

    bool initWithBundle(const std::shared_ptr<Bundle> &) override { return true; }
    QList<std::shared_ptr<PDEPanel>>
    PDEPanelsForType_withHostInfo(const QString &type,
                                  const std::shared_ptr<PDEPluginCallback> &host) override;
    /// What jobValues() answers. Ownership: borrowed.
    PDEJobValues *values = nullptr;
    PDEJobValues *jobValues() override { return values; }

private:
    QStringList m_names;
};

/// Keeps one value of its own: the option "Strength", a whole number from 1 to 9, in an entry of
/// the same name behind "fake.". A strength above 5 implies the choice Boost=ON. Its option for
/// color is the one that a test names.
class FakeJobValues : public PDEJobValues
{
public:
    QList<JobOption> jobOptions(const PrintSettings &settings, ppd_file_t *ppd) const override;
    JobValueClaim takeJobOption(const JobOption &option, PrintSettings &settings,
                                ppd_file_t *ppd) const override;
    QList<JobOption> impliedMarks(const PrintSettings &settings, ppd_file_t *ppd) const override;
    QString colorOption(ppd_file_t *) const override { return color; }

    QString color{};
};

} // namespace corvana::test
