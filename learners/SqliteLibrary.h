#pragma once

#include <sqlite3.h>

#include <string>

/// The SQLite functions the learning history uses, from the system's library loaded the first
/// time the history is opened: most starts of the program never open it before the first page
/// is up, and a library not loaded costs neither start-up time nor memory.
struct SqliteLibrary {
    decltype(&::sqlite3_open_v2) open_v2 = nullptr;
    decltype(&::sqlite3_close) close = nullptr;
    decltype(&::sqlite3_errmsg) errmsg = nullptr;
    decltype(&::sqlite3_extended_errcode) extended_errcode = nullptr;
    decltype(&::sqlite3_extended_result_codes) extended_result_codes = nullptr;
    decltype(&::sqlite3_busy_timeout) busy_timeout = nullptr;
    decltype(&::sqlite3_exec) exec = nullptr;
    decltype(&::sqlite3_free) free = nullptr;
    decltype(&::sqlite3_prepare_v2) prepare_v2 = nullptr;
    decltype(&::sqlite3_finalize) finalize = nullptr;
    decltype(&::sqlite3_reset) reset = nullptr;
    decltype(&::sqlite3_step) step = nullptr;
    decltype(&::sqlite3_changes) changes = nullptr;
    decltype(&::sqlite3_bind_text) bind_text = nullptr;
    decltype(&::sqlite3_bind_int) bind_int = nullptr;
    decltype(&::sqlite3_bind_int64) bind_int64 = nullptr;
    decltype(&::sqlite3_bind_double) bind_double = nullptr;
    decltype(&::sqlite3_column_int) column_int = nullptr;
    decltype(&::sqlite3_column_int64) column_int64 = nullptr;
    decltype(&::sqlite3_column_double) column_double = nullptr;
    decltype(&::sqlite3_column_text) column_text = nullptr;
};

/// Loads the library once (any thread); null with the reason in `error` when it cannot be
/// loaded or lacks a function.
const SqliteLibrary* LoadSqlite(std::string& error);

/// The library LoadSqlite loaded; only after it succeeded.
const SqliteLibrary& Sqlite();
