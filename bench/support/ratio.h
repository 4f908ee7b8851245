#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tidewatch::bench {

using Milliseconds = std::chrono::duration<double, std::milli>;

/// How long one call takes on the steady clock.
[[nodiscard]] Milliseconds timed(const std::function<void()>& work);

/// How much processor time the process takes for one call. For a bar that is a time and not a ratio: what
/// else keeps the machine busy does not count.
[[nodiscard]] Milliseconds processorTime(const std::function<void()>& work);

/// The middle one; `times` is not empty.
[[nodiscard]] Milliseconds median(std::vector<Milliseconds> times);

/// Collects the verdicts of one benchmark program.
class Verdicts final {
public:
    /// Prints "name: measured / limit (bar) PASS|FAIL"; the bar is met at the limit and below it. `bar` says
    /// where the limit comes from.
    void compare(std::string_view name, double measured, double limit, std::string_view unit,
                 std::string_view bar);

    /// What main returns: 0 if every bar was met.
    [[nodiscard]] int exitCode() const { return failed_ ? 1 : 0; }

private:
    bool failed_ = false;
};

}  // namespace tidewatch::bench
