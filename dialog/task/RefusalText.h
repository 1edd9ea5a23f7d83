#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "dialog/session/PpdSession.h"

namespace corvana {

/// An option and one of its choices in the words of the PPD: "“Media Type: Glossy”"; by their
/// keywords where it has no words for them. Passwords are dots.
QString choiceText(const OptionChoice &choice, const PpdSession &session);

/// What a refused choice says to a person, in the words of the PPD: "“Media Type: Glossy” cannot be
/// combined with “Two-Sided: Long-Edge”." Passwords are dots.
QString refusalText(const Refusal &refusal, const PpdSession &session);

/// The offer to make room: "Change to “Two-Sided: Off”".
QString wayOutText(const QList<OptionChoice> &wayOut, const PpdSession &session);

/// What is said of settings that a printer which comes back has not any more, a sentence each.
QString lostText(const QStringList &lost);

/// What was expected instead of pages that are typed in a form that nobody understands.
QString noPagesText(const QString &typed);

} // namespace corvana
