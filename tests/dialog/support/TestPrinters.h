#pragma once

#include <memory>

#include <QByteArray>
#include <QString>

#include "dialog/session/PpdSession.h"
#include "tests/support/PpdBuilder.h"

namespace corvana::test {

/// The PPD of the sample printer that the project ships.
QString samplePpdPath();

/// A session for the sample printer. Errors: throws std::runtime_error.
std::unique_ptr<PpdSession> sampleSession();

/// A session for the printer that a PPD's text describes. Errors: throws std::runtime_error with
/// the message of the session.
std::unique_ptr<PpdSession> sessionFor(const QByteArray &ppdText);
inline std::unique_ptr<PpdSession> sessionFor(const PpdBuilder &ppd)
{
    return sessionFor(ppd.text());
}

/// A printer whose two trays exclude each other's media, with a two-sided option:
/// Duplex None, DuplexNoTumble, DuplexTumble; Tray Upper, Lower; Media Plain, Card, Film; Boost
/// OFF, ON; QXOutput and AP_ColorMatchingMode. Card cannot be printed on both sides (any two-sided
/// choice) and Film cannot come from the Lower tray; the Postcard paper cannot come from the Lower
/// tray.
PpdBuilder smallPrinter();

/// A printer that no panel knows, with texts in English, Japanese and Chinese: the groups "Paper",
/// "Finishing" (with a subgroup), "Security" and "Trays" of 22 options, and
/// one outside any group. "Sleep" takes 1 to 99, "Pin" 4 to 8 digits, "Mark" a text of 1 to 20
/// bytes, "Shift" two numbers. Transparency cannot be stapled.
PpdBuilder officePrinter();

/// Writes a file and answers its path. Errors: throws std::runtime_error.
QString writeFile(const QString &path, const QByteArray &content);

} // namespace corvana::test
