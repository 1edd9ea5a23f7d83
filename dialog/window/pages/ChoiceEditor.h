#pragma once

#include <optional>

#include <QString>
#include <QWidget>

#include "dialog/session/CustomValue.h"

class QComboBox;
class QLineEdit;

namespace corvana {

class OptionValues;
class PpdSession;

/// The choices of one option, in its row: a pop-up, and a field behind it while the choice is a
/// value of the user's own. Choices that collide with what is set are shown weaker, and say with
/// what; they can be picked all the same, since a refusal comes with a way out.
class ChoiceEditor : public QWidget
{
    Q_OBJECT

public:
    /// Borrows the session and its option, and what the options are at.
    ChoiceEditor(PpdSession &session, const OptionValues &values, ppd_option_t *option,
                 QWidget *parent);
    ~ChoiceEditor() override;

    QString keyword() const { return m_keyword; }
    /// Shows what the option is at, whatever was picked or typed.
    void showMark();
    /// Starts with a value that was typed earlier and could not be taken.
    void showDraft(const QString &text);
    void openList();

    /// Whether something was picked or typed that the session has not been told.
    bool isChanged() const;
    /// What was picked or typed, as a session takes it; nothing when that is not possible.
    std::optional<QString> choice() const;
    /// What was typed; null while no value of the user's own is chosen.
    QString typedText() const;
    /// Why choice() has nothing.
    QString problem() const;
    /// What can be entered; null while no value of the user's own is chosen.
    QString hint() const;

    /// Whether another control of the window has the focus.
    bool lostFocus() const;

    /// Leaves the editor: takes what was picked or typed, and is done unless that is impossible.
    void finish();
    /// From now on finish() does nothing: the view closes this.
    void setDone() { m_done = true; }

Q_SIGNALS:
    /// Take what was picked or typed.
    void committed();
    /// The user is done here.
    void finished();
    /// What hint() and problem() answer may be different now.
    void hintChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void addChoices();
    void addField();
    bool isCustom() const;
    void picked();
    void showField(bool shown);
    void focusMoved(QWidget *from, QWidget *to);
    bool isInside(const QWidget *widget) const;
    QString allowed() const;
    QString conflictNote(const QString &choice) const;

    PpdSession &m_session;
    const OptionValues &m_values;
    ppd_option_t *m_option;
    QString m_keyword;
    std::optional<CustomLimits> m_limits; // where the user can enter a value
    QComboBox *m_choices;
    QLineEdit *m_field = nullptr;
    bool m_changed = false;
    bool m_done = false;
};

} // namespace corvana
