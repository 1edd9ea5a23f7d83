#include "tests/mass/PpdCollection.h"

#include <algorithm>
#include <stdexcept>

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSet>

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        throw std::runtime_error(qPrintable(program + u" does not do its work"_s));
    return process.readAllStandardOutput();
}

// One line a PPD and device: "NAME" language "make" "model" "device". A PPD stands there once for
// each device that it is for, and its name then begins with another number.
QStringList namesOfDriver(const QString &driver)
{
    QStringList names;
    QSet<QString> known;
    const QList<QByteArray> lines = outputOf(driver, {u"list"_s}).split('\n');
    for (const QByteArray &line : lines) {
        const QString name = QString::fromUtf8(line).section(u'"', 1, 1);
        const QString file = name.section(u'/', 1);
        if (!file.isEmpty() && !known.contains(file)) {
            known += file;
            names += name;
        }
    }
    return names;
}

QStringList namesInFolder(const QString &folder)
{
    QStringList names;
    QDirIterator files(folder, {u"*.ppd"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        names += files.next();
    return names;
}

} // namespace

PpdCollection::PpdCollection(const QString &place)
{
    if (QFileInfo(place).isDir()) {
        m_names = namesInFolder(place);
    } else {
        m_driver = place;
        m_names = namesOfDriver(place);
    }
    if (m_names.isEmpty())
        throw std::runtime_error(qPrintable(u"no PPDs: "_s + place));
    std::sort(m_names.begin(), m_names.end());
}

NamedPpd PpdCollection::at(qsizetype index) const
{
    const QString name = m_names.at(index);
    if (!m_driver.isEmpty())
        return {name.section(u'/', -1), outputOf(m_driver, {u"cat"_s, name})};
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(qPrintable(name + u" cannot be read"_s));
    return {QFileInfo(name).fileName(), file.readAll()};
}

} // namespace corvana::test
