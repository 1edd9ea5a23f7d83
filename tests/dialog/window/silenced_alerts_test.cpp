#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/window/SilencedAlerts.h"
#include "platform/foundation/UserDefaults.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/OrdinaryUser.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

const QString kBundle = u"com.corvana.test.silenced"_s;

} // namespace

class SilencedAlertsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_formerHome;

    static void store(const QVariantMap &domain)
    {
        QVERIFY(UserDefaults::standardUserDefaults().setPersistentDomain_forName(domain, kBundle));
    }
    static QVariantMap stored()
    {
        return UserDefaults::standardUserDefaults().persistentDomainForName(kBundle).value_or(
            QVariantMap{{u"unreadable"_s, true}});
    }
    static QByteArray fileContent()
    {
        QFile file(UserDefaults::fileOfDomain(kBundle));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    // For everybody: others may enter the folders, and read but not write the file.
    void setPermissions(QFile::Permissions ofTheFile)
    {
        const QString file = UserDefaults::fileOfDomain(kBundle);
        constexpr auto kEnter = QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOwner |
                                QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther |
                                QFile::ReadUser | QFile::ExeUser;
        QVERIFY(QFile::setPermissions(file, ofTheFile));
        QVERIFY(QFile::setPermissions(QFileInfo(file).path(), kEnter));
        QVERIFY(QFile::setPermissions(m_folder->path(), kEnter));
    }
    static void expectLogged(const QString &pattern)
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(pattern));
    }

private Q_SLOTS:
    void init()
    {
        m_formerHome = qgetenv("XDG_CONFIG_HOME");
        m_folder = std::make_unique<QTemporaryDir>();
        qputenv("XDG_CONFIG_HOME", m_folder->path().toUtf8());
        QVERIFY(UserDefaults::fileOfDomain(kBundle).startsWith(m_folder->path()));
    }
    void cleanup()
    {
        constexpr auto kAll = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
        QFile::setPermissions(m_folder->path(), kAll);
        QFile::setPermissions(m_folder->filePath(u"corvana-print"_s), kAll);
        m_folder.reset();
        qputenv("XDG_CONFIG_HOME", m_formerHome);
    }

    void alertsThatShallNotShowAgainAreSilenced_data()
    {
        QTest::addColumn<QVariantMap>("domain");
        QTest::addColumn<bool>("silenced");
        QTest::newRow("nothing stored") << QVariantMap() << false;
        QTest::newRow("one shall show") << QVariantMap{{u"Envelope"_s, true}} << false;
        QTest::newRow("one shall not") << QVariantMap{{u"Envelope"_s, false}} << true;
        QTest::newRow("one of two shall not")
            << QVariantMap{{u"Envelope"_s, true}, {u"Label"_s, false}} << true;
    }
    void alertsThatShallNotShowAgainAreSilenced()
    {
        QFETCH(QVariantMap, domain);
        QFETCH(bool, silenced);
        if (!domain.isEmpty())
            store(domain);
        QCOMPARE(hasSilencedAlerts(kBundle), silenced);
    }

    void bringingBackLeavesTheOthersAsTheyAre()
    {
        store({{u"Envelope"_s, true}, {u"Label"_s, false}, {u"Cover"_s, false}});
        QVERIFY(bringAlertsBack(kBundle));
        QVERIFY(!hasSilencedAlerts(kBundle));
        QCOMPARE(stored().keys(), QStringList{u"Envelope"_s});
        QVERIFY(stored().value(u"Envelope"_s).toBool());
    }

    void bringingBackWhereNothingIsSilencedIsNoFailure()
    {
        QVERIFY(bringAlertsBack(kBundle));
        QVERIFY(!hasSilencedAlerts(kBundle));
    }

    void anotherBundlesAlertsStaySilenced()
    {
        const QString other = u"com.corvana.test.other"_s;
        store({{u"Envelope"_s, false}});
        QVERIFY(UserDefaults::standardUserDefaults().setPersistentDomain_forName(
            {{u"Envelope"_s, false}}, other));
        QVERIFY(bringAlertsBack(kBundle));
        QVERIFY(!hasSilencedAlerts(kBundle));
        QVERIFY(hasSilencedAlerts(other));
    }

    void preferencesThatCannotBeWrittenAreTold()
    {
        store({{u"Envelope"_s, false}});
        const QByteArray before = fileContent();
        setPermissions(QFile::ReadOwner | QFile::ReadUser | QFile::ReadGroup | QFile::ReadOther);
        {
            const OrdinaryUser user;
            QVERIFY(hasSilencedAlerts(kBundle));
            expectLogged(u"cannot be written"_s);
            QVERIFY(!bringAlertsBack(kBundle));
            QVERIFY(hasSilencedAlerts(kBundle));
        }
        QCOMPARE(fileContent(), before);
    }

    void preferencesThatCannotBeReadStayAsTheyAre()
    {
        store({{u"Envelope"_s, false}});
        const QByteArray before = fileContent();
        setPermissions(QFile::Permissions());
        {
            const OrdinaryUser user;
            expectLogged(u"cannot be read"_s);
            QVERIFY(!hasSilencedAlerts(kBundle));
            expectLogged(u"cannot be read"_s);
            QVERIFY(!bringAlertsBack(kBundle));
        }
        QFile::setPermissions(UserDefaults::fileOfDomain(kBundle),
                              QFile::ReadOwner | QFile::WriteOwner);
        QCOMPARE(fileContent(), before);
    }

    void damagedPreferencesStayAsTheyAre()
    {
        store({{u"Envelope"_s, false}});
        const QByteArray damaged = "[General\nno setting at all\n";
        writeFile(UserDefaults::fileOfDomain(kBundle), damaged);
        expectLogged(u"cannot be read"_s);
        QVERIFY(!hasSilencedAlerts(kBundle));
        expectLogged(u"cannot be read"_s);
        QVERIFY(!bringAlertsBack(kBundle));
        QCOMPARE(fileContent(), damaged);
    }

    void aBundleWithoutAnIdentifierHasNone()
    {
        QVERIFY(!hasSilencedAlerts(QString()));
        QVERIFY(!bringAlertsBack(QString()));
    }
};

QTEST_GUILESS_MAIN(SilencedAlertsTest)

#include "silenced_alerts_test.moc"
