#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace tidewatch::fuzz {

/// Aborts the run unless `holds`; the fuzzer keeps the input.
inline void require(bool holds, const char* rule) {
    if (holds) return;
    std::fprintf(stderr, "This does not hold: %s\n", rule);
    std::abort();
}

/// Runs the target on one input.
void check(std::string_view input);

}  // namespace tidewatch::fuzz

/// Each target is one file that defines check().
extern "C" [[gnu::used]] inline int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tidewatch::fuzz::check({reinterpret_cast<const char*>(data), size});
    return 0;
}
