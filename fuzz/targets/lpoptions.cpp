#include <algorithm>

#include <cups/file.h>

#include "dialog/printers/UserQueues.h"
#include "dialog/printers/UserQueuesFile.h"
#include "dialog/printers/UserQueuesLine.h"
#include "fuzz/support/MemoryFile.h"
#include "fuzz/support/Target.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

// As libcups reads a file of this form, with its own functions.
QList<UserQueuesLine> linesOfCups(const QByteArray &content)
{
    const MemoryFile memory(content);
    cups_file_t *file = cupsFileOpen(memory.path().toUtf8().constData(), "r");
    require(file != nullptr, "a file in memory can be opened");
    char line[8192];
    char *value = nullptr;
    int number = 0;
    QList<UserQueuesLine> lines;
    while (cupsFileGetConf(file, line, sizeof line, &value, &number)) {
        const QByteArray keyword = QByteArray(line).toLower();
        if ((keyword != "dest" && keyword != "default") || !value || !*value)
            continue;
        QByteArray rest = value;
        const auto end = std::find_if(rest.cbegin(), rest.cend(),
                                      [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); });
        const QByteArray name = rest.left(end - rest.cbegin());
        rest = rest.mid(name.size());
        while (!rest.isEmpty() && (rest.at(0) == ' ' || (rest.at(0) >= '\t' && rest.at(0) <= '\r')))
            rest.remove(0, 1);
        lines += UserQueuesLine{keyword == "default", name, rest};
    }
    cupsFileClose(file);
    return lines;
}

QList<UserQueuesLine> linesOf(const QByteArray &content)
{
    QList<UserQueuesLine> lines;
    for (const QByteArrayView line : linesOfUserQueues(content)) {
        if (const auto read = userQueuesLine(line))
            lines += *read;
    }
    return lines;
}

// Neither a line that libcups takes for several, nor a packed file.
bool isReadByLines(const QByteArray &content)
{
    const QList<QByteArrayView> lines = linesOfUserQueues(content);
    return !content.startsWith("\x1f\x8b") &&
           std::all_of(lines.cbegin(), lines.cend(),
                       [](QByteArrayView line) { return line.size() < kMostBytesOfLine; });
}

QList<JobOption> writableOptions(const QList<UserQueuesLine> &lines)
{
    QList<JobOption> options;
    for (const UserQueuesLine &line : lines) {
        for (const JobOption &option : optionsOfLine(line)) {
            const bool isThere =
                std::any_of(options.cbegin(), options.cend(), [&](const JobOption &o) {
                    return o.name.compare(option.name, Qt::CaseInsensitive) == 0;
                });
            if (!isThere && problemOfLine(option).isNull())
                options += option;
        }
    }
    return options;
}

QByteArray othersIn(const QByteArray &content, const QByteArray &name)
{
    QByteArray others;
    for (const QByteArrayView line : linesOfUserQueues(content)) {
        const auto read = userQueuesLine(line);
        if (!read || read->name.toLower() != name.toLower())
            others += line;
    }
    return others;
}

// What other programs can read. Of a line with more than one "#" libcups reads only the first.
bool isReadable(const QList<JobOption> &options)
{
    qsizetype signs = 0;
    qsizetype length = 0;
    for (const JobOption &option : options) {
        signs += option.value.count(u'#');
        length += option.name.size() + 2 * option.value.size();
        if (option.value.startsWith(u'{') ||
            !std::all_of(option.value.cbegin(), option.value.cend(),
                         [](QChar c) { return c >= u' ' && c <= u'~'; }))
            return false;
    }
    return signs <= 1 && length < 1000;
}

void requireInstanceIsWritten(const QByteArray &content, const QList<JobOption> &options)
{
    const QString name = u"queue/instance"_s;
    const QString problem = problemOfInstance(name, options);
    require(problem.isNull() || !isReadable(options), "what other programs can read is written",
            problem);
    if (!problem.isNull())
        return;
    const QByteArray changed = withInstance(content, name, options);
    const MemoryFile file(changed);
    const UserQueues queues = readUserQueues({file.path()});
    const QList<JobOption> read = queues.optionsOf(name);
    require(queues.hasInstance(name), "an instance that was written is there");
    for (const JobOption &option : options)
        require(read.contains(option), "an instance has the options that were written",
                option.name + u'=' + option.value);
    require(withInstance(changed, name, options) == changed, "writing it again changes nothing");
    const QByteArray before = othersIn(content, name.toUtf8());
    const QByteArray after = othersIn(changed, name.toUtf8());
    require(after == before || after == before + '\n', "every other line stays, byte by byte",
            QString::fromUtf8(after));
    const MemoryFile without(withoutInstance(changed, name));
    const UserQueues left = readUserQueues({without.path()});
    require(!left.hasInstance(name) || left.defaultName.contains(u'/'),
            "an instance that was removed is gone, unless it is the default");
}

/// Input: an lpoptions file. Its lines say what libcups reads in them; an instance that is written
/// into it has exactly the options that were given, every other line stays byte by byte, writing
/// it twice is writing it once, and removing it removes it.
void run(const QByteArray &input)
{
    QByteArray all;
    for (const QByteArrayView line : linesOfUserQueues(input))
        all += line;
    require(all == input, "the lines of a file are the file");
    const QList<UserQueuesLine> lines = linesOf(input);
    if (isReadByLines(input)) {
        const QList<UserQueuesLine> cups = linesOfCups(input);
        require(lines == cups, "a line says what libcups reads in it",
                u"%1 lines, libcups has %2"_s.arg(lines.size()).arg(cups.size()));
    }
    const MemoryFile file(input);
    const UserQueues queues = readUserQueues({file.path()});
    for (auto one = queues.options.cbegin(); one != queues.options.cend(); ++one)
        require(queues.optionsOf(one.key()) == *one || one.key().isEmpty(),
                "what was set for a queue is found by its name", one.key());
    for (const QString &name : queues.instancesOf(u"queue"_s))
        require(queues.hasInstance(name), "an instance that is listed is there", name);
    requireInstanceIsWritten(input, writableOptions(lines));
}

const Target target("lpoptions", run);

} // namespace

} // namespace corvana::fuzz
