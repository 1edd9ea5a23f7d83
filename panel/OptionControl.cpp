#include "panel/OptionControl.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPixmap>
#include <QRadioButton>

#include "panel/ImageMode.h"
#include "panel/OptionKeywords.h"
#include "platform/foundation/Bundle.h"
#include "platform/toolkit/BindingDictionary.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/ProgrammaticChange.h"
#include "platform/toolkit/RadioMatrix.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcBinding, "corvana.panel.binding", QtWarningMsg)

namespace {

// Pop-ups with these tags want more than titles.
constexpr int kTagItemTexts = 5;   // the item texts also go into the binding dictionary
constexpr int kTagItemImages = 10; // each item gets a picture from the bundle

// Japanese post cards have media of their own, which the panels show as plain or glossy.
constexpr auto kNeverOfferedPrefix = "Hagaki"_L1;

// Radio buttons, one a choice.
class MatrixControl : public OptionControl
{
public:
    MatrixControl(RadioMatrix *matrix, const QString &keyword)
        : OptionControl(keyword), m_matrix(matrix)
    {
    }

    void fill(const ppd_option_t *option, const Surroundings &surroundings) override
    {
        if (!option)
            return;
        const int surplus = m_matrix->numberOfRows() - option->num_choices;
        // Row 0 and the last rows stay: the interface file lays those out for the choices that
        // every printer has.
        for (int row = surplus; row >= 1; --row)
            m_matrix->removeRow(row);
        for (int row = surplus; row < 0; ++row)
            m_matrix->addRow();
        for (int i = 0; i < option->num_choices; ++i) {
            m_matrix->setCellTitle(i, ppdText(option->choices[i].text).value_or(QString()));
            m_matrix->setRepresentedObject(i, ppdKeyword(option->choices[i].choice));
        }
        titleLabel(surroundings.label, option);
        m_matrix->setAccessibleName(ppdText(option->text).value_or(QString()));
    }

    bool show(const QVariant &choice) override
    {
        for (int row = 0; row < m_matrix->numberOfRows() && choice.isValid(); ++row) {
            if (m_matrix->representedObject(row) != choice)
                continue;
            m_matrix->selectRow(row);
            return true;
        }
        return false;
    }

    bool pick(const QString &choice) override
    {
        for (int row = 0; row < m_matrix->numberOfRows(); ++row) {
            QRadioButton *cell = m_matrix->cell(row);
            if (m_matrix->representedObject(row).toString() != choice || !cell->isEnabled())
                continue;
            cell->click();
            return true;
        }
        return false;
    }

    QStringList offeredTexts() const override
    {
        QStringList texts;
        for (int row = 0; row < m_matrix->numberOfRows(); ++row)
            texts += m_matrix->cellTitle(row);
        return texts;
    }

    std::optional<QString> chosen() const override
    {
        const QVariant choice = m_matrix->representedObject(m_matrix->selectedRow());
        return choice.isValid() ? std::optional(choice.toString()) : std::nullopt;
    }

private:
    RadioMatrix *m_matrix;
};

// A pop-up button, one item a choice.
class PopUpControl : public OptionControl
{
public:
    PopUpControl(QComboBox *popUp, const QString &keyword) : OptionControl(keyword), m_popUp(popUp)
    {
    }

    void fill(const ppd_option_t *option, const Surroundings &surroundings) override
    {
        popup::removeAllItems(m_popUp);
        if (!option)
            return;
        if (surroundings.label) {
            surroundings.label->show();
            titleLabel(surroundings.label, option);
        }
        QList<popup::Item> items;
        for (int i = 0; i < option->num_choices; ++i)
            collect(option->choices[i], items);
        popup::setItems(m_popUp, items);
        if (controlTag(m_popUp) == kTagItemTexts && surroundings.texts) {
            for (const popup::Item &item : std::as_const(items))
                surroundings.texts->setValue(item.object.toString(), item.title);
        }
        if (controlTag(m_popUp) == kTagItemImages && surroundings.bundle)
            setImages(*surroundings.bundle);
    }

    bool show(const QVariant &choice) override
    {
        const int item = popup::indexOfItemWithRepresentedObject(m_popUp, choice);
        if (item >= 0)
            popup::selectItemAt(m_popUp, item);
        return item >= 0;
    }

    // What an open list does when an item is clicked in it: the index changes, then it tells so.
    bool pick(const QString &choice) override
    {
        const int item = popup::indexOfItemWithRepresentedObject(m_popUp, choice);
        if (item < 0 || !isControlEnabled(m_popUp))
            return false;
        m_popUp->setCurrentIndex(item);
        Q_EMIT m_popUp->activated(item);
        return true;
    }

    QString substituteFor(const QString &stored) const override
    {
        if (keyword() != kQXMediaType)
            return {};
        return stored == kHagakiUra ? kGlossy : kPlain;
    }

    // A refused change of the medium leaves duplex plain paper as it was: shown as plain paper.
    QVariant choiceToRevertTo(const QVariant &stored) const override
    {
        const bool duplexPlain = keyword() == kQXMediaType && stored.toString() == kPlainDuplex;
        return duplexPlain ? QVariant(QString(kPlain)) : stored;
    }

    QStringList offeredTexts() const override
    {
        QStringList texts;
        for (int item = 0; item < m_popUp->count(); ++item)
            texts += m_popUp->itemText(item);
        return texts;
    }

    std::optional<QString> chosen() const override
    {
        const QVariant choice = popup::representedObject(m_popUp, m_popUp->currentIndex());
        return choice.isValid() ? std::optional(choice.toString()) : std::nullopt;
    }

    QStringList choicesToStore(std::int16_t modes) const override
    {
        if (keyword() == kQXMediaType && (modes & kModePlainDuplex) && chosen())
            return {kPlainDuplex};
        return OptionControl::choicesToStore(modes);
    }

private:
    void collect(const ppd_choice_t &offered, QList<popup::Item> &items) const
    {
        const QString choice = ppdKeyword(offered.choice);
        const std::optional<QString> text = ppdText(offered.text);
        if (!text) {
            qCWarning(lcBinding) << keyword() << choice << "is left out: its text is not UTF-8";
            return;
        }
        if (!text->startsWith(kNeverOfferedPrefix) && choice != kPlainDuplex)
            items += popup::Item{*text, choice};
    }

    void setImages(const Bundle &bundle)
    {
        for (int item = 0; item < m_popUp->count(); ++item) {
            const QString choice = popup::representedObject(m_popUp, item).toString();
            const QPixmap image(bundle.pathForResource(choice, u"tiff"_s));
            if (!image.isNull())
                popup::setItemImage(m_popUp, item, image);
        }
    }

    QComboBox *m_popUp;
};

// A check box: on or off, under whatever keywords its option has for the two.
class CheckBoxControl : public OptionControl
{
public:
    CheckBoxControl(QCheckBox *box, const QString &keyword) : OptionControl(keyword), m_box(box) {}

    void fill(const ppd_option_t *option, const Surroundings &surroundings) override
    {
        if (const auto text = option ? ppdText(option->text) : std::nullopt)
            m_box->setText(withoutMnemonic(*text));
        if (keyword() == kQXBiDir)
            m_box->setEnabled((surroundings.modes & kModeNoTonerSave) == 0);
    }

    bool show(const QVariant &choice) override
    {
        const ProgrammaticChange change;
        const QString stored = choice.toString();
        m_box->setChecked(stored == kChoiceOn || stored == kChoiceTrue);
        return true; // off stands for every other choice
    }

    bool pick(const QString &choice) override
    {
        if (!isControlEnabled(m_box) ||
            (choice != stateChoice(true) && choice != stateChoice(false)))
            return false;
        if (chosen() != choice)
            m_box->click();
        return true;
    }

    std::optional<QString> chosen() const override { return stateChoice(m_box->isChecked()); }

    // A box that cannot be ticked counts as off, whatever it shows; slow drying and fax keep what
    // was chosen.
    QStringList choicesToStore(std::int16_t modes) const override
    {
        QStringList choices = OptionControl::choicesToStore(modes);
        if (!isControlEnabled(m_box) && keyword() != kQXSlowDrying && !(modes & kModeFaxOutput))
            choices += stateChoice(false);
        return choices;
    }

private:
    QString stateChoice(bool on) const
    {
        if (keyword() == kMirrorPrint)
            return on ? kChoiceTrue : kChoiceFalse;
        return on ? kChoiceOn : kChoiceOff;
    }

    QCheckBox *m_box;
};

} // namespace

std::unique_ptr<OptionControl> OptionControl::of(QWidget *widget, const QString &keyword)
{
    if (auto *matrix = qobject_cast<RadioMatrix *>(widget))
        return std::make_unique<MatrixControl>(matrix, keyword);
    if (auto *popUp = qobject_cast<QComboBox *>(widget))
        return std::make_unique<PopUpControl>(popUp, keyword);
    if (auto *box = qobject_cast<QCheckBox *>(widget))
        return std::make_unique<CheckBoxControl>(box, keyword);
    return nullptr;
}

QString OptionControl::substituteFor(const QString &) const
{
    return {};
}

QStringList OptionControl::choicesToStore(std::int16_t) const
{
    const std::optional<QString> choice = chosen();
    return choice ? QStringList{*choice} : QStringList();
}

bool isTextField(const QWidget *label)
{
    return qobject_cast<const QLabel *>(label) || qobject_cast<const QLineEdit *>(label);
}

void titleLabel(QWidget *label, const ppd_option_t *option)
{
    const std::optional<QString> text = ppdText(option->text);
    if (!text)
        return;
    if (auto *box = qobject_cast<QGroupBox *>(label))
        box->setTitle(withoutMnemonic(*text));
    else if (auto *textLabel = qobject_cast<QLabel *>(label))
        setLiteralText(textLabel, asTitle(*text) + u' ');
    else if (auto *field = qobject_cast<QLineEdit *>(label))
        field->setText(asTitle(*text) + u' ');
}

} // namespace corvana
