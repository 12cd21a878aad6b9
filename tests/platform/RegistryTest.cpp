#include "Test.h"
#include "platform/memory/MemoryRegistry.h"
#include "platform/sqlite/SqliteRegistry.h"

#include <gtest/gtest.h>

#include <string>

namespace zorvane {
namespace {

struct InMemory {
    MemoryRegistry registry;
};
struct InAFile {
    TempFolder folder;
    SqliteRegistry registry{{.own = folder.Path() / "made" / "on the way.sqlite", .shared = {}}};
};

/// What holds for every registry.
template <class Kept>
class RegistryTest : public testing::Test {
  protected:
    Registry& registry() { return kept.registry; }

    void Put(Long root, const String& key, const String& name, Long type, std::string_view data) {
        Registry::Handle handle = 0;
        ASSERT_EQ(registry().CreateKey(root, key, kAllAccess, handle), kRegistrySuccess);
        EXPECT_EQ(registry().SetValue(handle, name, type, data), kRegistrySuccess);
        EXPECT_EQ(registry().CloseKey(handle), kRegistrySuccess);
    }
    Registry::Handle Open(const String& key) {
        Registry::Handle handle = 0;
        EXPECT_EQ(registry().OpenKey(kLocalMachine, key, kReadAccess, handle), kRegistrySuccess)
            << key;
        return handle;
    }

    Kept kept;
};

using Kinds = testing::Types<InMemory, InAFile>;
TYPED_TEST_SUITE(RegistryTest, Kinds);

TYPED_TEST(RegistryTest, IgnoresCaseListsInTheOrderFirstWrittenAndKeepsRootsApart) {
    Registry& registry = this->registry();
    Registry::Handle key = 0;
    EXPECT_EQ(registry.OpenKey(kLocalMachine, "Software", kReadAccess, key), kRegistryNotFound);
    this->Put(kLocalMachine, "Software\\Tool", "B", kRegistryString, "1");
    this->Put(kLocalMachine, "software\\TOOL", "A", kRegistryString, "2");
    this->Put(kLocalMachine, "Software\\Tool", "b", kRegistryString, "3");
    this->Put(kCurrentUser, "Software\\Tool", "C", kRegistryString, "4");

    key = this->Open("SOFTWARE\\Tool");
    const auto entry = [&](Long index) {
        String name, data;
        const Long result = registry.EnumValue(key, index, 256, 256, name, data);
        return result == kRegistrySuccess ? name + "=" + data : std::to_string(result);
    };
    EXPECT_EQ(entry(1), "A=2");
    EXPECT_EQ(entry(0), "B=3");
    EXPECT_EQ(entry(2), std::to_string(kRegistryNoMoreItems));
    EXPECT_EQ(registry.CloseKey(key), kRegistrySuccess);
    EXPECT_EQ(registry.CloseKey(key), kRegistryInvalidHandle);
    EXPECT_EQ(entry(0), std::to_string(kRegistryInvalidHandle));
    this->Open("software"); // made on the way
    EXPECT_EQ(registry.OpenKey(kCurrentUser, "software\\to", kReadAccess, key), kRegistryNotFound);
}

TYPED_TEST(RegistryTest, KeepsTypesAndEveryByte) {
    using namespace std::string_view_literals;
    const String large(5'000'000, '\0');
    const struct {
        Long type;
        std::string_view data;
    } rows[] = {{kRegistryString, "a\0b\0"sv},
                {kRegistryBinary, ""sv},
                {kRegistryNumber, "\x1F\0\0\xFF"sv},
                {7, "\xC3'\"\r\n"sv},
                {kRegistryBinary, large}};
    for (const auto& row : rows) {
        this->Put(kLocalMachine, "K\xE4", "V'\xE4", row.type, row.data);
        Long type = 0;
        String data;
        EXPECT_EQ(this->registry().QueryValue(this->Open("k\xE4"), "v'\xE4", 5'000'000, type, data),
                  kRegistrySuccess);
        EXPECT_EQ(type, row.type);
        EXPECT_TRUE(data == row.data) << data.size();
    }
}

TYPED_TEST(RegistryTest, TellsWhatDoesNotFit) {
    this->Put(kLocalMachine, "K", "V", kRegistryString, String(257, 'x'));
    const Registry::Handle key = this->Open("K");
    Long type = 0;
    String name, data;
    EXPECT_EQ(this->registry().QueryValue(key, "V", 256, type, data), kRegistryMoreData);
    EXPECT_EQ(type, kRegistryString);
    EXPECT_EQ(this->registry().QueryValue(key, "W", 256, type, data), kRegistryNotFound);
    EXPECT_EQ(this->registry().EnumValue(key, 0, 256, 256, name, data), kRegistryMoreData);
    EXPECT_EQ(this->registry().EnumValue(key, 0, 1, 300, name, data), kRegistryMoreData);
    EXPECT_EQ(this->registry().EnumValue(key, 0, 2, 257, name, data), kRegistrySuccess);
    EXPECT_EQ(this->registry().EnumValue(key, -1, 2, 257, name, data), kRegistryNoMoreItems);
}

} // namespace
} // namespace zorvane
