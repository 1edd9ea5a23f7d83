#include "dialog/preview/RendererProcess.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/wait.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLoggingCategory>

#include "dialog/preview/PictureMemory.h"
#include "platform/foundation/ForeignText.h"

Q_LOGGING_CATEGORY(lcRenderer, "corvana.preview.renderer", QtWarningMsg)

namespace corvana {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using renderer::Descriptor;
using renderer::made;

namespace {

/// How often it is asked whether to keep on waiting.
constexpr auto kTick = 100ms;
/// A renderer that takes no request for so long never will; there is room for many.
constexpr timeval kSendPatience{5, 0};
constexpr int kRendererSocket = 3;

/// What the process finds open: nothing of this program's but its end of the socket. What it would
/// say is not for a terminal, since the document may be speaking. Under a sanitizer it has to be
/// heard.
class SpawnActions
{
public:
    explicit SpawnActions(int socket)
    {
        ::posix_spawn_file_actions_init(&m_actions);
        ::posix_spawn_file_actions_addopen(&m_actions, 0, "/dev/null", O_RDONLY, 0);
        ::posix_spawn_file_actions_addopen(&m_actions, 1, "/dev/null", O_WRONLY, 0);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
        ::posix_spawn_file_actions_addopen(&m_actions, 2, "/dev/null", O_WRONLY, 0);
#endif
        ::posix_spawn_file_actions_adddup2(&m_actions, socket, kRendererSocket);
        ::posix_spawn_file_actions_addclosefrom_np(&m_actions, kRendererSocket + 1);
        ::posix_spawnattr_init(&m_attributes);
        sigset_t none;
        sigset_t all;
        ::sigemptyset(&none);
        ::sigfillset(&all);
        ::posix_spawnattr_setsigmask(&m_attributes, &none);
        ::posix_spawnattr_setsigdefault(&m_attributes, &all);
        ::posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    ~SpawnActions()
    {
        ::posix_spawn_file_actions_destroy(&m_actions);
        ::posix_spawnattr_destroy(&m_attributes);
    }
    SpawnActions(const SpawnActions &) = delete;
    SpawnActions &operator=(const SpawnActions &) = delete;

    bool spawn(const QByteArray &program, pid_t *process) const
    {
        QByteArray name = program;
        char *const arguments[] = {name.data(), nullptr};
        return ::posix_spawn(process, program.constData(), &m_actions, &m_attributes, arguments,
                             environ) == 0;
    }

private:
    posix_spawn_file_actions_t m_actions{};
    posix_spawnattr_t m_attributes{};
};

RendererProcess::Outcome outcomeOf(renderer::Status status)
{
    switch (status) {
    case renderer::Status::Done:
        return RendererProcess::Outcome::Done;
    case renderer::Status::Damaged:
        return RendererProcess::Outcome::Damaged;
    case renderer::Status::TooLarge:
        return RendererProcess::Outcome::TooLarge;
    case renderer::Status::PasswordNeeded:
        return RendererProcess::Outcome::PasswordNeeded;
    case renderer::Status::Refused:
        break;
    }
    // Nothing is asked that would be refused by a renderer in its right mind.
    return RendererProcess::Outcome::Died;
}

/// A file that has a size and no end that somebody else decides about.
Descriptor openDocumentFile(const QString &file)
{
    // A pipe would be waited for.
    Descriptor opened(
        ::open(QFile::encodeName(file).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat information
    {
    };
    if (!opened || ::fstat(opened.get(), &information) != 0 || !S_ISREG(information.st_mode))
        return {};
    return opened;
}

} // namespace

RendererSettings RendererSettings::shipped()
{
    RendererSettings settings;
    settings.program = QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                       u"/../lib/corvana-print/corvana-page-renderer"_s);
    return settings;
}

RendererProcess::RendererProcess(RendererSettings settings, KeepOn keepOn, int wake)
    : m_settings(std::move(settings)), m_keepOn(std::move(keepOn)), m_wake(wake)
{
}

RendererProcess::~RendererProcess()
{
    stop();
}

bool RendererProcess::spawn()
{
    int ends[2] = {-1, -1};
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0)
        return false;
    Descriptor ours(ends[0]);
    const Descriptor theirs(ends[1]);
    ::setsockopt(ours.get(), SOL_SOCKET, SO_SNDTIMEO, &kSendPatience, sizeof(kSendPatience));
    if (!SpawnActions(theirs.get()).spawn(QFile::encodeName(m_settings.program), &m_process)) {
        m_process = -1;
        return false;
    }
    m_socket = std::move(ours);
    ++m_starts;
    return true;
}

RendererProcess::Outcome RendererProcess::start()
{
    if (isRunning()) {
        // Between two requests the renderer has nothing to say: whatever can be read is its end.
        pollfd socket{m_socket.get(), POLLIN, 0};
        if (::poll(&socket, 1, 0) == 0)
            return Outcome::Done;
        stop();
    }
    if (!spawn()) {
        qCWarning(lcRenderer).noquote() << m_settings.program << "cannot be started";
        return Outcome::CannotStart;
    }
    m_sequence = 0;
    const Outcome outcome = receive(m_settings.startPatience, &m_locks);
    if (outcome == Outcome::Interrupted)
        return outcome;
    if (outcome != Outcome::Done) {
        qCWarning(lcRenderer).noquote() << m_settings.program << "does not get ready";
        return Outcome::CannotStart;
    }
    if (m_locks.filtersCalls == 0)
        qCWarning(lcRenderer) << "This system has no seccomp: the program that draws pages is held "
                                 "by its limits only.";
    if (m_locks.fencesFiles == 0)
        qCWarning(lcRenderer) << "This system has no Landlock: the program that draws pages can "
                                 "read what the user can read.";
    return Outcome::Done;
}

void RendererProcess::stop()
{
    m_socket.reset();
    if (!isRunning())
        return;
    ::kill(m_process, SIGKILL);
    while (::waitpid(m_process, nullptr, 0) < 0 && errno == EINTR) {
    }
    m_process = -1;
}

RendererProcess::Outcome RendererProcess::ended(Outcome outcome)
{
    stop();
    return outcome;
}

RendererProcess::Outcome RendererProcess::await(std::chrono::milliseconds patience)
{
    const Clock::time_point deadline = Clock::now() + patience;
    while (true) {
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
        if (left <= 0ms)
            return Outcome::OutOfTime;
        pollfd waiting[] = {{m_socket.get(), POLLIN, 0}, {m_wake, POLLIN, 0}};
        const int ready = ::poll(waiting, 2, static_cast<int>(std::min(left, kTick).count()));
        if (ready < 0 && errno != EINTR)
            return Outcome::Died;
        if (ready > 0 && waiting[0].revents != 0)
            return Outcome::Done;
        if (m_keepOn && !m_keepOn())
            return Outcome::Interrupted;
    }
}

template <typename Answer>
RendererProcess::Outcome RendererProcess::receive(std::chrono::milliseconds patience,
                                                  Answer *answer)
{
    if (const Outcome waited = await(patience); waited != Outcome::Done)
        return ended(waited);
    const renderer::Received received = renderer::receiveMessage(m_socket.get());
    if (received.state != renderer::Received::State::Message)
        return ended(Outcome::Died);
    const std::optional<Answer> read = renderer::readAnswer<Answer>(
        received.bytes(), static_cast<bool>(received.descriptor), m_sequence);
    if (!read) {
        qCWarning(lcRenderer) << "The program that draws pages answers what cannot be.";
        return ended(Outcome::Died);
    }
    *answer = *read;
    return Outcome::Done;
}

template <typename Answer, typename Asked>
RendererProcess::Outcome RendererProcess::ask(const Asked &request, int descriptor, Answer *answer)
{
    if (!isRunning())
        return Outcome::Died;
    if (!renderer::sendMessage(m_socket.get(), request, descriptor))
        return ended(Outcome::Died);
    if (const Outcome outcome = receive(m_settings.pagePatience, answer); outcome != Outcome::Done)
        return outcome;
    const Outcome outcome = outcomeOf(answer->status);
    // What a document that wanted too much has taken may never be given back.
    const bool isUsedUp = outcome == Outcome::Died || outcome == Outcome::TooLarge;
    return isUsedUp ? ended(outcome) : outcome;
}

RendererProcess::Outcome RendererProcess::open(quint32 document, const QString &file,
                                               const QString &password, int *pages)
{
    const QByteArray secret = password.toUtf8();
    if (secret.size() >= static_cast<qsizetype>(renderer::kPasswordRoom))
        return Outcome::PasswordNeeded;
    const Descriptor opened = openDocumentFile(file);
    if (!opened)
        return Outcome::Unreadable;
    auto request = made<renderer::OpenDocument>(++m_sequence);
    request.document = document;
    request.passwordBytes = static_cast<std::uint32_t>(secret.size());
    std::copy(secret.begin(), secret.end(), request.password.begin());
    renderer::Opened answer;
    const Outcome outcome = ask(request, opened.get(), &answer);
    *pages = static_cast<int>(answer.pages);
    return outcome;
}

// The renderer answers with as many at a time as it is allowed to, or with what is missing.
template <typename Answer, typename Asked, typename Take>
RendererProcess::Outcome RendererProcess::list(quint32 document, int pages, quint32 atOnce,
                                               const Take &take)
{
    const auto all = static_cast<std::uint32_t>(qMax(0, pages));
    for (std::uint32_t listed = 0; listed < all;) {
        auto request = made<Asked>(++m_sequence);
        request.document = document;
        request.first = listed;
        Answer answer;
        const Outcome outcome = ask(request, -1, &answer);
        if (outcome != Outcome::Done)
            return outcome;
        if (answer.count != std::min(all - listed, atOnce))
            return ended(Outcome::Died);
        for (std::uint32_t i = 0; i < answer.count; ++i)
            take(answer, i);
        listed += answer.count;
    }
    return Outcome::Done;
}

RendererProcess::Outcome RendererProcess::listSizes(quint32 document, int pages,
                                                    QList<QSizeF> *sizes)
{
    sizes->clear();
    return list<renderer::Sizes, renderer::ListSizes>(
        document, pages, renderer::kSizesAtOnce,
        [&](const renderer::Sizes &answer, std::uint32_t i) {
            sizes->append(QSizeF(answer.sizes[i].width, answer.sizes[i].height));
        });
}

RendererProcess::Outcome RendererProcess::listLabels(quint32 document, int pages,
                                                     QStringList *labels)
{
    labels->clear();
    return list<renderer::Labels, renderer::ListLabels>(
        document, pages, renderer::kLabelsAtOnce,
        [&](const renderer::Labels &answer, std::uint32_t i) {
            const renderer::PageLabel &label = answer.labels[i];
            labels->append(terminalLine(QString::fromUtf8(label.text.data(), label.bytes)));
        });
}

RendererProcess::Outcome RendererProcess::draw(quint32 document, int page, QSize size,
                                               QImage *picture)
{
    if (page < 0)
        return Outcome::Damaged;
    const auto width = static_cast<std::uint32_t>(std::max(size.width(), 0));
    const auto height = static_cast<std::uint32_t>(std::max(size.height(), 0));
    if (!renderer::isPictureSize(width, height))
        return Outcome::TooLarge;
    const PictureMemory memory(size);
    if (!memory.isValid())
        return Outcome::TooLarge;
    auto request = made<renderer::DrawPage>(++m_sequence);
    request.document = document;
    request.page = static_cast<std::uint32_t>(page);
    request.width = width;
    request.height = height;
    renderer::Drawn answer;
    const Outcome outcome = ask(request, memory.descriptor(), &answer);
    if (outcome != Outcome::Done)
        return outcome;
    *picture = memory.copy();
    return picture->isNull() ? Outcome::TooLarge : Outcome::Done;
}

RendererProcess::Outcome RendererProcess::close(quint32 document)
{
    auto request = made<renderer::CloseDocument>(++m_sequence);
    request.document = document;
    renderer::Closed answer;
    return ask(request, -1, &answer);
}

RendererProcess::Outcome RendererProcess::check(const QString &file, const QString &password,
                                                CheckedPdf *checked)
{
    *checked = {};
    const QByteArray secret = password.toUtf8();
    if (secret.size() >= static_cast<qsizetype>(renderer::kPasswordRoom))
        return Outcome::PasswordNeeded;
    const Descriptor opened = openDocumentFile(file);
    if (!opened)
        return Outcome::Unreadable;
    auto request = made<renderer::CheckDocument>(++m_sequence);
    request.passwordBytes = static_cast<std::uint32_t>(secret.size());
    std::copy(secret.begin(), secret.end(), request.password.begin());
    renderer::Checked answer;
    const Outcome outcome = ask(request, opened.get(), &answer);
    checked->isEncrypted = answer.isEncrypted != 0;
    checked->mayPrint = answer.mayPrint != 0;
    checked->isOwner = answer.isOwner != 0;
    checked->isDamaged = answer.isDamaged != 0;
    checked->pages = static_cast<int>(answer.pages);
    checked->lostPages = static_cast<int>(answer.lostPages);
    checked->damagedAt = answer.damagedAt;
    checked->detail = QString::fromLatin1(answer.detail.data(), answer.detailBytes);
    return outcome;
}

RendererProcess::Outcome RendererProcess::copy(int file)
{
    renderer::Copied answer;
    return ask(made<renderer::CopyDocument>(++m_sequence), file, &answer);
}

} // namespace corvana
