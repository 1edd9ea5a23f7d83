#include "dialog/policy/JobJournal.h"

#include <syslog.h>

#include "platform/foundation/ForeignText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Enough to know a name by. Units: characters.
constexpr qsizetype kLongest = 128;

QString quoted(const QString &text)
{
    QString shown = terminalLine(text.left(kLongest)).replace(u'"', u'\'').replace(u'\\', u'/');
    if (text.size() > kLongest)
        shown += u'…';
    return u'"' + shown + u'"';
}

} // namespace

QByteArray journalLine(const JournaledJob &job)
{
    QString line = u"print user=%1 printer=%2"_s.arg(quoted(job.user), quoted(job.printer));
    if (job.job > 0)
        line += u" job=%1"_s.arg(job.job);
    if (job.pages)
        line += u" pages=%1"_s.arg(*job.pages);
    if (job.sheets)
        line += u" sheets=%1"_s.arg(*job.sheets);
    line += job.isColor ? u" color=yes"_s : u" color=no"_s;
    line += u" outcome="_s + job.outcome;
    if (!job.title.isNull())
        line += u" title="_s + quoted(job.title);
    return line.toUtf8();
}

void writeToJournal(const QByteArray &line)
{
    ::openlog("corvana-print", LOG_PID, LOG_USER);
    ::syslog(LOG_INFO, "%s", line.constData());
    ::closelog();
}

} // namespace corvana
