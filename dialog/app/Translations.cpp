#include "dialog/app/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace corvana {

void installTranslations(QCoreApplication &application, const QString &translations)
{
    const auto install = [&application](const QString &name, const QString &folder) {
        auto *translator = new QTranslator(&application);
        if (translator->load(QLocale(), name, QStringLiteral("_"), folder))
            QCoreApplication::installTranslator(translator);
    };
    install(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(QStringLiteral("corvana-print"), translations);
}

} // namespace corvana
