#include "CrashHandler.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <typeinfo>

#include <cxxabi.h>

namespace {

[[noreturn]] void OnTerminate()
{
    const char* type = "unknown";
    const char* what = "";
    if (std::exception_ptr current = std::current_exception()) {
        if (const std::type_info* info = abi::__cxa_current_exception_type())
            type = info->name();
        try {
            std::rethrow_exception(current);
        } catch (const std::exception& e) {
            what = e.what();
        } catch (...) {
        }
    }
    int status = 0;
    char* readable = abi::__cxa_demangle(type, nullptr, nullptr, &status);
    std::fprintf(stderr, "Zavoren!: fatal error: uncaught %s: %s\n", status == 0 && readable ? readable : type, what);
    std::free(readable);
    std::fflush(stderr);
    std::abort();
}

} // namespace

void InstallCrashHandler(const char*)
{
    std::set_terminate(OnTerminate);
}
