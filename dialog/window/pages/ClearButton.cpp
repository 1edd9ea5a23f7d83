#include "dialog/window/pages/ClearButton.h"

#include <QLineEdit>

namespace corvana {

void addClearButton(QLineEdit *field)
{
    QObject::connect(field, &QLineEdit::textChanged, field, [field](const QString &text) {
        if (!text.isEmpty())
            field->setClearButtonEnabled(true);
    });
}

} // namespace corvana
