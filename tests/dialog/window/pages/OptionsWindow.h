#pragma once

#include <memory>

#include <QDialog>
#include <QTreeView>

#include "dialog/window/pages/ChoiceEditor.h"
#include "dialog/window/pages/OptionsModel.h"
#include "dialog/window/pages/OptionsPage.h"
#include "tests/dialog/support/TestPrinters.h"

class QComboBox;
class QLineEdit;

namespace corvana::test {

/// The page with all options in a window that has a default button, and what a person does there
/// with keys and clicks. Tests of the page derive from it.
class OptionsWindow
{
protected:
    OptionsWindow();
    ~OptionsWindow();

    /// Opens the page for a printer with these choices. What is proposed is tried.
    void open(const PpdBuilder &ppd, const QList<OptionChoice> &marks = {});
    void close();

    /// The cell with the choice of an option; invalid when the option is not there.
    QModelIndex option(const QString &keyword) const;
    /// The keyword of the current row.
    QString current() const;
    /// What the row of an option says.
    QString shown(const QString &keyword) const { return option(keyword).data().toString(); }
    void go(const QString &keyword);
    void clickOn(const QModelIndex &index);

    /// What is open in the list; null when it is not.
    ChoiceEditor *editor() const;
    QComboBox *choices() const;
    QLineEdit *field() const;
    static QWidget *openList();

    QLineEdit *search() const;
    /// What stands below the list; null when nothing does.
    QString hint() const;

    /// To whatever has the focus.
    static void key(Qt::Key key);
    static void type(const QString &text);
    /// Opens the field of an option for a value of the user's own.
    void openField(const QString &keyword);

    std::unique_ptr<PpdSession> m_session;
    std::unique_ptr<QDialog> m_window;
    OptionsPage *m_page = nullptr;
    QTreeView *m_list = nullptr;
    QStringList m_proposed; // "Keyword=Choice"
    int m_printed = 0;      // presses of the default button
};

} // namespace corvana::test
