#include <functional>
#include <memory>
#include <optional>
#include <thread>

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/server/CertificateTrust.h"
#include "dialog/server/KnownServers.h"
#include "tests/support/cups/TestCertificate.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;
using Kind = CertificateVerdict::Kind;

namespace {

const QString kHost = u"print.example.com"_s;
const QString kLoopback = u"127.0.0.1"_s;

/// Who knows a server already.
enum class Known { ToNobody, ToUs, ToLibcups };

/// Certificates of one server, or of one that stands in its place.
struct Certificates
{
    explicit Certificates(const QString &host)
        : authority({.host = u"Authority"_s, .isAuthority = true}),
          stranger({.host = u"Stranger"_s, .isAuthority = true}), former({.host = host})
    {
    }

    TestCertificate authority; // trusted by the system
    TestCertificate stranger;  // by nobody
    TestCertificate former;
};

using Maker = std::function<TestCertificate(const Certificates &, const QString &host)>;

} // namespace

Q_DECLARE_METATYPE(CertificateVerdict::Kind)
Q_DECLARE_METATYPE(Known)
Q_DECLARE_METATYPE(Maker)

/// What is thought of certificates, without a server.
class CertificateTrustTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir(u"ssl"_s));
        qputenv("HOME", QFile::encodeName(m_folder->path()));
    }

    void aServerIsKnownByItsKey_data()
    {
        QTest::addColumn<Known>("known");
        QTest::addColumn<Maker>("next");
        QTest::addColumn<Kind>("kind");
        const auto row = [](const char *name, Kind kind, const Maker &next) {
            QTest::addRow("%s, known to us", name) << Known::ToUs << next << kind;
            QTest::addRow("%s, known to libcups", name) << Known::ToLibcups << next << kind;
        };
        const auto own = [](int until, int from = -10) {
            return [=](const Certificates &, const QString &host) {
                return TestCertificate({.host = host, .from = from, .until = until});
            };
        };
        const auto sameKey = [](int until, int from = -10) {
            return [=](const Certificates &all, const QString &host) {
                return TestCertificate(
                    {.host = host, .from = from, .until = until, .key = &all.former});
            };
        };
        const auto issued = [](TestCertificate Certificates::*by, const QString &otherHost = {},
                               int until = 100) {
            return [=](const Certificates &all, const QString &host) {
                return TestCertificate({.host = otherHost.isEmpty() ? host : otherHost,
                                        .until = until,
                                        .issuer = &(all.*by)});
            };
        };
        QTest::newRow("first seen") << Known::ToNobody << Maker(own(100)) << Kind::Trusted;
        QTest::newRow("first seen, expired") << Known::ToNobody << Maker(own(-1)) << Kind::Invalid;
        QTest::newRow("first seen, not valid yet")
            << Known::ToNobody << Maker(own(100, 1)) << Kind::Invalid;
        row("same dates", Kind::Trusted, sameKey(100));
        row("renewed", Kind::Trusted, sameKey(200));
        row("renewed for less", Kind::Trusted, sameKey(50));
        row("renewed under another name", Kind::Trusted, [](const Certificates &all, auto) {
            return TestCertificate({.host = u"other.example.com"_s, .key = &all.former});
        });
        row("renewed by an authority", Kind::Trusted, [](const Certificates &all, auto host) {
            return TestCertificate({.host = host, .key = &all.former, .issuer = &all.authority});
        });
        row("expired", Kind::Invalid, sameKey(-1));
        row("not valid yet", Kind::Invalid, sameKey(100, 1));
        row("another key, later", Kind::Changed, own(200));
        row("another key, same dates", Kind::Changed, own(100));
        row("another key, earlier", Kind::Changed, own(50));
        row("another key, expired", Kind::Changed, own(-1));
        row("another key, vouched for", Kind::Trusted, issued(&Certificates::authority));
        row("another key, vouched for less long", Kind::Trusted,
            issued(&Certificates::authority, {}, 50));
        row("another key, vouched for as another host", Kind::Changed,
            issued(&Certificates::authority, u"other.example.com"_s));
        row("another key, vouched for until yesterday", Kind::Changed,
            issued(&Certificates::authority, {}, -1));
        row("another key, vouched for by a stranger", Kind::Changed,
            issued(&Certificates::stranger));
    }
    void aServerIsKnownByItsKey()
    {
        QFETCH(Known, known);
        QFETCH(Maker, next);
        QFETCH(Kind, kind);
        for (const QString &host : {kHost, kLoopback}) {
            init();
            const Certificates all(host);
            write(u"authorities"_s, all.authority.certificate());
            const ServerAddress server{host, 631};
            if (known == Known::ToUs)
                QCOMPARE(judge(server, all.former), Kind::Trusted);
            if (known == Known::ToLibcups)
                write(libcupsFile(host), all.former.certificate());
            const QByteArray libcupsKnew = content(libcupsFile(host));

            const TestCertificate certificate = next(all, host);
            const CertificateVerdict verdict = trust().judge(server, certificate.list().get());
            QCOMPARE(verdict.kind, kind);
            QVERIFY(!verdict.certificate.isEmpty());
            if (kind == Kind::Changed) {
                QCOMPARE(verdict.knownFrom,
                         m_folder->filePath(known == Known::ToUs ? u"known"_s : libcupsFile(host)));
                QCOMPARE(verdict.entry, known == Known::ToUs ? server.argument() : QString());
            }
            // What is trusted is remembered, and nothing else; libcups' memory is its own.
            const auto expected = kind == Kind::Trusted  ? std::optional(certificate.keyId())
                                  : known == Known::ToUs ? std::optional(all.former.keyId())
                                                         : std::nullopt;
            QCOMPARE(servers().key(server.argument()), expected);
            QCOMPARE(content(libcupsFile(host)), libcupsKnew);
            if (known != Known::ToNobody)
                QCOMPARE(judge(server, all.former),
                         kind != Kind::Trusted || certificate.keyId() == all.former.keyId()
                             ? Kind::Trusted
                             : Kind::Changed);
        }
    }

    // libcups would refuse the earlier one, and write the later one in the place of an expired one.
    void libcupsIsNotAskedToCompareDates_data()
    {
        QTest::addColumn<int>("former"); // days
        QTest::addColumn<int>("next");
        QTest::newRow("renewed for less") << 100 << 50;
        QTest::newRow("renewed after its end") << -1 << 100;
    }
    void libcupsIsNotAskedToCompareDates()
    {
        QFETCH(int, former);
        QFETCH(int, next);
        if (::getuid() == 0)
            QSKIP("what libcups remembers for root is no test's to write");
        const TestCertificate one({.until = former});
        const TestCertificate other({.until = next, .key = &one});
        QVERIFY(QDir().mkpath(m_folder->filePath(u".cups/ssl"_s)));
        const QString file = u".cups/ssl/%1.crt"_s.arg(kHost);
        write(file, one.certificate());
        // It looks for its folders once for each thread.
        Kind found = Kind::Invalid;
        std::thread([&] {
            const CertificateTrust usual({.known = m_folder->filePath(u"known"_s)});
            found = usual.judge({kHost, 631}, other.list().get()).kind;
        }).join();
        QCOMPARE(found, Kind::Trusted);
        QCOMPARE(content(file), one.certificate());
    }

    void serversOfAHostAreToldApartByTheirPorts()
    {
        const TestCertificate one({});
        const TestCertificate other({});
        QCOMPARE(judge({kHost, 631}, one), Kind::Trusted);
        QCOMPARE(judge({kHost, 8631}, other), Kind::Trusted);
        QCOMPARE(judge({kHost, 8631}, one), Kind::Changed);
        QCOMPARE(judge({kHost, 631}, one), Kind::Trusted);
    }

    void whatWeKnowCountsMoreThanWhatLibcupsRemembers()
    {
        const TestCertificate ours({});
        const TestCertificate theirs({});
        QCOMPARE(judge({kHost, 631}, ours), Kind::Trusted);
        write(libcupsFile(kHost), theirs.certificate());
        QCOMPARE(judge({kHost, 631}, ours), Kind::Trusted);
        QCOMPARE(judge({kHost, 631}, theirs), Kind::Changed);
    }

    // Read by libcups, once for each thread.
    void whatTheUserForbidsIsNotTrusted_data()
    {
        QTest::addColumn<QByteArray>("variable");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("host"); // of the certificate
        QTest::addColumn<int>("until");
        QTest::addColumn<bool>("isKnown");
        QTest::addColumn<Kind>("kind");
        const auto row = [](const char *name, const char *variable, const char *value,
                            const QString &host, int until, bool isKnown, Kind kind) {
            QTest::newRow(name) << QByteArray(variable) << QByteArray(value) << host << until
                                << isKnown << kind;
        };
        row("no strangers", "CUPS_TRUSTFIRST", "No", kHost, 100, false, Kind::Invalid);
        row("no strangers, known", "CUPS_TRUSTFIRST", "No", kHost, 100, true, Kind::Invalid);
        row("no self-made ones", "CUPS_ANYROOT", "No", kHost, 100, false, Kind::Invalid);
        row("right names", "CUPS_VALIDATECERTS", "Yes", kHost, 100, false, Kind::Trusted);
        row("no wrong names", "CUPS_VALIDATECERTS", "Yes", u"other.example.com"_s, 100, false,
            Kind::Invalid);
        row("expired ones", "CUPS_EXPIREDCERTS", "Yes", kHost, -1, false, Kind::Trusted);
    }
    void whatTheUserForbidsIsNotTrusted()
    {
        QFETCH(QByteArray, variable);
        QFETCH(QByteArray, value);
        QFETCH(QString, host);
        QFETCH(int, until);
        QFETCH(bool, isKnown);
        QFETCH(Kind, kind);
        const TestCertificate certificate({.host = host, .until = until});
        if (isKnown)
            QCOMPARE(judge({kHost, 631}, certificate), Kind::Trusted);
        qputenv(variable.constData(), value);
        Kind found = Kind::Changed;
        std::thread([&] { found = judge({kHost, 631}, certificate); }).join();
        qunsetenv(variable.constData());
        QCOMPARE(found, kind);
    }

    void whatIsNoCertificateIsInvalid_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("none") << QByteArray();
        QTest::newRow("garbage") << QByteArray("garbage");
    }
    void whatIsNoCertificateIsInvalid()
    {
        QFETCH(QByteArray, bytes);
        const TestCertificate::List list(cupsArrayNew(nullptr, nullptr));
        if (!bytes.isEmpty())
            httpAddCredential(list.get(), bytes.constData(), static_cast<size_t>(bytes.size()));
        QCOMPARE(trust().judge({kHost, 631}, list.get()).kind, Kind::Invalid);
        QVERIFY(content(u"known"_s).isEmpty());
    }

private:
    static QString libcupsFile(const QString &host) { return u"ssl/%1.crt"_s.arg(host); }
    KnownServers servers() const { return KnownServers(m_folder->filePath(u"known"_s)); }
    CertificateTrust trust() const
    {
        return CertificateTrust({.known = m_folder->filePath(u"known"_s),
                                 .authorities = m_folder->filePath(u"authorities"_s),
                                 .libcups = m_folder->filePath(u"ssl"_s)});
    }
    Kind judge(const ServerAddress &server, const TestCertificate &certificate) const
    {
        return trust().judge(server, certificate.list().get()).kind;
    }
    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(m_folder->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QByteArray content(const QString &name) const
    {
        QFile file(m_folder->filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(CertificateTrustTest)
#include "certificate_trust_test.moc"
