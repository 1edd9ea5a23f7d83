#include "tests/e2e/WindowInvariants-checks.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QSpinBox>

#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/Summary.h"
#include "dialog/window/SettingsPages.h"
#include "dialog/window/pages/AttributeEditor.h"
#include "dialog/window/pages/GeneralPage.h"
#include "dialog/window/pages/NumberField.h"
#include "dialog/window/pages/OptionsModel.h"
#include "dialog/window/pages/OptionsPage.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"

using namespace Qt::StringLiterals;

namespace corvana::test {

namespace {

// Null for an option that the list does not have.
QString valueOf(const QList<JobOption> &options, const QString &name)
{
    for (const JobOption &option : options) {
        if (option.name == name)
            return option.value;
    }
    return {};
}

QString isShownAs(const QString &name, const QString &is, const QString &shown)
{
    return u"%1 is %2 and shown as %3"_s.arg(name, is, shown);
}

// Copies

// What is being typed is not taken yet, and what is refused is said.
QString copiesFault(const GeneralPage &general, PrintTask &task)
{
    const auto *copies = general.findChild<QSpinBox *>(u"copies"_s);
    if (!copies)
        return u"there is no field for the copies"_s;
    const int wanted = task.settings().copies();
    const auto *note = general.findChild<QLabel *>(u"copiesNote"_s);
    const bool isRefused = note && !note->text().isEmpty();
    return copies->hasFocus() || isRefused || copies->value() == wanted
               ? QString()
               : isShownAs(copies->objectName(), QString::number(wanted), copies->text());
}

// Options of the printer on the page General

QString optionsFault(const GeneralPage &general, const OpenedPrinter &printer)
{
    const PpdSession &session = *printer.session;
    const QStringList options = generalOptionsOf(session, printer.jobValues);
    for (const QString &keyword : options) {
        const auto *popUp = general.findChild<QComboBox *>(keyword);
        if (!popUp)
            continue;
        const QString shown = popup::representedObject(popUp, popUp->currentIndex()).toString();
        const QString marked = session.markedChoice(keyword);
        if (shown != marked)
            return isShownAs(keyword, marked, shown);
    }
    return {};
}

// Attributes of the job

// What was entered and refused stays, with the reason below it.
bool isRefused(const AttributeEditor &editor, const JobAttribute &attribute)
{
    const auto *note = editor.findChild<QLabel *>(attribute.name + u"Note"_s);
    return note && !note->isHidden();
}

// A word that nobody chose may have a name of its own.
QString wordFault(const QComboBox &words, const JobAttribute &attribute, const QString &value)
{
    const QString shown = popup::representedObject(&words, words.currentIndex()).toString();
    const bool isOther = !shown.isNull() && shown.isEmpty(); // to be entered beside it
    const bool isNone = shown.isNull() || shown == attribute.usual ||
                        words.currentText() == AttributeEditor::tr("Automatic");
    const bool isRight = isOther || (value.isNull() ? isNone : shown == value);
    return isRight ? QString() : isShownAs(QString(attribute.name), value, words.currentText());
}

QString numberFault(const NumberField &number, const JobAttribute &attribute, const QString &value)
{
    const QString wanted = value.isNull() ? QString(attribute.usual) : value;
    const bool isRight =
        wanted.isEmpty() ? number.isNone() : qFuzzyCompare(number.value(), wanted.toDouble());
    return isRight || number.hasFocus() ? QString()
                                        : isShownAs(QString(attribute.name), wanted, number.text());
}

QString attributesFault(const GeneralPage &general, const PrintTask &task)
{
    const QList<OfferedAttribute> offered = task.attributes();
    for (const OfferedAttribute &one : offered) {
        const JobAttribute &attribute = *jobAttribute(one.name);
        QWidget *control = general.findChild<QWidget *>(one.name);
        const QWidget *above = control ? control->parentWidget() : nullptr;
        while (above && !qobject_cast<const AttributeEditor *>(above))
            above = above->parentWidget();
        const auto *editor = qobject_cast<const AttributeEditor *>(above);
        if (!editor || isRefused(*editor, attribute))
            continue;
        QString fault;
        if (const auto *words = qobject_cast<QComboBox *>(control))
            fault = wordFault(*words, attribute, one.value);
        else if (const auto *number = qobject_cast<NumberField *>(control))
            fault = numberFault(*number, attribute, one.value);
        if (!fault.isNull())
            return fault;
    }
    return {};
}

// Controls of panels

// A medium that nobody is offered is shown as one that it resembles.
QString popUpFault(const QComboBox &popUp, const QString &keyword, const QString &marked)
{
    const QString shown = popup::representedObject(&popUp, popUp.currentIndex()).toString();
    const bool isOffered = popup::indexOfItemWithRepresentedObject(&popUp, marked) >= 0;
    return !isOffered || shown == marked ? QString() : isShownAs(keyword, marked, shown);
}

QString matrixFault(const RadioMatrix &matrix, const QString &keyword, const QString &marked)
{
    const QString shown = matrix.representedObject(matrix.selectedRow()).toString();
    bool isOffered = false;
    for (int row = 0; row < matrix.numberOfRows(); ++row)
        isOffered = isOffered || matrix.representedObject(row) == marked;
    return !isOffered || shown == marked ? QString() : isShownAs(keyword, marked, shown);
}

// A box that cannot be ticked counts as off, whatever it shows.
QString boxFault(const QCheckBox &box, const QString &keyword, const QString &marked)
{
    const bool isOn = marked == "ON"_L1 || marked == "True"_L1;
    return !isControlEnabled(&box) || box.isChecked() == isOn
               ? QString()
               : isShownAs(keyword, marked, box.isChecked() ? u"on"_s : u"off"_s);
}

// Of a value that the panel keeps itself. The default may have a name instead of a number.
QString sliderFault(const QSlider &slider, const PanelControl &control, const QString &value)
{
    const QString digits =
        value.startsWith(kCustomPrefix) ? value.mid(kCustomPrefix.size()) : value;
    bool isNumber = false;
    const int number = digits.toInt(&isNumber);
    if (!isNumber || !isControlEnabled(&slider))
        return {};
    if (slider.value() != number)
        return isShownAs(control.keyword, value, QString::number(slider.value()));
    for (const QWidget *companion : control.companions) {
        const auto *field = qobject_cast<const QLineEdit *>(companion);
        if (field && !field->hasFocus() && field->text() != QString::number(number))
            return isShownAs(control.keyword, value, field->text() + u" beside the slider"_s);
    }
    return {};
}

QString panelControlFault(const PanelControl &control, const PpdSession &session,
                          const QList<JobOption> &own)
{
    const QString marked = session.markedChoice(control.keyword);
    if (const auto *slider = qobject_cast<QSlider *>(control.control))
        return sliderFault(*slider, control, valueOf(own, control.keyword));
    if (const auto *popUp = qobject_cast<QComboBox *>(control.control))
        return popUpFault(*popUp, control.keyword, marked);
    if (const auto *matrix = qobject_cast<RadioMatrix *>(control.control))
        return matrixFault(*matrix, control.keyword, marked);
    if (const auto *box = qobject_cast<QCheckBox *>(control.control))
        return boxFault(*box, control.keyword, marked);
    return {};
}

} // namespace

QString generalFault(PrintWindow &window)
{
    const auto *general = window.findChild<GeneralPage *>();
    const OpenedPrinter *opened = settledPrinter(window);
    if (!general || !opened)
        return {};
    for (const QString &fault :
         {optionsFault(*general, *opened), copiesFault(*general, window.task())}) {
        if (!fault.isNull())
            return fault;
    }
    return attributesFault(*general, window.task());
}

QString optionListFault(PrintWindow &window)
{
    const auto *page = window.findChild<OptionsPage *>();
    const OpenedPrinter *opened = settledPrinter(window);
    if (!page || !page->isVisible() || !opened)
        return {};
    const auto *model = page->findChild<OptionsModel *>();
    const QList<JobOption> options = jobOptions(*opened->session, opened->jobValues, {});
    for (int group = 0; group < model->rowCount(); ++group) {
        const QModelIndex heading = model->index(group, OptionsModel::Title);
        for (int row = 0; row < model->rowCount(heading); ++row) {
            const QModelIndex place = model->index(row, OptionsModel::Choice, heading);
            const QString keyword = place.data(OptionsModel::KeywordRole).toString();
            const QString shown = place.data(Qt::EditRole).toString();
            const QString value = valueOf(options, keyword);
            // One without a value is in no job.
            if (!value.isNull() && shown != value && shown != kCustomPrefix + value)
                return isShownAs(keyword, value, shown);
        }
    }
    return {};
}

QString panelFault(PrintWindow &window)
{
    const auto *pages = qobject_cast<SettingsPages *>(window.findChild<QWidget *>(u"pages"_s));
    const OpenedPrinter *opened = settledPrinter(window);
    if (!pages || !opened)
        return {};
    PanelHost &panels = *opened->panels;
    const int panel = pages->currentPanel();
    if (panels.visiblePanel() != panel)
        return u"panel %1 is seen, and panel %2 is the visible one"_s.arg(panel).arg(
            panels.visiblePanel());
    QList<JobOption> own;
    if (panel >= 0 && opened->jobValues) {
        PrintSettings shown;
        shown.setEntries(panels.shownEntries());
        own = opened->jobValues->jobOptions(shown, opened->session->ppd());
    }
    const QList<PanelControl> controls = panels.controls(panel);
    for (const PanelControl &control : controls) {
        if (const QString fault = panelControlFault(control, *opened->session, own);
            !fault.isNull())
            return fault;
    }
    return {};
}

} // namespace corvana::test
