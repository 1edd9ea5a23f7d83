#pragma once

class QWidget;

namespace corvana::QXTextField {

/// Whether the text of a text field (a label or a line of text) is wider than the field, measured
/// as one line in the field's font; margins and borders do not count.
/// Errors: false for a widget that is no text field, and for null.
bool isStringValueTruncated(const QWidget *field);

/// The comparison behind it. Units: pixels, fractions included.
bool isWider(double textWidth, double fieldWidth);

} // namespace corvana::QXTextField
