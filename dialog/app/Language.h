#pragma once

#include <QString>
#include <QStringList>

class QProcessEnvironment;

namespace corvana {

/// The localisations that the dialog has texts and help in, the language of the source first.
QStringList dialogLocalizations();

/// One language for everything that a user reads in the dialog.
struct Language
{
    QString localization;   ///< one of dialogLocalizations()
    QString messagesLocale; ///< the same for LC_MESSAGES: "ja_JP.UTF-8", or "C"

    bool operator==(const Language &) const = default;
};

/// The first of the user's languages that the dialog has texts in, else that of the source.
///
/// The languages are found as gettext does: LANGUAGE, a list, comes before LC_ALL, LC_MESSAGES and
/// LANG, but counts for nothing where these ask for no language at all ("C", other than "C.UTF-8").
/// Other than there, a locale needs not be installed.
Language languageOf(const QProcessEnvironment &environment);

/// Makes languageOf() the environment's the one of this process. The dialog's and the panels' texts
/// come through Qt, which follows LANGUAGE; those of a PPD through libcups, which does not, and
/// reads LC_MESSAGES before LC_ALL. Neither has to choose among several languages afterwards, where
/// the one might have texts that the other lacks. Nothing but the language of messages changes. To
/// be called before there is an application or a second thread.
void speakOneLanguage();

} // namespace corvana
