#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

namespace tidewatch::bench {

using Milliseconds = std::chrono::duration<double, std::milli>;

/// How long one call takes on the steady clock.
[[nodiscard]] Milliseconds timed(const std::function<void()>& work);

/// What a run of a benchmark is for.
enum class Run {
    trial,    ///< everything is done once or twice and must come out right; nothing is judged
    judged,   ///< TIDEWATCH_BENCH=judge: what goes by the clock or by memory is judged
    counted,  ///< under callgrind: what is pure computation is judged, and nothing else is done
};

/// Does the work of one benchmark program and collects the verdicts on it.
///
/// A verdict must not depend on the machine. So pure computation is judged by the instructions that it takes,
/// and what has to go by the clock against a peer that does the least that any program would have to do, in
/// turns with it. bench/judge.py starts a program once for each of the two.
class Verdicts final {
public:
    Verdicts();

    [[nodiscard]] Run run() const { return run_; }

    /// Pure computation, for which a processor that does ten million instructions a millisecond (as one of
    /// 3 GHz does) takes at most so long. The first call of `work` warms up and does not count.
    void computation(std::string_view name, const std::function<void()>& work, double maxMilliseconds);

    /// Work that the machine has a part in, a disk above all: at its best it takes at most `ratio` times what
    /// `peer` takes at its best. `peerName` says what the peer does.
    void race(std::string_view name, const std::function<void()>& work, double ratio,
              std::string_view peerName, const std::function<void()>& peer);

    /// An amount that is the same in each run. `bar` says where the limit comes from.
    void amount(std::string_view name, double measured, double limit, std::string_view unit,
                std::string_view bar);

    /// What main returns: 0 if every bar that was judged was met.
    [[nodiscard]] int exitCode() const { return failed_ ? 1 : 0; }

private:
    void judge(std::string_view name, double measured, double limit, std::string_view unit,
               std::string_view bar);
    [[nodiscard]] double millionsOfInstructions(const std::function<void()>& work);

    Run run_;
    std::string countsPath_;  // where callgrind leaves its counts, numbered from 1 on
    int counts_ = 0;
    bool failed_ = false;
};

}  // namespace tidewatch::bench
