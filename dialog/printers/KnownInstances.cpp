#include "dialog/printers/KnownInstances.h"

#include <iterator>

#include <QFile>
#include <QFileInfo>

#include "dialog/printers/PrinterId.h"

namespace corvana {

namespace {

// Those under whose names there is no work of ours in a file any more.
QStringList ofOthers(const QByteArray &lpoptions, const QStringList &names)
{
    const KnownInstances known = KnownInstances::with(lpoptions);
    const UserQueues users = userQueuesIn(lpoptions);
    QStringList others = names;
    others.removeIf(
        [&](const QString &name) { return known.own.contains(name) || !users.hasInstance(name); });
    return others;
}

QByteArray contentOf(const QString &path)
{
    // What is no file may have no end, or keep whoever opens it waiting.
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly)
               ? file.read(kMostBytesOfUserQueues)
               : QByteArray();
}

} // namespace

KnownInstances KnownInstances::read()
{
    return with(contentOf(ownUserQueues()));
}

KnownInstances KnownInstances::with(const QByteArray &lpoptions)
{
    KnownInstances known;
    known.ofSystem = userQueuesIn(contentOf(systemUserQueues()));
    known.queues = userQueuesIn(lpoptions, known.ofSystem);
    known.own = OwnInstances().read();
    // What the system's file has of that name is not ours.
    const UserQueues users = userQueuesIn(lpoptions);
    for (auto it = known.own.begin(); it != known.own.end();) {
        const bool isThere = users.hasInstance(it.key());
        // libcups adds what either file says of the queue.
        const bool isOurs = isThere
                                ? it->isAsWritten(users.optionsOf(it.key()),
                                                  known.queues.optionsOf(queueOfInstance(it.key())))
                                : !known.queues.hasInstance(it.key());
        if (!isOurs)
            known.changedByOthers.insert(it.key(), *it);
        it = isOurs ? std::next(it) : known.own.erase(it);
    }
    return known;
}

QString KnownInstances::ofPreset(const QString &preset, const QString &queue) const
{
    for (auto it = own.cbegin(); it != own.cend(); ++it) {
        if (it->settings == preset && !it->isByItself() &&
            isSameQueue(queueOfInstance(it.key()), queue) && queues.hasInstance(it.key()))
            return it.key();
    }
    return {};
}

QMap<QString, QString> changeInstances(const QList<InstanceLine> &lines, const OwnInstance &of)
{
    QMap<QString, QList<JobOption>> written;
    QStringList removed;
    for (const InstanceLine &line : lines) {
        if (line.options)
            written[line.name] = *line.options;
        else
            removed += line.name;
    }
    if (lines.isEmpty())
        return {};
    QMap<QString, QString> problems;
    QList<InstanceLine> possible = lines;
    const OwnInstances own;
    // First of all, so that what is written is known as ours whatever happens then.
    const QString unnoted = written.isEmpty() ? QString() : own.note(written, of);
    if (!unnoted.isEmpty()) {
        for (auto it = written.cbegin(); it != written.cend(); ++it)
            problems[it.key()] = unnoted;
        possible.removeIf([](const InstanceLine &line) { return line.options.has_value(); });
        written.clear();
    }
    problems.insert(UserQueuesFile().change(possible, ofOthers));
    // What stands there stays known as ours, however often this fails.
    QStringList failed = written.keys();
    failed.removeIf([&](const QString &name) { return !problems.contains(name); });
    if (!failed.isEmpty())
        own.noteFailure(failed);
    removed.removeIf([&](const QString &name) { return problems.contains(name); });
    const QString remembered = removed.isEmpty() ? QString() : own.forget(removed);
    if (!remembered.isEmpty())
        problems.insert({}, remembered);
    return problems;
}

} // namespace corvana
