#include "platform/memory/MemoryRegistry.h"

#include <gtest/gtest.h>

namespace zorvane {
namespace {

TEST(MemoryRegistry, IgnoresCaseAndListsInTheOrderFirstWritten) {
    MemoryRegistry registry;
    registry.Put(kLocalMachine, "Software\\Tool", "B", kRegistryString, "1");
    registry.Put(kLocalMachine, "software\\TOOL", "A", kRegistryString, "2");
    registry.Put(kLocalMachine, "Software\\Tool", "b", kRegistryString, "3");

    Registry::Handle key = 0;
    ASSERT_EQ(registry.OpenKey(kLocalMachine, "SOFTWARE\\Tool", kReadAccess, key),
              kRegistrySuccess);
    String name;
    String data;
    ASSERT_EQ(registry.EnumValue(key, 0, 256, 256, name, data), kRegistrySuccess);
    EXPECT_EQ(name + "=" + data, "B=3");
    ASSERT_EQ(registry.EnumValue(key, 1, 256, 256, name, data), kRegistrySuccess);
    EXPECT_EQ(name + "=" + data, "A=2");
    EXPECT_EQ(registry.EnumValue(key, 2, 256, 256, name, data), kRegistryNoMoreItems);
    EXPECT_EQ(registry.CloseKey(key), kRegistrySuccess);
    EXPECT_EQ(registry.OpenHandles(), 0);
    EXPECT_EQ(registry.OpenKey(kLocalMachine, "software", kReadAccess, key), kRegistrySuccess)
        << "made on the way";
}

TEST(MemoryRegistry, KeepsRootsApartAndChecksCapacities) {
    MemoryRegistry registry;
    registry.Put(kLocalMachine, "K", "V", kRegistryString, String(257, 'x'));

    Registry::Handle key = 0;
    EXPECT_EQ(registry.OpenKey(kCurrentUser, "K", kReadAccess, key), kRegistryNotFound);
    ASSERT_EQ(registry.OpenKey(kLocalMachine, "K", kReadAccess, key), kRegistrySuccess);
    Long type = 0;
    String data;
    EXPECT_EQ(registry.QueryValue(key, "V", 256, type, data), kRegistryMoreData);
    EXPECT_EQ(type, kRegistryString);
    EXPECT_EQ(registry.QueryValue(key, "W", 256, type, data), kRegistryNotFound);
}

} // namespace
} // namespace zorvane
