#include "dialog/terminal/PasswordFile.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QScopeGuard>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Whoever names a document by mistake is told so. Units: bytes.
constexpr qsizetype kLongestPassword = 1024;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PasswordFile)
};

// One byte after the other: what stands behind the line may be for somebody else.
std::optional<QString> readPassword(int descriptor, const QString &name, QString *error)
{
    QByteArray line;
    const auto wiping = qScopeGuard([&] { line.fill('\0'); });
    line.reserve(kLongestPassword + 1);
    char c = 0;
    ssize_t got = 0;
    while (line.size() <= kLongestPassword) {
        got = ::read(descriptor, &c, 1);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0 || c == '\n')
            break;
        line += c;
    }
    if (got < 0) {
        *error =
            Texts::tr("The password cannot be read from %1: %2.").arg(name, qt_error_string(errno));
        return std::nullopt;
    }
    if (line.endsWith('\r'))
        line.chop(1);
    const QString password = QString::fromUtf8(line);
    if (line.isEmpty())
        *error = Texts::tr("The first line of %1 is empty; a password was expected.").arg(name);
    else if (line.size() > kLongestPassword || line.contains('\0') || password.toUtf8() != line)
        *error = Texts::tr("The first line of %1 is no password: at most %2 bytes of UTF-8 were "
                           "expected.")
                     .arg(name, QString::number(kLongestPassword));
    else
        return password;
    return std::nullopt;
}

// Why the password in an open file is not taken; empty when it can be.
QString objection(int descriptor, const QString &name)
{
    struct stat info = {};
    if (::fstat(descriptor, &info) != 0)
        return Texts::tr("The password cannot be read from %1: %2.")
            .arg(name, qt_error_string(errno));
    // A pipe is what a shell makes of <(COMMAND).
    if (!S_ISREG(info.st_mode) && !S_ISFIFO(info.st_mode))
        return Texts::tr("The password cannot be read from %1: it is no file.").arg(name);
    if (info.st_uid != ::geteuid() && info.st_uid != 0)
        return Texts::tr("The password in %1 is not taken: the file belongs to somebody else.")
            .arg(name);
    if ((info.st_mode & (S_IRWXG | S_IRWXO)) != 0)
        return Texts::tr("The password in %1 is not taken: others than its owner may use the file "
                         "(its mode is %2; chmod 600 takes that away).")
            .arg(name, QString::number(info.st_mode & 07777, 8));
    return {};
}

} // namespace

std::optional<QString> passwordInFile(const QString &path, QString *error)
{
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0) {
        *error =
            Texts::tr("The password cannot be read from %1: %2.").arg(path, qt_error_string(errno));
        return std::nullopt;
    }
    const auto closing = qScopeGuard([&] { ::close(descriptor); });
    // Of the file that is open: another one may have its name by now.
    *error = objection(descriptor, path);
    return error->isEmpty() ? readPassword(descriptor, path, error) : std::nullopt;
}

std::optional<QString> passwordFromDescriptor(int descriptor, QString *error)
{
    // The programs that are started later are not to have it.
    const auto closing = qScopeGuard([&] {
        if (descriptor > STDERR_FILENO)
            ::close(descriptor);
    });
    return readPassword(descriptor, Texts::tr("descriptor %1").arg(descriptor), error);
}

} // namespace corvana
