#pragma once

#include <chrono>
#include <memory>
#include <optional>

#include <QFile>
#include <QMetaType>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/server/ServerConnection.h"
#include "tests/support/cups/FaultyServer.h"
#include "tests/support/cups/PrivateCups.h"
#include "tests/support/cups/TestCertificate.h"

Q_DECLARE_METATYPE(corvana::test::FaultyServer::Manner)
Q_DECLARE_METATYPE(corvana::ServerProblem::Kind)
Q_DECLARE_METATYPE(corvana::ServerConnection::File::State)

namespace corvana::test {

/// The queue of a ServerScene.
inline const QString kQueue = QStringLiteral("office");

/// How a test speaks to a server on the loopback.
inline ServerContext contextFor(quint16 port,
                                std::chrono::milliseconds patience = std::chrono::seconds(10))
{
    ServerContext context;
    context.address = {QStringLiteral("127.0.0.1"), port, HTTP_ENCRYPTION_IF_REQUESTED};
    context.patience = {patience, patience};
    return context;
}

inline IppMessage aboutQueue(ipp_op_t operation = IPP_OP_GET_PRINTER_ATTRIBUTES,
                             const QString &queue = kQueue)
{
    return newIppRequest(operation, queueUri(queue));
}

/// A print server with a raw queue, and something in front of it that misbehaves when it is told
/// to. What the user's programs remember of servers goes into a folder that ends with it.
struct ServerScene
{
    explicit ServerScene(const CupsSettings &settings = {}) : cups(settings)
    {
        for (const char *name : {"HOME", "XDG_DATA_HOME"})
            qputenv(name, QFile::encodeName(home.path()));
        cups.start();
        cups.addRawQueue(kQueue);
        anew();
    }

    /// Another one in front, which has seen nothing.
    void anew() { server = std::make_unique<FaultyServer>(cups.port()); }

    /// The server behind shows another certificate from now on. It makes its first one when
    /// somebody begins to speak TLS.
    void show(const TestCertificate &certificate)
    {
        httpClose(httpConnect2("127.0.0.1", cups.port(), nullptr, AF_UNSPEC, HTTP_ENCRYPTION_ALWAYS,
                               1, 10000, nullptr));
        cups.stop();
        certificate.giveTo(cups);
        cups.start();
    }

    QTemporaryDir home;
    PrivateCups cups;
    std::unique_ptr<FaultyServer> server;
};

/// What nearly every test with a ServerScene sets up: one for the whole test, and for each function
/// another server in front of it.
class ServerFixture : public QObject
{
protected:
    void startScene()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        m_scene.emplace();
    }

    std::optional<ServerScene> m_scene;
};

} // namespace corvana::test
