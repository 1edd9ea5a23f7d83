#include <functional>
#include <type_traits>

#include <QLabel>
#include <QTest>

#include "panel/QXPrintQualityPDE.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

// Overrides every operation of the base panel that a panel may override. That it compiles proves
// name, arguments and result; that it is reached through the base proves dynamic dispatch.
class OverridingPanel : public QXPrintQualityPDE
{
public:
    QString reached;

    bool initWithCallback(const std::shared_ptr<PDEPluginCallback> &) override
    {
        return at("initWithCallback");
    }
    void setPPDKeys(const std::optional<QStringList> &) override { at("setPPDKeys"); }
    void initializePopup() override { at("initializePopup"); }
    void removeNotificationObserver(const Notification &) override
    {
        at("removeNotificationObserver");
    }
    std::optional<QStringList> supportedPPDOptionKeys() override
    {
        at("supportedPPDOptionKeys");
        return {};
    }
    void PPDOptionKeyValueDidChange_ppdChoice(const QString &, const QString &) override
    {
        at("PPDOptionKeyValueDidChange_ppdChoice");
    }
    void willShow() override { at("willShow"); }
    bool shouldHide() override { return at("shouldHide"); }
    bool shouldPrint() override { return at("shouldPrint"); }
    QVariantMap summaryInfo() override
    {
        at("summaryInfo");
        return {};
    }
    bool saveValuesAndReturnError(QString *) override { return at("saveValuesAndReturnError"); }
    bool restoreValuesAndReturnError(QString *) override
    {
        return at("restoreValuesAndReturnError");
    }
    void saveAllValues() override { at("saveAllValues"); }
    void requestNewOutputBin(QWidget *) override { at("requestNewOutputBin"); }
    void revertUI_forKey(QWidget *, const QString &) override { at("revertUI_forKey"); }
    QString panelKind() override
    {
        at("panelKind");
        return {};
    }
    QWidget *panelView() override
    {
        at("panelView");
        return nullptr;
    }
    void setDefaults() override { at("setDefaults"); }
    void updateUI() override { at("updateUI"); }
    void updateUIforKey(const QString &) override { at("updateUIforKey"); }
    bool setAndMarkValue_forKey(const QString &, const QString &) override
    {
        return at("setAndMarkValue_forKey");
    }
    void toggleShowOption(QWidget *) override { at("toggleShowOption"); }
    void getUIValues() override { at("getUIValues"); }
    void checkConstraints() override { at("checkConstraints"); }
    void checkUIConstraints() override { at("checkUIConstraints"); }
    void changeImage_ofView(const QString &, QLabel *) override { at("changeImage_ofView"); }
    void setViewFrameSize(double, double) override { at("setViewFrameSize"); }
    void dialogDidExpand(const Notification &) override { at("dialogDidExpand"); }
    void adjustUIPosition_forParts(double, const QList<QWidget *> &) override
    {
        at("adjustUIPosition_forParts");
    }
    QString optionName() override
    {
        at("optionName");
        return {};
    }
    void restoreOptionState() override { at("restoreOptionState"); }
    void saveOptionState() override { at("saveOptionState"); }
    void checkColorSync() override { at("checkColorSync"); }
    void chechModelName() override { at("chechModelName"); }
    QString determineKey(QWidget *) override
    {
        at("determineKey");
        return {};
    }
    QWidget *determineUI(const QString &) override
    {
        at("determineUI");
        return nullptr;
    }
    QWidget *determineLabel(const QString &) override
    {
        at("determineLabel");
        return nullptr;
    }
    std::optional<QStringList> availablePPDOptionKeys() override
    {
        at("availablePPDOptionKeys");
        return {};
    }
    bool registerHelp() override { return at("registerHelp"); }
    QString helpAnchor() override
    {
        at("helpAnchor");
        return {};
    }
    QString helpBook() override
    {
        at("helpBook");
        return {};
    }
    bool shouldShowHelp() override { return at("shouldShowHelp"); }
    void showHelpFile(QWidget *) override { at("showHelpFile"); }
    bool shouldShowAlert(const QString &) override { return at("shouldShowAlert"); }
    void alertDidEnd_returnCode_contextInfo(const AlertAnswer &, int, const QString &) override
    {
        at("alertDidEnd_returnCode_contextInfo");
    }
    void checkFax() override { at("checkFax"); }
    void changeResolutionLetterB() override { at("changeResolutionLetterB"); }
    QString panelName() override { return {}; }

private:
    bool at(const char *operation)
    {
        reached = QString::fromLatin1(operation);
        return true;
    }
};

using Panel = QXPrintQualityPDE;
using Call = std::function<void(Panel &)>;

struct Operation
{
    const char *name;
    Call call;
};

// In the order of the class's list; the destructor and the property accessors have tests of their
// own.
const Operation kOperations[] = {
    {"initWithCallback", [](Panel &p) { p.initWithCallback(nullptr); }},
    {"setPPDKeys", [](Panel &p) { p.setPPDKeys(std::nullopt); }},
    {"initializePopup", [](Panel &p) { p.initializePopup(); }},
    {"removeNotificationObserver", [](Panel &p) { p.removeNotificationObserver({}); }},
    {"supportedPPDOptionKeys", [](Panel &p) { p.supportedPPDOptionKeys(); }},
    {"PPDOptionKeyValueDidChange_ppdChoice",
     [](Panel &p) { p.PPDOptionKeyValueDidChange_ppdChoice({}, {}); }},
    {"willShow", [](Panel &p) { p.willShow(); }},
    {"shouldHide", [](Panel &p) { p.shouldHide(); }},
    {"shouldPrint", [](Panel &p) { p.shouldPrint(); }},
    {"summaryInfo", [](Panel &p) { p.summaryInfo(); }},
    {"saveValuesAndReturnError", [](Panel &p) { p.saveValuesAndReturnError(nullptr); }},
    {"restoreValuesAndReturnError", [](Panel &p) { p.restoreValuesAndReturnError(nullptr); }},
    {"saveAllValues", [](Panel &p) { p.saveAllValues(); }},
    {"requestNewOutputBin", [](Panel &p) { p.requestNewOutputBin(nullptr); }},
    {"revertUI_forKey", [](Panel &p) { p.revertUI_forKey(nullptr, {}); }},
    {"panelKind", [](Panel &p) { p.panelKind(); }},
    {"panelView", [](Panel &p) { p.panelView(); }},
    {"setDefaults", [](Panel &p) { p.setDefaults(); }},
    {"updateUI", [](Panel &p) { p.updateUI(); }},
    {"updateUIforKey", [](Panel &p) { p.updateUIforKey({}); }},
    {"setAndMarkValue_forKey", [](Panel &p) { p.setAndMarkValue_forKey({}, {}); }},
    {"toggleShowOption", [](Panel &p) { p.toggleShowOption(nullptr); }},
    {"getUIValues", [](Panel &p) { p.getUIValues(); }},
    {"checkConstraints", [](Panel &p) { p.checkConstraints(); }},
    {"checkUIConstraints", [](Panel &p) { p.checkUIConstraints(); }},
    {"changeImage_ofView", [](Panel &p) { p.changeImage_ofView({}, nullptr); }},
    {"setViewFrameSize", [](Panel &p) { p.setViewFrameSize(0, 0); }},
    {"dialogDidExpand", [](Panel &p) { p.dialogDidExpand({}); }},
    {"adjustUIPosition_forParts", [](Panel &p) { p.adjustUIPosition_forParts(0, {}); }},
    {"optionName", [](Panel &p) { p.optionName(); }},
    {"restoreOptionState", [](Panel &p) { p.restoreOptionState(); }},
    {"saveOptionState", [](Panel &p) { p.saveOptionState(); }},
    {"checkColorSync", [](Panel &p) { p.checkColorSync(); }},
    {"chechModelName", [](Panel &p) { p.chechModelName(); }},
    {"determineKey", [](Panel &p) { p.determineKey(nullptr); }},
    {"determineUI", [](Panel &p) { p.determineUI({}); }},
    {"determineLabel", [](Panel &p) { p.determineLabel({}); }},
    {"availablePPDOptionKeys", [](Panel &p) { p.availablePPDOptionKeys(); }},
    {"registerHelp", [](Panel &p) { p.registerHelp(); }},
    {"helpAnchor", [](Panel &p) { p.helpAnchor(); }},
    {"helpBook", [](Panel &p) { p.helpBook(); }},
    {"shouldShowHelp", [](Panel &p) { p.shouldShowHelp(); }},
    {"showHelpFile", [](Panel &p) { p.showHelpFile(nullptr); }},
    {"shouldShowAlert", [](Panel &p) { p.shouldShowAlert({}); }},
    {"alertDidEnd_returnCode_contextInfo",
     [](Panel &p) { p.alertDidEnd_returnCode_contextInfo({}, 0, {}); }},
    {"checkFax", [](Panel &p) { p.checkFax(); }},
    {"changeResolutionLetterB", [](Panel &p) { p.changeResolutionLetterB(); }},
};

constexpr size_t kDestructorAndAccessors = 6;
static_assert(std::size(kOperations) + kDestructorAndAccessors == 53);
static_assert(std::has_virtual_destructor_v<QXPrintQualityPDE>);
static_assert(std::is_same_v<decltype(std::declval<Panel>().imageModeFlag()), std::int16_t>,
              "the flag word is read with its sign");

} // namespace

class OperationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyOperationIsReachedThroughTheBase_data()
    {
        QTest::addColumn<int>("index");
        for (size_t i = 0; i < std::size(kOperations); ++i)
            QTest::newRow(kOperations[i].name) << static_cast<int>(i);
    }
    void everyOperationIsReachedThroughTheBase()
    {
        QFETCH(int, index);
        OverridingPanel panel;
        kOperations[index].call(panel);
        QCOMPARE(panel.reached, QString::fromLatin1(kOperations[index].name));
    }

    void propertiesKeepWhatTheyAreGiven()
    {
        OverridingPanel panel;
        QVERIFY(panel.thePDEName().isNull());
        QVERIFY(panel.outputBin().isEmpty());
        QCOMPARE(panel.imageModeFlag(), std::int16_t(0));
        panel.setThePDEName(u"Name"_s);
        panel.setOutputBin({{u"QXMediaType"_s, u"Thin"_s}, {u"QXBrightness"_s, 3}});
        QCOMPARE(panel.thePDEName(), u"Name"_s);
        QCOMPARE(panel.outputBin().value(u"QXMediaType"_s), QVariant(u"Thin"_s));
        QCOMPARE(panel.outputBin().value(u"QXBrightness"_s).typeId(), int(QMetaType::Int));
    }
};

QTEST_APPLESS_MAIN(OperationsTest)
#include "operations_test.moc"
