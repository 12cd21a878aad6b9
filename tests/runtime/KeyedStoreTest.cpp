#include "runtime/KeyedStore.h"

#include <gtest/gtest.h>

#include <string>

namespace zorvane {
namespace {

TEST(KeyedStore, FindsKeysInAnyOrderAndAtAnyLength) {
    KeyedStore<int> store;
    const auto key = [](int number) { return "Key" + std::to_string(number); };
    for (int number = 0; number < 40; ++number) {
        store.InsertAfter(number % 2 == 0 ? 0 : store.Count(), key(number),
                          std::make_shared<int>(number));
        for (int each = 39; each >= 0; --each)
            EXPECT_EQ(store.Find("KEY" + std::to_string(each)) != nullptr, each <= number) << each;
    }
    for (int number = 0; number < 40; number += 3)
        store.Remove(key(number));
    for (int number = 0; number < 40; ++number) {
        const Long position = store.PositionOf(key(number));
        EXPECT_EQ(position == 0, number % 3 == 0) << number;
        if (position != 0) {
            EXPECT_EQ(*store.Item(position), number);
        }
    }
    store.Clear();
    EXPECT_EQ(store.Find(key(1)), nullptr);
}

} // namespace
} // namespace zorvane
