#include <algorithm>

#include <QBuffer>
#include <QTest>

#include "dialog/job/WrappedPostScript.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr auto kExit = "\x1B%-12345X";
constexpr auto kDocument = "%!PS-Adobe-3.1\nshowpage\n%%EOF\n";

// "~" is the exit to the language of jobs, "#" the document, "^" a Ctrl-D, "0" a zero byte.
struct File
{
    const char *name;
    const char *content;
    const char *settings; ///< in one string; null: there is no document
};

constexpr File kFiles[] = {
    {"behind a Ctrl-D", "^#", ""},
    {"between two of them", "^#^", ""},
    {"between two of them, with lines behind", "^#^\r\n", ""},
    {"behind an exit", "~#~", ""},
    {"behind commands", "~@PJL\n@PJL ENTER LANGUAGE=POSTSCRIPT\n#^~", ""},
    {"behind commands of other machines",
     "~@PJL\r\n@PJL ENTER LANGUAGE = PostScript \r\n#~@PJL EOJ\r\n~", ""},
    {"in small letters", "~@pjl set copies=2\n@pjl enter language=postscript\n#", "COPIES"},
    {"with settings",
     "~@PJL JOB NAME=\"a = b\"\n@PJL COMMENT x=1\n@PJL SET COPIES=2\n@PJL SET DUPLEX = ON\n"
     "@PJL SET COPIES=2\n@PJL DEFAULT LPARM:POSTSCRIPT PRTPSERRS=ON\n"
     "@PJL ENTER LANGUAGE=POSTSCRIPT\n#~@PJL SET X=1\n@PJL EOJ\n~",
     "COPIES DUPLEX PRTPSERRS"},
    {"with a Ctrl-D behind commands", "~@PJL ENTER LANGUAGE=POSTSCRIPT\n^#^~", ""},
    {"behind zero bytes", "000~@PJL ENTER LANGUAGE=POSTSCRIPT\n#", ""},
    {"which the commands do not name", "~@PJL SET RET=ON\n#~", "RET"},

    {"plain PostScript", "#", nullptr},
    {"plain PostScript behind an empty line", "\n#", nullptr},
    {"another language", "~@PJL ENTER LANGUAGE=PCL\n#", nullptr},
    {"no PostScript", "~@PJL ENTER LANGUAGE=POSTSCRIPT\nHello", nullptr},
    {"a second job", "~@PJL ENTER LANGUAGE=POSTSCRIPT\n#~@PJL ENTER LANGUAGE=POSTSCRIPT\n#~",
     nullptr},
    {"a second job without a word", "~#~#", nullptr},
    {"a second job in another language", "~#~@PJL ENTER LANGUAGE=PCL\nHello~", nullptr},
    {"commands that nothing follows", "~@PJL SET COPIES=2\n~", nullptr},
    {"a text that speaks of commands", "@PJL ENTER LANGUAGE=POSTSCRIPT\n#", nullptr},
};

QByteArray contentOf(const File &file)
{
    QByteArray content(file.content);
    return content.replace('0', QByteArray(1, '\0'))
        .replace('~', kExit)
        .replace('#', kDocument)
        .replace('^', '\x04');
}

std::optional<WrappedPostScript> found(QByteArray content)
{
    QBuffer file(&content);
    file.open(QIODevice::ReadOnly);
    return findWrappedPostScript(file);
}

QByteArray documentIn(const QByteArray &content)
{
    const auto part = found(content);
    return part ? content.mid(part->begin, part->end - part->begin) : QByteArray();
}

} // namespace

/// A document in PostScript, and what stands around it in a file.
class WrappedPostScriptTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theDocumentIsFound_data() { addRows(kFiles); }
    void theDocumentIsFound()
    {
        const File &row = currentRow(kFiles);
        const QByteArray content = contentOf(row);
        const auto part = found(content);
        QCOMPARE(part.has_value(), row.settings != nullptr);
        if (!part)
            return;
        QCOMPARE(content.mid(part->begin, part->end - part->begin).trimmed(),
                 QByteArray(kDocument).trimmed());
        QCOMPARE(part->settings.join(u' '), QString::fromLatin1(row.settings));
        QVERIFY(mayBeWrapped(content.left(64)));
    }

    void whatEndsTheJobMayStandAnywhere()
    {
        // Around the places where one piece that is read ends and the next begins.
        for (const int size : {1 << 20, (1 << 20) - 1, (1 << 20) - 5, (1 << 20) - 9, 3 << 20}) {
            const QByteArray document = "%!PS\n" + QByteArray(size - 5, 'x');
            QCOMPARE(documentIn(kExit + document + kExit).size(), document.size());
            QCOMPARE(documentIn('\x04' + document + '\x04').size(), document.size());
            QCOMPARE(documentIn(kExit + document + kExit + "%!PS\n"), QByteArray());
        }
    }

    // A picture in a document may hold one, and what stands in the midst of it is part of it.
    void aCtrlDWithinTheDocumentIsPartOfIt()
    {
        const QByteArray document = "%!PS\na\x04"
                                    "b\nshowpage";
        QCOMPARE(documentIn(kExit + document + kExit), document);
    }

    void moreCommandsThanAnybodyWritesAreNotRead()
    {
        const QByteArray many = QByteArray("@PJL COMMENT x\n").repeated(10000);
        QVERIFY(!found(kExit + many + kDocument));
        QVERIFY(!found(QByteArray(kExit) + kDocument + kExit + many));
    }
};

QTEST_GUILESS_MAIN(WrappedPostScriptTest)
#include "wrapped_postscript_test.moc"
