#pragma once

#include <compare>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace tidewatch {

/// A string that is not interchangeable with other strings: one type a `Tag`. Ordered as plain bytes.
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

/// Names an application in all counters. On Linux the desktop-file id without ".desktop".
using AppId = TaggedString<struct AppIdTag>;

/// Names a logical day, "yyyy-MM-dd"; sorts as dates do.
using DayKey = TaggedString<struct DayKeyTag>;

/// Names a clock hour of a logical day, "yyyy-MM-dd HH".
using HourKey = TaggedString<struct HourKeyTag>;

/// Names ten minutes of a clock hour of a logical day, "yyyy-MM-dd HH:mm", the minutes a multiple of ten.
using BucketKey = TaggedString<struct BucketKeyTag>;

}  // namespace tidewatch

template <class Tag>
struct std::hash<tidewatch::TaggedString<Tag>> {
    std::size_t operator()(const tidewatch::TaggedString<Tag>& value) const noexcept {
        return std::hash<std::string>{}(value.text());
    }
};
