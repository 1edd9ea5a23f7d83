#include "dialog/job/DocumentCopy.h"

#include <array>
#include <cerrno>

#include <poll.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// How long it is waited for the first writer of a pipe. Units: milliseconds.
constexpr int kPatience = 30'000;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Document)
};

// What is read of a pipe that nobody has opened for writing looks like its end. False when nobody
// comes.
bool waitForWriter(int descriptor)
{
    pollfd waiting{descriptor, POLLIN, 0};
    int ready = -1;
    do
        ready = ::poll(&waiting, 1, kPatience);
    while (ready < 0 && errno == EINTR);
    return ready > 0;
}

// As read(2), but it waits for data, whether the descriptor does so or not.
qint64 readSome(int descriptor, char *data, size_t size)
{
    for (;;) {
        const ssize_t count = ::read(descriptor, data, size);
        if (count >= 0 || (errno != EAGAIN && errno != EINTR))
            return count;
        pollfd waiting{descriptor, POLLIN, 0};
        ::poll(&waiting, 1, -1);
    }
}

} // namespace

QString pathOfCopy(const QTemporaryDir &folder)
{
    return folder.filePath(u"document"_s);
}

std::shared_ptr<QTemporaryDir> copyOfDocument(int descriptor, const QString &name, QString *error,
                                              qint64 mostBytes)
{
    auto folder = std::make_shared<QTemporaryDir>();
    QFile copy(pathOfCopy(*folder));
    if (!folder->isValid() || !copy.open(QIODevice::WriteOnly)) {
        *error = Texts::tr("%1 cannot be kept: %2").arg(name, copy.errorString());
        return nullptr;
    }
    std::array<char, 1 << 16> piece{};
    bool hasWriter = false;
    for (qint64 kept = 0;;) {
        const qint64 count = readSome(descriptor, piece.data(), piece.size());
        if (count == 0 && hasWriter)
            break;
        kept += count;
        if (count == 0 && !waitForWriter(descriptor))
            *error = Texts::tr("%1 cannot be read: nobody writes into it.").arg(name);
        else if (count < 0)
            *error = Texts::tr("%1 cannot be read: %2").arg(name, qt_error_string(errno));
        else if (kept > mostBytes)
            *error = Texts::tr("%1 cannot be kept: it has more than %2 bytes.")
                         .arg(name, QString::number(mostBytes));
        else if (copy.write(piece.data(), count) != count)
            *error = Texts::tr("%1 cannot be kept: %2").arg(name, copy.errorString());
        if (!error->isEmpty())
            return nullptr;
        hasWriter = true;
    }
    if (!copy.flush()) {
        *error = Texts::tr("%1 cannot be kept: %2").arg(name, copy.errorString());
        return nullptr;
    }
    return folder;
}

} // namespace corvana
