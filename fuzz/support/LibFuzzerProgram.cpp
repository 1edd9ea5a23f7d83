// What libFuzzer calls: the target by whose name the program was started.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "fuzz/support/Target.h"

namespace {
const corvana::fuzz::Target *target = nullptr;
} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    const std::string name = std::filesystem::path((*argv)[0]).filename().string();
    target = corvana::fuzz::Target::named(name);
    if (!target) {
        std::fprintf(stderr, "There is no target \"%s\".\n", name.c_str());
        std::exit(2);
    }
    // Of the application's own, since libFuzzer reads the arguments that Qt would take out.
    static int count = 1;
    static char *arguments[] = {(*argv)[0], nullptr};
    static_cast<void>(argc);
    corvana::fuzz::prepareProgram(count, arguments);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // A copy of exactly that size: what is read behind its end is found.
    const QByteArray input(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    target->run(input);
    return 0;
}
