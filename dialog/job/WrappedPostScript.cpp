#include "dialog/job/WrappedPostScript.h"

#include <algorithm>

#include <QIODevice>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Leaves whatever language is spoken for that of jobs, and so ends a document.
constexpr QByteArrayView kExit = "\x1B%-12345X";
constexpr QByteArrayView kCommand = "@PJL";
constexpr QByteArrayView kPostScript = "%!";
constexpr char kEndOfJob = '\x04'; // Ctrl-D
// What stands before and behind a document. Units: bytes.
constexpr qint64 kMostAround = 64 * 1024;
constexpr qint64 kBlock = 1 << 20;

bool isFiller(char c)
{
    return QByteArrayView("\0\t\n\r \x04", 6).contains(c);
}

bool startsAt(const QByteArray &text, qsizetype at, QByteArrayView with)
{
    return QByteArrayView(text).sliced(at).startsWith(with);
}

// What stands around a document, read from its beginning on.
struct Surroundings
{
    qsizetype end = 0;      // where something else begins
    bool hasExit = false;   // the language of jobs is spoken
    bool hasCtrlD = false;  // it is asked for another job
    bool isOther = false;   // another language than PostScript follows
    bool hasEnter = false;  // a document follows
    QStringList settings{}; // by their names

    void read(const QByteArray &text);
    void takeCommand(QByteArrayView line);
};

// "@PJL SET COPIES = 2", in letters of any size. "DEFAULT" outlasts the job; LPARM names a language
// before the setting.
void Surroundings::takeCommand(QByteArrayView line)
{
    const QByteArray text = line.sliced(kCommand.size()).toByteArray().simplified();
    const qsizetype blank = text.indexOf(' ');
    const QByteArray command = text.left(blank).toUpper();
    const QByteArray rest = blank < 0 ? QByteArray() : text.mid(blank + 1);
    if (command == "ENTER") {
        const QByteArray language = rest.mid(rest.indexOf('=') + 1).trimmed().toUpper();
        hasEnter = true;
        isOther = isOther || language != "POSTSCRIPT";
    }
    const qsizetype sign = rest.indexOf('=');
    if ((command != "SET" && command != "DEFAULT") || sign < 0)
        return;
    const QByteArray name = rest.left(sign).trimmed().toUpper();
    const QString setting = QString::fromLatin1(name.mid(name.lastIndexOf(' ') + 1));
    if (!setting.isEmpty() && !settings.contains(setting))
        settings += setting;
}

void Surroundings::read(const QByteArray &text)
{
    while (end < text.size()) {
        if (isFiller(text.at(end))) {
            hasCtrlD = hasCtrlD || text.at(end) == kEndOfJob;
            ++end;
        } else if (startsAt(text, end, kExit)) {
            hasExit = true;
            end += kExit.size();
        } else if (hasExit && text.mid(end, kCommand.size()).toUpper() == kCommand) {
            const qsizetype newline = text.indexOf('\n', end);
            const qsizetype next = newline < 0 ? text.size() : newline + 1;
            takeCommand(QByteArrayView(text).sliced(end, next - end));
            end = next;
        } else {
            return;
        }
    }
}

// Where the language of jobs is spoken again; else the end of the file.
qint64 findExit(QIODevice &file, qint64 begin)
{
    QByteArray rest;
    file.seek(begin);
    for (qint64 at = begin;;) {
        const QByteArray block = file.read(kBlock);
        if (block.isEmpty())
            return at + rest.size();
        rest += block;
        if (const qsizetype found = rest.indexOf(kExit); found >= 0)
            return at + found;
        const qsizetype kept = std::min(rest.size(), kExit.size() - 1);
        at += rest.size() - kept;
        rest = rest.right(kept);
    }
}

// A Ctrl-D at the end of a document, and blanks around it, are not part of it.
qint64 withoutCtrlD(QIODevice &file, qint64 begin, qint64 end)
{
    constexpr qint64 kTail = 256;
    const qint64 from = std::max(begin, end - kTail);
    file.seek(from);
    const QByteArray tail = file.read(end - from);
    const auto last = std::find_if_not(tail.crbegin(), tail.crend(), isFiller);
    const qsizetype kept = tail.crend() - last;
    return tail.indexOf(kEndOfJob, kept) < 0 ? end : from + kept;
}

} // namespace

bool mayBeWrapped(const QByteArray &beginning)
{
    Surroundings before;
    before.read(beginning);
    return before.hasExit || before.hasCtrlD;
}

std::optional<WrappedPostScript> findWrappedPostScript(QIODevice &file)
{
    file.seek(0);
    const QByteArray beginning = file.read(kMostAround);
    Surroundings before;
    before.read(beginning);
    if ((!before.hasExit && !before.hasCtrlD) || before.isOther ||
        !startsAt(beginning, before.end, kPostScript))
        return std::nullopt;
    const qint64 exit = findExit(file, before.end);
    file.seek(exit);
    const QByteArray behind = file.read(kMostAround);
    Surroundings after;
    after.read(behind);
    if (after.end < behind.size() || !file.atEnd() || after.hasEnter)
        return std::nullopt;
    return WrappedPostScript{before.end, withoutCtrlD(file, before.end, exit), before.settings};
}

} // namespace corvana
