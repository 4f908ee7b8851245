#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace tidewatch {

/// As many bytes as fit into a vector register of any processor; compared bytes are -1 where that holds.
inline constexpr std::size_t byteVectorSize = 16;
using ByteVector [[gnu::vector_size(byteVectorSize)]] = signed char;

[[nodiscard]] inline ByteVector loadBytes(const char* text) {
    ByteVector bytes;
    std::memcpy(&bytes, text, byteVectorSize);
    return bytes;
}

[[nodiscard]] inline bool isAnySet(const ByteVector& bytes) {
    using Words [[gnu::vector_size(byteVectorSize)]] = std::uint64_t;
    const auto words = reinterpret_cast<Words>(bytes);
    return (words[0] | words[1]) != 0;
}

}  // namespace tidewatch
