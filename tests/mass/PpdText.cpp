#include "tests/mass/PpdText.h"

#include <algorithm>

namespace corvana::test {

namespace {

// The words that a constraint's choice must not be to apply where it names none.
bool isOff(const QByteArray &choice)
{
    const QByteArray word = choice.toLower();
    return word == "none" || word == "false" || word == "off";
}

bool isMeant(const PpdTextChoice &inConstraint, const PpdTextChoice &choice)
{
    return inConstraint.first == choice.first &&
           (inConstraint.second.isEmpty() ? !isOff(choice.second)
                                          : inConstraint.second == choice.second);
}

// "*Keyword Choice/Text" less its text, and without the asterisk.
QByteArray wordOf(const QByteArray &word)
{
    const QByteArray bare = word.startsWith('*') ? word.mid(1) : word;
    return bare.left(bare.contains('/') ? bare.indexOf('/') : bare.size());
}

class Reader
{
public:
    PpdText text;

    void read(const QByteArray &line)
    {
        if (!line.startsWith('*') || line.startsWith("*%"))
            return;
        const QByteArray statement =
            line.left(line.contains(':') ? line.indexOf(':') : line.size());
        const QList<QByteArray> words = statement.simplified().split(' ');
        const QByteArray value = line.mid(statement.size() + 1).trimmed();
        const QByteArray keyword = wordOf(words.constFirst());
        if (keyword == "OpenGroup")
            m_group = wordOf(value);
        else if (keyword == "CloseGroup")
            m_group.clear();
        else if (keyword == "OpenUI" || keyword == "JCLOpenUI")
            open(wordOf(words.value(1)));
        else if (keyword == "CloseUI" || keyword == "JCLCloseUI")
            m_option.clear();
        else if (keyword == "UIConstraints" || keyword == "NonUIConstraints")
            addConstraint(value.simplified().split(' '));
        else if (keyword == "cupsUIConstraints")
            addConstraint(QByteArray(value).replace('"', "").simplified().split(' '));
        else if (words.size() == 1 && keyword == "Default" + m_option)
            text.options.last().defaultChoice = value;
        else if (words.size() > 1 && keyword == m_option)
            addChoice(wordOf(words.at(1)));
    }

private:
    QByteArray m_group;
    QByteArray m_option; // that is open; empty outside of one

    void open(const QByteArray &keyword)
    {
        m_option = keyword;
        PpdTextOption option{keyword};
        option.isInstallable = m_group == "InstallableOptions" || m_group == "Options";
        text.options += option;
    }

    void addChoice(const QByteArray &choice)
    {
        QList<QByteArray> &choices = text.options.last().choices;
        if (!choices.contains(choice))
            choices += choice;
    }

    // "*A x *B y", and each choice may be missing.
    void addConstraint(const QList<QByteArray> &words)
    {
        PpdTextConstraint constraint;
        for (const QByteArray &word : words) {
            if (word.startsWith('*'))
                constraint += {word.mid(1), QByteArray()};
            else if (!constraint.isEmpty())
                constraint.last().second = word;
        }
        text.constraints += constraint;
    }
};

} // namespace

const PpdTextOption *PpdText::option(const QByteArray &keyword) const
{
    const auto found = std::find_if(options.cbegin(), options.cend(),
                                    [&](const PpdTextOption &o) { return o.keyword == keyword; });
    return found == options.cend() ? nullptr : &*found;
}

bool PpdText::excludes(const QList<PpdTextChoice> &choices) const
{
    return std::any_of(constraints.cbegin(), constraints.cend(), [&](const PpdTextConstraint &c) {
        return std::all_of(c.cbegin(), c.cend(), [&](const PpdTextChoice &part) {
            return std::any_of(choices.cbegin(), choices.cend(),
                               [&](const PpdTextChoice &choice) { return isMeant(part, choice); });
        });
    });
}

PpdText readPpdText(const QByteArray &ppd)
{
    Reader reader;
    QByteArray all = ppd;
    all.replace("\r\n", "\n").replace('\r', '\n');
    const QList<QByteArray> lines = all.split('\n');
    for (const QByteArray &line : lines)
        reader.read(line);
    return reader.text;
}

} // namespace corvana::test
