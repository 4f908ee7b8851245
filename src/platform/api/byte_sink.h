#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace tidewatch::platform {

/// Receives bytes in the order in which they are appended.
class ByteSink {
public:
    virtual ~ByteSink() = default;

    /// Returns false once a piece could not be stored; all later ones are ignored.
    virtual bool append(std::string_view piece) = 0;
};

/// Collects the bytes in memory.
class StringSink final : public ByteSink {
public:
    bool append(std::string_view piece) override {
        text_ += piece;
        return true;
    }

    [[nodiscard]] const std::string& text() const& { return text_; }
    [[nodiscard]] std::string text() && { return std::move(text_); }

private:
    std::string text_;
};

/// Appends the whole content of a file to the sink. May stop once append() returns false.
using ContentWriter = std::function<void(ByteSink& sink)>;

}  // namespace tidewatch::platform
