#include <QRandomGenerator>
#include <QTest>

#include "dialog/policy/PolicyFile.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

struct Refused
{
    const char *name;
    QByteArray text;
    int line;         ///< that the problem names
    const char *says; ///< in the problem
};

const Refused kRefused[] = {
    {"entry before a section", "hide = yes\n", 1, "[all]"},
    {"unknown key", "[all]\nhidden = yes\n", 2, "default.KEYWORD, lock.KEYWORD, hide"},
    {"key in capitals", "[all]\nHide = yes\n", 2, "Keys:"},
    {"no equals sign", "[all]\nhide\n", 2, "KEY = VALUE"},
    {"lock without a keyword", "[all]\nlock. = x\n", 2, "keyword"},
    {"keyword with a blank", "[all]\nlock.Du plex = x\n", 2, "keyword"},
    {"neither yes nor no", "[all]\nhide = true\n", 2, "Allowed: yes, no."},
    {"folder that is relative", "[all]\npresets = presets\n", 2, "begins with /"},
    {"number with a sign", "[all]\nconfirm-sheets = -1\n", 2, "from 0 to"},
    {"number with letters", "[all]\nconfirm-sheets = 200x\n", 2, "from 0 to"},
    {"number too large", "[all]\nconfirm-sheets = 99999999999\n", 2, "from 0 to"},
    {"section without an end", "[printer lobby\nhide = yes\n", 1, "no section"},
    {"section with something behind it", "[all] # everybody\nhide = yes\n", 1, "no section"},
    {"section of an unknown kind", "[printers lobby]\nhide = yes\n", 1, "[printer PATTERN…]"},
    {"section without a name", "[printer]\nhide = yes\n", 1, "no section"},
    {"section with one kind twice", "[printer a, printer b]\nhide = yes\n", 1, "no section"},
    {"section with an empty part", "[printer a,]\nhide = yes\n", 1, "no section"},
    {"quotes that do not end", "[printer \"a]\nhide = yes\n", 1, "no section"},
    {"quotes inside a word", "[printer a\"b\"]\nhide = yes\n", 1, "no section"},
    {"all and something else", "[all, printer a]\nhide = yes\n", 1, "no section"},
    {"a character that cannot be seen", "[all]\nhide = yes\x1b[2J\n", 2, "cannot be seen"},
    {"a direction mark", "[all]\nlock.A = \u202ex\n", 2, "cannot be seen"},
    {"another encoding", "[all]\nlock.A = M\xfcnchen\n", 2, "UTF-8"},
    {"a line too long", "[all]\nlock.A = " + QByteArray(5000, 'x') + "\n", 2, "4096"},
    {"a value too long", "[all]\nlock.A = " + QByteArray(2000, 'x') + "\n", 2, "too long"},
    {"no text", QByteArray("[all]\n\0hide = yes\n", 18), 0, "no text"},
    {"too large", "[all]\n" + QByteArray(300000, '#'), 0, "262144"},
    {"too many lines", QByteArray(9000, '\n'), 0, "8192"},
};

} // namespace

/// The text of a file of a policy: what is understood, and what is refused by file and line.
class PolicyFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingOfTheGrammarIsRead()
    {
        const PolicyFile file = parsePolicyFile("# comment\n"
                                                "; another\n"
                                                "\r\n"
                                                "[all]\r\n"
                                                "  lock.Duplex  =  DuplexNoTumble  \n"
                                                "default.media=iso_a4_210x297mm\n"
                                                "[printer lobby-* \"a b\" , group  students]\n"
                                                "hide=yes\n"
                                                "default.Note = a # b = c\n"
                                                "presets =\n",
                                                u"/x.conf"_s, 3);
        QVERIFY2(file.problems.isEmpty(), qPrintable(file.problems.value(0).text()));
        QCOMPARE(file.entries.size(), 5);
        const PolicyEntry &lock = file.entries.at(0);
        QCOMPARE(lock.key, PolicyKey::Lock);
        QCOMPARE(lock.keyword, u"Duplex"_s);
        QCOMPARE(lock.value, u"DuplexNoTumble"_s);
        QCOMPARE(lock.scope, PolicyScope());
        QCOMPARE(lock.origin.text(), u"/x.conf:5"_s);
        QCOMPARE(lock.file, 3);
        const PolicyEntry &hide = file.entries.at(2);
        QCOMPARE(hide.scope, (PolicyScope{{u"lobby-*"_s, u"a b"_s}, {u"students"_s}}));
        QCOMPARE(hide.scope.text(), u"[printer lobby-* \"a b\", group students]"_s);
        QVERIFY(hide.isYes());
        QCOMPARE(file.entries.at(3).value, u"a # b = c"_s);
        QVERIFY(file.entries.at(4).value.isEmpty());
    }

    void whatIsNotUnderstoodIsNamedWithItsLine_data() { addRows(kRefused); }
    void whatIsNotUnderstoodIsNamedWithItsLine()
    {
        const Refused &row = currentRow(kRefused);
        const PolicyFile file = parsePolicyFile(row.text, u"/x.conf"_s);
        QCOMPARE(file.problems.size(), 1);
        QCOMPARE(file.problems.at(0).origin, (PolicyOrigin{u"/x.conf"_s, row.line}));
        QVERIFY2(file.problems.at(0).what.contains(QString::fromUtf8(row.says)),
                 qPrintable(file.problems.at(0).what));
        QVERIFY(file.entries.isEmpty());
    }

    void aBadLineTakesNothingElseAlong()
    {
        const PolicyFile file = parsePolicyFile("[all]\nhid = yes\nfile-output = no\n", u"/x"_s);
        QCOMPARE(file.problems.size(), 1);
        QCOMPARE(file.entries.size(), 1);
        QCOMPARE(file.entries.at(0).key, PolicyKey::FileOutput);
    }

    void entriesOfARefusedSectionDoNotGoToTheOneBefore()
    {
        const PolicyFile file =
            parsePolicyFile("[all]\n[prnter lobby]\nhide = yes\n[all]\njournal = yes\n", u"/x"_s);
        QCOMPARE(file.problems.size(), 1);
        QCOMPARE(file.entries.size(), 1);
        QCOMPARE(file.entries.at(0).key, PolicyKey::Journal);
    }

    void aMessageShowsNoMoreThanTheBeginning()
    {
        const PolicyFile file =
            parsePolicyFile("[all]\n" + QByteArray(3000, 'x') + " = yes\n", u"/x"_s);
        QCOMPARE(file.problems.size(), 1);
        QVERIFY(file.problems.at(0).what.size() < 400);
    }

    void noMoreSectionsAreReadThanAreAllowed()
    {
        QByteArray text;
        for (int i = 0; i < kMostPolicySections + 50; ++i)
            text += "[all]\nhide = yes\n";
        const PolicyFile file = parsePolicyFile(text, u"/x"_s);
        QCOMPARE(file.entries.size(), kMostPolicySections);
        QVERIFY(!file.problems.isEmpty());
    }

    // Any bytes are read to their end, and never yield an entry that the grammar does not know.
    void noBytesDoAnyHarm()
    {
        QRandomGenerator random(15);
        static const QByteArray kPieces[] = {
            "[",  "]",  "[all]", "[printer ", "group ",    ",",         "\"",           "=",
            "\n", "\r", "lock.", "hide",      "default.A", "\n[all]\n", "\nhide=yes\n", "yes",
            "no", "#",  " ",     "\t",        "\xff",      "\xc3",      "\xe2\x80\xae", "*",
            "x"};
        qsizetype entries = 0;
        for (int i = 0; i < 20000; ++i) {
            QByteArray text;
            const int pieces = random.bounded(40);
            for (int p = 0; p < pieces; ++p)
                text += kPieces[random.bounded(int(std::size(kPieces)))];
            const PolicyFile file = parsePolicyFile(text, u"/x"_s);
            entries += file.entries.size();
            for (const PolicyEntry &entry : file.entries) {
                QVERIFY(entry.origin.line > 0);
                QVERIFY(problemOfValue(formOf(entry.key), entry.value).isEmpty());
                QCOMPARE(formOf(entry.key).takesKeyword(), !entry.keyword.isEmpty());
            }
        }
        QVERIFY(entries > 0);
    }
};

QTEST_MAIN(PolicyFileTest)
#include "policy_file_test.moc"
