#pragma once

#include <QString>
#include <QStringList>

namespace corvana {

/// The form in which texts are compared when somebody searches: without regard to case, accents and
/// the width of letters. Kana with a voicing mark are letters of their own.
QString searchForm(const QString &text);

/// The words of what was typed, each in the form of searchForm().
QStringList searchWords(const QString &typed);

} // namespace corvana
