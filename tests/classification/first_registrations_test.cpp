#include "classification/first_registrations.h"

#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <utility>

#include "classification/registered_category.h"
#include "tests/support/classification_fixture.h"

namespace tidewatch {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const AppId terminal("org.example.Terminal");
const AppId chess("chess");
const DayKey monday("2026-01-12");
const std::string registeredJson = "/home/user/.tidewatch/registered.json";

constexpr auto bothOnDisk =
    "{\n"
    "  \"chess\" : [\n"
    "    \"Game\",\n"
    "    \"BoardGame\"\n"
    "  ],\n"
    "  \"org.example.Terminal\" : [\n"
    "    \"TerminalEmulator\"\n"
    "  ]\n"
    "}";

struct FirstRegistrationsTest : testing::Test {
    test::FakeWorld world;
    std::optional<CategoryStore> store{std::in_place, world.files, world.log, world.applications};

    void restart() { store.emplace(world.files, world.log, world.applications); }
    void install(const AppId& app, std::vector<std::string> categories) {
        world.applications.registerApplication(app, {"Name", "", std::move(categories)});
    }
    [[nodiscard]] std::string onDisk() const {
        return world.files.content(registeredJson).value_or("no file");
    }
    void meetBoth() {
        install(terminal, {"TerminalEmulator"});
        install(chess, {"Game", "BoardGame"});
        EXPECT_EQ(store->category(terminal), Category::development);
        EXPECT_EQ(store->category(chess), Category::games);
    }
};

TEST_F(FirstRegistrationsTest, TheFileIsWrittenExactlySo) {
    meetBoth();
    store->flushRegistered();
    EXPECT_EQ(onDisk(), bothOnDisk);
}

TEST_F(FirstRegistrationsTest, APackageThatIsRemovedLeavesItsApplicationAsItWas) {
    meetBoth();
    world.applications.removeApplication(chess);
    EXPECT_EQ(store->category(chess), Category::games);
    store->flushRegistered();
    restart();
    EXPECT_EQ(store->category(chess), Category::games);
}

TEST_F(FirstRegistrationsTest, APackageWhoseUpdateRegistersSomethingElseLeavesItsApplicationAsItWas) {
    meetBoth();
    store->flushRegistered();
    install(chess, {"Office"});
    EXPECT_EQ(store->category(chess), Category::games);
    restart();
    EXPECT_EQ(store->category(chess), Category::games);
}

TEST_F(FirstRegistrationsTest, APastDaysScoreOutlivesTheRemovalOfItsApplications) {
    install(terminal, {"TerminalEmulator"});
    {
        test::ClassificationFixture fixture(world);
        for (int i = 0; i < 60; ++i) fixture.apps.incrementApp(terminal, monday);
        EXPECT_EQ(fixture.scorer.compute(std::vector{monday}).productiveSeconds, Seconds(60));
        fixture.apps.flush();
        fixture.categories.flushRegistered();
    }
    world.applications.removeApplication(terminal);
    test::ClassificationFixture fixture(world);
    EXPECT_EQ(fixture.scorer.compute(std::vector{monday}).productiveSeconds, Seconds(60));
}

TEST_F(FirstRegistrationsTest, TheUsersChoiceWinsOverWhatIsRemembered) {
    meetBoth();
    store->setCategory(Category::design, chess);
    EXPECT_EQ(store->category(chess), Category::design);
    store->clearCategoryOverride(chess);
    EXPECT_EQ(store->category(chess), Category::games);
}

TEST_F(FirstRegistrationsTest, AnApplicationThatIsInstalledMeanwhileGetsItsCategory) {
    EXPECT_EQ(store->category(chess), Category::uncategorized);
    install(chess, {"Game"});
    EXPECT_EQ(store->category(chess), Category::games);
}

TEST_F(FirstRegistrationsTest, AnEntryThatSaidNothingOfUseIsAskedForAgainAfterAChange) {
    install(chess, {"X-Whatever"});
    EXPECT_EQ(store->category(chess), Category::uncategorized);
    store->flushRegistered();
    EXPECT_EQ(onDisk(), "no file");
    install(chess, {"Game"});
    EXPECT_EQ(store->category(chess), Category::games);
}

TEST_F(FirstRegistrationsTest, AnUnknownApplicationIsAskedForAgainOnlyWhenTheRegistryHasChanged) {
    for (int i = 0; i < 10; ++i) static_cast<void>(store->category(chess));
    EXPECT_EQ(world.applications.lookupCount(), 1);
    install(terminal, {"TerminalEmulator"});
    for (int i = 0; i < 10; ++i) static_cast<void>(store->category(chess));
    EXPECT_EQ(world.applications.lookupCount(), 2);
}

TEST_F(FirstRegistrationsTest, AKnownApplicationIsAskedForOnce) {
    meetBoth();
    for (int i = 0; i < 10; ++i) meetBoth();
    EXPECT_EQ(world.applications.lookupCount(), 2);
    restart();
    world.files.put(registeredJson, bothOnDisk);
    restart();
    meetBoth();
    EXPECT_EQ(world.applications.lookupCount(), 2);
}

TEST_F(FirstRegistrationsTest, NothingIsWrittenWithoutAChange) {
    store->flushRegistered();
    EXPECT_THAT(world.files.writes(), IsEmpty());
    meetBoth();
    store->flushRegistered();
    for (int i = 0; i < 10; ++i) {
        meetBoth();
        store->flushRegistered();
    }
    EXPECT_THAT(world.files.writes(), ElementsAre(registeredJson));
    restart();
    meetBoth();
    store->flushRegistered();
    EXPECT_THAT(world.files.writes(), SizeIs(1));
}

TEST_F(FirstRegistrationsTest, AFailedWriteIsLoggedAndRetriedWithTheNextApplication) {
    install(terminal, {"TerminalEmulator"});
    EXPECT_EQ(store->category(terminal), Category::development);
    world.files.failWrite(1);
    world.log.expectWarning("Tidewatch: failed to write registered.json: ");
    store->flushRegistered();
    store->flushRegistered();
    EXPECT_THAT(world.files.writes(), SizeIs(1));
    meetBoth();
    store->flushRegistered();
    EXPECT_EQ(onDisk(), bothOnDisk);
}

TEST_F(FirstRegistrationsTest, AMalformedFileReadsAsEmptyAndIsReplaced) {
    for (const auto* text : {"", "[]", "null", "not json", R"({"chess":"Office"})", R"({"chess":[1]})",
                             R"({"chess":["Office"],"other":null})", R"({"chess":["Office")"}) {
        world.files.put(registeredJson, text);
        restart();
        meetBoth();
        store->flushRegistered();
        EXPECT_EQ(onDisk(), bothOnDisk) << text;
    }
}

TEST_F(FirstRegistrationsTest, AnUnreadableFileIsKeptBeforeItIsReplaced) {
    world.files.put(registeredJson, R"({"chess":["Office"],})");
    restart();
    meetBoth();
    store->flushRegistered();
    EXPECT_EQ(world.files.content(registeredJson + ".damaged-2026-01-15"), R"({"chess":["Office"],})");
    EXPECT_EQ(onDisk(), bothOnDisk);
}

TEST_F(FirstRegistrationsTest, NothingIsWrittenIntoAnotherInstancesDirectory) {
    meetBoth();
    world.files.setRecordLock(platform::RecordLock::heldByAnother);
    store->flushRegistered();
    EXPECT_THAT(world.files.writes(), IsEmpty());
}

TEST_F(FirstRegistrationsTest, UselessRegistrationsAreReplacedByTheDesktops) {
    world.files.put(registeredJson, R"({"chess":["X-Whatever"]})");
    restart();
    meetBoth();
}

}  // namespace
}  // namespace tidewatch
