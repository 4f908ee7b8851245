#pragma once

#include <compare>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace tidewatch {

/// A string with a distinct type per `Tag`, so that different kinds of keys cannot be confused. Ordered
/// bytewise.
template <class Tag>
class TaggedString final {
public:
    TaggedString() = default;
    explicit TaggedString(std::string text) : text_(std::move(text)) {}

    [[nodiscard]] const std::string& text() const noexcept { return text_; }
    [[nodiscard]] bool empty() const noexcept { return text_.empty(); }

    auto operator<=>(const TaggedString&) const = default;

private:
    std::string text_;
};

/// Identifies an application in all counters. On Linux the desktop-file id without ".desktop".
using AppId = TaggedString<struct AppIdTag>;

/// A logical day, "yyyy-MM-dd"; sorts chronologically.
using DayKey = TaggedString<struct DayKeyTag>;

/// A clock hour of a logical day, "yyyy-MM-dd HH".
using HourKey = TaggedString<struct HourKeyTag>;

/// A ten-minute bucket of a logical day, "yyyy-MM-dd HH:mm", the minutes a multiple of ten.
using BucketKey = TaggedString<struct BucketKeyTag>;

}  // namespace tidewatch

template <class Tag>
struct std::hash<tidewatch::TaggedString<Tag>> {
    std::size_t operator()(const tidewatch::TaggedString<Tag>& value) const noexcept {
        return std::hash<std::string>{}(value.text());
    }
};
