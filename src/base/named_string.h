#pragma once

#include <compare>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace tidewatch {

/// A string that is not interchangeable with other strings: one type a `Tag`. Ordered as plain bytes.
template <class Tag>
class NamedString final {
public:
    NamedString() = default;
    explicit NamedString(std::string text) : text_(std::move(text)) {}

    [[nodiscard]] const std::string& text() const noexcept { return text_; }
    [[nodiscard]] bool empty() const noexcept { return text_.empty(); }

    auto operator<=>(const NamedString&) const = default;

private:
    std::string text_;
};

/// Names an application in all counters. On Linux the desktop-file id without ".desktop".
using AppId = NamedString<struct AppIdTag>;

/// Names a logical day, "yyyy-MM-dd"; sorts as dates do.
using DayKey = NamedString<struct DayKeyTag>;

/// Names a clock hour of a logical day, "yyyy-MM-dd HH".
using HourKey = NamedString<struct HourKeyTag>;

/// Names ten minutes of a clock hour of a logical day, "yyyy-MM-dd HH:mm", the minutes a multiple of ten.
using BucketKey = NamedString<struct BucketKeyTag>;

}  // namespace tidewatch

template <class Tag>
struct std::hash<tidewatch::NamedString<Tag>> {
    std::size_t operator()(const tidewatch::NamedString<Tag>& value) const noexcept {
        return std::hash<std::string>{}(value.text());
    }
};
