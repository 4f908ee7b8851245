#include "platform/fake/fake_time_zone.h"

#include <algorithm>
#include <utility>

namespace tidewatch::platform {

using namespace std::chrono;
using namespace std::chrono_literals;

FakeTimeZone::FakeTimeZone(seconds initialOffset, std::vector<Transition> transitions)
    : initialOffset_(initialOffset), transitions_(std::move(transitions)) {}

seconds FakeTimeZone::utcOffset(Instant instant) const {
    const auto next = std::ranges::upper_bound(transitions_, instant, {}, &Transition::at);
    return next == transitions_.begin() ? initialOffset_ : std::prev(next)->offset;
}

std::shared_ptr<const TimeZone> fixedZone(seconds offset) {
    return std::make_shared<FakeTimeZone>(offset, std::vector<FakeTimeZone::Transition>());
}

std::shared_ptr<const TimeZone> madridZone() {
    std::vector<FakeTimeZone::Transition> transitions;
    for (auto year = 1996y; year <= 2099y; ++year) {
        transitions.push_back({sys_days(year / March / Sunday[last]) + 1h, 2h});
        transitions.push_back({sys_days(year / October / Sunday[last]) + 1h, 1h});
    }
    return std::make_shared<FakeTimeZone>(1h, std::move(transitions));
}

std::shared_ptr<const TimeZone> mexicoCityZone() {
    std::vector<FakeTimeZone::Transition> transitions;
    for (auto year = 2002y; year <= 2022y; ++year) {
        transitions.push_back({sys_days(year / April / Sunday[1]) + 8h, -5h});
        transitions.push_back({sys_days(year / October / Sunday[last]) + 7h, -6h});
    }
    return std::make_shared<FakeTimeZone>(-6h, std::move(transitions));
}

}  // namespace tidewatch::platform
