#pragma once

#include <QString>

namespace corvana {

struct CommandLineOptions;

/// What `--help` writes: the options and what they do in two columns, the exit statuses, in lines
/// of 79 columns at most. Ideographs, kana and Hangul take two columns each.
QString commandLineHelp(const CommandLineOptions &options);

/// A text in lines of `columns` at most, all but the first behind `indent` blanks, which do not
/// count. Lines break at blanks and beside ideographs and kana, where their languages allow it; a
/// word that is longer than a line stays whole.
QString wrappedText(const QString &text, int columns, int indent);

/// How many columns of a terminal a text takes.
int columnsOf(const QString &text);

} // namespace corvana
