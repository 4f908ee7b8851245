#include "analysis/goal_store.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "analysis/analysis_fixture.h"
#include "tests/support/fake_world.h"

namespace tidewatch {
namespace {

const GoalSettings busy{.dailyHours = 7.5,
                        .dailyProductivity = 0.65,
                        .weeklyHours = 40,
                        .monthlyHours = 160,
                        .notificationsEnabled = false};

constexpr char busyText[] = R"({
  "dailyHours" : 7.5,
  "dailyProductivity" : 0.65,
  "monthlyHours" : 160,
  "notificationsEnabled" : false,
  "weeklyHours" : 40
})";

class GoalStoreTest : public testing::Test {
protected:
    GoalSettings load(const std::string& text) {
        world_.files.put(test::goalsJson, text);
        return GoalStore(world_.files, world_.log).settings();
    }

    test::FakeWorld world_;
};

TEST_F(GoalStoreTest, WithoutAFileAllIsDefaultAndNothingIsWritten) {
    const GoalStore store(world_.files, world_.log);
    EXPECT_EQ(store.settings(), GoalSettings());
    EXPECT_EQ(store.settings().dailyHours, 6.0);
    EXPECT_EQ(store.settings().dailyProductivity, 0.8);
    EXPECT_EQ(store.settings().weeklyHours, 35.0);
    EXPECT_EQ(store.settings().monthlyHours, 140.0);
    EXPECT_TRUE(store.settings().notificationsEnabled);
    EXPECT_EQ(store.filePath(), test::goalsJson);
    EXPECT_TRUE(world_.files.hasDirectory("/home/user/.tidewatch"));
    EXPECT_EQ(world_.files.writeCount(), 0);
}

TEST_F(GoalStoreTest, TheFileIsWrittenSortedAndPrettyPrinted) {
    GoalStore store(world_.files, world_.log);
    store.save();
    EXPECT_EQ(world_.files.content(test::goalsJson), R"({
  "dailyHours" : 6,
  "dailyProductivity" : 0.8,
  "monthlyHours" : 140,
  "notificationsEnabled" : true,
  "weeklyHours" : 35
})");
    store.setSettings(busy);
    store.save();
    EXPECT_EQ(world_.files.content(test::goalsJson), busyText);
}

TEST_F(GoalStoreTest, SavedValuesAreReadBackExactly) {
    GoalStore store(world_.files, world_.log);
    for (const double number : {0.1 + 0.2, 1.0 / 3, 1e-300, -0.5, 123456.789, 1e6}) {
        GoalSettings settings;
        settings.dailyHours = number;
        settings.monthlyHours = number * 0.5;
        store.setSettings(settings);
        store.save();
        EXPECT_EQ(GoalStore(world_.files, world_.log).settings(), settings)
            << *world_.files.content(test::goalsJson);
    }
}

TEST_F(GoalStoreTest, AChangeIsAnnouncedOnceAndNotSavedByItself) {
    GoalStore store(world_.files, world_.log);
    int announced = 0;
    const auto connection = store.changed.connect([&] {
        ++announced;
        EXPECT_EQ(store.settings(), busy);
    });
    store.setSettings(busy);
    store.setSettings(busy);
    EXPECT_EQ(announced, 1);
    EXPECT_EQ(world_.files.writeCount(), 0);
}

TEST_F(GoalStoreTest, AFileThatLacksNotificationsEnabledGivesAllFiveDefaults) {
    EXPECT_EQ(load(R"({"dailyHours":7.5,"dailyProductivity":0.65,"monthlyHours":160,"weeklyHours":40})"),
              GoalSettings());
}

TEST_F(GoalStoreTest, AFileThatLacksAnyOtherKeyGivesAllFiveDefaults) {
    const std::string members[] = {R"("dailyHours":7.5)", R"("dailyProductivity":0.65)",
                                   R"("monthlyHours":160)", R"("notificationsEnabled":false)",
                                   R"("weeklyHours":40)"};
    for (const auto& missing : members) {
        std::string text = "{";
        for (const auto& member : members) {
            if (member == missing) continue;
            text += (text == "{" ? "" : ",") + member;
        }
        EXPECT_EQ(load(text + "}"), GoalSettings()) << text;
    }
}

TEST_F(GoalStoreTest, AnyValidJsonOfTheSameStructureIsParsed) {
    EXPECT_EQ(load(busyText), busy);
    EXPECT_EQ(load(R"({"weeklyHours":4e1,"notificationsEnabled":false,"monthlyHours":160.0,
                       "dailyProductivity":6.5e-1,"dailyHours":75E-1})"),
              busy);
    EXPECT_EQ(load(std::string("\xEF\xBB\xBF") + busyText), busy);
}

TEST_F(GoalStoreTest, OtherKeysAreIgnoredAndOfDuplicatesTheLastWins) {
    EXPECT_EQ(load(R"({"later":[1,{}],"dailyHours":1,"dailyProductivity":0.65,"monthlyHours":160,
                       "notificationsEnabled":false,"weeklyHours":40,"dailyHours":7.5})"),
              busy);
}

TEST_F(GoalStoreTest, AValueOfAnotherTypeGivesAllFiveDefaults) {
    for (const std::string key :
         {"dailyHours", "dailyProductivity", "monthlyHours", "weeklyHours", "notificationsEnabled"}) {
        const auto good = std::string(busyText).find("\"" + key + "\" : ");
        const auto value = good + key.size() + 5;
        const auto length = std::string(busyText).find_first_of(",\n", value) - value;
        const bool isBoolean = key == "notificationsEnabled";
        for (const std::string wrong : {"null", "\"7.5\"", "[]", "{}", isBoolean ? "1" : "true"}) {
            auto text = std::string(busyText);
            EXPECT_EQ(load(text.replace(value, length, wrong)), GoalSettings()) << text;
        }
        auto text = std::string(busyText);
        EXPECT_NE(load(text.replace(value, length, isBoolean ? "true" : "3")), GoalSettings()) << text;
    }
}

TEST_F(GoalStoreTest, EveryTruncationGivesAllFiveDefaults) {
    const std::string whole = busyText;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_EQ(load(whole.substr(0, length)), GoalSettings()) << length << " bytes";
    }
    EXPECT_EQ(load(whole), busy);
}

TEST_F(GoalStoreTest, AGarbledFileOrAnArrayGivesAllFiveDefaultsAndIsReplacedByTheNextSave) {
    for (const auto& text :
         {std::string("[]"), std::string("[7.5,0.65,160,false,40]"), std::string("7.5"),
          std::string("\0\xff\xfe{}", 5), std::string(busyText) + "x", std::string(1000, '[')}) {
        EXPECT_EQ(load(text), GoalSettings()) << text;
        EXPECT_EQ(world_.files.content(test::goalsJson), text) << "rewritten by loading";
    }
    GoalStore store(world_.files, world_.log);
    store.setSettings(busy);
    store.save();
    EXPECT_EQ(world_.files.content(test::goalsJson), busyText);
}

TEST_F(GoalStoreTest, ADamagedFileIsSetAsideByTheNextSave) {
    world_.files.put(test::goalsJson, "garbage");
    GoalStore store(world_.files, world_.log);
    store.setSettings(busy);
    store.save();
    EXPECT_EQ(world_.files.content(test::goalsJson), busyText);
    EXPECT_EQ(world_.files.content(std::string(test::goalsJson) + ".damaged-2026-01-15"), "garbage");
}

TEST_F(GoalStoreTest, ANumberBeyondAMillionGivesAllFiveDefaults) {
    for (const auto* number : {"1000001", "-1000001", "1e300", "9223372036854775807"}) {
        std::string text = busyText;
        text.replace(text.find("7.5"), 3, number);
        EXPECT_EQ(load(text), GoalSettings()) << number;
    }
    std::string text = busyText;
    text.replace(text.find("7.5"), 3, "1000000");
    EXPECT_EQ(load(text).dailyHours, 1e6);
}

TEST_F(GoalStoreTest, AFileThatCannotBeReadGivesAllFiveDefaults) {
    world_.files.put(test::goalsJson, busyText);
    world_.files.makeUnreadable(test::goalsJson);
    EXPECT_EQ(GoalStore(world_.files, world_.log).settings(), GoalSettings());
}

TEST_F(GoalStoreTest, AFailedSaveIsSilentAndKeepsMemoryAndFile) {
    world_.files.put(test::goalsJson, busyText);
    GoalStore store(world_.files, world_.log);
    GoalSettings changed = busy;
    changed.weeklyHours = 20;
    store.setSettings(changed);

    world_.files.failWrite(1);
    store.save();
    EXPECT_EQ(world_.files.content(test::goalsJson), busyText);
    EXPECT_EQ(store.settings(), changed);

    world_.files.setDisk(platform::MemoryFileSystem::Disk::full);
    store.save();
    EXPECT_EQ(world_.files.content(test::goalsJson), busyText);

    world_.files.setDisk(platform::MemoryFileSystem::Disk::roomy);
    store.save();
    EXPECT_EQ(GoalStore(world_.files, world_.log).settings(), changed);
}

TEST_F(GoalStoreTest, ADirectoryThatCannotBeMadeIsSilent) {
    world_.files.makeUnmakeable("/home/user/.tidewatch");
    GoalStore store(world_.files, world_.log);
    store.setSettings(busy);
    store.save();
    EXPECT_EQ(store.settings(), busy);
    EXPECT_EQ(world_.files.content(test::goalsJson), std::nullopt);
}

TEST_F(GoalStoreTest, ANonFiniteNumberIsNotSaved) {
    world_.files.put(test::goalsJson, busyText);
    GoalStore store(world_.files, world_.log);
    GoalSettings settings;
    settings.dailyHours = std::numeric_limits<double>::infinity();
    store.setSettings(settings);
    store.save();
    EXPECT_EQ(world_.files.content(test::goalsJson), busyText);
}

}  // namespace
}  // namespace tidewatch
