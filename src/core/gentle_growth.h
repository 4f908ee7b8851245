#pragma once

#include <cstddef>
#include <vector>

namespace tidewatch {

// A full vector doubles when it grows. A record of years gains a row now and then and must not take twice its
// memory for it: it grows by one part in sixty-four.

[[nodiscard]] constexpr std::size_t gentleCapacity(std::size_t size) {
    return size + size / 64 + 64;
}

/// Inserts like vector::insert.
template <class T>
void insertGently(std::vector<T>& sequence, std::size_t index, T value) {
    if (sequence.size() == sequence.capacity()) sequence.reserve(gentleCapacity(sequence.size()));
    sequence.insert(sequence.begin() + static_cast<std::ptrdiff_t>(index), value);
}

/// Gives memory back, but for room to grow a little. For vectors and strings.
template <class Sequence>
void trimGently(Sequence& sequence) {
    if (sequence.capacity() <= gentleCapacity(sequence.size())) return;
    Sequence trimmed;
    trimmed.reserve(gentleCapacity(sequence.size()));
    trimmed.insert(trimmed.end(), sequence.begin(), sequence.end());
    sequence.swap(trimmed);
}

}  // namespace tidewatch
