#include <QTest>

#include "dialog/server/IppGate.h"
#include "tests/dialog/server/IppBytes.h"

using namespace corvana;
using namespace corvana::test;

namespace {

struct Row
{
    const char *what;
    QByteArray printer; // the bytes of the answer's group about printers
    bool passes;
};

// The group itself counts as an attribute.
constexpr IppBounds kBounds{.nesting = 2, .attributes = 5, .values = 6, .texts = 4, .built = 2000};

// A name, and values that differ.
QByteArray texts(int values)
{
    QByteArray bytes;
    for (int i = 0; i < values; ++i)
        bytes += ippField(IPP_TAG_TEXT, i == 0 ? "t" : "", QByteArray::number(i));
    return bytes;
}

QList<Row> rows()
{
    const QByteArray number = ippNumberField("n");
    const QByteArray more = ippNumberField({});
    const QByteArray group(1, static_cast<char>(IPP_TAG_JOB));
    return {
        {"nothing", {}, true},
        {"as many attributes as there may be", number.repeated(4), true},
        {"one attribute too many", number.repeated(5), false},
        {"groups count as attributes", number + group.repeated(3), true},
        {"one group too many", number + group.repeated(4), false},
        {"members count as attributes",
         ippBegin("c") + (ippMember("m") + more).repeated(3) + ippEnd(), true},
        {"one member too many", ippBegin("c") + (ippMember("m") + more).repeated(4) + ippEnd(),
         false},
        {"as many values as there may be", number + more.repeated(5), true},
        {"one value too many", number + more.repeated(6), false},
        {"values without bytes count",
         ippField(IPP_TAG_NOVALUE, "n", {}).repeated(1) +
             ippField(IPP_TAG_NOVALUE, {}, {}).repeated(6),
         false},
        {"as many texts as there may be", texts(3), true},
        {"one text too many", texts(4), false},
        {"a text that is there already is none more",
         texts(3) + ippField(IPP_TAG_TEXT, {}, "1") + ippField(IPP_TAG_TEXT, {}, "2"), true},
        {"names are texts",
         ippNumberField("a") + ippNumberField("b") + ippNumberField("c") +
             ippField(IPP_TAG_TEXT, {}, "d") + ippField(IPP_TAG_TEXT, {}, "e"),
         false},
        {"as deep as there may be", ippNested(2), true},
        {"too deep", ippNested(3), false},
        {"collections beside each other are not nested",
         ippBegin("c") + ippEnd() + (ippBegin() + ippEnd()).repeated(5), true},
        {"long texts, as much as there may be", ippField(IPP_TAG_TEXT, "t", QByteArray(1600, 'x')),
         true},
        {"texts that are too long", ippField(IPP_TAG_TEXT, "t", QByteArray(2000, 'x')), false},
        {"names that are too long", ippNumberField(QByteArray(2000, 'x')), false},
        {"member names that are too long",
         ippBegin("c") + ippMember(QByteArray(2000, 'x')) + more + ippEnd(), false},
        {"collections are not for nothing",
         ippBegin("c") + QByteArray(ippEnd() + ippBegin()).repeated(5) + ippEnd() +
             ippField(IPP_TAG_TEXT, "t", QByteArray(1000, 'x')),
         false},
        {"an end that ends nothing", ippEnd(), false},
        {"an end too many", ippNested(1) + ippEnd(), false},
        {"an end with a name", ippBegin("c") + ippField(IPP_TAG_END_COLLECTION, "e", {}), false},
        {"a member's name with a name",
         ippBegin("c") + ippField(IPP_TAG_MEMBERNAME, "m", "m") + more + ippEnd(), false},
        {"a group within a collection", ippBegin("c") + group, false},
        {"the end of the message within a collection", ippBegin("c"), false},
        {"a tag of four bytes", ippField(IPP_TAG_EXTENSION, "e", "1234"), false},
    };
}

bool passes(const QByteArray &message, qsizetype piece)
{
    IppGate gate(kBounds);
    for (qsizetype at = 0; at < message.size(); at += piece) {
        const QByteArray bytes = message.mid(at, piece);
        if (!gate.pass(reinterpret_cast<const unsigned char *>(bytes.constData()),
                       static_cast<size_t>(bytes.size())))
            return false;
    }
    return true;
}

} // namespace

/// What is let through to libcups.
class IppGateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMessageBeyondItsBoundsIsStopped_data()
    {
        QTest::addColumn<QByteArray>("message");
        QTest::addColumn<bool>("passes");
        for (const Row &row : rows())
            QTest::newRow(row.what) << ippAnswerBytes(row.printer) << row.passes;
    }
    void aMessageBeyondItsBoundsIsStopped()
    {
        QFETCH(QByteArray, message);
        for (const qsizetype piece : {message.size(), qsizetype(1), qsizetype(3)})
            QTEST(::passes(message, piece), "passes");
    }

    void aMessageThatIsCutPassesAsFarAsItGoes()
    {
        const QByteArray message = ippAnswerBytes(ippNested(2) + ippNumberField("n"));
        for (qsizetype length = 0; length < message.size(); ++length)
            QVERIFY(passes(message.left(length), message.size()));
    }

    void whatStandsBehindAMessageIsNotLookedAt()
    {
        QVERIFY(passes(ippAnswerBytes({}) + ippNested(20), 7));
    }

    // libcups must not see the byte with which it would go down once more.
    void theFirstByteThatIsTooMuchIsStopped()
    {
        const QByteArray message = ippAnswerBytes(ippNested(20));
        const qsizetype third =
            message.indexOf(ippBegin(), message.indexOf(ippBegin()) + 1) + ippBegin().size();
        IppGate gate(kBounds);
        const auto *bytes = reinterpret_cast<const unsigned char *>(message.constData());
        QVERIFY(gate.pass(bytes, static_cast<size_t>(third - 1)));
        QVERIFY(!gate.pass(bytes + third - 1, 1));
        QVERIFY(!gate.pass(bytes + third, 1));
    }
};

QTEST_GUILESS_MAIN(IppGateTest)
#include "ipp_gate_test.moc"
