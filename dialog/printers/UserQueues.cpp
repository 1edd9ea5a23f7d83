#include "dialog/printers/UserQueues.h"

#include <algorithm>
#include <utility>

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSet>

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

// Reads the lines of files that may have very many of them: each is looked at once.
class Reader
{
public:
    explicit Reader(const UserQueues &before) : m_queues(before)
    {
        for (auto it = before.options.keyBegin(); it != before.options.keyEnd(); ++it)
            m_spellings.insert(foldedQueueName(*it), *it);
    }

    void readLines(const QByteArray &content)
    {
        const QList<QByteArrayView> lines = linesOfUserQueues(content);
        for (const QByteArrayView line : lines)
            readLine(line);
    }

    // The last line that names an option counts.
    UserQueues queues()
    {
        for (const QString &name : std::as_const(m_named)) {
            QList<JobOption> &options = m_queues.options[name];
            QSet<QString> said;
            QList<JobOption> once;
            for (auto option = options.crbegin(); option != options.crend(); ++option) {
                if (!said.contains(option->name)) {
                    said.insert(option->name);
                    once.prepend(*option);
                }
            }
            options = once;
        }
        return m_queues;
    }

private:
    // libcups reads such a line itself only while it asks a server.
    void readLine(QByteArrayView line)
    {
        const std::optional<UserQueuesLine> read = userQueuesLine(line);
        if (!read)
            return;
        const QString name = QString::fromUtf8(read->name);
        if (read->isDefault)
            m_queues.defaultName = name;
        // A queue that was named before is called as it was then.
        QString &spelling = m_spellings[foldedQueueName(name)];
        if (spelling.isNull())
            spelling = name;
        m_queues.options[spelling] += optionsOfLine(*read);
        m_named.insert(spelling);
    }

    UserQueues m_queues;
    QHash<QString, QString> m_spellings; // by their folded names
    QSet<QString> m_named;               // in these files
};

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
    Reader reader(before);
    reader.readLines(content);
    return reader.queues();
}

UserQueues readUserQueues(const QStringList &files)
{
    Reader reader({});
    for (const QString &name : files) {
        // What is no file may have no end, or keep whoever opens it waiting.
        QFile file(name);
        if (!QFileInfo(name).isFile() || !file.open(QIODevice::ReadOnly))
            continue;
        reader.readLines(file.read(kMostBytesOfUserQueues));
    }
    return reader.queues();
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
