#pragma once

#include <QString>

class QWidget;

namespace corvana {

/// `text` with a key to press that no other control of the window has: marked in the text where it
/// has such a letter, else, in languages that write no letters, named behind it: "部数(&C)". The
/// keys come from `english`, so that they are the same in all such languages. An "&" of the text
/// stays one. Errors: without a free letter the text has no key.
QString withFreeMnemonic(const QString &text, const QString &english, const QWidget *window);

} // namespace corvana
