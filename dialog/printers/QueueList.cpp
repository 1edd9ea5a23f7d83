#include "dialog/printers/QueueList.h"

#include <algorithm>
#include <memory>
#include <utility>

#include <QCollator>
#include <QHash>

#include "dialog/printers/PrinterId.h"
#include "dialog/printers/QueueRequests.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

// A change shows within this time where the server is quick; a slow one is asked more rarely, so
// that it is busy with it for a twentieth of its time at most.
constexpr std::chrono::milliseconds kInterval = 3s;
constexpr int kIntervalInAnswers = 20;
// A server that is away is asked again by itself, but does not fill anybody's log.
constexpr std::chrono::milliseconds kIntervalOfTries = 10s;
// Servers answer in far less; from here on the user is told.
constexpr std::chrono::milliseconds kSlow = 2s;

// By what printers are called, as the user's language sorts; the sort keys are what costs.
QList<Printer> sorted(const QList<Printer> &printers)
{
    QCollator collator;
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<std::pair<QCollatorSortKey, qsizetype>> keys;
    keys.reserve(static_cast<size_t>(printers.size()));
    for (qsizetype i = 0; i < printers.size(); ++i)
        keys.emplace_back(collator.sortKey(printers.at(i).description), i);
    std::stable_sort(keys.begin(), keys.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    QList<Printer> result;
    result.reserve(printers.size());
    for (const auto &[key, index] : keys)
        result += printers.at(index);
    return result;
}

// Each queue, and behind it the user's instances of it.
QList<Printer> withInstances(const QList<Printer> &queues, const UserQueues &userQueues)
{
    // Of each queue at once: both may be very many.
    QHash<QString, QStringList> instancesOf;
    for (auto it = userQueues.options.keyBegin(); it != userQueues.options.keyEnd(); ++it) {
        if (it->contains(u'/'))
            instancesOf[foldedQueueName(queueOfInstance(*it))] += *it;
    }
    QList<Printer> all;
    all.reserve(queues.size());
    for (const Printer &queue : queues) {
        all += queue;
        const QStringList instances = instancesOf.value(foldedQueueName(queue.name));
        for (const QString &name : instances) {
            Printer instance = queue;
            instance.name = name;
            instance.description = u"%1/%2"_s.arg(queue.description, name.section(u'/', 1));
            all += instance;
        }
    }
    return all;
}

} // namespace

QueueList::QueueList(ServerContext context, UserQueues userQueues,
                     std::function<bool(const Printer &)> isOffered, QObject *parent)
    : QObject(parent), m_context(std::move(context)), m_userQueues(std::move(userQueues)),
      m_isOffered(std::move(isOffered))
{
    m_next.setSingleShot(true);
    m_slow.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, [this] { look(false); });
    connect(&m_slow, &QTimer::timeout, this, [this] {
        if (m_state == State::Looking)
            enter(State::Slow);
    });
}

void QueueList::start()
{
    if (!std::exchange(m_active, true) && !m_looking)
        look(false);
}

void QueueList::pause()
{
    m_active = false;
    m_next.stop();
}

void QueueList::questionPut()
{
    if (m_questions++ > 0)
        return;
    m_slow.stop();
    m_questioned.start();
}

void QueueList::questionAnswered()
{
    if (--m_questions > 0)
        return;
    m_waitedForUser += m_questioned.elapsed();
    if (m_looking)
        m_slow.start(kSlow);
}

void QueueList::retry()
{
    if (m_questions > 0)
        return;
    m_active = true;
    m_problem = {};
    enter(State::Looking);
    look(true);
}

QString QueueList::defaultName() const
{
    return m_userQueues.defaultName.isEmpty() ? m_serverDefault : m_userQueues.defaultName;
}

void QueueList::look(bool mayAsk)
{
    m_next.stop();
    m_slow.start(kSlow);
    m_started.start();
    m_waitedForUser = 0;
    m_looking = true;
    ServerContext context = m_context;
    context.mayAsk = mayAsk;
    // Only the first list is shown while it grows; later ones take its place as a whole.
    const bool growing = !m_everComplete;
    m_work = ServerWork(context, [this, growing](ServerWorker &worker) {
        const QString serverDefault = defaultQueue(worker.connection());
        // Only a server that has no default, or does not tell it, may still tell its queues; one
        // that was not let in, or is away, is not asked a second time.
        using Kind = ServerProblem::Kind;
        const Kind kind = worker.connection().problem().kind;
        const bool away = kind != Kind::None && kind != Kind::NotFound && kind != Kind::Refused &&
                          kind != Kind::Forbidden;
        // Only what is new is posted: a server may tell of a hundred thousand queues, and the whole
        // list posted with each page would fill the memory. `all` is of the GUI thread alone.
        const auto all = std::make_shared<QList<Printer>>();
        QList<Printer> news;
        qsizetype shown = 0;
        const auto show = [&](bool complete) {
            shown += news.size();
            worker.post([this, all, serverDefault, complete, more = std::exchange(news, {})] {
                *all += more;
                take(*all, serverDefault, complete);
            });
        };
        const bool listed =
            !away && listQueues(worker.connection(), [&](const QList<Printer> &page) {
                news += page;
                // To show a list takes the time of the whole of it, so it is shown again when it
                // has doubled.
                if (growing && news.size() >= shown)
                    show(false);
            });
        const ServerProblem problem = worker.connection().problem();
        if (listed || (growing && !news.isEmpty()))
            show(listed);
        worker.post([this, listed, problem] { finished(listed ? ServerProblem() : problem); });
    });
}

void QueueList::take(const QList<Printer> &printers, const QString &serverDefault, bool complete)
{
    m_serverDefault = serverDefault;
    QList<Printer> all = sorted(withInstances(printers, m_userQueues));
    if (m_isOffered)
        all.removeIf([this](const Printer &printer) { return !m_isOffered(printer); });
    const QString name = defaultName();
    for (Printer &printer : all)
        printer.isDefault = isCalled(printer, name);
    m_everComplete = m_everComplete || complete;
    if (std::exchange(m_printers, all) != all)
        Q_EMIT changed();
}

void QueueList::finished(const ServerProblem &problem)
{
    m_slow.stop();
    m_looking = false;
    m_problem = problem;
    const auto took = std::chrono::milliseconds(m_started.elapsed() - m_waitedForUser);
    if (m_active)
        m_next.start(problem ? kIntervalOfTries : std::max(kInterval, took * kIntervalInAnswers));
    enter(problem ? State::Failed : State::Known);
}

void QueueList::enter(State state)
{
    if (std::exchange(m_state, state) != state)
        Q_EMIT changed();
}

} // namespace corvana
