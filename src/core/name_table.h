#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tidewatch {

/// Texts that recur many times, each kept once and known by a small number from 0 on.
class NameTable final {
public:
    NameTable() = default;
    NameTable(const NameTable& other) {
        for (const auto name : other.names_) intern(name);
    }
    NameTable(NameTable&&) = default;
    NameTable& operator=(const NameTable& other) { return *this = NameTable(other); }
    NameTable& operator=(NameTable&&) = default;

    std::uint32_t intern(std::string_view name) {
        // The same few names come again and again while a record is read: a guess spares most look-ups.
        auto& guess = guesses_[guessFor(name)];
        if (guess >= names_.size() || names_[guess] != name) guess = lookUp(name);
        return guess;
    }

    /// Valid as long as the table.
    [[nodiscard]] std::string_view operator[](std::uint32_t id) const { return names_[id]; }

    [[nodiscard]] std::uint32_t size() const { return static_cast<std::uint32_t>(names_.size()); }

private:
    static constexpr std::size_t guessCount = 256;

    static std::size_t guessFor(std::string_view name) {
        const auto fromEnd = [&](std::size_t i) {
            return i < name.size() ? static_cast<unsigned char>(name[name.size() - 1 - i]) : std::size_t{};
        };
        return (fromEnd(0) + 7 * fromEnd(1) + 31 * fromEnd(3) + 97 * name.size()) % guessCount;
    }

    std::uint32_t lookUp(std::string_view name) {
        if (const auto known = ids_.find(name); known != ids_.end()) return known->second;
        const auto id = static_cast<std::uint32_t>(names_.size());
        names_.push_back(texts_.emplace_back(name));
        ids_.emplace(names_.back(), id);
        return id;
    }

    // The names and the map's keys point into the deque, whose elements never move.
    std::deque<std::string> texts_;
    std::vector<std::string_view> names_;
    std::unordered_map<std::string_view, std::uint32_t> ids_;
    std::array<std::uint32_t, guessCount> guesses_{};
};

}  // namespace tidewatch
