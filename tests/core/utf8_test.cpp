#include "core/utf8.h"

#include <gtest/gtest.h>

namespace tidewatch {
namespace {

struct Repair {
    const char* name;
    std::string_view text;
    std::string_view repaired;
};

class RepairedUtf8 : public testing::TestWithParam<Repair> {};

TEST_P(RepairedUtf8, InvalidUtf8IsReplaced) {
    EXPECT_EQ(repairedUtf8(GetParam().text), GetParam().repaired);
    EXPECT_EQ(ValidUtf8(GetParam().text).text(), GetParam().repaired);
}

INSTANTIATE_TEST_SUITE_P(Utf8, RepairedUtf8,
                         testing::Values(Repair{"Empty", "", ""}, Repair{"Plain", "firefox", "firefox"},
                                         Repair{"TwoBytes", "caf\xC3\xA9", "caf\xC3\xA9"},
                                         Repair{"FourBytes", "\xF0\x9F\x8C\x8A", "\xF0\x9F\x8C\x8A"},
                                         Repair{"Latin1", "caf\xE9 bar", "caf\xEF\xBF\xBD bar"},
                                         Repair{"LoneContinuation", "\x80x", "\xEF\xBF\xBDx"},
                                         Repair{"BrokenOffAtTheEnd", "x\xF0\x9F\x8C", "x\xEF\xBF\xBD"},
                                         Repair{"OverlongSlash", "\xC0\xAF", "\xEF\xBF\xBD\xEF\xBF\xBD"},
                                         Repair{"Surrogate", "\xED\xA0\x80",
                                                "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
                                         Repair{"BeyondUnicode", "\xF5", "\xEF\xBF\xBD"}),
                         [](const auto& instance) { return instance.param.name; });

}  // namespace
}  // namespace tidewatch
