#pragma once

#include <cstdint>
#include <string>

namespace tidewatch {

/// A size in powers of 1024, from "B" to "TB": no decimals for plain bytes and from 100 units on, otherwise
/// one. "1023 B", "1.5 KB", "100 KB".
[[nodiscard]] std::string formatBytes(std::int64_t size);

/// The same; a size above the signed range ends the process.
[[nodiscard]] std::string formatBytes(std::uint64_t size);

/// A rate in bytes per second, from "B/s" to "GB/s", formatted like a size.
[[nodiscard]] std::string formatRate(double bytesPerSecond);

}  // namespace tidewatch
