#include "platform/foundation/FormatString.h"

#include <QStringView>

namespace corvana {

QString formattedWithoutArguments(const QString &format)
{
    // The parts of a directive between "%" and its conversion letter.
    const QStringView flagsAndWidth = u"-+ #0123456789.*'$";
    const QStringView lengths = u"hlqLztj";

    QString result;
    result.reserve(format.size());
    for (qsizetype i = 0; i < format.size(); ++i) {
        if (format.at(i) != u'%') {
            result += format.at(i);
            continue;
        }
        ++i;
        while (i < format.size() && flagsAndWidth.contains(format.at(i)))
            ++i;
        while (i < format.size() && lengths.contains(format.at(i)))
            ++i;
        if (i < format.size() && format.at(i) == u'%')
            result += u'%';
        else if (i + 1 < format.size() && format.at(i).isHighSurrogate())
            ++i; // a conversion letter of two code units goes as a whole
    }
    return result;
}

} // namespace corvana
