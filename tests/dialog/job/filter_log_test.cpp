#include <QObject>
#include <QTest>

#include "dialog/job/FilterLog.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class FilterLogTest : public QObject
{
    Q_OBJECT

private:
    FilterLog m_log;

private Q_SLOTS:
    void init() { m_log.begin(u"/usr/sbin/cupsfilter"_s); }

    void aLineMayComeInPieces()
    {
        QCOMPARE(m_log.add("INFO: on"), QByteArrayList());
        QCOMPARE(m_log.add("e\nINFO: two\nERR"), (QByteArrayList{"INFO: one", "INFO: two"}));
        QCOMPARE(m_log.add("OR: three"), QByteArrayList());
        QCOMPARE(m_log.error(), u"three"_s);
        QCOMPARE(m_log.add("\n"), QByteArrayList{"ERROR: three"});
        QCOMPARE(m_log.error(), u"three"_s);
    }

    void whatFiltersSaidLastCountsMoreThanWhatTheProgramSaidFirst()
    {
        QVERIFY(m_log.error().isNull());
        m_log.add("cupsfilter: no way\ncupsfilter: nothing came\n");
        QCOMPARE(m_log.error(), u"no way"_s);
        m_log.add("ERROR: first\nERROR: last\nINFO: more\n");
        QCOMPARE(m_log.error(), u"last"_s);
        m_log.begin(u"pstops"_s);
        QVERIFY(m_log.error().isNull());
    }

    void whyAFilterStoppedCountsMoreThanThatItDid()
    {
        m_log.add("ERROR: No such picture!\nERROR: imagetopdf (PID 4711) stopped with status 1\n");
        QCOMPARE(m_log.error(), u"No such picture!"_s);
        m_log.add("ERROR: pdftopdf (PID 4712) crashed on signal 11\n");
        QCOMPARE(m_log.error(), u"pdftopdf (PID 4712) crashed on signal 11"_s);
        m_log.begin(u"cupsfilter"_s);
        m_log.add("ERROR: imagetopdf (PID 4711) stopped with status 1\n");
        QCOMPARE(m_log.error(), u"imagetopdf (PID 4711) stopped with status 1"_s);
    }

    // As a program in PostScript can write it.
    void whatHasNoEndIsNotKept()
    {
        const QByteArray piece(1 << 20, 'x');
        for (int i = 0; i < 1000; ++i)
            QCOMPARE(m_log.add(piece), QByteArrayList());
        const QByteArrayList lines = m_log.add("\nERROR: " + piece + " y\n");
        QCOMPARE(lines.size(), 2);
        for (const QByteArray &line : lines)
            QVERIFY(line.size() <= FilterLog::kLongestLine);
        QVERIFY(m_log.error().size() <= FilterLog::kLongestLine);
    }

    void nothingIsLeftOfAWordThatIsCut()
    {
        const QByteArray line =
            "INFO: " + QByteArray(FilterLog::kLongestLine - 10, 'x') + " secret";
        QVERIFY(!m_log.add(line + '\n').constFirst().contains("sec"));
        m_log.add("ERROR: " + line);
        QVERIFY(!m_log.error().contains("sec"_L1));
    }
};

QTEST_GUILESS_MAIN(FilterLogTest)

#include "filter_log_test.moc"
