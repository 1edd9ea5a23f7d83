#include "dialog/printers/UserQueues.h"

#include <algorithm>

#include <QDir>
#include <QFile>

#include <cups/cups.h>

#include "dialog/printers/PrinterId.h"

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
void readLine(const QString &line, UserQueues *queues)
{
    const QString keyword = line.section(u' ', 0, 0, QString::SectionSkipEmpty).toLower();
    const QString rest = line.section(u' ', 1, -1, QString::SectionSkipEmpty).trimmed();
    const bool isDefault = keyword == "default"_L1;
    if ((!isDefault && keyword != "dest"_L1) || rest.isEmpty())
        return;
    const QString name = rest.section(u' ', 0, 0);
    if (isDefault)
        queues->defaultName = name;
    cups_option_t *parsed = nullptr;
    const int count = cupsParseOptions(rest.mid(name.size()).toUtf8().constData(), 0, &parsed);
    QList<JobOption> &options = queues->options[spellingOf(name, *queues)];
    for (int i = 0; i < count; ++i) {
        const JobOption option{QString::fromUtf8(parsed[i].name),
                               QString::fromUtf8(parsed[i].value)};
        options.removeIf([&](const JobOption &o) { return o.name == option.name; });
        options += option;
    }
    cupsFreeOptions(count, parsed);
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

UserQueues readUserQueues(const QStringList &files)
{
    UserQueues queues;
    for (const QString &name : files) {
        QFile file(name);
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
            continue;
        while (!file.atEnd())
            readLine(QString::fromUtf8(file.readLine()).simplified(), &queues);
    }
    return queues;
}

UserQueues readUserQueues()
{
    const QString root = qEnvironmentVariable("CUPS_SERVERROOT", u"/etc/cups"_s);
    UserQueues queues =
        readUserQueues({root + u"/lpoptions"_s, QDir::homePath() + u"/.cups/lpoptions"_s});
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
