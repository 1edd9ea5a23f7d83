#include "dialog/job/ResultFile.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include "dialog/job/ResultFormat.h"

namespace corvana {

namespace {

using namespace Qt::StringLiterals;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ResultFile)
};

// A file of a name that nothing had, with the permissions that the process gives new files. A
// temporary file of Qt's would be private for good: the mask of the process, which says what is
// usual, can only be read by changing it for all its threads.
// Errors: null; errno says why.
QString makeFileBeside(const QString &place)
{
    constexpr int kTries = 100;
    // A name that is as long as it can be has no room for an ending. One that is longer is refused
    // here, before anything is printed.
    constexpr qsizetype kRoom = 14;
    constexpr qsizetype kLongest = 255; // bytes
    const QFileInfo info(place);
    QString name = info.fileName();
    const bool isPossible = QFile::encodeName(name).size() <= kLongest;
    while (isPossible && QFile::encodeName(name).size() > kLongest - kRoom)
        name.chop(1);
    for (int i = 0; i < kTries; ++i) {
        const QString path =
            info.path() + u'/' + name +
            u".%1.part"_s.arg(QRandomGenerator::system()->generate(), 8, 16, QLatin1Char('0'));
        const int file = ::open(QFile::encodeName(path).constData(),
                                O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (file >= 0) {
            ::close(file);
            return path;
        }
        if (errno != EEXIST)
            break;
    }
    return {};
}

// Gives a file a name that nothing has yet. Errors: false; errno says why.
bool takeFreeName(const QByteArray &from, const QByteArray &to)
{
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return true;
    // Not every file system can do that.
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    return ::access(to.constData(), F_OK) != 0 ? std::rename(from.constData(), to.constData()) == 0
                                               : (errno = EEXIST, false);
}

// The name itself, where nothing has it.
QString nextFreeName(const QString &name)
{
    const QFileInfo info(name);
    return freeResultName(info.absolutePath(), info.completeBaseName(), info.suffix());
}

} // namespace

std::unique_ptr<ResultFile> ResultFile::create(const QString &name, QString *problem, NamedBy by)
{
    const QFileInfo info(by == NamedBy::Nobody ? nextFreeName(name) : name);
    std::unique_ptr<ResultFile> result(new ResultFile);
    result->m_given = name;
    result->m_namedBy = by;
    result->m_name = info.absoluteFilePath();
    result->m_replaces = info.exists();
    result->m_place = info.exists() ? info.canonicalFilePath() : result->m_name;
    // A link that leads nowhere yet stays a link.
    if (!info.exists() && info.isSymLink())
        result->m_place = info.symLinkTarget();
    if (info.isDir())
        *problem = Texts::tr("%1 is a folder; the name of a file was expected.").arg(name);
    else if (info.exists() && !info.isFile())
        *problem =
            Texts::tr("%1 is a device or a pipe; the name of a file was expected.").arg(name);
    if (!problem->isEmpty())
        return nullptr;
    result->m_path = makeFileBeside(result->m_place);
    if (result->m_path.isEmpty()) {
        *problem = Texts::tr("%1 cannot be written: %2").arg(name, qt_error_string(errno));
        return nullptr;
    }
    return result;
}

ResultFile::~ResultFile()
{
    if (!m_published && !m_path.isEmpty())
        ::unlink(QFile::encodeName(m_path).constData());
}

std::function<QString()> ResultFile::flushing() const
{
    return [path = QFile::encodeName(m_path), given = m_given]() -> QString {
        const int file = ::open(path.constData(), O_RDONLY | O_CLOEXEC);
        // Not every file system can be asked. One that can only be read by now has failed while
        // it was written to.
        const bool isWritten =
            file >= 0 && (::fsync(file) == 0 || errno == EINVAL || errno == ENOSYS);
        const int why = errno;
        if (file >= 0 && ::close(file) != 0 && isWritten && errno != EINTR)
            return Texts::tr("%1 cannot be written: %2").arg(given, qt_error_string(errno));
        return isWritten ? QString()
                         : Texts::tr("%1 cannot be written: %2").arg(given, qt_error_string(why));
    };
}

// Errors: false; errno says why.
bool ResultFile::takeName()
{
    const QByteArray from = QFile::encodeName(m_path);
    if (m_replaces)
        return std::rename(from.constData(), QFile::encodeName(m_place).constData()) == 0;
    // Several runs that print the same document at once all had the same name free before them.
    constexpr int kTries = 100;
    for (int i = 0; i < kTries; ++i) {
        if (takeFreeName(from, QFile::encodeName(m_place)))
            return true;
        if (errno != EEXIST || m_namedBy == NamedBy::User)
            break;
        m_name = m_place = nextFreeName(m_name);
    }
    return false;
}

QString ResultFile::publish()
{
    m_published = takeName();
    if (m_published)
        return {};
    if (errno == EEXIST)
        return Texts::tr("%1 was written by another program meanwhile, and is left as it is. Print "
                         "again to replace it, or name another file.")
            .arg(m_given);
    return Texts::tr("%1 cannot be written: %2").arg(m_given, qt_error_string(errno));
}

bool isSameFile(const QString &one, const QString &other)
{
    const QString canonical = QFileInfo(one).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(other).canonicalFilePath();
}

} // namespace corvana
