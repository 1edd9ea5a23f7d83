#include "dialog/job/PostScriptPages.h"

#include <algorithm>

#include <QByteArray>
#include <QFile>

namespace corvana {

namespace {

constexpr auto kStructured = "%!PS-Adobe-"; // what structures itself by comments begins so
constexpr QByteArrayView kMark = "%%Page:";
constexpr qint64 kLongestFirstLine = 256;
constexpr qint64 kBlock = 1 << 20; // bytes
// The user waits for it. What is longer can always be printed as if it marked nothing.
constexpr qint64 kMostBytes = qint64(128) << 20;

bool endsLine(char c)
{
    return c == '\n' || c == '\r';
}

// How often a line of a block begins with a mark; the block begins with a line, or goes on with the
// end of the former one.
int marksIn(const QByteArray &block)
{
    int marks = 0;
    for (qsizetype at = block.indexOf(kMark); at >= 0; at = block.indexOf(kMark, at + 1)) {
        if (at > 0 && endsLine(block.at(at - 1)))
            ++marks;
    }
    return marks;
}

} // namespace

bool isEncapsulated(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray beginning = file.read(kLongestFirstLine);
    const QByteArray line(beginning.cbegin(),
                          std::find_if(beginning.cbegin(), beginning.cend(), endsLine) -
                              beginning.cbegin());
    return line.startsWith(kStructured) && line.contains(" EPSF-");
}

bool marksPages(const QString &path, int pages)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMostBytes ||
        !file.peek(kLongestFirstLine).startsWith(kStructured))
        return false;
    int marks = 0;
    // What could be the beginning of a mark stands before the next block once more.
    for (QByteArray rest; !file.atEnd() && marks <= pages;) {
        const QByteArray block = rest + file.read(kBlock);
        marks += marksIn(block);
        rest = block.right(kMark.size());
    }
    return marks == pages;
}

} // namespace corvana
