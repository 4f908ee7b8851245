#pragma once

#include <span>
#include <string_view>

namespace tidewatch::demo {

/// An application of the demonstration as registered with the desktop.
struct DemoApplication {
    std::string_view id;          ///< of its desktop entry
    std::string_view name;        ///< in Spanish
    std::string_view categories;  ///< of the desktop menu standard, each followed by a semicolon
    std::string_view initials;    ///< on its icon
    std::string_view color;       ///< of its icon, "#RRGGBB"
};

/// Applications with a desktop entry. Others in the record are unknown to the desktop.
[[nodiscard]] std::span<const DemoApplication> demoApplications();

}  // namespace tidewatch::demo
