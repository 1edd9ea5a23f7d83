#pragma once

#include <QString>

#include "platform/PlatformExport.h"

class QAbstractSlider;
class QLineEdit;
class QWidget;

namespace corvana {

class BindingDictionary;

/// Shows the value under `key` in the control and writes the user's changes back. Works for check
/// boxes (boolean), sliders (whole number), text fields and labels (text).
/// A write of the dictionary never acts as a change of the user's, and after a change of a slider's
/// range the bound value is shown again.
/// Errors: false for a control of another kind.
CORVANA_PLATFORM_EXPORT bool bindValue(QWidget *control, BindingDictionary *dictionary,
                                       const QString &key);

/// Shows the whole number under `key` in the field and writes what the user enters back, kept inside
/// the range of `slider`. Digits and signs of any script count, and a fraction is dropped; anything
/// that is no number brings the former one back. The field can be used while the slider can.
CORVANA_PLATFORM_EXPORT void bindNumber(QLineEdit *field, BindingDictionary *dictionary,
                                        const QString &key, QAbstractSlider *slider);

/// Enables the control while the value under `key` is true.
CORVANA_PLATFORM_EXPORT void bindEnabled(QWidget *control, BindingDictionary *dictionary,
                                         const QString &key);

/// Shows the control while the value under `key` is true.
CORVANA_PLATFORM_EXPORT void bindVisible(QWidget *control, BindingDictionary *dictionary,
                                         const QString &key);

/// Colours the label's text with what the value transformer `transformer` makes of the value under
/// `key`. The transformer is looked up at each write, so that one registered later is found.
CORVANA_PLATFORM_EXPORT void bindTextColor(QWidget *label, BindingDictionary *dictionary,
                                           const QString &key, const QString &transformer);

} // namespace corvana
