#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

namespace tidewatch::bench {

using Milliseconds = std::chrono::duration<double, std::milli>;

/// The duration of one call on the steady clock.
[[nodiscard]] Milliseconds timed(const std::function<void()>& work);

/// The mode of a benchmark run.
enum class Run {
    trial,    ///< everything runs once or twice and must be correct; no limit is checked
    judged,   ///< TIDEWATCH_BENCH=judge: limits on time and memory are checked
    counted,  ///< under callgrind: only limits on pure computation are checked
};

/// Runs the measurements of one benchmark program and collects the verdicts.
///
/// A verdict must not depend on the machine. So pure computation is judged by its number of instructions, and
/// anything else relative to a baseline that does the minimum any program would have to do, alternating with
/// it. bench/judge.py starts a program once for each of the two.
class Verdicts final {
public:
    Verdicts();

    [[nodiscard]] Run run() const { return run_; }

    /// Pure computation, limited to the given time on a processor with ten million instructions per
    /// millisecond (about 3 GHz). The first call of `work` warms up and is not counted.
    void computation(std::string_view name, const std::function<void()>& work, double maxMilliseconds);

    /// Work that depends on the machine, above all a disk: its best time must be at most `ratio` times that
    /// of the baseline `peer`. `peerName` describes the baseline.
    void race(std::string_view name, const std::function<void()>& work, double ratio,
              std::string_view peerName, const std::function<void()>& peer);

    /// An amount that is the same in each run. `bar` describes the limit.
    void amount(std::string_view name, double measured, double limit, std::string_view unit,
                std::string_view bar);

    /// The exit status: 0 if all checked limits were met.
    [[nodiscard]] int exitCode() const { return failed_ ? 1 : 0; }

private:
    void judge(std::string_view name, double measured, double limit, std::string_view unit,
               std::string_view bar);
    [[nodiscard]] double millionsOfInstructions(const std::function<void()>& work);

    Run run_;
    std::string countsPath_;  // callgrind's output files, numbered from 1
    int counts_ = 0;
    bool failed_ = false;
};

}  // namespace tidewatch::bench
