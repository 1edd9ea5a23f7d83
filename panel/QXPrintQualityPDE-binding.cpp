#include "panel/QXPrintQualityPDE.h"

#include "panel/OptionControl.h"
#include "panel/OptionKeywords.h"
#include "platform/toolkit/LabelColor.h"
#include "platform/toolkit/Windows.h"

namespace corvana {

void QXPrintQualityPDE::setPPDKeys(const std::optional<QStringList> &keywords)
{
    if (!keywords)
        return;
    QStringList defined;
    for (const QString &keyword : *keywords) {
        if (ppdOption(ppd, keyword))
            defined += keyword;
    }
    PPDKeys = defined;
}

std::optional<QStringList> QXPrintQualityPDE::supportedPPDOptionKeys()
{
    return PPDKeys;
}

std::optional<QStringList> QXPrintQualityPDE::availablePPDOptionKeys()
{
    return supportedPPDOptionKeys();
}

void QXPrintQualityPDE::initializePopup()
{
    if (QWidget *window = keyWindow(m_panelView)) {
        const QString closing = QLatin1StringView(kWindowWillCloseNotification);
        postNotificationWhenClosing(window);
        NotificationCenter::defaultCenter().addObserver(
            this, closing, window,
            [this](const Notification &notification) { removeNotificationObserver(notification); });
    }
    for (const QString &keyword : PPDKeys.value_or(QStringList())) {
        QWidget *control = determineUI(keyword);
        if (!control)
            continue;
        control->show();
        if (const auto bound = OptionControl::of(control, keyword))
            bound->fill(ppdOption(ppd, keyword), {determineLabel(keyword), effectContent,
                                                  pluginBundle.get(), m_imageModeFlag});
    }
    setEffectContent(optionName(), false);
    setMode(kModeHelpRegistered, registerHelp());
    popupInited = true;
}

void QXPrintQualityPDE::updateUI()
{
    // The rules run twice. The first run removes what the former choices left. The second one is
    // needed because showing a choice may change a rule (toner save, the manual sleep time).
    checkUIConstraints();
    for (const QString &keyword : PPDKeys.value_or(QStringList()))
        updateUIforKey(keyword);
    checkUIConstraints();
}

void QXPrintQualityPDE::updateUIforKey(const QString &keyword)
{
    const auto control = OptionControl::of(determineUI(keyword), keyword);
    const QVariant stored = m_outputBin.value(keyword);
    if (!control || control->show(stored))
        return;
    const QString substitute = control->substituteFor(stored.toString());
    if (substitute.isNull() || !control->show(substitute))
        return;
    // Duplex plain paper is shown as plain paper and stays what it is.
    if (stored.toString() != kPlainDuplex)
        setAndMarkValue_forKey(substitute, keyword);
}

void QXPrintQualityPDE::revertUI_forKey(QWidget *control, const QString &keyword)
{
    if (const auto bound = OptionControl::of(control, keyword))
        bound->show(bound->choiceToRevertTo(m_outputBin.value(keyword)));
}

bool QXPrintQualityPDE::setAndMarkValue_forKey(const QString &choice, const QString &keyword)
{
    if (keyword.isNull() || m_outputBin.value(keyword) == QVariant(choice))
        return false;
    if (!askHost(keyword, choice))
        return false;
    m_outputBin.insert(keyword, choice);
    return true;
}

void QXPrintQualityPDE::requestNewOutputBin(QWidget *control)
{
    const QString keyword = determineKey(control);
    const auto bound = OptionControl::of(control, keyword);
    if (const auto choice = bound ? bound->chosen() : std::nullopt) {
        if (askHost(keyword, *choice)) {
            m_outputBin.insert(keyword, *choice);
            updateUIforKey(keyword);
        } else {
            revertUI_forKey(control, keyword);
        }
    }
    saveAllValues();
}

bool QXPrintQualityPDE::chooseAsUser(const QString &keyword, const QString &choice)
{
    if (!m_panelView || !PPDKeys || !PPDKeys->contains(keyword))
        return false;
    const auto control = OptionControl::of(determineUI(keyword), keyword);
    return control && control->pick(choice);
}

QList<PanelControl> QXPrintQualityPDE::controls()
{
    QList<PanelControl> found;
    for (const QString &keyword : PPDKeys.value_or(QStringList())) {
        if (const auto control = boundControl(keyword))
            found += *control;
    }
    return found;
}

std::optional<PanelControl> QXPrintQualityPDE::boundControl(const QString &keyword)
{
    QWidget *widget = popupInited ? determineUI(keyword) : nullptr;
    const ppd_option_t *option = ppdOption(ppd, keyword);
    if (!widget || !option || !PPDKeys || !PPDKeys->contains(keyword))
        return {};
    const auto bound = OptionControl::of(widget, keyword);
    return PanelControl{.keyword = keyword,
                        .text = ppdText(option->text).value_or(keyword),
                        .choices = bound ? bound->offeredTexts() : QStringList(),
                        .control = widget,
                        .label = determineLabel(keyword)};
}

void QXPrintQualityPDE::getUIValues()
{
    checkUIConstraints();
    for (const QString &keyword : PPDKeys.value_or(QStringList())) {
        const auto control = OptionControl::of(determineUI(keyword), keyword);
        const QStringList choices =
            control ? control->choicesToStore(m_imageModeFlag) : QStringList();
        for (const QString &choice : choices)
            setAndMarkValue_forKey(choice, keyword);
    }
}

void QXPrintQualityPDE::PPDOptionKeyValueDidChange_ppdChoice(const QString &keyword,
                                                             const QString &choice)
{
    if (!PPDKeys || !PPDKeys->contains(keyword))
        return;
    m_outputBin.insert(keyword, choice);
    if (m_panelView)
        updateUIforKey(keyword);
}

void QXPrintQualityPDE::checkConstraints() {}

void QXPrintQualityPDE::checkUIConstraints()
{
    QList<QWidget *> controls;
    QList<QWidget *> labels;
    for (const QString &keyword : PPDKeys.value_or(QStringList())) {
        if (QWidget *control = determineUI(keyword))
            controls += control;
        if (QWidget *label = determineLabel(keyword); label && isTextField(label))
            labels += label;
    }
    const bool usable = !hasMode(kModeFaxOutput);
    setEffectContent(kQXOutput, usable);
    for (QWidget *control : std::as_const(controls))
        control->setEnabled(usable);
    for (QWidget *label : std::as_const(labels))
        setTextColor(label, usable ? ControlTextColor::Normal : ControlTextColor::Disabled);
}

void QXPrintQualityPDE::checkFax()
{
    const ppd_choice_t *output = ppdMarkedChoice(ppd, kQXOutput);
    setMode(kModeFaxOutput, output && ppdKeyword(output->choice) == kFax);
}

void QXPrintQualityPDE::checkColorSync()
{
    if (!ppd || !ppdFindAttr(ppd, kSupportsCustomColorMatching, nullptr)) {
        setMode(kModeColorSync, false);
        return;
    }
    const PMPrintSettings settings = printSettings();
    if (!settings)
        return;
    QVariant matching;
    const bool byApplication =
        PMPrintSettingsGetValue(settings, kColorMatchingMode, &matching) == kPMNoError &&
        matching == QVariant(QString(kApplicationColorMatching));
    setMode(kModeColorSync, !byApplication);
}

QVariantMap QXPrintQualityPDE::summaryInfo()
{
    QVariantMap summary;
    QStringList order;
    restoreValuesAndReturnError(nullptr);
    for (const QString &keyword : availablePPDOptionKeys().value_or(QStringList())) {
        ppd_option_t *option = ppdOption(ppd, keyword);
        const std::optional<QString> title = option ? ppdText(option->text) : std::nullopt;
        const QString value = choiceText(option, m_outputBin.value(keyword).toString());
        if (!title || value.isNull())
            continue;
        summary.insert(*title, value);
        order += *title;
    }
    summary.insert(QLatin1StringView(kSummaryDisplayOrder), order);
    return summary;
}

QString QXPrintQualityPDE::choiceText(ppd_option_t *option, const QString &choice) const
{
    if (choice == kChoiceOn || choice == kChoiceTrue)
        return localized(kChoiceOn);
    if (choice == kChoiceOff || choice == kChoiceFalse)
        return localized(kChoiceOff);
    const ppd_choice_t *found = ppdChoice(option, choice);
    return found ? ppdText(found->text).value_or(QString()) : QString();
}

QWidget *QXPrintQualityPDE::determineUI(const QString &)
{
    return nullptr;
}

QWidget *QXPrintQualityPDE::determineLabel(const QString &)
{
    return nullptr;
}

QString QXPrintQualityPDE::determineKey(QWidget *)
{
    return {};
}

} // namespace corvana
