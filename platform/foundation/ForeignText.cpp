#include "platform/foundation/ForeignText.h"

#include <QStringList>

namespace corvana {

using namespace Qt::StringLiterals;

bool showsItself(char32_t character)
{
    constexpr char32_t kNonJoiner = 0x200c;
    constexpr char32_t kJoiner = 0x200d;
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    case QChar::Other_Format:
        return character == kNonJoiner || character == kJoiner;
    default:
        return true;
    }
}

QString terminalLine(const QString &text)
{
    QString line;
    line.reserve(text.size());
    for (const char32_t character : text.toUcs4()) {
        if (showsItself(character))
            line += QChar::fromUcs4(character);
        else
            line += u"<U+%1>"_s.arg(uint(character), 4, 16, QLatin1Char('0')).toUpper();
    }
    return line;
}

QString terminalText(const QString &text)
{
    QStringList lines = QString(text).replace(u"\r\n"_s, u"\n"_s).split(u'\n');
    for (QString &line : lines)
        line = terminalLine(line);
    QString shown = lines.takeFirst();
    for (const QString &line : std::as_const(lines))
        shown += line.isEmpty() ? u"\n"_s : u"\n  "_s + line;
    return shown;
}

} // namespace corvana
