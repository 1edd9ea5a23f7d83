#include "dialog/printers/UserQueues.h"

#include <algorithm>

#include <QFile>
#include <QFileInfo>

#include "dialog/printers/PrinterId.h"
#include "dialog/printers/UserQueuesFile.h"
#include "dialog/printers/UserQueuesLine.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Of a queue that was named before, as it was then.
QString spellingOf(const QString &name, const UserQueues &queues)
{
    const auto found = std::find_if(queues.options.keyBegin(), queues.options.keyEnd(),
                                    [&](const QString &key) { return isSameQueue(key, name); });
    return found == queues.options.keyEnd() ? name : *found;
}

// libcups reads such a line itself only while it asks a server.
void readLine(QByteArrayView line, UserQueues *queues)
{
    const std::optional<UserQueuesLine> read = userQueuesLine(line);
    if (!read)
        return;
    const QString name = QString::fromUtf8(read->name);
    if (read->isDefault)
        queues->defaultName = name;
    QList<JobOption> &options = queues->options[spellingOf(name, *queues)];
    const QList<JobOption> added = optionsOfLine(*read);
    for (const JobOption &option : added) {
        options.removeIf([&](const JobOption &o) { return o.name == option.name; });
        options += option;
    }
}

void readLines(const QByteArray &content, UserQueues *queues)
{
    const QList<QByteArrayView> lines = linesOfUserQueues(content);
    for (const QByteArrayView line : lines)
        readLine(line, queues);
}

} // namespace

QList<JobOption> UserQueues::optionsOf(const QString &name) const
{
    return options.value(spellingOf(name, *this));
}

bool UserQueues::hasInstance(const QString &name) const
{
    return !name.contains(u'/') || options.contains(spellingOf(name, *this));
}

QStringList UserQueues::instancesOf(const QString &queue) const
{
    QStringList instances;
    for (auto it = options.cbegin(); it != options.cend(); ++it) {
        if (it.key().contains(u'/') && isSameQueue(queueOfInstance(it.key()), queue))
            instances += it.key();
    }
    return instances;
}

UserQueues userQueuesIn(const QByteArray &content, const UserQueues &before)
{
    UserQueues queues = before;
    readLines(content, &queues);
    return queues;
}

UserQueues readUserQueues(const QStringList &files)
{
    UserQueues queues;
    for (const QString &name : files) {
        // What is no file may have no end, or keep whoever opens it waiting.
        QFile file(name);
        if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly))
            continue;
        readLines(file.read(kMostBytesOfUserQueues), &queues);
    }
    return queues;
}

UserQueues readUserQueues()
{
    UserQueues queues = readUserQueues({systemUserQueues(), ownUserQueues()});
    const QString printer = qEnvironmentVariable("PRINTER");
    // "lp" is what old programs set without anybody having chosen it.
    if (!printer.isEmpty() && printer != "lp"_L1)
        queues.defaultName = printer;
    const QString destination = qEnvironmentVariable("LPDEST");
    if (!destination.isEmpty())
        queues.defaultName = destination;
    return queues;
}

QString queueOfInstance(const QString &name)
{
    return name.section(u'/', 0, 0);
}

} // namespace corvana
