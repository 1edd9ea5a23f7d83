#include "platform/toolkit/Mnemonics.h"

#include <QLabel>

#include "platform/toolkit/PlainText.h"

namespace corvana {

QString withoutMnemonic(const QString &text)
{
    return QString(text).replace(u'&', QStringLiteral("&&"));
}

void setLiteralText(QLabel *label, const QString &text)
{
    makePlain(label);
    label->setText(label->buddy() ? withoutMnemonic(text) : text);
}

} // namespace corvana
