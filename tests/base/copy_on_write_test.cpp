#include "base/copy_on_write.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace tidewatch {
namespace {

TEST(CopyOnWriteTest, CopiesShareTheValueUntilOneIsEdited) {
    CopyOnWrite<std::string> first;
    first.edit() = "a";
    auto second = first;
    EXPECT_EQ(&*first, &*second);
    second.edit() = "b";
    EXPECT_EQ(*first, "a");
    EXPECT_EQ(*second, "b");
}

TEST(CopyOnWriteTest, AnUnsharedValueIsEditedInPlace) {
    CopyOnWrite<std::string> only;
    const auto* before = &*only;
    only.edit() = "a";
    EXPECT_EQ(&*only, before);
    { const auto copy = only; }
    only.edit() = "b";
    EXPECT_EQ(&*only, before) << "the copy is gone";
    const auto moved = std::move(only);
    EXPECT_EQ(&*moved, before);
}

TEST(CopyOnWriteTest, AssigningReleasesTheOldValue) {
    CopyOnWrite<std::string> first;
    const auto second = first;
    first = CopyOnWrite<std::string>();
    EXPECT_NE(&*first, &*second);
    first = second;
    EXPECT_EQ(&*first, &*second);
}

// Most useful under the thread sanitizer.
TEST(CopyOnWriteTest, ACopyIsReadAndDestroyedOnAnotherThreadWhileTheOriginalIsEdited) {
    constexpr int rounds = 500;
    CopyOnWrite<std::vector<int>> value;
    for (int i = 0; i < rounds; ++i) {
        value.edit().push_back(i);
        std::thread reader([copy = value, size = static_cast<std::size_t>(i) + 1] {
            EXPECT_EQ(copy->size(), size);
            EXPECT_EQ(copy->back(), static_cast<int>(size) - 1);
        });
        value.edit().push_back(-1);
        value.edit().pop_back();
        reader.join();
    }
}

}  // namespace
}  // namespace tidewatch
