#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tidewatch {

/// Texts that recur many times, each kept once and known by a small number from 0 on.
class NameTable final {
public:
    NameTable() = default;
    NameTable(const NameTable& other) {
        for (const auto& name : other.names_) intern(name);
    }
    NameTable(NameTable&&) = default;
    NameTable& operator=(const NameTable& other) { return *this = NameTable(other); }
    NameTable& operator=(NameTable&&) = default;

    std::uint32_t intern(std::string_view name) {
        if (const auto known = ids_.find(name); known != ids_.end()) return known->second;
        const auto id = static_cast<std::uint32_t>(names_.size());
        ids_.emplace(names_.emplace_back(name), id);
        return id;
    }

    /// Valid as long as the table.
    [[nodiscard]] std::string_view operator[](std::uint32_t id) const { return names_[id]; }

    [[nodiscard]] std::uint32_t size() const { return static_cast<std::uint32_t>(names_.size()); }

private:
    // The map's keys point into the deque, whose elements never move.
    std::deque<std::string> names_;
    std::unordered_map<std::string_view, std::uint32_t> ids_;
};

}  // namespace tidewatch
