#include "bench/support/ratio.h"

#include <fmt/core.h>
#include <time.h>

#include <algorithm>
#include <ctime>
#include <stdexcept>

namespace tidewatch::bench {

Milliseconds timed(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::steady_clock::now() - begin;
}

Milliseconds processorTime(const std::function<void()>& work) {
    const auto now = [] {
        std::timespec time{};
        if (::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time) != 0)
            throw std::runtime_error("no processor time");
        return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
    };
    const auto begin = now();
    work();
    return now() - begin;
}

Milliseconds median(std::vector<Milliseconds> times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::ranges::nth_element(times, middle);
    return *middle;
}

void Verdicts::compare(std::string_view name, double measured, double limit, std::string_view unit,
                       std::string_view bar) {
    const bool met = measured <= limit;
    failed_ = failed_ || !met;
    fmt::print("{}: {:.3f} {} / {:.3f} {} ({}) {}\n", name, measured, unit, limit, unit, bar,
               met ? "PASS" : "FAIL");
}

}  // namespace tidewatch::bench
