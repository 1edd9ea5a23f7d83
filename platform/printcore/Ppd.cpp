#include "platform/printcore/Ppd.h"

#include <algorithm>

#include <QByteArray>
#include <QStringDecoder>

namespace corvana {

namespace {

// Empty for a string that cannot be a PPD keyword.
QByteArray asciiKeyword(const QString &keyword)
{
    const bool ascii = std::all_of(keyword.cbegin(), keyword.cend(), [](QChar c) {
        return c.unicode() > 0x20 && c.unicode() < 0x7f;
    });
    return ascii ? keyword.toLatin1() : QByteArray();
}

// libcups finds custom options without regard to case as well.
ppd_coption_t *customOption(ppd_file_t *ppd, const QString &keyword)
{
    const QByteArray name = asciiKeyword(keyword);
    if (!ppd || name.isEmpty())
        return nullptr;
    ppd_coption_t *option = ppdFindCustomOption(ppd, name.constData());
    return option && name == option->keyword ? option : nullptr;
}

} // namespace

ppd_option_t *ppdOption(ppd_file_t *ppd, const QString &keyword)
{
    const QByteArray name = asciiKeyword(keyword);
    if (!ppd || name.isEmpty())
        return nullptr;
    // libcups finds options without regard to case; keywords here are equal or they are not.
    ppd_option_t *option = ppdFindOption(ppd, name.constData());
    return option && name == option->keyword ? option : nullptr;
}

ppd_choice_t *ppdMarkedChoice(ppd_file_t *ppd, const QString &keyword)
{
    if (!ppdOption(ppd, keyword))
        return nullptr;
    return ppdFindMarkedChoice(ppd, asciiKeyword(keyword).constData());
}

ppd_choice_t *ppdChoice(ppd_option_t *option, const QString &choice)
{
    if (!option)
        return nullptr;
    for (int i = 0; i < option->num_choices; ++i) {
        if (choice == QLatin1StringView(option->choices[i].choice))
            return &option->choices[i];
    }
    return nullptr;
}

ppd_cparam_t *ppdCustomParameter(ppd_file_t *ppd, const QString &keyword, const QString &name)
{
    ppd_coption_t *option = customOption(ppd, keyword);
    const QByteArray wanted = asciiKeyword(name);
    if (!option || wanted.isEmpty())
        return nullptr;
    ppd_cparam_t *parameter = ppdFindCustomParam(option, wanted.constData());
    return parameter && wanted == parameter->name ? parameter : nullptr;
}

bool ppdHasCustomOption(ppd_file_t *ppd, const QString &keyword)
{
    return customOption(ppd, keyword) != nullptr;
}

std::optional<QString> ppdText(const char *text)
{
    if (!text)
        return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decoder(text);
    if (decoder.hasError())
        return std::nullopt;
    return decoded;
}

QString ppdKeyword(const char *keyword)
{
    return QString::fromLatin1(keyword);
}

} // namespace corvana
