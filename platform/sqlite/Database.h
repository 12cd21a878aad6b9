#pragma once

#include "runtime/Types.h"

#include <cstdint>
#include <filesystem>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace zorvane {

/// A connection to an SQLite file, closed when it goes. Results are SQLite's codes.
class Database {
  public:
    Database() = default;
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// Opens a file for writing, or for reading only where it can't be written; `create` makes a
    /// missing one. Other processes that hold it are waited for, up to a few seconds.
    int Open(const std::filesystem::path& path, bool create);
    bool IsReadOnly() const;
    /// How many rows have been changed since it was opened.
    int Changes() const;
    /// Runs statements that answer nothing.
    int Execute(const char* sql);

  private:
    friend class Statement;
    sqlite3* handle_ = nullptr;
};

/// One statement. Parameters are bound in the order of their question marks.
class Statement {
  public:
    Statement(Database& database, std::string_view sql);
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    Statement& Bind(std::int64_t number);
    /// Binds raw bytes, which must outlive the statement's steps.
    Statement& Bind(std::string_view bytes);

    /// Moves to the next row; false when there is none.
    bool Next();
    /// Runs to the end; the code of what went wrong, or 0. What went wrong with making or binding
    /// the statement is told here too.
    int Finish();

    std::int64_t Number(int column) const;
    String Bytes(int column) const;

  private:
    void Note(int result);

    sqlite3_stmt* handle_ = nullptr;
    int bound_ = 0;
    int result_ = 0;
};

} // namespace zorvane
