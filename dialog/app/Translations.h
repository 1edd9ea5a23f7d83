#pragma once

#include <QString>

class QCoreApplication;

namespace corvana {

/// Installs the dialog's texts, from the folder `translations`, and Qt's own, each in the first of
/// the user's languages that there is; without one the texts stay English.
/// Ownership: the translators are the application's.
void installTranslations(QCoreApplication &application, const QString &translations);

} // namespace corvana
