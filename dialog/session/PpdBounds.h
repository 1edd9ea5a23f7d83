#pragma once

#include <QString>
#include <QtGlobal>

namespace corvana {

/// How much a PPD may say. libcups has no bounds of its own, and looks some things up one by one:
/// a hundred thousand papers keep it busy for minutes. Nobody could choose among as many either.
struct PpdBounds
{
    qint64 bytes = 32 * 1024 * 1024; ///< unpacked
    int options = 5'000;
    int choices = 5'000; ///< of one option
    int allChoices = 50'000;
    int sizes = 2'000; ///< of papers, each looked up among all of them
    int constraints = 20'000;
    int termsOfLine = 50;      ///< choices that one constraint names
    int terms = 40'000;        ///< and all of them together
    int resolverTerms = 2'000; ///< what is tried one by one where a constraint is in the way
    /// Constraints are asked for each option and for each choice of one: what they name, times
    /// these.
    qint64 questions = 10'000'000;
    int groups = 1'000;
    int attributes = 20'000;    ///< anything else; of each language by itself
    int sameAttributes = 5'000; ///< with one keyword: each is put behind all that are there
    int keywords = 40'000;      ///< that differ
};

/// Says what a PPD has too much of, and how much is allowed: a text for people, that does not name
/// the file. Empty where it is within bounds or cannot be read. Linear in the file, which may be
/// compressed as libcups takes it.
QString excessOfPpd(const QString &path, const PpdBounds &bounds = {});

} // namespace corvana
