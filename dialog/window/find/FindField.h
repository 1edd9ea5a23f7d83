#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

#include "dialog/window/find/FindModel.h"

class QLineEdit;
class QToolButton;

namespace corvana {

class FindPopup;

/// The field in which a setting is searched for, with the list of what was found above it. Where it
/// has no room it is a button, and the field stands above the list.
///
/// Enter goes to what is highlighted; with an empty field it is left to the window. Escape empties
/// the field, then gives the focus back to where it was. It knows no setting: it says what is
/// searched for and shows what it is given.
class FindField : public QWidget
{
    Q_OBJECT

public:
    explicit FindField(QWidget *parent = nullptr);

    /// Puts the focus into the field, wherever it is.
    void activate();
    /// What was found for the text in the field.
    void setResults(const QList<FindResult> &results);
    /// Nothing was, and why. `suggestion`: a text for which something is found, which Enter takes;
    /// may be empty.
    void setNothingFound(const QString &text, const QString &suggestion = {});
    /// Searches anew where results are shown: other ones may be there.
    void refresh();
    /// The user has gone to what was found.
    void finish();
    /// Only a window that is on the screen looks through the folders of themes.
    void takeIconFromTheme();
    /// Its controls in the order in which Tab reaches them.
    QList<QWidget *> focusOrder() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Another text is searched for, or the same one anew. Never an empty one.
    void searched(const QString &text);
    /// The user picked a result, by its number.
    void picked(int row);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool handleKey(int key, Qt::KeyboardModifiers modifiers);
    bool takeReturn();
    bool takeEscape();
    void search();
    void setNarrow(bool narrow);
    void openPopup();
    void closePopup();
    FindPopup *popup();

    QLineEdit *m_edit;
    QToolButton *m_button = nullptr;
    FindPopup *m_popup = nullptr;
    QObject *m_watch = nullptr; // of presses beside the open list, which close it
    QPointer<QWidget> m_before; // what had the focus
    QString m_suggestion;
    bool m_isNarrow = false;
};

} // namespace corvana
