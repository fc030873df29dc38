#pragma once

// Runs a piece of a test in a child process with little memory, so that a reader that would
// allocate what a crafted file claims fails there instead of in the test.

#include <new>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace testdb {

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool AddressSanitizer = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
inline constexpr bool AddressSanitizer = true;
#else
inline constexpr bool AddressSanitizer = false;
#endif
#else
inline constexpr bool AddressSanitizer = false;
#endif

/// Runs `body` in a child process whose address space is limited to `limitBytes` (no limit
/// under AddressSanitizer, which reserves terabytes of shadow memory); the child's exit code.
template<typename Body> int InLimitedChild(rlim_t limitBytes, Body body)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::alarm(60);
        if (!AddressSanitizer) {
            const rlimit limit{limitBytes, limitBytes};
            ::setrlimit(RLIMIT_AS, &limit);
        }
        try {
            ::_exit(body() ? 0 : 1);
        } catch (const std::bad_alloc&) {
            ::_exit(2);
        } catch (...) {
            ::_exit(3);
        }
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 100 + WTERMSIG(status);
}

} // namespace testdb
