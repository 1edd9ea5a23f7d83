#include "dialog/policy/FileTrust.h"

#include <cerrno>
#include <climits>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Policy)
};

QString systemError(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

QString distrust(const struct stat &status, TrustedOwners owners, bool isAbove)
{
    const bool isOwned = status.st_uid == 0 ||
                         (owners == TrustedOwners::RootAndUser && status.st_uid == ::geteuid());
    if (!isOwned)
        return Texts::tr("it belongs to the user with the ID %1").arg(status.st_uid);
    // In a folder like /tmp nobody can take away what is another's.
    const bool isKept = isAbove && (status.st_mode & S_ISVTX) != 0;
    if ((status.st_mode & (S_IWGRP | S_IWOTH)) != 0 && !isKept)
        return Texts::tr("others than its owner may write to it");
    return {};
}

} // namespace

QString whoElseMayWrite(const struct stat &status, TrustedOwners owners)
{
    return distrust(status, owners, false);
}

std::optional<PolicyProblem> whoElseMayWriteAbove(const QByteArray &path, TrustedOwners owners)
{
    QByteArray above = path;
    while (above.size() > 1) {
        const qsizetype slash = above.lastIndexOf('/');
        above = slash > 0 ? above.first(slash) : QByteArray("/");
        struct stat status = {};
        const QString why = ::lstat(above.constData(), &status) != 0
                                ? systemError(errno)
                                : distrust(status, owners, true);
        if (!why.isEmpty())
            return PolicyProblem{{QFile::decodeName(above), 0},
                                 Texts::tr("nothing below this folder is used: %1").arg(why)};
    }
    return std::nullopt;
}

std::optional<PolicyProblem> whyNotTrusted(const QString &path, TrustedOwners owners)
{
    // Without reading: one may look at what one may not read, and a pipe is not waited for.
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_PATH | O_CLOEXEC);
    if (descriptor < 0)
        return PolicyProblem{{path, 0}, systemError(errno)};
    const std::optional<PolicyProblem> problem = whyNotTrusted(descriptor, path, owners);
    ::close(descriptor);
    return problem;
}

std::optional<PolicyProblem> whyNotTrusted(int descriptor, const QString &path,
                                           TrustedOwners owners)
{
    const auto refused = [&path](const struct stat &status, const QString &why) {
        return PolicyProblem{{path, 0},
                             (S_ISDIR(status.st_mode)
                                  ? Texts::tr("nothing in this folder is used: %1")
                                  : Texts::tr("the file is not used: %1"))
                                 .arg(why)};
    };
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0)
        return refused(status, systemError(errno));
    if (const QString why = whoElseMayWrite(status, owners); !why.isEmpty())
        return refused(status, why);
    QByteArray real(PATH_MAX, '\0');
    const QByteArray open = "/proc/self/fd/" + QByteArray::number(descriptor);
    const ssize_t length = ::readlink(open.constData(), real.data(), size_t(real.size()));
    if (length <= 0 || length >= real.size())
        return refused(status, systemError(length < 0 ? errno : ENAMETOOLONG));
    real.truncate(length);
    return whoElseMayWriteAbove(real, owners);
}

} // namespace corvana
