#pragma once

#include <QRect>
#include <QString>
#include <QWidget>

#include "dialog/window/pages/ListedOptions.h"
#include "dialog/window/pages/ShownChanges.h"

class QAction;
class QLabel;
class QLineEdit;

namespace corvana {

class ChoiceDelegate;
class OptionsFilter;
class OptionsModel;
class OptionsView;
class PpdSession;

/// Options of a printer in the groups, the order and the words of its PPD: every one that the
/// General page does not offer, for printers that no panel knows; or all of them, where panels
/// leave some out.
///
/// It shows the session and proposes changes; it changes nothing itself.
class OptionsPage : public QWidget
{
    Q_OBJECT

public:
    /// Borrows the session, and the plug-in's values.
    explicit OptionsPage(PpdSession &session, const ListedOptions &listed = {},
                         QWidget *parent = nullptr);
    ~OptionsPage() override;

    /// Whether a session has any option for this page.
    static bool hasOptions(const PpdSession &session);

    /// Shows the session's marks.
    void refresh();
    /// Marks the options that were changed, and offers to take them back to that.
    void showChanges(const ShownChanges &changes);
    /// Takes what is being edited. False when that is not possible: the page says why, and the
    /// editor keeps it.
    bool finishEditing();
    /// Shows an option, whatever was searched for, and puts the focus on it. Answers what shows it,
    /// and where in that; null for an option that is not listed.
    struct Row
    {
        QWidget *view = nullptr;
        QRect place{};
    };
    Row goTo(const QString &keyword);
    /// Puts the focus where something is being edited.
    void focusEditor();

Q_SIGNALS:
    /// The user picked a choice, or entered a value (`Custom.…`) that the option allows.
    void proposed(const QString &keyword, const QString &choice);
    /// The user wants a changed option back. Only where showChanges() said to what.
    void resetWanted(const QString &keyword);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildSearch();
    void buildList();
    void search(const QString &text);
    void goToList();
    void updateReset();
    void resetCurrent();
    void say(const QString &text, bool aloud);

    OptionsModel *m_model;
    OptionsFilter *m_filter;
    QLineEdit *m_search;
    OptionsView *m_view;
    ChoiceDelegate *m_delegate;
    QAction *m_reset;
    bool m_knowsBase = false; // where a changed option goes back to
    QLabel *m_hint;
};

} // namespace corvana
