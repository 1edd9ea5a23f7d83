#pragma once

#include <memory>

#include <QByteArray>

#include "dialog/session/PpdSession.h"

namespace corvana::fuzz {

/// The session of a PPD. Null for a PPD that is refused, which has to have a reason.
std::unique_ptr<PpdSession> sessionOf(const QByteArray &ppd);

/// What has to be true of any session at any time: every marked choice stands in the print settings
/// under its option's keyword, and is one of the option's choices.
void requireMarksAreEntries(const PpdSession &session);

/// Goes to every choice of every option, or to some from all over a PPD that has too many, which
/// differ with the input; and back. What is accepted is marked and in the job; what is not accepted
/// changes nothing; and the way back leads to exactly what was there before.
void requireChoicesArePrintable(PpdSession &session, const QByteArray &input);

/// What a sample printer of the project has for a PPD.
QByteArray samplePpd();

/// The PPD of a printer without panels, whose options have the names that CUPS knows.
QByteArray officePpd();

} // namespace corvana::fuzz
