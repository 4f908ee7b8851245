#pragma once

#include <cstddef>
#include <vector>

namespace tidewatch {

/// Inserts like vector::insert, but a full vector grows by a sixteenth instead of doubling: a record of years
/// gains a row now and then and must not take twice its memory for it.
template <class T>
void insertGently(std::vector<T>& sequence, std::size_t index, T value) {
    if (sequence.size() == sequence.capacity()) {
        sequence.reserve(sequence.size() + sequence.size() / 16 + 64);
    }
    sequence.insert(sequence.begin() + static_cast<std::ptrdiff_t>(index), value);
}

}  // namespace tidewatch
