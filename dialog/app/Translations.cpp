#include "dialog/app/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace corvana {

using namespace Qt::StringLiterals;

void installTranslations(QCoreApplication &application, const QString &translations)
{
    const auto install = [&application](const QString &name, const QString &folder) {
        auto *translator = new QTranslator(&application);
        if (translator->load(QLocale(), name, u"_"_s, folder))
            QCoreApplication::installTranslator(translator);
    };
    install(u"qtbase"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(u"corvana-print"_s, translations);
}

} // namespace corvana
