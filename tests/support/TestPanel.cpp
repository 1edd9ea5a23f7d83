#include "tests/support/TestPanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>

#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/RadioMatrix.h"
#include "tests/support/RecordingHost.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

// Object names, by which the panel finds the control and the label of an option.
constexpr QLatin1StringView kLabelSuffix{"Label"};

} // namespace

TestPanel::TestPanel(const QStringList &keywords) : m_keywords(keywords) {}

bool TestPanel::initWithHost(const std::shared_ptr<RecordingHost> &host)
{
    m_host = host;
    return initWithCallback(host);
}

QWidget *TestPanel::makeView()
{
    if (!m_panelView) {
        m_panelView = new QWidget;
        effectContent = new BindingDictionary(m_panelView);
    }
    return m_panelView;
}

template <typename Control> Control *TestPanel::addControl(const QString &keyword)
{
    auto *control = new Control(makeView());
    control->setObjectName(keyword);
    connectControlAction(control, [this](QWidget *sender) { requestNewOutputBin(sender); });
    return control;
}

QComboBox *TestPanel::addPopUp(const QString &keyword, int tag)
{
    auto *popUp = addControl<QComboBox>(keyword);
    popUp->setProperty("tag", tag);
    return popUp;
}

RadioMatrix *TestPanel::addMatrix(const QString &keyword, int rows)
{
    auto *matrix = addControl<RadioMatrix>(keyword);
    matrix->setNumberOfRows(rows);
    return matrix;
}

QCheckBox *TestPanel::addCheckBox(const QString &keyword)
{
    return addControl<QCheckBox>(keyword);
}

QWidget *TestPanel::addOtherControl(const QString &keyword)
{
    return addControl<QProgressBar>(keyword);
}

QLabel *TestPanel::addLabel(const QString &keyword)
{
    auto *label = new QLabel(makeView());
    label->setObjectName(keyword + kLabelSuffix);
    return label;
}

QGroupBox *TestPanel::addBox(const QString &keyword)
{
    auto *box = new QGroupBox(makeView());
    box->setObjectName(keyword + kLabelSuffix);
    return box;
}

QWidget *TestPanel::determineUI(const QString &keyword)
{
    return m_panelView ? m_panelView->findChild<QWidget *>(keyword) : nullptr;
}

QWidget *TestPanel::determineLabel(const QString &keyword)
{
    return m_panelView ? m_panelView->findChild<QWidget *>(keyword + kLabelSuffix) : nullptr;
}

QString TestPanel::determineKey(QWidget *control)
{
    return control ? control->objectName() : QString();
}

QString TestPanel::panelName()
{
    return u"Test"_s;
}

void TestPanel::step(const char *operation, const QStringList &arguments)
{
    if (m_tracing && m_host)
        m_host->note(QString::fromLatin1(operation), arguments);
}

bool TestPanel::initWithCallback(const std::shared_ptr<PDEPluginCallback> &callback)
{
    return QXPrintQualityPDE::initWithCallback(callback);
}

bool TestPanel::restoreValuesAndReturnError(QString *error)
{
    step("restoreValuesAndReturnError");
    if (!PPDKeys)
        setPPDKeys(m_keywords);
    return QXPrintQualityPDE::restoreValuesAndReturnError(error);
}

bool TestPanel::saveValuesAndReturnError(QString *error)
{
    step("saveValuesAndReturnError");
    return QXPrintQualityPDE::saveValuesAndReturnError(error);
}

void TestPanel::saveAllValues()
{
    step("saveAllValues");
    QXPrintQualityPDE::saveAllValues();
}

void TestPanel::setDefaults()
{
    step("setDefaults");
    QXPrintQualityPDE::setDefaults();
}

void TestPanel::chechModelName()
{
    step("chechModelName");
    QXPrintQualityPDE::chechModelName();
}

void TestPanel::initializePopup()
{
    step("initializePopup");
    QXPrintQualityPDE::initializePopup();
}

void TestPanel::updateUI()
{
    step("updateUI");
    QXPrintQualityPDE::updateUI();
}

void TestPanel::updateUIforKey(const QString &keyword)
{
    step("updateUIforKey", {keyword});
    QXPrintQualityPDE::updateUIforKey(keyword);
}

void TestPanel::getUIValues()
{
    step("getUIValues");
    QXPrintQualityPDE::getUIValues();
}

void TestPanel::revertUI_forKey(QWidget *control, const QString &keyword)
{
    step("revertUI_forKey", {keyword});
    QXPrintQualityPDE::revertUI_forKey(control, keyword);
}

void TestPanel::checkConstraints()
{
    step("checkConstraints");
    QXPrintQualityPDE::checkConstraints();
}

void TestPanel::checkUIConstraints()
{
    step("checkUIConstraints");
    QXPrintQualityPDE::checkUIConstraints();
    if (ownUIRule)
        ownUIRule();
}

void TestPanel::checkFax()
{
    step("checkFax");
    QXPrintQualityPDE::checkFax();
}

void TestPanel::checkColorSync()
{
    step("checkColorSync");
    QXPrintQualityPDE::checkColorSync();
}

void TestPanel::restoreOptionState()
{
    step("restoreOptionState");
    QXPrintQualityPDE::restoreOptionState();
}

void TestPanel::saveOptionState()
{
    step("saveOptionState");
    QXPrintQualityPDE::saveOptionState();
}

void TestPanel::toggleShowOption(QWidget *button)
{
    step("toggleShowOption");
    toggledBy += button;
}

bool TestPanel::registerHelp()
{
    step("registerHelp");
    return helpIsRegistered;
}

} // namespace corvana::test
