#include "core/string_interner.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace tidewatch {
namespace {

std::vector<std::string> manyNames() {
    std::vector<std::string> names{"", "a", "b"};
    for (int i = 0; i < 2000; ++i) {
        names.push_back(std::to_string(i) + ".application");  // with a common suffix
        names.push_back("org.example.application" + std::to_string(i));
    }
    return names;
}

TEST(StringInternerTest, EachNameKeepsItsNumber) {
    const auto names = manyNames();
    StringInterner table;
    for (std::uint32_t i = 0; i < names.size(); ++i) ASSERT_EQ(table.intern(names[i]), i);
    for (std::uint32_t i = 0; i < names.size(); ++i) {
        const auto last = static_cast<std::uint32_t>(names.size()) - 1 - i;
        ASSERT_EQ(table.intern(names[last]), last);
        ASSERT_EQ(table[last], names[last]);
    }
    EXPECT_EQ(table.size(), names.size());
}

TEST(StringInternerTest, ACopyIsIndependent) {
    auto original = std::make_unique<StringInterner>();
    const auto names = manyNames();
    for (const auto& name : names) original->intern(name);
    auto copy = *original;
    EXPECT_EQ(copy.intern("another"), names.size());
    EXPECT_EQ(original->size(), names.size());
    original.reset();
    for (std::uint32_t i = 0; i < names.size(); ++i) ASSERT_EQ(copy[i], names[i]);
    EXPECT_EQ(copy.intern(names.back()), names.size() - 1);
}

TEST(StringInternerTest, AMovedTableKeepsItsNames) {
    StringInterner original;
    original.intern("short");
    original.intern("a name that is too long for the string itself");
    StringInterner moved = std::move(original);
    EXPECT_EQ(moved.intern("short"), 0u);
    EXPECT_EQ(moved[1], "a name that is too long for the string itself");
    StringInterner assigned;
    assigned.intern("other");
    assigned = std::move(moved);
    EXPECT_EQ(assigned.intern("a name that is too long for the string itself"), 1u);
    EXPECT_EQ(assigned[0], "short");
}

}  // namespace
}  // namespace tidewatch
