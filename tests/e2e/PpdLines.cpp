#include "tests/e2e/PpdLines.h"
#include "tests/support/TestPaths.h"

#include <stdexcept>

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace corvana::test {

namespace {

QRegularExpression lineOf(const char *pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(QString::fromLatin1(pattern)));
}

} // namespace

PpdLines::PpdLines(const QString &printer, const QString &language)
{
    QFile file(corvana::test::sourceFile(u"resources/ppd/%1.ppd"_s).arg(printer));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("there is no PPD of " + printer.toStdString());
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString &line : lines)
        readLine(line, language);
}

void PpdLines::readLine(const QString &line, const QString &language)
{
    static const auto option = lineOf(R"(\*OpenUI \*(\w+)/([^:]*): .*)");
    static const auto optionTranslation = lineOf(R"(\*(\w+)\.Translation (\w+)/([^:]*): .*)");
    static const auto choice = lineOf(R"re(\*(\w+) ([^/ ]+)/([^:]*): *"([^"]*)".*)re");
    static const auto choiceTranslation = lineOf(R"(\*(\w+)\.(\w+) ([^/]+)/([^:]*): .*)");
    static const auto defaultChoice = lineOf(R"(\*Default(\w+): *(\S+))");
    static const auto model = lineOf(R"(\*cupsModelNumber: *(\d+))");
    static const auto numbers =
        lineOf(R"(\*ParamCustom(\w+) (\w+)/([^:]*): *\d+ int (-?\d+) (-?\d+))");
    static const auto conflict = lineOf(R"(\*UIConstraints: \*(\w+) (\S+) \*(\w+) (\S+))");

    if (const auto m = option.match(line); m.hasMatch()) {
        m_texts.insert(m.captured(1), m.captured(2));
        m_choices.insert(m.captured(1), {});
    } else if (const auto t = optionTranslation.match(line); t.hasMatch()) {
        if (t.captured(1) == language)
            m_translations.insert(t.captured(2), t.captured(3));
    } else if (const auto n = numbers.match(line); n.hasMatch()) {
        const QString name = n.captured(1) + u' ' + n.captured(2);
        m_numbers.insert(name, {n.captured(4).toInt(), n.captured(5).toInt(), n.captured(3)});
    } else if (const auto c = choice.match(line); c.hasMatch()) {
        // Some other lines look like choices; they belong to no option.
        if (!m_choices.contains(c.captured(1)))
            return;
        const QString name = c.captured(1) + u' ' + c.captured(2);
        m_choices[c.captured(1)] += c.captured(2);
        m_texts.insert(name, c.captured(3));
        m_codes.insert(name, c.captured(4));
    } else if (const auto ct = choiceTranslation.match(line); ct.hasMatch()) {
        if (ct.captured(1) == language)
            m_translations.insert(ct.captured(2) + u' ' + ct.captured(3), ct.captured(4));
    } else if (const auto d = defaultChoice.match(line); d.hasMatch()) {
        m_defaults.insert(d.captured(1), d.captured(2));
    } else if (const auto number = model.match(line); number.hasMatch()) {
        m_modelNumber = number.captured(1).toInt();
    } else if (const auto x = conflict.match(line); x.hasMatch()) {
        m_conflicts += Conflict{x.captured(1), x.captured(2), x.captured(3), x.captured(4)};
    }
}

QString PpdLines::text(const QString &keyword, const QString &choice) const
{
    const QString name = choice.isEmpty() ? keyword : keyword + u' ' + choice;
    return m_translations.value(name, m_texts.value(name));
}

QByteArray PpdLines::code(const QString &keyword, const QString &choice) const
{
    return m_codes.value(keyword + u' ' + choice).toLatin1();
}

std::optional<PpdLines::Numbers> PpdLines::numbers(const QString &keyword,
                                                   const QString &parameter) const
{
    const QString name = keyword + u' ' + parameter;
    if (!m_numbers.contains(name))
        return std::nullopt;
    Numbers numbers = m_numbers.value(name);
    numbers.text = m_translations.value(u"ParamCustom%1"_s.arg(name), numbers.text);
    return numbers;
}

} // namespace corvana::test
