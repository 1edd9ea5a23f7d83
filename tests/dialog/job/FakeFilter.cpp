#include "tests/dialog/job/FakeFilter.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include "tests/dialog/support/TestPrinters.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {
bool isRunning(const QString &pid)
{
    // A process that has ended but was not waited for yet is gone as well.
    QFile status(u"/proc/%1/stat"_s.arg(pid));
    if (!status.open(QIODevice::ReadOnly))
        return false;
    const QByteArray state = status.readAll();
    return state.mid(state.lastIndexOf(')') + 2, 1) != "Z";
}

} // namespace

FakeFilter::FakeFilter(const QByteArray &script)
{
    const QString program = writeFile(
        path(u"filter"_s), "#!/bin/sh\nDIR='" + m_folder.path().toUtf8() + "'\n" + script);
    QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    m_named = std::make_unique<Variable>("CORVANA_PRINT_CUPSFILTER", program.toUtf8());
    writeFile(path(u"document.txt"_s), "a document\n");
    writeFile(ppdPath(), PpdBuilder().text());
}

Document FakeFilter::document() const
{
    return {path(u"document.txt"_s), u"application/postscript"_s, u"document.txt"_s};
}

QByteArray FakeFilter::content(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList FakeFilter::leftOvers() const
{
    return QDir(m_folder.path()).entryList({u"*.part*"_s}, QDir::AllEntries);
}

bool FakeFilter::waitForFile(const QString &name) const
{
    return QTest::qWaitFor([&] { return QFile::exists(path(name)); }, 10000);
}

bool FakeFilter::waitForEndOf(const QString &pidFile) const
{
    // A shell makes a file before it writes into it.
    QString pid;
    const auto isKnown = [&] {
        pid = QString::fromLatin1(content(pidFile).trimmed());
        return !pid.isEmpty();
    };
    return QTest::qWaitFor(isKnown, 10000) &&
           QTest::qWaitFor([&] { return !isRunning(pid); }, 10000);
}

} // namespace corvana::test
