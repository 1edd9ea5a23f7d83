#pragma once

#include <QByteArray>
#include <QList>

#include "dialog/policy/PolicyEntry.h"

namespace corvana {

/// The bounds of a file of a policy. Units: bytes, lines, sections.
inline constexpr qsizetype kLargestPolicyFile = 262144;
inline constexpr qsizetype kLongestPolicyLine = 4096;
inline constexpr int kMostPolicyLines = 8192;
inline constexpr int kMostPolicySections = 512;

/// What a file says, as far as it can be understood.
struct PolicyFile
{
    QList<PolicyEntry> entries{};
    QList<PolicyProblem> problems{};
};

/// Reads the text of a file of a policy. The whole of its grammar, in UTF-8:
///
///     file     = { line }
///     line     = [ section | entry | comment ] end-of-line
///     comment  = ( "#" | ";" ) anything
///     section  = "[" ( "all" | part { "," part } ) "]"
///     part     = ( "printer" | "group" ) word { blank word }
///     word     = characters other than blanks, "," "]" and quotes; or anything in double quotes
///     entry    = key "=" value
///     key      = "hide" | "default." KEYWORD | ... (policyKeyForms())
///     value    = anything up to the end of the line, less the blanks around it
///
/// There is no entry before the first section, no comment behind something else, no continued line
/// and no quoting of values: what stands there is what is meant. A line that is not understood is
/// left out and named; a section that is not understood is left out with all of its entries, which
/// would otherwise belong to the section before.
///
/// `file` is its path, for what is said of it; `order` its place among the others.
/// Errors: a file that is too large, or that is no text, has one problem and no entries.
PolicyFile parsePolicyFile(const QByteArray &text, const QString &file, int order = 0);

} // namespace corvana
