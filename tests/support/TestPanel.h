#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QStringList>

#include "panel/QXPrintQualityPDE.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;

namespace corvana {
class RadioMatrix;
}

namespace corvana::test {

class RecordingHost;

/// A panel of the smallest kind: real controls, one for each option that a test gives it, and
/// nothing of its own beside what the base does. Everything protected is open to tests.
///
/// With trace() on, each step that the base takes is noted between the calls of its host, so that a
/// test can compare one list with the order that it expects.
class TestPanel : public QXPrintQualityPDE
{
public:
    /// A panel that is never told its options.
    TestPanel() = default;
    /// A panel that handles `keywords`, taken over at its first restore as the real panels do.
    explicit TestPanel(const QStringList &keywords);

    /// Constructs the panel at its host. Errors: false when no panel results.
    bool initWithHost(const std::shared_ptr<RecordingHost> &host);
    /// Notes the base's steps in the host's calls from now on, after those noted so far.
    void trace(bool on = true) { m_tracing = on; }

    // Controls. Each call makes the view, and with it `effectContent`, when there is none. Every
    // control has the panel's common action. Ownership: the view's.

    QComboBox *addPopUp(const QString &keyword, int tag = 0);
    RadioMatrix *addMatrix(const QString &keyword, int rows);
    QCheckBox *addCheckBox(const QString &keyword);
    /// A control of a kind that carries no choices.
    QWidget *addOtherControl(const QString &keyword);
    QLabel *addLabel(const QString &keyword);
    QGroupBox *addBox(const QString &keyword);
    QWidget *makeView();

    /// What registerHelp() answers.
    bool helpIsRegistered = false;
    /// What toggleShowOption() was called with, once a call.
    QList<QWidget *> toggledBy;
    /// A rule of the panel's own, run at the end of checkUIConstraints().
    std::function<void()> ownUIRule;

    // The base's own, open to tests.
    using QXPrintQualityPDE::effectContent;
    using QXPrintQualityPDE::hasMode;
    using QXPrintQualityPDE::m_outputBin;
    using QXPrintQualityPDE::m_panelView;
    using QXPrintQualityPDE::optionButton;
    using QXPrintQualityPDE::paperName;
    using QXPrintQualityPDE::pdePluginCallbackObject;
    using QXPrintQualityPDE::pluginBundle;
    using QXPrintQualityPDE::popupInited;
    using QXPrintQualityPDE::ppd;
    using QXPrintQualityPDE::PPDKeys;
    using QXPrintQualityPDE::setMode;

    QString panelName() override;
    bool initWithCallback(const std::shared_ptr<PDEPluginCallback> &callback) override;
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    void saveAllValues() override;
    void setDefaults() override;
    void chechModelName() override;
    void initializePopup() override;
    void updateUI() override;
    void updateUIforKey(const QString &keyword) override;
    void getUIValues() override;
    void revertUI_forKey(QWidget *control, const QString &keyword) override;
    void checkConstraints() override;
    void checkUIConstraints() override;
    void checkFax() override;
    void checkColorSync() override;
    void restoreOptionState() override;
    void saveOptionState() override;
    void toggleShowOption(QWidget *button) override;
    bool registerHelp() override;
    QWidget *determineUI(const QString &keyword) override;
    QWidget *determineLabel(const QString &keyword) override;
    QString determineKey(QWidget *control) override;

private:
    void step(const char *operation, const QStringList &arguments = {});
    template <typename Control> Control *addControl(const QString &keyword);

    std::optional<QStringList> m_keywords;
    std::shared_ptr<RecordingHost> m_host;
    bool m_tracing = false;
};

} // namespace corvana::test
