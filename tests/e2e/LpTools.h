#pragma once

#include <algorithm>

#include <QProcess>
#include <QTest>

#include "tests/e2e/QueueRuns.h"
#include "tests/support/PrintedSides.h"

namespace corvana::test {

/// CUPS' own tools beside this program, for the same user at the same server.
class LpTools
{
public:
    LpTools(const PrivateCups &cups, const ProgramRunner &runner) : m_cups(cups), m_runner(runner)
    {
    }

    QProcessEnvironment environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, m_runner.filePath(QString()));
        environment.insert(u"CUPS_SERVER"_s, m_cups.server());
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        environment.remove(u"CUPS_SERVERROOT"_s);
        return environment;
    }
    /// What a tool writes; empty where it fails.
    QByteArray run(const QString &name, const QStringList &arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.start(name, arguments);
        process.waitForFinished();
        return process.exitCode() == 0 ? process.readAllStandardOutput() : QByteArray();
    }
    /// What the last job of a queue has become, without dates; waits for that.
    QByteArray lastStream(const QString &queue) const
    {
        const QList<KnownJob> jobs = m_cups.jobs(queue);
        const int last = jobs.isEmpty() ? 0 : jobs.last().id;
        if (!QTest::qWaitFor([&] { return m_cups.job(last).state >= IPP_JSTATE_CANCELED; },
                             kQueuePatience))
            return {};
        QByteArray data;
        const QList<CapturedJob> captured = m_cups.capture(queue).jobs();
        for (const CapturedJob &job : captured) {
            if (job.id == last)
                data += job.data;
        }
        return withoutDates(data);
    }
    /// Three pages, printed by lp to a queue or one of its instances; empty where it fails.
    QByteArray printedByLp(const QString &queue, const QStringList &arguments) const
    {
        const QStringList all = QStringList{u"-t"_s, kTitle} + arguments + QStringList{kThreePages};
        return run(u"lp"_s, all).isEmpty() ? QByteArray() : lastStream(queue);
    }
    /// The same, printed by this program.
    QByteArray printedHere(const QString &queue, const QStringList &arguments) const
    {
        const RunEnd end = m_runner.run(QStringList{u"--no-dialog"_s, u"-t"_s, kTitle} + arguments +
                                        QStringList{kThreePages});
        [&] { QVERIFY2(end.status == 0, end.text().constData()); }();
        return lastStream(queue);
    }
    QByteArray userOptions() const { return readAll(m_runner.filePath(u".cups/lpoptions"_s)); }
    /// Of an instance in the user's lpoptions, in alphabetical order, without its name.
    QByteArray optionsOf(const QByteArray &instance) const
    {
        for (const QByteArray &line : userOptions().split('\n')) {
            QByteArrayList words = line.split(' ');
            if (words.value(1) != instance)
                continue;
            words.remove(0, 2);
            std::sort(words.begin(), words.end());
            return ' ' + words.join(' ');
        }
        return {};
    }

private:
    static inline const QString kTitle = u"letters"_s;

    const PrivateCups &m_cups;
    const ProgramRunner &m_runner;
};

} // namespace corvana::test
