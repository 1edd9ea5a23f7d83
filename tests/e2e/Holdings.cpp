#include "tests/e2e/Holdings.h"

#include <algorithm>

#include <malloc.h>
#include <time.h>

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace corvana::test {

namespace {

int entriesIn(const QString &folder)
{
    // Neither "." nor "..".
    return static_cast<int>(
        QDir(folder)
            .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot)
            .size());
}

int everythingIn(const QString &folder)
{
    QDirIterator entries(folder,
                         QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    int count = 0;
    for (; entries.hasNext(); entries.next())
        ++count;
    return count;
}

// Each thread is asked: a child belongs to the thread that has started it.
int children()
{
    const QDir tasks(u"/proc/self/task"_s);
    int count = 0;
    for (const QString &thread : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile file(tasks.filePath(thread + u"/children"_s));
        if (file.open(QIODevice::ReadOnly))
            count +=
                static_cast<int>(file.readAll().simplified().count(' ')) + (file.pos() > 0 ? 1 : 0);
    }
    return count;
}

template <typename Value> Value median(QList<Value> values)
{
    const auto middle = values.begin() + values.size() / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

qint64 memoryIn(const QList<Holdings> &rounds, qsizetype from, qsizetype count)
{
    QList<qint64> values;
    for (const Holdings &round : rounds.mid(from, count))
        values += round.memory;
    return median(values);
}

template <typename What> int mostOf(const QList<Holdings> &rounds, const What &what)
{
    int most = 0;
    for (const Holdings &round : rounds)
        most = std::max(most, what(round));
    return most;
}

} // namespace

Holdings holdingsNow(const QString &temporary)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Holdings now;
    now.descriptors = entriesIn(u"/proc/self/fd"_s);
    now.threads = entriesIn(u"/proc/self/task"_s);
    now.children = children();
    now.temporaryFiles = everythingIn(temporary);
    now.widgets = static_cast<int>(QApplication::allWidgets().size());
    const struct mallinfo2 heap = mallinfo2();
    now.memory = static_cast<qint64>(heap.uordblks + heap.hblkhd);
    return now;
}

qint64 memoryPerRound(const QList<Holdings> &rounds)
{
    const qsizetype third = rounds.size() / 3;
    const qint64 early = memoryIn(rounds, rounds.size() - 2 * third, third);
    const qint64 late = memoryIn(rounds, rounds.size() - third, third);
    return (late - early) / third;
}

QString growthIn(const QList<Holdings> &rounds, qint64 mostBytes)
{
    const qsizetype third = rounds.size() / 3;
    QStringList problems;
    const std::pair<const char *, int Holdings::*> counted[] = {
        {"descriptors", &Holdings::descriptors}, {"threads", &Holdings::threads},
        {"children", &Holdings::children},       {"temporary files", &Holdings::temporaryFiles},
        {"widgets", &Holdings::widgets},
    };
    for (const auto &[name, member] : counted) {
        const auto value = [member = member](const Holdings &round) { return round.*member; };
        // What works beside the window is there in one round and gone in the next.
        const int early = mostOf(rounds.first(rounds.size() - third), value);
        const int late = mostOf(rounds.last(third), value);
        if (late > early)
            problems += u"%1: from %2 to %3"_s.arg(QLatin1StringView(name)).arg(early).arg(late);
    }
    if (const qint64 bytes = memoryPerRound(rounds); bytes > mostBytes)
        problems += u"memory: %1 bytes a round"_s.arg(bytes);
    return problems.join(u"; "_s);
}

qint64 threadTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return time.tv_sec * qint64(1000000000) + time.tv_nsec;
}

qint64 yardstickTime()
{
    // Some 3 ms, with glyphs that are known after the first time.
    constexpr int kLines = 60;
    constexpr QSize kPicture(800, 600);
    const qint64 start = threadTime();
    QTextDocument text;
    text.setPlainText(u"The quick brown fox jumps over the lazy dog.\n"_s.repeated(kLines));
    text.setTextWidth(kPicture.width());
    QImage picture(kPicture, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    text.drawContents(&painter);
    return threadTime() - start;
}

double slowdownIn(const QList<double> &times)
{
    const qsizetype tenth = times.size() / 10;
    return median(times.last(tenth)) / median(times.first(tenth));
}

} // namespace corvana::test
