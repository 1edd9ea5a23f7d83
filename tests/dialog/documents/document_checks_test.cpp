#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/documents/DocumentChecks.h"
#include "dialog/documents/DocumentTexts.h"
#include "tests/dialog/support/ProtectedPdf.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/NumberedPdf.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Kind = DocumentState::Kind;

class DocumentChecksTest : public QObject
{
    Q_OBJECT

private:
    static constexpr int kPatience = 30000;

    QTemporaryDir m_folder;

    Document pdf(const QByteArray &content) const
    {
        const QString path = writeFile(m_folder.filePath(u"a.pdf"_s), content);
        return {path, u"application/pdf"_s, u"a.pdf"_s};
    }
    static DocumentState checked(DocumentChecks &checks, const Document &document)
    {
        QSignalSpy changed(&checks, &DocumentChecks::changed);
        checks.check({document});
        [&] {
            QVERIFY(!checks.isDone());
            QVERIFY(changed.wait(kPatience));
            QVERIFY(checks.isDone());
        }();
        return checks.stateOf(document);
    }

private Q_SLOTS:
    void aDocumentIsItsOwnCopyUnlessItHasTo()
    {
        DocumentChecks checks;
        const Document document = pdf(numberedPdf("page", 3));
        const DocumentState state = checked(checks, document);
        QCOMPARE(state.kind, Kind::Fine);
        QCOMPARE(state.pages, 3);
        QCOMPARE(checks.printed(document), document);
        // Once is enough.
        checks.check({document});
        QVERIFY(checks.isDone());
    }

    // Its filters would find no page in a document without an end, whose pages are all there.
    void whatCanBeMendedIsPrintedMended()
    {
        DocumentChecks checks;
        const QByteArray whole = numberedPdf("page", 3);
        const Document document = pdf(whole.left(whole.indexOf("xref\n0 ")));
        const DocumentState state = checked(checks, document);
        QCOMPARE(state.kind, Kind::Fine);
        QVERIFY(state.isDamaged);
        QCOMPARE(state.pages, 3);
        QCOMPARE(state.lostPages, 0);
        const Document printed = checks.printed(document);
        QVERIFY(printed.path != document.path);
        DocumentChecks again;
        const DocumentState mended = checked(again, printed);
        QVERIFY(!mended.isDamaged);
        QCOMPARE(mended.pages, 3);
    }

    // What nobody can find out stands in nobody's way.
    void aRendererThatDoesNotRunHoldsNothingUp_data()
    {
        QTest::addColumn<QString>("program");
        QTest::newRow("missing") << u"/nonexistent"_s;
        QTest::newRow("dies") << u"/bin/false"_s;
        QTest::newRow("says nothing") << u"/bin/cat"_s;
    }
    void aRendererThatDoesNotRunHoldsNothingUp()
    {
        QFETCH(QString, program);
        RendererSettings settings;
        settings.program = program;
        settings.startPatience = std::chrono::milliseconds(300);
        DocumentChecks checks(settings);
        const Document document = pdf(numberedPdf("page", 3));
        const DocumentState state = checked(checks, document);
        QCOMPARE(state.kind, Kind::Unknown);
        QCOMPARE(documentProblem(document.title, state), QString());
        QCOMPARE(checks.printed(document), document);
    }

    void whatIsHeldIsLookedIntoWhenItBegins()
    {
        RendererSettings settings;
        const QString started = m_folder.filePath(u"started"_s);
        settings.program = writeFile(m_folder.filePath(u"renderer"_s),
                                     "#!/bin/sh\n: > '" + QFile::encodeName(started) + "'\n");
        QVERIFY(QFile::setPermissions(settings.program,
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        DocumentChecks checks(settings);
        QSignalSpy changed(&checks, &DocumentChecks::changed);
        checks.hold();
        checks.check({pdf(numberedPdf("page", 3))});
        QTest::qWait(300);
        QVERIFY(!checks.isDone());
        QVERIFY(!QFile::exists(started));
        checks.begin();
        QVERIFY(changed.wait(kPatience));
        QVERIFY(checks.isDone());
        QVERIFY(QFile::exists(started));
        // From here on nothing waits.
        const Document another{writeFile(m_folder.filePath(u"b.pdf"_s), numberedPdf("page", 1)),
                               u"application/pdf"_s, u"b.pdf"_s};
        checks.check({another});
        QVERIFY(changed.wait(kPatience));
    }

    void aCheckThatNobodyWantsAnyMoreEndsAtOnce()
    {
        RendererSettings settings;
        settings.program = u"/bin/cat"_s;
        QElapsedTimer time;
        {
            DocumentChecks checks(settings);
            checks.check({pdf(numberedPdf("page", 3))});
            QTest::qWait(50);
            time.start();
        }
        QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    }

    void theCopyLastsAsLongAsTheDocumentThatIsPrinted()
    {
        auto checks = std::make_unique<DocumentChecks>();
        checks->addPassword(kUserPassword);
        const Document document = pdf({});
        protectedPdf(document.path, Protection::AesWith256Bits);
        QVERIFY(checked(*checks, document).isUnlocked);
        Document printed = checks->printed(document);
        QCOMPARE(printed.title, document.title);
        const QString copy = printed.path;
        QVERIFY(copy != document.path);
        checks.reset();
        QVERIFY(QFile::exists(copy));
        printed = {};
        QVERIFY(!QFile::exists(copy));
    }

    void namesArePlainTextInEverySentence()
    {
        DocumentState state;
        state.lostPages = 1;
        state.pages = 1;
        const QString name = u"a\n\x1b[2Jb.pdf"_s;
        for (const Kind kind :
             {Kind::Fine, Kind::Locked, Kind::Forbidden, Kind::Unreadable, Kind::NotCopied}) {
            state.kind = kind;
            const QString text = documentProblem(name, state) + documentLoss(name, state);
            QVERIFY(text.contains(u"b.pdf"_s));
            QVERIFY2(!text.contains(u'\n') && !text.contains(u'\x1b'), qPrintable(text));
        }
        QCOMPARE(documentLoss(u"a"_s, {Kind::Fine, false, false, true, 3, 2, 1024, {}}),
                 u"“a” is damaged at byte 1,024. 3 of its 5 pages can be printed."_s);
    }
};

QTEST_MAIN(DocumentChecksTest)

#include "document_checks_test.moc"
