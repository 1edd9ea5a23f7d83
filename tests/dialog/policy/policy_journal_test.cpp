#include <QTest>

#include "dialog/policy/JobJournal.h"

using namespace corvana;
using namespace Qt::StringLiterals;

/// The line of a job in the system's journal.
class PolicyJournalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aJobIsOneLine()
    {
        JournaledJob job;
        job.user = u"anna"_s;
        job.printer = u"lobby"_s;
        job.job = 12;
        job.pages = 9;
        job.sheets = 6;
        job.isColor = true;
        job.outcome = u"printed"_s;
        QCOMPARE(journalLine(job), "print user=\"anna\" printer=\"lobby\" job=12 pages=9 sheets=6 "
                                   "color=yes outcome=printed");
    }

    void whatIsNotKnownIsLeftOut()
    {
        QCOMPARE(journalLine({u"anna"_s, u"lobby"_s, 0, {}, {}, false, u"failed"_s, {}}),
                 "print user=\"anna\" printer=\"lobby\" color=no outcome=failed");
    }

    void noTextCanWriteAnotherLineOrAnotherField()
    {
        JournaledJob job;
        job.user = u"a\" printer=\"b"_s;
        job.printer = u"x\ny\r\x1b[2J\0z"_s;
        job.outcome = u"printed"_s;
        job.title = QString(5000, u'é') + u'\n';
        const QByteArray line = journalLine(job);
        QCOMPARE(line.count('"'), 6);
        for (const char c : line)
            QVERIFY(static_cast<unsigned char>(c) >= 0x20);
        QVERIFY(line.size() < 1024);
    }
};

QTEST_MAIN(PolicyJournalTest)
#include "policy_journal_test.moc"
