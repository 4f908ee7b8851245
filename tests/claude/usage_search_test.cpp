#include "claude/usage_search.h"

#include <gtest/gtest.h>

#include <string>

namespace tidewatch {
namespace {

TEST(UsageSearch, FindsTheKeyAtEveryPosition) {
    for (std::size_t before = 0; before < 200; ++before) {
        for (const std::size_t after : {0U, 1U, 70U}) {
            const auto text = std::string(before, '"') + "\"usage\"" + std::string(after, 'x');
            EXPECT_EQ(findUsage(text, 0), before) << before << " " << after;
            EXPECT_EQ(findUsage(text, before), before);
            EXPECT_EQ(findUsage(text, before + 1), std::string::npos);
        }
    }
}

TEST(UsageSearch, FindsAKeyWithAnEscapedLetter) {
    for (const auto* key : {R"("\u0075sage")", R"("u\u0073age")", R"("us\u0061ge")", R"("usa\u0067e")",
                            R"("usag\u0065")", R"("\u0075\u0073\u0061\u0067\u0065")"}) {
        for (std::size_t before = 0; before < 130; ++before) {
            EXPECT_NE(findUsage(std::string(before, ' ') + key, 0), std::string::npos) << key << before;
        }
    }
}

TEST(UsageSearch, PassesOverEscapedTextAndOtherWords) {
    for (const auto* text :
         {R"(\"usage\")", R"("usages")", R"("Usage")", R"("us age")", R"(\u001b[0m)", R"("usage)", R"(\u00)",
          R"("message")", R"("cage")", R"("usa6e")", R"("usag5")"}) {
        for (std::size_t before = 0; before < 130; ++before) {
            EXPECT_EQ(findUsage(std::string(before, ' ') + text, 0), std::string::npos) << text << before;
        }
    }
}

}  // namespace
}  // namespace tidewatch
