#include "base/byte_format.h"

#include <gtest/gtest.h>

#include <limits>

namespace tidewatch {
namespace {

constexpr std::int64_t kilo = 1024;
constexpr std::int64_t giga = kilo * kilo * kilo;
constexpr std::int64_t tera = giga * kilo;

std::string bytes(std::int64_t size) {
    return formatBytes(size);
}

TEST(FormatBytes, BelowAKilobyteThereAreNoDecimals) {
    EXPECT_EQ(bytes(0), "0 B");
    EXPECT_EQ(bytes(1), "1 B");
    EXPECT_EQ(bytes(1023), "1023 B");
    EXPECT_EQ(bytes(-5), "-5 B");
}

TEST(FormatBytes, BelowAHundredUnitsThereIsOneDecimal) {
    EXPECT_EQ(bytes(1024), "1.0 KB");
    EXPECT_EQ(bytes(1536), "1.5 KB");
    EXPECT_EQ(bytes(102399), "100.0 KB");
    EXPECT_EQ(bytes(giga), "1.0 GB");
}

TEST(FormatBytes, FromAHundredUnitsOnThereIsNone) {
    EXPECT_EQ(bytes(102400), "100 KB");
    EXPECT_EQ(bytes(1023 * kilo), "1023 KB");
    EXPECT_EQ(bytes(kilo * kilo), "1.0 MB");
    EXPECT_EQ(bytes(500 * giga), "500 GB");
}

TEST(FormatBytes, TerabytesAreTheLastUnit) {
    EXPECT_EQ(bytes(tera), "1.0 TB");
    EXPECT_EQ(bytes(2000 * tera), "2000 TB");
    EXPECT_EQ(bytes(std::numeric_limits<std::int64_t>::max()), "8388608 TB");
}

TEST(FormatBytes, AnUnsignedSizeReadsTheSame) {
    EXPECT_EQ(formatBytes(std::uint64_t{1536}), "1.5 KB");
    EXPECT_EQ(formatBytes(std::uint64_t{1} << 62), "4194304 TB");
}

TEST(FormatBytesDeathTest, AnUnsignedSizeAboveTheSignedRangeEndsTheProcess) {
    EXPECT_DEATH(static_cast<void>(formatBytes(std::uint64_t{1} << 63)), "a size is out of range");
}

TEST(FormatRate, HasTheUnitsOfASizeASecond) {
    EXPECT_EQ(formatRate(0), "0 B/s");
    EXPECT_EQ(formatRate(1023), "1023 B/s");
    EXPECT_EQ(formatRate(1536), "1.5 KB/s");
    EXPECT_EQ(formatRate(102400), "100 KB/s");
    EXPECT_EQ(formatRate(12.5 * 1024 * 1024), "12.5 MB/s");
}

TEST(FormatRate, GigabytesAreTheLastUnit) {
    EXPECT_EQ(formatRate(2000.0 * giga), "2000 GB/s");
    EXPECT_EQ(formatRate(5000.0 * giga), "5000 GB/s");
}

}  // namespace
}  // namespace tidewatch
