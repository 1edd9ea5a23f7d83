#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include "dialog/terminal/OutcomeLine.h"

using namespace corvana;
using namespace Qt::StringLiterals;
using Kind = JobOutcome::Kind;

/// What becomes of a job, for programs.
class OutcomeLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingThatIsKnownIsInOneLine()
    {
        JobOutcome outcome{JobOutcome::Kind::Failed, 8, u"Job office-8 failed."_s};
        outcome.queue = u"office"_s;
        outcome.reasons = {u"aborted-by-system"_s, u"document-format-error"_s};
        outcome.pages = 3;
        QCOMPARE(outcomeLine(outcome),
                 QByteArray("{\"file\":null,\"job\":8,\"message\":\"Job office-8 failed.\","
                            "\"pages\":3,\"queue\":\"office\",\"reasons\":"
                            "[\"aborted-by-system\",\"document-format-error\"],"
                            "\"state\":\"failed\"}\n"));
    }

    void whatIsNotKnownIsNull()
    {
        const QJsonObject line = read(outcomeLine({JobOutcome::Kind::Unknown, 0, {}}));
        for (const char *key : {"job", "queue", "pages", "file", "message"})
            QVERIFY2(line.contains(QLatin1StringView(key)) &&
                         line.value(QLatin1StringView(key)).isNull(),
                     key);
        QCOMPARE(line.value("reasons"_L1).toArray(), QJsonArray());
        QCOMPARE(line.value("state"_L1).toString(), u"unknown"_s);
    }

    void everyStateHasAKeywordOfItsOwn()
    {
        QStringList states;
        for (const Kind kind :
             {Kind::Printed, Kind::Sent, Kind::InQueue, Kind::Stopped, Kind::Failed, Kind::Canceled,
              Kind::Refused, Kind::Unknown, Kind::AlreadyThere, Kind::PrinterChanged})
            states += read(outcomeLine({kind, 0, {}})).value("state"_L1).toString();
        // By a queue or by the dialog: no job was made.
        QVERIFY(states.contains(read(refusalLine({}, {})).value("state"_L1).toString()));
        QVERIFY(!states.contains(QString()));
        QCOMPARE(states.removeDuplicates(), 0);
    }

    // Queues, printers and files are called what others like.
    void whateverANameSaysTheLineIsOneAndIsReadAsItWas()
    {
        const QString hostile = u"a\"b\\c\nd\te\u2028f\u001bg 会 🖨 ',{}[]"_s;
        JobOutcome outcome{JobOutcome::Kind::Printed, 0, hostile};
        outcome.file = hostile;
        outcome.queue = hostile;
        outcome.reasons = {hostile};
        const QByteArray line = outcomeLine(outcome);
        QCOMPARE(line.count('\n'), 1);
        QVERIFY(line.endsWith('\n'));
        QVERIFY(!line.contains('\x1b'));
        const QJsonObject object = read(line);
        for (const char *key : {"file", "queue", "message"})
            QCOMPARE(object.value(QLatin1StringView(key)).toString(), hostile);
        QCOMPARE(object.value("reasons"_L1).toArray().first().toString(), hostile);
    }

    void whatWasRefusedSaysWhy()
    {
        const QJsonObject line = read(refusalLine(u"office"_s, {u"A=1"_s, u"B=2"_s}));
        QCOMPARE(line.value("state"_L1).toString(), u"refused"_s);
        QCOMPARE(line.value("queue"_L1).toString(), u"office"_s);
        QCOMPARE(line.value("message"_L1).toString(), u"A=1\nB=2"_s);
    }

private:
    static QJsonObject read(const QByteArray &line)
    {
        QJsonParseError error;
        const QJsonObject object = QJsonDocument::fromJson(line, &error).object();
        if (error.error != QJsonParseError::NoError)
            QTest::qFail(qPrintable(error.errorString()), __FILE__, __LINE__);
        return object;
    }
};

QTEST_GUILESS_MAIN(OutcomeLineTest)

#include "outcome_line_test.moc"
