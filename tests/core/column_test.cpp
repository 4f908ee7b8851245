#include "core/column.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

namespace tidewatch {
namespace {

using Plain = std::vector<std::uint32_t>;

constexpr std::size_t severalChunks = 9000;

template <class C>
C columnOf(const Plain& values) {
    C column;
    for (const auto value : values) column.append(value);
    return column;
}

template <class C>
Plain valuesOf(const C& column) {
    Plain values;
    for (std::size_t i = 0; i < column.size(); ++i) values.push_back(column[i]);
    return values;
}

Plain counting(std::size_t size) {
    Plain values;
    while (values.size() < size) values.push_back(static_cast<std::uint32_t>(values.size()));
    return values;
}

template <class C>
class ColumnTest : public testing::Test {};
using Kinds = testing::Types<Column<std::uint32_t>, PackedColumn<std::uint32_t>>;
TYPED_TEST_SUITE(ColumnTest, Kinds, );

TYPED_TEST(ColumnTest, KeepsWhatIsAppended) {
    for (const std::size_t size :
         {std::size_t{0}, std::size_t{1}, std::size_t{2048}, std::size_t{2049}, severalChunks}) {
        ASSERT_EQ(valuesOf(columnOf<TypeParam>(counting(size))), counting(size));
    }
}

TYPED_TEST(ColumnTest, InsertsAnywhereLikeASequence) {
    auto plain = counting(severalChunks);
    auto column = columnOf<TypeParam>(plain);
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

TYPED_TEST(ColumnTest, AddsToAllFromAPlaceOn) {
    for (const std::size_t from : {0u, 2047u, 2048u, 5000u, 8999u, 9000u}) {
        auto plain = counting(severalChunks);
        auto column = columnOf<TypeParam>(plain);
        for (auto i = from; i < plain.size(); ++i) plain[i] += 3;
        column.addFrom(from, 3);
        ASSERT_EQ(valuesOf(column), plain) << from;
    }
}

TEST(PackedColumnTest, ItsChunksTogetherAreItsElements) {
    auto plain = counting(severalChunks);
    plain[5000] = 1'000'000;
    PackedColumn<std::uint32_t> column;
    for (const auto value : plain) column.append(value);
    Plain values;
    for (std::size_t chunk = 0; values.size() < plain.size(); ++chunk) {
        std::array<std::uint32_t, PackedColumn<std::uint32_t>::chunkSize> buffer;
        column.readChunk(chunk, buffer);
        const auto size = std::min(buffer.size(), plain.size() - values.size());
        values.insert(values.end(), buffer.begin(), buffer.begin() + static_cast<std::ptrdiff_t>(size));
    }
    EXPECT_EQ(values, plain);
}

// Each order of small and large integers yields chunks of a different width or base.
TEST(PackedColumnTest, KeepsIntegersOfAnySizeInAnyOrder) {
    constexpr auto least = std::numeric_limits<std::int64_t>::min();
    constexpr auto greatest = std::numeric_limits<std::int64_t>::max();
    const std::vector<std::int64_t> sizes = {0,    -1,         1, 255,   256,      65'535, 65'536,
                                             -300, 4294967295, 7, least, greatest, 1000,   least + 1};
    for (const auto first : sizes) {
        for (const auto second : sizes) {
            for (const auto third : sizes) {
                PackedColumn<std::int64_t> column;
                column.append(first);
                column.append(second);
                column.insert(1, third);
                ASSERT_EQ(column[0], first);
                ASSERT_EQ(column[1], third) << first << ' ' << second;
                ASSERT_EQ(column[2], second) << first << ' ' << third;
                column.set(0, second);
                column.set(2, first);
                ASSERT_EQ(column[0], second) << first << ' ' << third;
                ASSERT_EQ(column[1], third) << first << ' ' << second;
                ASSERT_EQ(column[2], first) << second << ' ' << third;
            }
        }
    }
}

TYPED_TEST(ColumnTest, KeepsADescendingSequence) {
    Plain plain;
    for (std::uint32_t i = 0; i < 5000; ++i) plain.push_back(100'000 - 20 * i);
    EXPECT_EQ(valuesOf(columnOf<TypeParam>(plain)), plain);
}

TYPED_TEST(ColumnTest, AddsToWhatWasCountedFromItsFirstValue) {
    auto column = columnOf<TypeParam>({500, 501, 700});
    column.addFrom(0, 50);
    column.set(1, 3);
    column.append(100'000);
    EXPECT_EQ(valuesOf(column), (Plain{550, 3, 750, 100'000}));
}

TYPED_TEST(ColumnTest, ACopyStaysAsItWasWhateverTheOriginalDoes) {
    const auto plain = counting(severalChunks);
    auto column = columnOf<TypeParam>(plain);
    const auto copy = column;
    column.set(0, 9);
    column.set(5000, 9);
    column.insert(4000, 9);
    column.append(9);
    column.addFrom(0, 4);
    EXPECT_EQ(valuesOf(copy), plain);
    auto changed = plain;
    changed[0] = 9;
    changed[5000] = 9;
    changed.insert(changed.begin() + 4000, 9);
    changed.push_back(9);
    for (auto& value : changed) value += 4;
    EXPECT_EQ(valuesOf(column), changed);
}

TYPED_TEST(ColumnTest, TheOriginalStaysAsItWasWhateverACopyDoes) {
    const auto plain = counting(severalChunks);
    const auto column = columnOf<TypeParam>(plain);
    auto copy = column;
    copy.append(9);
    copy.set(8999, 9);
    copy.insert(1, 9);
    EXPECT_EQ(valuesOf(column), plain);
}

}  // namespace
}  // namespace tidewatch
