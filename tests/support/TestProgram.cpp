#include "tests/support/TestProgram.h"

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace corvana::test {

namespace {

struct Entry
{
    std::string name;
    TestObject::Run run;
};

// Objects of other source files register themselves before main(), in any order.
std::vector<Entry> &entries()
{
    static std::vector<Entry> all;
    return all;
}

std::string_view nameOf(std::string_view path)
{
    path.remove_prefix(path.rfind('/') + 1); // npos + 1 is 0
    return path.substr(0, path.rfind('.'));
}

bool isEndOf(std::string_view end, std::string_view name)
{
    return name == end || (name.ends_with(end) && name[name.size() - end.size() - 1] == '_');
}

} // namespace

TestObject::TestObject(const char *file, Run run)
{
    entries().push_back({std::string(nameOf(file)), run});
}

int TestObject::runByProgramName(int argc, char *argv[])
{
    const std::string_view program = nameOf(argc > 0 ? argv[0] : "");
    const Entry *found = nullptr;
    for (const Entry &entry : entries()) {
        const bool isLonger = !found || entry.name.size() > found->name.size();
        if (isEndOf(entry.name, program) && isLonger)
            found = &entry;
    }
    // A program of one test may have any name.
    if (!found && entries().size() == 1)
        found = &entries().front();
    if (found)
        return found->run(argc, argv);
    std::fprintf(stderr, "No test ends the name of this program. These are in it:\n");
    for (const Entry &entry : entries())
        std::fprintf(stderr, "  %s\n", entry.name.c_str());
    return 2;
}

} // namespace corvana::test

int main(int argc, char *argv[])
{
    return corvana::test::TestObject::runByProgramName(argc, argv);
}
