#include "dialog/window/WindowAlertPresenter.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Puts the view into a row of its own under the informative text. To be called last: the box builds
// its layout anew with every text.
void insertUnderText(QMessageBox &box, QWidget *view)
{
    auto *grid = qobject_cast<QGridLayout *>(box.layout());
    auto *text = box.findChild<QLabel *>(u"qt_msgbox_informativelabel"_s);
    if (!text)
        text = box.findChild<QLabel *>(u"qt_msgbox_label"_s);
    if (!grid || !text)
        return;
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(grid->indexOf(text), &row, &column, &rows, &columns);
    for (int i = grid->count() - 1; i >= 0; --i) {
        int itemRow = 0;
        int itemColumn = 0;
        int itemRows = 0;
        int itemColumns = 0;
        grid->getItemPosition(i, &itemRow, &itemColumn, &itemRows, &itemColumns);
        if (itemRow <= row)
            continue;
        QLayoutItem *item = grid->takeAt(i);
        grid->addItem(item, itemRow + 1, itemColumn, itemRows, itemColumns, item->alignment());
    }
    grid->addWidget(view, row + 1, column, 1, columns, Qt::AlignLeft);
    view->show();
}

} // namespace

AlertAnswer WindowAlertPresenter::runModal(const Alert &alert, QWidget *parent)
{
    QMessageBox box(parent ? parent->window() : nullptr);
    box.setIcon(alert.style == Alert::Style::Warning ? QMessageBox::Warning
                                                     : QMessageBox::Information);
    box.setWindowTitle(parent ? parent->window()->windowTitle() : QString());
    box.setText(alert.messageText);
    if (auto *title = box.findChild<QLabel *>(u"qt_msgbox_label"_s)) {
        QFont bold = title->font();
        bold.setBold(true);
        title->setFont(bold);
    }
    box.setInformativeText(alert.informativeText);
    makePlain(&box);
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
    const QPointer<QWidget> formerParent =
        alert.accessoryView ? alert.accessoryView->parentWidget() : nullptr;
    const QPointer<QWidget> accessoryView = alert.accessoryView;
    if (accessoryView)
        insertUnderText(box, accessoryView);
    box.exec();
    if (accessoryView) {
        accessoryView->hide();
        accessoryView->setParent(formerParent); // the panel's again, not the box's
    }
    AlertAnswer answer;
    for (int i = 0; i < buttons.size(); ++i) {
        if (box.clickedButton() == buttons.at(i))
            answer.button = i;
    }
    answer.suppressed = suppression && suppression->isChecked();
    return answer;
}

} // namespace corvana
