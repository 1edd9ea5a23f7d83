#pragma once

#include <QString>

class QCheckBox;
class QComboBox;

namespace corvana {
class RadioMatrix;
}

/// What a user does to controls: their signals come as they do for a user, so that actions run. The
/// controls need not be visible.
namespace corvana::test {

/// Goes to an item of a pop-up with the arrow keys. One action per item passed on the way: a pop-up
/// that is closed acts at every step.
/// Errors: false when the pop-up has no such item, or did not arrive at it.
bool pickWithKeyboard(QComboBox *popUp, const QString &title);
/// Picks an item of a pop-up in one step, as from its open list.
/// Errors: false when the pop-up has no such item, or the item or the pop-up is disabled.
bool pick(QComboBox *popUp, const QString &title);
/// Clicks the cell of a matrix. Errors: false when there is no such row or it is disabled.
bool pick(RadioMatrix *matrix, int row);
/// Clicks a check box. Errors: false when its state did not change.
bool click(QCheckBox *box);

} // namespace corvana::test
