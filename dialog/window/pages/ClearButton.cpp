#include "dialog/window/pages/ClearButton.h"
#include "platform/toolkit/ScreenReader.h"

#include <QCoreApplication>
#include <QLineEdit>

namespace corvana {

void addClearButton(QLineEdit *field)
{
    QObject::connect(field, &QLineEdit::textChanged, field, [field](const QString &text) {
        if (text.isEmpty() || field->isClearButtonEnabled())
            return;
        field->setClearButtonEnabled(true);
        setFieldButtonNames(field, QCoreApplication::translate("ClearButton", "Clear"));
    });
}

} // namespace corvana
