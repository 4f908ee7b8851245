#include "base/uuid.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace tidewatch {
namespace {

constexpr auto canonical = "0F8FAD5B-D9CB-469F-A165-70867728950E";

TEST(UuidTest, ReadsTheCanonicalFormInEitherLetterCase) {
    const auto upper = Uuid::parse(canonical);
    const auto lower = Uuid::parse("0f8fad5b-d9cb-469f-a165-70867728950e");
    ASSERT_TRUE(upper);
    EXPECT_EQ(upper, lower);
    EXPECT_EQ(lower->text(), canonical);
}

TEST(UuidTest, RejectsOtherForms) {
    for (const auto* text :
         {"", "0F8FAD5B", "0F8FAD5B-D9CB-469F-A165-70867728950", "0F8FAD5B-D9CB-469F-A165-70867728950E0",
          "{0F8FAD5B-D9CB-469F-A165-70867728950E}", "0F8FAD5BD9CB-469F-A165-70867728950E-",
          "0F8FAD5B-D9CB-469F-A165-70867728950G", "0F8FAD5B+D9CB-469F-A165-70867728950E",
          " F8FAD5B-D9CB-469F-A165-70867728950E", "-F8FAD5B-D9CB-469F-A165-70867728950E",
          "0F8FAD5B-D9CB-469F-A165-7086772895 E"}) {
        EXPECT_FALSE(Uuid::parse(text)) << text;
    }
}

TEST(UuidTest, IsRandomButForVersionAndVariant) {
    EXPECT_EQ(Uuid::random(0, 0).text(), "00000000-0000-4000-8000-000000000000");
    EXPECT_EQ(Uuid::random(UINT64_MAX, UINT64_MAX).text(), "FFFFFFFF-FFFF-4FFF-BFFF-FFFFFFFFFFFF");
    EXPECT_EQ(Uuid::random(0x0123456789ABCDEF, 0xFEDCBA9876543210).text(),
              "01234567-89AB-4DEF-BEDC-BA9876543210");
}

TEST(UuidTest, IsReadBackFromItsText) {
    for (std::uint64_t i = 1; i < 200; ++i) {
        const auto uuid = Uuid::random(i * 0x9E3779B97F4A7C15, i * 0xC2B2AE3D27D4EB4F);
        EXPECT_EQ(Uuid::parse(uuid.text()), uuid);
    }
}

TEST(UuidTest, TheNilOneIsAllZeros) {
    EXPECT_EQ(Uuid().text(), "00000000-0000-0000-0000-000000000000");
}

}  // namespace
}  // namespace tidewatch
