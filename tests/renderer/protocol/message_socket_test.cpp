#include <array>
#include <cstring>
#include <vector>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QTest>

#include "renderer/protocol/MessageSocket.h"

using namespace corvana::renderer;

namespace {

struct SocketPair
{
    SocketPair()
    {
        int ends[2];
        if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) == 0) {
            one = Descriptor(ends[0]);
            other = Descriptor(ends[1]);
        }
    }

    Descriptor one;
    Descriptor other;
};

int openDescriptors()
{
    return static_cast<int>(QDir(QStringLiteral("/proc/self/fd")).count());
}

Descriptor someFile()
{
    return Descriptor(::open("/dev/null", O_RDONLY | O_CLOEXEC));
}

/// Sends bytes with descriptors, as nobody should.
void sendRaw(int socket, std::size_t size, const std::vector<int> &descriptors)
{
    std::vector<std::byte> bytes(size);
    std::vector<std::byte> control(CMSG_SPACE(descriptors.size() * sizeof(int)));
    iovec part{bytes.data(), bytes.size()};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    if (!descriptors.empty()) {
        message.msg_control = control.data();
        message.msg_controllen = control.size();
        cmsghdr *rights = CMSG_FIRSTHDR(&message);
        rights->cmsg_level = SOL_SOCKET;
        rights->cmsg_type = SCM_RIGHTS;
        rights->cmsg_len = CMSG_LEN(descriptors.size() * sizeof(int));
        std::memcpy(CMSG_DATA(rights), descriptors.data(), descriptors.size() * sizeof(int));
    }
    QCOMPARE(::sendmsg(socket, &message, MSG_NOSIGNAL), static_cast<ssize_t>(size));
}

} // namespace

class MessageSocketTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMessageArrivesWithItsDescriptor()
    {
        const SocketPair sockets;
        const Descriptor file = someFile();
        auto sent = made<DrawPage>(3);
        sent.width = 17;
        QVERIFY(sendMessage(sockets.one.get(), sent, file.get()));
        const Received received = receiveMessage(sockets.other.get());
        QCOMPARE(received.state, Received::State::Message);
        QCOMPARE(received.size, sizeof(sent));
        QCOMPARE(std::memcmp(received.room.data(), &sent, sizeof(sent)), 0);
        QVERIFY(received.descriptor);
        struct stat one
        {
        };
        struct stat other
        {
        };
        QCOMPARE(::fstat(file.get(), &one) + ::fstat(received.descriptor.get(), &other), 0);
        QCOMPARE(one.st_rdev, other.st_rdev);
        QCOMPARE(::fcntl(received.descriptor.get(), F_GETFD), FD_CLOEXEC);
    }

    void messagesStayApart()
    {
        const SocketPair sockets;
        QVERIFY(sendMessage(sockets.one.get(), made<Closed>(1)));
        QVERIFY(sendMessage(sockets.one.get(), made<Drawn>(2)));
        QCOMPARE(receiveMessage(sockets.other.get()).size, sizeof(Closed));
        QCOMPARE(receiveMessage(sockets.other.get()).size, sizeof(Drawn));
    }

    void theOtherSideThatHasGoneIsNoticed()
    {
        SocketPair sockets;
        sockets.one.reset();
        QCOMPARE(receiveMessage(sockets.other.get()).state, Received::State::Ended);
        QVERIFY(!sendMessage(sockets.other.get(), made<Drawn>(1)));
    }

    void anEmptyMessageIsNone()
    {
        const SocketPair sockets;
        sendRaw(sockets.one.get(), 0, {});
        QVERIFY(receiveMessage(sockets.other.get()).state != Received::State::Message);
    }

    void aMessageThatIsTooLongIsNone()
    {
        const SocketPair sockets;
        sendRaw(sockets.one.get(), kLargestMessage + 1, {});
        QCOMPARE(receiveMessage(sockets.other.get()).state, Received::State::Wrong);
    }

    void moreThanOneDescriptorIsNoMessageAndNoneIsKept()
    {
        const SocketPair sockets;
        const Descriptor file = someFile();
        const int before = openDescriptors();
        for (const std::size_t count : {2, 8, 9, 200}) {
            sendRaw(sockets.one.get(), 4, std::vector<int>(count, file.get()));
            QCOMPARE(receiveMessage(sockets.other.get()).state, Received::State::Wrong);
            QCOMPARE(openDescriptors(), before);
        }
    }

    void aDescriptorIsClosedWithWhatReceivedIt()
    {
        const SocketPair sockets;
        const Descriptor file = someFile();
        const int before = openDescriptors();
        sendRaw(sockets.one.get(), 4, {file.get()});
        {
            const Received received = receiveMessage(sockets.other.get());
            QVERIFY(received.descriptor);
            QCOMPARE(openDescriptors(), before + 1);
        }
        QCOMPARE(openDescriptors(), before);
    }

    void somethingThatIsNoSocketIsWrong()
    {
        const Descriptor file = someFile();
        QCOMPARE(receiveMessage(file.get()).state, Received::State::Wrong);
    }
};

QTEST_GUILESS_MAIN(MessageSocketTest)
#include "message_socket_test.moc"
