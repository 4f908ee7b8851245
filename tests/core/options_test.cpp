#include <gmock/gmock.h>

#include <limits>
#include <string>
#include <vector>

#include "core/idle_option.h"
#include "core/size_option.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;

TEST(IdleOption, AllOptionsAreInMenuOrder) {
    std::vector<std::int64_t> raws;
    std::vector<std::string> labels;
    for (const auto option : allIdleOptions()) {
        raws.push_back(rawValue(option));
        labels.emplace_back(label(option));
        EXPECT_EQ(idleOption(rawValue(option)), option);
    }
    EXPECT_THAT(raws, ElementsAre(60, 180, 300, 600, 900, 1800));
    EXPECT_THAT(labels, ElementsAre("1 min", "3 min", "5 min", "10 min", "15 min", "30 min"));
}

TEST(IdleOption, OnlyExactRawValuesMatch) {
    EXPECT_EQ(idleOption(300), IdleOption::five);
    EXPECT_EQ(idleOption(301), std::nullopt);
    EXPECT_EQ(idleOption(0), std::nullopt);
}

TEST(IdleOption, ATieGoesToTheSmallerOption) {
    EXPECT_EQ(closestIdleOption(240), IdleOption::three);
    EXPECT_EQ(closestIdleOption(241), IdleOption::five);
}

TEST(IdleOption, AnyStoredValueHasAClosestOption) {
    EXPECT_EQ(closestIdleOption(-5), IdleOption::one);
    EXPECT_EQ(closestIdleOption(7200), IdleOption::thirty);
    EXPECT_EQ(closestIdleOption(std::numeric_limits<std::int64_t>::min()), IdleOption::one);
    EXPECT_EQ(closestIdleOption(std::numeric_limits<std::int64_t>::max()), IdleOption::thirty);
}

TEST(SizeOption, AllOptionsAreInMenuOrder) {
    std::vector<double> raws;
    std::vector<std::string> labels;
    for (const auto option : allSizeOptions()) {
        raws.push_back(rawValue(option));
        labels.emplace_back(label(option));
        EXPECT_EQ(sizeOption(rawValue(option)), option);
    }
    EXPECT_THAT(raws, ElementsAre(0.1, 0.25, 0.5, 0.75, 1.0, 5.0));
    EXPECT_THAT(labels, ElementsAre("10%", "25%", "50%", "75%", "100%", "500%"));
}

TEST(SizeOption, OnlyExactRawValuesMatch) {
    EXPECT_EQ(sizeOption(0.5), SizeOption::md);
    EXPECT_EQ(sizeOption(0.51), std::nullopt);
}

TEST(SizeOption, ATieGoesToTheSmallerOption) {
    EXPECT_EQ(closestSizeOption(0.375), SizeOption::sm);
}

TEST(SizeOption, AValueNotInTheListShowsTheNearest) {
    EXPECT_EQ(closestSizeOption(0.33), SizeOption::sm);
    EXPECT_EQ(closestSizeOption(2.9), SizeOption::full);
    EXPECT_EQ(closestSizeOption(3.1), SizeOption::huge);
}

TEST(SizeOption, InvalidSizesHaveAClosestOption) {
    EXPECT_EQ(closestSizeOption(-1), SizeOption::xs);
    EXPECT_EQ(closestSizeOption(std::numeric_limits<double>::quiet_NaN()), SizeOption::xs);
}

}  // namespace
}  // namespace tidewatch
