#include "platform/toolkit/Mnemonics.h"

#include <QLabel>
#include <QLocale>

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

QString asTitle(const QString &text)
{
    const bool isFrench = QLocale().uiLanguages().value(0).section(u'-', 0, 0) == "fr"_L1;
    return text + (isFrench ? u"\u00a0:"_s : u":"_s); // no line ends before the colon
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
