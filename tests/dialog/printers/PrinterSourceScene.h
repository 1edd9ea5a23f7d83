#pragma once

#include <chrono>
#include <memory>

#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/printers/PrinterSource.h"
#include "tests/support/PpdBuilder.h"
#include "tests/support/cups/FaultyServer.h"
#include "tests/support/cups/PrivateCups.h"

namespace corvana::test {

inline constexpr int kLong = 60000; // far more than the time between two looks at the list
inline const QString kQueue = QStringLiteral("office");

/// What a source tells, in its order.
class Told : public QObject
{
public:
    explicit Told(PrinterSource &source)
    {
        connect(&source, &PrinterSource::ready, this, [this](const FetchedPrinter &printer) {
            said += QStringLiteral("ready");
            last = printer;
        });
        connect(&source, &PrinterSource::checked, this,
                [this] { said += QStringLiteral("checked"); });
        connect(&source, &PrinterSource::failed, this, [this](const QString &why) {
            said += QStringLiteral("failed");
            problem = why;
        });
    }

    QStringList said;
    FetchedPrinter last;
    QString problem;
};

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A source of printers with a real server behind, which can be made to fail. The base of tests.
class PrinterSourceScene : public QObject
{
    Q_OBJECT

protected:
    QTemporaryDir m_ppds;
    std::unique_ptr<PrivateCups> m_cups;
    std::unique_ptr<FaultyServer> m_gate;
    std::unique_ptr<QTemporaryDir> m_home;
    ServerContext m_server;

    /// The path of a PPD of that model.
    QString ppdOf(int model)
    {
        const QString path = m_ppds.filePath(QString::number(model) + QStringLiteral(".ppd"));
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(samplePpd(model));
        return path;
    }

    /// The PPD of the queue is from long ago: dates are counted in seconds.
    void dateBack() { dateTo(QDateTime::currentDateTime().addSecs(-3600)); }
    void dateTo(const QDateTime &date)
    {
        for (QDirIterator it(m_cups->folder(), {kQueue + QStringLiteral(".ppd")}, QDir::Files,
                             QDirIterator::Subdirectories);
             it.hasNext();) {
            QFile ppd(it.next());
            QVERIFY(ppd.open(QIODevice::ReadWrite));
            QVERIFY(ppd.setFileTime(date, QFileDevice::FileModificationTime));
        }
    }

    /// The server counts the changes of its queues in seconds.
    static void awaitNextSecond()
    {
        const qint64 now = QDateTime::currentSecsSinceEpoch();
        QTRY_VERIFY(QDateTime::currentSecsSinceEpoch() > now);
    }

    /// Puts the wanted printer into the cache.
    void useOnce(const PrinterWish &request)
    {
        PrinterSource source(request, m_server);
        Told told(source);
        source.open(source.first());
        QTRY_COMPARE(told.said.value(0), QStringLiteral("ready"));
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        m_cups = std::make_unique<PrivateCups>();
        m_cups->start();
        m_cups->addQueue(kQueue, ppdOf(5));
    }
    void cleanupTestCase() { m_cups.reset(); }

    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        for (const char *name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "HOME"})
            qputenv(name, QFile::encodeName(m_home->path()));
        qunsetenv("LPDEST");
        m_gate = std::make_unique<FaultyServer>(m_cups->port());
        m_server = {};
        m_server.address = {QStringLiteral("127.0.0.1"), m_gate->port(),
                            HTTP_ENCRYPTION_IF_REQUESTED};
        m_server.patience = {std::chrono::seconds(20), std::chrono::seconds(20)};
    }
    void cleanup() { m_gate.reset(); }
};

} // namespace corvana::test
