#include "dialog/session/ChoiceCodes.h"

#include <algorithm>

#include <QByteArrayList>
#include <QCoreApplication>

#include "dialog/session/OptionNames.h"

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ChoiceCodes)
};

// "TYPE COST PROGRAM", or "TYPE TYPE COST PROGRAM"; "-" is none.
bool hasProgramOfItsOwn(const ppd_file_t *ppd)
{
    for (int i = 0; i < ppd->num_filters; ++i) {
        if (!QByteArray(ppd->filters[i]).simplified().endsWith(" -"))
            return true;
    }
    return false;
}

// Blanks and comments, as PPDs have them for what only a program of their driver's does.
bool saysNothing(const QByteArray &code)
{
    const QByteArrayList lines = code.split('\n');
    return std::all_of(lines.cbegin(), lines.cend(), [](const QByteArray &line) {
        const QByteArray words = line.trimmed();
        return words.isEmpty() || words.startsWith('%');
    });
}

// libcups takes the quotes away only where there are two of them: a zero byte hides the second one
// from it, and the rest of the code.
bool isCutOff(const QByteArray &code)
{
    return code.startsWith('"');
}

struct Place
{
    float order;
    bool isJobLanguage;
};

// Custom values may stand elsewhere than the choices: "ORDER SECTION *CustomKEYWORD True".
Place placeOf(ppd_file_t *ppd, const ppd_option_t *option, bool isCustom)
{
    const QByteArray custom = QByteArray("*Custom") + option->keyword;
    for (const ppd_attr_t *line = ppdFindAttr(ppd, "NonUIOrderDependency", nullptr);
         isCustom && line; line = ppdFindNextAttr(ppd, "NonUIOrderDependency", nullptr)) {
        const QByteArrayList words = QByteArray(line->value).simplified().split(' ');
        if (words.size() == 4 && words.at(2) == custom && words.at(3) == "True")
            return {words.at(0).toFloat(), words.at(1) == "JCLSetup"};
    }
    return {option->order, option->section == PPD_ORDER_JCL};
}

} // namespace

bool canBeSent(ppd_file_t *ppd, const QString &keyword, const QString &choice)
{
    ppd_option_t *option = ppdOption(ppd, keyword);
    const bool isCustom = choice.startsWith(kCustomPrefix);
    const ppd_choice_t *found =
        option ? ppdChoice(option, isCustom ? QString(kCustomChoice) : choice) : nullptr;
    if (!found || choice == ppdKeyword(option->defchoice) || hasProgramOfItsOwn(ppd))
        return true;
    // The numbers of a custom value are sent without a code as well.
    if (!isCustom && saysNothing(found->code))
        return true;
    if (isCutOff(found->code))
        return false;
    const Place place = placeOf(ppd, option, isCustom);
    const bool hasJobLanguage = ppd->jcl_begin && *ppd->jcl_begin;
    return place.order >= 0 && (!place.isJobLanguage || hasJobLanguage);
}

QString notSentText(const QString &choice)
{
    return Texts::tr(
               "%1 cannot be sent to the printer: its PPD does not say in a usable way how that "
               "is done.")
        .arg(choice);
}

} // namespace corvana
