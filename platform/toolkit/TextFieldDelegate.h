#pragma once

#include <functional>

#include <QString>

#include "platform/PlatformExport.h"
#include "platform/foundation/NotificationCenter.h"

class QLineEdit;
class QWidget;

namespace corvana {

/// The name of the notification that a text field's delegate gets.
inline constexpr char kControlTextDidChangeNotification[] = "NSControlTextDidChangeNotification";

/// Who follows the editing of a text field.
struct TextFieldDelegate
{
    /// The user changed the text; the field (a QLineEdit) is the sender.
    std::function<void(const Notification &)> controlTextDidChange;
    /// The user is about to leave the field; false keeps him in it.
    std::function<bool(QWidget *control, const QString &editorText)> control_textShouldEndEditing;
};

/// Makes `delegate` the delegate of `field`. A field that refuses to be left takes the focus back
/// when the event is over, unless it cannot have it any more or the whole window lost it; the
/// Return key then does nothing. Changes by the program are not told.
CORVANA_PLATFORM_EXPORT void setTextFieldDelegate(QLineEdit *field,
                                                  const TextFieldDelegate &delegate);

} // namespace corvana
