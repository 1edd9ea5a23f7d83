#include "dialog/app/Language.h"

#include <clocale>

#include <QByteArray>
#include <QLocale>
#include <QProcessEnvironment>

#include "platform/foundation/Bundle.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr char kLanguage[] = "LANGUAGE";
constexpr char kAll[] = "LC_ALL";
constexpr char kMessages[] = "LC_MESSAGES";
constexpr char kLang[] = "LANG";
constexpr char kNoLanguage[] = "C";

// "ja_JP" of "ja_JP.UTF-8@modifier".
QString withoutEncoding(const QString &locale)
{
    return locale.section(u'.', 0, 0).section(u'@', 0, 0);
}

bool asksForNoLanguage(const QString &locale)
{
    const QString name = withoutEncoding(locale);
    return name.isEmpty() || name == QLatin1StringView(kNoLanguage) || name == "POSIX"_L1;
}

// Best first; none where the user wants the programs' own.
QStringList userLanguages(const QProcessEnvironment &environment)
{
    QString locale;
    for (const char *variable : {kAll, kMessages, kLang}) {
        if (locale.isEmpty())
            locale = environment.value(QString::fromLatin1(variable));
    }
    // "C.UTF-8" is a locale as any other to gettext: it has no language of its own, and leaves the
    // choice to LANGUAGE. Only plain "C" wants none.
    const bool isPlain = !locale.contains(u'.');
    if (isPlain && asksForNoLanguage(locale))
        return {};
    const QStringList list =
        environment.value(QString::fromLatin1(kLanguage)).split(u':', Qt::SkipEmptyParts);
    return list.isEmpty() ? QStringList{locale} : list;
}

// libcups compares names and finds the texts of "ja" for "ja_JP", but not the other way round. A
// localisation that names its region stands for others as well, which libcups does not know.
QString messagesLocale(const QString &localization, const QString &userLanguage)
{
    const QString name = localization.contains(u'_') ? localization : QLocale(userLanguage).name();
    return name + u".UTF-8"_s;
}

} // namespace

QStringList dialogLocalizations()
{
    return {u"English"_s, u"Japanese"_s, u"zh_CN"_s, u"de"_s, u"fr"_s,
            u"es"_s,      u"it"_s,       u"pt_BR"_s, u"ko"_s, u"zh_TW"_s};
}

Language languageOf(const QProcessEnvironment &environment)
{
    const QStringList localizations = dialogLocalizations();
    const Language none{localizations.constFirst(), QLatin1StringView(kNoLanguage)};
    const QStringList languages = userLanguages(environment);
    for (const QString &language : languages) {
        if (asksForNoLanguage(language))
            return none;
        const QString code = withoutEncoding(language);
        for (const QString &localization : localizations) {
            if (Bundle::localizationServes(localization, QString(code).replace(u'_', u'-')))
                return {localization, messagesLocale(localization, code)};
        }
    }
    return none;
}

void speakOneLanguage()
{
    const Language language = languageOf(QProcessEnvironment::systemEnvironment());
    const QByteArray messages = language.messagesLocale.toUtf8();
    // The other categories stay the user's even where the locale of the messages is not installed:
    // then nobody can set them all at once any more.
    std::setlocale(LC_ALL, "");
    if (const QByteArray all = qgetenv(kAll); !all.isEmpty()) {
        // It would overrule the messages. What it overruled so far goes, so that LANG can say it.
        for (const char *category :
             {"LC_CTYPE", "LC_NUMERIC", "LC_TIME", "LC_COLLATE", "LC_MONETARY", "LC_PAPER",
              "LC_NAME", "LC_ADDRESS", "LC_TELEPHONE", "LC_MEASUREMENT", "LC_IDENTIFICATION"})
            qunsetenv(category);
        qputenv(kLang, all);
    }
    qunsetenv(kAll);
    qputenv(kMessages, messages);
    // Where "C" stands for English texts, a bundle in several languages has to hear that by name.
    qputenv(kLanguage, messages == kNoLanguage ? QByteArray("en") : messages.split('.').first());
    // libcups reads the environment where it finds this category to be "C".
    if (!std::setlocale(LC_MESSAGES, messages.constData()))
        std::setlocale(LC_MESSAGES, kNoLanguage);
}

} // namespace corvana
