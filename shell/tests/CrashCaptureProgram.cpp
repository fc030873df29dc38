// Installs the program's crash handler with a stand-in helper, then fails as asked, so that
// tests can read exactly what the handler captures:
//   crash_capture_program HELPER segv|abort|exception|database

#include "CrashHandler.h"
#include "FileCharacterDatabase.h"

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

// Not in an anonymous namespace: an exported name is what the stack trace can show.
[[noreturn]] __attribute__((noinline)) void FailOnPurpose(const char* kind);

void FailOnPurpose(const char* kind)
{
    if (std::strcmp(kind, "exception") == 0)
        throw std::runtime_error("failing on purpose");
    if (std::strcmp(kind, "database") == 0) {
        FileCharacterDatabase database("no such database");
        std::abort();
    }
    if (std::strcmp(kind, "abort") == 0)
        std::abort();
    std::raise(SIGSEGV);
    std::abort();
}

int main(int argc, char** argv)
{
    if (argc < 3)
        return 2;
    InstallCrashHandler(argv[1]);
    FailOnPurpose(argv[2]);
}
