#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/copy_on_write.h"

namespace tidewatch {

/// Stores each distinct string once and identifies it by a number from 0 up. Copy-on-write; not thread-safe,
/// but copies may be used on other threads.
class StringInterner final {
public:
    std::uint32_t intern(std::string_view name) {
        // While a record is loaded the same few names recur: this cache avoids most hash lookups.
        auto& guess = guesses_[guessFor(name)];
        if (guess >= size() || (*this)[guess] != name) guess = lookUp(name);
        return guess;
    }

    /// Valid until the next name is interned.
    [[nodiscard]] std::string_view operator[](std::uint32_t id) const { return names_->inOrder[id]; }

    [[nodiscard]] std::uint32_t size() const { return static_cast<std::uint32_t>(names_->inOrder.size()); }

private:
    static constexpr std::size_t guessCount = 256;

    struct Names {
        Names() = default;
        Names(const Names& other) {
            for (const auto name : other.inOrder) add(name);
        }
        Names& operator=(const Names&) = delete;

        std::uint32_t add(std::string_view name) {
            const auto id = static_cast<std::uint32_t>(inOrder.size());
            inOrder.push_back(texts.emplace_back(name));
            ids.emplace(inOrder.back(), id);
            return id;
        }

        // The views and the map's keys point into the deque, whose elements never move.
        std::deque<std::string> texts;
        std::vector<std::string_view> inOrder;
        std::unordered_map<std::string_view, std::uint32_t> ids;
    };

    static std::size_t guessFor(std::string_view name) {
        const auto fromEnd = [&](std::size_t i) {
            return i < name.size() ? static_cast<unsigned char>(name[name.size() - 1 - i]) : std::size_t{};
        };
        return (fromEnd(0) + 7 * fromEnd(1) + 31 * fromEnd(3) + 97 * name.size()) % guessCount;
    }

    std::uint32_t lookUp(std::string_view name) {
        const auto known = names_->ids.find(name);
        return known != names_->ids.end() ? known->second : names_.edit().add(name);
    }

    CopyOnWrite<Names> names_;
    std::array<std::uint32_t, guessCount> guesses_{};
};

}  // namespace tidewatch
