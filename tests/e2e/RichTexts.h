#pragma once

#include <QString>
#include <QStringList>

namespace corvana::test {

/// What of the texts that hold `mark` is rendered as markup somewhere in this process.
struct ShownTexts
{
    QStringList rich; ///< where, and the text
    int plain = 0;    ///< labels, buttons and items that show such a text as it is
    int toolTips = 0; ///< tool tips that show such a text as it is
};

/// Walks all widgets of this process, visible or not: labels, tool tips, "What's this?" texts,
/// tabs, documents, actions, and the items of every list. With `byPointer` the pointer also rests
/// on everything that is visible, for tool tips that are made only then.
ShownTexts shownTexts(const QString &mark, bool byPointer = true);

} // namespace corvana::test
