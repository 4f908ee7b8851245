#pragma once

#include <string>
#include <utility>
#include <variant>

namespace tidewatch {

/// Why an operation failed, in words for the log or for whoever asked.
struct Error {
    std::string message;
};

/// A value or the reason why there is none: an Error, or one that tells more.
template <class T, class E = Error>
class [[nodiscard]] Result final {
public:
    Result(T value) : state_(std::move(value)) {}
    Result(E error) : state_(std::move(error)) {}

    [[nodiscard]] bool ok() const noexcept { return std::holds_alternative<T>(state_); }
    explicit operator bool() const noexcept { return ok(); }

    /// Only if ok().
    [[nodiscard]] const T& value() const& { return std::get<T>(state_); }
    [[nodiscard]] T&& value() && { return std::get<T>(std::move(state_)); }

    /// Only if not ok().
    [[nodiscard]] const E& error() const { return std::get<E>(state_); }

private:
    std::variant<T, E> state_;
};

/// The status of an operation that gives nothing back when it succeeds.
using Status = Result<std::monostate>;

[[nodiscard]] inline Status success() {
    return std::monostate{};
}

}  // namespace tidewatch
