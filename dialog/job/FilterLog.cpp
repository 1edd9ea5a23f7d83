#include "dialog/job/FilterLog.h"

#include <QFileInfo>

namespace corvana {

namespace {

// Whole words: of a secret nothing may be left that is not known for one.
void shorten(QByteArray &line)
{
    if (line.size() > FilterLog::kLongestLine)
        line.truncate(qMax(qsizetype(0), line.lastIndexOf(' ', FilterLog::kLongestLine)));
}

// "imagetopdf (PID 4711) stopped with status 1" is what the chain says of a filter, behind what the
// filter has said itself.
bool tellsOnlyThatItStopped(const QByteArray &line)
{
    const qsizetype number = line.indexOf(" (PID ");
    return number > 0 && line.indexOf(") stopped with status ", number) > 0;
}

} // namespace

void FilterLog::begin(const QString &program)
{
    *this = {};
    m_ownPrefix = QFileInfo(program).fileName().toUtf8() + ": ";
}

QByteArrayList FilterLog::add(const QByteArray &said)
{
    QByteArrayList lines = said.split('\n');
    const QByteArray rest = lines.takeLast();
    if (!lines.isEmpty()) {
        lines.first().prepend(m_line);
        m_line.clear();
    }
    m_line += rest.left(kLongestLine + 1 - m_line.size());
    for (QByteArray &line : lines) {
        shorten(line);
        take(line, &m_ofFilters, &m_own);
    }
    return lines;
}

QString FilterLog::error() const
{
    QString ofFilters = m_ofFilters;
    QString own = m_own;
    QByteArray line = m_line;
    shorten(line);
    take(line, &ofFilters, &own);
    return ofFilters.isEmpty() ? own : ofFilters;
}

void FilterLog::take(const QByteArray &line, QString *ofFilters, QString *own) const
{
    if (line.startsWith("ERROR:")) {
        if (ofFilters->isEmpty() || !tellsOnlyThatItStopped(line))
            *ofFilters = QString::fromUtf8(line.mid(6)).trimmed();
    } else if (own->isEmpty() && line.startsWith(m_ownPrefix)) {
        *own = QString::fromUtf8(line.mid(m_ownPrefix.size())).trimmed();
    }
}

} // namespace corvana
