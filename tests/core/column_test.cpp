#include "core/column.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace tidewatch {
namespace {

using Plain = std::vector<std::uint32_t>;

constexpr std::size_t severalChunks = 9000;

Column<std::uint32_t> columnOf(const Plain& values) {
    Column<std::uint32_t> column;
    for (const auto value : values) column.append(value);
    return column;
}

Plain valuesOf(const Column<std::uint32_t>& column) {
    Plain values;
    for (std::size_t i = 0; i < column.size(); ++i) values.push_back(column[i]);
    return values;
}

Plain counting(std::size_t size) {
    Plain values;
    while (values.size() < size) values.push_back(static_cast<std::uint32_t>(values.size()));
    return values;
}

TEST(ColumnTest, KeepsWhatIsAppended) {
    for (const std::size_t size :
         {std::size_t{0}, std::size_t{1}, std::size_t{2048}, std::size_t{2049}, severalChunks}) {
        ASSERT_EQ(valuesOf(columnOf(counting(size))), counting(size));
    }
}

TEST(ColumnTest, InsertsAnywhereLikeASequence) {
    auto plain = counting(severalChunks);
    auto column = columnOf(plain);
    for (const std::size_t place : {0u, 1u, 2047u, 2048u, 2049u, 8000u, 9006u, 9007u}) {
        plain.insert(plain.begin() + static_cast<std::ptrdiff_t>(place), 77);
        column.insert(place, 77);
        ASSERT_EQ(valuesOf(column), plain) << place;
    }
    while (plain.size() % 2048 != 0) {
        plain.push_back(5);
        column.append(5);
    }
    plain.insert(plain.begin() + 3, 78);
    column.insert(3, 78);
    EXPECT_EQ(valuesOf(column), plain) << "into full chunks";
    EXPECT_EQ(column.back(), plain.back());
}

TEST(ColumnTest, ChangesAllFromAPlaceOn) {
    for (const std::size_t from : {0u, 2047u, 2048u, 5000u, 8999u, 9000u}) {
        auto plain = counting(severalChunks);
        auto column = columnOf(plain);
        for (auto i = from; i < plain.size(); ++i) plain[i] += 3;
        column.changeFrom(from, [](std::uint32_t& value) { value += 3; });
        ASSERT_EQ(valuesOf(column), plain) << from;
    }
}

TEST(ColumnTest, ACopyStaysAsItWasWhateverTheOriginalDoes) {
    const auto plain = counting(severalChunks);
    auto column = columnOf(plain);
    const auto copy = column;
    column.set(0, 9);
    column.set(5000, 9);
    column.insert(4000, 9);
    column.append(9);
    column.changeFrom(0, [](std::uint32_t& value) { value = 0; });
    EXPECT_EQ(valuesOf(copy), plain);
    EXPECT_EQ(valuesOf(column), Plain(severalChunks + 2));
}

TEST(ColumnTest, TheOriginalStaysAsItWasWhateverACopyDoes) {
    const auto plain = counting(severalChunks);
    const auto column = columnOf(plain);
    auto copy = column;
    copy.append(9);
    copy.set(8999, 9);
    copy.insert(1, 9);
    EXPECT_EQ(valuesOf(column), plain);
}

}  // namespace
}  // namespace tidewatch
