#include <QDir>
#include <QTest>

#include "tests/e2e/QueueRuns.h"
#include "tests/support/Rows.h"

using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// A run under a policy.
struct Run
{
    const char *name;
    const char *policy; ///< what it says of all printers
    const char *queue;
    const char *options;        ///< blanks between them
    const char *code = nullptr; ///< "OPTION=CHOICE" that the printer gets
    const char *err = "";       ///< what is said; where there is no code, nothing is printed
};
constexpr Run kRuns[] = {
    {"a value of panels, without them", "lock.QXDensityAdjustment=2", "bare", "",
     "\n2\n<</CorvanaOption(QXDensityAdjustment=Custom)"},
    {"an option against it", "lock.QXDensityAdjustment=2", "bare",
     "-o QXDensityAdjustment=Custom.5", nullptr,
     "“Density Adjustment” is set by your administrator"},
    {"a raw queue does what it can", "lock.number-up=2", "raw", "", "three"},
    {"a raw queue is asked for what it cannot do", "lock.number-up=2", "raw", "-o number-up=4",
     nullptr, "number-up=4 cannot be done"},
    {"raw is locked alone", "lock.raw=false", "office", "-o raw", nullptr,
     "“raw” is set by your administrator"},
    {"nobody wants raw", "lock.raw=false", "office", "-o raw=false -o QXMediaType=Thick",
     "(QXMediaType=Thick)"},
    {"instructions", "lock.job-hold-until=no-hold", "office", "-o QXMediaType=Label", nullptr,
     "“Hold Until” is set by your administrator"},
    {"instructions are to be waited for", "lock.job-hold-until=no-hold", "office",
     "--on-alert=hold -o QXMediaType=Label", nullptr, "“Hold Until” is set by your administrator"},
    {"instructions are followed", "lock.job-hold-until=no-hold", "office",
     "--on-alert=print -o QXMediaType=Label", "(QXMediaType=Label)", "Open the back cover"},
    {"a file", "file-output=no", "pdf", "", nullptr,
     "Printing to a file is not offered by your administrator"},
};

} // namespace

/// Runs without a window under an administrator's policy: nothing gets around it, and nothing false
/// is said of it.
class QueuePolicyTest : public QueueRuns
{
    Q_OBJECT

private:
    QString write(const QString &name, const QByteArray &content)
    {
        QFile file(m_runner->filePath(name));
        if (!QDir().mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly))
            return {};
        file.write(content);
        return file.fileName();
    }
    void decide(const QByteArray &what)
    {
        const QString file = write(u"policy/10.conf"_s, "[all]\n" + what + '\n');
        m_runner->setVariable(u"CORVANA_PRINT_POLICY"_s, QFileInfo(file).path());
        m_runner->setVariable(u"CORVANA_PRINT_PANELS"_s, write(u"panels.conf"_s, "none bare\n"));
    }

private Q_SLOTS:
    void aPolicyHolds_data() { addRows(kRuns); }
    void aPolicyHolds()
    {
        const Run &row = currentRow(kRuns);
        const QString queue = QString::fromUtf8(row.queue);
        m_cups->addQueue(u"office"_s, kPpd);
        m_cups->addQueue(u"bare"_s, kPpd);
        m_cups->addRawQueue(u"raw"_s);
        decide(row.policy);
        const QString document = write(u"a.txt"_s, "three\n");
        const RunEnd end = m_runner->run(
            QStringList{u"-d"_s, queue} +
            QString::fromUtf8(row.options).split(u' ', Qt::SkipEmptyParts) + QStringList{document});
        QVERIFY2(end.err.contains(QString::fromUtf8(row.err)), end.text().constData());
        QVERIFY2(end.status == (row.code ? 0 : 1), end.text().constData());
        QCOMPARE(m_cups->jobs().size(), row.code ? 1 : 0);
        QVERIFY2(!end.out.contains(u"It waits"_s), end.text().constData());
        if (row.code)
            QVERIFY(m_cups->capture(queue).jobs().value(0).data.contains(row.code));
    }

    void aVoidLockOfARawQueueIsNamed()
    {
        m_cups->addRawQueue(u"raw"_s);
        decide("lock.number-up=2\nlock.copies=1");
        const RunEnd end = m_runner->run({u"--check-policy"_s, u"-d"_s, u"raw"_s});
        QCOMPARE(end.status, 1);
        QVERIFY2(end.out.contains(u"number-up=2 cannot be done"_s), end.text().constData());
        QVERIFY2(!end.out.contains(u"copies=1 cannot"_s), end.text().constData());
    }
};

QTEST_GUILESS_MAIN(QueuePolicyTest)

#include "queue_policy_test.moc"
