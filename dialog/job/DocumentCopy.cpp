#include "dialog/job/DocumentCopy.h"

#include <array>
#include <cerrno>

#include <poll.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>

#include "dialog/job/TemporaryFolder.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// How long it is waited for the first writer of a pipe. Units: milliseconds.
constexpr int kPatience = 30'000;
// How soon it is noticed that nobody wants the document any more. Units: milliseconds.
constexpr int kLook = 100;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Document)
};

// Whether there is something to be read, or an end, within so many milliseconds; below zero:
// however long it takes. False also when it was stopped.
bool waitFor(int descriptor, int patience, const std::stop_token &stop)
{
    pollfd waiting{descriptor, POLLIN, 0};
    for (int waited = 0; patience < 0 || waited < patience; waited += kLook) {
        if (stop.stop_requested())
            return false;
        const int ready = ::poll(&waiting, 1, kLook);
        if (ready > 0 || (ready < 0 && errno != EINTR))
            return ready > 0;
    }
    return false;
}

// As read(2), but it waits for data, whether the descriptor does so or not, and can be stopped.
qint64 readSome(int descriptor, char *data, size_t size, const std::stop_token &stop)
{
    for (;;) {
        waitFor(descriptor, -1, stop);
        if (stop.stop_requested())
            return -1;
        const ssize_t count = ::read(descriptor, data, size);
        if (count >= 0 || (errno != EAGAIN && errno != EINTR))
            return count;
    }
}

} // namespace

QString pathOfCopy(const QTemporaryDir &folder)
{
    return folder.filePath(u"document"_s);
}

std::shared_ptr<QTemporaryDir> copyOfDocument(int descriptor, const QString &name, QString *error,
                                              qint64 mostBytes, const std::stop_token &stop)
{
    auto folder = std::make_shared<QTemporaryDir>();
    if (*error = problemOf(*folder); !error->isEmpty())
        return nullptr;
    QFile copy(pathOfCopy(*folder));
    if (!copy.open(QIODevice::WriteOnly)) {
        *error = Texts::tr("%1 cannot be kept: %2").arg(name, copy.errorString());
        return nullptr;
    }
    std::array<char, 1 << 16> piece{};
    bool hasWriter = false;
    for (qint64 kept = 0;;) {
        const qint64 count = readSome(descriptor, piece.data(), piece.size(), stop);
        if (count == 0 && hasWriter)
            break;
        kept += count;
        // What is read of a pipe that nobody has opened for writing looks like its end.
        if (count == 0 && !waitFor(descriptor, kPatience, stop))
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
