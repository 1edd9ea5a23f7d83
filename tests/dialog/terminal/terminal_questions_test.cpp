#include <array>

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/terminal/TerminalQuestions.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

const char *const kAsks = "--asks";

/// What the program that asks says of the answer, in a file.
enum Result { NobodyToAsk = 'n', NoAnswer = '-', Answered = '+' };

// The program that asks: FILE ENCRYPTED ENDING. Its terminal is the test's.
int askOnTerminal(char *arguments[])
{
    QFile result(QString::fromLocal8Bit(arguments[0]));
    if (!result.open(QIODevice::WriteOnly))
        return 2;
    const bool ending = arguments[2][0] == '1';
    const CredentialStore::Questioner ask = terminalQuestioner([ending] { return ending; });
    if (!ask) {
        result.putChar(NobodyToAsk);
        return 0;
    }
    CredentialsQuestion question;
    question.server.host = u"print.example.com"_s;
    question.user = u"lisa"_s;
    question.encrypted = arguments[1][0] == '1';
    ask(question, [&](const std::optional<Credentials> &answer) {
        result.putChar(answer ? Answered : NoAnswer);
        if (answer)
            result.write((answer->user + u'\n' + answer->password).toUtf8());
    });
    return 0;
}

/// The program that asks, on a terminal of its own that the test types at.
class AskingProgram
{
public:
    explicit AskingProgram(bool encrypted = true, bool ending = false)
    {
        m_process = ::forkpty(&m_keyboard, nullptr, nullptr, nullptr);
        if (m_process == 0)
            run(encrypted, ending);
    }
    ~AskingProgram()
    {
        ::close(m_keyboard); // hangs up, should it still be there
        if (m_process > 0)
            ::waitpid(m_process, nullptr, 0);
    }
    AskingProgram(const AskingProgram &) = delete;
    AskingProgram &operator=(const AskingProgram &) = delete;

    /// Waits until the screen shows a text.
    bool shows(const QByteArray &text)
    {
        while (!m_screen.contains(text)) {
            if (!readScreen())
                return false;
        }
        return true;
    }
    /// Everything that was shown until the program ended.
    QByteArray screen()
    {
        while (readScreen()) {
        }
        return m_screen;
    }
    void type(const QByteArray &keys)
    {
        if (::write(m_keyboard, keys.constData(), static_cast<size_t>(keys.size())) != keys.size())
            QTest::qFail("cannot type", __FILE__, __LINE__);
    }
    bool echoes() const
    {
        termios settings{};
        return ::tcgetattr(m_keyboard, &settings) == 0 && (settings.c_lflag & ECHO) != 0;
    }
    QByteArray result()
    {
        screen();
        ::waitpid(std::exchange(m_process, 0), nullptr, 0);
        QFile file(m_folder.filePath(u"result"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    [[noreturn]] void run(bool encrypted, bool ending)
    {
        const QByteArray program = QFile::encodeName(QCoreApplication::applicationFilePath());
        const QByteArray file = QFile::encodeName(m_folder.filePath(u"result"_s));
        ::execl(program.constData(), program.constData(), kAsks, file.constData(),
                encrypted ? "1" : "0", ending ? "1" : "0", nullptr);
        ::_exit(127);
    }

    // False when the program has ended, or says nothing for long.
    bool readScreen()
    {
        pollfd wait{m_keyboard, POLLIN, 0};
        std::array<char, 1000> bytes{};
        if (::poll(&wait, 1, 20000) <= 0)
            return false;
        const ssize_t count = ::read(m_keyboard, bytes.data(), bytes.size());
        if (count <= 0)
            return false;
        m_screen.append(bytes.data(), count);
        return true;
    }

    QTemporaryDir m_folder;
    QByteArray m_screen;
    int m_keyboard = -1;
    pid_t m_process = -1;
};

} // namespace

/// A user and a password asked for on a terminal, where a person would type them.
class TerminalQuestionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePasswordIsNeverShown()
    {
        AskingProgram program;
        QVERIFY(program.shows("User [lisa]: "));
        QVERIFY(program.echoes());
        program.type("bart\n");
        QVERIFY(program.shows("Password: "));
        QVERIFY(!program.echoes()); // by the time that anybody is asked to type
        program.type("gr\xc3\xb6\xc3\x9f"
                     "er secret\n");
        QCOMPARE(program.result(), QByteArray("+bart\ngrößer secret"));
        const QByteArray screen = program.screen();
        QVERIFY(screen.contains("print.example.com"));
        QVERIFY(screen.contains("bart"));
        QVERIFY(!screen.contains("secret"));
    }

    void theUsualUserNeedsNoTyping()
    {
        AskingProgram program;
        QVERIFY(program.shows("User [lisa]: "));
        program.type("\n");
        QVERIFY(program.shows("Password: "));
        program.type("\n"); // some have none
        QCOMPARE(program.result(), QByteArray("+lisa\n"));
    }

    void theEndOfTheInputIsNoAnswer_data()
    {
        QTest::addColumn<bool>("forPassword");
        QTest::newRow("for the user") << false;
        QTest::newRow("for the password") << true;
    }
    void theEndOfTheInputIsNoAnswer()
    {
        QFETCH(bool, forPassword);
        AskingProgram program;
        QVERIFY(program.shows("User [lisa]: "));
        if (forPassword) {
            program.type("\n");
            QVERIFY(program.shows("Password: "));
        }
        program.type("\x04"); // Ctrl+D
        QCOMPARE(program.result(), QByteArray("-"));
    }

    void theTerminalEchoesAgainAfterwards_data()
    {
        QTest::addColumn<QByteArray>("typed");
        QTest::newRow("answered") << QByteArray("secret\n");
        QTest::newRow("not answered") << QByteArray("\x04");
    }
    void theTerminalEchoesAgainAfterwards()
    {
        QFETCH(QByteArray, typed);
        AskingProgram program;
        QVERIFY(program.shows("User [lisa]: "));
        program.type("\n");
        QVERIFY(program.shows("Password: "));
        program.type(typed);
        program.screen();
        QVERIFY(program.echoes());
    }

    void itIsSaidWhenOthersMayReadAlong_data()
    {
        QTest::addColumn<bool>("encrypted");
        QTest::newRow("encrypted") << true;
        QTest::newRow("plain") << false;
    }
    void itIsSaidWhenOthersMayReadAlong()
    {
        QFETCH(bool, encrypted);
        AskingProgram program(encrypted);
        QVERIFY(program.shows("User [lisa]: "));
        program.type("\x04");
        QCOMPARE(program.screen().contains("not encrypted"), !encrypted);
    }

    void aProgramThatIsToEndAsksNoLonger()
    {
        AskingProgram program(true, true);
        QCOMPARE(program.result(), QByteArray("-"));
    }

    void withoutATerminalThereIsNobodyToAsk()
    {
        const QTemporaryDir folder;
        const QByteArray file = QFile::encodeName(folder.filePath(u"result"_s));
        const QByteArray program = QFile::encodeName(QCoreApplication::applicationFilePath());
        const pid_t process = ::fork();
        if (process == 0) {
            ::setsid();
            ::execl(program.constData(), program.constData(), kAsks, file.constData(), "1", "0",
                    nullptr);
            ::_exit(127);
        }
        int status = -1;
        QCOMPARE(::waitpid(process, &status, 0), process);
        QCOMPARE(status, 0);
        QFile result(QFile::decodeName(file));
        QVERIFY(result.open(QIODevice::ReadOnly));
        QCOMPARE(result.readAll(), QByteArray("n"));
    }
};

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc == 5 && qstrcmp(argv[1], kAsks) == 0)
        return askOnTerminal(argv + 2);
    TerminalQuestionsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "terminal_questions_test.moc"
