#include "platform/toolkit/Mnemonics.h"

#include <QLabel>

#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

QString withoutMnemonic(const QString &text)
{
    return QString(text).replace(u'&', u"&&"_s);
}

void setLiteralText(QLabel *label, const QString &text)
{
    makePlain(label);
    label->setText(label->buddy() ? withoutMnemonic(text) : text);
}

QString literalText(const QLabel *label)
{
    QString text = label->text();
    if (!label->buddy())
        return text;
    for (qsizetype mark = text.indexOf(u'&'); mark >= 0; mark = text.indexOf(u'&', mark + 1))
        text.remove(mark, 1); // what it marks stays, also when that is another "&"
    return text;
}

} // namespace corvana
