#include "tests/support/cups/CaptureDevice.h"

#include <algorithm>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QUrl>

#include "tests/support/cups/ServerFiles.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

/// Texts that each end with a NUL.
QStringList texts(const QByteArray &bytes)
{
    QStringList result;
    for (const QByteArray &text : bytes.split('\0'))
        result.append(QString::fromUtf8(text));
    result.removeLast();
    return result;
}

/// A run of the backend: job number and number of the document.
using Run = std::pair<int, int>;

QList<Run> runs(const QString &folder, const QString &suffix)
{
    static const QRegularExpression form(u"^(\\d+)-(\\d+)\\."_s);
    QList<Run> result;
    for (const QString &name : QDir(folder).entryList({u"*-*."_s + suffix}, QDir::Files)) {
        const QRegularExpressionMatch match = form.match(name);
        if (match.hasMatch())
            result.emplaceBack(match.captured(1).toInt(), match.captured(2).toInt());
    }
    std::sort(result.begin(), result.end());
    return result;
}

} // namespace

CaptureDevice &CaptureDevice::pages(int count)
{
    m_pages = count;
    return *this;
}

CaptureDevice &CaptureDevice::waitAtStart()
{
    m_waits.append(u"start"_s);
    return *this;
}

CaptureDevice &CaptureDevice::waitAtPages()
{
    m_waits.append(u"pages"_s);
    return *this;
}

CaptureDevice &CaptureDevice::waitAtEnd()
{
    m_waits.append(u"end"_s);
    return *this;
}

CaptureDevice &CaptureDevice::exitWith(BackendExit status)
{
    m_exit = static_cast<int>(status);
    return *this;
}

CaptureDevice &CaptureDevice::report(const QString &line)
{
    m_reports.append(line);
    return *this;
}

QString CaptureDevice::uri() const
{
    QStringList query{u"pages=%1"_s.arg(m_pages), u"exit=%1"_s.arg(m_exit)};
    for (const QString &point : m_waits)
        query.append(u"wait="_s + point);
    for (const QString &line : m_reports)
        query.append(u"report="_s + QString::fromLatin1(QUrl::toPercentEncoding(line)));
    return u"capture:"_s + QString::fromLatin1(QUrl::toPercentEncoding(m_folder, "/")) + u'?' +
           query.join(u'&');
}

void CaptureDevice::release(const QString &point) const
{
    QFile file(m_folder + u"/release-"_s + point);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(file.fileName()));
}

void CaptureDevice::withdrawReleases() const
{
    QDir folder(m_folder);
    for (const QString &name : folder.entryList({u"release-*"_s}, QDir::Files))
        folder.remove(name);
}

bool CaptureDevice::hasReached(int id, const QString &point) const
{
    return QFile::exists(u"%1/reached-%2-%3"_s.arg(m_folder).arg(id).arg(point));
}

QList<CapturedJob> CaptureDevice::jobs() const
{
    QList<CapturedJob> result;
    for (const auto &[id, document] : runs(m_folder, u"data"_s)) {
        const QString name = u"%1/%2-%3."_s.arg(m_folder).arg(id).arg(document);
        const QStringList arguments = texts(serverFile(name + u"arguments"_s));
        CapturedJob job;
        job.id = id;
        job.user = arguments.value(2);
        job.title = arguments.value(3);
        job.copies = arguments.value(4).toInt();
        job.options = arguments.value(5);
        for (const QString &line : texts(serverFile(name + u"environment"_s)))
            job.environment.insert(line.section(u'=', 0, 0), line.section(u'=', 1));
        job.data = serverFile(name + u"data"_s);
        result.append(job);
    }
    return result;
}

QList<int> CaptureDevice::begunJobs() const
{
    QList<int> result;
    for (const auto &[id, document] : runs(m_folder, u"arguments"_s)) {
        if (!result.contains(id))
            result.append(id);
    }
    return result;
}

} // namespace corvana::test
