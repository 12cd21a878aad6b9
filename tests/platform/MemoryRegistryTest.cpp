#include "platform/memory/MemoryRegistry.h"

#include <gtest/gtest.h>

#include <string>

namespace zorvane {
namespace {

TEST(MemoryRegistry, IgnoresCaseListsInTheOrderFirstWrittenAndKeepsRootsApart) {
    MemoryRegistry registry;
    registry.Put(kLocalMachine, "Software\\Tool", "B", kRegistryString, "1");
    registry.Put(kLocalMachine, "software\\TOOL", "A", kRegistryString, "2");
    registry.Put(kLocalMachine, "Software\\Tool", "b", kRegistryString, "3");

    Registry::Handle key = 0;
    ASSERT_EQ(registry.OpenKey(kLocalMachine, "SOFTWARE\\Tool", kReadAccess, key),
              kRegistrySuccess);
    const auto entry = [&](Long index) {
        String name, data;
        const Long result = registry.EnumValue(key, index, 256, 256, name, data);
        return result == kRegistrySuccess ? name + "=" + data : std::to_string(result);
    };
    EXPECT_EQ(entry(0), "B=3");
    EXPECT_EQ(entry(1), "A=2");
    EXPECT_EQ(entry(2), std::to_string(kRegistryNoMoreItems));
    EXPECT_EQ(registry.CloseKey(key), kRegistrySuccess);
    EXPECT_EQ(registry.OpenHandles(), 0);
    EXPECT_EQ(registry.OpenKey(kLocalMachine, "software", kReadAccess, key), kRegistrySuccess)
        << "made on the way";
    EXPECT_EQ(registry.OpenKey(kCurrentUser, "software", kReadAccess, key), kRegistryNotFound);
}

TEST(MemoryRegistry, TellsTheTypeOfAValueThatDoesNotFit) {
    MemoryRegistry registry;
    registry.Put(kLocalMachine, "K", "V", kRegistryString, String(257, 'x'));
    Registry::Handle key = 0;
    ASSERT_EQ(registry.OpenKey(kLocalMachine, "K", kReadAccess, key), kRegistrySuccess);
    Long type = 0;
    String data;
    EXPECT_EQ(registry.QueryValue(key, "V", 256, type, data), kRegistryMoreData);
    EXPECT_EQ(type, kRegistryString);
    EXPECT_EQ(registry.QueryValue(key, "W", 256, type, data), kRegistryNotFound);
}

} // namespace
} // namespace zorvane
