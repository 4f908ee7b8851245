#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace tidewatch::fuzz {

/// Ends the run, and the input that led here is kept, unless `holds`.
inline void require(bool holds, const char* rule) {
    if (holds) return;
    std::fprintf(stderr, "This does not hold: %s\n", rule);
    std::abort();
}

/// What a target does with one input.
void check(std::string_view input);

}  // namespace tidewatch::fuzz

/// Each target is one file that defines check().
extern "C" [[gnu::used]] inline int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tidewatch::fuzz::check({reinterpret_cast<const char*>(data), size});
    return 0;
}
