#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/documents/DocumentChecks.h"
#include "tests/dialog/job/Variable.h"
#include "tests/dialog/support/ProtectedPdf.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/PrintedSides.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Phase = PrintTask::Phase;

namespace {

constexpr int kPatience = 60000; // milliseconds that a chain may take on a busy machine

const QStringList kAllPages{u"page 1"_s, u"page 2"_s, u"page 3"_s, u"page 4"_s, u"page 5"_s};
const QString kIsLocked = u"“a.pdf” is protected: it is printed only with its password."_s;
const QString kForbids = u"“a.pdf” does not allow printing. Only its owner's password does."_s;
const QString kFileIsPlain = u"“a.pdf” is protected. The file that is printed to is not."_s;

struct ProtectedDocument
{
    const char *name;
    Protection protection;
    QStringList typed; ///< passwords, one after the other; then nobody answers
    QString problem;   ///< empty: it is printed, all pages of it
    QString note;
    int questions;
};
const ProtectedDocument kProtected[] = {
    {"40 bits", Protection::Rc4With40Bits, {kUserPassword}, {}, kFileIsPlain, 1},
    {"128 bits", Protection::Rc4With128Bits, {kUserPassword}, {}, kFileIsPlain, 1},
    {"128 bits, AES", Protection::AesWith128Bits, {kUserPassword}, {}, kFileIsPlain, 1},
    {"256 bits", Protection::AesWith256Bits, {kUserPassword}, {}, kFileIsPlain, 1},
    {"with the owner's password",
     Protection::AesWith256Bits,
     {kOwnerPassword},
     {},
     kFileIsPlain,
     1},
    {"the third try",
     Protection::AesWith256Bits,
     {u"wrong"_s, u"Wrong"_s, kUserPassword},
     {},
     kFileIsPlain,
     3},
    {"nobody knows it", Protection::AesWith256Bits, {}, kIsLocked, {}, 1},
    {"a wrong one, then none",
     Protection::AesWith256Bits,
     {u"wrong"_s},
     u"“a.pdf” is protected, and the password that was given does not open it."_s,
     {},
     2},
    {"longer than any password",
     Protection::AesWith256Bits,
     {QString(500, u'x')},
     u"“a.pdf” is protected, and the password that was given does not open it."_s,
     {},
     2},
    {"opens by itself", Protection::OwnerOnly, {}, {}, {}, 0},
    {"low resolution only", Protection::LowResolutionPrinting, {}, {}, {}, 0},
    {"forbids printing", Protection::OwnerOnlyNoPrinting, {}, kForbids, {}, 0},
    {"forbids printing, 40 bits", Protection::OwnerOnlyNoPrinting40, {}, kForbids, {}, 0},
    {"forbids printing to who may open it",
     Protection::NoPrinting,
     {kUserPassword},
     kForbids,
     {},
     1},
    {"forbids printing but to its owner",
     Protection::NoPrinting,
     {kOwnerPassword},
     {},
     kFileIsPlain,
     1},
};

struct GivenPassword
{
    const char *name;
    Protection protection;
    QString password;
    QString problem;
    QString note;
};
const GivenPassword kGiven[] = {
    {"the right one", Protection::AesWith256Bits, kUserPassword, {}, kFileIsPlain},
    {"a wrong one",
     Protection::AesWith256Bits,
     u"wrong"_s,
     u"“a.pdf” is protected, and the password that was given does not open it."_s,
     {}},
    {"not needed", Protection::OwnerOnly, u"wrong"_s, {}, {}},
    {"the owner's", Protection::OwnerOnlyNoPrinting, kOwnerPassword, {}, kFileIsPlain},
    {"not the owner's", Protection::OwnerOnlyNoPrinting, u"wrong"_s, kForbids, {}},
};

struct DamagedDocument
{
    const char *name;
    QByteArray (*damage)(QByteArray pdf);
    QString said;      ///< begins like this
    QStringList sides; ///< that are printed all the same; none: it is refused
};
QByteArray cutBehind(const QByteArray &pdf, const QByteArray &mark)
{
    return pdf.left(pdf.indexOf(mark) + mark.size());
}
const DamagedDocument kDamaged[] = {
    {"without the list of its objects",
     [](QByteArray pdf) { return pdf.replace("startxref", "startxxxx"); },
     u"“a.pdf” is damaged. All pages that were found in it are printed."_s, kAllPages},
    {"with a list that lies elsewhere",
     [](QByteArray pdf) { return pdf.left(pdf.indexOf("startxref")) + "startxref\n17\n%%EOF\n"; },
     u"“a.pdf” is damaged at byte 17. All pages that were found in it are printed."_s, kAllPages},
    {"cut off in the third page", [](QByteArray pdf) { return cutBehind(pdf, "(page 3"); },
     u"“a.pdf” is damaged"_s, kAllPages.first(2)},
    {"garbage in the place of the third page",
     [](QByteArray pdf) {
         qsizetype page = 0;
         for (int i = 0; i < 3; ++i)
             page = pdf.indexOf("/Type /Page /", page + 1);
         return pdf.replace(page - 20, 60, QByteArray(60, '\xa7'));
     },
     u"“a.pdf” is damaged"_s,
     {u"page 1"_s, u"page 2"_s, u"page 4"_s, u"page 5"_s}},
    {"nothing but its first line",
     [](QByteArray) { return QByteArray("%PDF-1.4\n"); },
     u"“a.pdf” is damaged. None of its pages can be printed."_s,
     {}},
    {"no PDF at all",
     [](QByteArray) { return QByteArray("<html>404</html>\n"); },
     u"“a.pdf” is damaged. None of its pages can be printed."_s,
     {}},
    {"empty",
     [](QByteArray) { return QByteArray(); },
     u"“a.pdf” is damaged. None of its pages can be printed."_s,
     {}},
};

} // namespace

// Documents that cannot simply be printed, from the real renderer to the real filter chain.
class TaskProtectedTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TaskScene> m_scene;
    std::unique_ptr<Variable> m_filter; // the real one, in place of the scene's
    std::unique_ptr<QTemporaryDir> m_temporary;
    std::unique_ptr<Variable> m_place;

    PrintRequest request(const QStringList &names)
    {
        PrintRequest request = m_scene->request({m_scene->printer(u"laser"_s, samplePpd(5))});
        request.documents.clear();
        for (const QString &name : names)
            request.documents += Document{m_scene->filter.path(name), u"application/pdf"_s, name};
        return request;
    }
    PrintRequest request(Protection protection)
    {
        protectedPdf(m_scene->filter.path(u"a.pdf"_s), protection);
        return request({u"a.pdf"_s});
    }
    void print(PrintTask &task)
    {
        task.print();
        ScriptedFace &face = m_scene->face;
        QTRY_VERIFY_WITH_TIMEOUT(!face.refusals.isEmpty() || !face.outcomes.isEmpty(), kPatience);
    }
    QStringList sides() const { return printedSides(m_scene->filter.content(u"out.ps"_s)); }
    QStringList leftOvers() const
    {
        return QDir(m_temporary->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
            .filter(QRegularExpression(u"^(?!runtime-)"_s));
    }

private Q_SLOTS:
    void init()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        m_scene = std::make_unique<TaskScene>();
        m_place = std::make_unique<Variable>("TMPDIR", m_temporary->path().toUtf8());
        m_filter = std::make_unique<Variable>("CORVANA_PRINT_CUPSFILTER", "");
    }
    void cleanup()
    {
        m_filter.reset();
        m_place.reset();
        m_scene.reset();
        m_temporary.reset();
    }

    void aProtectedDocumentIsPrintedWithItsPasswordOnly_data() { addRows(kProtected); }
    void aProtectedDocumentIsPrintedWithItsPasswordOnly()
    {
        const ProtectedDocument &row = currentRow(kProtected);
        PrintTask &task = m_scene->make(request(row.protection));
        ScriptedFace &face = m_scene->face;
        face.documentPasswords = row.typed;
        task.startUnattended();
        QTRY_COMPARE(task.phase(), Phase::Opened);
        print(task);
        QString problem = row.problem;
        // A script has a way to give it.
        if (!problem.isEmpty())
            problem += u" Give the password with --document-password-file."_s;
        QCOMPARE(face.problems().join(u'\n'), problem);
        QCOMPARE(face.notes.join(u'\n'), row.note);
        QCOMPARE(face.passwordQuestions.size(), row.questions);
        for (int i = 0; i < row.questions; ++i)
            QCOMPARE(face.passwordQuestions.at(i).isRetry, i > 0);
        if (row.problem.isEmpty())
            QCOMPARE(sides(), kAllPages);
        else
            QVERIFY(!m_scene->filter.hasOutput());
        m_scene->task.reset();
        QCOMPARE(leftOvers(), QStringList());
    }

    // Nothing of the program that looks into them takes part before the window is there.
    void documentsAreLookedIntoOnceThereIsSomethingToSee()
    {
        PrintTask &task = m_scene->make(request(Protection::AesWith256Bits));
        task.start();
        QCOMPARE(task.phase(), Phase::Opened);
        DocumentChecks others; // which were not asked first
        QSignalSpy looked(&others, &DocumentChecks::changed);
        others.check(task.documents());
        QVERIFY(looked.wait(kPatience));
        QTest::qWait(100);
        QVERIFY(!task.knowsDocuments());
        task.bringUp();
        QTRY_VERIFY_WITH_TIMEOUT(task.knowsDocuments(), kPatience);
    }

    // By an Enter that was typed ahead.
    void aDocumentThatNobodyHasLookedIntoYetIsLookedIntoBeforeItIsPrinted()
    {
        PrintTask &task = m_scene->make(request(Protection::AesWith256Bits));
        task.start();
        QCOMPARE(task.phase(), Phase::Opened);
        print(task);
        QVERIFY(!m_scene->face.refusals.isEmpty());
        QVERIFY(!m_scene->filter.hasOutput());
        QCOMPARE(m_scene->face.passwordQuestions.size(), 1);
    }

    void aPasswordThatIsGivenInAdvanceIsAskedOfNobody_data() { addRows(kGiven); }
    void aPasswordThatIsGivenInAdvanceIsAskedOfNobody()
    {
        const GivenPassword &row = currentRow(kGiven);
        PrintRequest asked = request(row.protection);
        asked.documentPassword = row.password;
        PrintTask &task = m_scene->make(asked);
        task.startUnattended();
        QTRY_COMPARE(task.phase(), Phase::Opened);
        print(task);
        ScriptedFace &face = m_scene->face;
        QCOMPARE(face.problems().join(u'\n'), row.problem);
        QCOMPARE(face.notes.join(u'\n'), row.note);
        QCOMPARE(face.passwordQuestions.size(), 0);
        if (row.problem.isEmpty())
            QCOMPARE(sides(), kAllPages);
    }

    // In a window the password is asked when the document is chosen, and not again at Print.
    void whoSitsThereIsAskedAtOnce()
    {
        m_scene->face.documentPasswords = QStringList{kUserPassword};
        PrintTask &task = m_scene->open(request(Protection::AesWith256Bits));
        QTRY_COMPARE(m_scene->face.passwordQuestions.size(), 1);
        QTRY_COMPARE(m_scene->face.message(), kFileIsPlain);
        QSignalSpy counted(&task, &PrintTask::sheetsCounted);
        task.countSheets();
        QTRY_COMPARE_WITH_TIMEOUT(task.sheetPreview().counts, u"5 pages = 5 sheets"_s, kPatience);
        print(task);
        QCOMPARE(m_scene->face.passwordQuestions.size(), 1);
        QCOMPARE(m_scene->face.notes.size(), 1);
        QCOMPARE(sides(), kAllPages);
    }

    // Whoever does not know it now is offered to enter it later.
    void aQuestionThatWasLeftCanBeAnsweredLater()
    {
        PrintTask &task = m_scene->open(request(Protection::AesWith256Bits));
        ScriptedFace &face = m_scene->face;
        QTRY_COMPARE(face.message(), kIsLocked);
        QCOMPARE(face.messages.constLast().offer, u"Enter the Password…"_s);
        QCOMPARE(task.sheetPreview().state, SheetPreview::State::None);
        QCOMPARE(task.sheetPreview().reason, kIsLocked);
        QVERIFY(!task.sheetPreview().canBePrinted);
        face.documentPasswords = QStringList{u"wrong"_s, kUserPassword};
        face.messages.constLast().take();
        QTRY_COMPARE(face.message(), kFileIsPlain);
        QCOMPARE(face.passwordQuestions.size(), 3);
        print(task);
        QCOMPARE(sides(), kAllPages);
    }

    void anOwnerCanPrintWhatForbidsPrinting()
    {
        PrintTask &task = m_scene->open(request(Protection::OwnerOnlyNoPrinting));
        ScriptedFace &face = m_scene->face;
        QTRY_COMPARE(face.message(), kForbids);
        QCOMPARE(face.messages.constLast().offer, u"Enter the Owner's Password…"_s);
        print(task);
        QCOMPARE(face.problems(), QStringList{kForbids});
        face.refusals.clear();
        face.documentPasswords = QStringList{kUserPassword, kOwnerPassword};
        const auto offers = face.messages;
        for (const TaskMessage &message : offers) {
            if (message.take)
                message.take();
        }
        QTRY_COMPARE(face.message(), kFileIsPlain);
        QVERIFY(face.passwordQuestions.constFirst().forOwner);
        print(task);
        QCOMPARE(sides(), kAllPages);
    }

    void oneProtectedDocumentAmongOthers()
    {
        protectedPdf(m_scene->filter.path(u"b.pdf"_s), Protection::AesWith128Bits, 2);
        writeFile(m_scene->filter.path(u"a.pdf"_s), numberedPdf("first", 1));
        writeFile(m_scene->filter.path(u"c.pdf"_s), numberedPdf("last", 1));
        m_scene->face.documentPasswords = QStringList{kUserPassword};
        PrintTask &task = m_scene->open(request({u"a.pdf"_s, u"b.pdf"_s, u"c.pdf"_s}));
        print(task);
        QCOMPARE(m_scene->face.problems(), QStringList());
        QCOMPARE(m_scene->face.passwordQuestions.size(), 1);
        QCOMPARE(m_scene->face.passwordQuestions.constFirst().title, u"b.pdf"_s);
        QCOMPARE(sides(), (QStringList{u"first 1"_s, u"page 1"_s, u"page 2"_s, u"last 1"_s}));
    }

    // One message takes the place of the other.
    void whatGoesOutUnprotectedIsSaidOnceNothingElseIs()
    {
        protectedPdf(m_scene->filter.path(u"a.pdf"_s), Protection::AesWith256Bits);
        protectedPdf(m_scene->filter.path(u"b.pdf"_s), Protection::OwnerOnlyNoPrinting);
        m_scene->face.documentPasswords = QStringList{kUserPassword};
        PrintTask &task = m_scene->open(request({u"a.pdf"_s, u"b.pdf"_s}));
        QTRY_VERIFY_WITH_TIMEOUT(
            task.knowsDocuments() && m_scene->face.message().startsWith(u"“b.pdf”"_s), kPatience);
        task.removeDocument(1);
        QTRY_COMPARE(m_scene->face.message(), kFileIsPlain);
    }

    // No program learns it from a command line or an environment, and no log has it.
    void thePasswordIsNowhereToBeSeen()
    {
        m_filter.reset();
        const QString secret =
            writeFile(m_scene->filter.path(u"secret"_s), QByteArray(kUserPassword.data()) + '\n');
        FakeFilter filter("grep -lF -f '" + secret.toUtf8() +
                          "' /proc/[0-9]*/cmdline /proc/[0-9]*/environ >$DIR/seen 2>/dev/null\n"
                          "echo printed\n");
        static QStringList logged;
        logged.clear();
        const auto before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) { logged += text; });
        QLoggingCategory::setFilterRules(u"corvana.*=true"_s);
        m_scene->face.documentPasswords = QStringList{u"wrong"_s, kUserPassword};
        print(m_scene->open(request(Protection::AesWith256Bits)));
        QLoggingCategory::setFilterRules({});
        qInstallMessageHandler(before);
        QCOMPARE(filter.content(u"seen"_s), QByteArray(""));
        QVERIFY(!logged.isEmpty());
        for (const QString &line : std::as_const(logged))
            QVERIFY2(!line.contains(kUserPassword), qPrintable(line));
    }

    void theCopyIsTheUsersAlone()
    {
        m_scene->face.documentPasswords = QStringList{kUserPassword};
        m_scene->open(request(Protection::AesWith256Bits));
        QTRY_COMPARE(m_scene->face.message(), kFileIsPlain);
        // Others hold PPDs and sheets.
        QStringList folders = leftOvers();
        folders.removeIf([this](const QString &name) {
            return !QFile::exists(m_temporary->filePath(name) + u"/document"_s);
        });
        QCOMPARE(folders.size(), 1);
        const QString folder = m_temporary->filePath(folders.constFirst());
        const auto owner =
            QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
        QCOMPARE(QFile::permissions(folder + u"/document"_s), owner);
        QCOMPARE(QFile::permissions(folder), owner | QFile::ExeOwner | QFile::ExeUser);
    }

    void ofADamagedDocumentIsPrintedWhatCanBe_data() { addRows(kDamaged); }
    void ofADamagedDocumentIsPrintedWhatCanBe()
    {
        const DamagedDocument &row = currentRow(kDamaged);
        writeFile(m_scene->filter.path(u"a.pdf"_s), row.damage(numberedPdf("page", 5)));
        PrintTask &task = m_scene->open(request({u"a.pdf"_s}));
        print(task);
        const ScriptedFace &face = m_scene->face;
        const QStringList said = face.warnings + face.problems() + face.notes;
        QCOMPARE(said.size(), 1);
        QVERIFY2(said.constFirst().startsWith(row.said), qPrintable(said.constFirst()));
        QCOMPARE(m_scene->filter.hasOutput(), !row.sides.isEmpty());
        if (row.sides.isEmpty())
            return;
        QCOMPARE(sides(), row.sides);
        const QString counts = u"%1 of its 5 pages can be printed."_s.arg(row.sides.size());
        QCOMPARE(said.constFirst().contains(counts), row.sides.size() < 5);
    }

    void whatIsLostIsPrintedWithoutItOnlyWhenThatIsWanted()
    {
        writeFile(m_scene->filter.path(u"a.pdf"_s), cutBehind(numberedPdf("page", 5), "(page 3"));
        m_scene->face.printsWithout = false;
        PrintTask &task = m_scene->open(request({u"a.pdf"_s}));
        print(task);
        QVERIFY(m_scene->face.refusals.constLast().answered);
        QCOMPARE(m_scene->face.warnings.size(), 1);
        QCOMPARE(task.phase(), Phase::Ready);
        QVERIFY(!m_scene->filter.hasOutput());
        // What programs say of it is there for whoever asks.
        QVERIFY(!m_scene->face.messages.constLast().details.isEmpty());
    }

    // A file that takes another one's place after it was looked at is looked at again.
    void whatIsPrintedIsWhatWasLookedAt()
    {
        const QString path = writeFile(m_scene->filter.path(u"a.pdf"_s), numberedPdf("page", 5));
        PrintTask &task = m_scene->open(request({u"a.pdf"_s}));
        QTRY_VERIFY(task.knowsDocuments());
        protectedPdf(path, Protection::OwnerOnlyNoPrinting);
        print(task);
        QCOMPARE(m_scene->face.problems(), QStringList{kForbids});
        QCOMPARE(task.phase(), Phase::Ready);
    }

    // Questions before a job take as long as their reader does.
    void documentsThatBecomeKnownWhileSomethingIsAskedArePrinted()
    {
        for (const Protection protection :
             {Protection::OwnerOnly, Protection::OwnerOnlyNoPrinting}) {
            ScriptedFace &face = m_scene->face;
            PrintTask &task = m_scene->open(request(protection));
            writeFile(m_scene->filter.path(u"out.ps"_s), "yesterday's");
            face.refusals.clear();
            face.overwrites = true;
            face.meanwhile = [&] { QTRY_VERIFY(task.knowsDocuments()); };
            print(task);
            const bool isPrinted = protection == Protection::OwnerOnly;
            QCOMPARE(face.problems(), isPrinted ? QStringList() : QStringList{kForbids});
            QCOMPARE(face.outcomes.size(), isPrinted ? 1 : 0);
            face.meanwhile = nullptr;
            face.outcomes.clear();
        }
    }

    // Whoever ends the task while a document is looked at need not wait.
    void aTaskCanEndAtAnyTime()
    {
        for (int i = 0; i < 5; ++i) {
            m_scene->face.documentPasswords = QStringList{kUserPassword};
            PrintTask &task = m_scene->open(request(Protection::AesWith256Bits));
            task.print();
            QTest::qWait(20 * i);
            m_scene->task.reset();
        }
        QCOMPARE(leftOvers(), QStringList());
    }
};

QTEST_MAIN(TaskProtectedTest)

#include "task_protected_test.moc"
