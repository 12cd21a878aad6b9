#include "platform/sqlite/RegistryFile.h"

#include "platform/sqlite/Database.h"
#include "runtime/Text.h"

#include <sqlite3.h>

#include <exception>
#include <system_error>
#include <utility>

namespace zorvane {

namespace {

/// Marks the file as one of ours and names the version of its tables.
constexpr std::int64_t kApplication = 0x5A727652; // "ZrvR"
constexpr std::int64_t kVersion = 1;
constexpr const char* kMakeTables =
    "CREATE TABLE keys (id INTEGER PRIMARY KEY AUTOINCREMENT, root INTEGER NOT NULL,"
    " path BLOB NOT NULL, folded BLOB NOT NULL, UNIQUE (root, folded));"
    "CREATE TABLE entries (id INTEGER PRIMARY KEY AUTOINCREMENT,"
    " key INTEGER NOT NULL REFERENCES keys (id), name BLOB NOT NULL, folded BLOB NOT NULL,"
    " type INTEGER NOT NULL, data BLOB NOT NULL, UNIQUE (key, folded));"
    "PRAGMA application_id = 0x5A727652; PRAGMA user_version = 1;";

// The end of the journal reaches the disk too, without which a power failure could undo what has
// been answered.
constexpr const char* kBeginWriting = "PRAGMA synchronous = EXTRA; BEGIN IMMEDIATE";

Long ResultOf(int code) {
    switch (code & 0xFF) {
    case SQLITE_OK:
        return kRegistrySuccess;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return kRegistryBusy;
    case SQLITE_PERM:
    case SQLITE_AUTH:
    case SQLITE_READONLY:
    case SQLITE_CANTOPEN:
        return kRegistryAccessDenied;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return kRegistryCorrupt;
    case SQLITE_FULL:
        return kRegistryDiskFull;
    default:
        return kRegistryNotWorking;
    }
}

/// The number that a statement without parameters answers.
Long AskNumber(Database& database, const char* sql, std::int64_t& number) {
    Statement statement(database, sql);
    if (statement.Next()) number = statement.Number(0);
    return ResultOf(statement.Finish());
}

/// Whether the file holds a registry: kRegistryNotFound for one that is still empty,
/// kRegistryCorrupt for one that holds something else.
Long Recognise(Database& database) {
    std::int64_t application = 0;
    std::int64_t version = 0;
    std::int64_t tables = 0;
    std::int64_t own = 0;
    std::int64_t active = 0;
    for (const auto& [sql, number] :
         {std::pair("PRAGMA application_id", &application),
          std::pair("PRAGMA user_version", &version),
          std::pair("SELECT count(*) FROM sqlite_master", &tables),
          std::pair("SELECT count(*) FROM sqlite_master WHERE type = 'table'"
                    " AND name IN ('keys', 'entries')",
                    &own),
          std::pair("SELECT count(*) FROM sqlite_master WHERE type IN ('view', 'trigger')",
                    &active)}) {
        if (const Long result = AskNumber(database, sql, *number)) return result;
    }
    // Views and triggers run whatever somebody wrote into them, and need not end.
    const bool sound = own == 2 && active == 0;
    if (application == kApplication && version == kVersion && sound) return kRegistrySuccess;
    return tables == 0 && application == 0 ? kRegistryNotFound : kRegistryCorrupt;
}

Long MakeKeyIn(Database& database, Long root, const String& path) {
    std::size_t end = 0;
    do {
        end = path.find('\\', end + 1);
        const String part = path.substr(0, end);
        const String folded = LowerText(part);
        Statement insert(database, "INSERT INTO keys (root, path, folded) VALUES (?, ?, ?)"
                                   " ON CONFLICT DO NOTHING");
        if (const Long result = ResultOf(insert.Bind(root).Bind(part).Bind(folded).Finish()))
            return result;
    } while (end != path.npos);
    return kRegistrySuccess;
}

namespace fs = std::filesystem;

/// kRegistryNotFound for a missing file, kRegistryAccessDenied for what is no file: what is written
/// to a device is gone.
Long Look(const fs::path& path) {
    std::error_code failed;
    const fs::file_status status = fs::status(path, failed);
    if (status.type() == fs::file_type::not_found) return kRegistryNotFound;
    return fs::is_regular_file(status) ? kRegistrySuccess : kRegistryAccessDenied;
}

constexpr fs::perms kReadableByAll =
    fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read | fs::perms::others_read;
constexpr fs::perms kOpenToAll =
    kReadableByAll | fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;

/// Makes the missing folders: private to this user, as the desktop's rules require, or readable by
/// everybody, whatever the user's own files are.
void MakeFolders(const fs::path& folder, bool forEverybody) {
    if (folder.empty() || fs::is_directory(folder)) return;
    MakeFolders(folder.parent_path(), forEverybody);
    if (fs::create_directory(folder))
        fs::permissions(folder, forEverybody ? kOpenToAll : fs::perms::owner_all);
}

/// Runs what answers a result, and answers one for what is thrown as well.
template <class Action>
Long Guarded(Action action) {
    try {
        return action();
    } catch (const fs::filesystem_error& error) {
        return error.code() == std::errc::no_space_on_device ? kRegistryDiskFull
                                                             : kRegistryAccessDenied;
    } catch (const std::exception&) { // no memory for data of this size
        return kRegistryNotWorking;
    }
}

} // namespace

// All that is looked at is of one moment: a file that another process is just making would else
// look like one that holds something else.
template <class Reading>
Long RegistryFile::WhileReading(Reading reading) const {
    return Guarded([&]() -> Long {
        if (const Long result = Look(path_)) return result;
        Database database;
        if (const int code = database.Open(path_, false)) return ResultOf(code);
        if (const int code = database.Execute("BEGIN")) return ResultOf(code);
        if (const Long result = Recognise(database)) return result;
        return reading(database);
    });
}

// The lock is taken before anything is looked at, so that what is found still holds when it is
// acted on. A connection that goes without its commit undoes everything.
template <class Writing>
Long RegistryFile::WhileWriting(Writing writing) const {
    return Guarded([&]() -> Long {
        const Long present = Look(path_);
        if (present == kRegistryAccessDenied) return present;
        MakeFolders(path_.parent_path(), shared_);
        Database database;
        if (const int code = database.Open(path_, true)) return ResultOf(code);
        if (database.IsReadOnly()) return kRegistryAccessDenied;
        if (const int code = database.Execute(kBeginWriting)) return ResultOf(code);
        if (shared_ && present == kRegistryNotFound) fs::permissions(path_, kReadableByAll);
        Long result = Recognise(database);
        if (result == kRegistryNotFound) result = ResultOf(database.Execute(kMakeTables));
        if (result == kRegistrySuccess) result = writing(database);
        return result == kRegistrySuccess ? ResultOf(database.Execute("COMMIT")) : result;
    });
}

/// Writes what must change something: kRegistryNotFound, and nothing, where it does not.
template <class Writing>
Long RegistryFile::WhileChanging(Writing writing) const {
    if (Look(path_) == kRegistryNotFound) return kRegistryNotFound;
    return WhileWriting([&](Database& database) -> Long {
        if (const Long result = writing(database)) return result;
        return database.Changes() > 0 ? Long{kRegistrySuccess} : Long{kRegistryNotFound};
    });
}

Long RegistryFile::HasKey(Long root, const String& path) const {
    return WhileReading([&](Database& database) -> Long {
        const String folded = LowerText(path);
        Statement select(database, "SELECT id FROM keys WHERE root = ? AND folded = ?");
        const bool found = select.Bind(root).Bind(folded).Next();
        const Long result = ResultOf(select.Finish());
        return result == kRegistrySuccess && !found ? Long{kRegistryNotFound} : result;
    });
}

Long RegistryFile::MakeKey(Long root, const String& path) const {
    return WhileWriting([&](Database& database) { return MakeKeyIn(database, root, path); });
}

Long RegistryFile::Read(Long root, const String& path, const String& name,
                        StoredValue& value) const {
    return WhileReading([&](Database& database) -> Long {
        const String key = LowerText(path);
        const String folded = LowerText(name);
        Statement select(database,
                         "SELECT name, type, data FROM entries WHERE folded = ?"
                         " AND key = (SELECT id FROM keys WHERE root = ? AND folded = ?)");
        const bool found = select.Bind(folded).Bind(root).Bind(key).Next();
        if (found) value = {select.Bytes(0), static_cast<Long>(select.Number(1)), select.Bytes(2)};
        const Long result = ResultOf(select.Finish());
        return result == kRegistrySuccess && !found ? Long{kRegistryNotFound} : result;
    });
}

// A value that is there already keeps its row, and with it its place in the list.
Long RegistryFile::Write(Long root, const String& path, const String& name, Long type,
                         std::string_view data) const {
    return WhileWriting([&](Database& database) -> Long {
        if (const Long result = MakeKeyIn(database, root, path)) return result;
        const String key = LowerText(path);
        const String folded = LowerText(name);
        Statement insert(database,
                         "INSERT INTO entries (key, name, folded, type, data)"
                         " VALUES ((SELECT id FROM keys WHERE root = ? AND folded = ?), ?, ?, ?, ?)"
                         " ON CONFLICT DO UPDATE SET type = excluded.type, data = excluded.data");
        insert.Bind(root).Bind(key).Bind(name).Bind(folded).Bind(type).Bind(data);
        return ResultOf(insert.Finish());
    });
}

Long RegistryFile::DeleteValue(Long root, const String& path, const String& name) const {
    return WhileChanging([&](Database& database) {
        const String key = LowerText(path);
        const String folded = LowerText(name);
        Statement remove(database,
                         "DELETE FROM entries WHERE folded = ?"
                         " AND key = (SELECT id FROM keys WHERE root = ? AND folded = ?)");
        return ResultOf(remove.Bind(folded).Bind(root).Bind(key).Finish());
    });
}

Long RegistryFile::DeleteKey(Long root, const String& path) const {
    return WhileChanging([&](Database& database) -> Long {
        const String key = LowerText(path);
        const String below = key + "\\";
        const auto size = static_cast<std::int64_t>(below.size());
        for (const char* const sql :
             {"DELETE FROM entries WHERE key IN (SELECT id FROM keys WHERE root = ?"
              " AND (folded = ? OR substr(folded, 1, ?) = ?))",
              "DELETE FROM keys WHERE root = ? AND (folded = ? OR substr(folded, 1, ?) = ?)"}) {
            Statement remove(database, sql);
            remove.Bind(root).Bind(key).Bind(size).Bind(below);
            if (const Long result = ResultOf(remove.Finish())) return result;
        }
        return kRegistrySuccess;
    });
}

Long RegistryFile::List(Long root, const String& path, std::vector<StoredValue>& values) const {
    return WhileReading([&](Database& database) {
        const String key = LowerText(path);
        Statement select(database,
                         "SELECT name, type, data FROM entries WHERE key ="
                         " (SELECT id FROM keys WHERE root = ? AND folded = ?) ORDER BY id");
        select.Bind(root).Bind(key);
        while (select.Next()) {
            values.push_back(
                {select.Bytes(0), static_cast<Long>(select.Number(1)), select.Bytes(2)});
        }
        return ResultOf(select.Finish());
    });
}

Long RegistryFile::Keys(std::vector<StoredKey>& keys) const {
    return WhileReading([&](Database& database) {
        Statement select(database, "SELECT root, path FROM keys ORDER BY id");
        while (select.Next())
            keys.push_back({static_cast<Long>(select.Number(0)), select.Bytes(1)});
        return ResultOf(select.Finish());
    });
}

} // namespace zorvane
