#include "dialog/printers/UserQueuesLine.h"

#include <algorithm>

#include <QCoreApplication>

#include <cups/cups.h>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(UserQueuesFile)
};

// Blanks as libcups knows them, whatever the locale.
bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

QByteArrayView withoutEnd(QByteArrayView line)
{
    if (line.endsWith('\n'))
        line.chop(1);
    if (line.endsWith('\r'))
        line.chop(1);
    return line;
}

// libcups looks at the first "#" of a line only: behind a backslash it is one, and a comment begins
// at any other.
QByteArray withoutComment(QByteArray line)
{
    const qsizetype hash = line.indexOf('#');
    if (hash > 0 && line.at(hash - 1) == '\\')
        return line.remove(hash - 1, 1);
    return hash < 0 ? line : line.left(hash);
}

QByteArray trimmedByCups(const QByteArray &text)
{
    const auto first = std::find_if_not(text.cbegin(), text.cend(), isBlank);
    const auto last = std::find_if_not(text.crbegin(), text.crend(), isBlank).base();
    return first < last ? QByteArray(first, last - first) : QByteArray();
}

// The first word of a text, which is taken out of it with the blanks behind it.
QByteArray takeWord(QByteArray *text)
{
    const auto end = std::find_if(text->cbegin(), text->cend(), isBlank);
    const QByteArray word = text->left(end - text->cbegin());
    *text = trimmedByCups(text->mid(word.size()));
    return word;
}

bool isControl(QChar c)
{
    return c.unicode() < 0x20 || c.unicode() == 0x7f;
}

// Stands for itself without quotes.
bool isPlain(QChar c)
{
    static constexpr QLatin1StringView kSigns{"-._:;,/+*@%=()<>!$&~^|?"};
    return (c.unicode() < 0x80 && c.isLetterOrNumber()) || kSigns.contains(c);
}

bool isNameOfOption(const QString &name)
{
    static constexpr QLatin1StringView kSigns{"-._+*"};
    return !name.isEmpty() && std::all_of(name.cbegin(), name.cend(), [](QChar c) {
        return (c.unicode() < 0x80 && c.isLetterOrNumber()) || kSigns.contains(c);
    });
}

// In quotes everything stands for itself but the quote and the backslash. The backslash in front of
// a "#" keeps libcups from taking the rest of the line for a comment.
QByteArray quoted(const QString &value)
{
    if (!value.isEmpty() && std::all_of(value.cbegin(), value.cend(), isPlain))
        return value.toUtf8();
    QByteArray text;
    const QByteArray bytes = value.toUtf8();
    for (const char c : bytes) {
        if (c == '"' || c == '\\' || c == '#')
            text += '\\';
        text += c;
    }
    return '"' + text + '"';
}

} // namespace

QList<QByteArrayView> linesOfUserQueues(QByteArrayView content)
{
    QList<QByteArrayView> lines;
    while (!content.isEmpty()) {
        const auto end = std::find_if(content.cbegin(), content.cend(),
                                      [](char c) { return c == '\n' || c == '\r'; });
        qsizetype size = end - content.cbegin();
        if (end != content.cend())
            size += content.sliced(size).startsWith("\r\n") ? 2 : 1;
        lines += content.first(size);
        content = content.sliced(size);
    }
    return lines;
}

std::optional<UserQueuesLine> userQueuesLine(QByteArrayView line)
{
    line = withoutEnd(line);
    QByteArray text = line.first(std::min(line.size(), kMostBytesOfLine)).toByteArray();
    // libcups' strings end with a NUL.
    text.truncate(std::find(text.cbegin(), text.cend(), '\0') - text.cbegin());
    text = trimmedByCups(withoutComment(text));
    const QByteArray keyword = takeWord(&text).toLower();
    if ((keyword != "dest" && keyword != "default") || text.isEmpty())
        return std::nullopt;
    UserQueuesLine read;
    read.isDefault = keyword == "default";
    read.name = takeWord(&text);
    read.options = text;
    return read;
}

QList<JobOption> optionsOfLine(const UserQueuesLine &line)
{
    cups_option_t *parsed = nullptr;
    const int count = cupsParseOptions(line.options.constData(), 0, &parsed);
    QList<JobOption> options;
    for (int i = 0; i < count; ++i)
        options += JobOption{QString::fromUtf8(parsed[i].name), QString::fromUtf8(parsed[i].value)};
    cupsFreeOptions(count, parsed);
    return options;
}

QString problemOfLine(const JobOption &option)
{
    if (!isNameOfOption(option.name))
        return Texts::tr("“%1” is no name of an option for other programs.").arg(option.name);
    if (std::any_of(option.value.cbegin(), option.value.cend(), isControl))
        return Texts::tr("The value of “%1” has a line break or a control character, which no "
                         "option for other programs can have.")
            .arg(option.name);
    return {};
}

QByteArray lineOf(bool isDefault, const QString &name, const QList<JobOption> &options)
{
    QByteArray line = (isDefault ? "Default " : "Dest ") + name.toUtf8();
    for (const JobOption &option : options)
        line += ' ' + option.name.toUtf8() + '=' + quoted(option.value);
    return line;
}

} // namespace corvana
