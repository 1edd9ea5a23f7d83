#include "dialog/terminal/TerminalQuestions.h"

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QScopeGuard>

#include "platform/foundation/ForeignText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// How often it is looked whether the program was told to end. Units: milliseconds.
constexpr int kLookAround = 100;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(TerminalQuestions)
};

void write(int terminal, const QString &text)
{
    const QByteArray bytes = text.toLocal8Bit();
    // A terminal that takes nothing shows nothing; the answer then does not come either.
    [[maybe_unused]] const ssize_t written =
        ::write(terminal, bytes.constData(), static_cast<size_t>(bytes.size()));
}

// One line. Errors: nothing at the end of the input (Ctrl+D), or when the program is to end.
std::optional<QByteArray> readLine(int terminal, const std::function<bool()> &ending)
{
    QByteArray line;
    for (;;) {
        pollfd wait{terminal, POLLIN, 0};
        const int ready = ::poll(&wait, 1, kLookAround);
        if (ending())
            return std::nullopt;
        if (ready <= 0)
            continue;
        char c = 0;
        if (::read(terminal, &c, 1) != 1)
            return std::nullopt;
        if (c == '\n')
            return line;
        line += c;
    }
}

// One line that nobody sees.
std::optional<QByteArray> readHidden(int terminal, const QString &prompt,
                                     const std::function<bool()> &ending)
{
    termios shown{};
    const bool canHide = ::tcgetattr(terminal, &shown) == 0;
    termios hidden = shown;
    hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
    // Before the prompt, so that not a single character shows of who types as soon as it is there.
    if (canHide)
        ::tcsetattr(terminal, TCSAFLUSH, &hidden);
    write(terminal, prompt);
    std::optional<QByteArray> line = readLine(terminal, ending);
    if (canHide)
        ::tcsetattr(terminal, TCSAFLUSH, &shown);
    write(terminal, u"\n"_s);
    return line;
}

std::optional<Credentials> ask(const CredentialsQuestion &question,
                               const std::function<bool()> &ending)
{
    const int terminal = ::open("/dev/tty", O_RDWR | O_CLOEXEC | O_NOCTTY);
    if (terminal < 0)
        return std::nullopt;
    const auto closing = qScopeGuard([&] { ::close(terminal); });
    write(terminal,
          (question.forDevice ? Texts::tr("The printer at “%1” wants a user and a password.")
                              : Texts::tr("The print server “%1” wants a user and a "
                                          "password."))
                  .arg(terminalLine(question.server.text())) +
              u'\n');
    if (!question.encrypted)
        write(terminal,
              Texts::tr("The connection is not encrypted: others may read them.") + u'\n');
    write(terminal, Texts::tr("User [%1]: ").arg(terminalLine(question.user)));
    const std::optional<QByteArray> user = readLine(terminal, ending);
    if (!user)
        return std::nullopt;
    const std::optional<QByteArray> password =
        readHidden(terminal, Texts::tr("Password: "), ending);
    if (!password)
        return std::nullopt;
    return Credentials{user->isEmpty() ? question.user : QString::fromLocal8Bit(*user),
                       QString::fromLocal8Bit(*password)};
}

} // namespace

std::optional<QString> documentPasswordFromTerminal(const DocumentPasswordQuestion &question,
                                                    const std::function<bool()> &ending)
{
    const int terminal = ::open("/dev/tty", O_RDWR | O_CLOEXEC | O_NOCTTY);
    if (terminal < 0)
        return std::nullopt;
    const auto closing = qScopeGuard([&] { ::close(terminal); });
    if (question.isRetry)
        write(terminal, Texts::tr("That is not the password.") + u'\n');
    const std::optional<QByteArray> password = readHidden(
        terminal, Texts::tr("Password of “%1”: ").arg(terminalLine(question.title)), ending);
    return password && !password->isEmpty() ? std::optional(QString::fromLocal8Bit(*password))
                                            : std::nullopt;
}

bool sheetsArePutBack(const TurnQuestion &question, const std::function<bool()> &ending)
{
    const int terminal = ::open("/dev/tty", O_RDWR | O_CLOEXEC | O_NOCTTY);
    if (terminal < 0)
        return false;
    const auto closing = qScopeGuard([&] { ::close(terminal); });
    QStringList lines{question.done};
    if (!question.problem.isEmpty())
        lines += question.problem;
    for (const QString &step : question.steps)
        lines += u"  - "_s + step;
    for (const QString &line : std::as_const(lines))
        write(terminal, terminalLine(line) + u'\n');
    // What was typed before the question is no answer to it.
    ::tcflush(terminal, TCIFLUSH);
    write(terminal, Texts::tr("Enter prints the other sides, Ctrl+D leaves them unprinted: "));
    const bool arePutBack = readLine(terminal, ending).has_value();
    if (!arePutBack)
        write(terminal, u"\n"_s);
    return arePutBack;
}

CredentialStore::Questioner terminalQuestioner(const std::function<bool()> &ending)
{
    const int terminal = ::open("/dev/tty", O_RDWR | O_CLOEXEC | O_NOCTTY);
    if (terminal < 0)
        return {};
    ::close(terminal);
    return [ending](const CredentialsQuestion &question, const CredentialStore::Answer &answer) {
        answer(ask(question, ending));
    };
}

} // namespace corvana
