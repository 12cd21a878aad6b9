#include "platform/sqlite/Database.h"

#include <sqlite3.h>

namespace zorvane {

namespace {

/// Waits briefly for another process, for about ten seconds in all. SQLite's own busy handler backs
/// off further with every try and is starved by a process that writes all the time.
int WaitForTurn(void* /*context*/, int tries) {
    constexpr int mostTries = 5000;
    if (tries >= mostTries) return 0;
    sqlite3_sleep(2);
    return 1;
}

} // namespace

Database::~Database() { sqlite3_close(handle_); }

int Database::Open(const std::filesystem::path& path, bool create) {
    const int flags = SQLITE_OPEN_READWRITE | (create ? SQLITE_OPEN_CREATE : 0);
    const std::u8string name = path.u8string();
    const int result =
        sqlite3_open_v2(reinterpret_cast<const char*>(name.c_str()), &handle_, flags, nullptr);
    if (result == SQLITE_OK) sqlite3_busy_handler(handle_, WaitForTurn, nullptr);
    return result;
}

bool Database::IsReadOnly() const { return sqlite3_db_readonly(handle_, "main") != 0; }

int Database::Changes() const { return sqlite3_total_changes(handle_); }

int Database::Execute(const char* sql) {
    return sqlite3_exec(handle_, sql, nullptr, nullptr, nullptr);
}

Statement::Statement(Database& database, std::string_view sql) {
    Note(sqlite3_prepare_v2(database.handle_, sql.data(), static_cast<int>(sql.size()), &handle_,
                            nullptr));
}

Statement::~Statement() { sqlite3_finalize(handle_); }

Statement& Statement::Bind(std::int64_t number) {
    if (result_ == SQLITE_OK) Note(sqlite3_bind_int64(handle_, ++bound_, number));
    return *this;
}

Statement& Statement::Bind(std::string_view bytes) {
    if (result_ != SQLITE_OK) return *this;
    // Without an address no bytes would be taken for no value.
    const char* const data = bytes.empty() ? "" : bytes.data();
    Note(sqlite3_bind_blob64(handle_, ++bound_, data, bytes.size(), SQLITE_STATIC));
    return *this;
}

bool Statement::Next() {
    if (result_ != SQLITE_OK) return false;
    const int step = sqlite3_step(handle_);
    if (step != SQLITE_ROW && step != SQLITE_DONE) Note(step);
    return step == SQLITE_ROW;
}

int Statement::Finish() {
    while (Next()) {
    }
    return result_;
}

std::int64_t Statement::Number(int column) const { return sqlite3_column_int64(handle_, column); }

String Statement::Bytes(int column) const {
    const void* const data = sqlite3_column_blob(handle_, column);
    const int size = sqlite3_column_bytes(handle_, column);
    return data ? String(static_cast<const char*>(data), static_cast<std::size_t>(size)) : String();
}

void Statement::Note(int result) {
    if (result_ == SQLITE_OK) result_ = result;
}

} // namespace zorvane
