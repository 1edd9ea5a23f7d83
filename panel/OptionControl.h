#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include <QString>
#include <QStringList>
#include <QVariant>

#include "platform/printcore/Ppd.h"

class QWidget;

namespace corvana {

class BindingDictionary;
class Bundle;

/// The control of an option, whatever its kind: it moves a choice to its widget and back. A new
/// kind of control is a new class here; the panels know none of them.
///
/// Made for one piece of work and thrown away. Ownership: the widget is the view's.
class OptionControl
{
public:
    /// The control of the option `keyword` that `widget` is.
    /// Errors: null for null and for a widget that carries no choices.
    static std::unique_ptr<OptionControl> of(QWidget *widget, const QString &keyword);

    virtual ~OptionControl() = default;

    /// What a control needs of its panel to be filled.
    struct Surroundings
    {
        QWidget *label = nullptr;           ///< titles the control; null for none
        BindingDictionary *texts = nullptr; ///< takes the texts of items that are bound
        const Bundle *bundle = nullptr;     ///< has the pictures of items
        std::int16_t modes = 0;             ///< ImageMode
    };
    /// Gives the control the choices and texts of its option; null where the PPD lacks it.
    virtual void fill(const ppd_option_t *option, const Surroundings &surroundings) = 0;

    /// Shows a choice. Errors: false, and nothing changes, where the control has none like it.
    virtual bool show(const QVariant &choice) = 0;
    /// Chooses as the user does, so that the action of the control runs. Errors: false where the
    /// control does not offer the choice, or is disabled.
    virtual bool pick(const QString &choice) = 0;
    /// The choice to show in place of a stored one that the control does not have; null for none.
    virtual QString substituteFor(const QString &stored) const;
    /// The choice to show when a change was refused and `stored` is what counts.
    virtual QVariant choiceToRevertTo(const QVariant &stored) const { return stored; }

    /// The texts of the choices that the user can pick from; none for a box.
    virtual QStringList offeredTexts() const { return {}; }
    /// The choice that the control stands at; nothing when it stands at none.
    virtual std::optional<QString> chosen() const = 0;
    /// The choices to store, one after the other, for what the control stands at.
    virtual QStringList choicesToStore(std::int16_t modes) const;

protected:
    explicit OptionControl(const QString &keyword) : m_keyword(keyword) {}
    const QString &keyword() const { return m_keyword; }

private:
    QString m_keyword;
};

/// Shows an option's text in its label or as the title of its box; a text that is not UTF-8 changes
/// nothing.
void titleLabel(QWidget *label, const ppd_option_t *option);

/// Whether a label is a text, whose colour can be set; a box is none.
bool isTextField(const QWidget *label);

} // namespace corvana
