#include <QCoreApplication>
#include <QTest>

#include <unistd.h>

#include "platform/foundation/OwnVariable.h"

using namespace corvana;
using namespace Qt::StringLiterals;

/// Variables that would get around what an administrator has decided.
class OwnVariableTest : public QObject
{
    Q_OBJECT

private:
    static constexpr char kName[] = "CORVANA_PRINT_OF_A_TEST";

private Q_SLOTS:
    void init() { qputenv(kName, "/somewhere"); }
    void cleanup() { qunsetenv(kName); }

    void aProgramOfItsUsersOwnIsTold()
    {
        QCOMPARE(ownVariable(kName), u"/somewhere"_s);
        qunsetenv(kName);
        QVERIFY(ownVariable(kName).isEmpty());
    }

    void anInstalledProgramDoesNotListen()
    {
        if (::geteuid() == 0) {
            // The program of the test is root's, as an installed one is; now somebody else runs it.
            const QString program = QCoreApplication::applicationFilePath();
            QCOMPARE(::seteuid(65534), 0);
            const QString value = ownVariable(kName, program);
            QCOMPARE(::seteuid(0), 0);
            QVERIFY(value.isEmpty());
        } else {
            QVERIFY(ownVariable(kName, u"/bin/sh"_s).isEmpty());
        }
        QVERIFY(ownVariable(kName, u"/nowhere/at/all"_s).isEmpty());
    }
};

QTEST_GUILESS_MAIN(OwnVariableTest)
#include "own_variable_test.moc"
