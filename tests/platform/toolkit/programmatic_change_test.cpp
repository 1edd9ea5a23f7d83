#include <QtTest>

#include "platform/toolkit/ProgrammaticChange.h"

using namespace corvana;

class ProgrammaticChangeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesAreTheUsersUnlessSaidOtherwise();
    void aScopeEndsWithItsObject();
    void scopesNest();
    void anExceptionEndsTheScope();
};

void ProgrammaticChangeTest::changesAreTheUsersUnlessSaidOtherwise()
{
    QVERIFY(!ProgrammaticChange::isInProgress());
}

void ProgrammaticChangeTest::aScopeEndsWithItsObject()
{
    {
        const ProgrammaticChange change;
        QVERIFY(ProgrammaticChange::isInProgress());
    }
    QVERIFY(!ProgrammaticChange::isInProgress());
}

void ProgrammaticChangeTest::scopesNest()
{
    const auto outer = std::make_unique<ProgrammaticChange>();
    {
        const ProgrammaticChange inner;
        QVERIFY(ProgrammaticChange::isInProgress());
    }
    QVERIFY(ProgrammaticChange::isInProgress());
}

void ProgrammaticChangeTest::anExceptionEndsTheScope()
{
    const auto change = [] {
        const ProgrammaticChange scope;
        throw 1;
    };
    QVERIFY_EXCEPTION_THROWN(change(), int);
    QVERIFY(!ProgrammaticChange::isInProgress());
}

QTEST_GUILESS_MAIN(ProgrammaticChangeTest)
#include "programmatic_change_test.moc"
