#pragma once

class QLineEdit;

namespace corvana {

/// Gives a field the button that empties it, as soon as there is something to empty.
///
/// The button's icon makes Qt load every image plug-in, which takes about as long as the rest of a
/// page: too long for a window that is just coming up, with a button that nobody sees yet.
void addClearButton(QLineEdit *field);

} // namespace corvana
