#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <mutex>
#include <string>
#include <string_view>

namespace tidewatch {

/// Numbers the names of models in the order in which they are first seen, from 0. Thread-safe.
class ModelNames final {
public:
    [[nodiscard]] std::uint32_t idOf(std::string_view name);

    /// The name of an id that was given out; stays valid.
    [[nodiscard]] const std::string& nameOf(std::uint32_t id) const;

    [[nodiscard]] std::size_t size() const;

private:
    mutable std::mutex mutex_;
    std::map<std::string, std::uint32_t, std::less<>> ids_;
    std::deque<const std::string*> names_;
};

}  // namespace tidewatch
