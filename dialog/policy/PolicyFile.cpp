#include "dialog/policy/PolicyFile.h"

#include <algorithm>
#include <optional>

#include <QCoreApplication>
#include <QStringDecoder>

#include "platform/foundation/ForeignText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Policy)
};

// Longer ones are no name of an option, a queue or a group anywhere.
constexpr qsizetype kLongestWord = 255;
constexpr int kMostProblems = 100;

// What a line says may be anything; a message shows its beginning.
QString shown(const QString &text)
{
    constexpr qsizetype kShown = 60;
    const QString line = terminalLine(text.left(kShown));
    return text.size() > kShown ? line + u'…' : line;
}

bool isKeyword(const QString &text)
{
    const auto belongs = [](QChar c) {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
               c == u'-' || c == u'_' || c == u'.';
    };
    return !text.isEmpty() && text.size() <= kLongestWord &&
           std::all_of(text.cbegin(), text.cend(), belongs);
}

// The words of a part of a section. Errors: nothing.
std::optional<QStringList> wordsOf(QStringView text)
{
    QStringList words;
    qsizetype i = 0;
    while (i < text.size()) {
        if (text.at(i).isSpace()) {
            ++i;
            continue;
        }
        const bool isQuoted = text.at(i) == u'"';
        const qsizetype begin = isQuoted ? i + 1 : i;
        qsizetype end = begin;
        while (end < text.size() && (isQuoted ? text.at(end) != u'"' : !text.at(end).isSpace()))
            ++end;
        const QString word = text.mid(begin, end - begin).toString();
        const bool isClosed = !isQuoted || end < text.size();
        if (!isClosed || word.isEmpty() || word.size() > kLongestWord ||
            (!isQuoted && word.contains(u'"')))
            return std::nullopt;
        words += word;
        i = isQuoted ? end + 1 : end;
        if (isQuoted && i < text.size() && !text.at(i).isSpace())
            return std::nullopt;
    }
    return words;
}

// The parts of a section, divided at its commas. A comma in quotes divides nothing.
QList<QStringView> partsOf(QStringView inside)
{
    QList<QStringView> parts;
    bool isQuoted = false;
    qsizetype begin = 0;
    for (qsizetype i = 0; i < inside.size(); ++i) {
        if (inside.at(i) == u'"')
            isQuoted = !isQuoted;
        if (inside.at(i) != u',' || isQuoted)
            continue;
        parts += inside.mid(begin, i - begin);
        begin = i + 1;
    }
    parts += inside.mid(begin);
    return parts;
}

// Errors: nothing, for a line that is no section.
std::optional<PolicyScope> scopeOf(const QString &line)
{
    if (!line.endsWith(u']'))
        return std::nullopt;
    const QStringView inside = QStringView(line).mid(1).chopped(1).trimmed();
    if (inside == "all"_L1)
        return PolicyScope{};
    PolicyScope scope;
    const QList<QStringView> parts = partsOf(inside);
    for (const QStringView &part : parts) {
        const std::optional<QStringList> words = wordsOf(part);
        if (!words || words->size() < 2)
            return std::nullopt;
        const QString &kind = words->constFirst();
        QStringList *named = nullptr;
        if (kind == "printer"_L1)
            named = &scope.printers;
        else if (kind == "group"_L1)
            named = &scope.groups;
        // Two lists of one kind read as if both had to fit.
        if (!named || !named->isEmpty())
            return std::nullopt;
        *named = words->mid(1);
    }
    return scope;
}

class Parser
{
public:
    Parser(const QString &file, int order) : m_file(file), m_order(order) {}

    void parseLine(const QByteArray &bytes, int number)
    {
        m_line = number;
        if (bytes.size() > kLongestPolicyLine)
            return refuse(Texts::tr("the line is longer than %1 bytes").arg(kLongestPolicyLine));
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString decoded = decoder(bytes);
        if (decoder.hasError())
            return refuse(Texts::tr("the line is not written in UTF-8"));
        const QString line = decoded.trimmed();
        if (line.isEmpty() || line.startsWith(u'#') || line.startsWith(u';'))
            return;
        for (const char32_t character : line.toUcs4()) {
            if (character != U'\t' && !showsItself(character))
                return refuse(Texts::tr("the line has a character that cannot be seen"));
        }
        if (line.startsWith(u'['))
            takeSection(line);
        else
            takeEntry(line);
    }

    PolicyFile file() const { return m_result; }

private:
    void refuse(const QString &what)
    {
        if (m_result.problems.size() < kMostProblems)
            m_result.problems += PolicyProblem{{m_file, m_line}, what};
        else if (m_result.problems.size() == kMostProblems)
            m_result.problems +=
                PolicyProblem{{m_file, m_line}, Texts::tr("there are more problems")};
    }

    void takeSection(const QString &line)
    {
        m_scope = ++m_sections > kMostPolicySections ? std::nullopt : scopeOf(line);
        m_isInSection = true;
        if (m_sections > kMostPolicySections)
            refuse(Texts::tr("there are more than %1 sections").arg(kMostPolicySections));
        else if (!m_scope)
            refuse(Texts::tr("“%1” is no section, and what follows in it is left out. Allowed: %2.")
                       .arg(shown(line), u"[all], [printer PATTERN…], [group NAME…], "
                                         "[printer PATTERN…, group NAME…]"_s));
    }

    void takeEntry(const QString &line)
    {
        const qsizetype equals = line.indexOf(u'=');
        if (equals < 0)
            return refuse(Texts::tr("“%1” is no line of a policy. Expected: %2.")
                              .arg(shown(line), u"[SECTION], KEY = VALUE, # COMMENT"_s));
        if (!m_isInSection)
            return refuse(Texts::tr("“%1” stands before the first section. Begin with [all].")
                              .arg(shown(line)));
        const QString name = line.left(equals).trimmed();
        const PolicyKeyForm *form = formNamed(name);
        if (!form)
            return refuse(
                Texts::tr("there is no key “%1”. Keys: %2.").arg(shown(name), policyKeyNames()));
        PolicyEntry entry{form->key,        {},     line.mid(equals + 1).trimmed(), {},
                          {m_file, m_line}, m_order};
        if (form->takesKeyword())
            entry.keyword = name.mid(form->name.size());
        if (form->takesKeyword() && !isKeyword(entry.keyword))
            return refuse(Texts::tr("%1 needs the keyword of an option or of a job attribute.")
                              .arg(form->name));
        if (const QString problem = problemOfValue(*form, shown(entry.value));
            !problem.isEmpty() || entry.value.size() > 1024)
            return refuse(name + u": "_s +
                          (problem.isEmpty() ? Texts::tr("the value is too long") : problem));
        if (!m_scope)
            return; // its section was refused
        entry.scope = *m_scope;
        m_result.entries += entry;
    }

    static const PolicyKeyForm *formNamed(const QString &name)
    {
        const auto forms = policyKeyForms();
        const auto found = std::find_if(forms.begin(), forms.end(), [&](const PolicyKeyForm &one) {
            return one.takesKeyword() ? name.startsWith(one.name) : name == one.name;
        });
        return found == forms.end() ? nullptr : &*found;
    }

    QString m_file;
    int m_order;
    int m_line = 0;
    int m_sections = 0;
    bool m_isInSection = false;
    std::optional<PolicyScope> m_scope; // nothing while the section is one that was refused
    PolicyFile m_result;
};

} // namespace

PolicyFile parsePolicyFile(const QByteArray &text, const QString &file, int order)
{
    const auto refused = [&](const QString &what) {
        return PolicyFile{{}, {PolicyProblem{{file, 0}, what}}};
    };
    if (text.size() > kLargestPolicyFile)
        return refused(
            Texts::tr("the file is not used: it has more than %1 bytes").arg(kLargestPolicyFile));
    if (text.contains('\0'))
        return refused(Texts::tr("the file is not used: it is no text"));
    if (text.count('\n') >= kMostPolicyLines)
        return refused(
            Texts::tr("the file is not used: it has more than %1 lines").arg(kMostPolicyLines));
    Parser parser(file, order);
    int number = 0;
    for (const QByteArray &line : text.split('\n'))
        parser.parseLine(line, ++number);
    return parser.file();
}

} // namespace corvana
