#include "runtime/KeyedStore.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace zorvane {
namespace {

TEST(KeyedStore, KeepsItsOrderThroughRandomChanges) {
    std::mt19937 random(7);
    KeyedStore<int> store;
    std::vector<String> keys;
    for (int step = 0; step < 5000; ++step) {
        const String key = "k" + std::to_string(random() % 40);
        const auto at = std::find(keys.begin(), keys.end(), key);
        const auto place = static_cast<Long>(random() % (keys.size() + 1));
        const bool present = at != keys.end();
        ASSERT_EQ(store.Find(key) != nullptr, present);
        if (present && step % 5 == 0) {
            store.Remove(static_cast<Long>(at - keys.begin()) + 1);
            keys.erase(at);
        } else if (present) {
            store.Remove(key);
            keys.erase(at);
        } else if (step % 3 == 0) {
            store.InsertAfter(place, key, std::make_shared<int>(step));
            keys.insert(keys.begin() + place, key);
        } else {
            ASSERT_TRUE(store.TryAppend(key, std::make_shared<int>(step)));
            keys.push_back(key);
        }
        ASSERT_EQ(store.Count(), static_cast<Long>(keys.size()));
        if (step % 4 != 0) continue;
        for (std::size_t i = 0; i < keys.size(); ++i)
            ASSERT_EQ(store.KeyAt(static_cast<Long>(i) + 1), keys[i]) << step;
    }
}

} // namespace
} // namespace zorvane
