#include <QCoreApplication>
#include <QFile>
#include <QTest>

#include <unistd.h>

#include "dialog/policy/PolicyPlace.h"
#include "dialog/policy/PolicyUser.h"

using namespace corvana;
using namespace Qt::StringLiterals;

/// Where a program looks for its policy.
class PolicyPlaceTest : public QObject
{
    Q_OBJECT

private:
    const PolicyPlace m_installed{u"/etc/corvana-print/policy.d"_s, false};

private Q_SLOTS:
    void cleanup() { qunsetenv("CORVANA_PRINT_POLICY"); }

    void aProgramOfItsUsersOwnMayBeToldAnotherFolder()
    {
        QCOMPARE(policyPlace(), m_installed);
        qputenv("CORVANA_PRINT_POLICY", "/somewhere");
        QCOMPARE(policyPlace(), (PolicyPlace{u"/somewhere"_s, true}));
    }

    void aRelativeFolderIsNone()
    {
        qputenv("CORVANA_PRINT_POLICY", "somewhere");
        QCOMPARE(policyPlace(), m_installed);
    }

    void nobodyTalksAnInstalledProgramOutOfItsPolicy()
    {
        qputenv("CORVANA_PRINT_POLICY", "/somewhere");
        if (::geteuid() == 0) {
            // The program of the test is root's, as an installed one is; now somebody else runs it.
            const QString program = QCoreApplication::applicationFilePath();
            QCOMPARE(::seteuid(65534), 0);
            const PolicyPlace place = policyPlaceOf(program);
            QCOMPARE(::seteuid(0), 0);
            QCOMPARE(place, m_installed);
        } else {
            QCOMPARE(policyPlaceOf(u"/bin/sh"_s), m_installed);
        }
        QCOMPARE(policyPlaceOf(u"/nowhere/at/all"_s), m_installed);
    }

    void aUserIsKnownWithTheGroups()
    {
        QVERIFY(!currentUser().name.isEmpty());
        const PolicyUser root = userWithGroups(u"root"_s);
        QCOMPARE(root.name, u"root"_s);
        QVERIFY(root.groups.contains(u"root"_s));
        QVERIFY(isUser(u"root"_s));
        QVERIFY(!isUser(u"nobody of that name"_s));
        QVERIFY(userWithGroups(u"nobody of that name"_s).groups.isEmpty());
    }
};

QTEST_MAIN(PolicyPlaceTest)
#include "policy_place_test.moc"
