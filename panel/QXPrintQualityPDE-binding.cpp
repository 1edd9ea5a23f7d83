#include "panel/QXPrintQualityPDE.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPixmap>

#include "panel/OptionKeywords.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/LabelColor.h"
#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/ProgrammaticChange.h"
#include "platform/toolkit/RadioMatrix.h"
#include "platform/toolkit/Windows.h"

namespace corvana {

Q_LOGGING_CATEGORY(lcBinding, "corvana.panel.binding", QtWarningMsg)

namespace {

// Pop-ups with these tags want more than titles.
constexpr int kTagItemTexts = 5;   // the item texts also go into the binding dictionary
constexpr int kTagItemImages = 10; // each item gets a picture from the bundle

// Japanese post cards have media of their own, which this panel shows as plain or glossy.
constexpr QLatin1StringView kNeverOfferedPrefix{"Hagaki"};

bool isTextField(const QWidget *label)
{
    return qobject_cast<const QLabel *>(label) || qobject_cast<const QLineEdit *>(label);
}

// Unchecked is what a control shows for every stored value but these.
bool isOnChoice(const QString &choice)
{
    return choice == kChoiceOn || choice == kChoiceTrue;
}

QString stateChoice(const QString &keyword, bool on)
{
    if (keyword == kMirrorPrint)
        return on ? kChoiceTrue : kChoiceFalse;
    return on ? kChoiceOn : kChoiceOff;
}

void setChecked(QCheckBox *box, bool on)
{
    const ProgrammaticChange change;
    box->setChecked(on);
}

// The first row that carries the choice, or -1.
int rowOfChoice(const RadioMatrix *matrix, const QVariant &choice)
{
    for (int row = 0; row < matrix->numberOfRows(); ++row) {
        if (choice.isValid() && matrix->representedObject(row) == choice)
            return row;
    }
    return -1;
}

// The choice keyword that the control stands at; nothing when it stands at none, or is of a kind
// that carries no choices.
std::optional<QString> chosenChoice(QWidget *control, const QString &keyword)
{
    QVariant chosen;
    if (const auto *matrix = qobject_cast<RadioMatrix *>(control))
        chosen = matrix->representedObject(matrix->selectedRow());
    else if (const auto *popUp = qobject_cast<QComboBox *>(control))
        chosen = popup::representedObject(popUp, popUp->currentIndex());
    else if (const auto *box = qobject_cast<QCheckBox *>(control))
        chosen = stateChoice(keyword, box->isChecked());
    return chosen.isValid() ? std::optional(chosen.toString()) : std::nullopt;
}

} // namespace

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
        ppd_option_t *option = ppdOption(ppd, keyword);
        if (auto *matrix = qobject_cast<RadioMatrix *>(control)) {
            fillMatrix(matrix, option);
        } else if (auto *popUp = qobject_cast<QComboBox *>(control)) {
            fillPopUp(popUp, option);
        } else if (auto *box = qobject_cast<QCheckBox *>(control)) {
            const auto text = option ? ppdText(option->text) : std::nullopt;
            if (text)
                box->setText(withoutMnemonic(*text));
            if (keyword == kQXBiDir)
                box->setEnabled(!hasMode(kModeNoTonerSave));
        }
    }
    setEffectContent(optionName(), false);
    setMode(kModeHelpRegistered, registerHelp());
    popupInited = true;
}

void QXPrintQualityPDE::fillMatrix(RadioMatrix *matrix, ppd_option_t *option)
{
    if (!option)
        return;
    const int surplus = matrix->numberOfRows() - option->num_choices;
    // Row 0 and the last rows stay: the interface file lays those out for the choices that every
    // printer has.
    for (int row = surplus; row >= 1; --row)
        matrix->removeRow(row);
    for (int row = surplus; row < 0; ++row)
        matrix->addRow();
    for (int i = 0; i < option->num_choices; ++i) {
        matrix->setCellTitle(i, ppdText(option->choices[i].text).value_or(QString()));
        matrix->setRepresentedObject(i, ppdKeyword(option->choices[i].choice));
    }
    titleLabel(determineLabel(ppdKeyword(option->keyword)), option);
    matrix->setAccessibleName(ppdText(option->text).value_or(QString()));
}

void QXPrintQualityPDE::fillPopUp(QComboBox *popUp, ppd_option_t *option)
{
    popup::removeAllItems(popUp);
    if (!option)
        return;
    if (QWidget *label = determineLabel(ppdKeyword(option->keyword))) {
        label->show();
        titleLabel(label, option);
    }
    for (int i = 0; i < option->num_choices; ++i) {
        const QString choice = ppdKeyword(option->choices[i].choice);
        const std::optional<QString> text = ppdText(option->choices[i].text);
        if (!text) {
            qCWarning(lcBinding) << option->keyword << choice
                                 << "is left out: its text is not UTF-8";
            continue;
        }
        if (text->startsWith(kNeverOfferedPrefix) || choice == kPlainDuplex)
            continue;
        popup::addItemWithTitle(popUp, *text);
        const int item = popup::indexOfItemWithTitle(popUp, *text);
        popup::setRepresentedObject(popUp, item, choice);
        if (controlTag(popUp) == kTagItemTexts) {
            setEffectContent(choice, *text);
        } else if (controlTag(popUp) == kTagItemImages && pluginBundle) {
            const QPixmap image(pluginBundle->pathForResource(choice, QStringLiteral("tiff")));
            if (!image.isNull())
                popup::setItemImage(popUp, item, image);
        }
    }
}

void QXPrintQualityPDE::titleLabel(QWidget *label, const ppd_option_t *option)
{
    const std::optional<QString> text = ppdText(option->text);
    if (!text)
        return;
    if (auto *box = qobject_cast<QGroupBox *>(label))
        box->setTitle(withoutMnemonic(*text));
    else if (auto *textLabel = qobject_cast<QLabel *>(label))
        setLiteralText(textLabel, *text + QStringLiteral(": "));
    else if (auto *field = qobject_cast<QLineEdit *>(label))
        field->setText(*text + QStringLiteral(": "));
}

void QXPrintQualityPDE::updateUI()
{
    // Before, so that no rule of a keyword meets a state of the former choices; after, because such
    // rules (toner save, the manual sleep time) decide what can be used.
    checkUIConstraints();
    for (const QString &keyword : PPDKeys.value_or(QStringList()))
        updateUIforKey(keyword);
    checkUIConstraints();
}

void QXPrintQualityPDE::updateUIforKey(const QString &keyword)
{
    QWidget *control = determineUI(keyword);
    const QVariant stored = m_outputBin.value(keyword);
    if (auto *matrix = qobject_cast<RadioMatrix *>(control)) {
        const int row = rowOfChoice(matrix, stored);
        if (row >= 0)
            matrix->selectRow(row);
    } else if (auto *popUp = qobject_cast<QComboBox *>(control)) {
        const int item = popup::indexOfItemWithRepresentedObject(popUp, stored);
        if (item >= 0)
            popup::selectItemAt(popUp, item);
        else if (keyword == kQXMediaType)
            showSubstituteMediaType(popUp, stored.toString());
    } else if (auto *box = qobject_cast<QCheckBox *>(control)) {
        setChecked(box, isOnChoice(stored.toString()));
    }
}

void QXPrintQualityPDE::showSubstituteMediaType(QComboBox *popUp, const QString &stored)
{
    const QString substitute = stored == kHagakiUra ? kGlossy : kPlain;
    const int item = popup::indexOfItemWithRepresentedObject(popUp, QVariant(substitute));
    if (item < 0)
        return;
    popup::selectItemAt(popUp, item);
    // Duplex plain paper is shown as plain paper and stays what it is.
    if (stored != kPlainDuplex)
        setAndMarkValue_forKey(substitute, kQXMediaType);
}

void QXPrintQualityPDE::revertUI_forKey(QWidget *control, const QString &keyword)
{
    const QVariant stored = m_outputBin.value(keyword);
    if (auto *matrix = qobject_cast<RadioMatrix *>(control)) {
        const int row = rowOfChoice(matrix, stored);
        if (row >= 0)
            matrix->selectRow(row);
    } else if (auto *popUp = qobject_cast<QComboBox *>(control)) {
        const bool duplexPlain = keyword == kQXMediaType && stored.toString() == kPlainDuplex;
        const int item = popup::indexOfItemWithRepresentedObject(
            popUp, duplexPlain ? QVariant(QString(kPlain)) : stored);
        if (item >= 0)
            popup::selectItemAt(popUp, item);
    } else if (auto *box = qobject_cast<QCheckBox *>(control)) {
        setChecked(box, isOnChoice(stored.toString()));
    }
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
    if (const std::optional<QString> choice = chosenChoice(control, keyword)) {
        if (askHost(keyword, *choice)) {
            m_outputBin.insert(keyword, *choice);
            updateUIforKey(keyword);
        } else {
            revertUI_forKey(control, keyword);
        }
    }
    saveAllValues();
}

void QXPrintQualityPDE::getUIValues()
{
    checkUIConstraints();
    for (const QString &keyword : PPDKeys.value_or(QStringList())) {
        QWidget *control = determineUI(keyword);
        const std::optional<QString> choice = chosenChoice(control, keyword);
        if (!choice)
            continue;
        const bool plainDuplex = qobject_cast<QComboBox *>(control) && hasMode(kModePlainDuplex) &&
                                 keyword == kQXMediaType;
        setAndMarkValue_forKey(plainDuplex ? kPlainDuplex : *choice, keyword);
        // A box that cannot be ticked counts as off, whatever it shows; slow drying and fax keep
        // what was chosen.
        if (qobject_cast<QCheckBox *>(control) && !isControlEnabled(control) &&
            keyword != kQXSlowDrying && !hasMode(kModeFaxOutput))
            setAndMarkValue_forKey(stateChoice(keyword, false), keyword);
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
