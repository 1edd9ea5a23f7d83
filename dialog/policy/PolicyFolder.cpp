#include "dialog/policy/PolicyFolder.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>

#include "dialog/policy/FileTrust.h"
#include "dialog/policy/PolicyFile.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Policy)
};

// A file that is open. Ownership: closes it.
class OpenFile
{
public:
    explicit OpenFile(int descriptor) : m_descriptor(descriptor) {}
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;
    ~OpenFile()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    int get() const { return m_descriptor; }
    bool isOpen() const { return m_descriptor >= 0; }

private:
    int m_descriptor;
};

QString systemError(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

class FolderReader
{
public:
    explicit FolderReader(const PolicyPlace &place) { m_reading.place = place; }

    PolicyReading read()
    {
        const QByteArray named = QFile::encodeName(m_reading.place.folder);
        char *resolved = ::realpath(named.constData(), nullptr);
        if (!resolved) {
            if (errno != ENOENT)
                refuse(m_reading.place.folder, systemError(errno));
            return m_reading;
        }
        m_path = resolved;
        std::free(resolved);
        if (const auto above = whoElseMayWriteAbove(m_path, m_reading.place.owners())) {
            m_reading.problems += *above;
            return m_reading;
        }
        const OpenFile folder(
            ::open(m_path.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        struct stat status = {};
        if (!folder.isOpen() || ::fstat(folder.get(), &status) != 0) {
            refuse(m_reading.place.folder, systemError(errno));
            return m_reading;
        }
        if (const QString why = whoElseMayWrite(status, m_reading.place.owners()); !why.isEmpty()) {
            refuse(m_reading.place.folder,
                   Texts::tr("nothing in this folder is used: %1").arg(why));
            return m_reading;
        }
        const QList<QByteArray> names = namesIn(folder.get());
        for (const QByteArray &name :
             names.first(std::min<qsizetype>(names.size(), kMostPolicyFiles)))
            readFile(folder.get(), name);
        if (names.size() > kMostPolicyFiles)
            refuse(m_reading.place.folder,
                   Texts::tr("only the first %1 files are used").arg(kMostPolicyFiles));
        return m_reading;
    }

private:
    void refuse(const QString &path, const QString &why)
    {
        m_reading.problems += PolicyProblem{{path, 0}, why};
    }

    QString pathOf(const QByteArray &name) const
    {
        return m_reading.place.folder + u'/' + QFile::decodeName(name);
    }

    static QList<QByteArray> namesIn(int folder)
    {
        QList<QByteArray> names;
        DIR *list = ::fdopendir(::dup(folder));
        if (!list)
            return names;
        ::rewinddir(list);
        while (const dirent *entry = ::readdir(list)) {
            const QByteArray name(entry->d_name);
            if (name.endsWith(".conf") && !name.startsWith('.'))
                names += name;
        }
        ::closedir(list);
        std::sort(names.begin(), names.end());
        return names;
    }

    // The name in this folder that a symbolic link leads to. Errors: empty.
    QByteArray targetOf(int folder, const QByteArray &link) const
    {
        QByteArray target(PATH_MAX, '\0');
        const ssize_t length =
            ::readlinkat(folder, link.constData(), target.data(), size_t(target.size()));
        if (length <= 0 || length >= target.size())
            return {};
        target.truncate(length);
        if (target.startsWith(m_path + '/'))
            target = target.mid(m_path.size() + 1);
        return target.contains('/') ? QByteArray() : target;
    }

    void readFile(int folder, const QByteArray &name)
    {
        constexpr int kHow = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
        const QString path = pathOf(name);
        int descriptor = ::openat(folder, name.constData(), kHow);
        if (descriptor < 0 && errno == ELOOP) {
            const QByteArray target = targetOf(folder, name);
            if (target.isEmpty())
                return refuse(path, Texts::tr("the file is not used: it is a link that leads out "
                                              "of its folder"));
            descriptor = ::openat(folder, target.constData(), kHow);
        }
        const int error = errno;
        const OpenFile file(descriptor);
        struct stat status = {};
        if (!file.isOpen() || ::fstat(file.get(), &status) != 0)
            return refuse(path, Texts::tr("the file is not used: %1").arg(systemError(error)));
        if (!S_ISREG(status.st_mode))
            return refuse(path, Texts::tr("the file is not used: it is no ordinary file"));
        if (const QString why = whoElseMayWrite(status, m_reading.place.owners()); !why.isEmpty())
            return refuse(path, Texts::tr("the file is not used: %1").arg(why));
        take(file.get(), path);
    }

    void take(int descriptor, const QString &path)
    {
        QFile file;
        if (!file.open(descriptor, QIODevice::ReadOnly))
            return refuse(path, file.errorString());
        const QByteArray text = file.read(kLargestPolicyFile + 1);
        if (file.error() != QFileDevice::NoError)
            return refuse(path, Texts::tr("the file is not used: %1").arg(file.errorString()));
        const PolicyFile parsed = parsePolicyFile(text, path, int(m_reading.files.size()));
        m_reading.files += path;
        m_reading.entries += parsed.entries;
        m_reading.problems += parsed.problems;
    }

    PolicyReading m_reading;
    QByteArray m_path; // of the folder, without links
};

} // namespace

PolicyReading readPolicyFolder(const PolicyPlace &place)
{
    return FolderReader(place).read();
}

} // namespace corvana
