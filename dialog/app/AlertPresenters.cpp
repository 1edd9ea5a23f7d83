#include "dialog/app/AlertPresenters.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTextStream>

namespace corvana {

AlertAnswer WindowAlertPresenter::runModal(const Alert &alert, QWidget *parent)
{
    QMessageBox box(parent ? parent->window() : nullptr);
    box.setIcon(alert.style == Alert::Style::Warning ? QMessageBox::Warning
                                                     : QMessageBox::Information);
    box.setText(alert.messageText);
    box.setInformativeText(alert.informativeText);
    QList<QPushButton *> buttons;
    for (const QString &label : alert.buttons)
        buttons += box.addButton(label, QMessageBox::ActionRole);
    box.setDefaultButton(buttons.constFirst());
    // Without one, Escape and the window's close button would do nothing.
    box.setEscapeButton(buttons.constLast());
    QCheckBox *suppression = nullptr;
    if (alert.showsSuppressionButton) {
        suppression = new QCheckBox(
            QCoreApplication::translate("AlertPresenter", "Do not show this message again"));
        box.setCheckBox(suppression);
    }
    box.exec();
    AlertAnswer answer;
    for (int i = 0; i < buttons.size(); ++i) {
        if (box.clickedButton() == buttons.at(i))
            answer.button = i;
    }
    answer.suppressed = suppression && suppression->isChecked();
    return answer;
}

AlertAnswer TerminalAlertPresenter::runModal(const Alert &alert, QWidget *)
{
    QTextStream(stderr) << alert.messageText << "\n\n" << alert.informativeText << "\n";
    return {};
}

} // namespace corvana
