#pragma once

#include <QList>
#include <QString>

namespace corvana::test {

/// What the process of a test holds at one moment.
struct Holdings
{
    qint64 memory = 0; ///< that is allocated just then. Units: bytes; 0 under a sanitizer
    int descriptors = 0;
    int threads = 0;
    int children = 0;       ///< processes
    int temporaryFiles = 0; ///< files and folders
    int widgets = 0;
};

/// Counts it, after everything that waits to be deleted has gone. `temporary` is the folder of
/// temporary files.
Holdings holdingsNow(const QString &temporary);

/// What grew from round to round, in sentences; null where nothing did. The first third of the
/// rounds fills caches and says nothing of memory; the medians of the others are compared. Of all
/// else the last third may not have more than any round before. `mostBytes`: how much memory a
/// round may leave behind.
QString growthIn(const QList<Holdings> &rounds, qint64 mostBytes);
/// How much memory a round left behind, compared like that. Units: bytes
qint64 memoryPerRound(const QList<Holdings> &rounds);

/// Processor time that the calling thread has used. Units: nanoseconds
qint64 threadTime();
/// Processor time of work that is the same each time: a text is laid out and painted. A machine that
/// becomes slower, because of its heat or of what else runs there, becomes slower for this, too.
/// Units: nanoseconds
qint64 yardstickTime();
/// How many times as long the last tenth of the acts took as the first one, by their medians. At
/// least ten acts.
double slowdownIn(const QList<double> &times);

} // namespace corvana::test
