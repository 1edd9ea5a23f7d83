#include "printsetting/QXTextField.h"

#include <QFontMetricsF>
#include <QLabel>
#include <QLineEdit>

#include "platform/toolkit/Mnemonics.h"

namespace corvana::QXTextField {

bool isStringValueTruncated(const QWidget *field)
{
    QString text;
    if (const auto *label = qobject_cast<const QLabel *>(field))
        text = literalText(label);
    else if (const auto *line = qobject_cast<const QLineEdit *>(field))
        text = line->text();
    if (text.isEmpty())
        return false;
    return isWider(QFontMetricsF(field->font()).horizontalAdvance(text), field->width());
}

bool isWider(double textWidth, double fieldWidth)
{
    return textWidth > fieldWidth;
}

} // namespace corvana::QXTextField
