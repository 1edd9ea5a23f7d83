#pragma once

#include <QTest>

/// Makes one program of several tests: each of them costs less than a program of its own to compile
/// and to link. The program runs the test under whose name it is started, so that each one still
/// has a process for itself; see corvana_test in tests/CMakeLists.txt.
///
/// It is part of the precompiled header of all tests. Qt's QTEST_MAIN and its sisters, at the end
/// of a test, register that test here instead of writing the program's main(). A test that needs a
/// main() of its own writes one and is declared ALONE.
namespace corvana::test {

class TestObject
{
public:
    using Run = int (*)(int argc, char *argv[]);

    /// `file` is the test's source file, by which the test is found.
    TestObject(const char *file, Run run);

    /// Runs the test whose name is the end of the program's name: "options_page_test" for the
    /// source "page_test.cpp". Where several fit, the longest does. Answers what main() returns.
    static int runByProgramName(int argc, char *argv[]);
};

} // namespace corvana::test

// What Qt's own macro does, but for main() itself.
#undef QTEST_MAIN_WRAPPER
#define QTEST_MAIN_WRAPPER(Test, ...)                                                              \
    namespace {                                                                                    \
    const corvana::test::TestObject registered##Test(__FILE__, [](int argc, char *argv[]) {        \
        QTest::Internal::callInitMain<Test>();                                                     \
        __VA_ARGS__                                                                                \
        Test test;                                                                                 \
        return QTest::qExec(&test, argc, argv);                                                    \
    });                                                                                            \
    }
