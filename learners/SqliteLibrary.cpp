#include "SqliteLibrary.h"

#include <dlfcn.h>

#include <mutex>

namespace {

struct Loaded {
    SqliteLibrary functions;
    std::string error; ///< empty when every function was found
};

/// The library's file name with its ABI version, as Debian's libsqlite3-0 installs it.
constexpr const char* LibraryName = "libsqlite3.so.0";

template<typename Function> bool Find(void* handle, const char* name, Function& function, std::string& error)
{
    function = reinterpret_cast<Function>(::dlsym(handle, name));
    if (!function && error.empty())
        error = std::string("the SQLite library has no ") + name;
    return function != nullptr;
}

Loaded Load()
{
    Loaded loaded;
    // Kept loaded for the rest of the process: the history may be opened again.
    void* handle = ::dlopen(LibraryName, RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        const char* why = ::dlerror();
        loaded.error = std::string("the SQLite library cannot be loaded: ") + (why ? why : LibraryName);
        return loaded;
    }
    SqliteLibrary& f = loaded.functions;
    std::string& e = loaded.error;
    Find(handle, "sqlite3_open_v2", f.open_v2, e);
    Find(handle, "sqlite3_close", f.close, e);
    Find(handle, "sqlite3_errmsg", f.errmsg, e);
    Find(handle, "sqlite3_extended_errcode", f.extended_errcode, e);
    Find(handle, "sqlite3_extended_result_codes", f.extended_result_codes, e);
    Find(handle, "sqlite3_busy_timeout", f.busy_timeout, e);
    Find(handle, "sqlite3_exec", f.exec, e);
    Find(handle, "sqlite3_free", f.free, e);
    Find(handle, "sqlite3_prepare_v2", f.prepare_v2, e);
    Find(handle, "sqlite3_finalize", f.finalize, e);
    Find(handle, "sqlite3_reset", f.reset, e);
    Find(handle, "sqlite3_step", f.step, e);
    Find(handle, "sqlite3_changes", f.changes, e);
    Find(handle, "sqlite3_bind_text", f.bind_text, e);
    Find(handle, "sqlite3_bind_int", f.bind_int, e);
    Find(handle, "sqlite3_bind_int64", f.bind_int64, e);
    Find(handle, "sqlite3_bind_double", f.bind_double, e);
    Find(handle, "sqlite3_column_int", f.column_int, e);
    Find(handle, "sqlite3_column_int64", f.column_int64, e);
    Find(handle, "sqlite3_column_double", f.column_double, e);
    Find(handle, "sqlite3_column_text", f.column_text, e);
    return loaded;
}

const Loaded& Library()
{
    static const Loaded loaded = Load(); // initialised once, whichever thread asks first
    return loaded;
}

} // namespace

const SqliteLibrary* LoadSqlite(std::string& error)
{
    const Loaded& loaded = Library();
    if (!loaded.error.empty()) {
        error = loaded.error;
        return nullptr;
    }
    return &loaded.functions;
}

const SqliteLibrary& Sqlite()
{
    return Library().functions;
}
