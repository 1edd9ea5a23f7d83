#include "tests/resources/SamplePpd.h"
#include "tests/support/TestPaths.h"

#include <algorithm>
#include <span>

#include <QDir>
#include <QFile>

namespace corvana::test {

using namespace Qt::StringLiterals;

SamplePpd::SamplePpd(const QString &printer, const QByteArray &language)
{
    // The order in which libcups asks them is its own affair.
    for (const char *variable : {"LC_ALL", "LC_CTYPE", "LC_MESSAGES", "LANG"})
        qputenv(variable, language + ".UTF-8");
    const QString path = u"%1/%2.ppd"_s.arg(samplePpdFolder(), printer);
    m_ppd.reset(ppdOpenFile(QFile::encodeName(path).constData()));
    if (!m_ppd)
        return;
    ppdLocalize(m_ppd.get());
    ppdMarkDefaults(m_ppd.get());
}

bool SamplePpd::has(const char *keyword) const
{
    return ppdOption(ppd(), latin1(keyword));
}

bool SamplePpd::offers(const char *keyword, const char *choice) const
{
    return choices(keyword).contains(QLatin1StringView(choice));
}

QStringList SamplePpd::choices(const char *keyword) const
{
    QStringList found;
    const ppd_option_t *option = ppdOption(ppd(), latin1(keyword));
    if (!option)
        return found;
    for (const ppd_choice_t &choice : std::span(option->choices, size_t(option->num_choices)))
        found += ppdKeyword(choice.choice);
    found.removeAll(u"Custom"_s);
    return found;
}

QString SamplePpd::defaultChoice(const char *keyword) const
{
    const ppd_option_t *option = ppdOption(ppd(), latin1(keyword));
    return option ? ppdKeyword(option->defchoice) : QString();
}

QString SamplePpd::text(const char *keyword, const char *choice) const
{
    const ppd_choice_t *found = ppdChoice(ppdOption(ppd(), latin1(keyword)), latin1(choice));
    return found ? ppdText(found->text).value_or(QString()) : QString();
}

const ppd_cparam_t *SamplePpd::number(const char *keyword, const char *parameter) const
{
    const ppd_cparam_t *found = ppdCustomParameter(ppd(), latin1(keyword), latin1(parameter));
    return found && found->type == PPD_CUSTOM_INT ? found : nullptr;
}

bool SamplePpd::conflict(const char *option, const QStringList &choices, const char *other) const
{
    const auto conflicts = std::span(m_ppd->consts, size_t(m_ppd->num_consts));
    return std::any_of(conflicts.begin(), conflicts.end(), [&](const ppd_const_t &conflict) {
        return qstrcmp(conflict.option1, option) == 0 && qstrcmp(conflict.option2, other) == 0 &&
               choices.contains(QLatin1StringView(conflict.choice1));
    });
}

QList<const ppd_option_t *> SamplePpd::options() const
{
    QList<const ppd_option_t *> found;
    for (const ppd_group_t &group : std::span(m_ppd->groups, size_t(m_ppd->num_groups))) {
        for (const ppd_option_t &option : std::span(group.options, size_t(group.num_options))) {
            if (qstrcmp(option.keyword, "PageRegion") != 0)
                found += &option;
        }
    }
    return found;
}

QString samplePpdFolder()
{
    return corvana::test::sourceFile(u"resources/ppd"_s);
}

QStringList samplePrinterNames()
{
    QStringList names = QDir(samplePpdFolder()).entryList({u"*.ppd"_s}, QDir::Files);
    for (QString &name : names)
        name.chop(4);
    names.sort();
    return names;
}

} // namespace corvana::test
