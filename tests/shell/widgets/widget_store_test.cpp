#include "shell/widgets/widget_store.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "tests/support/fake_world.h"

namespace tidewatch {
namespace {

constexpr char widgetsJson[] = "/home/user/.tidewatch/widgets.json";

class WidgetStoreTest : public testing::Test {
protected:
    WidgetStore load(const std::string& text) {
        world_.files.put(widgetsJson, text);
        return {world_.files, world_.log};
    }

    [[nodiscard]] std::string written() const { return world_.files.content(widgetsJson).value_or("(none)"); }
    [[nodiscard]] static bool isEmpty(const WidgetStore& store) {
        for (const auto kind : allWidgetKinds()) {
            if (store.state(kind) != WidgetState()) return false;
        }
        return true;
    }

    test::FakeWorld world_;
};

void show(WidgetState& state) {
    state.visible = true;
}

TEST_F(WidgetStoreTest, WithoutAFileEveryKindIsHiddenUnplacedAndUnscaledAndNothingIsWritten) {
    const WidgetStore store(world_.files, world_.log);
    for (const auto kind : allWidgetKinds()) {
        const auto state = store.state(kind);
        EXPECT_FALSE(state.visible);
        EXPECT_EQ(state.x, std::nullopt);
        EXPECT_EQ(state.y, std::nullopt);
        EXPECT_EQ(state.scale, 1.0);
    }
    EXPECT_TRUE(world_.files.hasDirectory("/home/user/.tidewatch"));
    EXPECT_EQ(store.dataFilePath(), widgetsJson);
    EXPECT_EQ(world_.files.writeCount(), 0);
}

TEST_F(WidgetStoreTest, EachUpdateWritesTheFileOnOneLineWithTheKeysInTheirOrder) {
    WidgetStore store(world_.files, world_.log);
    store.update(WidgetKind::topApps, show);
    EXPECT_EQ(written(), R"({"topApps":{"visible":true,"scale":1}})");
    store.update(WidgetKind::goals,
                 [](WidgetState& state) { state = {.visible = true, .x = 1682, .y = -54.5, .scale = 1.25}; });
    EXPECT_EQ(written(), R"({"goals":{"visible":true,"x":1682,"y":-54.5,"scale":1.25},)"
                         R"("topApps":{"visible":true,"scale":1}})");
    store.update(WidgetKind::topApps, [](WidgetState& state) { state.visible = false; });
    EXPECT_EQ(written(), R"({"goals":{"visible":true,"x":1682,"y":-54.5,"scale":1.25},)"
                         R"("topApps":{"visible":false,"scale":1}})");
}

TEST_F(WidgetStoreTest, AStateIsReadBackExactly) {
    for (const double number : {0.1 + 0.2, 1.0 / 3, -1e-300, 1e15, 1e300, 5.0}) {
        const WidgetState state{.visible = true, .x = number, .y = -number, .scale = number};
        WidgetStore(world_.files, world_.log).update(WidgetKind::speed, [&](auto& to) { to = state; });
        EXPECT_EQ(WidgetStore(world_.files, world_.log).state(WidgetKind::speed), state) << written();
    }
}

TEST_F(WidgetStoreTest, AnUnknownKeyDisappearsAtTheNextWrite) {
    auto store = load(R"({"clock":{"visible":true,"x":1,"y":2,"scale":1},)"
                      R"("arcade":{"visible":false,"x":3,"y":4,"scale":1,"color":"red"}})");
    EXPECT_EQ(store.state(WidgetKind::arcade), (WidgetState{.x = 3, .y = 4}));
    store.update(WidgetKind::arcade, [](WidgetState&) {});
    EXPECT_EQ(written(), R"({"arcade":{"visible":false,"x":3,"y":4,"scale":1}})");
}

TEST_F(WidgetStoreTest, OneCoordinateAloneIsKeptButIsNoPlace) {
    const auto store = load(R"({"goals":{"visible":true,"x":10,"scale":1},)"
                            R"("speed":{"visible":true,"x":null,"y":20,"scale":1},)"
                            R"("arcade":{"visible":true,"x":10,"y":20,"scale":1}})");
    EXPECT_EQ(store.state(WidgetKind::goals).x, 10);
    EXPECT_EQ(store.state(WidgetKind::goals).place(), std::nullopt);
    EXPECT_EQ(store.state(WidgetKind::speed).y, 20);
    EXPECT_EQ(store.state(WidgetKind::speed).place(), std::nullopt);
    EXPECT_EQ(store.state(WidgetKind::arcade).place(), (platform::Point{10, 20}));
}

TEST_F(WidgetStoreTest, AnyOtherWritingOfTheSameStatesIsRead) {
    EXPECT_EQ(
        load("\xEF\xBB\xBF{ \"goals\" : {\n \"scale\" : 2.0, \"y\" : 2e1, \"x\" : 10, \"visible\" : true } }")
            .state(WidgetKind::goals),
        (WidgetState{.visible = true, .x = 10, .y = 20, .scale = 2}));
}

TEST_F(WidgetStoreTest, WithOneWrongValueTheWholeFileIsTreatedAsMissing) {
    const std::string good = R"("goals":{"visible":true,"scale":1},)";
    for (const auto* wrong : {
             R"("arcade":{"visible":1,"scale":1})",
             R"("arcade":{"visible":null,"scale":1})",
             R"("arcade":{"visible":"true","scale":1})",
             R"("arcade":{"scale":1})",
             R"("arcade":{"visible":true})",
             R"("arcade":{"visible":true,"scale":"1"})",
             R"("arcade":{"visible":true,"scale":null})",
             R"("arcade":{"visible":true,"scale":true})",
             R"("arcade":{"visible":true,"scale":1,"x":"5"})",
             R"("arcade":{"visible":true,"scale":1,"y":[5]})",
             R"("arcade":{"visible":true,"scale":1e999})",
             R"("arcade":{"visible":true,"scale":NaN})",
             R"("arcade":true)",
             R"("arcade":null)",
             R"("clock":{"visible":true})",
         }) {
        EXPECT_TRUE(isEmpty(load("{" + good + wrong + "}"))) << wrong;
    }
    for (const auto* wrong : {"", "[]", "null", "7", "\"goals\"", "{} x"}) {
        EXPECT_TRUE(isEmpty(load(wrong))) << wrong;
    }
    EXPECT_TRUE(
        load("{" + good + R"("arcade":{"visible":false,"scale":1}})").state(WidgetKind::goals).visible);
}

TEST_F(WidgetStoreTest, AHalfWrittenFileIsTreatedAsMissingAndSetAside) {
    const std::string whole = R"({"goals":{"visible":true,"x":10,"y":20,"scale":1.5}})";
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_TRUE(isEmpty(load(whole.substr(0, length)))) << length;
    }
    auto store = load(whole.substr(0, 20));
    store.update(WidgetKind::goals, show);
    EXPECT_EQ(written(), R"({"goals":{"visible":true,"scale":1}})");
    EXPECT_EQ(world_.files.content(std::string(widgetsJson) + ".damaged-2026-01-15"), whole.substr(0, 20));
}

TEST_F(WidgetStoreTest, AnUpdateThatChangesNothingIsNotWrittenAgain) {
    auto store = load(R"({"goals":{"visible":true,"scale":1}})");
    store.update(WidgetKind::goals, show);
    EXPECT_EQ(world_.files.writeCount(), 1) << "the first one cleans the file";
    store.update(WidgetKind::goals, show);
    EXPECT_EQ(world_.files.writeCount(), 1);
}

TEST_F(WidgetStoreTest, AFailedWriteIsSilentAndMadeUpForByTheNextUpdate) {
    WidgetStore store(world_.files, world_.log);
    world_.files.failWrite(1);
    store.update(WidgetKind::goals, show);
    EXPECT_TRUE(store.state(WidgetKind::goals).visible);
    EXPECT_EQ(written(), "(none)");
    store.update(WidgetKind::goals, show);
    EXPECT_EQ(written(), R"({"goals":{"visible":true,"scale":1}})");
}

}  // namespace
}  // namespace tidewatch
