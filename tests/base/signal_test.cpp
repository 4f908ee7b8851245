#include "base/signal.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace tidewatch {
namespace {

TEST(Signal, CallsListenersInTheOrderOfConnection) {
    Signal<int> signal;
    std::string calls;
    const auto first = signal.connect([&](int n) { calls += "a" + std::to_string(n); });
    const auto second = signal.connect([&](int n) { calls += "b" + std::to_string(n); });
    signal.emit(7);
    EXPECT_EQ(calls, "a7b7");
}

TEST(Signal, ADestroyedConnectionIsNotCalled) {
    Signal<> signal;
    int calls = 0;
    {
        const auto connection = signal.connect([&] { ++calls; });
        signal.emit();
    }
    signal.emit();
    EXPECT_EQ(calls, 1);
}

TEST(Signal, AListenerMayDisconnectItselfAndOthersWhileCalled) {
    Signal<> signal;
    int others = 0;
    Connection self;
    Connection other;
    self = signal.connect([&] {
        self.disconnect();
        other.disconnect();
    });
    other = signal.connect([&] { ++others; });
    signal.emit();
    signal.emit();
    EXPECT_EQ(others, 0);
}

TEST(Signal, AListenerConnectedDuringAnEmissionWaitsForTheNext) {
    Signal<> signal;
    int late = 0;
    std::optional<Connection> added;
    const auto adding = signal.connect([&] {
        if (!added) added = signal.connect([&] { ++late; });
    });
    signal.emit();
    EXPECT_EQ(late, 0);
    signal.emit();
    EXPECT_EQ(late, 1);
}

TEST(Signal, AConnectionMayOutliveTheSignal) {
    std::optional<Signal<>> signal(std::in_place);
    auto connection = signal->connect([] {});
    signal.reset();
    connection.disconnect();
}

}  // namespace
}  // namespace tidewatch
