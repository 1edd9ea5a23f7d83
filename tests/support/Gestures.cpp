#include "tests/support/Gestures.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QTest>

#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"

namespace corvana::test {

bool pickWithKeyboard(QComboBox *popUp, const QString &title)
{
    const int wanted = popup::indexOfItemWithTitle(popUp, title);
    if (wanted < 0)
        return false;
    for (int step = 0; step < popUp->count() && popUp->currentIndex() != wanted; ++step)
        QTest::keyClick(popUp, popUp->currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
    return popUp->currentIndex() == wanted;
}

bool pick(QComboBox *popUp, const QString &title)
{
    const int wanted = popup::indexOfItemWithTitle(popUp, title);
    if (wanted < 0 || !popUp->isEnabled())
        return false;
    if (!popUp->model()->flags(popUp->model()->index(wanted, 0)).testFlag(Qt::ItemIsEnabled))
        return false;
    // What the list does when an item is chosen in it: the index changes, then "activated" tells.
    popUp->setCurrentIndex(wanted);
    Q_EMIT popUp->activated(wanted);
    return true;
}

bool pick(RadioMatrix *matrix, int row)
{
    QRadioButton *cell = matrix->cell(row);
    if (!cell || !cell->isEnabled())
        return false;
    cell->click();
    return true;
}

bool click(QCheckBox *box)
{
    const bool before = box->isChecked();
    box->click();
    return box->isChecked() != before;
}

} // namespace corvana::test
