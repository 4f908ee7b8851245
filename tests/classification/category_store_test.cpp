#include "classification/category_store.h"

#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <utility>

#include "tests/support/classification_fixture.h"

namespace tidewatch {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

const AppId chrome("com.google.Chrome");
const AppId editor("com.example.Editor");
const AppId terminal("org.example.Terminal");
const DayKey monday("2026-01-12");

constexpr auto bothKinds =
    "{\n"
    "  \"appOverrides\" : {\n"
    "    \"com.example.Editor\" : \"Desarrollo\"\n"
    "  },\n"
    "  \"tierOverrides\" : [\n"
    "    \"Navegador\",\n"
    "    \"neutral\"\n"
    "  ]\n"
    "}";

struct CategoryStoreTest : testing::Test {
    test::FakeWorld world;
    std::optional<CategoryStore> store{std::in_place, world.files, world.log, world.applications};

    void restart() { store.emplace(world.files, world.log, world.applications); }
    void restartWith(std::string_view text) {
        world.files.put(world.categoriesJson, text);
        restart();
    }
    [[nodiscard]] std::string onDisk() const {
        return world.files.content(world.categoriesJson).value_or("no file");
    }
    void expectNoOverrides() const {
        EXPECT_EQ(store->category(editor), Category::uncategorized);
        EXPECT_EQ(store->tier(Category::browser), Tier::productive);
    }
};

TEST_F(CategoryStoreTest, AnUnknownApplicationIsUncategorizedInCategoryAndTier) {
    EXPECT_EQ(store->category(editor), Category::uncategorized);
    EXPECT_EQ(store->tier(editor), Tier::uncategorized);
}

TEST_F(CategoryStoreTest, AnOverrideOfABuiltInApplicationWinsAndClearingItReturnsTheBuiltInValue) {
    store->setCategory(Category::social, chrome);
    EXPECT_EQ(store->category(chrome), Category::social);
    EXPECT_EQ(store->tier(chrome), Tier::distracting);
    store->clearCategoryOverride(chrome);
    EXPECT_EQ(store->category(chrome), Category::browser);
    EXPECT_EQ(store->tier(chrome), Tier::productive);
}

TEST_F(CategoryStoreTest, WhatTheDesktopRegistersComesAfterTheBuiltInTable) {
    world.applications.registerApplication(terminal, {"Terminal", "", {"System", "TerminalEmulator"}});
    world.applications.registerApplication(chrome, {"Chrome", "", {"Game"}});
    EXPECT_EQ(store->category(terminal), Category::development);
    EXPECT_EQ(store->category(chrome), Category::browser);
}

TEST_F(CategoryStoreTest, AnOverrideOfARegisteredApplicationWinsAndClearingItReturnsTheRegisteredOne) {
    world.applications.registerApplication(terminal, {"Terminal", "", {"TerminalEmulator"}});
    store->setCategory(Category::games, terminal);
    EXPECT_EQ(store->tier(terminal), Tier::distracting);
    store->clearCategoryOverride(terminal);
    EXPECT_EQ(store->category(terminal), Category::development);
}

TEST_F(CategoryStoreTest, SettingUncategorizedIsKeptAsAnOverride) {
    store->setCategory(Category::uncategorized, chrome);
    EXPECT_EQ(store->category(chrome), Category::uncategorized);
    restart();
    EXPECT_EQ(store->category(chrome), Category::uncategorized);
    EXPECT_EQ(onDisk(),
              "{\n  \"appOverrides\" : {\n    \"com.google.Chrome\" : \"Sin categorizar\"\n  },\n"
              "  \"tierOverrides\" : [\n\n  ]\n}");
}

TEST_F(CategoryStoreTest, ATierOfACategoryChangesAllItsApplicationsAtOncePastDaysIncluded) {
    test::ClassificationFixture fixture(world);
    for (int i = 0; i < 60; ++i) {
        fixture.apps.incrementApp(chrome, monday);
        fixture.apps.incrementApp(AppId("com.apple.Safari"), monday);
    }
    EXPECT_EQ(fixture.scorer.compute(std::vector{monday}).productiveSeconds, Seconds(120));
    fixture.categories.setTier(Tier::neutral, Category::browser);
    const auto after = fixture.scorer.compute(std::vector{monday});
    EXPECT_EQ(after.productiveSeconds, Seconds(0));
    EXPECT_EQ(after.neutralSeconds, Seconds(120));
    fixture.categories.clearTierOverride(Category::browser);
    EXPECT_EQ(fixture.scorer.compute(std::vector{monday}).productiveSeconds, Seconds(120));
}

TEST_F(CategoryStoreTest, TheFileIsWrittenExactlySo) {
    store->setTier(Tier::neutral, Category::browser);
    store->setCategory(Category::development, editor);
    EXPECT_EQ(onDisk(), bothKinds);
    EXPECT_EQ(store->dataFilePath(), world.categoriesJson);
}

TEST_F(CategoryStoreTest, TheFileIsSortedAndItsSlashesAreEscaped) {
    store->setTier(Tier::distracting, Category::other);
    store->setTier(Tier::neutral, Category::audioVideo);
    store->setTier(Tier::uncategorized, Category::communication);
    store->setCategory(Category::music, AppId("z/\"app\""));
    store->setCategory(Category::audioVideo, AppId("a"));
    EXPECT_EQ(onDisk(),
              "{\n"
              "  \"appOverrides\" : {\n"
              "    \"a\" : \"Audio\\/Video\",\n"
              "    \"z\\/\\\"app\\\"\" : \"Música\"\n"
              "  },\n"
              "  \"tierOverrides\" : [\n"
              "    \"Audio\\/Video\",\n"
              "    \"neutral\",\n"
              "    \"Comunicación\",\n"
              "    \"sincategorizar\",\n"
              "    \"Otro\",\n"
              "    \"distrayendo\"\n"
              "  ]\n"
              "}");
}

TEST_F(CategoryStoreTest, EachChangeIsWrittenAtOnceAndNothingElseIs) {
    EXPECT_THAT(world.files.writes(), IsEmpty());
    store->setCategory(Category::music, editor);
    EXPECT_THAT(world.files.writes(), SizeIs(1));
    store->clearCategoryOverride(editor);
    store->setTier(Tier::neutral, Category::browser);
    store->clearTierOverride(Category::browser);
    EXPECT_THAT(world.files.writes(), SizeIs(4));
    EXPECT_EQ(store->category(editor), Category::uncategorized);
    EXPECT_THAT(world.files.writes(), SizeIs(4));
}

TEST_F(CategoryStoreTest, TheNextStartReadsTheFileBack) {
    store->setTier(Tier::distracting, Category::browser);
    store->setCategory(Category::design, editor);
    store->setCategory(Category::audioVideo, AppId("a/b"));
    restart();
    EXPECT_EQ(store->tier(Category::browser), Tier::distracting);
    EXPECT_EQ(store->category(editor), Category::design);
    EXPECT_EQ(store->category(AppId("a/b")), Category::audioVideo);
}

TEST_F(CategoryStoreTest, AFileWithoutTierOverridesReadsAsEmpty) {
    restartWith(R"({"appOverrides":{"com.example.Editor":"Desarrollo"}})");
    expectNoOverrides();
}

TEST_F(CategoryStoreTest, AFileWithoutAppOverridesReadsAsEmpty) {
    restartWith(R"({"tierOverrides":["Navegador","neutral"]})");
    expectNoOverrides();
}

TEST_F(CategoryStoreTest, OneUnknownRawValueInvalidatesTheWholeFile) {
    for (
        const auto* text : {
            R"({"appOverrides":{"com.example.Editor":"Desarrollo","b":"desarrollo"},"tierOverrides":[]})",
            R"({"appOverrides":{"com.example.Editor":"Desarrollo"},"tierOverrides":["Navegador","Neutral"]})",
            R"({"appOverrides":{"com.example.Editor":"Desarrollo"},"tierOverrides":["Browser","neutral"]})",
        }) {
        restartWith(text);
        expectNoOverrides();
        EXPECT_EQ(onDisk(), text);
        store->setCategory(Category::music, AppId("b"));
        EXPECT_EQ(
            onDisk(),
            "{\n  \"appOverrides\" : {\n    \"b\" : \"Música\"\n  },\n  \"tierOverrides\" : [\n\n  ]\n}");
    }
}

TEST_F(CategoryStoreTest, AMalformedFileReadsAsEmpty) {
    for (
        const auto* text : {
            "",
            "[]",
            "null",
            "{}",
            "not json",
            R"({"appOverrides":{"com.example.Editor":"Desarrollo"},"tierOverrides":["Navegador"]})",
            R"({"appOverrides":{"com.example.Editor":"Desarrollo"},"tierOverrides":{"Navegador":"neutral"}})",
            R"({"appOverrides":{"com.example.Editor":"Desarrollo"},"tierOverrides":null})",
            R"({"appOverrides":{"com.example.Editor":"Desarrollo"},"tierOverrides":[1,2]})",
            R"({"appOverrides":["com.example.Editor","Desarrollo"],"tierOverrides":["Navegador","neutral"]})",
            R"({"appOverrides":{"com.example.Editor":null},"tierOverrides":["Navegador","neutral"]})",
            R"({"appOverrides":{"com.example.Editor":{}},"tierOverrides":["Navegador","neutral"]})",
            R"({"AppOverrides":{"com.example.Editor":"Desarrollo"},"tierOverrides":["Navegador","neutral"]})",
        }) {
        restartWith(text);
        expectNoOverrides();
    }
}

TEST_F(CategoryStoreTest, OtherKeysAreIgnored) {
    restartWith(R"({"version":2,"appOverrides":{"com.example.Editor":"Desarrollo"},"tierOverrides":[]})");
    EXPECT_EQ(store->category(editor), Category::development);
}

TEST_F(CategoryStoreTest, OfDuplicatesTheLastWins) {
    restartWith(R"({"appOverrides":{},"tierOverrides":["Navegador","neutral","Navegador","distrayendo"]})");
    EXPECT_EQ(store->tier(Category::browser), Tier::distracting);
}

TEST_F(CategoryStoreTest, EveryTruncationReadsAsEmptyAndIsReplacedByTheNextWrite) {
    const std::string whole = bothKinds;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        restartWith(whole.substr(0, length));
        expectNoOverrides();
        store->clearTierOverride(Category::browser);
        EXPECT_EQ(onDisk(), "{\n  \"appOverrides\" : {\n\n  },\n  \"tierOverrides\" : [\n\n  ]\n}") << length;
    }
}

TEST_F(CategoryStoreTest, ADamagedFileIsSetAsideByTheNextWrite) {
    restartWith("garbage");
    store->setTier(Tier::neutral, Category::games);
    EXPECT_EQ(world.files.content(world.categoriesJson + ".damaged-2026-01-15"), "garbage");
    store->setTier(Tier::productive, Category::games);
    EXPECT_EQ(world.log.infos().size(), 1u);
}

TEST_F(CategoryStoreTest, EveryByteGarbledNeitherCrashesNorLeavesAnUnreadableFile) {
    const std::string whole = bothKinds;
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (const char garbage : {'\0', '"', '{', '[', ',', '9', '\xFF'}) {
            auto damaged = whole;
            damaged[at] = garbage;
            restartWith(damaged);
            store->setTier(Tier::neutral, Category::games);
            const auto written = onDisk();
            restart();
            ASSERT_EQ(store->tier(Category::games), Tier::neutral) << damaged;
            store->setTier(Tier::neutral, Category::games);
            ASSERT_EQ(onDisk(), written) << damaged;
        }
    }
}

TEST_F(CategoryStoreTest, AFailedWriteIsLoggedAndTheChangeStaysInMemory) {
    world.files.failWrite(1);
    world.log.expectWarning("Tidewatch: failed to write categories.json: ");
    store->setCategory(Category::development, editor);
    EXPECT_EQ(store->category(editor), Category::development);
    EXPECT_EQ(onDisk(), "no file");
    store->setTier(Tier::neutral, Category::browser);
    EXPECT_EQ(onDisk(), bothKinds);
}

TEST_F(CategoryStoreTest, AFailedWriteKeepsTheFileAsItWas) {
    restartWith(bothKinds);
    world.files.setDisk(platform::MemoryFileSystem::Disk::full);
    world.log.expectWarning("Tidewatch: failed to write categories.json: ");
    store->clearCategoryOverride(editor);
    EXPECT_EQ(onDisk(), bothKinds);
}

TEST_F(CategoryStoreTest, ADirectoryThatCannotBeMadeShowsUpOnlyAtTheFirstChange) {
    test::FakeWorld barred;
    barred.files.makeUnmakeable("/home/user/.tidewatch");
    CategoryStore other(barred.files, barred.log, barred.applications);
    EXPECT_THAT(barred.log.warnings(), IsEmpty());
    barred.log.expectWarning("Tidewatch: failed to write categories.json: ");
    other.setTier(Tier::neutral, Category::browser);
    EXPECT_EQ(other.tier(Category::browser), Tier::neutral);
}

}  // namespace
}  // namespace tidewatch
