#include "panel/QXPrintQualityPDE.h"

#include <QLoggingCategory>

#include "panel/OptionKeywords.h"
#include "platform/foundation/FormatString.h"
#include "platform/toolkit/InterfaceLoader.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcPanel, "corvana.panel", QtWarningMsg)

namespace {

// The panels find their bundle by the module in which this byte lies.
constexpr char kCodeOfThisModule = 0;

constexpr QLatin1StringView kPanelKindFormat{"com.corvana.print.pde.Cocoa%1"};

} // namespace

QXPrintQualityPDE::~QXPrintQualityPDE()
{
    dealloc();
}

void QXPrintQualityPDE::dealloc()
{
    delete m_panelView;
    NotificationCenter::defaultCenter().removeObserver(this);
}

bool QXPrintQualityPDE::initWithCallback(const std::shared_ptr<PDEPluginCallback> &callback)
{
    pdePluginCallbackObject = callback;
    pluginBundle = Bundle::bundleForCode(&kCodeOfThisModule);
    m_outputBin.clear();
    if (pluginBundle && pluginBundle->infoDictionary())
        setThePDEName(pluginBundle->infoString(kCFBundleNameKey));
    else
        qCWarning(lcPanel) << "the panel's bundle has no information dictionary";
    paperName = QString();
    popupInited = false;
    m_imageModeFlag = 0;
    if (!callback ||
        !callback->respondsTo(PDECallbackOperation::willChangePPDOptionKeyValue_ppdChoice)) {
        qCWarning(lcPanel) << "the host cannot be asked before a choice changes: no panel";
        pdePluginCallbackObject.reset();
        pluginBundle.reset();
        return false;
    }
    ppd = callback->ppdFile();
    chechModelName();
    restoreValuesAndReturnError(nullptr);
    checkConstraints();
    return true;
}

void QXPrintQualityPDE::removeNotificationObserver(const Notification &)
{
    NotificationCenter::defaultCenter().removeObserver(this);
}

QString QXPrintQualityPDE::panelKind()
{
    return QString(kPanelKindFormat).arg(thePDEName());
}

QWidget *QXPrintQualityPDE::panelView()
{
    if (!m_panelView && pluginBundle) {
        const QString file = pluginBundle->pathForResource(thePDEName(), u"ui"_s);
        InterfaceConnections connections;
        connectInterface(connections);
        m_panelView = loadInterface(file.isNull() ? pluginBundle->path() + u"/interface/"_s +
                                                        thePDEName() + u".ui"_s
                                                  : file,
                                    connections)
                          .view.release();
    }
    return m_panelView;
}

void QXPrintQualityPDE::connectInterface(InterfaceConnections &connections)
{
    connections.bindingDictionary(effectContent);
    connections.localizer([this](const QString &key) { return localized(key); });
    connections.outlet(u"optionButton"_s, optionButton);
    connections.action(u"requestNewOutputBin"_s,
                       [this](QWidget *control) { requestNewOutputBin(control); });
    connections.action(u"toggleShowOption"_s, [this](QWidget *button) {
        toggleShowOption(button);
        // A host restores a panel that is shown again. Without this it would close what was opened.
        saveOptionState();
    });
    connections.action(u"showHelpFile"_s, [this](QWidget *sender) { showHelpFile(sender); });
}

void QXPrintQualityPDE::willShow()
{
    setMode(kModePanelShown, true);
    checkColorSync();
    checkFax();
    initializePopup();
}

bool QXPrintQualityPDE::shouldHide()
{
    setMode(kModePanelShown, false);
    return true;
}

bool QXPrintQualityPDE::restoreValuesAndReturnError(QString *)
{
    checkFax();
    setDefaults();
    restoreMarkedChoices();
    checkColorSync();
    restoreOptionState();
    checkConstraints();
    if (popupInited)
        updateUI();
    saveAllValues();
    return true;
}

void QXPrintQualityPDE::loadPPDKeys(const QString &entry)
{
    if (PPDKeys || !pluginBundle)
        return;
    const std::optional<QStringList> keywords = pluginBundle->infoStringList(entry);
    if (!keywords)
        qCWarning(lcPanel).noquote() << pluginBundle->path() + u"/info.json:"_s
                                     << "a list of texts was expected under" << entry;
    setPPDKeys(keywords);
}

void QXPrintQualityPDE::restoreMarkedChoices()
{
    for (const QString &keyword : PPDKeys.value_or(QStringList())) {
        if (const ppd_choice_t *marked = ppdMarkedChoice(ppd, keyword))
            m_outputBin.insert(keyword, ppdKeyword(marked->choice));
        else if (const ppd_option_t *option = ppdOption(ppd, keyword))
            m_outputBin.insert(keyword, ppdKeyword(option->defchoice));
    }
}

bool QXPrintQualityPDE::saveValuesAndReturnError(QString *)
{
    // Nothing to do: each choice was written when it changed. The panels write their own entries.
    return true;
}

void QXPrintQualityPDE::saveAllValues()
{
    if (!popupInited)
        return;
    getUIValues();
    saveOptionState();
}

bool QXPrintQualityPDE::shouldPrint()
{
    checkFax();
    if (hasMode(kModeFaxOutput))
        return true;
    if (paperName == kUnsupportedPaper) {
        showUnsupportedPaperAlert();
        return false;
    }
    saveValuesAndReturnError(nullptr);
    return true;
}

void QXPrintQualityPDE::showUnsupportedPaperAlert()
{
    if (!pdePluginCallbackObject->respondsTo(PDECallbackOperation::alertPresenter)) {
        qCWarning(lcPanel) << "the paper is not supported, and the host can show no alert";
        return;
    }
    const QString message = u"%1\n\n%2\n%3\n%4"_s.arg(
        localized(u"Unsupported Paper MSG1"_s), localized(u"Unsupported Paper MSG2"_s),
        localized(u"Unsupported Paper MSG3"_s), localized(u"Unsupported Paper MSG4"_s));
    Alert alert;
    alert.style = Alert::Style::Warning;
    alert.messageText = localized(u"Unsupported Paper Title"_s);
    // The alert takes its message as a format string.
    alert.informativeText = formattedWithoutArguments(message);
    alert.buttons = {localized(u"OK"_s)};
    pdePluginCallbackObject->alertPresenter()->runModal(alert, m_panelView);
}

void QXPrintQualityPDE::setDefaults() {}

void QXPrintQualityPDE::chechModelName() {}

void QXPrintQualityPDE::changeResolutionLetterB() {}

void QXPrintQualityPDE::setMode(ImageMode mode, bool on)
{
    m_imageModeFlag =
        static_cast<std::int16_t>(on ? m_imageModeFlag | mode : m_imageModeFlag & ~mode);
}

PMPrintSettings QXPrintQualityPDE::printSettings() const
{
    if (!pdePluginCallbackObject ||
        !pdePluginCallbackObject->respondsTo(PDECallbackOperation::printSettings))
        return nullptr;
    return pdePluginCallbackObject->printSettings();
}

bool QXPrintQualityPDE::askHost(const QString &keyword, const QString &choice)
{
    return pdePluginCallbackObject->willChangePPDOptionKeyValue_ppdChoice(keyword, choice);
}

QString QXPrintQualityPDE::localized(const QString &key) const
{
    return pluginBundle ? pluginBundle->localizedStringOrKey(key) : key;
}

void QXPrintQualityPDE::setEffectContent(const QString &key, const QVariant &value)
{
    if (effectContent)
        effectContent->setValue(key, value);
}

} // namespace corvana
