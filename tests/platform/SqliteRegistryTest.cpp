#include "platform/sqlite/SqliteRegistry.h"
#include "Test.h"
#include "platform/sqlite/Database.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace zorvane {
namespace {

Long Set(SqliteRegistry& registry, Long root, const String& name, const String& text) {
    Registry::Handle key = 0;
    const Long made = registry.CreateKey(root, "K", kAllAccess, key);
    return made == kRegistrySuccess ? registry.SetValue(key, name, kRegistryString, text) : made;
}

/// A value's text, or the result in brackets.
String Get(SqliteRegistry& registry, Long root, const String& name) {
    Registry::Handle key = 0;
    Long type = 0;
    String data;
    Long result = registry.OpenKey(root, "K", kReadAccess, key);
    if (result == kRegistrySuccess) result = registry.QueryValue(key, name, 256, type, data);
    return result == kRegistrySuccess ? data : "(" + std::to_string(result) + ")";
}

/// A path that nobody can write: what stands for its folder is a file.
std::filesystem::path Unwritable(const TempFolder& folder) {
    std::ofstream(folder.Path() / "file") << "text";
    return folder.Path() / "file" / "registry.sqlite";
}

TEST(SqliteRegistry, TouchesNothingBeforeItIsWrittenTo) {
    const TempFolder folder;
    SqliteRegistry registry({.own = folder.Path() / "a" / "r.sqlite", .shared = {}});
    EXPECT_EQ(Get(registry, kCurrentUser, "V"), "(2)");
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
    EXPECT_EQ(Set(registry, kCurrentUser, "V", "kept"), kRegistrySuccess);
    SqliteRegistry later({.own = folder.Path() / "a" / "r.sqlite", .shared = {}});
    EXPECT_EQ(Get(later, kCurrentUser, "V"), "kept");

    SqliteRegistry nowhere{RegistryPlaces()};
    EXPECT_EQ(Get(nowhere, kCurrentUser, "V"), "(2)");
    EXPECT_EQ(Set(nowhere, kCurrentUser, "V", "x"), kRegistryAccessDenied);
}

TEST(SqliteRegistry, WhoMayNotWriteTheMachinesFileWritesAndReadsTheirOwn) {
    const TempFolder folder;
    const auto own = folder.Path() / "own.sqlite";
    const auto shared = folder.Path() / "shared.sqlite";
    SqliteRegistry denied({.own = own, .shared = Unwritable(folder)});
    EXPECT_EQ(Set(denied, kLocalMachine, "V", "own"), kRegistrySuccess);
    EXPECT_EQ(Get(denied, kLocalMachine, "V"), "own");

    SqliteRegistry machine({.own = {}, .shared = shared});
    EXPECT_EQ(Set(machine, kLocalMachine, "v", "machine's"), kRegistrySuccess);
    EXPECT_EQ(Set(machine, kLocalMachine, "W", "machine's"), kRegistrySuccess);
    SqliteRegistry both({.own = own, .shared = shared});
    EXPECT_EQ(Get(both, kLocalMachine, "V"), "own");
    EXPECT_EQ(Get(both, kLocalMachine, "W"), "machine's");
    std::vector<StoredValue> values;
    EXPECT_EQ(both.Values(kLocalMachine, "K", values), kRegistrySuccess);
    ASSERT_EQ(values.size(), 2U);
    EXPECT_EQ(values[0].data + " " + values[1].name, "own W");
    std::vector<StoredKey> keys;
    EXPECT_EQ(both.Keys(keys), kRegistrySuccess);
    EXPECT_EQ(keys.size(), 1U);

    // Written where everyone sees it, and where it would be hidden from the writer.
    EXPECT_EQ(Set(both, kLocalMachine, "V", "new"), kRegistrySuccess);
    EXPECT_EQ(Get(both, kLocalMachine, "V"), "new");
    EXPECT_EQ(Get(machine, kLocalMachine, "V"), "new");
}

/// The bytes of a registry with a value V, and of an SQLite file of somebody else.
String RegistryBytes() {
    const TempFile file;
    SqliteRegistry registry({.own = file.Path(), .shared = {}});
    EXPECT_EQ(Set(registry, kCurrentUser, "V", "x"), kRegistrySuccess);
    return file.Bytes();
}
String ForeignBytes() {
    const TempFile file;
    Database database;
    EXPECT_EQ(database.Open(file.Path(), true), 0);
    EXPECT_EQ(database.Execute("CREATE TABLE keys (a); PRAGMA user_version = 1"), 0);
    return file.Bytes();
}

/// A registry whose keys are a view without an end.
String EndlessBytes() {
    const TempFile file(RegistryBytes());
    Database database;
    EXPECT_EQ(database.Open(file.Path(), false), 0);
    EXPECT_EQ(database.Execute(
                  "ALTER TABLE keys RENAME TO others; CREATE VIEW keys AS WITH RECURSIVE e (id, "
                  "root, path, folded) AS (SELECT id, root, path, folded FROM others UNION ALL "
                  "SELECT id, root, path, folded FROM e) SELECT * FROM e"),
              0);
    return file.Bytes();
}

TEST(SqliteRegistry, LeavesFilesThatHoldSomethingElseAlone) {
    const String good = RegistryBytes();
    String later = good;
    later[63] = 2; // the version of the tables
    String torn = good;
    std::fill(torn.begin() + 100, torn.begin() + 4096, '\xA5');
    const struct {
        String bytes;
        Long result;
    } rows[] = {{"this is no database, but a text that someone needs", kRegistryCorrupt},
                {torn, kRegistryCorrupt},
                {good.substr(0, 5000), kRegistryCorrupt},
                {later, kRegistryCorrupt},
                {ForeignBytes(), kRegistryCorrupt},
                {EndlessBytes(), kRegistryCorrupt},
                {"", kRegistrySuccess}};
    for (const auto& row : rows) {
        const String start =
            row.bytes.substr(0, 20) + ", bytes " + std::to_string(row.bytes.size());
        const TempFile file(row.bytes);
        SqliteRegistry registry({.own = file.Path(), .shared = {}});
        const Long read = row.result == kRegistrySuccess ? Long{kRegistryNotFound} : row.result;
        EXPECT_EQ(Get(registry, kCurrentUser, "V"), "(" + std::to_string(read) + ")") << start;
        EXPECT_EQ(Set(registry, kCurrentUser, "V", "x"), row.result) << start;
        if (row.result != kRegistrySuccess) {
            EXPECT_EQ(file.Bytes(), row.bytes) << start;
        }
    }
}

/// A process that writes values until it is killed, and tells the number of each once it is stored.
class Writer {
  public:
    Writer(const std::filesystem::path& file, String name) : name_(std::move(name)) {
        if (pipe(stored_) != 0) return;
        process_ = fork();
        if (process_ == 0) WriteForever(file);
        close(stored_[1]);
    }
    ~Writer() {
        Kill();
        close(stored_[0]);
    }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    /// Waits for the next value to be stored; false when the process has ended.
    bool Next() { return read(stored_[0], &last_, sizeof last_) == sizeof last_; }

    /// Kills the process in the middle of what it does. How it ended: 0 by being killed.
    int Kill() {
        if (process_ <= 0) return 0;
        kill(process_, SIGKILL);
        int status = 0;
        waitpid(std::exchange(process_, 0), &status, 0);
        while (Next()) {
        }
        return WIFSIGNALED(status) ? 0 : WEXITSTATUS(status);
    }

    /// Expects every value that is known to be stored.
    void ExpectStored(SqliteRegistry& registry) const {
        for (int number = 0; number <= last_; ++number) {
            const String text = std::to_string(number);
            ASSERT_EQ(Get(registry, kCurrentUser, name_ + text), text);
        }
    }

  private:
    [[noreturn]] void WriteForever(const std::filesystem::path& file) {
        close(stored_[0]);
        SqliteRegistry registry({.own = file, .shared = {}});
        for (int number = 0;; ++number) {
            const String text = std::to_string(number);
            const Long result = Set(registry, kCurrentUser, name_ + text, text);
            if (result != kRegistrySuccess) _exit(static_cast<int>(result & 0xFF));
            if (write(stored_[1], &number, sizeof number) != sizeof number) _exit(1);
        }
    }

    String name_;
    int stored_[2] = {-1, -1};
    pid_t process_ = 0;
    int last_ = -1;
};

TEST(SqliteRegistry, ProcessesThatWriteAtOnceLoseNothingWhenOneIsKilled) {
    const TempFolder folder;
    const auto file = folder.Path() / "r.sqlite";
    Writer killed(file, "A");
    Writer other(file, "B");
    for (int i = 0; i < 25; ++i) {
        ASSERT_TRUE(killed.Next()) << killed.Kill();
        ASSERT_TRUE(other.Next()) << other.Kill();
    }
    EXPECT_EQ(killed.Kill(), 0);
    for (int i = 0; i < 25; ++i)
        ASSERT_TRUE(other.Next()) << other.Kill();
    EXPECT_EQ(other.Kill(), 0);

    SqliteRegistry registry({.own = file, .shared = {}});
    killed.ExpectStored(registry);
    other.ExpectStored(registry);
    EXPECT_EQ(Set(registry, kCurrentUser, "after", "written"), kRegistrySuccess);
    Database database;
    ASSERT_EQ(database.Open(file, false), 0);
    Statement check(database, "PRAGMA integrity_check");
    EXPECT_TRUE(check.Next() && check.Bytes(0) == "ok");
}

TEST(RegistryPlaces, FollowTheDesktopsRules) {
    const String here = std::filesystem::absolute(":memory:").string();
    const char* const names[] = {"HOME", "XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "ZORVANE_REGISTRY"};
    const struct {
        const char* environment[4];
        const char* own;
        const char* shared;
    } rows[] = {
        {{"/u"}, "/u/.config/zorvane/registry.sqlite", "/etc/xdg/zorvane/registry.sqlite"},
        {{"/u", "/c", "/d:/e"}, "/c/zorvane/registry.sqlite", "/d/zorvane/registry.sqlite"},
        {{"/u", "c", "d:/e"}, "/u/.config/zorvane/registry.sqlite", "/e/zorvane/registry.sqlite"},
        {{}, "", "/etc/xdg/zorvane/registry.sqlite"},
        {{"/u", nullptr, nullptr, ":memory:"}, here.c_str(), ""},
    };
    for (const auto& row : rows) {
        for (std::size_t i = 0; i < 4; ++i)
            row.environment[i] ? setenv(names[i], row.environment[i], 1) : unsetenv(names[i]);
        const RegistryPlaces places = PlacesInForce();
        EXPECT_EQ(places.own.value_or(""), row.own);
        EXPECT_EQ(places.shared.value_or(""), row.shared);
    }
}

} // namespace
} // namespace zorvane
